#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QStackedLayout>

#include "app/main_screen.h"
#include "desktop/forms/main_form.h"
#include "desktop/theme.h"

namespace tarvane {
namespace {

const TableLook kItemColumns = {
    {{"Line", "", 5, true}, {"Description", "", 30}, {"Item No", "", 8}, {"Price", "", 10, true}},
    "Description"};

// Names to click on with their totals, always beside the room.
Piece RoomTotals(Builder& build, MainScreen& screen) {
  auto* grid = std::make_unique<QGridLayout>().release();
  grid->setVerticalSpacing(0);
  grid->setHorizontalSpacing(Quarters(1));
  for (std::size_t room = 0; room < screen.Label10.size(); ++room) {
    const int row = static_cast<int>(room);
    auto* name = build.Text(screen.Label10[room]).widget;
    auto* total = qobject_cast<QLabel*>(build.Text(screen.RoomSummaryTotal[room]).widget);
    total->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    build.form().AddSizer([total] { total->setMinimumWidth(Digits(9)); });
    grid->addWidget(name, row, 0);
    grid->addWidget(total, row, 1);
    // The room that is in view stands out.
    build.form().Follow([name, total, room, &screen] {
      const bool here = room > 0 && static_cast<std::size_t>(screen.SelectedRoom()) == room;
      if (name->font().bold() == here) return;
      for (QWidget* widget : {name, static_cast<QWidget*>(total)}) {
        QFont font;
        font.setBold(here);
        widget->setFont(font);
      }
    });
  }
  return build.Group("Click on name to go to Room", {{nullptr, grid}, Builder::Spring()});
}

Piece Room(Builder& build, MainScreen& screen, std::size_t room) {
  const Piece bottom = build.Row({
      build.Text("Room summary", true),
      Builder::Spring(),
      build.Press(screen.CmdClearRoom[room]),
      Builder::Gap(2),
      build.Text("Room total"),
      build.Field(screen.RoomTotal[room], {.width = 9, .number = true, .strong = true}),
  });
  return build.Column({build.Table(screen.RoomItemGrid[room], kItemColumns).Grow(3), bottom,
                       build.Field(screen.RoomSummary[room]).Grow(2)},
                      1);
}

}  // namespace

Piece RoomsPage(Builder& build, MainScreen& screen) {
  const Piece totals = RoomTotals(build, screen);
  const Piece commands = build.Row(
      {
          build.Press(screen.CommandButton("Command1", 0), true),
          build.Press(screen.CommandButton("Command1", 2)),
          build.Press(screen.CmdDeleteFromRoom),
          Builder::Spring(),
          build.Press(screen.CommandButton("Command1", 1)),
          build.Press(screen.CommandButton("Command1", 3)),
      },
      1);
  std::vector<Builder::PageBuilder> rooms;
  for (std::size_t room = 0; room < kRoomCount; ++room) {
    rooms.push_back([build, &screen, room]() mutable { return Room(build, screen, room); });
  }
  const Piece item = build.Group("Selected item", {build.Field(screen.Text1, {.line_mark = '~'})});
  const Piece pages = build.Pages(screen.SSTab1, std::move(rooms), item.Grow(1));
  return build.Scroll(build.Row(
      {
          totals,
          build.Column({commands, pages}, 2).Grow(),
      },
      4));
}

}  // namespace tarvane
