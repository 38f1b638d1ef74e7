#include <benchmark/benchmark.h>

#include <cstring>

#include "printing/preview.h"
#include "printing/print_db.h"
#include "printing/printing_options.h"
#include "support/silent_host.h"
#include "support/work_sheet_job.h"

// A work sheet of twelve rooms of 20 curtains, from the press of its button to the first page of its preview;
// without windows.
namespace tarvane::printing {
namespace {

constexpr int kItems = 20;

void Open(benchmark::State& state, bool drawings) {
  const ShopFolder folder;
  folder.AddSettings();
  folder.AddRow("TblLetters", {});
  folder.AddJob(JobOfCurtains(kItems));
  SilentHost host;
  Shop shop(folder.path());
  job::JobScreen job(host, shop);
  job.OpenData();
  FrmPrinting screen(host, shop, job);
  host.step = [](Screen&) {};
  job.ShowModal(screen);
  screen.CheckDrawings.Set(drawings);
  int pages = 0;
  std::size_t length = 0;
  for (auto _ : state) {
    host.step = [&](Screen& shown) {
      auto& box = dynamic_cast<FrmPrintDB&>(shown);
      length = box.RichTextBox1.document().text.size();
      host.step = [&](Screen& preview) {
        pages = dynamic_cast<frmPreview&>(preview).picChild.pages()->Count();
      };
      box.CmdPreviewPrint.Press();
    };
    screen.Command2.Press();
  }
  if (pages == 0 || length < 100000) state.SkipWithError("nothing was previewed");
  state.counters["pages"] = pages;
  state.counters["bytes"] = static_cast<double>(length);
}

void WorkSheetToPreview(benchmark::State& state) { Open(state, false); }
BENCHMARK(WorkSheetToPreview)->Unit(benchmark::kMillisecond);

void WorkSheetWithDrawingsToPreview(benchmark::State& state) { Open(state, true); }
BENCHMARK(WorkSheetWithDrawingsToPreview)->Unit(benchmark::kMillisecond);

PrintedJob TwelveRooms() {
  PrintedJob job;
  job.work_sheet = true;
  const RowValues values = JobOfCurtains(kItems);
  for (std::size_t i = 0; i < job::kRoomCount; ++i) {
    job.rooms.push_back({static_cast<int>(i) + 1, values.at(std::string(job::kRoomColumns[i].summary)), {}});
  }
  return job;
}

void BuildText(benchmark::State& state) {
  const PrintedJob job = TwelveRooms();
  for (auto _ : state) benchmark::DoNotOptimize(PrintedText(job));
}
BENCHMARK(BuildText)->Unit(benchmark::kMicrosecond);

// The yardstick: the same text copied once.
void CopyText(benchmark::State& state) {
  const std::string text = PrintedText(TwelveRooms());
  std::string copy(text.size(), ' ');
  for (auto _ : state) {
    std::memcpy(copy.data(), text.data(), text.size());
    benchmark::DoNotOptimize(copy.data());
    benchmark::ClobberMemory();
  }
}
BENCHMARK(CopyText)->Unit(benchmark::kMicrosecond);

void OneDrawing(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(DrawCurtain({"", 2540, 2030, 100, 2, ""}));
}
BENCHMARK(OneDrawing)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace tarvane::printing

BENCHMARK_MAIN();
