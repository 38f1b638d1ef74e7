#include "desktop/flow_row.h"

#include <QLabel>
#include <QLayout>
#include <QWidget>
#include <algorithm>

#include "desktop/make.h"
#include "desktop/text.h"
#include "desktop/theme.h"

namespace tarvane::desktop {
namespace {

// One of the parts as it is laid out.
struct Part {
  std::unique_ptr<QLayoutItem> item;
  int stretch = 0;
  int digits = 0;

  int Least() const { return item->minimumSize().width(); }
  int Wanted() const { return std::max(Least(), digits > 0 ? Digits(digits) : item->sizeHint().width()); }
  int HeightFor(int width) const {
    return item->hasHeightForWidth() ? item->heightForWidth(width) : item->sizeHint().height();
  }
  bool IsTall() const { return (item->expandingDirections() & Qt::Vertical) != 0; }
};

struct Line {
  std::vector<const Part*> parts;
  std::vector<int> widths;
  int height = 0;
  bool tall = false;
};

class FlowLayout : public QLayout {
 public:
  explicit FlowLayout(int quarters) : quarters_(quarters) { setContentsMargins(0, 0, 0, 0); }

  void Add(std::unique_ptr<QLayoutItem> item, const FlowPart& part) {
    parts_.push_back({std::move(item), part.piece.stretch, part.digits});
  }
  void AddPart(const FlowPart& part) {
    auto* widget = part.piece.widget;
    if (widget == nullptr) {
      widget = Make<QWidget>();
      if (part.piece.layout != nullptr) {
        part.piece.layout->setContentsMargins(0, 0, 0, 0);
        widget->setLayout(part.piece.layout);
      }
    }
    addChildWidget(widget);
    Add(std::make_unique<QWidgetItem>(widget), part);
  }

  void addItem(QLayoutItem* item) override { Add(std::unique_ptr<QLayoutItem>(item), FlowPart(Piece{})); }
  int count() const override { return static_cast<int>(parts_.size()); }
  QLayoutItem* itemAt(int at) const override {
    return at >= 0 && at < count() ? parts_[static_cast<std::size_t>(at)].item.get() : nullptr;
  }
  QLayoutItem* takeAt(int at) override {
    if (itemAt(at) == nullptr) return nullptr;
    QLayoutItem* taken = parts_[static_cast<std::size_t>(at)].item.release();
    parts_.erase(parts_.begin() + at);
    return taken;
  }

  QSize sizeHint() const override {
    QSize size(-Space(), 0);
    for (const Part& part : parts_) {
      if (part.item->isEmpty()) continue;
      size.rwidth() += std::max(part.Least(), part.item->sizeHint().width()) + Space();
      size.setHeight(std::max(size.height(), part.item->sizeHint().height()));
    }
    return size.expandedTo({0, 0});
  }
  QSize minimumSize() const override {
    QSize size;
    for (const Part& part : parts_) {
      if (!part.item->isEmpty()) size = size.expandedTo(part.item->minimumSize());
    }
    return size;
  }
  Qt::Orientations expandingDirections() const override {
    Qt::Orientations all = Qt::Horizontal;
    for (const Part& part : parts_) {
      if (!part.item->isEmpty() && part.IsTall()) all |= Qt::Vertical;
    }
    return all;
  }
  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override {
    int height = -LineSpace();
    for (const Line& line : Lines(width)) height += line.height + LineSpace();
    return std::max(0, height);
  }
  void setGeometry(const QRect& rect) override {
    QLayout::setGeometry(rect);
    const std::vector<Line> lines = Lines(rect.width());
    const auto tall = static_cast<int>(std::ranges::count_if(lines, &Line::tall));
    const int spare = tall == 0 ? 0 : std::max(0, rect.height() - heightForWidth(rect.width())) / tall;
    int y = rect.y();
    for (const Line& line : lines) {
      const int height = line.height + (line.tall ? spare : 0);
      Place(line, {rect.x(), y, rect.width(), height});
      y += height + LineSpace();
    }
  }

 private:
  int Space() const { return Quarters(quarters_); }
  int LineSpace() const { return Quarters(std::min(quarters_, 2)); }

  std::vector<Line> Lines(int width) const {
    std::vector<Line> lines;
    int left = 0;
    for (const Part& part : parts_) {
      if (part.item->isEmpty()) continue;
      const int wanted = part.Wanted();
      if (lines.empty() || (!lines.back().parts.empty() && left < wanted)) {
        lines.emplace_back();
        left = width;
      }
      lines.back().parts.push_back(&part);
      lines.back().widths.push_back(std::min(wanted, std::max(width, part.Least())));
      left -= wanted + Space();
    }
    for (Line& line : lines) Fill(line, width);
    return lines;
  }

  // Shares out the width, and finds the height.
  void Fill(Line& line, int width) const {
    int spare = width + Space();
    int stretch = 0;
    for (std::size_t i = 0; i < line.parts.size(); ++i) {
      spare -= line.widths[i] + Space();
      stretch += line.parts[i]->stretch;
    }
    for (std::size_t i = 0; i < line.parts.size(); ++i) {
      const Part& part = *line.parts[i];
      if (spare > 0 && stretch > 0) line.widths[i] += spare * part.stretch / stretch;
      line.height = std::max(line.height, part.HeightFor(line.widths[i]));
      line.tall = line.tall || part.IsTall();
    }
  }

  void Place(const Line& line, const QRect& rect) const {
    const bool from_right = parentWidget() != nullptr && parentWidget()->isRightToLeft();
    int x = rect.x();
    for (std::size_t i = 0; i < line.parts.size(); ++i) {
      const Part& part = *line.parts[i];
      const int height = part.item->widget()->layout() != nullptr || part.IsTall()
                             ? rect.height()
                             : std::min(rect.height(), part.HeightFor(line.widths[i]));
      const QRect place(x, rect.y() + (rect.height() - height) / 2, line.widths[i], height);
      part.item->setGeometry(
          from_right ? QRect(rect.right() + rect.x() - place.right(), place.y(), place.width(), height)
                     : place);
      x += line.widths[i] + Space();
    }
  }

  int quarters_;
  std::vector<Part> parts_;
};

class BreakingLabel : public QLabel {
 public:
  BreakingLabel(const QString& text, int least, int usual) : QLabel(text), least_(least), usual_(usual) {
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
  }
  QSize sizeHint() const override {
    const int text_width = fontMetrics().horizontalAdvance(text()) + 2;
    return {std::max(text_width, Digits(usual_)), fontMetrics().height()};
  }
  QSize minimumSizeHint() const override {
    return {std::min(sizeHint().width(), Digits(least_)), fontMetrics().height()};
  }

 private:
  int least_;
  int usual_;
};

}  // namespace

Piece FlowRow(const std::vector<FlowPart>& parts, int quarters) {
  auto* row = Make<QWidget>();
  auto layout = std::make_unique<FlowLayout>(quarters);
  FlowLayout* flow = layout.get();
  row->setLayout(layout.release());
  for (const FlowPart& part : parts) flow->AddPart(part);
  return {row};
}

Piece BreakingText(std::string_view text, int least, int usual) {
  return {Make<BreakingLabel>(ToQt(text), least, usual)};
}

}  // namespace tarvane::desktop
