#include "rich_text/editing.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "text/fault.h"
#include "text/fold.h"

namespace tarvane::rich_text {
namespace {

constexpr std::uint32_t kNone = std::numeric_limits<std::uint32_t>::max();

std::size_t CountPictures(std::string_view text) {
  std::size_t count = 0;
  for (std::size_t at = text.find(kPictureSign); at != std::string_view::npos;
       at = text.find(kPictureSign, at + kPictureSign.size())) {
    ++count;
  }
  return count;
}

template <typename Part>
void Splice(std::vector<Part>& parts, std::size_t first, std::size_t end, const std::vector<Part>& middle) {
  const std::size_t both = std::min(end - first, middle.size());
  const auto at = [&parts](std::size_t index) { return parts.begin() + static_cast<std::ptrdiff_t>(index); };
  const auto rest = middle.begin() + static_cast<std::ptrdiff_t>(both);
  std::copy(middle.begin(), rest, at(first));
  parts.erase(at(first + both), at(end));
  parts.insert(at(first + both), rest, middle.end());
}

template <typename Part>
void Shift(std::vector<Part>& parts, std::size_t first, std::uint32_t by) {
  for (std::size_t i = first; i < parts.size(); ++i) parts[i].begin += by;
}

std::uint32_t StyleNumber(Document& document, const ParagraphStyle& style) {
  const auto found = std::ranges::find(document.paragraph_styles, style);
  const auto number = static_cast<std::uint32_t>(found - document.paragraph_styles.begin());
  if (found == document.paragraph_styles.end()) document.paragraph_styles.push_back(style);
  return number;
}

// The numbers that fonts and paragraph styles of one document have in another, which gets those that it
// lacks.
class Numbers {
 public:
  Numbers(const Document& from, Document& to)
      : from_(from),
        to_(to),
        fonts_(from.fonts.size(), kNone),
        styles_(from.paragraph_styles.size(), kNone) {}

  CharStyle Translated(CharStyle style) {
    std::uint32_t& number = fonts_[style.font];
    if (number == kNone) number = to_.FontNumber(from_.fonts[style.font]);
    style.font = static_cast<std::uint16_t>(number);
    return style;
  }
  std::uint32_t Style(std::uint32_t style) {
    std::uint32_t& number = styles_[style];
    if (number == kNone) number = StyleNumber(to_, from_.paragraph_styles[style]);
    return number;
  }

 private:
  const Document& from_;
  Document& to_;
  std::vector<std::uint32_t> fonts_;
  std::vector<std::uint32_t> styles_;
};

void Append(std::vector<Run>& runs, const Run& run) {
  if (runs.empty() || runs.back().style != run.style) runs.push_back(run);
}

// `inner` are the runs of what stands there now, `length` long, in place of `before`; the text isn't changed
// yet.
void PutRuns(Document& document, Range before, std::size_t length, const std::vector<Run>& inner) {
  std::vector<Run>& runs = document.runs;
  const auto first =
      static_cast<std::size_t>(std::ranges::lower_bound(runs, before.begin, {}, &Run::begin) - runs.begin());
  auto behind =
      static_cast<std::size_t>(std::ranges::upper_bound(runs, before.end, {}, &Run::begin) - runs.begin());
  std::vector<Run> middle;
  if (first > 0) middle.push_back(runs[first - 1]);  // to be compared with
  if (length > 0) {
    for (const Run& run : inner) Append(middle, run);
  }
  const auto now_behind = static_cast<std::uint32_t>(before.begin + length);
  if (before.end < document.text.size()) Append(middle, {now_behind, document.StyleAt(before.end)});
  if (middle.empty()) middle.push_back({0, document.StyleAt(before.begin)});
  Shift(runs, behind, static_cast<std::uint32_t>(length - (before.end - before.begin)));
  while (behind < runs.size() && runs[behind].style == middle.back().style) ++behind;
  Splice(runs, first > 0 ? first - 1 : 0, behind, middle);
}

std::vector<Run> TranslatedRuns(const Document& piece, std::size_t begin, Numbers& numbers) {
  std::vector<Run> runs;
  runs.reserve(piece.runs.size());
  for (const Run& run : piece.runs) {
    runs.push_back({static_cast<std::uint32_t>(begin + run.begin), numbers.Translated(run.style)});
  }
  return runs;
}

void PutPictures(Document& document, Range range, const Document& piece) {
  if (document.pictures.empty() && piece.pictures.empty()) return;
  const std::string_view text = document.text;
  const std::size_t first = CountPictures(text.substr(0, range.begin));
  const std::size_t gone = CountPictures(text.substr(range.begin, range.end - range.begin));
  Splice(document.pictures, first, first + gone, piece.pictures);
}

bool SameCell(const Paragraph& one, const Paragraph& other) {
  return one.row == other.row && (one.row < 0 || one.cell == other.cell);
}

// The rows that the paragraphs still need, each with the cells that still have paragraphs; the paragraphs get
// their new numbers.
std::vector<TableRow> SettledRows(std::vector<Paragraph>& paragraphs, const std::vector<TableRow>& rows) {
  std::vector<TableRow> settled;
  std::int32_t row = -1;
  std::uint32_t cell = 0;
  for (Paragraph& paragraph : paragraphs) {
    const std::int32_t former_row = std::exchange(row, paragraph.row);
    const std::uint32_t former_cell = std::exchange(cell, paragraph.cell);
    if (row < 0) continue;
    const TableRow& old = rows[static_cast<std::size_t>(row)];
    const bool begins_row = row != former_row || cell < former_cell;
    if (begins_row) settled.push_back({old.left, {}});
    TableRow& made = settled.back();
    if (begins_row || cell != former_cell) made.cells.push_back(old.cells[cell]);
    paragraph.row = static_cast<std::int32_t>(settled.size()) - 1;
    paragraph.cell = static_cast<std::uint32_t>(made.cells.size()) - 1;
  }
  return settled;
}

// The range, which lies in the paragraphs from `first` to `last`, becomes the piece, and these paragraphs
// become `middle`.
struct Exchange {
  Range range;
  std::size_t first = 0;
  std::size_t last = 0;
  std::vector<Paragraph> middle;
  bool rows_change = false;
};

void Perform(Document& document, const Exchange& exchange, const Document& piece, Numbers& numbers) {
  const Range range = exchange.range;
  const std::size_t length = range.end - range.begin;
  PutRuns(document, range, piece.text.size(), TranslatedRuns(piece, range.begin, numbers));
  PutPictures(document, range, piece);
  document.text.replace(range.begin, length, piece.text);
  Shift(document.paragraphs, exchange.last + 1, static_cast<std::uint32_t>(piece.text.size() - length));
  Splice(document.paragraphs, exchange.first, exchange.last + 1, exchange.middle);
  if (exchange.rows_change) document.rows = SettledRows(document.paragraphs, document.rows);
}

void CheckLength(const Document& document, Range range, const Document& piece) {
  const std::size_t length = document.text.size() - (range.end - range.begin) + piece.text.size();
  if (length >= kNone) throw Fault("The text would become too long.");
}

// The piece's paragraphs as they stand in the document, in its rows where they are to have rows.
std::vector<Paragraph> Translated(const Document& piece, std::size_t begin, Document& document,
                                  Numbers& numbers, bool with_rows) {
  const auto rows = static_cast<std::int32_t>(document.rows.size());
  if (with_rows) document.rows.insert(document.rows.end(), piece.rows.begin(), piece.rows.end());
  std::vector<Paragraph> paragraphs = piece.paragraphs;
  for (Paragraph& paragraph : paragraphs) {
    paragraph.begin += static_cast<std::uint32_t>(begin);
    paragraph.style = numbers.Style(paragraph.style);
    paragraph.row = with_rows && paragraph.row >= 0 ? rows + paragraph.row : -1;
    if (paragraph.row < 0) paragraph.cell = 0;
  }
  return paragraphs;
}

void PutInCell(Paragraph& paragraph, const Paragraph& other) {
  paragraph.row = other.row;
  paragraph.cell = other.cell;
}

std::uint32_t WithPageBreak(Document& document, std::uint32_t style, bool page_break) {
  if (!page_break || document.paragraph_styles[style].page_break_before) return style;
  ParagraphStyle broken = document.paragraph_styles[style];
  broken.page_break_before = true;
  return StyleNumber(document, broken);
}

bool InOneCell(const Document& document, std::size_t first, std::size_t last) {
  const auto begin = document.paragraphs.begin() + static_cast<std::ptrdiff_t>(first);
  const auto end = document.paragraphs.begin() + static_cast<std::ptrdiff_t>(last) + 1;
  return std::all_of(begin, end, [&](const Paragraph& each) { return SameCell(each, *begin); });
}

}  // namespace

void Replace(Document& document, Range range, const Document& piece) {
  CheckLength(document, range, piece);
  Exchange exchange{range, document.ParagraphAt(range.begin), document.ParagraphAt(range.end), {}, false};
  const Paragraph first = document.paragraphs[exchange.first];
  const Paragraph last = document.paragraphs[exchange.last];
  const bool with_rows = first.row < 0 && !piece.rows.empty();
  exchange.rows_change = with_rows || !InOneCell(document, exchange.first, exchange.last);
  Numbers numbers(piece, document);
  exchange.middle = Translated(piece, range.begin, document, numbers, with_rows);

  Paragraph& begins = exchange.middle.front();
  Paragraph& ends = exchange.middle.back();
  if (first.row >= 0) {
    for (Paragraph& paragraph : exchange.middle) PutInCell(paragraph, first);
  }
  const bool is_one = exchange.middle.size() == 1;
  const bool keeps_first = is_one || first.begin < range.begin;
  if (!is_one) {
    if (exchange.first == exchange.last) {
      ends.style = WithPageBreak(document, last.style, document.StyleOf(ends).page_break_before);
    }
    PutInCell(ends, last);
  }
  if (keeps_first) {
    begins = first;
  } else {
    begins.style = WithPageBreak(document, begins.style, document.StyleOf(first).page_break_before);
    begins.begin = first.begin;
  }
  Perform(document, exchange, piece, numbers);
}

void ReplaceParagraphs(Document& document, std::size_t first, std::size_t end, const Document& piece) {
  const Range range{document.paragraphs[first].begin, document.ParagraphEnd(end - 1)};
  CheckLength(document, range, piece);
  Exchange exchange{range, first, end - 1, {}, false};
  const Paragraph cell = document.paragraphs[first];
  const bool stays = piece.rows.empty() && InOneCell(document, first, end - 1);
  exchange.rows_change = !stays;
  Numbers numbers(piece, document);
  exchange.middle = Translated(piece, range.begin, document, numbers, true);
  if (stays) {
    for (Paragraph& paragraph : exchange.middle) PutInCell(paragraph, cell);
  }
  Perform(document, exchange, piece, numbers);
}

Document Slice(const Document& document, Range range) {
  Document slice;
  slice.fonts.clear();
  slice.paragraph_styles.clear();
  slice.runs.clear();
  slice.paragraphs.clear();
  Numbers numbers(document, slice);
  slice.text = document.text.substr(range.begin, range.end - range.begin);
  const auto from_begin = [&](std::uint32_t place) {
    return static_cast<std::uint32_t>(std::max<std::size_t>(place, range.begin) - range.begin);
  };
  for (std::size_t run = document.RunAt(range.begin); run < document.runs.size(); ++run) {
    const Run& each = document.runs[run];
    if (!slice.runs.empty() && each.begin >= range.end) break;
    slice.runs.push_back({from_begin(each.begin), numbers.Translated(each.style)});
  }
  const std::size_t first = document.ParagraphAt(range.begin);
  const std::size_t last = document.ParagraphAt(range.end);
  const bool in_one_cell = InOneCell(document, first, last);
  for (std::size_t i = first; i <= last; ++i) {
    Paragraph paragraph = document.paragraphs[i];
    paragraph.begin = from_begin(paragraph.begin);
    paragraph.style = numbers.Style(paragraph.style);
    if (in_one_cell) PutInCell(paragraph, Paragraph{});
    slice.paragraphs.push_back(paragraph);
  }
  if (!in_one_cell) slice.rows = SettledRows(slice.paragraphs, document.rows);
  if (!document.pictures.empty()) {
    const std::size_t before = CountPictures(std::string_view(document.text).substr(0, range.begin));
    const auto begin = document.pictures.begin() + static_cast<std::ptrdiff_t>(before);
    slice.pictures.assign(begin, begin + static_cast<std::ptrdiff_t>(CountPictures(slice.text)));
  }
  return slice;
}

CharStyle Changed(Document& document, CharStyle style, const StyleChange& change) {
  if (change.font) style.font = document.FontNumber(*change.font);
  if (change.half_points) {
    style.half_points = static_cast<std::uint16_t>(std::clamp(*change.half_points, 1, kLargestHalfPoints));
  }
  if (change.half_points_more != 0) {
    const int size = style.half_points;
    style.half_points = static_cast<std::uint16_t>(std::clamp(
        size + change.half_points_more, std::min(size, kSmallestStep), std::max(size, kLargestStep)));
  }
  style.bold = change.bold.value_or(style.bold);
  style.italic = change.italic.value_or(style.italic);
  style.underline = change.underline.value_or(style.underline);
  style.strike = change.strike.value_or(style.strike);
  style.color = change.color.value_or(style.color);
  return style;
}

void ChangeStyle(Document& document, Range range, const StyleChange& change) {
  if (range.empty()) return;
  std::vector<Run> inner;
  for (std::size_t run = document.RunAt(range.begin); run < document.runs.size(); ++run) {
    const Run each = document.runs[run];
    if (each.begin >= range.end) break;
    const auto begin = std::max(each.begin, static_cast<std::uint32_t>(range.begin));
    Append(inner, {begin, Changed(document, each.style, change)});
  }
  PutRuns(document, range, range.end - range.begin, inner);
}

void Align(Document& document, Range range, Alignment alignment) {
  const std::size_t first = document.ParagraphAt(range.begin);
  std::size_t last = document.ParagraphAt(range.end);
  if (last > first && document.paragraphs[last].begin == range.end) --last;
  std::vector<std::uint32_t> aligned(document.paragraph_styles.size(), kNone);
  for (std::size_t i = first; i <= last; ++i) {
    Paragraph& paragraph = document.paragraphs[i];
    std::uint32_t& number = aligned[paragraph.style];
    if (number == kNone) {
      ParagraphStyle style = document.StyleOf(paragraph);
      style.alignment = alignment;
      number = StyleNumber(document, style);
    }
    paragraph.style = number;
  }
}

namespace {

std::u32string Folded(std::string_view text) {
  std::u32string folded;
  for (std::size_t at = 0; at < text.size();) {
    const DecodedCharacter next = DecodeCharacter(text, at);
    folded += FoldCharacter(next.character);
    at += next.length;
  }
  return folded;
}

// Where `what`, which is folded, ends if it begins at `at`; nothing where it doesn't.
std::optional<std::size_t> EndOf(std::string_view text, std::size_t at, std::u32string_view what) {
  for (const char32_t character : what) {
    if (at >= text.size()) return std::nullopt;
    const DecodedCharacter next = DecodeCharacter(text, at);
    if (FoldCharacter(next.character) != character) return std::nullopt;
    at += next.length;
  }
  return at;
}

}  // namespace

std::optional<Range> Find(const Document& document, std::string_view what, std::size_t from) {
  const std::u32string wanted = Folded(what);
  if (wanted.empty()) return std::nullopt;
  const std::string_view text = document.text;
  const auto search = [&](std::size_t begin, std::size_t end) -> std::optional<Range> {
    for (std::size_t at = begin; at < end; at += DecodeCharacter(text, at).length) {
      if (const auto behind = EndOf(text, at, wanted)) return Range{at, *behind};
    }
    return std::nullopt;
  };
  from = std::min(from, text.size());
  const auto found = search(from, text.size());
  return found ? found : search(0, from);
}

}  // namespace tarvane::rich_text
