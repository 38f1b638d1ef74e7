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

}  // namespace tarvane
