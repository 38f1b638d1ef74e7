#include <QLabel>
#include <QShortcut>

#include "desktop/forms/form_window.h"
#include "desktop/forms/forms.h"
#include "desktop/make.h"
#include "desktop/theme.h"

namespace tarvane::desktop {
namespace {

constexpr int kUsualWidth = 120;   // digits
constexpr int kUsualHeight = 170;  // quarters

PageSteps StepsOf(printing::frmMultiPgPreview& screen) {
  return {.first = &screen.cmdStart,
          .previous = &screen.cmdPrevious,
          .next = &screen.cmdNext,
          .last = &screen.cmdEnd,
          .zoom_in = &screen.cmdZoomIn,
          .zoom_out = &screen.cmdZoomOut};
}

// The focus stays where it is: with the page as a rule.
void AddKeys(Form& form, printing::frmMultiPgPreview& screen) {
  const std::pair<const char*, Button*> keys[] = {
      {"Alt+Left", &screen.cmdPrevious}, {"Alt+Right", &screen.cmdNext}, {"Ctrl+Home", &screen.cmdStart},
      {"Ctrl+End", &screen.cmdEnd},      {"Ctrl+G", &screen.cmdGoto},    {"Ctrl+P", &screen.cmdPrint},
  };
  for (const auto& [key, button] : keys) {
    auto* shortcut = Make<QShortcut>(QKeySequence(key), form.window());
    QObject::connect(shortcut, &QShortcut::activated, &form, [&form, pressed = button] {
      form.Act(*pressed, [pressed](Control&) { pressed->Press(); });
    });
  }
}

}  // namespace

void BuildPageBrowserForm(Form& form, printing::frmMultiPgPreview& screen) {
  Builder build(form);
  const Piece moves =
      build.Flow({build.Press(screen.cmdStart), build.Press(screen.cmdPrevious), build.Text(screen.Label2),
                  build.Press(screen.cmdNext), build.Press(screen.cmdEnd), build.Press(screen.cmdGoto),
                  Builder::Spring(), build.Field(screen.cboPercent, {.width = 7, .name = "Zoom"}),
                  build.Press(screen.cmdZoomIn), build.Press(screen.cmdZoomOut)});
  const Piece page = build.Page(screen.picChild, StepsOf(screen));
  form.AddSizer([widget = page.widget] { widget->setMinimumSize(Digits(30), Quarters(30)); });
  const Piece status = build.Text(screen.lblStatus);
  qobject_cast<QLabel*>(status.widget)->setWordWrap(true);
  FillDialog(form,
             {moves,
              {page.Grow(), status},
              {build.Press(screen.cmdPrint), build.Press(screen.cmdCopy), Builder::Spring(),
               build.Press(screen.cmdClose, true)}},
             &screen.cmdClose, {Digits(kUsualWidth), Quarters(kUsualHeight)});
  build.Name(screen.picChild, "Page");
  AddKeys(form, screen);
}

}  // namespace tarvane::desktop
