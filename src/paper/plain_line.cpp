// Lines of one look without tabs.
#include <algorithm>

#include "paper/line_builder.h"

namespace tarvane::paper {
namespace {

constexpr std::size_t kLongRun = 32;
constexpr std::int64_t kMostBlanks = std::int64_t{1} << 60;

bool IsWord(char c) { return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }

// Looks for the end of a line in a text of one look that is made of words, blanks and hyphens.
struct PlainScan {
  enum End { kOther, kFull, kEnd };

  std::string_view text;
  const FontLook& look;
  std::int64_t room;  // in parts of a point, as all widths here
  std::size_t begin;
  std::int64_t width = 0;    // up to the end or the break
  std::size_t break_at = 0;  // where the line ends; what follows goes on at `next`
  std::size_t next = 0;

  End Run(std::size_t limit) {
    for (std::size_t at = SkipBlocks(limit); at < limit; ++at) {
      const std::int64_t advance = AdvanceAt(at);
      if (advance >= FontLook::kNotPlain || width > kMostBlanks) return kOther;
      if (text[at] != ' ' && width + advance > room) return FindBreak(at);
      width += advance;
    }
    return kEnd;
  }

  std::int64_t AdvanceAt(std::size_t at) const { return look.advances[static_cast<unsigned char>(text[at])]; }

  // Goes over what fits without a look at what it is, some characters at a time.
  std::size_t SkipBlocks(std::size_t limit) {
    static constexpr std::size_t kBlock = 8;
    std::int64_t sum = 0;
    std::size_t at = begin;
    for (; at + kBlock <= limit; at += kBlock) {
      std::int64_t block = sum;
      for (std::size_t place = at; place < at + kBlock; ++place) block += AdvanceAt(place);
      if (block > room) break;
      sum = block;
    }
    width = sum;
    return at;
  }

  // Goes back from the character that doesn't fit to where the line may end.
  End FindBreak(std::size_t at) {
    for (next = at; next > begin; --next) {
      if (text[next - 1] == ' ') {
        for (break_at = next; break_at > begin && text[break_at - 1] == ' '; --break_at) {
          width -= AdvanceAt(break_at - 1);
        }
        return break_at > begin ? kFull : kOther;
      }
      const bool parts =
          text[next - 1] == '-' && next > begin + 1 && text[next - 2] != ' ' && text[next] != ' ';
      if (parts) {
        break_at = next;
        return IsWord(text[next - 2]) && IsWord(text[next]) ? kFull : kOther;
      }
      width -= AdvanceAt(next - 1);
    }
    return kOther;
  }
};

}  // namespace

// Most lines are words of one look with blanks between: they are set in one go, as the general way would set
// them. False where the line needs that.
bool LineBuilder::BuildPlain(std::size_t begin, std::size_t end) {
  const std::size_t run = document_.RunAt(begin);
  const bool last_run = run + 1 == document_.runs.size();
  const std::size_t limit = last_run ? end : std::min<std::size_t>(end, document_.runs[run + 1].begin);
  // A run that ends on the line has to be set with its neighbours.
  if (begin >= limit || (limit < end && limit - begin < kLongRun)) return false;
  const FontLook& look = looks_.WithAdvances(document_.runs[run].style);
  const double room = space_.right + kSlack - group_.start;
  if (!look.adds_up || !(room > 0)) return false;
  PlainScan scan{document_.text, look, static_cast<std::int64_t>(room * FontLook::kParts), begin};
  switch (scan.Run(limit)) {
    case PlainScan::kOther:
      return false;
    case PlainScan::kFull:
      line_.next = scan.next;
      SetPlain(begin, scan.break_at, scan.width, look);
      return true;
    case PlainScan::kEnd:
      if (limit < end || document_.text[end - 1] == ' ') return false;
      line_.ends_paragraph = true;
      SetPlain(begin, end, scan.width, look);
      return true;
  }
  return false;
}

void LineBuilder::SetPlain(std::size_t begin, std::size_t end, std::int64_t parts, const FontLook& look) {
  LinePiece& piece = line_.pieces.emplace_back();
  piece.begin = begin;
  piece.end = end;
  piece.style = look.style;
  piece.x = group_.start;
  piece.width = group_.width = static_cast<double>(parts) / FontLook::kParts;
  AlignPieces();
  SetHeight(begin);
}

}  // namespace tarvane::paper
