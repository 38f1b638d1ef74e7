#include "printing/text_pdf.h"

#include <vector>

#include "pdf/text_encoding.h"
#include "pdf/tqr_pdf.h"
#include "printing/pdf_rows.h"
#include "printing/pdf_surroundings.h"
#include "store/data_files.h"
#include "text/fault.h"
#include "text/fold.h"
#include "text/utf8.h"

namespace tarvane::printing {
namespace {

using rich_text::Document;

// Margins of 70 points, as the preview has them.
constexpr RowsOnPage kPlace = {
    .left = 70, .right = 595 - 70, .first = 82, .last = 842 - 70, .step = 12, .size = 10};
constexpr std::size_t kTab = 8;  // characters

struct TextLine {
  std::string text;
  bool begins_page = false;
};

// A line of the text each, those of a table's row side by side.
std::vector<TextLine> LinesOf(const Document& text) {
  std::vector<TextLine> lines;
  for (std::size_t i = 0; i < text.paragraphs.size(); ++i) {
    const rich_text::Paragraph& paragraph = text.paragraphs[i];
    const bool goes_on = i > 0 && paragraph.row >= 0 && text.paragraphs[i - 1].row == paragraph.row;
    if (goes_on) {
      lines.back().text += '\t';
    } else {
      lines.push_back({"", text.StyleOf(paragraph).page_break_before});
    }
    std::string_view rest =
        std::string_view(text.text).substr(paragraph.begin, text.ParagraphEnd(i) - paragraph.begin);
    while (!rest.empty()) {
      const DecodedCharacter next = DecodeCharacter(rest, 0);
      std::string& line = lines.back().text;
      if (next.character == U'\u2028') {
        lines.push_back({});
      } else if (next.character == U'\t') {
        line.append(kTab - CountCharacters(line) % kTab, ' ');
      } else if (rest.substr(0, next.length) != rich_text::kPictureSign) {
        line += rest.substr(0, next.length);
      }
      rest.remove_prefix(next.length);
    }
  }
  return lines;
}

// What WinAnsi has "?" for, though it is none.
std::string Missing(const std::vector<TextLine>& lines) {
  std::string missing;
  for (const TextLine& line : lines) {
    for (std::size_t at = 0; at < line.text.size();) {
      const std::size_t length = DecodeCharacter(line.text, at).length;
      const std::string_view character = std::string_view(line.text).substr(at, length);
      at += length;
      const bool has_place = character == "?" || pdf::ToWinAnsi(character) != "?";
      if (!has_place && missing.find(character) == std::string::npos) missing += character;
    }
  }
  return missing;
}

}  // namespace

std::string WriteTextPdf(Host& host, const std::filesystem::path& program_folder,
                         const std::filesystem::path& file, const Document& text) {
  PdfSurroundings surroundings(host, program_folder);
  pdf::tqrPDF document(surroundings.For());
  document.PDFStrict(true);
  document.PDFTitle(file.filename().string());
  document.PDFFileName(file.string());
  const std::filesystem::path fonts = FindFile(program_folder, "Fonts");
  document.PDFLoadAfm(fonts.string());
  document.PDFSetUnit(pdf::kPoint);
  document.PDFBeginDoc();
  const std::vector<TextLine> lines = LinesOf(text);
  PdfRows rows(document, fonts, kPlace);
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (lines[i].begins_page && i > 0) rows.NewPage();
    rows.Write(lines[i].text);
  }
  document.PDFEndDoc();
  if (!document.PDFWritten()) throw Fault("The PDF file couldn't be written: " + file.string());
  return Missing(lines);
}

}  // namespace tarvane::printing
