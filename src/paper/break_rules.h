#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// Where a line of text may end. Places are byte offsets; texts are UTF-8, and bytes that are none count as
// letters.
namespace tarvane::paper {

// A piece of text that is measured as a whole.
struct Segment {
  enum class Kind {
    kText,
    kBlanks,      // one or more of " "
    kTab,         // one
    kPicture,     // the sign that stands for one
    kLineEnd,     // U+2028
    kSoftHyphen,  // a hyphen where the line ends behind it, else nothing
    kNoWidth,     // U+200B: nothing, and the line may end behind it
  };
  Kind kind = Kind::kText;
  std::size_t end = 0;
  bool break_behind = false;  // of kText: whether the line may end there
};

// The segment of `text` that begins at `begin` and ends at `limit` at the latest; both lie within, and the
// segment isn't empty. What stands around it counts too: nothing that closes begins a line.
Segment NextSegment(std::string_view text, std::size_t begin, std::size_t limit);

// The end of the character that begins at `at`, marks that stand upon it included (but for a heap of them).
std::size_t CharacterEnd(std::string_view text, std::size_t at);

// `text` without the characters that are never drawn: soft hyphens and U+200B.
std::string_view WithoutHidden(std::string_view text, std::string& room);

}  // namespace tarvane::paper
