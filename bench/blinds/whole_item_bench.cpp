#include <benchmark/benchmark.h>

#include <array>

#include "blinds/item_wizard.h"
#include "job/job_screen.h"
#include "support/silent_shop.h"

// An item of the item wizard as a worker makes it: the wizard opened, lines and elements typed, saved as a
// line of a room.
namespace tarvane::blinds {
namespace {

struct Element {
  std::string_view text, quantity, price;
};

// Items differ, so that every field changes.
struct Item {
  std::string_view description, size;
  std::array<Element, 3> elements;
};
constexpr std::array<Item, 3> kItems = {{
    {"Roller blind",
     "120 x 160 cm",
     {{{"Blind", "1", "45.5"}, {"Cord", "2", "1.95"}, {"Fitting", "1", "12"}}}},
    {"Roman blind",
     "94 x 110 cm",
     {{{"Making", "2", "61.25"}, {"Lining", "3", "4.5"}, {"Track", "1", "18"}}}},
    {"Cushions", "45 x 45 cm", {{{"Cover", "4", "14.99"}, {"Pad", "4", "6"}, {"Piping", "8", "0.75"}}}},
}};

void TypeItem(WizardNewBlinds& w, const Item& item) {
  w.HPtxtFields[2].UserType(item.description);
  w.HPtxtFields[4].UserType(item.size);
  w.SSTab1.UserSelect(1);
  for (std::size_t i = 0; i < item.elements.size(); ++i) {
    w.Elements.txtItems[i].UserType(item.elements[i].text);
    w.Elements.TxtItemQty[i].UserType(item.elements[i].quantity);
    w.Elements.TxtSubTotalForItem[i].UserType(item.elements[i].price);
  }
}

void ClearRoom(job::JobScreen& job) {
  job.RoomItemGrid[0].Clear();
  job.RoomItems[0].SetText("");
}

void Report(benchmark::State& state, const SilentShop& shop) {
  if (shop.job.RoomItemGrid[0].RowCount() != 1) state.SkipWithError("no item");
}

// With a number that the worker gives, so that none is taken.
void ItemFromTypedLinesToItsRow(benchmark::State& state) {
  SilentShop shop;
  std::size_t next = 0;
  // The item's commit is the store's figure: here nothing goes to the disk.
  Database::Transaction transaction(shop.shop.database());
  for (auto _ : state) {
    ClearRoom(shop.job);
    WizardNewBlinds wizard(shop.host, shop.shop, shop.job);
    wizard.TargetRoomIndex.SetText("0");
    wizard.HPtxtFields[WizardNewBlinds::kItemNo].SetText("1001");
    shop.host.step = [&](Screen&) {
      TypeItem(wizard, kItems[next++ % kItems.size()]);
      wizard.CmdFinishTwo.UserPress();
    };
    shop.job.ShowModal(wizard);
    Report(state, shop);
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(ItemFromTypedLinesToItsRow)->Unit(benchmark::kMicrosecond);

// The same with its number, raised in the settings.
void ItemWithItsNumber(benchmark::State& state) {
  SilentShop shop;
  std::size_t next = 0;
  Database::Transaction transaction(shop.shop.database());
  for (auto _ : state) {
    ClearRoom(shop.job);
    WizardNewBlinds wizard(shop.host, shop.shop, shop.job);
    wizard.TargetRoomIndex.SetText("0");
    shop.host.step = [&](Screen&) {
      TypeItem(wizard, kItems[next++ % kItems.size()]);
      wizard.CmdFinishTwo.UserPress();
    };
    shop.job.ShowModal(wizard);
    Report(state, shop);
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(ItemWithItsNumber)->Unit(benchmark::kMicrosecond);

// The share of an empty wizard in that: opened and closed.
void OpeningTheWizard(benchmark::State& state) {
  SilentShop shop;
  for (auto _ : state) {
    WizardNewBlinds wizard(shop.host, shop.shop, shop.job);
    wizard.HPtxtFields[WizardNewBlinds::kItemNo].SetText("1001");
    shop.job.ShowModal(wizard);
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(OpeningTheWizard)->Unit(benchmark::kMicrosecond);

// And that of the job's row: changed and committed, in a transaction as above.
void RowOfTheJob(benchmark::State& state) {
  SilentShop shop;
  Database::Transaction transaction(shop.shop.database());
  bool odd = false;
  for (auto _ : state) {
    odd = !odd;
    shop.job.RoomItems[0].SetText(odd ? "1.00|a|b|AddItem|1|c|\r\n" : "2.00|a|b|AddItem|1|c|\r\n");
    shop.job.LoadRoom();
    shop.job.cal();
    shop.job.Data1.Save();
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(RowOfTheJob)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace tarvane::blinds

BENCHMARK_MAIN();
