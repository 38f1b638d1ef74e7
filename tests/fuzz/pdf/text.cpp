// The text operations: the bytes choose operations and give their texts and numbers. Nothing but a
// measurement's fault may come out of them, and the page's brackets and text objects must stay paired.
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

#include "pdf/text_encoding.h"
#include "pdf/tqr_pdf.h"
#include "text_number/fault.h"

namespace {

using namespace tarvane::pdf;

class Input {
 public:
  Input(const uint8_t* data, size_t size) : bytes_(reinterpret_cast<const char*>(data), size) {}
  bool empty() const { return bytes_.empty(); }
  int Byte() {
    const int byte = empty() ? 0 : static_cast<uint8_t>(bytes_.front());
    bytes_.remove_prefix(empty() ? 0 : 1);
    return byte;
  }
  double Number() {
    double number = Byte();
    if (number < 200) return number - 100;
    char raw[sizeof number] = {};
    const std::string taken = Take(sizeof number);
    std::memcpy(raw, taken.data(), taken.size());
    std::memcpy(&number, raw, sizeof number);
    return number;
  }
  std::string Text() { return Take(static_cast<size_t>(Byte())); }
  Setting AnySetting() { return Byte() % 4 == 0 ? Setting(Text()) : Setting(Number()); }

 private:
  std::string Take(size_t length) {
    const std::string taken(bytes_.substr(0, length));
    bytes_.remove_prefix(taken.size());
    return taken;
  }
  std::string_view bytes_;
};

// What stands escaped between brackets must be one string of the file's language.
void CheckString(const std::string& body) {
  int depth = 0;
  for (size_t at = 0; at < body.size(); ++at) {
    if (body[at] == '\\') {
      if (++at == body.size()) std::abort();
    } else if (body[at] == '(') {
      ++depth;
    } else if (body[at] == ')' && --depth < 0) {
      std::abort();
    }
  }
  if (depth != 0) std::abort();
}

void OneOperation(tqrPDF& document, Input& input) {
  switch (input.Byte() % 12) {
    case 0:
      return document.PDFTextOut(input.Text(), input.Number(), input.Number());
    case 1:
      return document.PDFCell(input.Text(), input.Number(), input.Number(), input.Text());
    case 2:
      return document.PDFSetFont(input.AnySetting(), input.Number(), input.Byte());
    case 3:
      return document.PDFSetRotation(input.Number());
    case 4:
      return document.PDFSetAlignement(input.AnySetting());
    case 5:
      return document.PDFSetBorder(input.AnySetting());
    case 6:
      return document.PDFSetFill(input.Byte() % 2 == 0);
    case 7:
      return document.PDFSetTextColor(input.Byte() % 2 == 0 ? Color(input.Text()) : Color(input.Number()));
    case 8:
      return document.PDFSetUnit(input.AnySetting());
    case 9:
      return document.PDFSetCellMargin(input.Number());
    case 10:
      return document.PDFNewPage();
    default:
      document.PDFGetStringWidth(input.Text(), input.Text(), input.Number());
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  CheckString(StringBody(text));
  const std::string codes = ToWinAnsi(text);
  CheckString(EscapePageText(codes));
  if (codes.size() > size) std::abort();

  Input input(data, size);
  tqrPDF document;
  document.PDFPathConfiguration(TARVANE_DATA_DIR "/Fonts");
  document.PDFBeginDoc();
  while (!input.empty()) {
    try {
      OneOperation(document, input);
    } catch (const tarvane::Fault&) {
    }
  }
  document.PDFEndDoc();
  return 0;
}
