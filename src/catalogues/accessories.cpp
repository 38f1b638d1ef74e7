#include "catalogues/accessories.h"

#include <cmath>
#include <utility>

#include "catalogues/net_price.h"
#include "catalogues/room_entry.h"
#include "text_number/text_number.h"

namespace tarvane::catalogues {

namespace {

constexpr std::string_view kBuyPrice = "BuyPrice";

const CatalogueLook kLook = {
    .name = FrmItemsDatabase::kName,
    .title = "Tarvane Accessories/Items Database",
    .file = data_file::kAccessories,
    .table = "Items",
    .categories = {{"SuppliersName", ""},
                   {"ItemName", ""},
                   {"ItemCode", ""},
                   {"Discription", ""},
                   {kBuyPrice, ""},
                   {"SellingPrice", ""},
                   {"Remarks", ""},
                   {"ItemID", ""}},
    .record = "Accessory Record: ",
    .named_by = "ItemName",
};

}  // namespace

FrmItemsDatabase::FrmItemsDatabase(Host& host, Shop& shop, job::JobScreen& job)
    : Catalogue(host, shop, kLook),
      Quick(this, *this, &listing::RECLIST_ENGINE::LoadAccessoriesList),
      job_(job) {
  BindColumns();
  SetFirstField(SuppliersName);
  Text1.SetNeverShown();
  CmdUse.SetTip("Put it into a room of the job");
  CmdUseItems.SetVisible(false);
  Command3.SetVisible(false);
  ShowBuyPrice(false);

  Check3.OnClicked([this] { ShowBuyPrice(Check3.on()); });
  Search.CboFabSearch.OnChanged([this] {
    if (Search.CboFabSearch.text() == kBuyPrice) ShowBuyPrice(true);
  });
  Data1.OnReposition([this] { MarkUp(); });
  BuyPrice.OnChanged([this] { MarkUp(); });
  TxtMarkUp.OnChanged([this] { MarkUp(); });
  // A save ends with a move to the record that was saved, which is a look at it like any other.
  Update.OnClicked([this] { MarkUp(); });
  CmdUse.OnClicked([this] { PutIntoJob(); });
}

void FrmItemsDatabase::Load() {
  Catalogue::Load();
  if (!shop().database(look().file).CanBeWritten()) {
    Messages.SetCaption("These accessories can only be read: prices are marked up here, and not stored.");
  }
}

void FrmItemsDatabase::Activate() { ShowNotes(); }

void FrmItemsDatabase::SetDefaults() { ShowBuyPrice(false); }

void FrmItemsDatabase::ShowBuyPrice(bool on) {
  Check3.Set(on);
  BuyPrice.SetVisible(on);
  TxtMarkUp.SetVisible(on);
}

void FrmItemsDatabase::ShowNotes() {
  JobNote.SetCaption(WhoseRooms(job_));
  ItemsNote.SetCaption(WhatItemsLose(job_));
}

void FrmItemsDatabase::MarkUp() {
  if (!Data1.HasRow()) return;
  const double bought = BuyPrice.Number();
  const double on_top = bought * TxtMarkUp.Number() / 100;
  if (!std::isfinite(on_top)) return;
  const std::string price = FormatNumber(bought + ParseLeading(NumberText(on_top)), Mask::k0_00);
  if (price.size() > static_cast<std::size_t>(SellingPrice.max_length())) return;
  const auto show = [&] { SellingPrice.SetText(price); };
  if (shop().database(look().file).CanBeWritten()) {
    show();
  } else {
    Data1.WithoutWriting(show);
  }
}

std::string FrmItemsDatabase::PickedText() const {
  return SuppliersName.text() + " " + ItemName.text() + " " + ItemCode.text();
}

void FrmItemsDatabase::CommitPicked() {
  if (!LeaveForUse()) throw Fault("There is no accessory. Add one first.");
}

void FrmItemsDatabase::PutIntoJob() {
  CommitPicked();
  PutIntoRoom(*this, job_, {"Accessories/Items Database", ItemID.text(), PickedText(), SellingPrice.text()});
  ShowNotes();
}

void FrmItemsDatabase::ForSingleItems(TakePicked take) {
  Command3.SetVisible(false);
  OpenToPick(CmdUseItems, std::move(take));
}

void FrmItemsDatabase::ForInvoice(TakePicked take) { OpenToPick(Command3, std::move(take)); }

void FrmItemsDatabase::OpenToPick(Button& button, TakePicked take) {
  for (Control* control : std::initializer_list<Control*>{&CmdUse, &JobNote, &ItemsNote}) {
    control->SetVisible(false);
  }
  OpenFor(button);
  button.OnClicked([this, take = std::move(take)] {
    CommitPicked();
    take(PickedText(), NetPrice(SellingPrice.text(), job_.cboVAT.text()));
    Close();
  });
}

}  // namespace tarvane::catalogues
