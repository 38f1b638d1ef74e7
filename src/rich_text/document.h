#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tarvane::rich_text {

inline constexpr int kTwipsPerInch = 1440;
inline constexpr int kTwipsPerPoint = 20;
inline constexpr int kLongest = 1'000'000;  // twips; no length is further from 0
inline constexpr int kLargestHalfPoints = 3'276;
inline constexpr std::size_t kMostTabStops = 64;
inline constexpr std::size_t kMostCells = 256;                    // of a row
inline constexpr std::string_view kPictureSign = "\xEF\xBF\xBC";  // U+FFFC: stands in the text for a picture

struct Color {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;
  bool operator==(const Color&) const = default;
};

struct CharStyle {
  std::uint16_t font = 0;  // in Document::fonts
  std::uint16_t half_points = 20;
  Color color;
  bool bold = false;
  bool italic = false;
  bool underline = false;
  bool strike = false;
  bool operator==(const CharStyle&) const = default;
};

enum class Alignment : std::uint8_t { kLeft, kRight, kCenter, kJustified };
enum class TabKind : std::uint8_t { kLeft, kRight, kCenter, kDecimal };

struct TabStop {
  std::int32_t at = 0;  // twips from the left edge of the text
  TabKind kind = TabKind::kLeft;
  bool operator==(const TabStop&) const = default;
};

// Lengths in twips.
struct ParagraphStyle {
  Alignment alignment = Alignment::kLeft;
  bool page_break_before = false;
  std::int32_t left = 0;
  std::int32_t right = 0;
  std::int32_t first_line = 0;  // beyond left; negative: hangs out
  std::int32_t before = 0;
  std::int32_t after = 0;
  std::int32_t line_height = 0;  // 0: what the fonts want; above: at least; below: exactly so much
  std::vector<TabStop> tabs;     // by place; behind the last one every half inch
  bool operator==(const ParagraphStyle&) const = default;
};

// From `begin` to the next run or the end, the text looks so.
struct Run {
  std::uint32_t begin = 0;  // in Document::text
  CharStyle style;
  bool operator==(const Run&) const = default;
};

struct Paragraph {
  std::uint32_t begin = 0;  // in Document::text; ends behind its "\n", the last one at the end
  std::uint32_t style = 0;  // in Document::paragraph_styles
  std::int32_t row = -1;    // in Document::rows; -1: stands in no table
  std::uint32_t cell = 0;   // of the row
  bool operator==(const Paragraph&) const = default;
};

enum Side : std::uint8_t { kNoSide = 0, kTopSide = 1, kLeftSide = 2, kBottomSide = 4, kRightSide = 8 };

struct TableCell {
  std::int32_t right = 0;    // twips from the left edge of the text to the cell's right edge
  std::uint8_t borders = 0;  // a sum of Side
  bool operator==(const TableCell&) const = default;
};

// Each of its cells has one paragraph or more, in their order.
struct TableRow {
  std::int32_t left = 0;  // of the first cell
  std::vector<TableCell> cells;
  bool operator==(const TableRow&) const = default;
};

struct Picture {
  enum class Format : std::uint8_t { kPng, kJpeg };
  Format format = Format::kPng;
  std::string bytes;        // the file as it is
  std::int32_t width = 0;   // as it stands on paper, in twips
  std::int32_t height = 0;  // above 0, both
  bool operator==(const Picture&) const = default;
};

// A text with its looks. Places in it are byte offsets into `text`. What holds always:
// - text is valid UTF-8 without control characters but tab and "\n", and shorter than 4 GiB. "\n" ends a
//   paragraph, and the last one has none, so that there is one paragraph more than "\n". U+2028 ends a line
//   within a paragraph.
// - runs: the first begins at 0, the others follow in order, each within the text; no two neighbours look
//   alike. An empty text has one, which tells what is typed into it.
// - paragraphs: as the text tells; those of a table row stand together.
// - pictures: as many as kPictureSign in the text, in that order.
// - rows: named by paragraphs in their order, each with a cell or more; right edges of cells never go back.
// - fonts and paragraph_styles: never empty; whoever names one of them names one that is there.
// - lengths are at most kLongest, tab stops by place, one at a place, at most kMostTabStops; letters are at
//   least half a point and at most kLargestHalfPoints high.
struct Document {
  std::string text;
  std::vector<Run> runs{Run{}};
  std::vector<Paragraph> paragraphs{Paragraph{}};
  std::vector<Picture> pictures;
  std::vector<TableRow> rows;
  std::vector<std::string> fonts{"Arial"};
  std::vector<ParagraphStyle> paragraph_styles{ParagraphStyle{}};

  std::size_t ParagraphEnd(std::size_t paragraph) const;  // before its "\n"
  // The paragraph and the run that `place` stands in; a place at a boundary belongs to what begins there.
  std::size_t ParagraphAt(std::size_t place) const;
  std::size_t RunAt(std::size_t place) const;
  // The look of what stands at `place`.
  const CharStyle& StyleAt(std::size_t place) const { return runs[RunAt(place)].style; }
  const ParagraphStyle& StyleOf(const Paragraph& paragraph) const {
    return paragraph_styles[paragraph.style];
  }
  // In fonts; added where it isn't there yet. With 65,535 fonts a further one becomes the first.
  std::uint16_t FontNumber(std::string_view name);
};

// Whether all of that holds.
bool IsSound(const Document& document);

// Whether they look alike to a reader: order and number of fonts and styles don't count.
bool SameContent(const Document& one, const Document& other);

// Text without looks. CR LF, CR and LF each end a paragraph, a form feed begins a page with the paragraph
// behind it, U+2028 ends a line. Other control characters but the tab are left out. What is no UTF-8 becomes
// U+FFFD, and so does the sign of a picture, for there is none.
Document FromPlainText(std::string_view text, const CharStyle& style = {}, std::string_view font = "Arial");
// The text with CR LF between paragraphs and lines. Cells of a row are kept apart by tabs, pictures left out.
std::string PlainText(const Document& document);

}  // namespace tarvane::rich_text
