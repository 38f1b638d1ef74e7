#include <benchmark/benchmark.h>

#include <cstring>

#include "job/job_screen.h"
#include "support/shop_folder.h"
#include "support/silent_host.h"

// A room of many items of real length: what opening its tab costs, and its parts.
namespace tarvane::job {
namespace {

// About 1.5 KB a line, as the curtain wizard writes them: a state of 65 fields and the lines of an estimate.
std::string ItemLine(int number) {
  std::string line = std::to_string(100 + number % 900) + "." + std::to_string(10 + number % 90) + "|";
  line += "Pencil pleat - Room 1 - Bay window Track Width = 254Cms (100ins) X Drop = 228.6Cms (90ins)|";
  for (int field = 0; field < 65; ++field) line += "value " + std::to_string(number + field) + "~";
  line += "|CurtainWizard|" + std::to_string(1000 + number) + "|";
  for (int token = 0; token < 12; ++token)
    line += "Fabric and its description, metres and price, line " + std::to_string(token) + "~";
  return line + "|\r\n";
}

std::string RoomText(std::int64_t items) {
  std::string text;
  for (int item = 0; item < items; ++item) text += ItemLine(item);
  return text;
}

void LoadRoom(benchmark::State& state) {
  const ShopFolder folder;
  const std::string text = RoomText(state.range(0));
  folder.AddSettings();
  folder.AddJob({{"1T(0)", text}});
  SilentHost host;
  Shop shop(folder.path());
  JobScreen job(host, shop);
  job.OpenData();
  for (auto _ : state) job.LoadRoom();
  state.counters["bytes per line"] = static_cast<double>(text.size()) / static_cast<double>(state.range(0));
}
BENCHMARK(LoadRoom)->Arg(10)->Arg(1000)->Unit(benchmark::kMicrosecond);

// The yardstick: the same text copied once.
void CopyRoomText(benchmark::State& state) {
  const std::string text = RoomText(state.range(0));
  std::string copy(text.size(), ' ');
  for (auto _ : state) {
    std::memcpy(copy.data(), text.data(), text.size());
    benchmark::DoNotOptimize(copy.data());
    benchmark::ClobberMemory();
  }
}
BENCHMARK(CopyRoomText)->Arg(1000)->Unit(benchmark::kMicrosecond);

void ReadLines(benchmark::State& state) {
  const std::string text = RoomText(state.range(0));
  for (auto _ : state) benchmark::DoNotOptimize(ItemLines(text, kRoomItemLayout).size());
}
BENCHMARK(ReadLines)->Arg(1000)->Unit(benchmark::kMicrosecond);

void RewriteAndCompile(benchmark::State& state) {
  const auto rows = ItemLines(RoomText(state.range(0)), kRoomItemLayout).Rows();
  for (auto _ : state) {
    benchmark::DoNotOptimize(WriteItemLines(rows, kRoomItemLayout));
    benchmark::DoNotOptimize(CompileRoomSummary(rows));
  }
}
BENCHMARK(RewriteAndCompile)->Arg(1000)->Unit(benchmark::kMicrosecond);

void Totals(benchmark::State& state) {
  const ShopFolder folder;
  folder.AddSettings();
  folder.AddJob({{"1T(0)", RoomText(3)}});
  SilentHost host;
  Shop shop(folder.path());
  JobScreen job(host, shop);
  job.OpenData();
  for (auto _ : state) job.cal();
}
BENCHMARK(Totals)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace tarvane::job

BENCHMARK_MAIN();
