#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "blinds/element_lines.h"
#include "blinds/item_texts.h"
#include "screen/control_family.h"
#include "screen/grid.h"
#include "screen/screen.h"

namespace tarvane {
class Shop;
namespace job {
class JobScreen;
}
}  // namespace tarvane

namespace tarvane::blinds {

// The item wizard: whatever goes into a room without being a curtain (a blind, a cushion, a note), as lines
// of text and ten priced lines that are added up.
//
// The caller fills TargetRoomIndex, and for an item that is edited Txtinfo and TxtRow, before it shows the
// wizard. Any field may hold any text.
class WizardNewBlinds : public Screen {
 public:
  static constexpr std::string_view kName = "WizardNewBlinds";
  static constexpr std::size_t kFields = 12;
  enum Field : std::size_t { kItemNo = 0, kRoom = 1, kDescription = 2, kDate = 3, kFitting = 10 };

  // `job` is the main screen; it must outlive the wizard.
  WizardNewBlinds(Host& host, Shop& shop, job::JobScreen& job);

  job::JobScreen& job() const { return job_; }
  // The item was put into the job, and the job committed.
  bool item_saved() const { return item_saved_; }
  // Something that would be stored is other than it was as the wizard opened.
  bool has_changes() const { return WriteRecord(Texts()) != opened_with_; }
  // The texts as they stand; views into the fields.
  ItemTexts Texts() const;

  // The costing of the panel that isn't shown. Its grand total holds until the next totals of the elements.
  void cal();
  // Appends what is printed of the item to CompiledItemText.
  void Compile();

  TabStrip SSTab1{this, "SSTab1", {"Item Line Information", "Element Information and Costing."}};
  // Item number, room, description, eight free lines, and one that is neither shown nor kept.
  std::array<TextField, kFields> HPtxtFields =
      MakeFamily<kFields>([this](int i) { return TextField(this, "HPtxtFields", "", i); });
  Calendar dtpDate{this,
                   "dtpDate"};  // puts its day into the field kDate, after a question where one stands there
  ElementLines Elements{this};

  Button Command4{this, "Command4", "Get Items from Template Database"};
  Button Command1{this, "Command1", "&Cancel"};
  Button CmdFinishTwo{this, "CmdFinishTwo", "&Save New Order and Close"};
  Button CmdUpdateAndClose{this, "CmdUpdateAndClose", "&Update Order and Close"};
  Button Command3{this, "Command3", "Compile"};
  Button Command2{this, "Command2", "&Save New Order and Close"};  // as CmdFinishTwo, never shown

  // ---- Hand-over and working values, never shown.
  TextField TargetRoomIndex{this, "TargetRoomIndex"};  // of the main screen's room, from 0; alias Text37
  TextField Txtinfo{this, "Txtinfo"};                  // record of an item that is edited
  TextField TxtRow{this, "TxtRow", "0"};               // its row in the room's grid
  TextField CompiledItemText{this, "CompiledItemText", "", -1, TextField::Kind::kMemo};

  // ---- The panel of blind details, never shown: what is in it reaches neither item nor price.
  struct Product {
    std::string price;
    std::array<std::string, 3> columns;  // the first one is what nsdProduct shows; the others may be empty
  };
  void SetProducts(std::vector<Product> products);
  DropDownList BlindInfo{this, "BlindInfo"};
  DropDownList CboTieBacks{this, "CboTieBacks"};  // what the item is made from
  TextField TxtSuppliersName{this, "TxtSuppliersName"};
  TextField TxtNotes{this, "TxtNotes"};
  Label LblBandNo{this, "LblBandNo", -1, "Band No/Ref:"};
  Button cmdGenerate{this, "cmdGenerate", "Generate"};
  DropDownList nsdProduct{this, "nsdProduct"};
  TextField FabricText{this, "FabricText"};
  TextField QtyNeeded{this, "QtyNeeded"};
  DropDownList PricePerMetre{this, "PricePerMetre"};
  TextField BlindPriceIncVat{this, "BlindPriceIncVat", "0.00"};
  TextField TxtDeliveryCosting{this, "TxtDeliveryCosting", "0.00"};
  TextField TxtLabour{this, "TxtLabour", "0.00"};
  TextField TxtOtherCosting{this, "TxtOtherCosting", "0.00"};
  TextField TxtNoOfTieBacks{this, "TxtNoOfTieBacks"};
  TextField TxtSubTotal{this, "TxtSubTotal"};
  std::array<Label, 4> CostingLabel = MakeFamily<4>([this](int i) {
    static constexpr std::array<std::string_view, 4> kCaptions = {
        "Blind Price Inc Vat/Tax", "Delivery Costing:", "Labour Costing:", "Fitting Costing"};
    return Label(this, "CostingLabel", i, kCaptions[static_cast<std::size_t>(i)]);
  });

 protected:
  void Load() override;
  void Activate() override;

 private:
  void HideWorkingValues();
  void HookItem();
  void HookCosting();
  void FillCostingLists();
  void TakeRecord();
  void TakeItemNumber();
  void TakeDate();
  void PriceBlind();
  void TakeProduct();
  void ShowTemplates();

  void FinishNew();
  void Update();
  HeldGrid::Row CompiledLine();
  void Save(const std::function<void()>& put);

  Shop& shop_;
  job::JobScreen& job_;
  std::vector<Product> products_;
  Day date_{};
  std::string opened_with_;
  bool item_saved_ = false;
};

}  // namespace tarvane::blinds
