// The text operations: the bytes choose operations and give their texts and numbers. Nothing but a
// measurement's fault may come out of them, and the page's brackets and text objects must stay paired.
#include <cstring>
#include <iterator>
#include <string>
#include <string_view>

#include "fuzz/require.h"
#include "pdf/text_encoding.h"
#include "pdf/tqr_pdf.h"
#include "text/fault.h"

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
      tarvane::Require(++at < body.size());
    } else if (body[at] == '(') {
      ++depth;
    } else if (body[at] == ')') {
      tarvane::Require(--depth >= 0);
    }
  }
  tarvane::Require(depth == 0);
}

using Operation = void (*)(tqrPDF&, Input&);
constexpr Operation kOperations[] = {
    [](tqrPDF& pdf, Input& in) { pdf.PDFTextOut(in.Text(), in.Number(), in.Number()); },
    [](tqrPDF& pdf, Input& in) { pdf.PDFCell(in.Text(), in.Number(), in.Number(), in.Text()); },
    [](tqrPDF& pdf, Input& in) { pdf.PDFSetFont(in.AnySetting(), in.Number(), in.Byte()); },
    [](tqrPDF& pdf, Input& in) { pdf.PDFSetRotation(in.Number()); },
    [](tqrPDF& pdf, Input& in) { pdf.PDFSetAlignement(in.AnySetting()); },
    [](tqrPDF& pdf, Input& in) { pdf.PDFSetBorder(in.AnySetting()); },
    [](tqrPDF& pdf, Input& in) { pdf.PDFSetFill(in.Byte() % 2 == 0); },
    [](tqrPDF& pdf, Input& in) {
      pdf.PDFSetTextColor(in.Byte() % 2 == 0 ? Color(in.Text()) : Color(in.Number()));
    },
    [](tqrPDF& pdf, Input& in) { pdf.PDFSetUnit(in.AnySetting()); },
    [](tqrPDF& pdf, Input& in) { pdf.PDFSetCellMargin(in.Number()); },
    [](tqrPDF& pdf, Input&) { pdf.PDFNewPage(); },
    [](tqrPDF& pdf, Input& in) { pdf.PDFGetStringWidth(in.Text(), in.Text(), in.Number()); }};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  const std::string codes = ToWinAnsi(text);
  for (const std::string& body : {StringBody(codes), StringBody(ToPdfDoc(text)), StringBody(ToUri(text)),
                                  EscapePageText(codes), EscapeString(codes)}) {
    CheckString(body);
  }
  tarvane::Require(codes.size() <= size);

  Input input(data, size);
  tqrPDF document;
  document.PDFStrict(input.Byte() % 2 == 1);
  document.PDFPathConfiguration(TARVANE_DATA_DIR "/Fonts");
  document.PDFBeginDoc();
  while (!input.empty()) {
    try {
      kOperations[static_cast<size_t>(input.Byte()) % std::size(kOperations)](document, input);
    } catch (const tarvane::Fault&) {
    }
  }
  document.PDFEndDoc();
  return 0;
}
