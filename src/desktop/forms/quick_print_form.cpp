#include <QShortcut>
#include <QWidget>

#include "desktop/builders.h"
#include "desktop/forms/form_window.h"
#include "desktop/forms/forms.h"
#include "desktop/make.h"
#include "desktop/theme.h"

namespace tarvane::desktop {
namespace {

constexpr int kUsualWidth = 110;   // digits
constexpr int kUsualHeight = 150;  // quarters
constexpr int kLeastText = 30;     // quarters

}  // namespace

void BuildQuickPrintForm(Form& form, printing::FrmPrint& screen) {
  Builder build(form);
  const Piece prints = build.Flow({build.Press(screen.CmdPrintOne, true), build.Press(screen.CmdPrintTwo),
                                   build.Press(screen.CmdPreview), build.Tick(screen.CloseAfterPrinting),
                                   Builder::Spring(), build.Press(screen.CmdPrinterSetup)});
  const Piece letter = build.Rich(screen.RichTextBox1);
  build.Name(screen.RichTextBox1, "Letter");
  form.AddSizer([widget = letter.widget] { widget->setMinimumHeight(Quarters(kLeastText)); });
  FillDialog(form,
             {prints,
              {letter.Grow()},
              {build.Press(screen.CmdEdit), build.Press(screen.CmdSave), build.Press(screen.CmdWord),
               Builder::Spring(), build.Press(screen.CmdCancel)}},
             &screen.CmdCancel, {Digits(kUsualWidth), Quarters(kUsualHeight)});
  auto* preview = Make<QShortcut>(QKeySequence("Ctrl+P"), form.window());
  QObject::connect(preview, &QShortcut::activated, &form, [&form, &screen] {
    form.Act(screen.CmdPreview, [&screen](Control&) { screen.CmdPreview.UserPress(); });
  });
  for (const Button* button : {&screen.CmdPrintOne, &screen.CmdPrintTwo, &screen.CmdPreview, &screen.CmdEdit,
                               &screen.CmdSave, &screen.CmdWord}) {
    SayWhyOff(form, *button, "There is no letter to work on.");
  }
}

}  // namespace tarvane::desktop
