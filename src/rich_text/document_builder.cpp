#include "rich_text/document_builder.h"

#include <algorithm>
#include <utility>

namespace tarvane::rich_text {

namespace {

constexpr std::string_view kFallbackFont = "Arial";
constexpr std::size_t kLongestText = 0xFFFFFF00;

// What of a look changes with a run.
enum RunChange : std::uint8_t {
  kBold = 1,
  kItalic = 2,
  kUnderline = 4,
  kStrike = 8,
  kFont = 16,
  kSize = 32,
  kColor = 64
};

// What stands in the log for a paragraph, and for the end of a row.
enum ParagraphMark : std::uint8_t { kOtherStyle = 1, kInRow = 2, kEndsCell = 4, kEndsRow = 8 };

constexpr std::size_t kStyleSlots = 1024;  // a power of two
constexpr std::size_t kProbes = 8;         // then the last one is forgotten, and may come twice
constexpr std::uint32_t kNoStyle = 0xFFFFFFFF;
// Styles beyond this look like the first one. Each costs memory, also while their list grows; a text has no
// more of them than its own length lets it name.
constexpr std::size_t kFreeStyleBytes = std::size_t{128} * 1024;
constexpr std::size_t kStyleBytesPerTextByte = 3;

// By a quarter, for the lists are long when it counts.
template <typename Log>
void MakeRoom(Log& log, std::size_t more) {
  if (log.capacity() - log.size() < more) log.reserve(log.size() + log.size() / 4 + more + 256);
}

std::size_t HashOf(const ParagraphStyle& style) {
  std::size_t hash = static_cast<std::size_t>(style.alignment) * 2 + (style.page_break_before ? 1 : 0);
  const auto add = [&](std::int32_t number) {
    hash = (hash ^ static_cast<std::uint32_t>(number)) * 0x9E3779B97F4A7C15U;
    hash ^= hash >> 29;
  };
  for (const std::int32_t number :
       {style.left, style.right, style.first_line, style.before, style.after, style.line_height}) {
    add(number);
  }
  for (const TabStop& tab : style.tabs) add(tab.at * 4 + static_cast<std::int32_t>(tab.kind));
  return hash;
}

void LogNumber(std::vector<std::uint8_t>& log, std::size_t number) {
  for (; number >= 0x80; number >>= 7) log.push_back(static_cast<std::uint8_t>(number | 0x80));
  log.push_back(static_cast<std::uint8_t>(number));
}

// Reads what LogNumber and its like wrote.
class LogReader {
 public:
  explicit LogReader(const std::vector<std::uint8_t>& log) : log_(log) {}
  bool AtEnd() const { return at_ == log_.size(); }
  std::uint8_t Byte() { return log_[at_++]; }
  std::size_t Number() {
    std::size_t number = 0;
    for (int shift = 0;; shift += 7) {
      const std::uint8_t byte = Byte();
      number |= static_cast<std::size_t>(byte & 0x7F) << shift;
      if (byte < 0x80) return number;
    }
  }
  void ChangeStyle(CharStyle& style) {
    const std::uint8_t changes = Byte();
    style.bold ^= (changes & kBold) != 0;
    style.italic ^= (changes & kItalic) != 0;
    style.underline ^= (changes & kUnderline) != 0;
    style.strike ^= (changes & kStrike) != 0;
    if ((changes & kFont) != 0) style.font = static_cast<std::uint16_t>(Number());
    if ((changes & kSize) != 0) style.half_points = static_cast<std::uint16_t>(Number());
    if ((changes & kColor) != 0) {
      style.color.red = Byte();
      style.color.green = Byte();
      style.color.blue = Byte();
    }
  }

 private:
  const std::vector<std::uint8_t>& log_;
  std::size_t at_ = 0;
};

}  // namespace

DocumentBuilder::DocumentBuilder(std::size_t expected)
    : style_bytes_left_(kFreeStyleBytes + kStyleBytesPerTextByte * expected),
      style_by_hash_(kStyleSlots, kNoStyle) {
  document_.fonts.clear();
  document_.text.reserve(expected);
}

std::uint16_t DocumentBuilder::FontNumber(std::string_view name) { return document_.FontNumber(name); }

void DocumentBuilder::LogStyle(const CharStyle& style) {
  if (run_count_ > 0 && style == last_style_) return;
  constexpr std::size_t kLongestEntry = 24;
  MakeRoom(run_log_, kLongestEntry);
  const std::size_t begin = document_.text.size();
  LogNumber(run_log_, begin - last_run_begin_);
  int changes = (style.bold != last_style_.bold ? kBold : 0) |
                (style.italic != last_style_.italic ? kItalic : 0) |
                (style.underline != last_style_.underline ? kUnderline : 0) |
                (style.strike != last_style_.strike ? kStrike : 0);
  if (style.font != last_style_.font) changes |= kFont;
  if (style.half_points != last_style_.half_points) changes |= kSize;
  if (style.color != last_style_.color) changes |= kColor;
  run_log_.push_back(static_cast<std::uint8_t>(changes));
  if ((changes & kFont) != 0) LogNumber(run_log_, style.font);
  if ((changes & kSize) != 0) LogNumber(run_log_, style.half_points);
  if ((changes & kColor) != 0) {
    run_log_.insert(run_log_.end(), {style.color.red, style.color.green, style.color.blue});
  }
  last_run_begin_ = begin;
  last_style_ = style;
  ++run_count_;
}

void DocumentBuilder::Append(std::string_view text, const CharStyle& style) {
  if (text.empty() || document_.text.size() + text.size() > kLongestText) return;
  LogStyle(style);
  document_.text += text;
}

void DocumentBuilder::Append(Picture picture, const CharStyle& style) {
  if (document_.text.size() + kPictureSign.size() > kLongestText) return;
  Append(kPictureSign, style);
  MakeRoom(document_.pictures, 1);
  document_.pictures.push_back(std::move(picture));
}

std::uint32_t DocumentBuilder::StyleNumber(const ParagraphStyle& style) {
  auto& styles = document_.paragraph_styles;
  if (styles[last_paragraph_style_] == style) return last_paragraph_style_;
  std::uint32_t* slot = nullptr;
  for (std::size_t probe = 0, hash = HashOf(style); probe < kProbes; ++probe) {
    slot = &style_by_hash_[(hash + probe) % kStyleSlots];
    if (*slot == kNoStyle) break;
    if (styles[*slot] == style) return *slot;
  }
  const std::size_t bytes = sizeof(ParagraphStyle) + style.tabs.size() * sizeof(TabStop);
  if (style == styles.front() || bytes > style_bytes_left_) return 0;
  style_bytes_left_ -= bytes;
  MakeRoom(styles, 1);
  *slot = static_cast<std::uint32_t>(styles.size());
  styles.push_back(style);
  return *slot;
}

void DocumentBuilder::EndParagraph(const ParagraphStyle& paragraph, bool in_row, Ending ending,
                                   const CharStyle& style) {
  if (document_.text.size() + 1 > kLongestText) return;
  LogParagraph(paragraph, in_row, ending);
  LogStyle(style);
  document_.text += '\n';
  paragraph_begin_ = document_.text.size();
}

void DocumentBuilder::LogParagraph(const ParagraphStyle& paragraph, bool in_row, Ending ending) {
  const std::uint32_t number = StyleNumber(paragraph);
  MakeRoom(paragraph_log_, 8);
  int mark = number != last_paragraph_style_ ? kOtherStyle : 0;
  if (in_row || ending == Ending::kCell) mark |= kInRow;
  if (ending == Ending::kCell) mark |= kEndsCell;
  paragraph_log_.push_back(static_cast<std::uint8_t>(mark));
  if ((mark & kOtherStyle) != 0) LogNumber(paragraph_log_, number);
  last_paragraph_style_ = number;
  ++paragraph_count_;
  row_begun_ = (mark & kInRow) != 0;
  if (!row_begun_) cells_in_row_ = 0;
  if (ending == Ending::kCell) ++cells_in_row_;
}

void DocumentBuilder::EndRow(const TableRow& shape) {
  const std::size_t cells = std::min(std::exchange(cells_in_row_, 0), shape.cells.size());
  if (!std::exchange(row_begun_, false)) return;
  MakeRoom(paragraph_log_, 8);
  paragraph_log_.push_back(kEndsRow);
  if (cells == 0) {
    LogNumber(paragraph_log_, 0);
    return;
  }
  const auto end = shape.cells.begin() + static_cast<std::ptrdiff_t>(cells);
  if (shapes_.empty() || shapes_.back().left != shape.left ||
      !std::equal(shape.cells.begin(), end, shapes_.back().cells.begin(), shapes_.back().cells.end())) {
    MakeRoom(shapes_, 1);
    shapes_.push_back({shape.left, {shape.cells.begin(), end}});
  }
  LogNumber(paragraph_log_, shapes_.size());
  ++row_count_;
}

void DocumentBuilder::BuildRuns() {
  auto& runs = document_.runs;
  runs.clear();
  runs.reserve(run_count_);
  LogReader log(run_log_);
  std::size_t begin = 0;
  CharStyle style;
  while (!log.AtEnd()) {
    begin += log.Number();
    log.ChangeStyle(style);
    // The last line end may have been left out.
    if (begin > 0 && begin >= document_.text.size()) break;
    runs.push_back({static_cast<std::uint32_t>(begin), style});
  }
}

void DocumentBuilder::BuildParagraphs() {
  auto& paragraphs = document_.paragraphs;
  paragraphs.clear();
  paragraphs.reserve(paragraph_count_);
  document_.rows.reserve(row_count_);
  LogReader log(paragraph_log_);
  std::size_t begin = 0;
  std::uint32_t style = 0;
  std::size_t row_begin = 0;  // the first paragraph that the next end of a row takes into it
  std::uint32_t cell = 0;
  while (!log.AtEnd()) {
    const std::uint8_t mark = log.Byte();
    if ((mark & kEndsRow) != 0) {
      if (const std::size_t shape = log.Number(); shape > 0) BuildRow(shape - 1, row_begin);
      row_begin = paragraphs.size();
      cell = 0;
      continue;
    }
    if ((mark & kOtherStyle) != 0) style = static_cast<std::uint32_t>(log.Number());
    paragraphs.push_back({static_cast<std::uint32_t>(begin), style, -1, cell});
    begin = document_.text.find('\n', begin) + 1;
    if ((mark & kEndsCell) != 0) ++cell;
    if ((mark & kInRow) == 0) {
      row_begin = paragraphs.size();
      cell = 0;
    }
  }
  for (Paragraph& paragraph : paragraphs) {
    if (paragraph.row < 0) paragraph.cell = 0;
  }
}

void DocumentBuilder::BuildRow(std::size_t shape, std::size_t first_paragraph) {
  const auto row = static_cast<std::int32_t>(document_.rows.size());
  const auto last_cell = static_cast<std::uint32_t>(shapes_[shape].cells.size() - 1);
  document_.rows.push_back(shapes_[shape]);
  for (std::size_t at = first_paragraph; at < document_.paragraphs.size(); ++at) {
    Paragraph& paragraph = document_.paragraphs[at];
    paragraph.row = row;
    paragraph.cell = std::min(paragraph.cell, last_cell);
  }
}

Document DocumentBuilder::Finish(const ParagraphStyle& last, const CharStyle& style) && {
  if (InParagraph() || document_.text.empty()) {
    LogParagraph(last, false, Ending::kParagraph);
  } else {
    document_.text.pop_back();
  }
  if (run_count_ == 0) LogStyle(style);
  if (document_.fonts.empty()) document_.fonts.emplace_back(kFallbackFont);
  constexpr std::size_t kRoomWorthKeeping = std::size_t{64} * 1024;
  if (document_.text.capacity() - document_.text.size() > kRoomWorthKeeping) document_.text.shrink_to_fit();
  BuildRuns();
  run_log_ = {};
  BuildParagraphs();
  return std::move(document_);
}

}  // namespace tarvane::rich_text
