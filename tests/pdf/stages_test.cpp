// The small stages below a document, each alone.
#include <gmock/gmock.h>

#include <random>

#include "pdf/cell_layout.h"
#include "pdf/outlines.h"
#include "pdf/pdf_test_support.h"
#include "pdf/text_encoding.h"
#include "text_number/fault.h"

namespace tarvane::pdf {
namespace {

using testing::ElementsAre;

std::string Fixedly(double value, Mask mask) {
  std::string out;
  AppendFixed(out, value, mask);
  return out;
}

TEST(LineBuffer, NumbersAreThoseOfTheMasks) {
  std::mt19937_64 random(1);
  std::uniform_real_distribution<double> sizes(-3, 12);
  for (const Mask mask : {Mask::k0, Mask::k0_0, Mask::k0_00, Mask::k0_000}) {
    for (int round = 0; round < 20000; ++round) {
      const double size = std::pow(10, sizes(random));
      // Every other value stands on or near a half in its decimals.
      double value = (static_cast<double>(random() % 20001) - 10000) / 10000 * size;
      if (round % 2 == 0) value = (static_cast<double>(random() % 200001) - 100000) / 2000;
      ASSERT_EQ(Fixedly(value, mask), FormatNumber(value, mask)) << value;
    }
  }
  EXPECT_EQ(Fixedly(1.015, Mask::k0_00), "1.02");
  EXPECT_EQ(Fixedly(std::nan(""), Mask::k0_00), FormatNumber(std::nan(""), Mask::k0_00));
  EXPECT_EQ(Fixedly(HUGE_VAL, Mask::k0_00), FormatNumber(HUGE_VAL, Mask::k0_00));
}

TEST(LineBuffer, LinesEndWithCarriageReturnAndLineFeed) {
  LineBuffer buffer;
  buffer.Line("a ", 7, " ", Fixed{-0.5}, " b").Line();
  LineBuffer other;
  other.Line("x");
  buffer.Take(other);
  EXPECT_EQ(buffer.bytes(), "a 7 -0.50 b\r\n\r\nx\r\n");
}

TEST(TextEncoding, WinAnsi) {
  const std::pair<std::string, std::string> cases[] = {
      {"", ""},
      {"plain ~", "plain ~"},
      {"£é€", "\xA3\xE9\x80"},
      {"“–™Ÿž", "\x93\x96\x99\x9F\x9E"},
      {"漢字", "??"},
      {"\xF0\x9F\x98\x80", "?"},          // beyond the basic plane
      {"\xC2\x81\xC2\x80", "??"},         // control codes that WinAnsi has nothing at
      {"\xFF\xC3", "??"},                 // broken
      {"a\xE2\x82", "a??"},               // cut off
      {"\xC0\x80\xE0\x80\x80", "?????"},  // longer than need be
      {std::string("\0x", 2), std::string("\0x", 2)},
  };
  for (const auto& [utf8, codes] : cases) EXPECT_EQ(ToWinAnsi(utf8), codes) << utf8;
}

TEST(TextEncoding, Escapes) {
  EXPECT_EQ(EscapePageText("a\\b"), "a\\\\\\\\b");  // one backslash ends as four
  EXPECT_EQ(EscapePageText("(\\)"), "\\(\\\\\\\\\\)");
  EXPECT_EQ(StringBody("Smith (Jones) é"), "Smith (Jones) \xE9");
  EXPECT_EQ(StringBody("a) (b"), "a\\) \\(b");
  EXPECT_EQ(StringBody("(a"), "\\(a");
  EXPECT_EQ(StringBody("c:\\"), "c:\\\\");
  EXPECT_EQ(NameBody("Times-Roman"), "Times-Roman");
  EXPECT_EQ(NameBody("My Font#1"), "My#20Font#231");
}

TEST(ObjectFile, OffsetsLeaveOutTheLineEndsOfTheWrites) {
  ScratchFolder folder;
  ObjectFile file;
  file.Open(folder / "objects");
  file.Begin();
  EXPECT_EQ(file.NextNumber(), 1);
  file.Write({"12345", "678"});
  EXPECT_EQ(file.NextNumber(), 2);
  file.Write({std::string(200000, 'x')});
  file.Finish(2);
  EXPECT_EQ(
      FileBytes(folder / "objects"),
      "%PDF-1.3\r\n12345678\r\n" + std::string(200000, 'x') + "\r\n" +
          Lines({"xref", "0 2", "0000000000 65535 f", "0000000008 00000 n", "0000000016 00000 n", "trailer",
                 "<< /Size 2", "/Root 2 0 R", "/Info 1 0 R", ">>", "startxref", "200016", "", "%%EOF"}));
}

TEST(Outlines, Tree) {
  const auto text = [](const Outline& outline) {
    std::string out = std::to_string(outline.first) + ".." + std::to_string(outline.last);
    for (const OutlineNode& node : outline.nodes) {
      for (const int place : {node.parent, node.previous, node.next, node.first, node.last}) {
        out += (place == node.parent ? " | " : " ") + std::to_string(place);
      }
    }
    return out;
  };
  EXPECT_EQ(LinkOutline({}).first, -1);
  const Outline outline = LinkOutline({0, 1, 1, 0, 5, -3});
  EXPECT_EQ(outline.first, 0);
  EXPECT_EQ(outline.last, 5);
  EXPECT_THAT((std::vector<int>{outline.nodes[0].first, outline.nodes[0].last, outline.nodes[0].next}),
              ElementsAre(1, 2, 3));
  EXPECT_THAT((std::vector<int>{outline.nodes[2].parent, outline.nodes[2].previous, outline.nodes[2].next}),
              ElementsAre(0, 1, -1));
  EXPECT_EQ(outline.nodes[4].parent, 3)
      << "a level that skips one hangs below the bookmark before: " << text(outline);
  EXPECT_EQ(outline.nodes[5].previous, 3);
}

class CellLayout : public testing::Test {
 protected:
  CellLayout() {
    for (const char c : std::string("abcdefghij ")) widths_.Set(c, 100);
  }
  std::vector<std::string> Broken(std::string_view text, double room) const {
    std::vector<std::string> lines;
    for (const CellLine& line : BreakLines(text, widths_, room)) {
      lines.push_back(std::string(line.text) + (line.wrapped ? "~" : ""));
    }
    return lines;
  }
  WidthTable widths_;
};

TEST_F(CellLayout, Breaks) {
  EXPECT_THAT(Broken("", 500), ElementsAre(""));
  EXPECT_THAT(Broken("abc\r\n", 500), ElementsAre("abc"));
  EXPECT_THAT(Broken("abc\n\n", 500), ElementsAre("abc", ""));
  EXPECT_THAT(Broken("abc\r\nde\rf\ng", 500), ElementsAre("abc", "de", "f", "g"));
  EXPECT_THAT(Broken("abc de fg", 600), ElementsAre("abc de~", "fg"));
  EXPECT_THAT(Broken("abc de fg", 599), ElementsAre("abc~", "de fg"));
  EXPECT_THAT(Broken("abcdefgh", 300), ElementsAre("abc~", "def~", "gh"));
  EXPECT_THAT(Broken("abc", 0), ElementsAre("a~", "b~", "c")) << "a character at least";
  EXPECT_THAT(Broken("abc ", 300), ElementsAre("abc")) << "the blank that doesn't fit leaves no empty line";
  EXPECT_THAT(Broken("abc  de", 300), ElementsAre("abc~", " de"));
  EXPECT_THROW(Broken(std::string("a\0b", 3), 500), Fault);
}

TEST_F(CellLayout, Borders) {
  struct Case {
    std::string border, first, middle, last, only;
  };
  for (const Case& c :
       {Case{"0", "", "", "", ""}, Case{"", "", "", "", ""}, Case{"1", "LRT", "LR", "LRB", "LRTB"},
        Case{"LTB", "LT", "L", "LB", "LTB"}, Case{"xB", "", "", "B", "B"}}) {
    EXPECT_EQ(LineBorder(c.border, true, false), c.first) << c.border;
    EXPECT_EQ(LineBorder(c.border, false, false), c.middle) << c.border;
    EXPECT_EQ(LineBorder(c.border, false, true), c.last) << c.border;
    EXPECT_EQ(LineBorder(c.border, true, true), c.only) << c.border;
  }
}

}  // namespace
}  // namespace tarvane::pdf
