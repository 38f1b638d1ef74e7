#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QStackedLayout>

#include "app/main_screen.h"
#include "desktop/folding.h"
#include "desktop/forms/main_form.h"
#include "desktop/make.h"
#include "desktop/theme.h"

namespace tarvane::desktop {
namespace {

TableLook ItemColumns(app::MainScreen& screen) {
  return {
      .columns = {{"Line", "", 4, true}, {"Description", "", 20}, {"Item No", "", 7}, {"Price", "", 9, true}},
      .wide = "Description",
      .name = "Items of the room",
      .insert = &screen.CommandButton("Command1", 0),
      .remove = &screen.CmdDeleteFromRoom};
}

// Names to click on with their totals, always beside the room.
Piece RoomTotals(Builder& build, app::MainScreen& screen) {
  auto* grid = Make<QGridLayout>();
  grid->setVerticalSpacing(0);
  grid->setHorizontalSpacing(Quarters(1));
  for (std::size_t room = 0; room < screen.Label10.size(); ++room) {
    const int row = static_cast<int>(room);
    auto* name = build.Text(screen.Label10[room]).widget;
    auto* total = qobject_cast<QLabel*>(build.Text(screen.RoomSummaryTotal[room]).widget);
    total->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    build.form().AddSizer([total] { total->setMinimumWidth(Digits(10)); });
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
  std::vector<Control*> names;
  for (Label& name : screen.Label10) names.push_back(&name);
  build.OneTabStop(names, [&screen] { return screen.SelectedRoom(); });
  return build.Group("Click on name to go to Room", {{nullptr, grid}, Builder::Spring()});
}

Piece Room(Builder& build, app::MainScreen& screen, std::size_t room) {
  const Piece total = build.Fields(
      {{"Room total", {{screen.RoomTotal[room], {.width = 10, .number = true, .strong = true}}}}});
  const Piece bottom = build.Flow(
      {build.Text("Room summary", true), Builder::Spring(), build.Press(screen.CmdClearRoom[room]), total});
  const Piece table = build.Table(screen.RoomItemGrid[room], ItemColumns(screen));
  build.form().AddSizer([widget = table.widget] { widget->setMinimumWidth(Digits(34)); });
  return build.Column(
      {table.Grow(3), bottom, build.Field(screen.RoomSummary[room], {.name = "Room summary"}).Grow(2)}, 1);
}

}  // namespace

Piece RoomsPage(Builder& build, app::MainScreen& screen) {
  const Piece totals = RoomTotals(build, screen);
  const Piece commands = build.Flow(
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
  for (std::size_t room = 0; room < job::kRoomCount; ++room) {
    rooms.push_back([build, &screen, room]() mutable { return Room(build, screen, room); });
  }
  const Piece item =
      build.Group("Selected item", {build.Field(screen.Text1, {.line_mark = '~', .name = "Selected item"})});
  const Piece pages = build.Pages(screen.SSTab1, std::move(rooms));
  const Piece room = Folding(build, {build.Column({commands, pages}, 2).Grow(3), item.Grow(1)}, 4);
  return build.Scroll(Folding(build, {totals, room.Grow()}, 4));
}

}  // namespace tarvane::desktop
