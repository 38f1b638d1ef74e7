#include "curtain_wizard/single_item.h"

#include "catalogues/accessories.h"
#include "catalogues/products.h"
#include "curtain_wizard/item_line.h"
#include "curtain_wizard/wizard.h"
#include "job/item_saving.h"
#include "job/job_screen.h"
#include "job/room_text.h"

namespace tarvane::curtain_wizard {
namespace {

constexpr std::string_view kUpdate = "&Update";

}  // namespace

FrmSimgleItem::FrmSimgleItem(Host& host, Shop& shop, job::JobScreen& job)
    : Screen(host, std::string(kName)), shop_(shop), job_(&job) {
  SetTitle("Add Item");
  SingleRow.SetNeverShown();
  TextField* const fields[] = {&SingleQty, &SingleDescription, &SinglePrice, &SingleTotal, &SingleRow};
  for (int number = 1; TextField* const field : fields) field->AddAlias("Text" + std::to_string(number++));
  SingleQty.SetSelectAllOnFocus();  // of what is picked it is 1, until another quantity is typed
  for (TextField* field : {&SingleQty, &SinglePrice}) field->OnLeft([this] { cal(); });
  CmdAccessories.OnClicked([this] { Pick<catalogues::FrmItemsDatabase>(); });
  CmdProducts.OnClicked([this] { Pick<catalogues::FrmFabricDatabase2>(); });
  CmdProcess.OnClicked([this] { Process(); });
  CmdCancel.OnClicked([this] { Close(); });
}

void FrmSimgleItem::Change(std::int64_t row) {
  const HeldGrid& grid = job_->SingleItemGrid;
  SingleRow.SetText(std::to_string(row));
  SingleQty.SetText(grid.Text(row, 1));
  SingleDescription.SetText(grid.Text(row, 2));
  SinglePrice.SetText(grid.Text(row, 3));
  SingleTotal.SetText(grid.Text(row, 4));
  CmdProcess.SetCaption(kUpdate);
}

void FrmSimgleItem::cal() {
  SingleTotal.SetNumber(SinglePrice.Number() * SingleQty.Number());
  SinglePrice.SetText(Format2(SinglePrice.text()));
  SingleTotal.SetText(Format2(SingleTotal.text()));
}

void FrmSimgleItem::Process() {
  if (CmdProcess.caption() == kUpdate) return Update();
  const HeldGrid::Row line = {"", SingleQty.text(), SingleDescription.text(), SinglePrice.text(),
                              SingleTotal.text()};
  job_->SingleItems.SetText(job_->SingleItems.text() + job::WriteItemLines({line}, job::kSingleItemLayout));
  job_->LoadSingles();
  item_saved_ = true;
  Close();
}

void FrmSimgleItem::Update() {
  HeldGrid& grid = job_->SingleItemGrid;
  const double row = RoundToWhole(SingleRow.text());
  if (!(row >= 1 && row <= static_cast<double>(grid.RowCount()))) {
    throw Fault("The single items have no line " + SingleRow.text() + " any more.");
  }
  const auto at = static_cast<std::int64_t>(row);
  grid.SetText(at, 1, SingleQty.text());
  grid.SetText(at, 2, SingleDescription.text());
  grid.SetText(at, 3, SinglePrice.text());
  grid.SetText(at, 4, SingleTotal.text());
  job_->RewriteSinglesText();
  item_saved_ = true;
  Close();
}

template <typename Picker>
void FrmSimgleItem::Pick() {
  bool picked = false;
  Picker picker(host(), shop_, *job_);
  picker.ForSingleItems([this, &picked](std::string_view text, std::string_view price) {
    TakeProduct(text, price);
    picked = true;
  });
  ShowModal(picker);
  if (picked) SetFocus(CmdProcess);
}

void FrmSimgleItem::TakeProduct(std::string_view text, std::string_view price) {
  SingleQty.SetText("1");
  SingleDescription.SetText(text);
  SinglePrice.SetText(price);
  SingleTotal.SetText(price);
}

void FrmSimgleItem::AddToRoom(MainCWizard& wizard) {
  const std::size_t room = job::RoomOf(SingleRow);
  HeldGrid& grid = job_->RoomItemGrid[room];
  HeldGrid::Row line = UpdatedItemLine(wizard);
  line.insert(line.begin(), std::to_string(grid.selected_row()));
  std::string text;
  for (const std::string& cell : line) text += (&cell == line.data() ? "" : "\t") + cell;
  grid.AddRow(std::move(line));
  job_->TxtList2.SetText(text);
  job_->RewriteRoomText(room);
}

}  // namespace tarvane::curtain_wizard
