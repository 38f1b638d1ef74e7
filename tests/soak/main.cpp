// soak KIND [--seed N] [--runs N] [--seconds N] [--programs FOLDER]
// Makes trials with the seeds N, N+1 and so on, tells each that goes wrong, and ends with status 1 where one
// did.
#include <fmt/format.h>

#include <chrono>
#include <cstdio>
#include <exception>
#include <map>

#include "soak/trials.h"

namespace {

using namespace tarvane::soak;
using Clock = std::chrono::steady_clock;

const std::map<std::string, Trial (*)(const Bench&)> kKinds = {{"failing_calls", FailingCalls},
                                                               {"kills", Kills},
                                                               {"damaged_files", DamagedFiles},
                                                               {"surroundings", Surroundings}};

int Soak(const std::string& kind, std::map<std::string, std::string>& options) {
  const Bench bench(options["--programs"]);
  const Trial trial = kKinds.at(kind)(bench);
  const auto end = Clock::now() + std::chrono::seconds(std::stol(options["--seconds"]));
  const std::uint64_t first = std::stoull(options["--seed"]);
  const std::uint64_t most = std::stoull(options["--runs"]);
  std::string failed;
  std::uint64_t runs = 0;
  std::uint64_t failures = 0;
  for (; runs < most && Clock::now() < end; ++runs) {
    const Outcome outcome = trial(first + runs);
    if (outcome.wrong.empty()) continue;
    ++failures;
    failed += fmt::format(" {}", first + runs);
    fmt::print("{} --seed {} --runs 1: {}\n", kind, first + runs, outcome.what);
    for (const std::string& wrong : outcome.wrong) fmt::print("    {}\n", wrong);
    std::fflush(stdout);
  }
  fmt::print("{}: {} runs, {} failed{}{}\n", kind, runs, failures, failed.empty() ? "" : ": seeds", failed);
  return failures == 0 ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
  std::map<std::string, std::string> options = {
      {"--seed", "1"},
      {"--runs", "1000000000"},
      {"--seconds", "1000000"},
      {"--programs", fs::read_symlink("/proc/self/exe").parent_path()},
  };
  try {
    for (int i = 2; i + 1 < argc; i += 2) options.at(argv[i]) = argv[i + 1];
    return Soak(argc > 1 ? argv[1] : "", options);
  } catch (const std::exception& error) {
    fmt::print(stderr, "soak KIND [--seed N] [--runs N] [--seconds N] [--programs FOLDER]: {}\n",
               error.what());
    return 2;
  }
}
