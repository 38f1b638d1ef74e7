// The metric file reader: any text gives a table, and every code but 0 can be measured with it.
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <string>
#include <vector>

#include "pdf/font_metrics.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::vector<char> bytes(data, data + size);
  const tarvane::pdf::WidthTable widths =
      tarvane::pdf::ReadWidths(std::string_view(bytes.data(), bytes.size()));
  std::string codes;
  int64_t sum = 0;
  for (int code = 1; code < 256; ++code) {
    if (std::abs(widths.At(code)) > std::numeric_limits<int16_t>::max()) std::abort();
    sum += widths.At(code);
    codes += static_cast<char>(code);
  }
  if (widths.Sum(codes) != sum) std::abort();
  return 0;
}
