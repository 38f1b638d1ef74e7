#include <QLabel>
#include <QShortcut>

#include "desktop/builders.h"
#include "desktop/forms/form_window.h"
#include "desktop/forms/forms.h"
#include "desktop/forms/message_line.h"
#include "desktop/make.h"
#include "desktop/theme.h"
#include "desktop/windows.h"

namespace tarvane::desktop {
namespace {

constexpr int kUsualWidth = 110;   // digits
constexpr int kUsualHeight = 150;  // quarters
constexpr int kLeastText = 30;     // quarters

// From within the letter, where Tab is a tab, the access key leads to the tokens.
Piece Tokens(Builder& build, DropDownList& tokens) {
  const Piece list = build.Put(tokens, {.width = 17, .name = "Token"});
  auto* caption = Make<QLabel>("&Token");
  caption->setBuddy(list.widget);
  // Underlined, the T doesn't draw the o as near as the caption's width counts on.
  caption->setContentsMargins(0, 0, Quarters(1), 0);
  return build.Row({{caption}, list}, 1);
}

}  // namespace

void BuildEditTemplateForm(Form& form, printing::FrmEditTemp& screen) {
  Builder build(form);
  const Piece choice =
      build.Row({build.Put(screen.CboTemplates, {.width = 20, .name = "Template"}),
                 build.Press(screen.CmdLoad), Builder::Spring(), Tokens(build, screen.CboTokens)});
  const Piece letter = build.Rich(screen.RichTextBox1);
  build.Name(screen.RichTextBox1, "Text of the template");
  form.AddSizer([widget = letter.widget] { widget->setMinimumHeight(Quarters(kLeastText)); });
  const Piece messages{MakeMessageLine(form, screen.Messages), nullptr, 1};
  FillDialog(
      form,
      {choice,
       {letter.Grow()},
       {messages, Builder::Spring(), build.Press(screen.CmdSave, true), build.Press(screen.CmdCancel)}},
      &screen.CmdCancel, {Digits(kUsualWidth), Quarters(kUsualHeight)});
  ClosesWindow(form, screen.CmdCancel);
  static_cast<DialogWindow*>(form.window())->escaped = [&form] { form.window()->close(); };
  auto* save = Make<QShortcut>(QKeySequence("Ctrl+S"), form.window());
  QObject::connect(save, &QShortcut::activated, &form, [&form, &screen] {
    form.Act(screen.CmdSave, [&screen](Control&) { screen.CmdSave.UserPress(); });
  });
  SayWhyOff(form, screen.CmdSave, "Load a template first.");
  SayWhyOff(form, screen.CboTokens, "Load a template first.");
}

}  // namespace tarvane::desktop
