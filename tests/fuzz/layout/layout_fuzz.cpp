// Any document in any area: each character is on a page once, and every page moves on.
#include <cstdint>

#include "fuzz/require.h"
#include "paper/random_document.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  tarvane::Require(tarvane::paper::PlacesEachCharacterOnce(tarvane::paper::DocumentOf(bytes)));
  return 0;
}
