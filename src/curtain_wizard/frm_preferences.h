#pragma once

#include <array>
#include <filesystem>
#include <string_view>

#include "screen/field.h"
#include "screen/screen.h"

namespace tarvane {

class MainCWizard;

// The defaults of new curtain items, kept in Options.dat: eight lines, one a box. The ninth box stays on the
// screen only.
class FrmPreferences : public Screen {
 public:
  static constexpr int kBoxes = 9;
  static constexpr int kStored = 8;
  static constexpr std::array<std::string_view, kBoxes> kLabels = {"Mark up % price ",
                                                                   "Curtain make up Labour Price",
                                                                   "Lining Price ",
                                                                   "Interlining Price",
                                                                   "Tape Price",
                                                                   "Fulless in Curtains",
                                                                   "Hemming Allowance on Curtains",
                                                                   "Set Vat/Tax",
                                                                   "Printing Allowance"};

  // `wizard` takes the saved values over; it must outlive this screen.
  FrmPreferences(Host& host, MainCWizard& wizard);

  TextField Text1[kBoxes]{{this, "Text1", "", 0}, {this, "Text1", "", 1}, {this, "Text1", "", 2},
                          {this, "Text1", "", 3}, {this, "Text1", "", 4}, {this, "Text1", "", 5},
                          {this, "Text1", "", 6}, {this, "Text1", "", 7}, {this, "Text1", "", 8}};
  Button Command22{this, "Command22", "&Save"};
  Button Command1{this, "Command1", "Cancel"};

 protected:
  void Load() override;

 private:
  void Save();
  std::filesystem::path File() const;

  MainCWizard* wizard_;
};

}  // namespace tarvane
