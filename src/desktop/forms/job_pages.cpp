#include "app/main_screen.h"
#include "desktop/folding.h"
#include "desktop/forms/form_window.h"
#include "desktop/forms/main_form.h"
#include "desktop/make.h"
#include "desktop/text.h"
#include "desktop/theme.h"

namespace tarvane::desktop {
namespace {

FieldLine DateLine(const char* caption, TextField& date, Button& pick) {
  return {caption, {{date, {.width = 12}}, pick}};
}

Piece Commands(Builder& build, app::MainScreen& screen, const std::vector<const char*>& names) {
  Pieces buttons;
  for (const char* name : names) buttons.push_back(build.Press(screen.CommandButton(name)));
  return build.Column(buttons, 1);
}

// A heading with a name in it, which may be long.
Piece Elided(Builder& build, Label& label) {
  auto* made = Make<ElidedLabel>();
  build.form().Bind(label, made, [made, &label](Aspect aspect) {
    if (aspect == Aspect::kCaption) made->setText(LinesToQt(label.caption()).trimmed());
  });
  return {made, nullptr, 1};
}

}  // namespace

Piece CustomerPage(Builder& build, app::MainScreen& screen) {
  const Look telephone{.width = 20};
  const Piece customer = build.Group(
      "Customer",
      {build.Fields({
          {"Name", {screen.Name}},
          {"Company", {screen.Company}},
          {"Address", {screen.Address}},
          {"Town", {screen.Town}},
          {"County", {screen.County}},
          {"Post Code",
           {{screen.PostCode, {.width = 12}}, Builder::Spring(), screen.CommandButton("CmdGetDetails")}},
          {},
          {"Home T", {{screen.HomeTelephone, telephone}}},
          {"Works T", {{screen.WorksTelephone, telephone}}},
          {"Mobile", {{screen.Mobile, telephone}}},
          {"Fax T", {{screen.Fax, telephone}}},
          {"Email", {screen.Email, screen.CommandButton("SendEmail")}},
          {"Web site", {screen.CommandButton("GoWebSite"), screen.WebSite}},
      })});
  const Piece job = build.Group(
      "Job", {build.Fields({
                 {"Ref No:", {{screen.RefNo, {.width = 12}}}},
                 {"Order No:", {{screen.OrderReference, {.width = 12}}}},
                 {"Sales Person", {{screen.SalesPerson, {.width = 20}}}},
                 DateLine("Created", screen.DateCreated, screen.CommandButton("Command9")),
                 DateLine("Completion Date", screen.CompletionDate, screen.CommandButton("Command7")),
                 DateLine("Fitting Date", screen.FittingDate, screen.CommandButton("CmdFittingDate")),
                 {"", {screen.Completed, screen.Lost}},
             })});
  const Piece notes = build.Group("Job notes and a summary for this Job", {build.Field(screen.JobNotes)});
  const Piece commands =
      build.Group("Go to", {
                               Commands(build, screen,
                                        {"CmdCustomersDatabase", "Command4", "CmdSuppliers", "Command10",
                                         "Command2", "Command11"}),
                               Builder::Gap(1),
                               Commands(build, screen, {"CmdPrint", "Command6", "CmdPrintStatement"}),
                               Builder::Spring(),
                           });
  return build.Scroll(Folding(build, {
                                         build.Column({customer, Builder::Spring()}).Grow(4),
                                         build.Column({job, Builder::Gap(2), notes.Grow()}).Grow(3),
                                         commands,
                                     }));
}

Piece SinglesPage(Builder& build, app::MainScreen& screen) {
  const TableLook columns = {.columns = {{"Item No", "", 7, true},
                                         {"Qty", "", 7, true},
                                         {"Description", "", 24},
                                         {"Unit Price", "", 10, true},
                                         {"Total", "", 10, true}},
                             .wide = "Description",
                             .name = "Single items",
                             .empty = "No single items yet. Add Item begins one.",
                             .insert = &screen.CmdRooms[0],
                             .remove = &screen.CmdRooms[2]};
  Pieces buttons;
  for (Button& button : screen.CmdRooms) buttons.push_back(build.Press(button));
  buttons.push_back(Builder::Spring());
  buttons.push_back(build.Fields(
      {{"Single Items Total:", {{screen.TxtSubTotal, {.width = 10, .number = true, .strong = true}}}}}));
  for (const std::size_t needs_item : {1, 2}) {
    SayWhyOff(build.form(), screen.CmdRooms[needs_item], "Select an item in the list first.");
  }
  const Piece table = build.Table(screen.SingleItemGrid, columns);
  build.form().AddSizer([widget = table.widget] { widget->setMinimumWidth(Digits(50)); });
  const Piece singles = build.Group("Single items", {build.Flow(buttons), table});
  Pieces flags;
  for (TickBox& flag : screen.CheckList) flags.push_back(build.Tick(flag));
  const Piece list = build.Group("Check list", {
                                                   build.Column(flags, 1),
                                                   Builder::Gap(1),
                                                   build.Press(screen.CommandButton("UpdateCheckList")),
                                                   Builder::Spring(),
                                               });
  return build.Scroll(Folding(build, {singles.Grow(3), list.Grow(1)}));
}

Piece HistoryPage(Builder& build, app::MainScreen& screen) {
  return build.Scroll(build.Column({
      build.Row({Elided(build, screen.HistoryHeading), build.Press(screen.CommandButton("MakePayment"))}),
      build.Field(screen.History, {.name = "Payment history"}),
  }));
}

}  // namespace tarvane::desktop
