// The JPEG parser: any bytes give an error or a size, and nothing is read past them.
#include "pdf/jpeg.h"

#include <string_view>
#include <vector>

#include "fuzz/require.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  // On the heap and of the exact size, so that the sanitizers see a byte too many.
  const std::vector<char> bytes(data, data + size);
  tarvane::pdf::JpegInfo info;
  const auto error = tarvane::pdf::ParseJpeg(std::string_view(bytes.data(), bytes.size()), info);
  const bool sized = info.width > 0 && info.width < 65536 && info.height > 0 && info.height < 65536;
  tarvane::Require(error || sized);
  return 0;
}
