#pragma once

#include <optional>
#include <span>
#include <vector>

#include "paper/font_looks.h"
#include "paper/surface.h"
#include "rich_text/document.h"

namespace tarvane::paper {

// A part of a line that looks alike and has no tab in it; or a tab; or a picture.
struct LinePiece {
  enum class Kind { kText, kTab, kPicture };
  Kind kind = Kind::kText;
  std::size_t begin = 0;  // in Document::text
  std::size_t end = 0;
  rich_text::CharStyle style;
  double x = 0;  // points from the sheet's left edge
  double width = 0;
  double height = 0;    // of a picture
  bool hidden = false;  // has characters that aren't drawn
  double blank = 0;     // so much wider is each blank
};

struct Line {
  std::vector<LinePiece> pieces;
  std::size_t next = 0;         // what stands behind it, in Document::text
  bool ends_paragraph = false;  // nothing of the paragraph does
  bool hyphen = false;          // a soft hyphen shows at its end
  double x = 0;                 // where its first piece begins, or would
  double ascent = 0;            // down to the base line
  double height = 0;            // at least 1
};

// Where the lines of a paragraph stand, in points from the sheet's left edge.
struct LineSpace {
  double origin = 0;  // tab stops count from here
  double left = 0;
  double first = 0;  // left of the first line
  double right = 0;
  double most_height = 0;  // of a picture
};
// A column of text with the indents of `style`, which give way where they would leave no room.
LineSpace SpaceOf(const rich_text::ParagraphStyle& style, double left, double right, double most_height);

// Fills lines with the text of a document.
class LineBuilder {
 public:
  // `pictures`: where they stand in the text. All must outlive it.
  LineBuilder(const rich_text::Document& document, FontLooks& looks, std::span<const std::uint32_t> pictures)
      : document_(document), looks_(looks), pictures_(pictures) {}

  // The line from `begin` on of a paragraph that begins at `paragraph` and ends at `end`; one character or
  // more. Valid until the next call.
  const Line& Build(const rich_text::ParagraphStyle& style, const LineSpace& space, std::size_t paragraph,
                    std::size_t begin, std::size_t end);

  FontLooks& looks() { return looks_; }
  const rich_text::Picture* PictureAt(std::size_t place) const;  // null where none belongs to the sign

 private:
  // The pieces behind a tab, which move while they grow.
  struct Group {
    rich_text::TabKind kind = rich_text::TabKind::kLeft;
    double stop = 0;
    double start = 0;  // where the tab begins that they stand behind
    std::size_t first_piece = 0;
    double width = 0;
    double tail = 0;                     // of the blanks at its end
    std::optional<double> before_point;  // the width before the decimal point
    double EndWith(double more) const;
    double Begin() const;
  };
  // Where the line may end.
  struct Opportunity {
    std::size_t next = 0;
    std::size_t pieces = 0;
    LinePiece last;
    Group group;
    bool hyphen = false;
  };

  bool BuildPlain(std::size_t begin, std::size_t end);
  void SetPlain(std::size_t begin, std::size_t end, std::int64_t parts, const FontLook& look);
  bool TakeText(std::size_t begin, std::size_t end, bool break_behind, const FontLook& look);
  void TakeBlanks(std::size_t begin, std::size_t end, const FontLook& look);
  bool TakeTab(std::size_t at, const FontLook& look);
  bool TakePicture(std::size_t begin, std::size_t end, const FontLook& look);
  void TakeHidden(std::size_t begin, std::size_t end, bool hyphen, const FontLook& look);
  LinePiece& PieceFor(std::size_t begin, std::size_t end, const FontLook& look);
  void MarkOpportunity(std::size_t next, bool hyphen);
  bool EndAtOpportunity();
  void Cut(std::size_t begin, std::size_t end, const FontLook& look);
  double NextStop(double x, rich_text::TabKind& kind) const;
  void SettleGroup();
  void Finish(std::size_t begin);
  void TrimBlanks();
  void AlignPieces();
  void SpreadBlanks(double room);
  void SetHeight(std::size_t begin);

  const rich_text::Document& document_;
  FontLooks& looks_;
  std::span<const std::uint32_t> pictures_;

  const rich_text::ParagraphStyle* style_ = nullptr;
  LineSpace space_;
  Line line_;
  Group group_;
  bool has_opportunity_ = false;
  Opportunity opportunity_;
};

}  // namespace tarvane::paper
