#include "counted_memory.h"

#include <malloc.h>

#include <algorithm>
#include <cstdlib>
#include <new>

namespace {

std::size_t in_use = 0;
std::size_t peak = 0;

}  // namespace

void* operator new(std::size_t size) {
  void* const memory = std::malloc(size);
  if (memory == nullptr) throw std::bad_alloc();
  in_use += malloc_usable_size(memory);
  peak = std::max(peak, in_use);
  return memory;
}
void operator delete(void* memory) noexcept {
  if (memory != nullptr) in_use -= malloc_usable_size(memory);
  std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept { operator delete(memory); }

namespace tarvane {

std::size_t MemoryInUse() { return in_use; }
std::size_t PeakMemory() { return peak; }
void ForgetPeak() { peak = in_use; }

}  // namespace tarvane
