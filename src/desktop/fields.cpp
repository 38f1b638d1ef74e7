#include "desktop/fields.h"

#include <QAction>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>

#include "desktop/builders.h"
#include "desktop/text.h"
#include "desktop/theme.h"

namespace tarvane {
namespace {

// The wheel scrolls the page and never changes a value in passing.
class CalmComboBox : public QComboBox {
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

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    QFont written = font();
    written.setUnderline(underMouse() || hasFocus());
    painter.setFont(written);
    painter.setPen(
        palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
    painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, text());
  }
};

// Keeps the cursor where it is while a rule rewrites the text around it.
void DrawText(QLineEdit* edit, const TextField& field) {
  const QString text = ToQt(field.text());
  if (edit->text() == text) return;
  const bool all = edit->hasSelectedText() && edit->selectedText() == edit->text();
  const int cursor = edit->cursorPosition();
  edit->setText(text);
  if (all && edit->hasFocus()) {
    edit->selectAll();
  } else {
    edit->setCursorPosition(edit->hasFocus() ? std::min<int>(cursor, static_cast<int>(text.size())) : 0);
  }
}

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
    return;
  }
  const int cursor = edit->cursorPosition();
  const QString marked = edit->selectedText();
  if (entry != combo->currentIndex()) combo->setCurrentIndex(entry);
  edit->setText(text);
  if (!edit->hasFocus() && !combo->hasFocus()) {
    edit->setCursorPosition(0);
  } else if (!marked.isEmpty() && marked == text) {
    edit->selectAll();
  } else {
    edit->setCursorPosition(std::min<int>(cursor, static_cast<int>(text.size())));
  }
}

}  // namespace

QLineEdit* MakeLineEdit(Form& form, TextField& field) {
  auto edit = std::make_unique<QLineEdit>();
  edit->setMaxLength(LengthLimit(field));
  edit->setTextMargins(3, 0, 3, 0);
  edit->setReadOnly(field.read_only());
  QLineEdit* made = edit.release();
  form.Bind(field, made, [made, &field](Aspect aspect) {
    if (aspect == Aspect::kText) DrawText(made, field);
  });
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
    if (made->toPlainText() == text) return;
    const QSignalBlocker quiet(made);
    const int cursor = made->textCursor().position();
    made->setPlainText(text);
    if (!made->hasFocus()) return;
    QTextCursor at = made->textCursor();
    at.setPosition(std::min<int>(cursor, static_cast<int>(text.size())));
    made->setTextCursor(at);
  });
  QObject::connect(made, &QPlainTextEdit::textChanged, &form, [&form, &field, made, shown] {
    if (field.read_only() || made->toPlainText() == shown()) return;
    form.Act(field, [&](Control&) { field.UserType(LinesFromQt(made->toPlainText())); });
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
  const auto* option = dynamic_cast<const OptionButton*>(&box);
  QAbstractButton* made = nullptr;
  if (option != nullptr) {
    made = std::make_unique<QRadioButton>().release();
    const QString name = QString("options %1").arg(option->group());
    auto* group = form.findChild<QButtonGroup*>(name);
    if (group == nullptr) {
      group = std::make_unique<QButtonGroup>(&form).release();
      group->setObjectName(name);
    }
    group->addButton(made);
  } else {
    made = std::make_unique<QCheckBox>().release();
  }
  form.Bind(box, made, [made, &box](Aspect aspect) {
    if (aspect == Aspect::kCaption) made->setText(ToQt(box.caption()));
    if (aspect != Aspect::kState || made->isChecked() == box.on()) return;
    QButtonGroup* group = made->group();
    if (group != nullptr) group->setExclusive(false);
    made->setChecked(box.on());
    if (group != nullptr) group->setExclusive(true);
  });
  QObject::connect(made, &QAbstractButton::clicked, &form,
                   [&form, &box](bool on) { form.Act(box, [&](Control&) { box.UserSet(on); }); });
  return made;
}

QWidget* MakeButton(Form& form, Button& button, bool strong) {
  QPushButton* made = std::make_unique<PlainButton>().release();
  if (strong) {
    QFont font = made->font();
    font.setBold(true);
    made->setFont(font);
  }
  form.Bind(button, made, [made, &button](Aspect aspect) {
    if (aspect == Aspect::kCaption) made->setText(ToQt(button.caption()));
  });
  QObject::connect(made, &QPushButton::clicked, &form,
                   [&form, &button] { form.Act(button, [&](Control&) { button.UserPress(); }); });
  if (const int key = FunctionKeyOf(button.caption()); key != 0) {
    auto* shortcut = std::make_unique<QShortcut>(QKeySequence(Qt::Key_F1 + key - 1), form.window()).release();
    QObject::connect(shortcut, &QShortcut::activated, &form, [&form, &button] {
      if (button.shown()) form.Act(button, [&](Control&) { button.UserPress(); });
    });
  }
  return made;
}

QWidget* MakeLabel(Form& form, Label& label) {
  if (label.clickable()) {
    QPushButton* made = std::make_unique<NameButton>().release();
    form.Bind(label, made, [made, &label](Aspect aspect) {
      if (aspect == Aspect::kCaption) made->setText(ToQt(label.caption()));
    });
    QObject::connect(made, &QPushButton::clicked, &form,
                     [&form, &label] { form.Act(label, [&](Control&) { label.UserClick(); }); });
    return made;
  }
  auto* made = std::make_unique<QLabel>().release();
  made->setTextFormat(Qt::PlainText);
  form.Bind(label, made, [made, &label](Aspect aspect) {
    if (aspect == Aspect::kCaption) made->setText(LinesToQt(label.caption()));
  });
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

}  // namespace tarvane
