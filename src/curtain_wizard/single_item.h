#pragma once

#include <cstdint>
#include <string_view>

#include "screen/field.h"
#include "screen/screen.h"

namespace tarvane {
class Shop;
namespace job {
class JobScreen;
}
}  // namespace tarvane

namespace tarvane::curtain_wizard {

class MainCWizard;

// One loose item of the job: a new one, or one that is changed. Any text fits into any field; what is no
// number counts as 0, and an item without a description is taken too. A "|" in a field makes two of it.
class FrmSimgleItem : public Screen {
 public:
  static constexpr std::string_view kName = "FrmSimgleItem";

  // `job` must outlive the screen.
  FrmSimgleItem(Host& host, Shop& shop, job::JobScreen& job);

  // Before it is shown: the single item of that row of the job's grid, from 1, is to be changed.
  void Change(std::int64_t row);
  // An item was put into the job, or changed in its grid.
  bool item_saved() const { return item_saved_; }

  // The total, and both amounts with two places. It runs as quantity and price are left.
  void cal();
  // Puts the fields into the row of the grid and closes. Faults where there is no such row. The stored text
  // follows at once: the main screen fills its grid from it as it comes back.
  void Update();
  // Puts the wizard's item into the room of SingleRow, with the description of a changed item. Faults where
  // that is no room.
  void AddToRoom(MainCWizard& wizard);

  TextField SingleQty{this, "SingleQty"};                  // alias Text1
  TextField SingleDescription{this, "SingleDescription"};  // alias Text2
  TextField SinglePrice{this, "SinglePrice"};              // alias Text3
  TextField SingleTotal{this, "SingleTotal"};              // alias Text4
  TextField SingleRow{this, "SingleRow"};  // alias Text5: row that is changed, or the room index of AddToRoom
  Button CmdAccessories{this, "CmdAccessories", "&Accessories/Items DB"};
  Button CmdProducts{this, "CmdProducts", "&Your Product Database"};
  Button CmdProcess{this, "CmdProcess", "&Process"};  // "&Update" for a change
  Button CmdCancel{this, "CmdCancel", "&Close"};

 private:
  void Process();
  void TakeProduct(std::string_view text, std::string_view price);
  template <typename Picker>
  void Pick();

  Shop& shop_;
  job::JobScreen* job_;
  bool item_saved_ = false;
};

}  // namespace tarvane::curtain_wizard
