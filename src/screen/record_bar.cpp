#include "screen/record_bar.h"

#include <string>

#include "screen/screen.h"

namespace tarvane {

RecordBar::RecordBar(Home home, DataSource& source, Look look)
    : Caption(home, std::string(look.name)),
      CmdFirst(home, "CmdFirst", "|<"),
      CmdPrevious(home, "CmdPrevious", "<"),
      CmdNext(home, "CmdNext", ">"),
      CmdLast(home, "CmdLast", ">|"),
      source_(source),
      look_(look) {
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
  if (source_.rows().IsAdding()) source_.Leave();
  if (!source_.HasRow()) return;
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
    Caption.SetCaption(stands ? std::string(look_.before) +
                                    std::to_string(source_.rows().AbsolutePosition() + 1) +
                                    std::string(look_.between) + std::to_string(source_.rows().RecordCount())
                              : "");
  });
}

}  // namespace tarvane
