// The items of rooms and the single items: compiling, deleting, writing back.
#include <algorithm>

#include "job/job_screen.h"

namespace tarvane {

namespace {

// Keeps the busy cursor while it lives.
class Busy {
 public:
  explicit Busy(Host& host) : host_(host) { host_.SetBusy(true); }
  ~Busy() { host_.SetBusy(false); }
  Busy(const Busy&) = delete;
  Busy& operator=(const Busy&) = delete;

 private:
  Host& host_;
};

}  // namespace

void JobScreen::RewriteRoomText(std::size_t room_index) {
  RoomItems.at(room_index).SetText(WriteItemLines(RoomItemGrid.at(room_index).rows(), kRoomItemLayout));
}

void JobScreen::RewriteSinglesText() {
  SingleItems.SetText(WriteItemLines(SingleItemGrid.rows(), kSingleItemLayout));
}

void JobScreen::ClearRoom(int room) {
  const auto index = static_cast<std::size_t>(room - 1);
  {
    const Busy busy(host());
    RoomSummary.at(index).SetText(CompileRoomSummary(RoomItemGrid.at(index).rows()));
  }
  ClearedMessage();
}

void JobScreen::ClearedMessage() {
  Label8[0].SetCaption("Room " + TxtRoomNum.text() + " as been Re-Compiled. ");
}

bool JobScreen::DeleteSelectedRow(HeldGrid& grid) {
  if (grid.RowCount() == 0) return false;
  std::vector<HeldGrid::Row> rows = grid.rows();
  const auto selected = static_cast<std::size_t>(grid.selected_row() - 1);
  const HeldGrid::Row& cells = rows[selected];
  const auto first =
      std::ranges::find_if(cells, [](const std::string& cell) { return !TrimSpaces(cell).empty(); });
  if (first != cells.end() &&
      !AskYesNo(
          "Delete Item...",
          "Delete item " + *first + ".  Are You Sure? \nThis will delete this item and update the costing.",
          Answer::kNo, Icon::kWarning)) {
    return false;
  }
  rows.erase(rows.begin() + static_cast<std::ptrdiff_t>(selected));
  grid.SetRows(std::move(rows));
  return true;
}

void JobScreen::DeleteFromRoom() {
  const std::size_t room = RoomIndex();
  const bool deleted = DeleteSelectedRow(RoomItemGrid[room]);
  RewriteRoomText(room);
  LoadRoom();
  cal();
  if (deleted) ClearRoom(SelectedRoom());
}

void JobScreen::DeleteSingleItem() {
  DeleteSelectedRow(SingleItemGrid);
  RewriteSinglesText();
  LoadSingles();
  cal();
}

}  // namespace tarvane
