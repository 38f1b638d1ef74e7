#pragma once

#include "screen/host.h"

namespace tarvane {

// Keeps the busy cursor while it lives.
class Busy {
 public:
  explicit Busy(Host& host) : host_(host) { host_.SetBusy(true); }
  ~Busy() { host_.SetBusy(false); }
  Busy(const Busy&) = delete;
  Busy& operator=(const Busy&) = delete;

 private:
  Host& host_;
};

// Tells how far something has come, while it lives. `what` is told with it ("Writing the list").
class Progress {
 public:
  Progress(Host& host, std::string_view what, std::int64_t total) : host_(host), what_(what), total_(total) {}
  ~Progress() { host_.EndProgress(); }
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  // Steps between those are passed over.
  static constexpr std::int64_t kStepsUnseen = 256;

  // False where the worker wants it to stop. May be called as often as one likes.
  bool Step(std::int64_t done) { return done % kStepsUnseen != 0 || host_.ShowProgress(what_, done, total_); }

 private:
  Host& host_;
  std::string what_;
  std::int64_t total_;
};

}  // namespace tarvane
