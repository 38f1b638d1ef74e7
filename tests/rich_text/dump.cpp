#include "dump.h"

#include <array>
#include <sstream>
#include <string_view>

namespace tarvane::rich_text {

namespace {

constexpr std::string_view kLineSeparator = "\xE2\x80\xA8";

void DumpStyle(std::ostream& out, const ParagraphStyle& style) {
  constexpr std::array<std::string_view, 4> kAlignments = {"", " right", " center", " justified"};
  constexpr std::array<std::string_view, 4> kTabs = {"", "right ", "center ", "decimal "};
  out << kAlignments[static_cast<std::size_t>(style.alignment)];
  if (style.page_break_before) out << " page";
  const std::pair<std::string_view, int> lengths[] = {
      {"left", style.left},     {"right", style.right}, {"first", style.first_line},
      {"before", style.before}, {"after", style.after}, {"line", style.line_height}};
  for (const auto& [name, length] : lengths) {
    if (length != 0) out << ' ' << name << '=' << length;
  }
  for (const TabStop& tab : style.tabs) {
    out << " tab=" << kTabs[static_cast<std::size_t>(tab.kind)] << tab.at;
  }
}

void DumpStyle(std::ostream& out, const Document& document, const CharStyle& style) {
  out << '{' << document.fonts[style.font] << ' ' << style.half_points / 2.0;
  if (style.bold) out << " bold";
  if (style.italic) out << " italic";
  if (style.underline) out << " underline";
  if (style.strike) out << " strike";
  if (style.color != Color{}) {
    out << " rgb " << int{style.color.red} << ' ' << int{style.color.green} << ' ' << int{style.color.blue};
  }
  out << '}';
}

void DumpRow(std::ostream& out, const TableRow& row) {
  out << "row from " << row.left << ':';
  for (const TableCell& cell : row.cells) out << ' ' << cell.right << '/' << int{cell.borders};
  out << '\n';
}

}  // namespace

std::string Dump(const Document& document) {
  std::ostringstream out;
  std::size_t picture = 0;
  std::int32_t row = -1;
  std::size_t run = 0;
  for (std::size_t at = 0; at < document.paragraphs.size(); ++at) {
    const Paragraph& paragraph = document.paragraphs[at];
    if (paragraph.row >= 0 && paragraph.row != row) {
      DumpRow(out, document.rows[static_cast<std::size_t>(paragraph.row)]);
    }
    row = paragraph.row;
    out << '[';
    if (row >= 0) out << "cell " << paragraph.cell;
    DumpStyle(out, document.StyleOf(paragraph));
    out << "] ";
    const std::size_t end = document.ParagraphEnd(at);
    for (std::size_t place = paragraph.begin; place <= end; ++place) {
      if (run < document.runs.size() && document.runs[run].begin == place) {
        DumpStyle(out, document, document.runs[run++].style);
      }
      if (place == end) break;
      const std::string_view rest = std::string_view(document.text).substr(place);
      if (rest.starts_with(kPictureSign) || rest.starts_with(kLineSeparator)) {
        if (rest.starts_with(kPictureSign)) {
          const Picture& shown = document.pictures[picture++];
          out << '<' << (shown.format == Picture::Format::kPng ? "png " : "jpeg ") << shown.bytes.size()
              << ' ' << shown.width << 'x' << shown.height << '>';
        } else {
          out << "<line>";
        }
        place += kPictureSign.size() - 1;
      } else if (rest.front() == '\t') {
        out << "<tab>";
      } else {
        out << rest.front();
      }
    }
    out << '\n';
  }
  return out.str();
}

}  // namespace tarvane::rich_text
