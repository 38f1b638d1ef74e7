// How the item wizards are opened, and what follows them.
#include "app/main_screen.h"
#include "app/show.h"
#include "curtain_wizard/single_item.h"
#include "curtain_wizard/wizard.h"
#include "text/trim.h"

namespace tarvane::app {

void MainScreen::SetItemRules() {
  for (HeldGrid& grid : RoomItemGrid) {
    grid.OnRowOpened([this] { EditItem(); });
  }
  CmdRooms[0].OnClicked([this] { AddSingleItem(); });
  CmdRooms[1].OnClicked([this] { UpdateSingleItem(); });
  SingleItemGrid.OnRowOpened([this] { UpdateSingleItem(); });
}

void MainScreen::AddCurtain() {
  NeedRecord();
  auto wizard = MakeScreen<curtain_wizard::MainCWizard>(*this);
  wizard.RoomIndex.SetText(NumberText(TxtRoomNum.Number() - 1));
  wizard.CmdFinishTwo.SetVisible(true);
  ShowModal(wizard);
  RefreshAfterItem();
  // What was compiled anew goes to the disk with the item.
  if (wizard.item_saved()) SaveRecord();
}

void MainScreen::EditItem() {
  const HeldGrid& grid = RoomItemGrid[RoomIndex()];
  const std::string_view dialogbox = TrimSpaces(grid.Text(grid.selected_row(), job::kDialogboxColumn));
  // Items of any other editor have no way in.
  const bool curtain = dialogbox == "CurtainWizard" || dialogbox == "MainCWizard";
  const bool saved = curtain && EditCurtain(grid);
  RefreshAfterItem();
  if (saved) SaveRecord();
}

bool MainScreen::EditCurtain(const HeldGrid& grid) {
  const std::int64_t row = grid.selected_row();
  auto wizard = MakeScreen<curtain_wizard::MainCWizard>(*this);
  wizard.RoomIndex.SetText(NumberText(TxtRoomNum.Number() - 1));
  wizard.Txtinfo.SetText(TrimSpaces(grid.Text(row, job::kInfomationColumn)));
  wizard.TxtRow.SetText(std::to_string(row));
  wizard.TxtViewOnly.SetText("1");
  ShowModal(wizard);
  return wizard.item_saved();
}

void MainScreen::RefreshAfterItem() {
  RunEach({[this] { ClearRoom(SelectedRoom()); }, [this] { LoadRoom(); }, [this] { cal(); }});
}

void MainScreen::ShowQuickWizard() {
  auto wizard = MakeScreen<curtain_wizard::MainCWizard>(*this);
  wizard.CmdUpdateAndClose.SetVisible(false);
  wizard.CmdFinishTwo.SetVisible(false);
  wizard.TxtViewOnly.SetText("2");
  ShowModal(wizard);
}

void MainScreen::AddSingleItem() {
  NeedRecord();
  auto item = MakeScreen<curtain_wizard::FrmSimgleItem>(*this);
  ShowModal(item);
  RunEach({[this] { LoadSingles(); }, [this] { cal(); }});
  // It is committed with its job.
  if (item.item_saved()) SaveRecord();
}

void MainScreen::UpdateSingleItem() {
  if (SingleItemGrid.RowCount() == 0) return;
  auto item = MakeScreen<curtain_wizard::FrmSimgleItem>(*this);
  item.Change(SingleItemGrid.selected_row());
  ShowModal(item);
  RewriteSinglesText();
  RunEach({[this] { LoadSingles(); }, [this] { cal(); }});
  if (item.item_saved()) SaveRecord();
}

void MainScreen::NeedRecord() const {
  if (!Data1.HasRow()) throw Fault("No record is open. Add a new record first.");
}

}  // namespace tarvane::app
