// The small stages below a document, each alone.
#include <gmock/gmock.h>

#include <map>
#include <random>

#include "pdf/cell_layout.h"
#include "pdf/outlines.h"
#include "pdf/pdf_test_support.h"
#include "pdf/script.h"
#include "pdf/text_encoding.h"
#include "text/fault.h"

namespace tarvane::pdf {
namespace {

using testing::ElementsAre;

TEST(LineBuffer, NumbersAreThoseOfTheMasks) {
  std::mt19937_64 random(1);
  std::uniform_real_distribution<double> sizes(-3, 12);
  for (const Mask mask : {Mask::k0, Mask::k0_0, Mask::k0_00, Mask::k0_000}) {
    std::vector<double> values = {1.015, std::nan(""), HUGE_VAL};
    for (int round = 0; round < 20000; ++round) {
      // Every other value stands on or near a half in its decimals.
      const auto digits = static_cast<double>(random() % 200001);
      values.push_back(round % 2 == 0 ? (digits - 100000) / 2000
                                      : (digits / 10 - 10000) / 10000 * std::pow(10, sizes(random)));
    }
    for (const double value : values) {
      std::string fixed;
      AppendFixed(fixed, value, mask);
      ASSERT_EQ(fixed, FormatNumber(value, mask)) << value;
    }
  }
}

TEST(LineBuffer, LinesEndWithCarriageReturnAndLineFeed) {
  LineBuffer buffer;
  buffer.Line("a ", 7, " ", Fixed{-0.5}, " b").Line();
  LineBuffer other;
  other.Line("x");
  buffer.Take(other);
  EXPECT_EQ(buffer.bytes(), "a 7 -0.50 b\r\n\r\nx\r\n");
}

// From UTF-8, or from codes, to what stands in the file. Among them: signs beyond the basic plane, codes that
// WinAnsi has nothing at, and UTF-8 that is broken, cut off, or longer than need be.
TEST(TextEncoding, EveryForm) {
  const std::map<std::string, std::string (*)(std::string_view)> forms = {
      {"WinAnsi", ToWinAnsi},   {"PdfDoc", ToPdfDoc},       {"Uri", ToUri},    {"PageText", EscapePageText},
      {"String", EscapeString}, {"StringBody", StringBody}, {"Name", NameBody}};
  std::string all;
  for (const ScriptCase& script : ReadScript("texts.txt")) {
    all += "== " + script.name + "\r\n";
    for (const std::string& text : script.calls)
      all += "> " + text + "\r\n" + forms.at(script.name)(text) + "\r\n";
  }
  ExpectGolden("texts.txt", all);
}

// In a strict file each offset is where its object stands; otherwise each falls short by two for every write
// before it. Large objects go past the buffer.
TEST(ObjectFile, Offsets) {
  ScratchFolder folder;
  const std::string large(200000, 'x');
  for (const bool strict : {false, true}) {
    ObjectFile file;
    file.Open(folder / "objects");
    file.Begin(strict);
    EXPECT_EQ(file.NextNumber(), 1);
    file.Write({"12345", "678"});
    EXPECT_EQ(file.NextNumber(), 2);
    file.Write({large});
    file.Finish(2);
    EXPECT_TRUE(file.written());
    const std::string bytes = FileBytes(folder / "objects");
    std::vector<size_t> places = {bytes.find("12345678"), bytes.find(large), bytes.find("xref")};
    for (size_t write = 0; write < places.size() && !strict; ++write) places[write] -= 2 * (write + 1);
    const auto entry = [](size_t place) {
      return std::string(10 - std::to_string(place).size(), '0') + std::to_string(place) + " 00000 n\r\n";
    };
    const std::string count = strict ? "3" : "2";
    EXPECT_EQ(bytes.substr(bytes.find("xref")),
              "xref\r\n0 " + count + "\r\n0000000000 65535 f\r\n" + entry(places[0]) + entry(places[1]) +
                  "trailer\r\n<< /Size " + count + "\r\n/Root 2 0 R\r\n/Info 1 0 R\r\n>>\r\nstartxref\r\n" +
                  std::to_string(places[2]) + "\r\n\r\n%%EOF\r\n");
  }
}

TEST(Outlines, Tree) {
  EXPECT_EQ(LinkOutline({}).first, -1);
  // The level that skips one hangs below the bookmark before it.
  const Outline outline = LinkOutline({0, 1, 1, 0, 5, -3});
  EXPECT_THAT((std::vector<int>{outline.first, outline.last, outline.children}), ElementsAre(0, 5, 3));
  std::vector<std::vector<int>> nodes;
  for (const OutlineNode& node : outline.nodes)
    nodes.push_back({node.parent, node.previous, node.next, node.first, node.last, node.children});
  EXPECT_THAT(nodes, ElementsAre(ElementsAre(-1, -1, 3, 1, 2, 2), ElementsAre(0, -1, 2, -1, -1, 0),
                                 ElementsAre(0, 1, -1, -1, -1, 0), ElementsAre(-1, 0, 5, 4, 4, 1),
                                 ElementsAre(3, -1, -1, -1, -1, 0), ElementsAre(-1, 3, -1, -1, -1, 0)));
}

// Ten letters and the blank are 100 wide each; "~" marks a line that was wrapped, "|" parts the lines.
TEST(CellLayout, Breaks) {
  WidthTable widths;
  for (const char c : std::string("abcdefghij ")) widths.Set(c, 100);
  struct Case {
    std::string text;
    double room;
    std::string lines;
  };
  const Case cases[] = {{"", 500, "|"},
                        {"abc\r\n", 500, "abc|"},
                        {"abc\n\n", 500, "abc||"},
                        {"abc\r\nde\rf\ng", 500, "abc|de|f|g|"},
                        {"abc de fg", 600, "abc de~|fg|"},
                        {"abc de fg", 599, "abc~|de fg|"},
                        {"abcdefgh", 300, "abc~|def~|gh|"},
                        {"abc", 0, "a~|b~|c|"},  // a character at least
                        {"abc ", 300, "abc|"},   // the blank that doesn't fit leaves no empty line
                        {"abc  de", 300, "abc~| de|"}};
  for (const auto& [text, room, expected] : cases) {
    std::string lines;
    for (const CellLine& line : BreakLines(text, widths, room))
      lines += std::string(line.text) + (line.wrapped ? "~|" : "|");
    EXPECT_EQ(lines, expected) << text;
  }
  EXPECT_THROW(BreakLines(std::string("a\0b", 3), widths, 500), Fault);
}

// The sides of the first line, of one in the middle, of the last and of one that is alone.
TEST(CellLayout, Borders) {
  const std::pair<std::string, std::string> cases[] = {
      {"0", "|||"}, {"", "|||"}, {"1", "LRT|LR|LRB|LRTB"}, {"LTB", "LT|L|LB|LTB"}, {"xB", "||B|B"}};
  for (const auto& [border, sides] : cases) {
    EXPECT_EQ(LineBorder(border, true, false) + "|" + LineBorder(border, false, false) + "|" +
                  LineBorder(border, false, true) + "|" + LineBorder(border, true, true),
              sides);
  }
}

}  // namespace
}  // namespace tarvane::pdf
