// Pages a second, peak memory, the width of a line, and the embedding of a large JPEG, in one run with the
// peers.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>

#include "pdf/tqr_pdf.h"
#include "peers/peer.h"

namespace {

namespace fs = std::filesystem;

std::string Scratch(std::string_view name) {
  return (fs::temp_directory_path() / ("pdf_bench_" + std::to_string(getpid()) + "_" + std::string(name)))
      .string();
}

void BM_Pages(benchmark::State& state, const Peer& peer) {
  static constexpr int kPages = 100;
  const std::string path = Scratch("pages.pdf");
  for ([[maybe_unused]] auto step : state) peer.write_pages(path, kPages);
  state.counters["pages"] =
      benchmark::Counter(static_cast<double>(state.iterations()) * kPages, benchmark::Counter::kIsRate);
  state.counters["file_kB"] = static_cast<double>(fs::file_size(path)) / 1024;
  fs::remove(path);
}

// The peak of a process of its own that writes one document; 0 where it can't be run.
double PeakKilobytes(const Peer& peer, int pages) {
  const std::string path = Scratch("memory.pdf");
  const auto program =
      fs::read_symlink("/proc/self/exe").parent_path() / ("pdf_once_" + std::string(peer.name));
  const std::string command = program.string() + " " + path + " " + std::to_string(pages);
  FILE* const output = popen(command.c_str(), "r");
  int peak = 0;
  if (output == nullptr || std::fscanf(output, "%d", &peak) != 1) peak = 0;
  if (output != nullptr) pclose(output);
  fs::remove(path);
  return peak;
}

void BM_PeakMemory(benchmark::State& state, const Peer& peer) {
  double peak = 0;
  for ([[maybe_unused]] auto step : state) peak = PeakKilobytes(peer, static_cast<int>(state.range(0)));
  if (peak == 0) state.SkipWithError("the peer's program didn't run");
  state.counters["peak_kB"] = peak;
}

void BM_LineWidth(benchmark::State& state, const Peer& peer) {
  const auto measure = peer.measurer();
  const std::string line = LineText(17, 23);
  for ([[maybe_unused]] auto step : state) benchmark::DoNotOptimize(measure(line));
}

constexpr size_t kJpegSize = 20 * 1024 * 1024;

// The head of a grey JPEG, any bytes, and its end marker: a reader of the file's size, not a decoder.
std::string LargeJpeg() {
  std::string bytes("\xFF\xD8\xFF\xC0\x00\x0B\x08\x04\x00\x04\x00\x01\x01\x11\x00\xFF\xDA", 17);
  bytes.resize(kJpegSize - 2, 'x');
  return bytes + "\xFF\xD9";
}

void BM_EmbedJpeg(benchmark::State& state) {
  const std::string image = Scratch("large.jpg");
  const std::string path = Scratch("image.pdf");
  std::ofstream(image, std::ios::binary) << LargeJpeg();
  for ([[maybe_unused]] auto step : state) {
    tarvane::pdf::tqrPDF document;
    document.PDFFileName(path);
    document.PDFBeginDoc();
    double width = 10;
    double height = 0;
    document.PDFImage(image, 2, 2, width, height);
    document.PDFEndDoc();
  }
  if (fs::file_size(path) < kJpegSize) state.SkipWithError("the image isn't in the file");
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * kJpegSize));
  fs::remove(image);
  fs::remove(path);
}
BENCHMARK(BM_EmbedJpeg)->UseRealTime();

void BM_CopyFile(benchmark::State& state) {
  const std::string from = Scratch("from.jpg");
  const std::string to = Scratch("to.jpg");
  std::ofstream(from, std::ios::binary) << LargeJpeg();
  for ([[maybe_unused]] auto step : state) fs::copy_file(from, to, fs::copy_options::overwrite_existing);
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * kJpegSize));
  fs::remove(from);
  fs::remove(to);
}
BENCHMARK(BM_CopyFile)->UseRealTime();

}  // namespace

int main(int argc, char** argv) {
  for (const Peer& peer : Peers()) {
    const std::string name(peer.name);
    benchmark::RegisterBenchmark(("BM_Pages/" + name).c_str(), BM_Pages, peer)->UseRealTime();
    benchmark::RegisterBenchmark(("BM_PeakMemory/" + name).c_str(), BM_PeakMemory, peer)
        ->Arg(100)
        ->Arg(2000)
        ->Iterations(1);
    if (peer.measurer) benchmark::RegisterBenchmark(("BM_LineWidth/" + name).c_str(), BM_LineWidth, peer);
  }
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
