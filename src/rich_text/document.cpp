#include "rich_text/document.h"

#include <algorithm>

#include "text/fold.h"

namespace tarvane::rich_text {

std::size_t Document::ParagraphEnd(std::size_t paragraph) const {
  return paragraph + 1 < paragraphs.size() ? paragraphs[paragraph + 1].begin - 1 : text.size();
}

std::size_t Document::ParagraphAt(std::size_t place) const {
  const auto behind = std::ranges::upper_bound(paragraphs, place, {}, &Paragraph::begin);
  return behind == paragraphs.begin() ? 0 : static_cast<std::size_t>(behind - paragraphs.begin()) - 1;
}

std::size_t Document::RunAt(std::size_t place) const {
  const auto behind = std::ranges::upper_bound(runs, place, {}, &Run::begin);
  return behind == runs.begin() ? 0 : static_cast<std::size_t>(behind - runs.begin()) - 1;
}

std::uint16_t Document::FontNumber(std::string_view name) {
  const auto found = std::ranges::find(fonts, name);
  if (found != fonts.end()) return static_cast<std::uint16_t>(found - fonts.begin());
  if (fonts.size() >= 0xFFFF) return 0;
  fonts.emplace_back(name);
  return static_cast<std::uint16_t>(fonts.size() - 1);
}

bool SameContent(const Document& one, const Document& other) {
  const auto same_look = [&](const Run& left, const Run& right) {
    CharStyle style = right.style;
    style.font = left.style.font;
    return left.begin == right.begin && left.style == style &&
           one.fonts[left.style.font] == other.fonts[right.style.font];
  };
  const auto same_paragraph = [&](const Paragraph& left, const Paragraph& right) {
    return left.begin == right.begin && left.row == right.row && left.cell == right.cell &&
           one.StyleOf(left) == other.StyleOf(right);
  };
  return one.text == other.text && one.pictures == other.pictures && one.rows == other.rows &&
         std::ranges::equal(one.runs, other.runs, same_look) &&
         std::ranges::equal(one.paragraphs, other.paragraphs, same_paragraph);
}

namespace {

constexpr std::string_view kUnknown = "\xEF\xBF\xBD";        // U+FFFD
constexpr std::string_view kLineSeparator = "\xE2\x80\xA8";  // U+2028

bool IsPlain(char character) { return static_cast<unsigned char>(character) - 0x20U < 0x5F; }

void BeginParagraph(Document& document, bool on_new_page) {
  Paragraph paragraph;
  document.text += '\n';
  paragraph.begin = static_cast<std::uint32_t>(document.text.size());
  if (on_new_page) {
    if (document.paragraph_styles.size() == 1)
      document.paragraph_styles.emplace_back().page_break_before = true;
    paragraph.style = 1;
  }
  document.paragraphs.push_back(paragraph);
}

// Takes the character at the front of `text`, which isn't plain ASCII. Gives its length.
std::size_t TakeCharacter(Document& document, std::string_view text) {
  const auto [character, length] = DecodeCharacter(text, 0);
  if (character == '\r' || character == '\n') {
    BeginParagraph(document, false);
    return text.starts_with("\r\n") ? 2 : 1;
  }
  if (character == '\f') {
    BeginParagraph(document, true);
  } else if (character >= kBadByte || text.starts_with(kPictureSign)) {
    document.text += kUnknown;
  } else if (character >= ' ' || character == '\t') {
    document.text += text.substr(0, length);
  }
  return length;
}

}  // namespace

Document FromPlainText(std::string_view text, const CharStyle& style, std::string_view font) {
  Document document;
  document.fonts = {std::string(font)};
  document.runs.front().style = style;
  document.runs.front().style.font = 0;
  document.text.reserve(text.size());
  while (!text.empty()) {
    const auto plain_end = std::ranges::find_if_not(text, IsPlain);
    const auto plain = static_cast<std::size_t>(plain_end - text.begin());
    document.text += text.substr(0, plain);
    text.remove_prefix(plain);
    if (!text.empty()) text.remove_prefix(TakeCharacter(document, text));
  }
  return document;
}

namespace {

// Text of one paragraph: without pictures, lines ended.
void AppendPlain(std::string& plain, std::string_view text) {
  while (!text.empty()) {
    // Both begin with one of these bytes.
    const std::size_t before = std::min(text.find_first_of("\xE2\xEF"), text.size());
    plain += text.substr(0, before);
    text.remove_prefix(before);
    if (text.starts_with(kLineSeparator)) {
      plain += "\r\n";
      text.remove_prefix(kLineSeparator.size());
    } else if (text.starts_with(kPictureSign)) {
      text.remove_prefix(kPictureSign.size());
    } else {
      plain += text.substr(0, 1);
      text.remove_prefix(text.empty() ? 0 : 1);
    }
  }
}

}  // namespace

std::string PlainText(const Document& document) {
  std::string plain;
  plain.reserve(document.text.size() + document.paragraphs.size());
  const std::string_view text = document.text;
  for (std::size_t at = 0; at < document.paragraphs.size(); ++at) {
    const Paragraph& paragraph = document.paragraphs[at];
    if (at > 0) {
      const Paragraph& last = document.paragraphs[at - 1];
      const bool next_cell = last.row >= 0 && last.row == paragraph.row && last.cell != paragraph.cell;
      plain += next_cell ? "\t" : "\r\n";
    }
    AppendPlain(plain, text.substr(paragraph.begin, document.ParagraphEnd(at) - paragraph.begin));
  }
  return plain;
}

}  // namespace tarvane::rich_text
