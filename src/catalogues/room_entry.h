#pragma once

#include <string>

namespace tarvane {
class Screen;
namespace job {
class JobScreen;
}
}  // namespace tarvane

namespace tarvane::catalogues {

// A row of a catalogue that goes into a room of the open job as text.
struct RoomEntry {
  std::string database;       // "Accessories/Items Database"
  std::string number;         // of the row
  std::string text;           // what it is; may be empty
  std::string selling_price;  // including tax
};

// Asks for the amount and the room, and puts the entry into the room's summary and totals. The room's item
// lines are replaced by one line of text, so that its items no longer count: that is meant so. True where it
// was put in; false where the worker gave up, and then nothing has changed. Faults where the amount is no
// number, and where no job is open.
//
// Like all that is typed into a job it is committed with the worker's next save or move.
bool PutIntoRoom(Screen& asking, job::JobScreen& job, const RoomEntry& entry);

// What a worker should know before: whose job it is, and what becomes of the items of rooms that have some
// ("" where none has).
std::string WhoseRooms(const job::JobScreen& job);
std::string WhatItemsLose(const job::JobScreen& job);

}  // namespace tarvane::catalogues
