#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tarvane::catalogues {

// How large a price list may be. What is beyond faults, and nothing of it is kept.
namespace price_limit {
inline constexpr std::size_t kFileBytes = std::size_t{64} << 20;
inline constexpr std::size_t kUnpackedBytes = std::size_t{256} << 20;  // of a spreadsheet's packed parts
inline constexpr std::size_t kTextBytes = std::size_t{64} << 20;       // of all cells
inline constexpr std::size_t kLines = 200'000;                         // with something in them
inline constexpr std::size_t kColumns = 256;
inline constexpr std::size_t kCells = 4'000'000;
}  // namespace price_limit

// The lines of a price list, each a row of cells as UTF-8 texts without outer blanks. Lines without any text
// are left out. Kept as one text, since a list may have half a million cells.
class PriceSheet {
 public:
  struct Cell {
    std::string_view text;
    bool number = false;  // the file holds it as a number, not as a text: its decimal mark is a point
  };

  std::size_t LineCount() const { return lines_.size(); }
  // Of the longest line.
  std::size_t ColumnCount() const { return columns_; }
  // Where the line stands in its file, from 1.
  std::int64_t LineNumber(std::size_t line) const { return lines_[line].number; }
  // Blank outside the line.
  Cell At(std::size_t line, std::size_t column) const;

  // Cells come from left to right, then the line ends. Each faults where the list becomes too large.
  void AddCell(std::string_view text, bool number = false);
  void EndLine(std::int64_t number);

 private:
  struct Piece {
    std::uint32_t end = 0;
    bool number = false;
  };
  struct Line {
    std::int64_t number = 0;
    std::size_t first_cell = 0;
  };

  std::string text_;
  std::vector<Piece> cells_;
  std::vector<Line> lines_;
  std::size_t line_start_ = 0;  // the first cell of the line that is being added
  std::size_t columns_ = 0;
};

}  // namespace tarvane::catalogues
