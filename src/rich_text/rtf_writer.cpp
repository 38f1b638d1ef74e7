#include <algorithm>
#include <array>
#include <charconv>
#include <map>
#include <utility>

#include "rich_text/picture.h"
#include "rich_text/rtf.h"
#include "text/fold.h"

namespace tarvane::rich_text {

namespace {

struct NamedCharacter {
  char32_t character;
  std::string_view rtf;
};

constexpr std::array kNamed = std::to_array<NamedCharacter>(
    {{'\t', "\\tab "}, {0xA0, "\\~"}, {0xAD, "\\-"}, {0x2011, "\\_"}, {0x2028, "\\line "}});

// What readers without Unicode show in place of common characters: their bytes in the Western code page.
struct Fallback {
  char32_t character;
  std::string_view rtf;
};
constexpr std::array kFallbacks = std::to_array<Fallback>({{0x20AC, "\\'80"},
                                                           {0x2026, "\\'85"},
                                                           {0x2013, "\\'96"},
                                                           {0x2014, "\\'97"},
                                                           {0x2018, "\\'91"},
                                                           {0x2019, "\\'92"},
                                                           {0x201C, "\\'93"},
                                                           {0x201D, "\\'94"},
                                                           {0x2022, "\\'95"},
                                                           {0x2122, "\\'99"}});

struct FontFamily {
  std::string_view part;  // of the name
  std::string_view rtf;
};
constexpr std::array kFamilies = std::to_array<FontFamily>({{"Courier", "\\fmodern"},
                                                            {"Mono", "\\fmodern"},
                                                            {"Consolas", "\\fmodern"},
                                                            {"Times", "\\froman"},
                                                            {"Serif", "\\froman"},
                                                            {"Georgia", "\\froman"},
                                                            {"Garamond", "\\froman"},
                                                            {"Cambria", "\\froman"},
                                                            {"Script", "\\fscript"}});

void AppendNumber(std::string& rtf, std::int64_t number) {
  char digits[24];
  rtf.append(digits, std::to_chars(digits, digits + sizeof digits, number).ptr);
}

void AppendWord(std::string& rtf, std::string_view word, std::int64_t number) {
  rtf += word;
  AppendNumber(rtf, number);
}

void AppendHex(std::string& rtf, unsigned char byte) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  rtf += kDigits[byte >> 4];
  rtf += kDigits[byte & 15];
}

void AppendUnicode(std::string& rtf, char32_t character) {
  const auto unit = [&](char32_t code) {
    AppendWord(rtf, "\\u", code < 0x8000 ? static_cast<std::int64_t>(code) : std::int64_t{code} - 0x10000);
  };
  if (character >= 0x10000) {
    unit(0xD800 + ((character - 0x10000) >> 10));
    rtf += '?';
    unit(0xDC00 + (character & 0x3FF));
    rtf += '?';
    return;
  }
  unit(character);
  const auto fallback = std::ranges::find(kFallbacks, character, &Fallback::character);
  if (fallback != kFallbacks.end()) {
    rtf += fallback->rtf;
  } else if (character >= 0xA0 && character <= 0xFF) {
    rtf += "\\'";
    AppendHex(rtf, static_cast<unsigned char>(character));
  } else {
    rtf += '?';
  }
}

bool IsPlain(char character) {
  return static_cast<unsigned char>(character) - 0x20U < 0x60 && character != '\\' && character != '{' &&
         character != '}';
}

// A character that doesn't stand for itself. Control characters but the tab are left out.
void AppendEscaped(std::string& rtf, char32_t character) {
  const auto named = std::ranges::find(kNamed, character, &NamedCharacter::character);
  if (named != kNamed.end()) {
    rtf += named->rtf;
  } else if (character >= kBadByte) {
    AppendUnicode(rtf, 0xFFFD);
  } else if (character >= 0x80) {
    AppendUnicode(rtf, character);
  } else if (character >= ' ') {
    rtf += '\\';
    rtf += static_cast<char>(character);
  }
}

// Without line ends.
void AppendText(std::string& rtf, std::string_view text) {
  while (!text.empty()) {
    const auto plain = static_cast<std::size_t>(std::ranges::find_if_not(text, IsPlain) - text.begin());
    rtf += text.substr(0, plain);
    text.remove_prefix(plain);
    if (text.empty()) return;
    const auto [character, length] = DecodeCharacter(text, 0);
    AppendEscaped(rtf, character);
    text.remove_prefix(length);
  }
}

class RtfWriter {
 public:
  explicit RtfWriter(const Document& document) : document_(document) {}

  std::string Write() {
    rtf_.reserve(document_.text.size() + document_.text.size() / 4 + 1024);
    rtf_ += "{\\rtf1\\ansi\\ansicpg1252\\uc1\\deff0";
    WriteFonts();
    WriteColors();
    rtf_ += "\n";
    for (std::size_t at = 0; at < document_.paragraphs.size(); ++at) WriteParagraph(at);
    rtf_ += "}\n";
    return std::move(rtf_);
  }

 private:
  using ColorKey = std::uint32_t;
  static ColorKey KeyOf(const Color& color) {
    return static_cast<ColorKey>(color.red << 16 | color.green << 8 | color.blue);
  }

  void WriteFonts() {
    rtf_ += "{\\fonttbl";
    for (std::size_t at = 0; at < document_.fonts.size(); ++at) {
      const std::string_view name = document_.fonts[at];
      const auto holds = [&](std::string_view part) { return name.find(part) != name.npos; };
      const auto family = std::ranges::find_if(kFamilies, holds, &FontFamily::part);
      AppendWord(rtf_, "{\\f", static_cast<std::int64_t>(at));
      const bool sans = holds("Sans") || family == kFamilies.end();
      rtf_ += sans ? "\\fswiss" : family->rtf;
      rtf_ += "\\fcharset0 ";
      AppendText(rtf_, name);
      rtf_ += ";}";
    }
    rtf_ += "}\n";
  }

  // The first, which has no parts, is the reader's own: black.
  void WriteColors() {
    colors_[KeyOf({})] = 0;
    rtf_ += "{\\colortbl;";
    for (const Run& run : document_.runs) {
      const Color& color = run.style.color;
      if (!colors_.try_emplace(KeyOf(color), colors_.size()).second) continue;
      AppendWord(rtf_, "\\red", color.red);
      AppendWord(rtf_, "\\green", color.green);
      AppendWord(rtf_, "\\blue", color.blue);
      rtf_ += ';';
    }
    rtf_ += "}";
  }

  void WriteParagraph(std::size_t at) {
    const Paragraph& paragraph = document_.paragraphs[at];
    const Paragraph* const before = at == 0 ? nullptr : &document_.paragraphs[at - 1];
    const Paragraph* const next =
        at + 1 < document_.paragraphs.size() ? &document_.paragraphs[at + 1] : nullptr;
    const bool in_table = paragraph.row >= 0;
    const bool row_begins = in_table && (before == nullptr || before->row != paragraph.row);
    const bool row_ends = in_table && (next == nullptr || next->row != paragraph.row);
    const bool cell_ends = in_table && (row_ends || next->cell != paragraph.cell);
    if (row_begins) WriteRow(document_.rows[static_cast<std::size_t>(paragraph.row)]);
    if (before == nullptr || before->style != paragraph.style || (before->row < 0) != (paragraph.row < 0)) {
      WriteParagraphStyle(document_.StyleOf(paragraph), in_table);
    }
    WriteRuns(paragraph.begin, next == nullptr ? document_.text.size() : next->begin);
    rtf_ += cell_ends ? "\\cell" : "\\par";
    rtf_ += row_ends ? "\\row\n" : "\n";
    in_word_ = false;
  }

  void WriteRow(const TableRow& row) {
    constexpr std::array<std::pair<Side, std::string_view>, 4> kSides = {{{kTopSide, "\\clbrdrt"},
                                                                          {kLeftSide, "\\clbrdrl"},
                                                                          {kBottomSide, "\\clbrdrb"},
                                                                          {kRightSide, "\\clbrdrr"}}};
    AppendWord(rtf_, "\\trowd\\trgaph70\\trleft", row.left);
    for (const TableCell& cell : row.cells) {
      for (const auto& [side, word] : kSides) {
        if ((cell.borders & side) == 0) continue;
        rtf_ += word;
        rtf_ += "\\brdrs\\brdrw10";
      }
      AppendWord(rtf_, "\\cellx", cell.right);
    }
    rtf_ += "\n";
  }

  void WriteParagraphStyle(const ParagraphStyle& style, bool in_table) {
    constexpr std::array<std::string_view, 4> kAlignments = {"", "\\qr", "\\qc", "\\qj"};
    constexpr std::array<std::string_view, 4> kTabs = {"", "\\tqr", "\\tqc", "\\tqdec"};
    rtf_ += "\\pard";
    if (in_table) rtf_ += "\\intbl";
    rtf_ += kAlignments[static_cast<std::size_t>(style.alignment)];
    if (style.page_break_before) rtf_ += "\\pagebb";
    const std::pair<std::string_view, std::int32_t> lengths[] = {
        {"\\li", style.left},   {"\\ri", style.right}, {"\\fi", style.first_line},
        {"\\sb", style.before}, {"\\sa", style.after}, {"\\sl", style.line_height}};
    for (const auto& [word, length] : lengths) {
      if (length != 0) AppendWord(rtf_, word, length);
    }
    if (style.line_height != 0) rtf_ += "\\slmult0";
    for (const TabStop& tab : style.tabs) {
      rtf_ += kTabs[static_cast<std::size_t>(tab.kind)];
      AppendWord(rtf_, "\\tx", tab.at);
    }
    in_word_ = true;
  }

  // The text from `at` to `end`, and the look of the mark that ends the paragraph.
  void WriteRuns(std::size_t at, std::size_t end) {
    std::size_t run = document_.RunAt(at);
    do {
      if (run_written_ != &document_.runs[run]) WriteStyle(document_.runs[run]);
      const std::size_t behind = run + 1 < document_.runs.size() ? document_.runs[run + 1].begin : end;
      const std::size_t stop = std::min(behind, end);
      WriteText(std::string_view(document_.text).substr(at, stop - at));
      at = stop;
      ++run;
    } while (at < end);
  }

  // Only what is other than before.
  void WriteStyle(const Run& run) {
    const CharStyle& style = run.style;
    const CharStyle last = run_written_ == nullptr ? CharStyle{} : run_written_->style;
    const bool all = run_written_ == nullptr;
    if (all) rtf_ += "\\plain";
    if (all || style.font != last.font) AppendWord(rtf_, "\\f", style.font);
    if (all || style.half_points != last.half_points) AppendWord(rtf_, "\\fs", style.half_points);
    if (style.color != last.color) {
      AppendWord(rtf_, "\\cf", static_cast<std::int64_t>(colors_.at(KeyOf(style.color))));
    }
    const auto flag = [&](bool is, bool was, std::string_view on, std::string_view off) {
      if (is != was) rtf_ += is ? on : off;
    };
    flag(style.bold, last.bold, "\\b", "\\b0");
    flag(style.italic, last.italic, "\\i", "\\i0");
    flag(style.underline, last.underline, "\\ul", "\\ulnone");
    flag(style.strike, last.strike, "\\strike", "\\strike0");
    run_written_ = &run;
    in_word_ = true;
  }

  void WriteText(std::string_view text) {
    if (text.ends_with('\n')) text.remove_suffix(1);
    if (text.empty()) return;
    if (std::exchange(in_word_, false)) rtf_ += ' ';
    while (true) {
      const std::size_t sign = std::min(text.find(kPictureSign), text.size());
      AppendText(rtf_, text.substr(0, sign));
      if (sign == text.size()) return;
      if (picture_ < document_.pictures.size()) WritePicture(document_.pictures[picture_++]);
      text.remove_prefix(sign + kPictureSign.size());
    }
  }

  void WritePicture(const Picture& picture) {
    constexpr std::size_t kBytesOfLine = 64;
    rtf_ += picture.format == Picture::Format::kPng ? "{\\pict\\pngblip" : "{\\pict\\jpegblip";
    if (const auto pixels = PictureSize(picture)) {
      AppendWord(rtf_, "\\picw", pixels->width);
      AppendWord(rtf_, "\\pich", pixels->height);
    }
    AppendWord(rtf_, "\\picwgoal", picture.width);
    AppendWord(rtf_, "\\pichgoal", picture.height);
    rtf_.reserve(rtf_.size() + picture.bytes.size() * 2 + picture.bytes.size() / kBytesOfLine + 2);
    for (std::size_t at = 0; at < picture.bytes.size(); ++at) {
      if (at % kBytesOfLine == 0) rtf_ += '\n';
      AppendHex(rtf_, static_cast<unsigned char>(picture.bytes[at]));
    }
    rtf_ += '}';
  }

  const Document& document_;
  std::string rtf_;
  std::map<ColorKey, std::size_t> colors_;
  const Run* run_written_ = nullptr;
  std::size_t picture_ = 0;
  bool in_word_ = false;  // a control word stands last, which a blank ends
};

}  // namespace

std::string WriteRtf(const Document& document) { return RtfWriter(document).Write(); }

std::string EscapeForRtf(std::string_view text) {
  const bool beyond_ascii = !std::ranges::all_of(text, [](char byte) { return (byte & 0x80) == 0; });
  std::string rtf;
  rtf.reserve(text.size() + text.size() / 8 + 8);
  // What stands before and behind may be a control word, or tell of other lengths of fallbacks.
  rtf += beyond_ascii ? "{\\uc1 " : "{";
  while (true) {
    const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
    AppendText(rtf, text.substr(0, end));
    if (end == text.size()) break;
    rtf += "\\line ";
    text.remove_prefix(end + (text.substr(end).starts_with("\r\n") ? 2 : 1));
  }
  rtf += '}';
  return rtf;
}

}  // namespace tarvane::rich_text
