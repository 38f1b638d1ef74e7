#include <QLayout>
#include <QPushButton>
#include <QTableView>

#include "app/main_screen.h"
#include "desktop/forms/form_window.h"
#include "desktop/forms/main_form.h"
#include "desktop/make.h"

namespace tarvane::desktop {
namespace {

// What the shop looks for, in words. The other columns are there on demand.
const TableLook kFinderColumns = {.columns = {{"ID", "", 5, true},
                                              {"Ext2", "Order No", 8, true},
                                              {"Name", "", 23},
                                              {"4text", "Total", 10, true},
                                              {"5Text", "Bal", 10, true},
                                              {"Ext3", "Fitting Date", 10},
                                              {"Address", "", 20},
                                              {"Town", "", 16},
                                              {"PostCode", "Post Code", 9},
                                              {"Telephone", "", 13},
                                              {"Ext6", "Sales Person", 14},
                                              {"Mobile", "", 13},
                                              {"3Text", "Created", 10}},
                                  .name = "Jobs"};

// A button of the desktop's own: it does what Enter in the grid does.
Piece OpenButton(Form& form, app::MainScreen& screen) {
  auto* button = Make<QPushButton>("&Open Job");
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
Piece AddButton(Form& form, app::MainScreen& screen) {
  auto* button = Make<QPushButton>("Add &New");
  button->setAutoDefault(false);
  Button& command = screen.CommandButton("munNew2");
  QObject::connect(button, &QPushButton::clicked, &form,
                   [&form, &command] { form.Act(command, [&command](Control&) { command.UserPress(); }); });
  return {button};
}

Piece People(Builder& build, app::MainScreen& screen) {
  const Piece person = build.Fields({{"Sales Person", {{screen.CboSalesPersonSearch, {.width = 20}}}}});
  const Piece last =
      build.Fields({{"Last Record Opened", {{screen.txtLastRecord, {.width = 8, .number = true}}}}});
  return build.Flow({person, build.Press(screen.CmdFindSalesPersonsJobs), build.Press(screen.CMDLOAD),
                     Builder::Spring(), last});
}

}  // namespace

Piece FinderPanel(Builder& build, app::MainScreen& screen) {
  Form& form = build.form();
  const Piece open = build.Flow(
      {AddButton(form, screen), OpenButton(form, screen), Builder::Gap(1), build.Text(screen.Label12, true)});
  const Piece table = build.Table(screen.QuickFinderGrid, kFinderColumns);
  const Piece page =
      build.Column({open, table, build.Rule(), build.Find(screen.JobFinder), People(build, screen)});
  build.LeadDown(screen.JobFinder.FabSText, table);
  SayWhyOff(form, screen.JobFinder.CmdSearch, "Choose what to search by first.");
  form.Bind(screen.Frame2, page.layout, nullptr);
  return build.Margin(page);
}

}  // namespace tarvane::desktop
