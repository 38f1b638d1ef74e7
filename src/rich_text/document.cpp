#include "rich_text/document.h"

#include <algorithm>

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

Document FromPlainText(std::string_view text, const CharStyle& style, std::string_view font) {
  Document document;
  document.fonts = {std::string(font)};
  document.runs.front().style = style;
  document.runs.front().style.font = 0;
  document.text.reserve(text.size());
  const auto begin_paragraph = [&](bool on_new_page) {
    Paragraph paragraph;
    document.text += '\n';
    paragraph.begin = static_cast<std::uint32_t>(document.text.size());
    if (on_new_page) {
      if (document.paragraph_styles.size() == 1) {
        document.paragraph_styles.emplace_back().page_break_before = true;
      }
      paragraph.style = 1;
    }
    document.paragraphs.push_back(paragraph);
  };
  for (std::size_t at = 0; at < text.size(); ++at) {
    const char character = text[at];
    if (character == '\r' || character == '\n') {
      if (character == '\r' && at + 1 < text.size() && text[at + 1] == '\n') ++at;
      begin_paragraph(false);
    } else if (character == '\f') {
      begin_paragraph(true);
    } else if (static_cast<unsigned char>(character) >= ' ' || character == '\t') {
      document.text += character;
    }
  }
  return document;
}

std::string PlainText(const Document& document) {
  std::string plain;
  plain.reserve(document.text.size() + document.paragraphs.size());
  for (const char character : document.text) {
    if (character == '\n') plain += '\r';
    plain += character;
  }
  return plain;
}

}  // namespace tarvane::rich_text
