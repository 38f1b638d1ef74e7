// Bytes of RTF a second, read and written; and Qt's reader on the same text as HTML, whose rate counts the
// bytes of that text's RTF, so that the two rates compare.
#include <benchmark/benchmark.h>

#ifdef TARVANE_WITH_QT
#include <QGuiApplication>
#include <QTextDocument>
#endif

#include "letters.h"
#include "rich_text/rtf.h"

namespace {

using namespace tarvane::rich_text;

constexpr std::size_t kBytes = 4'000'000;

const Letters& TheLetters() {
  static const Letters letters = MakeLetters(kBytes);
  return letters;
}

void CountBytes(benchmark::State& state) {
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) *
                          static_cast<int64_t>(TheLetters().rtf.size()));
}

void BM_ReadRtf(benchmark::State& state) {
  for ([[maybe_unused]] auto step : state) benchmark::DoNotOptimize(ReadRtf(TheLetters().rtf));
  CountBytes(state);
}
BENCHMARK(BM_ReadRtf)->Unit(benchmark::kMillisecond);

void BM_WriteRtf(benchmark::State& state) {
  const Document document = ReadRtf(TheLetters().rtf);
  for ([[maybe_unused]] auto step : state) benchmark::DoNotOptimize(WriteRtf(document));
  CountBytes(state);
}
BENCHMARK(BM_WriteRtf)->Unit(benchmark::kMillisecond);

// Text that changes its look with every letter.
void BM_ReadManyRuns(benchmark::State& state) {
  std::string rtf = "{\\rtf1 ";
  while (rtf.size() < kBytes) rtf += "{\\b a}b";
  for ([[maybe_unused]] auto step : state) benchmark::DoNotOptimize(ReadRtf(rtf));
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * static_cast<int64_t>(rtf.size()));
}
BENCHMARK(BM_ReadManyRuns)->Unit(benchmark::kMillisecond);

#ifdef TARVANE_WITH_QT
void BM_QtReadHtml(benchmark::State& state) {
  const QString html = QString::fromStdString(TheLetters().html);
  for ([[maybe_unused]] auto step : state) {
    QTextDocument document;
    document.setUndoRedoEnabled(false);
    document.setHtml(html);
    benchmark::DoNotOptimize(document.blockCount());
  }
  CountBytes(state);
}
BENCHMARK(BM_QtReadHtml)->Unit(benchmark::kMillisecond);
#endif

}  // namespace

int main(int argc, char** argv) {
#ifdef TARVANE_WITH_QT
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
#endif
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
