#include "job/item_saving.h"

#include <utility>

#include "job/job_screen.h"

namespace tarvane::job {

namespace {

// Letters in the paid amount stop the totals; they are told when the job is refreshed.
void WorkOut(JobScreen& job) {
  IgnoreFaults([&job] { job.LoadRoom(); });
  IgnoreFaults([&job] { job.cal(); });
}

void Save(JobScreen& job, std::size_t room, const std::function<void(HeldGrid& grid)>& change,
          const std::function<void()>& after) {
  HeldGrid& grid = job.RoomItemGrid[room];
  TextField& summary = ShownSummary(job);
  const auto rows = grid.rows();
  const std::int64_t selected = grid.selected_row();
  const std::string items = job.RoomItems[room].text();
  const std::string summary_text = summary.text();
  try {
    change(grid);
    job.RewriteRoomText(room);
    if (after) after();
    // The totals belong to the item: it is one commit.
    WorkOut(job);
    job.Data1.Save();
  } catch (...) {
    grid.SetRows(rows);
    grid.Select(selected);
    job.RoomItems[room].SetText(items);
    summary.SetText(summary_text);
    WorkOut(job);
    throw;
  }
}

}  // namespace

std::size_t RoomOf(const TextField& room_index) {
  const double index = room_index.Number();
  if (!(index >= 0 && index < static_cast<double>(kRoomCount))) {
    throw Fault("There is no room for this item: room index \"" + room_index.text() + "\".");
  }
  return static_cast<std::size_t>(index);
}

TextField& ShownSummary(JobScreen& job) {
  return job.RoomSummary[static_cast<std::size_t>(job.SelectedRoom()) - 1];
}

void AddItem(JobScreen& job, std::size_t room, const std::function<ItemCells()>& cells,
             const std::function<void()>& after) {
  const auto add = [&cells](HeldGrid& grid) {
    HeldGrid::Row line = cells();
    line.insert(line.begin(), std::to_string(grid.selected_row()));
    grid.AddRow(std::move(line));
  };
  Save(job, room, add, after);
}

void ReplaceItem(JobScreen& job, std::size_t room, std::string_view row,
                 const std::function<ItemCells()>& cells) {
  const auto replace = [&](HeldGrid& grid) {
    const double place = ParseLeading(row);
    if (!(place >= 1 && place <= static_cast<double>(grid.RowCount()))) {
      throw Fault("The item's row " + std::string(row) + " is not in the room any more.");
    }
    const ItemCells line = cells();
    for (std::size_t i = 0; i < line.size(); ++i) {
      grid.SetText(static_cast<std::int64_t>(place), static_cast<int>(i) + 1, line[i]);
    }
  };
  Save(job, room, replace, {});
}

}  // namespace tarvane::job
