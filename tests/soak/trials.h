#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "soak/workday.h"

namespace tarvane::soak {

struct Outcome {
  std::string what;                // what was done
  std::vector<std::string> wrong;  // empty: all is well
};

// One trial; what it does follows from the seed alone.
using Trial = std::function<Outcome(std::uint64_t seed)>;

Trial FailingCalls(const Bench& bench);
Trial Kills(const Bench& bench);
Trial DamagedFiles(const Bench& bench);
Trial Surroundings(const Bench& bench);

}  // namespace tarvane::soak
