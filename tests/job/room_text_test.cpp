#include "job/room_text.h"

#include <gmock/gmock.h>

namespace tarvane::job {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::vector<std::string> Lines(std::string_view text, const LineLayout& layout = kRoomItemLayout) {
  std::vector<std::string> lines;
  for (const auto& row : ItemLines(text, layout).Rows()) {
    std::string line;
    for (const std::string& cell : row) line += "[" + cell + "]";
    lines.push_back(line);
  }
  return lines;
}

TEST(RoomText, ReadsLines) {
  const struct {
    const char* what;
    std::string_view text;
    std::vector<std::string> lines;
  } kCases[] = {
      {"blank", "", {}},
      {"spaces only", "   ", {}},
      {"one line", "1|b|c|d|e|f|\r\n", {"[1][1][b][c][d][e][f]"}},
      {"outer spaces go, inner ones stay", "  1| b |c|d|e|f|\r\n  ", {"[1][1][ b ][c][d][e][f]"}},
      {"two lines", "1|b|c|d|e|f|\r\n2|||||g|\r\n", {"[1][1][b][c][d][e][f]", "[2][2][][][][][g]"}},
      {"a last line without an end isn't read", "1|b|c|d|e|f|\r\n2|b|c|d|e|f|", {"[1][1][b][c][d][e][f]"}},
      {"nothing but such a line", "1|b|c|d|e|f|", {}},
      {"what follows the sixth bar is dropped", "a|b|c|d|e|f|g|h|\r\n", {"[1][a][b][c][d][e][f]"}},
      {"the character before LF goes, CR or not", "a|b|c|d|e|f|\n", {"[1][a][b][c][d][e][]"}},
      {"a whole letter of it, not a byte of one",
       "a|b|\xC3\xA9\nc|d|\r\n",
       {"[1][a][b][][][][]", "[2][c][d][][][][]"}},
      {"short line: fields of the line before stay",
       "1|b|c|d|e|f|\r\n2|x|\r\n",
       {"[1][1][b][c][d][e][f]", "[2][2][x][c][d][e][f]"}},
      {"short line: unfinished text begins the next line's first field",
       "1|b|c|d|e|f|\r\n2|x|rest\r\n3|b|c|d|e|f|\r\n",
       {"[1][1][b][c][d][e][f]", "[2][2][x][c][d][e][f]", "[3][rest3][b][c][d][e][f]"}},
      {"it grows over lines without a bar",
       "ab\r\ncd\r\n1|\r\n",
       {"[1][][][][][][]", "[2][][][][][][]", "[3][abcd1][][][][][]"}},
      {"a blank line repeats the line before",
       "1|b|c|d|e|f|\r\n\r\n",
       {"[1][1][b][c][d][e][f]", "[2][1][b][c][d][e][f]"}},
      {"LF alone", "\n\n", {"[1][][][][][][]", "[2][][][][][][]"}},
      {"CR within a line stays", "1|b\rc|c|d|e|f|\r\n", {"[1][1][b\rc][c][d][e][f]"}},
  };
  for (const auto& c : kCases) EXPECT_EQ(Lines(c.text), c.lines) << c.what;
}

TEST(RoomText, ReadsSingleItems) {
  EXPECT_THAT(Lines("2|Rail|3.00|6.00|\r\n1|a|b|c|d|\r\n", kSingleItemLayout),
              ElementsAre("[1][2][Rail][3.00][6.00]", "[2][1][a][b][c]"));
}

TEST(RoomText, WritesLines) {
  EXPECT_EQ(WriteItemLines({{"7", "1", "b", "c", "d", "e", "f"}, {"9", "2"}}, kRoomItemLayout),
            "1|b|c|d|e|f|\r\n2||||||\r\n");
  EXPECT_EQ(WriteItemLines({{"1", "2", "Rail", "3.00", "6.00"}}, kSingleItemLayout), "2|Rail|3.00|6.00|\r\n");
  EXPECT_EQ(WriteItemLines({}, kRoomItemLayout), "");
}

TEST(RoomText, StandsWhenReadAndWritten) {
  const std::string text = "12.50|a, \"b\"|~0~~1~|CurtainWizard|101|x~y~|\r\n|\t| caf\xC3\xA9 |~|--||\r\n";
  EXPECT_EQ(WriteItemLines(ItemLines(text, kRoomItemLayout).Rows(), kRoomItemLayout), text);
}

TEST(RoomText, RoundsAfterEachItem) {
  const auto total = [](std::string_view text) {
    return ItemLines(text, kRoomItemLayout).RunningTotal("0.00");
  };
  EXPECT_EQ(total(""), "0.00");
  EXPECT_EQ(total("0.335|||||\r\n"), "0.34");
  EXPECT_EQ(total("0.335||||||\r\n0.335||||||\r\n"), "0.68");
  EXPECT_EQ(total("0.335||||||\r\n0.335||||||\r\n0.335||||||\r\n"), "1.02");
  EXPECT_EQ(total("12.50abc||||||\r\nabc||||||\r\n"), "12.50");
  EXPECT_EQ(total("-3||||||\r\n"), "-3.00");
  EXPECT_EQ(ItemLines("1||||||\r\n", kRoomItemLayout).RunningTotal("5.00"), "6.00");
  EXPECT_EQ(ItemLines("1|a|2|40.10|\r\n2|b|1|0.05|\r\n", kSingleItemLayout).RunningTotal("0.00"), "40.15");
}

HeldGrid::Row Item(std::string info) { return {"1", "", "", "", "", "", std::move(info)}; }

TEST(RoomText, CompilesTheSummary) {
  const struct {
    const char* what;
    std::vector<HeldGrid::Row> rows;
    std::string summary;
  } kCases[] = {
      {"no items", {}, ""},
      {"tokens", {Item("a~b~"), Item("c~")}, "a\r\nb\r\nc\r\n"},
      {"empty tokens", {Item("~~")}, "\r\n\r\n"},
      {"no tilde, no line", {Item("text")}, ""},
      {"text behind the last tilde begins the next item's first token",
       {Item("a~rest"), Item("b~")},
       "a\r\nrestb\r\n"},
      {"outer spaces", {Item("  a~ b ~  ")}, "a\r\n b \r\n"},
      {"a row without the field", {{"1", "2.00"}}, ""},
  };
  for (const auto& c : kCases) EXPECT_EQ(CompileRoomSummary(c.rows), c.summary) << c.what;
}

TEST(RoomText, ReadsSixtyThreeTokensOfAnItem) {
  std::string info;
  std::string expected;
  for (int i = 1; i <= 65; ++i) {
    info += std::to_string(i) + "~";
    if (i <= 63) expected += std::to_string(i) + "\r\n";
  }
  EXPECT_EQ(CompileRoomSummary({Item(info + "rest"), Item("next~")}), expected + "next\r\n");
}

TEST(RoomText, LongLinesOfNothingAreReadInNoTime) {
  // A first long field, then lines that repeat it: the fields are views, so that this takes no more memory.
  std::string text(1'000'000, 'x');
  text += "|\r\n";
  for (int i = 0; i < 100'000; ++i) text += "\r\n";
  const ItemLines lines(text, kRoomItemLayout);
  ASSERT_EQ(lines.size(), 100'001u);
  EXPECT_EQ(lines[100'000][0].data(), lines[0][0].data());
}

}  // namespace
}  // namespace tarvane::job
