#pragma once

#include <cstddef>

namespace tarvane {

// What the program has taken with `new` and not given back.
std::size_t MemoryInUse();
// The most that it ever was since the last ForgetPeak.
std::size_t PeakMemory();
void ForgetPeak();

}  // namespace tarvane
