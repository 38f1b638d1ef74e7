#include <QShortcut>
#include <QWidget>

#include "desktop/forms/form_window.h"
#include "desktop/forms/forms.h"
#include "desktop/make.h"
#include "desktop/theme.h"

namespace tarvane::desktop {
namespace {

using printing::frmPreview;

// The focus stays where it is: with the page as a rule.
void AddKey(Form& form, const QKeySequence& keys, Button& button) {
  auto* shortcut = Make<QShortcut>(keys, form.window());
  QObject::connect(shortcut, &QShortcut::activated, &form,
                   [&form, &button] { form.Act(button, [&button](Control&) { button.Press(); }); });
}

PageSteps StepsOf(frmPreview& screen) {
  return {.first = &screen.cmdStart,
          .previous = &screen.cmdPrevious,
          .next = &screen.cmdNext,
          .last = &screen.cmdEnd,
          .zoom_in = &screen.btnPreview[frmPreview::kZoomIn],
          .zoom_out = &screen.btnPreview[frmPreview::kZoomOut]};
}

Piece Head(Builder& build, frmPreview& screen) {
  return build.Flow({
      build.Press(screen.btnPreview[frmPreview::kPrint], true),
      build.Press(screen.CmdSavePdf),
      build.Press(screen.CmdEmail),
      build.Press(screen.CmdPrintSetup),
      Builder::Gap(2),
      build.Row({build.Press(screen.cmdStart), build.Press(screen.cmdPrevious), build.Text(screen.Label2),
                 build.Press(screen.cmdNext), build.Press(screen.cmdEnd)},
                1),
      build.Slide(screen.Slider1),
      build.Row({build.Press(screen.btnPreview[frmPreview::kZoomOut]),
                 build.Field(screen.cboPercent, {.width = 6, .name = "Zoom"}),
                 build.Press(screen.btnPreview[frmPreview::kZoomIn])},
                1),
      build.Press(screen.cmdClose),
  });
}

}  // namespace

void BuildPreviewForm(Form& form, frmPreview& screen) {
  Builder build(form);
  const Piece head = Head(build, screen);
  const Piece body =
      build.Row({build.PageStrip(screen.tabPreview), build.Page(screen.picChild, StepsOf(screen)).Grow()});
  build.Name(screen.Slider1, "Page");
  // The bars of the page's own view stand for these.
  for (Slider* bar : {&screen.vscPreview, &screen.hscPreview}) {
    form.Bind(*bar, Make<QObject>(form.window()), nullptr);
  }
  FillDialog(form, {build.Column({head, body.Grow()})}, &screen.cmdClose);
  AddKey(form, QKeySequence("Ctrl+P"), screen.btnPreview[frmPreview::kPrint]);
  AddKey(form, QKeySequence("Ctrl+S"), screen.CmdSavePdf);
  form.window()->resize(Digits(130), Quarters(190));
}

}  // namespace tarvane::desktop
