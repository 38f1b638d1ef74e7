#include "desktop/forms/element_table.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <array>
#include <string>

#include "desktop/make.h"
#include "desktop/text.h"
#include "desktop/theme.h"

namespace tarvane::desktop {
namespace {

using blinds::ElementLines;

constexpr int kLines = static_cast<int>(ElementLines::kCount);
constexpr int kTyped = 3;  // columns that are typed into
constexpr int kTotalColumn = kTyped + 1;

// The keys that lead through the table.
class TableKeys : public QObject {
 public:
  TableKeys(Form& form, ElementLines& lines) : QObject(&form), form_(&form) {
    for (int line = 0; line < kLines; ++line) {
      const auto at = static_cast<std::size_t>(line);
      cells_[at] = {&lines.txtItems[at], &lines.TxtItemQty[at], &lines.TxtSubTotalForItem[at]};
      for (TextField* cell : cells_[at]) WidgetOf(*cell)->installEventFilter(this);
    }
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::KeyPress) return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    const auto [line, column] = PlaceOf(watched);
    switch (key->key()) {
      case Qt::Key_Return:
      case Qt::Key_Enter:
        return GoTo(line + 1, 0);
      case Qt::Key_Up:
        return GoTo(line - 1, column);
      case Qt::Key_Down:
        return GoTo(line + 1, column);
      case Qt::Key_Delete:
        return (key->modifiers() & Qt::ControlModifier) != 0 && Empty(line);
      default:
        return false;
    }
  }

 private:
  QWidget* WidgetOf(const TextField& cell) const { return qobject_cast<QWidget*>(form_->WidgetOf(cell)); }

  std::pair<int, int> PlaceOf(const QObject* widget) const {
    for (int at = 0; at < kLines * kTyped; ++at) {
      if (WidgetOf(*Cell(at / kTyped, at % kTyped)) == widget) return {at / kTyped, at % kTyped};
    }
    return {0, 0};
  }
  TextField* Cell(int line, int column) const {
    return cells_[static_cast<std::size_t>(line)][static_cast<std::size_t>(column)];
  }

  // False past an end: then the key does what it does elsewhere.
  bool GoTo(int line, int column) const {
    if (line < 0 || line >= kLines) return false;
    WidgetOf(*Cell(line, column))->setFocus(Qt::TabFocusReason);
    return true;
  }
  bool Empty(int line) const {
    for (int column = kTyped - 1; column >= 0; --column) {
      form_->Act(*Cell(line, column), [](Control& cell) { static_cast<TextField&>(cell).UserType(""); });
    }
    return true;
  }

  Form* form_;
  std::array<std::array<TextField*, kTyped>, kLines> cells_{};
};

struct ColumnLook {
  std::array<TextField, ElementLines::kCount> ElementLines::*fields;
  std::string_view name;  // for readers, before the line's number
  Look look;
};

const std::array<ColumnLook, kTotalColumn> kColumns = {{
    {&ElementLines::txtItems, "Element ", {}},
    {&ElementLines::TxtItemQty, "Qty ", {.width = 6, .number = true}},
    {&ElementLines::TxtSubTotalForItem, "Sub Total ", {.width = 9, .number = true}},
    {&ElementLines::TxtItemTotal, "Total ", {.width = 9, .number = true, .mirror = true}},
}};

QLabel* MakeHeading(Builder& build, std::string_view text, bool number) {
  auto* label = qobject_cast<QLabel*>(build.Text(text, true).widget);
  if (number) label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  return label;
}

void AddLine(Builder& build, ElementLines& lines, int line, QGridLayout* grid) {
  const std::string number = std::to_string(line + 1);
  grid->addWidget(MakeHeading(build, number, true), line + 1, 0);
  int column = 0;
  for (const ColumnLook& each : kColumns) {
    Look look = each.look;
    look.name = std::string(each.name) + number;
    const Piece field = build.Field((lines.*each.fields)[static_cast<std::size_t>(line)], look);
    grid->addWidget(field.widget, line + 1, ++column);
  }
}

}  // namespace

Piece ElementTable(Builder& build, ElementLines& lines, std::string_view heading,
                   std::string_view grand_total) {
  auto* grid = Make<QGridLayout>();
  grid->setHorizontalSpacing(Quarters(1));
  grid->setVerticalSpacing(Quarters(1) / 2);
  grid->setColumnStretch(1, 1);
  int column = 0;
  for (const std::string_view each :
       {heading, std::string_view("Qty "), std::string_view("Sub Total"), std::string_view("Total")}) {
    grid->addWidget(MakeHeading(build, each, column > 0), 0, column + 1);
    ++column;
  }
  for (int line = 0; line < kLines; ++line) AddLine(build, lines, line, grid);
  Make<TableKeys>(build.form(), lines);
  const Piece total = build.Field(
      lines.TxtGrandTotal, {.width = 10, .number = true, .strong = true, .name = std::string(grand_total)});
  return build.Column({{nullptr, grid}, build.Row({Builder::Spring(), build.Heading(grand_total), total})});
}

}  // namespace tarvane::desktop
