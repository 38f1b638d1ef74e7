#pragma once

#include "catalogues/catalogue.h"

namespace tarvane::curtain_wizard {

class MainCWizard;

// Ready-made prices of curtain styles. A row is typed in a screen of its own (FrmPopUp1Options); here it is
// only looked at, searched, deleted, or put into the wizard.
class FrmPopUp1 : public catalogues::Catalogue {
 public:
  static constexpr std::string_view kName = "FrmPopUp1";

  // Without a wizard nothing can be used.
  FrmPopUp1(Host& host, Shop& shop);
  // `wizard` takes the row that is used; it must outlive the screen.
  FrmPopUp1(Host& host, Shop& shop, MainCWizard& wizard);

  // A row was put into the wizard.
  bool used() const { return used_; }

  void Add() override;     // shows the entry screen, empty
  void Save() override;    // shows the entry screen with the selected row
  void Delete() override;  // and all rows are back

  TextField PopUpID{this, "PopUpID"};
  TextField Reference{this, "Reference"};
  TextField Description{this, "Description"};
  TextField LabourPrice{this, "LabourPrice"};
  TextField LiningPrice{this, "LiningPrice"};
  TextField LiningName{this, "LiningName"};
  TextField InterliningPrice{this, "InterliningPrice"};
  TextField InterLiningName{this, "InterLiningName"};
  TextField TapePrice{this, "TapePrice"};
  TextField Fullness{this, "Fullness"};
  TextField HemsCms{this, "HemsCms"};
  TextField HemsIns{this, "HemsIns"};
  TextField AutoRoundUp{this, "AutoRoundUp"};
  TextField Notes{this, "Notes", "", -1, TextField::Kind::kMemo};

  Button CmdUse{this, "CmdUse", "Select / Use"};  // off without a wizard, and without a row
  Button CmdHelp{this, "CmdHelp", "&Help", kNotBuilt};

 protected:
  void Load() override;

 private:
  void Use();
  void ShowEntry(std::string_view key);
  void LoadList(std::string_view key);
  void EnableButtons();

  MainCWizard* wizard_ = nullptr;
  bool used_ = false;
};

}  // namespace tarvane::curtain_wizard
