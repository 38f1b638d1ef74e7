#include <algorithm>
#include <utility>

#include "rich_text/rtf_reader.h"

namespace tarvane::rich_text {

namespace {

constexpr char32_t kPictureSignCharacter = 0xFFFC;
constexpr int kLinesOfMultiple = 240;  // \sl240\slmult1 is one line

// What \slmult multiplies is the height of a line, which is about 23/20 of its letters'.
int LineHeight(int multiple, int half_points) {
  if (multiple <= kLinesOfMultiple) return 0;
  constexpr std::int64_t kTwipsPerHalfPoint = kTwipsPerPoint / 2;
  const std::int64_t letters = half_points * kTwipsPerHalfPoint;
  return static_cast<int>(std::min<std::int64_t>(letters * 23 * multiple / 20 / kLinesOfMultiple, kLongest));
}

}  // namespace

// Printable ASCII.
void RtfReader::PutPlain(std::string_view ascii) {
  fresh_ = false;
  starred_ = false;
  if (skip_ > 0) {
    const std::size_t skipped = std::min(static_cast<std::size_t>(skip_), ascii.size());
    skip_ -= static_cast<int>(skipped);
    ascii.remove_prefix(skipped);
  }
  if (!lead_.empty() && !ascii.empty()) {
    PutManyByte(static_cast<unsigned char>(ascii.front()));
    ascii.remove_prefix(1);
  }
  if (ascii.empty()) return;
  const bool symbols = state_.page == kSymbolPage || state_.page == kDingbatsPage;
  if (symbols && InText()) {
    for (const char byte : ascii) PutCharacter(DecodeByte(state_.page, static_cast<unsigned char>(byte)));
    return;
  }
  Settle();
  PutDecoded(ascii);
}

// A byte in the code page of the font.
void RtfReader::PutByte(unsigned char byte) {
  fresh_ = false;
  starred_ = false;
  if (skip_ > 0) {
    --skip_;
  } else if (!lead_.empty()) {
    PutManyByte(byte);
  } else if (IsLeadByte(state_.page, byte)) {
    Settle();
    lead_ = static_cast<char>(byte);
  } else {
    PutCharacter(DecodeByte(state_.page, byte));
  }
}

void RtfReader::PutManyByte(unsigned char byte) {
  lead_ += static_cast<char>(byte);
  if (lead_.size() < LengthOfCharacter(state_.page, static_cast<unsigned char>(lead_.front()))) return;
  const char32_t character = DecodeBytes(state_.page, std::exchange(lead_, {}));
  PutCharacter(character);
  // A letter is never lost to what only looked like the beginning of a character.
  if (character == kUnknownCharacter && byte < 0x80) PutCharacter(byte);
}

// A character that may stand for the one before it, where that can't be shown.
void RtfReader::PutFallbackOr(char32_t character) {
  if (skip_ > 0) {
    --skip_;
  } else {
    PutCharacter(character);
  }
}

void RtfReader::PutCharacter(char32_t character) {
  Settle();
  character = PlainSymbol(state_.page, character);
  if (character < ' ' && character != '\t') return;
  if (character == kPictureSignCharacter) character = kUnknownCharacter;
  letter_.clear();
  AppendUtf8(letter_, character);
  PutDecoded(letter_);
}

void RtfReader::PutDecoded(std::string_view text) {
  switch (state_.destination) {
    case Destination::kText:
      if (state_.hidden != 0) return;
      if (break_pending_) BreakPage();
      builder_.Append(text, state_.style);
      break;
    case Destination::kFontTable:
      PutFontName(text);
      break;
    case Destination::kColorTable:
      for (auto ends = std::ranges::count(text, ';'); ends > 0; --ends) FinishColor();
      break;
    case Destination::kPicture:
      PutHex(text);
      break;
    case Destination::kShapeProperty:
      if (shape_property_.size() < kShapePicture.size() * 2) shape_property_ += text;
      break;
    case Destination::kNowhere:
      break;
  }
}

// Parts of a character of which the rest didn't come.
void RtfReader::Settle() {
  if (high_surrogate_ == 0 && lead_.empty()) return;
  high_surrogate_ = 0;
  lead_.clear();
  PutDecoded("\xEF\xBF\xBD");
}

void RtfReader::BreakPage() {
  break_pending_ = false;
  if (state_.in_table) return;
  if (builder_.InParagraph()) EndParagraph(DocumentBuilder::Ending::kParagraph);
  break_here_ = true;
}

const ParagraphStyle& RtfReader::LookOfParagraph() {
  ParagraphStyle& paragraph = state_.paragraph;
  paragraph.page_break_before = state_.page_break_before || std::exchange(break_here_, false);
  paragraph.line_height =
      state_.line_multiple ? LineHeight(state_.line, state_.style.half_points) : state_.line;
  return paragraph;
}

void RtfReader::EndParagraph(DocumentBuilder::Ending ending) {
  Settle();
  builder_.EndParagraph(LookOfParagraph(), state_.in_table, ending, state_.style);
}

void RtfReader::AddUnicode(const Argument& argument) {
  if (!argument.given) return;
  const char32_t character =
      static_cast<char32_t>(argument.number < 0 ? argument.number + 0x10000 : argument.number);
  const bool is_high = character >= 0xD800 && character <= 0xDBFF;
  const bool is_low = character >= 0xDC00 && character <= 0xDFFF;
  if (is_low && high_surrogate_ != 0) {
    const char32_t high = std::exchange(high_surrogate_, 0);
    PutCharacter(0x10000 + ((high - 0xD800) << 10) + (character - 0xDC00));
  } else if (is_high) {
    Settle();
    high_surrogate_ = character;
  } else {
    PutCharacter(character);
  }
  skip_ = state_.fallback_length;
}

void RtfReader::AddCharacter(const Argument& argument) {
  PutFallbackOr(static_cast<char32_t>(argument.value));
}

void RtfReader::SetFallbackLength(const Argument& argument) {
  state_.fallback_length = argument.given ? std::max(argument.number, 0) : 1;
}

void RtfReader::EndOfParagraph(const Argument&) {
  if (InText()) EndParagraph(DocumentBuilder::Ending::kParagraph);
}

void RtfReader::EndOfPage(const Argument&) {
  if (!InText()) return;
  break_pending_ = true;
  break_is_sections_ = false;
}

void RtfReader::EndOfSection(const Argument&) {
  if (!InText()) return;
  if (builder_.InParagraph()) EndParagraph(DocumentBuilder::Ending::kParagraph);
  break_is_sections_ = !break_pending_;
  break_pending_ = true;
}

// Tells of a section's beginning that it isn't a page's.
void RtfReader::ContinueSection(const Argument&) {
  if (break_is_sections_) break_pending_ = false;
}

}  // namespace tarvane::rich_text
