#pragma once

#include <array>
#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "soak/call_kinds.h"
#include "soak/process.h"

namespace tarvane::soak {

namespace fs = std::filesystem;

// The programs under trial and a folder of this run's own, which goes with it.
class Bench {
 public:
  explicit Bench(fs::path programs);
  ~Bench();
  Bench(const Bench&) = delete;
  Bench& operator=(const Bench&) = delete;

  const fs::path& folder() const { return folder_; }
  // A fresh copy of the sample shop, without fonts.
  fs::path FreshShop() const;
  // tarvane-script on a shop. `story`: a file, of this folder where the path is relative.
  Process Script(const fs::path& shop, const fs::path& story) const;
  Process Setup(const fs::path& shop) const;
  // The same with the preloaded library, its counts at 0.
  Process Failing(const fs::path& shop, const fs::path& story, CallKind kind, long nth, int error) const;
  Ended Run(const Process& process) const { return soak::Run(process, folder_); }

 private:
  fs::path programs_;
  fs::path folder_;
};

// The story "workday", played whole or to one of its marks: what is right after it.
class Workday {
 public:
  explicit Workday(const Bench& bench);

  std::size_t marks() const { return days_.size() - 1; }
  std::chrono::microseconds took() const { return days_.back().ended.took; }  // undisturbed
  long Calls(CallKind kind, std::size_t mark) const {
    return days_[mark].calls[static_cast<std::size_t>(kind)];
  }
  // The first mark with that call in front of it.
  std::size_t MarkOf(CallKind kind, long nth) const;
  static std::string Name(std::size_t mark) { return "day" + std::to_string(mark) + ".story"; }

  // The day to a mark, with a call that fails (0: kills).
  Process Failing(const fs::path& shop, std::size_t mark, CallKind kind, long nth, int error) const {
    return bench_.Failing(shop, bench_.folder() / Name(mark), kind, nth, error);
  }
  // Plays the day after on `shop`, on which the day to `mark` was played; what is wrong then.
  std::vector<std::string> Check(const fs::path& shop, std::size_t mark, const Ended& day) const;

 private:
  struct Claim {
    std::size_t mark;  // 0: always
    std::string question;
  };
  // Undisturbed, to a mark.
  struct Day {
    Ended ended;
    std::array<long, kCallKinds> calls{};
    std::vector<std::string> answers;  // to the claims, on the day after
  };

  std::size_t ReadStory();
  Day PlayTo(std::size_t mark);

  const Bench& bench_;
  std::vector<Claim> claims_;
  std::vector<Day> days_;                               // by mark
  std::map<std::string, std::set<std::string>> texts_;  // what a list or settings file may hold
};

}  // namespace tarvane::soak
