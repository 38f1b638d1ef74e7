#include "catalogues/price_list/csv_reader.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <map>
#include <string>

#include "text/fault.h"

namespace tarvane::catalogues {

namespace {

constexpr std::string_view kSeparators = ",;\t";
constexpr std::size_t kLinesLookedAt = 100;
constexpr std::string_view kSeparatorLine = "sep=";

bool EndsLine(char c) { return c == '\r' || c == '\n'; }

// Walks over records piece by piece.
class RecordScanner {
 public:
  RecordScanner(std::string_view text, char separator) : text_(text), separator_(separator) {}

  bool AtEnd() const { return at_ >= text_.size(); }
  std::int64_t line() const { return line_; }

  // The next piece of the record, valid until the next call. `last`: the record ends behind it.
  std::string_view Piece(bool& last) {
    piece_.clear();
    const std::size_t start = at_;
    while (at_ < text_.size() && text_[at_] == ' ') ++at_;
    const bool quoted = at_ < text_.size() && text_[at_] == '"';
    if (!quoted) at_ = start;
    if (quoted) TakeQuoted();
    const std::size_t plain = at_;
    while (at_ < text_.size() && text_[at_] != separator_ && !EndsLine(text_[at_])) ++at_;
    const std::string_view rest = text_.substr(plain, at_ - plain);
    last = at_ >= text_.size() || text_[at_] != separator_;
    if (last) {
      EndOfLine();
    } else {
      ++at_;
    }
    if (!quoted) return rest;
    return piece_ += rest;
  }

 private:
  void TakeQuoted() {
    const std::int64_t begun = line_;
    for (++at_;;) {
      const std::size_t mark = text_.find('"', at_);
      if (mark == std::string_view::npos) {
        throw Fault("line " + std::to_string(begun) + " has a quote mark that isn't closed");
      }
      Append(text_.substr(at_, mark - at_));
      at_ = mark + 1;
      if (at_ >= text_.size() || text_[at_] != '"') return;
      piece_ += '"';
      ++at_;
    }
  }

  void Append(std::string_view quoted) {
    for (std::size_t i = 0; i < quoted.size(); ++i) {
      const bool pair = quoted[i] == '\r' && i + 1 < quoted.size() && quoted[i + 1] == '\n';
      if (EndsLine(quoted[i]) && !pair) ++line_;
    }
    piece_ += quoted;
  }

  void EndOfLine() {
    if (at_ >= text_.size()) return;
    const bool pair = text_[at_] == '\r' && at_ + 1 < text_.size() && text_[at_ + 1] == '\n';
    at_ += pair ? 2 : 1;
    ++line_;
  }

  std::string_view text_;
  char separator_;
  std::size_t at_ = 0;
  std::int64_t line_ = 1;
  std::string piece_;
};

// The separator that a first line "sep=;" names, 0 where there is none.
char NamedSeparator(std::string_view text) {
  const bool named = text.starts_with(kSeparatorLine) && text.size() > kSeparatorLine.size() &&
                     (text.size() == kSeparatorLine.size() + 1 || EndsLine(text[kSeparatorLine.size() + 1]));
  if (!named || kSeparators.find(text[kSeparatorLine.size()]) == std::string_view::npos) return 0;
  return text[kSeparatorLine.size()];
}

// How often the separators stand in each of the first lines, quoted pieces apart.
using Counts = std::map<std::size_t, std::size_t>;  // lines by how many there are in them
std::array<Counts, kSeparators.size()> CountSeparators(std::string_view text) {
  std::array<Counts, kSeparators.size()> lines;
  std::array<std::size_t, kSeparators.size()> in_line{};
  bool quoted = false;
  std::size_t seen = 0;
  for (std::size_t at = 0; at <= text.size() && seen < kLinesLookedAt; ++at) {
    if (at == text.size() || (!quoted && EndsLine(text[at]))) {
      for (std::size_t i = 0; i < in_line.size(); ++i) {
        if (in_line[i] > 0) ++lines[i][in_line[i]];
      }
      in_line.fill(0);
      ++seen;
      continue;
    }
    if (text[at] == '"') quoted = !quoted;
    const std::size_t which = quoted ? std::string_view::npos : kSeparators.find(text[at]);
    if (which != std::string_view::npos) ++in_line[which];
  }
  return lines;
}

}  // namespace

char FindSeparator(std::string_view text) {
  if (const char named = NamedSeparator(text)) return named;
  const auto counts = CountSeparators(text);
  char best = kSeparators.front();
  std::size_t most = 0;
  std::size_t most_pieces = 0;
  for (std::size_t i = 0; i < counts.size(); ++i) {
    for (const auto& [pieces, lines] : counts[i]) {
      if (lines < most || (lines == most && pieces <= most_pieces)) continue;
      most = lines;
      most_pieces = pieces;
      best = kSeparators[i];
    }
  }
  return best;
}

PriceSheet ReadSeparatedText(std::string_view text) {
  PriceSheet sheet;
  RecordScanner scanner(text, FindSeparator(text));
  if (NamedSeparator(text) != 0) {
    for (bool last = false; !last;) scanner.Piece(last);
  }
  while (!scanner.AtEnd()) {
    const std::int64_t line = scanner.line();
    for (bool last = false; !last;) sheet.AddCell(scanner.Piece(last));
    sheet.EndLine(line);
  }
  return sheet;
}

}  // namespace tarvane::catalogues
