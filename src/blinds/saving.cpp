// How an item gets into its room, or back into its row there.
#include "blinds/item_wizard.h"
#include "job/job_screen.h"

namespace tarvane::blinds {

namespace {

// The room's place among the job's; a text that is no room of the job faults.
std::size_t RoomOf(const TextField& room_index) {
  const double index = room_index.Number();
  if (!(index >= 0 && index < static_cast<double>(job::kRoomCount))) {
    throw Fault("There is no room for this item: room index \"" + room_index.text() + "\".");
  }
  return static_cast<std::size_t>(index);
}

// Letters in the paid amount stop the totals; they are told when the job is refreshed.
void WorkOutJob(job::JobScreen& job) {
  IgnoreFaults([&job] { job.LoadRoom(); });
  IgnoreFaults([&job] { job.cal(); });
}

}  // namespace

// What follows the line number in the room's grid.
HeldGrid::Row WizardNewBlinds::CompiledLine() {
  CompiledItemText.SetText("");
  Compile();
  return {Elements.TxtGrandTotal.text(), HPtxtFields[kDescription].text(), WriteRecord(Texts()), "AddItem",
          HPtxtFields[kItemNo].text(),   CompiledItemText.text()};
}

void WizardNewBlinds::FinishNew() {
  SaveInJob([this](std::size_t, HeldGrid& grid) {
    HeldGrid::Row line = CompiledLine();
    line.insert(line.begin(), std::to_string(grid.selected_row()));
    grid.AddRow(std::move(line));
  });
}

void WizardNewBlinds::Update() {
  SaveInJob([this](std::size_t, HeldGrid& grid) {
    const double row = TxtRow.Number();
    if (!(row >= 1 && row <= static_cast<double>(grid.RowCount()))) {
      throw Fault("The item's row " + TxtRow.text() + " is not in the room any more.");
    }
    const HeldGrid::Row line = CompiledLine();
    for (std::size_t i = 0; i < line.size(); ++i) {
      grid.SetText(static_cast<std::int64_t>(row), static_cast<int>(i) + 1, line[i]);
    }
  });
}

// Commits the job with `change` and closes. Where that faults the job is as it was, so that the worker may
// try again without a second item.
void WizardNewBlinds::SaveInJob(const std::function<void(std::size_t, HeldGrid&)>& change) {
  // The second press of a double click: the first one has saved.
  if (is_closed()) return;
  const std::size_t room = RoomOf(TargetRoomIndex);
  HeldGrid& grid = job_.RoomItemGrid[room];
  const auto rows = grid.rows();
  const std::int64_t selected = grid.selected_row();
  const std::string items = job_.RoomItems[room].text();
  try {
    change(room, grid);
    job_.RewriteRoomText(room);
    // The totals belong to the item: it is one commit.
    WorkOutJob(job_);
    job_.Data1.Save();
  } catch (...) {
    grid.SetRows(rows);
    grid.Select(selected);
    job_.RoomItems[room].SetText(items);
    WorkOutJob(job_);
    throw;
  }
  item_saved_ = true;
  Close();
}

}  // namespace tarvane::blinds
