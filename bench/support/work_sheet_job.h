#pragma once

#include <string>

#include "job/job_record.h"
#include "job/room_text.h"
#include "support/shop_folder.h"

namespace tarvane {

// The saved items of a room of `items` curtains, of real length: a state of 65 fields, an estimate of 18
// lines. No two rooms have curtains alike.
inline std::string LinesOfRoom(int room, int items) {
  std::string lines;
  for (int number = 0; number < items; ++number) {
    lines += std::to_string(100 + number) + ".50|Pencil pleat - Bay window|";
    for (int field = 0; field < 65; ++field) {
      switch (field) {
        case 3:
        case 4:
        case 12:
        case 14:
          lines += std::to_string(150 + number * 7 + field) + '.' + std::to_string(10 + room);
          break;
        case 56:
          lines += "True";
          break;
        case 57:
          lines += "False";
          break;
        default:
          lines += "2";
      }
      lines += '~';
    }
    lines += "|CurtainWizard|" + std::to_string(1000 + number) + "|";
    for (int token = 0; token < 18; ++token) {
      lines += std::to_string(token) + " - Fabric: Fabric Name: Tarnwater Check, moss, and its measures~";
    }
    lines += "|\r\n";
  }
  return lines;
}

// A job of twelve rooms with so many curtains each.
inline RowValues JobOfCurtains(int items) {
  RowValues values = {{"Name", "Mrs Tarrant"}};
  int number = 0;
  for (const job::RoomColumns& room : job::kRoomColumns) {
    const std::string lines = LinesOfRoom(number++, items);
    const std::string summary = job::CompileRoomSummary(job::ItemLines(lines, job::kRoomItemLayout).Rows());
    values[std::string(room.items)] = lines;
    values[std::string(room.summary)] = summary;
    values[std::string(room.total)] = "3000.00";
  }
  return values;
}

}  // namespace tarvane
