#include <QPushButton>
#include <QTableView>

#include "app/main_screen.h"
#include "desktop/forms/main_form.h"

namespace tarvane {
namespace {

// What the shop looks for, in words. The other columns are there on demand.
const TableLook kFinderColumns = {{
    {"ID", "", 5, true},
    {"Ext2", "Order No", 8, true},
    {"Name", "", 23},
    {"Address", "", 20},
    {"Town", "", 16},
    {"PostCode", "Post Code", 9},
    {"Telephone", "", 13},
    {"Ext3", "Fitting Date", 10},
    {"4text", "Total", 9, true},
    {"5Text", "Bal", 9, true},
    {"Ext6", "Sales Person", 14},
    {"Mobile", "", 13},
    {"3Text", "Created", 10},
}};

// A button of the desktop's own: it does what Enter in the grid does.
Piece OpenButton(Form& form, MainScreen& screen) {
  auto* button = std::make_unique<QPushButton>("&Open Job").release();
  button->setAutoDefault(false);
  QObject::connect(button, &QPushButton::clicked, &form, [&form, &screen] {
    form.Act(screen.QuickFinderGrid, [&screen](Control&) {
      screen.QuickFinderGrid.UserOpenRow(screen.QuickFinderGrid.selected_row());
    });
  });
  form.Follow([button, &screen] { button->setEnabled(screen.QuickFinderGrid.RowCount() > 0); });
  return {button};
}

// The menu's entry as a button: most days start with it.
Piece AddButton(Form& form, MainScreen& screen) {
  auto* button = std::make_unique<QPushButton>("Add &New").release();
  button->setAutoDefault(false);
  Button& command = screen.CommandButton("munNew2");
  QObject::connect(button, &QPushButton::clicked, &form,
                   [&form, &command] { form.Act(command, [&command](Control&) { command.UserPress(); }); });
  return {button};
}

}  // namespace

Piece FinderPanel(Builder& build, MainScreen& screen) {
  const Piece search = build.Row({
      build
          .Fields({{"Find by",
                    {{screen.CboFabSearch, {.width = 20}},
                     build.Text("Search String ( * can be used)"),
                     {screen.FabSText, {.width = 22}},
                     screen.CmdSearch,
                     screen.CmdReset}}})
          .Grow(),
  });
  const Piece people = build.Row({
      build
          .Fields({{"Sales Person",
                    {{screen.CboSalesPersonSearch, {.width = 20}},
                     screen.CmdFindSalesPersonsJobs,
                     screen.CMDLOAD}}})
          .Grow(),
      Builder::Spring(),
      build.Text("Last Record Opened"),
      build.Field(screen.txtLastRecord, {.width = 8, .number = true}),
  });
  const Piece open = build.Row({
      AddButton(build.form(), screen),
      OpenButton(build.form(), screen),
      Builder::Gap(1),
      build.Text(screen.Label12, true),
      Builder::Spring(),
  });
  const Piece page =
      build.Column({open, build.Table(screen.QuickFinderGrid, kFinderColumns), build.Rule(), search, people});
  build.form().Bind(screen.Frame2, page.layout, nullptr);
  return build.Margin(page);
}

}  // namespace tarvane
