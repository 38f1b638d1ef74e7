#include "printing/pdf_rows.h"

#include <algorithm>
#include <cstddef>

#include "text/fold.h"
#include "text/utf8.h"

namespace tarvane::printing {

PdfRows::PdfRows(pdf::tqrPDF& document, const std::filesystem::path& fonts, const RowsOnPage& place)
    : document_(document), measure_(fonts), place_(place), y_(place.first) {
  document_.PDFSetFont(pdf::kArial, place_.size);
}

void PdfRows::Write(std::string line) {
  std::ranges::replace(line, '\t', ' ');
  std::string_view rest = line;
  do {
    const std::size_t fits = Fitting(rest);
    Put(std::string(rest.substr(0, fits)));
    rest.remove_prefix(fits);
    // Blanks at which a line was broken are dropped.
    if (!rest.empty()) rest.remove_prefix(std::min(rest.find_first_not_of(' '), rest.size()));
  } while (!rest.empty());
}

double PdfRows::WidthOf(std::string_view text) {
  return measure_.WidthOf({.name = "Arial", .points = place_.size}, text);
}

// Bytes of the next row: up to a blank, or within a word that is wider than the row.
std::size_t PdfRows::Fitting(std::string_view text) {
  const double room = place_.right - place_.left;
  // No character is narrower than a tenth of its height, so no more of a word of a million is measured.
  text = FirstCharacters(text, static_cast<std::size_t>(room / place_.size * 10));
  double width = 0;
  std::size_t at = 0;
  while (at < text.size()) {
    const std::size_t word = std::min(text.find(' ', text.find_first_not_of(' ', at)), text.size());
    width += WidthOf(text.substr(at, word - at));
    if (width > room) break;
    at = word;
  }
  if (at > 0) return at;
  for (width = 0; at < text.size();) {
    const std::size_t length = DecodeCharacter(text, at).length;
    width += WidthOf(text.substr(at, length));
    if (width > room && at > 0) return at;
    at += length;
  }
  return at;
}

void PdfRows::Put(const std::string& row) {
  if (y_ > place_.last) NewPage();
  if (!row.empty()) document_.PDFTextOut(row, place_.left, y_);
  y_ += place_.step;
}

void PdfRows::NewPage() {
  document_.PDFEndPage();
  document_.PDFNewPage();
  y_ = place_.first;
}

}  // namespace tarvane::printing
