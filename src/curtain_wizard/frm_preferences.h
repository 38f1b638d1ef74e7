#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "screen/field.h"
#include "screen/screen.h"

namespace tarvane {
class Shop;
}

namespace tarvane::curtain_wizard {

class MainCWizard;

// The lines of Options.dat without their ends; none where there is no such file. Faults where it can't be
// read.
std::vector<std::string> ReadOptionLines(const Shop& shop);

// Whether all lines are taken or only what a new item starts with: its tax rate is the shop's.
enum class OptionsFor { kNewItem, kAll };
// Fills the fields of the wizard from those lines, by one table. A field whose line is missing keeps its
// text.
void TakeOptions(MainCWizard& wizard, const std::vector<std::string>& lines, OptionsFor purpose);

// The defaults of new curtain items, kept in Options.dat: eight lines, one a box. What the last box holds is
// not kept. Not shown where the file is there and can't be read.
class FrmPreferences : public Screen {
 public:
  static constexpr std::string_view kName = "FrmPreferences";
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
  FrmPreferences(Host& host, Shop& shop, MainCWizard& wizard);

  TextField Text1[kBoxes]{{this, "Text1", "", 0}, {this, "Text1", "", 1}, {this, "Text1", "", 2},
                          {this, "Text1", "", 3}, {this, "Text1", "", 4}, {this, "Text1", "", 5},
                          {this, "Text1", "", 6}, {this, "Text1", "", 7}, {this, "Text1", "", 8}};
  Button Command22{this, "Command22", "&Save"};
  Button Command1{this, "Command1", "Cancel"};

 protected:
  void Load() override;

 private:
  void Save();

  Shop& shop_;
  MainCWizard* wizard_;
};

}  // namespace tarvane::curtain_wizard
