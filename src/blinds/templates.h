#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "blinds/element_lines.h"
#include "catalogues/catalogue.h"
#include "catalogues/quick_list.h"
#include "screen/control_family.h"

namespace tarvane {
namespace job {
class JobScreen;
}
}  // namespace tarvane

namespace tarvane::blinds {

class WizardNewBlinds;

// Templates of items: ten lines of text, ten priced lines, and a price of their own that follows none of
// them. From the item wizard a template is copied into its fields; from the menu it goes into a room as text.
//
// The totals aren't stored. They are worked out as a template comes into view, which rounds its quantities
// and prices to their decimals; where that changes them, the row is committed as it is left.
class FrmBlindsTemplates : public catalogues::Catalogue {
 public:
  static constexpr std::string_view kName = "FrmBlindsTemplates";
  static constexpr std::size_t kInfoLines = 10;

  // `job` is the main screen; it must outlive this one.
  FrmBlindsTemplates(Host& host, Shop& shop, job::JobScreen& job);

  // Opened to fill that wizard, which must outlive this screen: once it is filled, it can't be cancelled.
  void ForWizard(WizardNewBlinds& wizard);
  job::JobScreen& job() const { return job_; }

  TextField ItemID{this, "ItemID"};
  // Description, and Info1 to Info9.
  std::array<TextField, kInfoLines> Info =
      MakeFamily<kInfoLines>([this](int i) { return TextField(this, "Info", "", i); });
  ElementLines Elements{this};
  TextField FabselPrice{this, "FabselPrice"};
  TextField FabRemarks{this, "FabRemarks", "", -1, TextField::Kind::kMemo};
  TickBox Check3{this, "Check3", "Buy Price"};
  Panel BuyPrices{this, "BuyPrices"};  // shown while Check3 is on
  TextField FabBuyPrice{&BuyPrices, "FabBuyPrice"};
  TextField TxtMarkUp{&BuyPrices, "TxtMarkUp", "100"};  // in percent; not stored
  catalogues::QuickList Quick{this, *this, &listing::RECLIST_ENGINE::LoadItemsList};

  Button CmdUse{this, "CmdUse", "Use"};
  Button CmdUseItems{this, "CmdUseItems", "Copy Items to &Wizard and Close"};
  Button Command3{this, "Command3", "Invoice Item", kNotBuilt};

  // A template's price is typed: its mark-up works nothing out.
  void MarkUp() {}

 protected:
  void Activate() override;
  void SetDefaults() override;

 private:
  void BindTemplate();
  void SetRules();
  void ShowBuyPrice(bool shown);
  void WorkOutShown();
  void CommitForUse();
  void PutTemplateIntoRoom();
  void CopyIntoWizard();

  job::JobScreen& job_;
  WizardNewBlinds* wizard_ = nullptr;
};

}  // namespace tarvane::blinds
