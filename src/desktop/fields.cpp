#include "desktop/fields.h"

#include <QAbstractItemView>
#include <QAction>
#include <QButtonGroup>
#include <QCalendarWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QTextDocument>
#include <QToolTip>

#include "desktop/builders.h"
#include "desktop/line_typing.h"
#include "desktop/make.h"
#include "desktop/text.h"
#include "desktop/theme.h"
#include "screen/kinds.h"

namespace tarvane::desktop {
namespace {

// The wheel scrolls the page and never changes a value in passing. The list that folds out is as wide as its
// longest entry.
class CalmComboBox : public QComboBox {
 public:
  void showPopup() override {
    const int bar = view()->verticalScrollBar()->sizeHint().width();
    const int wanted = view()->sizeHintForColumn(0) + bar + 2 * view()->frameWidth();
    view()->setMinimumWidth(std::min(wanted, screen()->availableSize().width()));
    QComboBox::showPopup();
  }

 protected:
  void wheelEvent(QWheelEvent* event) override { event->ignore(); }
};

// Enter presses the button that has the focus, as the space bar does.
class PlainButton : public QPushButton {
 public:
  PlainButton() { setAutoDefault(false); }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
      click();
    } else {
      QPushButton::keyPressEvent(event);
    }
  }
};

// A name to click on, written as a text.
class NameButton : public PlainButton {
 public:
  NameButton() {
    setFlat(true);
    setCursor(Qt::PointingHandCursor);
  }
  QSize sizeHint() const override {
    return fontMetrics().size(Qt::TextShowMnemonic, text()) + QSize(Quarters(2), Quarters(2));
  }
  QSize minimumSizeHint() const override { return sizeHint().boundedTo({Quarters(24), sizeHint().height()}); }

 protected:
  bool event(QEvent* event) override {
    if (event->type() != QEvent::ToolTip || Shown() == text()) return PlainButton::event(event);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text(), this);
    return true;
  }
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    QFont written = font();
    written.setUnderline(underMouse() || hasFocus());
    painter.setFont(written);
    painter.setPen(
        palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
    painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, Shown());
  }

 private:
  QString Shown() const {
    return fontMetrics().elidedText(text(), Qt::ElideRight, width(), Qt::TextShowMnemonic);
  }
};

int LengthLimit(const TextField& field) { return field.max_length() > 0 ? field.max_length() : 32767; }

void FillEntries(QComboBox* combo, const DropDownList& list) {
  const QSignalBlocker quiet(combo);
  combo->clear();
  QStringList entries;
  for (const std::string& entry : list.entries()) entries += ToQt(entry);
  combo->addItems(entries);
  combo->setCurrentIndex(-1);
}

void DrawDropDown(QComboBox* combo, const DropDownList& list) {
  const QSignalBlocker quiet(combo);
  const QString text = ToQt(list.text());
  const int entry = combo->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
  QLineEdit* edit = combo->lineEdit();
  if (edit == nullptr) {
    combo->setCurrentIndex(entry);
    combo->setPlaceholderText(text);
  } else if (entry == combo->currentIndex()) {
    DrawLine(combo, edit, list);
  } else {
    DrawLine(combo, edit, list, [combo, entry] { combo->setCurrentIndex(entry); });
  }
}

// A memo's text as it was put in, down to its blanks that keep words together.
QString TextOf(const QPlainTextEdit& memo) {
  return memo.document()
      ->toRawText()
      .replace(QChar::ParagraphSeparator, '\n')
      .replace(QChar::LineSeparator, '\n');
}

}  // namespace

QLineEdit* MakeLineEdit(Form& form, TextField& field, bool mirror) {
  auto edit = std::make_unique<QLineEdit>();
  edit->setMaxLength(LengthLimit(field));
  edit->setTextMargins(3, 0, 3, 0);
  edit->setReadOnly(field.read_only());
  QLineEdit* made = edit.release();
  KeepOneLine(made);
  Binding& binding = form.Bind(field, made, [made, &field](Aspect aspect) {
    if (aspect == Aspect::kText) DrawLine(made, made, field);
  });
  if (mirror) {
    binding.OnEnabled([made, &field](bool enabled) {
      made->setEnabled(true);
      made->setReadOnly(!enabled || field.read_only());
      made->setFocusPolicy(enabled ? Qt::StrongFocus : Qt::ClickFocus);
    });
  }
  QObject::connect(made, &QLineEdit::textEdited, &form, [&form, &field](const QString& text) {
    form.Act(field, [&](Control&) { field.UserType(FromQt(text)); });
  });
  return made;
}

QPlainTextEdit* MakeMemo(Form& form, TextField& field, char line_mark) {
  const auto shown = [&field, line_mark] {
    const QString text = LinesToQt(field.text());
    return line_mark == 0 || !field.read_only() ? text : QString(text).replace(line_mark, '\n').trimmed();
  };
  auto edit = std::make_unique<QPlainTextEdit>();
  edit->setTabChangesFocus(true);
  edit->setReadOnly(field.read_only());
  if (field.read_only())
    edit->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  QPlainTextEdit* made = edit.release();
  form.Bind(field, made, [made, shown](Aspect aspect) {
    if (aspect != Aspect::kText) return;
    const QString text = shown();
    if (TextOf(*made) == text) return;
    const QSignalBlocker quiet(made);
    const int cursor = made->textCursor().position();
    made->setPlainText(text);
    if (!made->hasFocus()) return;
    QTextCursor at = made->textCursor();
    at.setPosition(std::min<int>(cursor, static_cast<int>(text.size())));
    made->setTextCursor(at);
  });
  QObject::connect(made, &QPlainTextEdit::textChanged, &form, [&form, &field, made, shown] {
    const QString text = TextOf(*made);
    if (field.read_only() || text == shown()) return;
    form.Act(field, [&](Control&) { field.UserType(LinesFromQt(text)); });
  });
  return made;
}

QComboBox* MakeDropDown(Form& form, DropDownList& list) {
  auto combo = std::make_unique<CalmComboBox>();
  combo->setInsertPolicy(QComboBox::NoInsert);
  combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  combo->setMinimumContentsLength(6);
  combo->setMaxVisibleItems(20);
  QComboBox* made = combo.release();
  if (list.typing_allowed()) {
    made->setEditable(true);
    made->setCompleter(nullptr);
    // Otherwise leaving the field counts as picking an entry of the same text.
    made->lineEdit()->disconnect(made);
    KeepOneLine(made->lineEdit());
    made->lineEdit()->setTextMargins(3, 0, 3, 0);
    made->lineEdit()->setMaxLength(LengthLimit(list));
    QObject::connect(made->lineEdit(), &QLineEdit::textEdited, &form, [&form, &list](const QString& text) {
      form.Act(list, [&](Control&) { list.UserType(FromQt(text)); });
    });
  }
  form.Bind(list, made, [made, &list](Aspect aspect) {
    if (aspect == Aspect::kEntries) FillEntries(made, list);
    if (aspect == Aspect::kEntries || aspect == Aspect::kText) DrawDropDown(made, list);
  });
  QObject::connect(made, &QComboBox::activated, &form, [&form, &list](int entry) {
    form.Act(list, [&](Control&) { list.UserPick(static_cast<std::size_t>(entry)); });
  });
  return made;
}

QWidget* MakeTickBox(Form& form, TickBox& box) {
  const auto* option = As<OptionButton>(box);
  QAbstractButton* made = nullptr;
  if (option != nullptr) {
    made = Make<QRadioButton>();
    const QString name = QString("options %1").arg(option->group());
    auto* group = form.findChild<QButtonGroup*>(name);
    if (group == nullptr) {
      group = Make<QButtonGroup>(&form);
      group->setObjectName(name);
    }
    group->addButton(made);
  } else {
    made = Make<QCheckBox>();
  }
  form.Bind(box, made, [made, &box](Aspect aspect) {
    if (aspect == Aspect::kCaption) made->setText(ToQt(box.caption()));
    if (aspect != Aspect::kState || made->isChecked() == box.on()) return;
    QButtonGroup* group = made->group();
    if (group != nullptr) group->setExclusive(false);
    made->setChecked(box.on());
    if (group != nullptr) group->setExclusive(true);
  });
  QObject::connect(made, &QAbstractButton::clicked, &form, [&form, &box](bool on) {
    form.Act(box, [&](Control& control) {
      if (auto* chosen = As<OptionButton>(control)) return chosen->UserClick();
      box.UserSet(on);
    });
  });
  return made;
}

QWidget* MakeButton(Form& form, Button& button, bool strong) {
  QPushButton* made = Make<PlainButton>();
  if (strong) {
    QFont font = made->font();
    font.setBold(true);
    made->setFont(font);
    made->setProperty(kStrongButton, true);
  }
  form.Bind(button, made, [made, &button](Aspect aspect) {
    if (aspect == Aspect::kCaption) made->setText(ToQt(button.caption()));
  });
  QObject::connect(made, &QPushButton::clicked, &form,
                   [&form, &button] { form.Act(button, [&](Control&) { button.UserPress(); }); });
  if (const int key = FunctionKeyOf(button.caption()); key != 0) {
    auto* shortcut = Make<QShortcut>(QKeySequence(Qt::Key_F1 + key - 1), form.window());
    QObject::connect(shortcut, &QShortcut::activated, &form, [&form, &button] {
      if (button.shown()) form.Act(button, [&](Control&) { button.UserPress(); });
    });
  }
  return made;
}

QWidget* MakeLabel(Form& form, Label& label) {
  if (label.clickable()) {
    QPushButton* made = Make<NameButton>();
    form.Bind(label, made, [made, &label](Aspect aspect) {
      if (aspect == Aspect::kCaption) made->setText(ToQt(label.caption()));
    });
    QObject::connect(made, &QPushButton::clicked, &form,
                     [&form, &label] { form.Act(label, [&](Control&) { label.UserClick(); }); });
    return made;
  }
  auto* made = Make<QLabel>();
  made->setTextFormat(Qt::PlainText);
  form.Bind(label, made, [made, &label](Aspect aspect) {
    if (aspect == Aspect::kCaption) made->setText(LinesToQt(label.caption()));
  });
  return made;
}

QWidget* MakeCalendar(Form& form, Calendar& calendar) {
  auto* made = Make<QCalendarWidget>();
  made->setGridVisible(false);
  form.Bind(calendar, made, [made, &calendar](Aspect aspect) {
    if (aspect != Aspect::kSelection) return;
    const Day day = calendar.day();
    const QDate shown(YearOf(day), MonthOf(day), DayOfMonth(day));
    if (made->selectedDate() != shown) made->setSelectedDate(shown);
  });
  const auto chosen = [&form, &calendar](QDate date) {
    form.Act(calendar, [&](Control&) { calendar.UserClick(MakeDay(date.year(), date.month(), date.day())); });
  };
  QObject::connect(made, &QCalendarWidget::clicked, &form, chosen);
  QObject::connect(made, &QCalendarWidget::activated, &form, chosen);
  return made;
}

QAction* BindAction(Form& form, Button& button, QAction* action) {
  form.Bind(button, action, [action, &button](Aspect aspect) {
    if (aspect == Aspect::kCaption) action->setText(ToQt(button.caption()));
  });
  QObject::connect(action, &QAction::triggered, &form,
                   [&form, &button] { form.Act(button, [&](Control&) { button.UserPress(); }); });
  return action;
}

void WriteQuietly(QWidget* label) { label->setForegroundRole(QPalette::PlaceholderText); }

}  // namespace tarvane::desktop
