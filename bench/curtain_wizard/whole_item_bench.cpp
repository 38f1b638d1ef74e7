#include <benchmark/benchmark.h>

#include <array>

#include "curtain_wizard/wizard.h"
#include "job/job_screen.h"
#include "support/silent_shop.h"

// A whole curtain item as a worker makes it: typed measurements, all seven steps, prices, trims, Get Info,
// and its line in a room.
namespace tarvane::curtain_wizard {
namespace {

struct Item {
  std::string_view track, length, repeat, price, labour;
};

// Items differ, so that every field changes.
constexpr std::array<Item, 3> kItems = {{
    {"100", "80", "10", "12.5", "15"},
    {"94.25", "72.5", "25.2", "18.95", "17.5"},
    {"142", "90", "0", "7", "12"},
}};

void TypeItem(MainCWizard& w, const Item& item) {
  w.TrackWidthIns.UserType(item.track);
  w.FabricWidthIns.UserType("54");
  w.FinishedLengthIns.UserType(item.length);
  w.PatternRepeatIns.UserType(item.repeat);
  w.HemAllowanceIns.UserType("8");
  w.CmdCalculate.UserPress();
  w.CmdNext.UserPress();
  w.FabricName.UserType("Blue linen");
  w.FabricPrice.UserType(item.price);
  w.CmdNext.UserPress();
  w.TapePrice.UserType("0.75");
  w.TxtTieBacksUnitPrice.UserType("7.25");
  w.CmdNext.UserPress();
  w.LiningPrice.UserType("3.00");
  w.InterliningPrice.UserType("4.50");
  w.CmdNext.UserPress();
  w.TxtBorderCutSize.UserType("10");
  w.TrimPrice.UserType("6");
  w.CalculateTrims.UserPress();
  w.CmdNext.UserPress();
  w.LabourPrice.UserType(item.labour);
  w.ExtraLabour.UserType("2.50");
  w.CmdNext.UserPress();
  w.TxtVatRate.UserType("20");
  w.CmdGetInfo.UserPress();
  w.CompileTxtInfo();
}

void Choose(MainCWizard& w) {
  w.InputInInches.UserSet(true);
  w.TieBacksNeeded.UserSet(true);
  for (TickBox* box : {&w.LiningByWidths, &w.LiningNeeded, &w.InterliningNeeded, &w.AddTrims, &w.TrimByWidths,
                       &w.PlaceTop, &w.PlaceTwoSides, &w.AutoRoundup}) {
    box->UserSet(true);
  }
}

void ClearRoom(job::JobScreen& job) {
  job.RoomItemGrid[0].Clear();
  job.RoomItems[0].SetText("");
  job.RoomSummary[0].SetText("");
}

// One open wizard, taken back to its first step for each item. `save`: into the room and the job's row.
void WholeItems(benchmark::State& state, bool save) {
  SilentShop shop;
  MainCWizard wizard(shop.host, shop.shop, shop.job);
  wizard.RoomIndex.SetText("0");
  shop.host.step = [&](Screen&) {
    Choose(wizard);
    std::size_t next = 0;
    // The item's commit is the store's figure: here nothing goes to the disk.
    Database::Transaction transaction(shop.shop.database());
    for (auto _ : state) {
      while (wizard.step() > 0) wizard.CmdBack.UserPress();
      wizard.ItemTextPlain.SetText("");
      wizard.ItemTextRoom.SetText("");
      ClearRoom(shop.job);
      TypeItem(wizard, kItems[next++ % kItems.size()]);
      if (!save) continue;
      wizard.CmdFinishTwo.UserPress();
      if (shop.job.RoomItemGrid[0].RowCount() != 1) state.SkipWithError("no item");
    }
  };
  shop.job.ShowModal(wizard);
  state.SetItemsProcessed(state.iterations());
}
void WholeItem(benchmark::State& state) { WholeItems(state, false); }
void WholeItemSaved(benchmark::State& state) { WholeItems(state, true); }
BENCHMARK(WholeItem)->Unit(benchmark::kMicrosecond);
BENCHMARK(WholeItemSaved)->Unit(benchmark::kMicrosecond);

// The same with a wizard of its own for each item, its lists and options read from their files.
void WholeItemFromOpeningTheWizard(benchmark::State& state) {
  SilentShop shop;
  std::size_t next = 0;
  Database::Transaction transaction(shop.shop.database());
  for (auto _ : state) {
    ClearRoom(shop.job);
    MainCWizard wizard(shop.host, shop.shop, shop.job);
    wizard.RoomIndex.SetText("0");
    shop.host.step = [&](Screen&) {
      Choose(wizard);
      TypeItem(wizard, kItems[next++ % kItems.size()]);
      wizard.CmdFinishTwo.UserPress();
    };
    shop.job.ShowModal(wizard);
    if (shop.job.RoomItemGrid[0].RowCount() != 1) state.SkipWithError("no item");
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(WholeItemFromOpeningTheWizard)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace tarvane::curtain_wizard

BENCHMARK_MAIN();
