// How record bars and finders look.
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QShortcut>

#include "desktop/builders.h"
#include "desktop/fields.h"
#include "desktop/make.h"
#include "desktop/text.h"
#include "desktop/theme.h"

namespace tarvane::desktop {
namespace {

struct Step {
  Button RecordBar::*button;
  const char* name;
  const char* keys;  // "": none
  int direction;     // -1: back
  bool to_end;
};

constexpr Step kSteps[] = {
    {&RecordBar::CmdFirst, "First record", "", -1, true},
    {&RecordBar::CmdPrevious, "Previous record", "Alt+Left", -1, false},
    {&RecordBar::CmdNext, "Next record", "Alt+Right", 1, false},
    {&RecordBar::CmdLast, "Last record", "", 1, true},
};

// An arrow, with a bar before which it ends where the step goes as far as there are records.
QIcon Arrow(const Step& step, const QPalette& palette, int side, double ratio) {
  QIcon icon;
  for (const auto& [mode, group] :
       {std::pair{QIcon::Normal, QPalette::Active}, std::pair{QIcon::Disabled, QPalette::Disabled}}) {
    QPixmap picture(QSize(side, side) * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(side / 2.0, side / 2.0);
    painter.scale(step.direction * side / 16.0, side / 16.0);
    painter.setPen(
        QPen(palette.color(group, QPalette::ButtonText), 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const double x = step.to_end ? -1.5 : 0;
    painter.drawPolyline(QPolygonF({{x - 2.5, -5}, {x + 2.5, 0}, {x - 2.5, 5}}));
    if (step.to_end) painter.drawLine(QPointF(5, -5), QPointF(5, 5));
    icon.addPixmap(picture, mode);
  }
  return icon;
}

// As high as a field, and as wide. Its caption is a picture.
class ArrowButton : public QPushButton {
 public:
  explicit ArrowButton(const Step& step) : step_(step) {
    setAutoDefault(false);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAccessibleName(step.name);
    const QString keys(step.keys);
    setToolTip(keys.isEmpty() ? QString(step.name) : QString("%1 (%2)").arg(step.name, keys));
  }
  QSize sizeHint() const override { return {Quarters(6), Quarters(6)}; }
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return click();
    QPushButton::keyPressEvent(event);
  }
  void paintEvent(QPaintEvent* event) override {
    QPushButton::paintEvent(event);
    QPainter painter(this);
    const int side = std::min(width(), height()) - Quarters(2);
    const QRect place(QPoint((width() - side) / 2, (height() - side) / 2), QSize(side, side));
    Arrow(step_, palette(), side, devicePixelRatioF())
        .paint(&painter, place, Qt::AlignCenter, isEnabled() ? QIcon::Normal : QIcon::Disabled);
  }

 private:
  const Step& step_;
};

Piece StepButton(Form& form, Button& button, const Step& step) {
  auto* made = Make<ArrowButton>(step);
  form.Bind(button, made, nullptr);
  const auto press = [&form, &button] {
    if (button.shown()) form.Act(button, [&button](Control&) { button.UserPress(); });
  };
  QObject::connect(made, &QPushButton::clicked, &form, press);
  if (*step.keys != 0) {
    auto* shortcut = Make<QShortcut>(QKeySequence(step.keys), form.window());
    QObject::connect(shortcut, &QShortcut::activated, &form, [made, press] {
      if (made->isVisible()) press();
    });
  }
  return {made};
}

// Down leads from the search text into the list.
class DownIntoList : public QObject {
 public:
  DownIntoList(QObject* text, QWidget* list) : QObject(text), list_(list) { text->installEventFilter(this); }

  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() != QEvent::KeyPress) return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() != Qt::Key_Down || key->modifiers() != Qt::NoModifier) return false;
    list_->setFocus(Qt::TabFocusReason);
    return true;
  }

 private:
  QWidget* list_;
};

}  // namespace

void Builder::LeadDown(const Control& from, const Piece& list) {
  if (QObject* field = form_->WidgetOf(from)) Make<DownIntoList>(field, list.widget);
}

Piece Builder::Records(RecordBar& bar) {
  Pieces pieces;
  for (const Step& step : kSteps) {
    if (step.direction > 0 && pieces.size() == 2) {
      auto* caption = qobject_cast<QLabel*>(Text(bar.Caption).widget);
      caption->setAlignment(Qt::AlignCenter);
      // The buttons stay where they are as the numbers grow.
      form_->AddSizer([caption] {
        caption->setMinimumWidth(caption->fontMetrics().horizontalAdvance("Record: 88888 of 88888"));
      });
      pieces.push_back({caption});
    }
    pieces.push_back(StepButton(*form_, bar.*step.button, step));
  }
  return Row(pieces, 1);
}

Piece Builder::Find(Finder& finder) {
  const Piece category = Row({Text("Find by"), Field(finder.CboFabSearch, {.width = 20})}, 2);
  const Piece text = Field(finder.FabSText, {.width = 22, .name = "Search String"});
  if (auto* edit = qobject_cast<QLineEdit*>(text.widget)) edit->setPlaceholderText("* and ? may be used");
  form_->ShowWith(category.layout->itemAt(0)->widget(), {&finder.CboFabSearch});
  return Flow({category, Row({text, Press(finder.CmdSearch), Press(finder.CmdReset)}, 2)});
}

}  // namespace tarvane::desktop
