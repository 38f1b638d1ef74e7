#include "screen/record_bar.h"

#include <string>

#include "screen/screen.h"

namespace tarvane {

RecordBar::RecordBar(Home home, DataSource& source)
    : Caption(home, "RecordBar"),
      CmdFirst(home, "CmdFirst", "|<"),
      CmdPrevious(home, "CmdPrevious", "<"),
      CmdNext(home, "CmdNext", ">"),
      CmdLast(home, "CmdLast", ">|"),
      source_(source) {
  Caption.AddAlias("Data1");
  CmdFirst.OnClicked([this] {
    if (source_.HasRow()) source_.rows().MoveFirst();
  });
  CmdPrevious.OnClicked([this] { Step(-1); });
  CmdNext.OnClicked([this] { Step(1); });
  CmdLast.OnClicked([this] {
    if (source_.HasRow()) source_.rows().MoveLast();
  });
  source_.OnReposition([this] { Show(); });
}

void RecordBar::Step(int rows) {
  if (!source_.HasRow()) return;
  if (source_.rows().IsAdding()) source_.Save();
  const std::int64_t wanted = source_.rows().AbsolutePosition() + rows;
  if (wanted < 0 || wanted >= source_.rows().RecordCount()) return;
  if (rows > 0) {
    source_.rows().MoveNext();
  } else {
    source_.rows().MovePrevious();
  }
}

void RecordBar::Show() {
  // A count that can't be had must not keep the worker from moving on.
  IgnoreFaults([this] {
    const bool stands = source_.HasRow() && !source_.rows().IsAdding();
    Caption.SetCaption(stands ? "Record: " + std::to_string(source_.rows().AbsolutePosition() + 1) + " of " +
                                    std::to_string(source_.rows().RecordCount())
                              : "");
  });
}

}  // namespace tarvane
