// The items of rooms and the single items: compiling, deleting, writing back.
#include <algorithm>

#include "job/job_screen.h"
#include "screen/busy.h"
#include "text/trim.h"

namespace tarvane::job {

void JobScreen::RewriteRoomText(std::size_t room_index) {
  RoomItems.at(room_index).SetText(WriteItemLines(RoomItemGrid.at(room_index).rows(), kRoomItemLayout));
  grid_text_.at(room_index) = RoomItems.at(room_index).text();
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
  // A grid that wasn't made of the room as it is stored must never be written over it.
  if (grid_text_[room] != RoomItems[room].text()) LoadRoom();
  const bool deleted = DeleteSelectedRow(RoomItemGrid[room]);
  RewriteRoomText(room);
  RunEach({[this] { LoadRoom(); }, [this] { cal(); },
           [this, deleted] {
             if (deleted) ClearRoom(SelectedRoom());
           }});
}

void JobScreen::DeleteSingleItem() {
  DeleteSelectedRow(SingleItemGrid);
  RewriteSinglesText();
  RunEach({[this] { LoadSingles(); }, [this] { cal(); }});
}

}  // namespace tarvane::job
