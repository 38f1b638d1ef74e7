#pragma once

#include <array>
#include <cstddef>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "screen/grid.h"

// Item lines as they are stored in a memo column, and what is worked out from them.
//
// A line is a fixed number of fields, each followed by "|", ended by CR LF:
//   room item:   Price|Description|Infomation|Dialogbox|Item No|EstPageInfo|
//   single item: Qty|Description|Unit Price|Total|
// Nothing escapes "|", CR and LF within a field.
namespace tarvane::job {

// How one kind of line is laid out. Columns count from 1; grid column 0 is the line number.
struct LineLayout {
  std::size_t fields;
  int price_column;
};
inline constexpr std::size_t kMostFields = 6;
inline constexpr LineLayout kRoomItemLayout = {6, 1};
inline constexpr LineLayout kSingleItemLayout = {4, 4};

// Grid columns of a room item.
enum RoomItemColumn : int {
  kLineColumn = 0,
  kPriceColumn = 1,
  kDescriptionColumn = 2,
  kInfomationColumn = 3,
  kDialogboxColumn = 4,
  kItemNoColumn = 5,
  kEstPageInfoColumn = 6,
};

std::vector<std::string> RoomItemHeadings();
std::vector<std::string> SingleItemHeadings();

// The lines of a text, their fields as views into it; it must outlive them.
class ItemLines {
 public:
  using Fields = std::array<std::string_view, kMostFields>;

  // Outer spaces are dropped. A line ends at LF, and the character before it goes, CR or not; a last line
  // without LF isn't read. What stands behind the last field of a line is dropped. A line with too few bars
  // keeps the fields of the line before, and its text behind the last bar begins the next line's first field.
  // Linear in the length of the text.
  ItemLines(std::string_view text, const LineLayout& layout);
  ItemLines(const ItemLines&) = delete;
  ItemLines& operator=(const ItemLines&) = delete;

  std::size_t size() const { return lines_.size(); }
  const Fields& operator[](std::size_t line) const { return lines_[line]; }

  // Grid rows: the line number from 1, then the fields.
  std::vector<HeldGrid::Row> Rows() const;
  // `start`, with each line's price added and rounded to two decimals after each addition.
  std::string RunningTotal(std::string_view start) const;

 private:
  void ReadLine(std::string_view line);
  std::string_view TakeField(std::string_view piece);

  LineLayout layout_;
  std::vector<Fields> lines_;
  std::string unfinished_;          // text behind the last bar of short lines
  std::deque<std::string> joined_;  // fields that begin with such a text
};

// The text of a grid's rows, column 0 left out. Missing cells are empty fields.
std::string WriteItemLines(const std::vector<HeldGrid::Row>& rows, const LineLayout& layout);

// A room's summary: the tokens of each item's EstPageInfo (trimmed; each token ended by "~", 63 of an item at
// most), each followed by CR LF. Text behind an item's last "~" begins the next item's first token.
std::string CompileRoomSummary(const std::vector<HeldGrid::Row>& rows);

}  // namespace tarvane::job
