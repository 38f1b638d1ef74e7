// The nth call of a kind fails, once or from there on, or the process is killed halfway through it or at any
// moment: what was told as saved is there, and the next day works.
#include <fmt/format.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <memory>
#include <random>

#include "soak/trials.h"

namespace tarvane::soak {
namespace {

struct Failure {
  CallKind kind;
  int error;
};
constexpr Failure kFailures[] = {
    {CallKind::kOpen, EIO},      {CallKind::kOpen, EACCES},  {CallKind::kOpen, EMFILE},
    {CallKind::kRead, EIO},      {CallKind::kWrite, EIO},    {CallKind::kWrite, ENOSPC},
    {CallKind::kSync, EIO},      {CallKind::kTruncate, EIO}, {CallKind::kRename, EIO},
    {CallKind::kRename, EACCES}, {CallKind::kUnlink, EIO},
};
// Where a process is killed.
constexpr CallKind kChanges[] = {CallKind::kWrite, CallKind::kWrite, CallKind::kSync, CallKind::kTruncate,
                                 CallKind::kRename};

// Prime, so that seeds in a row go through all ways to fail, far apart.
constexpr std::uint64_t kStride = 7919;

class CallTrials {
 public:
  explicit CallTrials(const Bench& bench) : bench_(bench), day_(bench) {}

  Outcome Fail(std::uint64_t seed) const {
    std::uint64_t ways = 0;
    for (const Failure& failure : kFailures) ways += 2 * Calls(failure.kind);
    std::uint64_t way = seed * kStride % ways;
    const Failure* failure = kFailures;
    for (; way >= 2 * Calls(failure->kind); ++failure) way -= 2 * Calls(failure->kind);
    const auto nth = static_cast<long>(way / 2) + 1;
    const bool lasting = way % 2 == 1;
    // The program often ends soon after the failure, before a later save heals it.
    const std::size_t end = std::min(day_.MarkOf(failure->kind, nth) + seed % 3, day_.marks());
    const fs::path shop = bench_.FreshShop();
    Process process = day_.Failing(shop, end, failure->kind, nth, failure->error);
    process.environment["FAILING_CALLS_LASTING"] = lasting ? "1" : "0";
    const std::string what =
        fmt::format("{} {} fails{}: {}; the program ends at mark {}", NameOf(failure->kind), nth,
                    lasting ? ", and all later ones" : "", std::strerror(failure->error), end);
    return Judge(what, shop, end, bench_.Run(process), false);
  }

  Outcome Kill(std::uint64_t seed) const {
    std::mt19937_64 dice(seed);
    const fs::path shop = bench_.FreshShop();
    // Every other one halfway through a call that changes a file, which a random moment seldom meets.
    if (dice() % 2 == 0) {
      const CallKind kind = kChanges[dice() % std::size(kChanges)];
      const auto nth = static_cast<long>(dice() % std::max<std::uint64_t>(1, Calls(kind))) + 1;
      const Ended day = bench_.Run(day_.Failing(shop, day_.marks(), kind, nth, 0));
      return Judge(fmt::format("killed in {} {}", NameOf(kind), nth), shop, day_.marks(), day, true);
    }
    const auto most = static_cast<std::uint64_t>(day_.took().count());
    Process process = bench_.Script(shop, bench_.folder() / Workday::Name(day_.marks()));
    process.kill_after = std::chrono::microseconds(1 + dice() % most);
    const std::string what = fmt::format("killed after {} us of {}", process.kill_after.count(), most);
    return Judge(what, shop, day_.marks(), bench_.Run(process), true);
  }

 private:
  static const char* NameOf(CallKind kind) { return kCallNames[static_cast<int>(kind)]; }
  std::uint64_t Calls(CallKind kind) const {
    return static_cast<std::uint64_t>(day_.Calls(kind, day_.marks()));
  }

  Outcome Judge(std::string what, const fs::path& shop, std::size_t end, const Ended& day,
                bool killed) const {
    Outcome outcome{std::move(what), day_.Check(shop, end, day)};
    if (const std::string wrong = day.Wrong(killed); !wrong.empty()) outcome.wrong.push_back(wrong);
    return outcome;
  }

  const Bench& bench_;
  Workday day_;
};

}  // namespace

Trial FailingCalls(const Bench& bench) {
  return [trials = std::make_shared<CallTrials>(bench)](std::uint64_t seed) { return trials->Fail(seed); };
}
Trial Kills(const Bench& bench) {
  return [trials = std::make_shared<CallTrials>(bench)](std::uint64_t seed) { return trials->Kill(seed); };
}

}  // namespace tarvane::soak
