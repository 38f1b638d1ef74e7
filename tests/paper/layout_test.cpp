#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "paper/paper_test_support.h"

namespace tarvane::paper {
namespace {

using rich_text::Alignment;
using rich_text::Document;
using rich_text::ParagraphStyle;
using rich_text::TabKind;
using testing::ElementsAreArray;
using Lines = std::vector<std::string>;

// A paragraph's style, in points.
struct Shape {
  Alignment alignment = Alignment::kLeft;
  int left = 0;
  int right = 0;
  int first_line = 0;
  int before = 0;
  int after = 0;
  int line_height = 0;
  std::vector<rich_text::TabStop> tabs = {};
};

ParagraphStyle StyleOf(const Shape& shape) {
  static constexpr int kTwips = rich_text::kTwipsPerPoint;
  ParagraphStyle style{shape.alignment,
                       false,
                       shape.left * kTwips,
                       shape.right * kTwips,
                       shape.first_line * kTwips,
                       shape.before * kTwips,
                       shape.after * kTwips,
                       shape.line_height * kTwips,
                       shape.tabs};
  for (rich_text::TabStop& tab : style.tabs) tab.at *= kTwips;
  return style;
}

struct Case {
  std::string name;
  std::string text;
  int columns = 10;
  Lines lines;
  Shape shape = {};
};

void PrintTo(const Case& each, std::ostream* out) { *out << each.name; }

class LayOut : public testing::TestWithParam<Case> {};

TEST_P(LayOut, PutsLinesInTheirPlaces) {
  Document document = Marked(GetParam().text);
  document.paragraph_styles.front() = StyleOf(GetParam().shape);
  EXPECT_THAT(Formatted(document, Columns(GetParam().columns)), ElementsAreArray(GetParam().lines));
}

const Case kCases[] = {
    {"Empty", "", 10, {"0,8 "}},
    {"BlanksEndLines", "one two three", 7, {"0,8 one two", "0,18 three"}},
    {"BlanksHangOver", "one two     three    ", 7, {"0,8 one two", "0,18 three"}},
    {"BlanksInFront", "  one", 7, {"0,8   one"}},
    {"Paragraphs", "one\n\ntwo\n", 7, {"0,8 one", "0,18 ", "0,28 two", "0,38 "}},
    {"WideWord", "abcdefghijklm no", 5, {"0,8 abcde", "0,18 fghij", "0,28 klm", "0,38 no"}},
    {"WideWordBehindBlank", "a bcdefghij", 5, {"0,8 a", "0,18 bcdef", "0,28 ghij"}},
    {"NoRoom", "abc", 0, {"0,8 a", "0,18 b", "0,28 c"}},
    {"Hyphens", "well-known -5 a--b", 8, {"0,8 well-", "0,18 known -5", "0,28 a--b"}},
    {"DoubleHyphens", "ab--cd", 5, {"0,8 ab--c", "0,18 d"}},
    {"SoftHyphens", "cur\u00ADtain\u00ADrail", 8, {"0,8 curtain-", "0,18 rail"}},
    {"SoftHyphenHasNoRoom", "cur\u00ADtain\u00ADrail", 7, {"0,8 cur-", "0,18 tain-", "0,28 rail"}},
    {"NoWidthBlank", "abc\u200Bdef", 5, {"0,8 abc", "0,18 def"}},
    {"HardBlank", "a b\u00A0c", 4, {"0,8 a", "0,18 b\u00A0c"}},
    {"LineEnd", "ab\u2028cd\u2028", 5, {"0,8 ab", "0,18 cd", "0,28 "}},
    {"Ideographs", "窗簾。窗「簾」窗", 3, {"0,8 窗簾。", "0,18 窗", "0,28 「簾」", "0,38 窗"}},
    {"Marks", "e\u0301e\u0301e\u0301", 3, {"0,8 e\u0301", "0,18 e\u0301", "0,28 e\u0301"}},
    {"Bold", "Dear {Mrs} Blake, {x}", 20, {"0,8 Dear ", "50,8 *Mrs", "80,8  Blake, ", "160,8 *x"}},
    {"BoldAcrossLines", "aa {bb cc} dd", 5, {"0,8 aa ", "30,8 *bb", "0,18 *cc", "20,18  dd"}},
    {"BoldWithinWord", "a b{cd}", 3, {"0,8 a", "0,18 b", "10,18 *cd"}},
    {"DefaultTabs", "a\tb\t\tc", 20, {"0,8 a", "36,8 b", "108,8 c"}},
    {"TabHangsOver", "abcd\te", 5, {"0,8 abcd", "0,18 e"}},
    {"Right", "ab cd", 4, {"20,8 ab", "20,18 cd"}, {.alignment = Alignment::kRight}},
    {"Center", "ab cd", 4, {"10,8 ab", "10,18 cd"}, {.alignment = Alignment::kCenter}},
    {"Justified",
     "a b {c d e} f",
     8,
     {"0,8+3.33 a b ", "46.67,8+3.33 *c d", "0,18 *e", "10,18  f"},
     {.alignment = Alignment::kJustified}},
    {"JustifiedBehindTab",
     "a b\tc d efghi",
     12,
     {"0,8 a b", "36,8+54 c d", "0,18 efghi"},
     {.alignment = Alignment::kJustified}},
    {"JustifiedLineEnd",
     "a b\u2028c d efg",
     5,
     {"0,8 a b", "0,18+20 c d", "0,28 efg"},
     {.alignment = Alignment::kJustified}},
    {"Indents", "ab cd ef", 10, {"20,8 ab cd", "10,18 ef"}, {.left = 10, .right = 20, .first_line = 10}},
    {"Hanging", "o\tab cd", 6, {"0,8 o", "20,8 ab", "20,18 cd"}, {.left = 20, .first_line = -20}},
    {"Spacing", "a\nb", 6, {"0,13 a", "0,30 b"}, {.before = 5, .after = 2}},
    {"LinesAtLeast", "a\nb", 6, {"0,13 a", "0,28 b"}, {.line_height = 15}},
    {"LinesAtLeastLow", "a\nb", 6, {"0,8 a", "0,18 b"}, {.line_height = 5}},
    {"LinesExactly", "a\nb", 6, {"0,4 a", "0,9 b"}, {.line_height = -5}},
    {"TabStops",
     "a\tbb\tcc\t1.25",
     40,
     {"0,8 a", "80,8 bb", "140,8 cc", "240,8 1.25"},
     {.tabs = {{100, TabKind::kRight}, {150, TabKind::kCenter}, {250, TabKind::kDecimal}}}},
    {"DecimalWithoutPoint",
     "\t125\n\t1{2.}5",
     20,
     {"70,8 125", "80,18 1", "90,18 *2.", "110,18 5"},
     {.tabs = {{100, TabKind::kDecimal}}}},
    {"RightTabBeyondTheEdge", "a\tbb", 9, {"0,8 a", "70,8 bb"}, {.tabs = {{95, TabKind::kRight}}}},
    {"RightTabPushed", "abcdef\tghijk", 20, {"0,8 abcdef", "60,8 ghijk"}, {.tabs = {{70, TabKind::kRight}}}},
    {"NoRoomForIndents", "abc", 10, {"0,8 abc"}, {.left = 99999999, .right = 99999999}},
};

INSTANTIATE_TEST_SUITE_P(Cases, LayOut, testing::ValuesIn(kCases),
                         [](const auto& tested) { return tested.param.name; });

}  // namespace
}  // namespace tarvane::paper
