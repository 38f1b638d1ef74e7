#include "setup/sample_extras.h"

#include <fmt/format.h>

#include <string>
#include <string_view>

#include "app/main_screen.h"
#include "blinds/item_wizard.h"
#include "blinds/templates.h"
#include "catalogues/accessories.h"
#include "catalogues/products.h"
#include "curtain_wizard/single_item.h"
#include "setup/quiet_host.h"
#include "setup/sample_tables.h"
#include "setup/sample_typing.h"
#include "text/fault.h"
#include "text_number/text_number.h"

namespace tarvane::setup {

namespace {

using Kind = SampleExtra::Kind;

constexpr SampleExtra kExtras[] = {
    {4,
     2,
     Kind::kTemplate,
     "Roller blind, blackout",
     3,
     {"Width (cm): 108", "Drop (cm): 142", "Fabric and colour: blackout, stone"}},
    {6, 0, Kind::kAccessory, "Hold back, brass, lily", 2},
    {8,
     2,
     Kind::kTemplate,
     "Roller blind, wipe clean",
     1,
     {"Width (cm): 74", "Drop (cm): 110", "Fabric and colour: sea spray (bathroom)"}},
    {12, 0, Kind::kProduct, "Cushion pad, 45 cm, washable", 6},
    {12,
     2,
     Kind::kTemplate,
     "Venetian blind, 25 mm",
     2,
     {"Width (cm): 116", "Drop (cm): 130", "Slat colour: white (sick room)"}},
    {15, 1, Kind::kTemplate, "Cushion, scatter, piped", 4, {"Fabric: as the border", "Piping: self"}},
    {20, 2, Kind::kTemplate, "Roman blind, customer's own fabric", 1, {"Width (cm): 96", "Drop (cm): 125"}},
    {24, 2, Kind::kAccessoryInRoom, "Corded track, 2.5 m", 1},
    {31, 2, Kind::kAccessoryInRoom, "Pole 50 mm, 3.0 m, oak", 2},
    {36, 0, Kind::kAccessory, "Tie back hook, brass, ornate", 2},
    {36,
     3,
     Kind::kTemplate,
     "Cushion, box, window seat",
     1,
     {"Length (cm): 148", "Depth (cm): 46", "Fabric: Plain linen, oat"}},
    {41,
     5,
     Kind::kTemplate,
     "Venetian blind, 50 mm wood",
     2,
     {"Width (cm): 112", "Drop (cm): 136", "Wood and finish: ash, limed"}},
    {45, 0, Kind::kAccessory, "Hold back, wrought iron", 4},
    {48,
     2,
     Kind::kTemplate,
     "Vertical blind, 89 mm",
     1,
     {"Width (cm): 170", "Drop (cm): 176", "Fabric and colour: oatmeal"}},
    {48, 3, Kind::kAccessoryInRoom, "Electric track, 3.0 m", 1},
    {56, 1, Kind::kTemplate, "Cushion, scatter, piped", 2, {"Fabric: as the curtains", "Piping: contrast"}},
};

template <typename Worked>
void Await(QuietHost& host, void (*work)(QuietHost&, Worked&, const SampleExtra&), const SampleExtra& extra) {
  host.Await(std::string(Worked::kName),
             [&host, work, &extra](Screen& screen) { work(host, dynamic_cast<Worked&>(screen), extra); });
}

// Searches for the row of that name, which then is the current one. Most catalogues tell what they found.
void Find(QuietHost& host, catalogues::Catalogue& catalogue, std::string_view name) {
  host.PassOver(" matches found.");
  Pick(catalogue.Search.CboFabSearch, catalogue.look().named_by);
  // A search takes no quote.
  Type(catalogue.Search.FabSText, name.substr(0, name.find('\'')));
  if (catalogue.RowName() != name) throw Fault(fmt::format("{} has no \"{}\".", catalogue.title(), name));
}

void TakeTemplate(QuietHost& host, blinds::FrmBlindsTemplates& templates, const SampleExtra& extra) {
  Find(host, templates, extra.name);
  templates.CmdUseItems.UserPress();
}

// Types the line in place of the one that it goes on with: "Width (cm): 92" over "Width (cm):".
void FillIn(blinds::WizardNewBlinds& wizard, std::string_view line) {
  for (TextField& field : wizard.HPtxtFields) {
    if (field.empty() || !line.starts_with(field.text())) continue;
    field.UserType(line);
    return;
  }
  throw Fault(fmt::format("The template has no line for \"{}\".", line));
}

void EnterItem(QuietHost& host, blinds::WizardNewBlinds& wizard, const SampleExtra& extra) {
  Await(host, TakeTemplate, extra);
  wizard.Command4.UserPress();
  for (const std::string_view line : extra.lines) {
    if (!line.empty()) FillIn(wizard, line);
  }
  // A template is for one.
  for (TextField& quantity : wizard.Elements.TxtItemQty) {
    if (quantity.Number() > 0) quantity.UserType(NumberText(quantity.Number() * extra.quantity));
  }
  wizard.CmdFinishTwo.UserPress();
}

void TakeProduct(QuietHost& host, catalogues::FrmFabricDatabase2& products, const SampleExtra& extra) {
  Find(host, products, extra.name);
  products.CmdSingleItems.UserPress();
}

void TakeAccessory(QuietHost& host, catalogues::FrmItemsDatabase& accessories, const SampleExtra& extra) {
  Find(host, accessories, extra.name);
  accessories.CmdUseItems.UserPress();
}

void EnterPicked(QuietHost& host, curtain_wizard::FrmSimgleItem& item, const SampleExtra& extra) {
  if (extra.kind == Kind::kProduct) {
    Await(host, TakeProduct, extra);
    item.CmdProducts.UserPress();
  } else {
    Await(host, TakeAccessory, extra);
    item.CmdAccessories.UserPress();
  }
  item.SingleQty.UserType(std::to_string(extra.quantity));
  item.CmdProcess.UserPress();
}

void PutIntoRoom(QuietHost& host, catalogues::FrmItemsDatabase& accessories, const SampleExtra& extra) {
  Find(host, accessories, extra.name);
  host.Reply(std::to_string(extra.quantity));
  host.Reply(std::to_string(extra.room));
  host.PassOver(fmt::format("Item Added in Tab Order {}", extra.room));
  accessories.CmdUse.UserPress();
  accessories.CmdCancel.UserPress();
}

void EnterExtra(QuietHost& host, app::MainScreen& main, const SampleExtra& extra) {
  switch (extra.kind) {
    case Kind::kTemplate:
      Await(host, EnterItem, extra);
      main.SSTab1.UserSelect(extra.room - 1);
      main.CommandButton("Command1", 1).UserPress();
      return;
    case Kind::kProduct:
    case Kind::kAccessory:
      Await(host, EnterPicked, extra);
      main.CmdRooms[0].UserPress();
      return;
    case Kind::kAccessoryInRoom:
      Await(host, PutIntoRoom, extra);
      // It is lost again where its room is the open one.
      main.SSTab1.UserSelect(0);
      main.CommandButton("MunAccressDatabase").UserPress();
      return;
  }
}

}  // namespace

std::span<const SampleExtra> SampleExtras() { return kExtras; }

void EnterSingle(QuietHost& host, app::MainScreen& main, const SampleSingle& single) {
  host.Await(std::string(curtain_wizard::FrmSimgleItem::kName), [&single](Screen& screen) {
    auto& item = dynamic_cast<curtain_wizard::FrmSimgleItem&>(screen);
    item.SingleQty.UserType(std::to_string(single.quantity));
    item.SingleDescription.UserType(single.description);
    item.SinglePrice.UserType(NumberText(single.pence / 100.0));
    item.CmdProcess.UserPress();
  });
  main.CmdRooms[0].UserPress();
}

void EnterExtras(QuietHost& host, app::MainScreen& main, int job) {
  for (const SampleExtra& extra : kExtras) {
    if (extra.job == job) EnterExtra(host, main, extra);
  }
}

}  // namespace tarvane::setup
