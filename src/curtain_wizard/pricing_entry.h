#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "screen/field.h"
#include "screen/screen.h"

namespace tarvane {
class Shop;
}

namespace tarvane::curtain_wizard {

inline constexpr std::string_view kPricingTable = "PopUp1";

// Where one row of the price list is typed: a new one, or one that is changed. Nothing is stored but by Save.
// Any text fits into any field; one of more than 255 characters faults as it is saved, the notes apart.
class FrmPopUp1Options : public Screen {
 public:
  static constexpr std::string_view kName = "FrmPopUp1Options";

  FrmPopUp1Options(Host& host, Shop& shop);

  // Before it is shown: the row of that key is to be changed. Faults where it isn't there.
  void Change(std::string_view key);
  // After each save, with the key of the row.
  using Saved = std::function<void(std::string_view key)>;
  void OnSaved(Saved rule) { saved_ = std::move(rule); }

  // Something was typed that isn't stored.
  bool changed();
  void Save();

  TextField PopUpID{this, "PopUpID"};  // given as it is saved
  DropDownList Reference{this, "Reference"};
  DropDownList Description{this, "Description"};
  TextField LabourPrice{this, "LabourPrice"};
  TextField LiningPrice{this, "LiningPrice"};
  TextField LiningName{this, "LiningName"};
  TextField InterliningPrice{this, "InterliningPrice"};
  TextField InterLiningName{this, "InterLiningName"};
  TextField TapePrice{this, "TapePrice"};
  TextField Fullness{this, "Fullness"};
  TextField HemsCms{this, "HemsCms"};
  TextField HemsIns{this, "HemsIns"};
  DropDownList AutoRoundUp{this, "AutoRoundUp"};
  TextField Notes{this, "Notes", "", -1, TextField::Kind::kMemo};

  Button CmdSave{this, "CmdSave", "Save"};  // "Update" while a row is changed
  Button CmdClose{this, "CmdClose", "&Close"};
  Label Messages{this, "Messages"};

 protected:
  void Load() override;

 private:
  // All but the key; they go by the names of their columns.
  std::vector<TextField*> Fields();
  std::vector<std::string> Texts();
  void NowStored(std::string_view key);

  Shop& shop_;
  Saved saved_;
  std::vector<std::string> stored_;  // the fields' texts as they stand in the table, or blank
};

}  // namespace tarvane::curtain_wizard
