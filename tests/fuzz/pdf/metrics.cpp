// The metric file reader: any text gives a table, and every code but 0 can be measured with it.
#include <limits>
#include <string>

#include "fuzz/require.h"
#include "pdf/font_metrics.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const tarvane::pdf::WidthTable widths = tarvane::pdf::ReadWidths(tarvane::InputText(data, size));
  std::string codes;
  int64_t sum = 0;
  for (int code = 1; code < 256; ++code) {
    tarvane::Require(std::abs(widths.At(code)) <= std::numeric_limits<int16_t>::max());
    sum += widths.At(code);
    codes += static_cast<char>(code);
  }
  tarvane::Require(widths.Sum(codes) == sum);
  return 0;
}
