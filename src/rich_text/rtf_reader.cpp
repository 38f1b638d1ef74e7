#include "rich_text/rtf_reader.h"

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

namespace tarvane::rich_text {

namespace {

// Groups within groups beyond this many are read, but what they change holds until one of the outer ends.
constexpr std::size_t kMostSaved = 1'000;

// Bytes that are text as they stand.
constexpr std::array<bool, 256> kPlain = [] {
  std::array<bool, 256> plain{};
  for (std::size_t byte = ' '; byte < 0x7F; ++byte) plain[byte] = true;
  plain['\\'] = plain['{'] = plain['}'] = false;
  return plain;
}();

bool IsLetter(char character) { return static_cast<unsigned char>((character | 0x20) - 'a') < 26; }
bool IsDigit(char character) { return static_cast<unsigned char>(character - '0') < 10; }

int HexDigit(char character) {
  if (IsDigit(character)) return character - '0';
  const auto letter = static_cast<unsigned char>((character | 0x20) - 'a');
  return letter < 6 ? letter + 10 : -1;
}

// The number at `at`, which is moved behind it; what is too large stays at the largest.
int TakeNumber(std::string_view bytes, std::size_t& at) {
  constexpr int kMost = std::numeric_limits<int>::max();
  const bool negative = bytes[at] == '-';
  if (negative) ++at;
  std::int64_t number = 0;
  for (; at < bytes.size() && IsDigit(bytes[at]); ++at) {
    number = std::min<std::int64_t>(number * 10 + (bytes[at] - '0'), kMost);
  }
  return static_cast<int>(negative ? -number : number);
}

bool BeginsNumber(std::string_view bytes, std::size_t at) {
  if (at < bytes.size() && bytes[at] == '-') ++at;
  return at < bytes.size() && IsDigit(bytes[at]);
}

}  // namespace

RtfReader::RtfReader(std::string_view bytes) : bytes_(bytes), builder_(bytes.size()) { ResetCharacter({}); }

Document RtfReader::Read() && {
  while (!AtEnd() && !done_) Step();
  Settle();
  return std::move(builder_).Finish(LookOfParagraph(), state_.style);
}

void RtfReader::Step() {
  const char character = bytes_[at_];
  if (kPlain[static_cast<unsigned char>(character)]) {
    const std::size_t begin = at_;
    while (!AtEnd() && kPlain[static_cast<unsigned char>(bytes_[at_])]) ++at_;
    PutPlain(bytes_.substr(begin, at_ - begin));
    return;
  }
  ++at_;
  switch (character) {
    case '\\':
      ReadControl();
      break;
    case '{':
      OpenGroup();
      break;
    case '}':
      CloseGroup();
      break;
    case '\r':
    case '\n':
    case '\0':
      break;
    default:
      PutByte(static_cast<unsigned char>(character));
  }
}

void RtfReader::OpenGroup() {
  Settle();
  skip_ = 0;
  const bool skipped = std::exchange(state_.skips_next_group, false);
  if (depth_ < kMostSaved) saved_.push_back(state_);
  ++depth_;
  fresh_ = true;
  if (skipped) SkipGroup();
}

void RtfReader::CloseGroup() {
  Settle();
  skip_ = 0;
  fresh_ = false;
  if (depth_ == 0) return;
  if (--depth_ == 0) {
    done_ = true;
    return;
  }
  if (depth_ >= kMostSaved) return;
  const Destination ended = state_.destination;
  state_ = std::move(saved_.back());
  saved_.pop_back();
  if (ended == state_.destination) return;
  if (ended == Destination::kPicture) FinishPicture();
  if (ended == Destination::kFontTable) {
    FinishFont();
    UseFont(default_font_);
  }
}

// Up to the brace that closes the open group.
void RtfReader::SkipGroup() {
  constexpr std::string_view kBin = "bin";
  for (std::size_t depth = 1;; ++at_) {
    at_ = std::min(bytes_.find_first_of("\\{}", at_), bytes_.size());
    if (AtEnd()) return;
    if (bytes_[at_] == '{') {
      ++depth;
    } else if (bytes_[at_] == '}') {
      if (--depth == 0) return;
    } else if (std::size_t behind = at_ + 1 + kBin.size();
               bytes_.substr(at_ + 1).starts_with(kBin) && BeginsNumber(bytes_, behind)) {
      const int length = TakeNumber(bytes_, behind);
      at_ = behind - 1;
      if (length > 0 && static_cast<std::size_t>(length) < bytes_.size() - behind) {
        at_ += static_cast<std::size_t>(length) + 1;
      }
    } else {
      ++at_;
    }
  }
}

void RtfReader::ReadControl() {
  if (AtEnd()) return;
  if (IsLetter(bytes_[at_])) return ReadWord();
  const char symbol = bytes_[at_++];
  if (symbol == '*') {
    starred_ = fresh_;
    return;
  }
  if (symbol == '\'') {
    ReadHexByte();
  } else {
    ReadSymbol(symbol);
  }
  fresh_ = false;
}

void RtfReader::ReadWord() {
  const std::size_t begin = at_;
  std::uint32_t hash = 0;
  for (; !AtEnd() && IsLetter(bytes_[at_]); ++at_) hash = NextWordHash(hash, bytes_[at_]);
  const std::string_view name = bytes_.substr(begin, at_ - begin);
  Argument argument;
  argument.given = BeginsNumber(bytes_, at_);
  if (argument.given) argument.number = TakeNumber(bytes_, at_);
  if (!AtEnd() && bytes_[at_] == ' ') ++at_;

  const Word* const word = FindWord(name, hash);
  if (word != nullptr) argument.value = word->value;
  // Neither a fallback nor a half character goes on behind a word, unless the word is a character too.
  const auto act = word == nullptr ? &RtfReader::Ignore : word->act;
  if (act != &RtfReader::AddCharacter) skip_ = 0;
  if (act != &RtfReader::AddUnicode && act != &RtfReader::SetFallbackLength) Settle();
  const bool starred = std::exchange(starred_, false);
  if (starred && (word == nullptr || !word->survives_star)) {
    SkipGroup();
  } else if (word != nullptr) {
    (this->*word->act)(argument);
  }
  fresh_ = false;
}

void RtfReader::ReadSymbol(char symbol) {
  switch (symbol) {
    case '\\':
    case '{':
    case '}':
      PutPlain(std::string_view(&symbol, 1));
      break;
    case '~':
      PutFallbackOr(0xA0);
      break;
    case '-':
      PutFallbackOr(0xAD);
      break;
    case '_':
      PutFallbackOr(0x2011);
      break;
    case '\t':
      PutFallbackOr('\t');
      break;
    case '\r':
      if (!AtEnd() && bytes_[at_] == '\n') ++at_;
      EndOfParagraph({});
      break;
    case '\n':
      EndOfParagraph({});
      break;
    default:
      break;
  }
}

void RtfReader::ReadHexByte() {
  int byte = 0;
  int digits = 0;
  for (; digits < 2 && !AtEnd() && HexDigit(bytes_[at_]) >= 0; ++digits) {
    byte = byte * 16 + HexDigit(bytes_[at_++]);
  }
  if (digits > 0) PutByte(static_cast<unsigned char>(byte));
}

// Bytes as they are, for a picture. Lengths beyond the file's end are wrong, and what follows is read as
// text.
void RtfReader::Bin(const Argument& argument) {
  if (argument.number <= 0) return;
  const auto length = static_cast<std::size_t>(argument.number);
  if (length > bytes_.size() - at_) return;
  if (state_.destination == Destination::kPicture) PutPictureBytes(bytes_.substr(at_, length));
  at_ += length;
}

void RtfReader::SkipDestination(const Argument&) {
  if (fresh_ && depth_ > 1) SkipGroup();
}

void RtfReader::EnterDestination(const Argument& argument) {
  if (fresh_ && depth_ > 1 && depth_ <= kMostSaved) {
    state_.destination = static_cast<Destination>(argument.value);
  }
}

// {\upr{the text in a code page}{\*\ud{the text in Unicode}}}
void RtfReader::EnterUnicodePair(const Argument&) { state_.skips_next_group = fresh_; }

}  // namespace tarvane::rich_text
