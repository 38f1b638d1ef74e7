#include "printing/text_pdf.h"

#include <algorithm>
#include <vector>

#include "pdf/text_encoding.h"
#include "pdf/tqr_pdf.h"
#include "printing/pdf_surroundings.h"
#include "store/data_files.h"
#include "text/fault.h"
#include "text/fold.h"
#include "text/utf8.h"

namespace tarvane::printing {
namespace {

using rich_text::Document;

constexpr double kMargin = 70;  // points, as the preview has it
constexpr double kSize = 10;
constexpr double kLineHeight = 12;
constexpr double kPageHeight = 842;
constexpr double kWidth = 595 - 2 * kMargin;
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

class TextPdf {
 public:
  TextPdf(pdf::tqrPDF& document) : document_(document) {}

  void Write(const TextLine& line) {
    if (line.begins_page && !is_first_) NewPage();
    is_first_ = false;
    std::string_view rest = line.text;
    do {
      const std::size_t fits = Fitting(rest);
      Put(std::string(rest.substr(0, fits)));
      rest.remove_prefix(fits);
      // A blank at which a line was broken is dropped.
      if (!rest.empty()) rest.remove_prefix(std::min(rest.find_first_not_of(' '), rest.size()));
    } while (!rest.empty());
  }

 private:
  double WidthOf(std::string_view text) { return document_.PDFGetStringWidth(text, "", kSize); }

  // Bytes of the next line: up to a blank, or within a word that is wider than the line.
  std::size_t Fitting(std::string_view text) {
    double width = 0;
    std::size_t at = 0;
    while (at < text.size()) {
      const std::size_t word = std::min(text.find(' ', text.find_first_not_of(' ', at)), text.size());
      width += WidthOf(text.substr(at, word - at));
      if (width > kWidth) break;
      at = word;
    }
    if (at > 0) return at;
    for (width = 0; at < text.size();) {
      const std::size_t length = DecodeCharacter(text, at).length;
      width += WidthOf(text.substr(at, length));
      if (width > kWidth && at > 0) return at;
      at += length;
    }
    return at;
  }

  void Put(const std::string& text) {
    if (y_ + kLineHeight > kPageHeight - kMargin) NewPage();
    y_ += kLineHeight;
    if (!text.empty()) document_.PDFTextOut(text, kMargin, y_);
  }

  void NewPage() {
    document_.PDFEndPage();
    document_.PDFNewPage();
    y_ = kMargin;
  }

  pdf::tqrPDF& document_;
  double y_ = kMargin;  // the base line of the latest line
  bool is_first_ = true;
};

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
  document.PDFLoadAfm(FindFile(program_folder, "Fonts").string());
  document.PDFSetUnit(pdf::kPoint);
  document.PDFBeginDoc();
  document.PDFSetFont(pdf::kArial, kSize);
  const std::vector<TextLine> lines = LinesOf(text);
  TextPdf pages(document);
  for (const TextLine& line : lines) pages.Write(line);
  document.PDFEndDoc();
  if (!document.PDFWritten()) throw Fault("The PDF file couldn't be written: " + file.string());
  return Missing(lines);
}

}  // namespace tarvane::printing
