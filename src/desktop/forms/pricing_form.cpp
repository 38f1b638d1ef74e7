#include "desktop/forms/catalogue_form.h"
#include "desktop/forms/forms.h"

namespace tarvane::desktop {
namespace {

const TableLook kColumns = {.columns = {{"Reference", "", 14},
                                        {"Description", "Description/ Style", 16},
                                        {"LabourPrice", "Labour", 7, true}},
                            .wide = "Description",
                            .name = "Prices of curtain styles",
                            .empty = "None found, or none yet. Add begins one."};

// Only read: Add and Update lead to where it is typed.
Piece Record(Builder& build, curtain_wizard::FrmPopUp1& screen) {
  const Look text{.width = 28};
  const Look money{.width = 10, .number = true};
  return build.Column({
      build.Fields({{"Product ID", {{screen.PopUpID, {.width = 8, .number = true}}}},
                    {"Reference", {{screen.Reference, text}}},
                    {"Description/ Style", {{screen.Description, text}}},
                    {"Lining Name", {{screen.LiningName, text}}},
                    {"Interlining Name", {{screen.InterLiningName, text}}}}),
      build.Fields({{"Labour Price", {{screen.LabourPrice, money}}},
                    {"Lining Price", {{screen.LiningPrice, money}}},
                    {"Interlining Price", {{screen.InterliningPrice, money}}},
                    {"Tape Price", {{screen.TapePrice, money}}},
                    {"Fullness", {{screen.Fullness, {.width = 7, .number = true}}}},
                    {"Hems Cms", {{screen.HemsCms, {.width = 7, .number = true, .unit = "cm"}}}},
                    {"Hems Ins", {{screen.HemsIns, {.width = 7, .number = true, .unit = "in"}}}},
                    {"Auto Round Up", {{screen.AutoRoundUp, {.width = 7}}}}},
                   2),
      build.Fields({{"Notes", {{screen.Notes, {.width = 28, .lines = 3}}}}}),
  });
}

}  // namespace

void BuildPricingForm(Form& form, curtain_wizard::FrmPopUp1& screen) {
  FillCatalogue(form, screen,
                {.list = kColumns,
                 .record = [&screen](Builder& build) { return Record(build, screen); },
                 .use = {&screen.CmdUse},
                 .more = {&screen.CmdHelp},
                 .usual_category = kColumns.wide});
}

}  // namespace tarvane::desktop
