#include "desktop/forms/form_window.h"
#include "desktop/forms/forms.h"
#include "desktop/forms/wizard_steps.h"

namespace tarvane::desktop {
namespace {

constexpr int kCaptions = 12;  // digits, for the longest caption

}  // namespace

void BuildSingleItemForm(Form& form, curtain_wizard::FrmSimgleItem& screen) {
  Builder build(form);
  FillDialog(
      form,
      {
          Lines(build, kCaptions,
                {{"&Qty", {{screen.SingleQty, {.width = 8, .number = true}}}},
                 {"&Description", {{screen.SingleDescription, {.width = 44}}}},
                 {"",
                  {{build.Column(
                      {build.Text("Enter product in from Database.", true),
                       build.Flow({build.Press(screen.CmdAccessories), build.Press(screen.CmdProducts)}, 1)},
                      1)}}},
                 {"Unit P&rice", {{screen.SinglePrice, kMoney}}}}),
          Results(build, kCaptions, {{"&Total", {{screen.SingleTotal, kMoneyResult}}}}),
          Builder::Spring(),
          build.Rule(),
          build.Row({Builder::Spring(), build.Press(screen.CmdProcess, true), build.Press(screen.CmdCancel)}),
      },
      &screen.CmdCancel);
}

}  // namespace tarvane::desktop
