#include <QAction>
#include <QKeyEvent>
#include <QLineEdit>
#include <QShortcut>
#include <QTextEdit>
#include <QToolBar>
#include <QToolButton>

#include "desktop/builders.h"
#include "desktop/fields.h"
#include "desktop/forms/form_window.h"
#include "desktop/forms/forms.h"
#include "desktop/icons.h"
#include "desktop/make.h"
#include "desktop/text.h"
#include "desktop/theme.h"
#include "desktop/windows.h"

namespace tarvane::desktop {
namespace {

using printing::FrmPrintDB;
using rich_text::Alignment;

constexpr int kUsualWidth = 120;   // digits
constexpr int kUsualHeight = 150;  // quarters

struct Tool {
  Button FrmPrintDB::*button;
  QList<QKeySequence> keys;                         // the first one is told
  bool (*is_on)(const RichTextBox& box) = nullptr;  // null: does something rather than being on or off
  bool begins_group = false;
};

// Where > stands on a key with Shift, some platforms tell it without.
const std::vector<Tool>& Tools() {
  static const std::vector<Tool> kTools = {
      {&FrmPrintDB::New, {QKeySequence(Qt::CTRL | Qt::Key_N)}},
      {&FrmPrintDB::Open, {QKeySequence(Qt::CTRL | Qt::Key_O)}},
      {&FrmPrintDB::Save, {QKeySequence(Qt::CTRL | Qt::Key_S)}},
      {&FrmPrintDB::Copy, {}, nullptr, true},
      {&FrmPrintDB::Paste, {}},
      {&FrmPrintDB::Bold,
       {QKeySequence(Qt::CTRL | Qt::Key_B)},
       [](const RichTextBox& box) { return box.CurrentStyle().bold; },
       true},
      {&FrmPrintDB::Italic,
       {QKeySequence(Qt::CTRL | Qt::Key_I)},
       [](const RichTextBox& box) { return box.CurrentStyle().italic; }},
      {&FrmPrintDB::Underline,
       {QKeySequence(Qt::CTRL | Qt::Key_U)},
       [](const RichTextBox& box) { return box.CurrentStyle().underline; }},
      {&FrmPrintDB::Center,
       {QKeySequence(Qt::CTRL | Qt::Key_E)},
       [](const RichTextBox& box) { return box.CurrentAlignment() == Alignment::kCenter; }},
      {&FrmPrintDB::FontPlus,
       {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Greater), QKeySequence(Qt::CTRL | Qt::Key_Greater)},
       nullptr,
       true},
      {&FrmPrintDB::FontMinus,
       {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Less), QKeySequence(Qt::CTRL | Qt::Key_Less)}},
  };
  return kTools;
}

void AddTool(Form& form, FrmPrintDB& screen, QToolBar* bar, const Tool& tool) {
  Button& button = screen.*tool.button;
  if (tool.begins_group) bar->addSeparator();
  QAction* action = bar->addAction(MakeIcon(button.name()), QString());
  BindAction(form, button, action);
  QString tip = ToQt(button.tip());
  if (!tool.keys.isEmpty()) {
    action->setShortcuts(tool.keys);
    tip += " (" + tool.keys.front().toString(QKeySequence::NativeText) + ")";
  }
  action->setToolTip(tip);
  if (tool.is_on != nullptr) {
    action->setCheckable(true);
    form.Follow([action, &screen, is_on = tool.is_on] { action->setChecked(is_on(screen.RichTextBox1)); });
  }
  // Reached with Tab, while a click leaves the worker in her text.
  auto* made = qobject_cast<QToolButton*>(bar->widgetForAction(action));
  made->setFocusPolicy(Qt::TabFocus);
  made->setAccessibleName(ToQt(button.tip()));
}

// Copies and pastes looks and pictures as well, as the keys do.
void UseEditorsOwn(Form& form, const Button& button, QTextEdit* edit, void (QTextEdit::*slot)()) {
  auto* action = qobject_cast<QAction*>(form.WidgetOf(button));
  QObject::disconnect(action, &QAction::triggered, &form, nullptr);
  QObject::connect(action, &QAction::triggered, edit, slot);
}

Piece ToolRow(Form& form, FrmPrintDB& screen, QTextEdit* edit) {
  auto* bar = Make<QToolBar>();
  bar->setToolButtonStyle(Qt::ToolButtonIconOnly);
  form.AddSizer([bar] { bar->setIconSize(QSize(Quarters(5), Quarters(5))); });
  for (const Tool& tool : Tools()) AddTool(form, screen, bar, tool);
  UseEditorsOwn(form, screen.Copy, edit, &QTextEdit::copy);
  UseEditorsOwn(form, screen.Paste, edit, &QTextEdit::paste);
  return {bar};
}

// Enter finds on and on, and stays.
class FindsAtEnter : public QObject {
 public:
  FindsAtEnter(Form& form, TextField& field, QObject* parent) : QObject(parent), form_(form), field_(field) {}
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() != QEvent::KeyPress) return false;
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter) return false;
    form_.Act(field_, [this](Control&) { field_.UserEnterKey(); });
    return true;
  }

 private:
  Form& form_;
  TextField& field_;
};

template <typename Action>
void OnKey(Form& form, const QKeySequence& key, Action action) {
  auto* shortcut = Make<QShortcut>(key, form.window());
  QObject::connect(shortcut, &QShortcut::activated, &form, action);
}

void AddKeys(Form& form, FrmPrintDB& screen, QLineEdit* find) {
  find->installEventFilter(Make<FindsAtEnter>(form, screen.TxtFind, find));
  OnKey(form, QKeySequence(Qt::CTRL | Qt::Key_F), [find] {
    find->setFocus(Qt::ShortcutFocusReason);
    find->selectAll();
  });
  // The keys leave the worker in her text.
  const auto press = [&form](Button& button) {
    return [&form, &button] { form.Act(button, [&button](Control&) { button.Press(); }); };
  };
  OnKey(form, QKeySequence(Qt::Key_F3), press(screen.CmdFind));
  OnKey(form, QKeySequence(Qt::CTRL | Qt::Key_P), press(screen.CmdPreviewPrint));
}

}  // namespace

void BuildPrintDbForm(Form& form, FrmPrintDB& screen) {
  Builder build(form);
  const Piece text = build.Rich(screen.RichTextBox1);
  build.Name(screen.RichTextBox1, "Text");
  auto* edit = qobject_cast<QTextEdit*>(text.widget);
  const Piece tools = ToolRow(form, screen, edit);
  const Piece style = build.Text(screen.LblStyle, true);
  const Piece find = build.Field(screen.TxtFind, {.width = 14, .name = "Find"});
  AddKeys(form, screen, qobject_cast<QLineEdit*>(find.widget));
  const Piece next = build.Press(screen.CmdFind);
  const Piece processor = build.Press(screen.Command2);
  const Piece pdf = build.Press(screen.Command3);
  const Piece close = build.Press(screen.CmdClose);
  const Piece preview = build.Press(screen.CmdPreviewPrint, true);
  FillDialog(form,
             {build.Row({tools.Grow(), style}),
              {text.Grow()},
              {build.Row({find, next}, 1), Builder::Spring(), processor, pdf, close, preview}},
             nullptr, {Digits(kUsualWidth), Quarters(kUsualHeight)});
  ClosesWindow(form, screen.CmdClose);
  auto* window = static_cast<DialogWindow*>(form.window());
  window->escaped = [window] { window->close(); };
  // One comes here to read and to write.
  if (screen.focus() == nullptr) edit->setFocus(Qt::TabFocusReason);
}

}  // namespace tarvane::desktop
