// Any bytes give a sound document, as RTF and as plain text; what the writer makes of it is read as the same
// one, and a value amid RTF as that value.
#include <vector>

#include "fuzz/require.h"
#include "rich_text/rtf.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  // On the heap and of the exact size, so that the sanitizers see a byte too many.
  const std::vector<char> bytes(data, data + size);
  using namespace tarvane::rich_text;
  const Document document = ReadRtf({bytes.data(), bytes.size()});
  tarvane::Require(IsSound(document));
  const Document again = ReadRtf(WriteRtf(document));
  tarvane::Require(IsSound(again));
  tarvane::Require(SameContent(document, again));
  const Document plain = FromPlainText({bytes.data(), bytes.size()});
  tarvane::Require(IsSound(plain));
  const std::string text = PlainText(plain);
  tarvane::Require(PlainText(ReadRtf("{\\rtf1\\b" + EscapeForRtf(text) + "}")) == text);
  return 0;
}
