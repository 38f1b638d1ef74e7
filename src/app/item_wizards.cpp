// How the item wizards are opened, and what follows them.
#include "app/main_screen.h"
#include "curtain_wizard/wizard.h"

namespace tarvane {

void MainScreen::AddCurtain() {
  NeedRecord();
  MainCWizard wizard(host(), *this);
  wizard.RoomIndex.SetText(NumberText(TxtRoomNum.Number() - 1));
  wizard.CmdFinishTwo.SetVisible(true);
  ShowModal(wizard);
  RefreshAfterItem();
}

void MainScreen::EditItem() {
  const HeldGrid& grid = RoomItemGrid[RoomIndex()];
  const std::string_view dialogbox = TrimSpaces(grid.Text(grid.selected_row(), kDialogboxColumn));
  // Items of any other editor have no way in.
  if (dialogbox == "CurtainWizard" || dialogbox == "MainCWizard") EditCurtain(grid);
  RefreshAfterItem();
}

void MainScreen::EditCurtain(const HeldGrid& grid) {
  const std::int64_t row = grid.selected_row();
  MainCWizard wizard(host(), *this);
  wizard.RoomIndex.SetText(NumberText(TxtRoomNum.Number() - 1));
  wizard.Txtinfo.SetText(TrimSpaces(grid.Text(row, kInfomationColumn)));
  wizard.TxtRow.SetText(std::to_string(row));
  wizard.TxtViewOnly.SetText("1");
  ShowModal(wizard);
}

void MainScreen::RefreshAfterItem() {
  ClearRoom(SelectedRoom());
  LoadRoom();
  cal();
}

void MainScreen::ShowQuickWizard() {
  MainCWizard wizard(host(), *this);
  wizard.CmdUpdateAndClose.SetVisible(false);
  wizard.CmdFinishTwo.SetVisible(false);
  wizard.TxtViewOnly.SetText("2");
  ShowModal(wizard);
}

void MainScreen::NeedRecord() const {
  if (!Data1.HasRow()) throw Fault("No record is open. Add a new record first.");
}

}  // namespace tarvane
