#pragma once

#include "screen/control.h"
#include "screen/data_source.h"

namespace tarvane {

// "Record: 201 of 5012" with four buttons that move through the rows of a source. Moves commit what waits; a
// new row that waits is saved first and becomes the last one. Past an end nothing happens.
//
// The caption is empty without a row and while one is being added.
class RecordBar {
 public:
  // `source` must outlive the bar. The caption goes by the names RecordBar and Data1.
  RecordBar(Home home, DataSource& source);
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
};

}  // namespace tarvane
