// How the item wizards are opened, and what follows them.
#include "app/main_screen.h"
#include "app/show.h"
#include "blinds/item_wizard.h"
#include "curtain_wizard/single_item.h"
#include "curtain_wizard/wizard.h"
#include "text/trim.h"

namespace tarvane::app {

namespace {

// Shows the wizard over the room that is open. What follows is compiled anew, and goes to the disk with an
// item that was saved.
template <typename Wizard>
void ShowOverRoom(MainScreen& main, Wizard& wizard, TextField& room_index) {
  room_index.SetText(NumberText(main.TxtRoomNum.Number() - 1));
  main.ShowModal(wizard);
  main.RefreshAfterItem();
  if (wizard.item_saved()) main.SaveRecord();
}

// The selected row of the room that is open.
struct ItemRow {
  explicit ItemRow(const MainScreen& main)
      : grid(main.RoomItemGrid[main.RoomIndex()]), row(grid.selected_row()) {}
  std::string_view Cell(int column) const { return TrimSpaces(grid.Text(row, column)); }

  const HeldGrid& grid;
  std::int64_t row;
};

void EditCurtain(MainScreen& main, const ItemRow& item) {
  auto wizard = MakeScreen<curtain_wizard::MainCWizard>(main);
  wizard.Txtinfo.SetText(item.Cell(job::kInfomationColumn));
  wizard.TxtRow.SetText(std::to_string(item.row));
  wizard.TxtViewOnly.SetText("1");
  ShowOverRoom(main, wizard, wizard.RoomIndex);
}

void EditBlind(MainScreen& main, const ItemRow& item) {
  auto wizard = MakeScreen<blinds::WizardNewBlinds>(main);
  wizard.Txtinfo.SetText(item.Cell(job::kInfomationColumn));
  wizard.TxtRow.SetText(std::to_string(item.row));
  ShowOverRoom(main, wizard, wizard.TargetRoomIndex);
}

}  // namespace

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
  wizard.CmdFinishTwo.SetVisible(true);
  ShowOverRoom(*this, wizard, wizard.RoomIndex);
}

void MainScreen::AddBlind() {
  NeedRecord();
  auto wizard = MakeScreen<blinds::WizardNewBlinds>(*this);
  ShowOverRoom(*this, wizard, wizard.TargetRoomIndex);
}

void MainScreen::EditItem() {
  const ItemRow item(*this);
  const std::string_view dialogbox = item.Cell(job::kDialogboxColumn);
  if (dialogbox == "CurtainWizard" || dialogbox == "MainCWizard") {
    EditCurtain(*this, item);
  } else if (dialogbox == "AddItem") {
    EditBlind(*this, item);
  } else {
    // Items of any other editor have no way in.
    RefreshAfterItem();
  }
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
