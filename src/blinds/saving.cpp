// How an item gets into its room, or back into its row there.
#include "blinds/item_wizard.h"
#include "job/item_saving.h"
#include "job/job_screen.h"

namespace tarvane::blinds {

// What follows the line number in the room's grid.
HeldGrid::Row WizardNewBlinds::CompiledLine() {
  CompiledItemText.SetText("");
  Compile();
  return {Elements.TxtGrandTotal.text(), HPtxtFields[kDescription].text(), WriteRecord(Texts()), "AddItem",
          HPtxtFields[kItemNo].text(),   CompiledItemText.text()};
}

void WizardNewBlinds::FinishNew() {
  Save([this] { job::AddItem(job_, job::RoomOf(TargetRoomIndex), [this] { return CompiledLine(); }); });
}

void WizardNewBlinds::Update() {
  Save([this] {
    job::ReplaceItem(job_, job::RoomOf(TargetRoomIndex), TxtRow.text(), [this] { return CompiledLine(); });
  });
}

void WizardNewBlinds::Save(const std::function<void()>& put) {
  // The second press of a double click: the first one has saved.
  if (is_closed()) return;
  put();
  item_saved_ = true;
  Close();
}

}  // namespace tarvane::blinds
