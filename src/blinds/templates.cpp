#include "blinds/templates.h"

#include "blinds/item_wizard.h"
#include "catalogues/room_entry.h"
#include "job/job_screen.h"

namespace tarvane::blinds {

namespace {

const catalogues::CatalogueLook kLook = {
    .name = FrmBlindsTemplates::kName,
    .title = "Wizards Template Database",
    .file = data_file::kTemplates,
    .table = "Templates",
    .categories = {{"ItemID", ""}, {"Description", ""}, {"Info1", ""}},
    .record = "Template Record: ",
    .named_by = "Description",
    .adds_at_once = true,
};
constexpr std::string_view kBuyPrice = "BuyPrice";

}  // namespace

FrmBlindsTemplates::FrmBlindsTemplates(Host& host, Shop& shop, job::JobScreen& job)
    : Catalogue(host, shop, kLook), job_(job) {
  BindTemplate();
  SetFirstField(Info[0]);
  SetRules();
  ShowBuyPrice(false);
  CmdUseItems.SetVisible(false);
  Command3.SetVisible(false);
}

void FrmBlindsTemplates::BindTemplate() {
  Data1.Bind(Info[0], "Description");
  for (std::size_t i = 1; i < kInfoLines; ++i) Data1.Bind(Info[i], "Info" + std::to_string(i));
  for (std::size_t i = 0; i < ElementLines::kCount; ++i) {
    const std::string number = std::to_string(i + 1);
    Data1.Bind(Elements.txtItems[i], "Element" + number);
    Data1.Bind(Elements.TxtItemQty[i], "Qty" + number);
    Data1.Bind(Elements.TxtSubTotalForItem[i], "SubTotal" + number);
  }
  constexpr int kUnlimited = 0;
  Data1.Bind(FabselPrice, "SellingPrice");
  Data1.Bind(FabBuyPrice, std::string(kBuyPrice));
  Data1.Bind(FabRemarks, "Remarks", kUnlimited);
  BindColumns();
}

void FrmBlindsTemplates::SetRules() {
  for (TextField& line : Info) line.SetSelectAllOnFocus();
  for (TextField& quantity : Elements.TxtItemQty) quantity.OnLeft([this] { Elements.Cal2(); });
  for (TextField& price : Elements.TxtSubTotalForItem) {
    price.OnLeft([this, &price] {
      price.SetText(Format2(price.text()));
      Elements.Cal2();
    });
  }
  Data1.OnReposition([this] { WorkOutShown(); });
  Quick.lstTitles.OnPicked([this] { WorkOutShown(); });
  Check3.OnClicked([this] { ShowBuyPrice(Check3.on()); });
  Search.CboFabSearch.OnTyped([this] {
    if (Search.CboFabSearch.text() == kBuyPrice) ShowBuyPrice(true);
  });
  CmdUse.OnClicked([this] { PutTemplateIntoRoom(); });
  CmdUseItems.OnClicked([this] { CopyIntoWizard(); });
}

void FrmBlindsTemplates::ForWizard(WizardNewBlinds& wizard) {
  wizard_ = &wizard;
  CmdUse.SetVisible(false);
  OpenFor(CmdUseItems);
}

void FrmBlindsTemplates::Activate() { WorkOutShown(); }

// What a template rounds as it comes into view is its own, but where it can only be read nothing may wait in
// its row, or the worker couldn't go on to the next one.
void FrmBlindsTemplates::WorkOutShown() {
  if (shop().database(look().file).CanBeWritten()) {
    Elements.Cal2();
  } else {
    Data1.WithoutWriting([this] { Elements.Cal2(); });
  }
}

void FrmBlindsTemplates::ShowBuyPrice(bool shown) {
  Check3.Set(shown);
  BuyPrices.SetVisible(shown);
}

void FrmBlindsTemplates::SetDefaults() {
  ShowBuyPrice(false);
  Info[0].SetText("Enter in a description for this template.");
  for (std::size_t i = 0; i < ElementLines::kCount; ++i) {
    Elements.TxtSubTotalForItem[i].SetText("0.00");
    Elements.TxtItemQty[i].SetText("0");
  }
}

void FrmBlindsTemplates::CommitForUse() {
  if (!LeaveForUse()) throw Fault("There is no template to use. Add one first.");
}

void FrmBlindsTemplates::PutTemplateIntoRoom() {
  CommitForUse();
  catalogues::PutIntoRoom(*this, job_,
                          {.database = "Templates Database",
                           .number = ItemID.text(),
                           .text = "",
                           .selling_price = FabselPrice.text()});
}

// A template's lines land one field further up than their names say: its description in the wizard's room,
// its first info line in the description. Templates are written with that in mind.
void FrmBlindsTemplates::CopyIntoWizard() {
  CommitForUse();
  if (wizard_ == nullptr) return;
  wizard_->Command1.SetEnabled(false);
  for (std::size_t i = 0; i < kInfoLines; ++i) wizard_->HPtxtFields[i + 1].SetText(Info[i].text());
  ElementLines& copy = wizard_->Elements;
  for (std::size_t i = 0; i < ElementLines::kCount; ++i) {
    copy.txtItems[i].SetText(Elements.txtItems[i].text());
    copy.TxtItemQty[i].SetText(Elements.TxtItemQty[i].text());
    copy.TxtSubTotalForItem[i].SetText(Elements.TxtSubTotalForItem[i].text());
  }
  Close();
}

}  // namespace tarvane::blinds
