#pragma once

#include <string_view>

#include "screen/control.h"
#include "screen/data_source.h"

namespace tarvane {

// "Record: 201 of 5012" with four buttons that move through the rows of a source. Moves commit what waits; a
// new row that waits is left first (DataSource::Leave) and becomes the last one, or goes. Past an end nothing
// happens.
//
// The caption is empty without a row and while one is being added.
class RecordBar {
 public:
  // What the caption is called and says: "Record: 201 of 5012".
  struct Look {
    std::string_view name = "RecordBar";
    std::string_view before = "Record: ";
    std::string_view between = " of ";
  };

  // `source` must outlive the bar. The caption goes by the name of `look`, and Data1.
  RecordBar(Home home, DataSource& source, Look look);
  RecordBar(Home home, DataSource& source) : RecordBar(home, source, Look()) {}
  RecordBar(const RecordBar&) = delete;
  RecordBar& operator=(const RecordBar&) = delete;

  Label Caption;
  Button CmdFirst;
  Button CmdPrevious;
  Button CmdNext;
  Button CmdLast;

  // Puts the present position into the caption. Runs by itself as another row becomes current.
  void Show();

 private:
  void Step(int rows);

  DataSource& source_;
  Look look_;
};

}  // namespace tarvane
