#include "rich_text/editing.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "text/fold.h"

namespace tarvane::rich_text {
namespace {

Document Plain(std::string_view text) { return FromPlainText(text); }

Document Picture(std::int32_t width) {
  Document document;
  document.text = kPictureSign;
  document.pictures = {{Picture::Format::kPng, "bytes", width, 1}};
  return document;
}

// "before", a row of `cells` cells with two paragraphs in the first, and "behind".
Document WithTable(std::uint32_t cells) {
  Document document = Plain("before");
  document.rows.push_back({0, std::vector<TableCell>(cells, TableCell{1000, kTopSide})});
  const auto add = [&document](std::string_view text, std::int32_t row, std::uint32_t cell) {
    document.text += '\n';
    document.paragraphs.push_back({static_cast<std::uint32_t>(document.text.size()), 0, row, cell});
    document.text += text;
  };
  add("more", 0, 0);
  for (std::uint32_t cell = 0; cell < cells; ++cell) add("cell " + std::to_string(cell), 0, cell);
  add("behind", -1, 0);
  return document;
}

TEST(Replace, KeepsTheLooksAroundIt) {
  Document document = Plain("one two three");
  ChangeStyle(document, {4, 7}, {.bold = true});
  ASSERT_EQ(document.runs.size(), 3);
  Document piece = Plain("TWO");
  piece.fonts = {"Times"};
  Replace(document, {5, 6}, piece);
  EXPECT_EQ(document.text, "one tTWOo three");
  EXPECT_TRUE(IsSound(document));
  EXPECT_TRUE(document.StyleAt(4).bold);
  EXPECT_EQ(document.fonts[document.StyleAt(5).font], "Times");
  EXPECT_FALSE(document.StyleAt(5).bold);
  EXPECT_TRUE(document.StyleAt(8).bold);
  EXPECT_FALSE(document.StyleAt(9).bold);
  Replace(document, {4, 9}, Plain(""));
  EXPECT_EQ(document.runs.size(), 1) << "what looks alike comes together";
  ChangeStyle(document, {0, document.text.size()}, {.italic = true});
  Replace(document, {0, document.text.size()}, Plain(""));
  EXPECT_TRUE(document.runs.front().style.italic) << "the look of what was there is typed on";
}

TEST(Replace, ParagraphsLookAsToldWhereTheyComeTogether) {
  const auto centered = [](std::string_view text) {
    Document document = Plain(text);
    Align(document, {0, document.text.size()}, Alignment::kCenter);
    return document;
  };
  struct Case {
    const char* what;
    Range range;
    Document piece;
    std::string alignments;  // of each paragraph, "b" behind one that begins a page
  };
  const Case cases[] = {
      {"the first one's", {1, 4}, centered("x"), "lr"},
      {"the piece's last one's", {1, 4}, centered("x\ny"), "lcr"},
      {"within a paragraph its own", {1, 1}, centered("x\ny"), "llcr"},
      {"at the front the piece's", {0, 0}, centered("x\ny"), "clcr"},
      {"a page begins", {1, 1}, Plain("x\fy"), "llbcr"},
  };
  for (const Case& each : cases) {
    SCOPED_TRACE(each.what);
    Document document = Plain("aa\nbb\ncc");
    Align(document, {3, 5}, Alignment::kCenter);
    Align(document, {6, 6}, Alignment::kRight);
    Replace(document, each.range, each.piece);
    std::string alignments;
    for (const Paragraph& paragraph : document.paragraphs) {
      alignments += "lrcj"[static_cast<int>(document.StyleOf(paragraph).alignment)];
      if (document.StyleOf(paragraph).page_break_before) alignments += 'b';
    }
    EXPECT_EQ(alignments, each.alignments);
    EXPECT_TRUE(IsSound(document));
  }
}

TEST(Replace, TablesLoseTheCellsThatAreLeftWithoutText) {
  struct Case {
    std::string_view from, to;  // from the beginning of the one to the end of the other
    std::string_view text;
    std::vector<std::size_t> cells;
  };
  const Case cases[] = {
      {"cell 0", "cell 0", "before\nmore\nX\ncell 1\ncell 2\nbehind", {3}},
      {"cell 0", "cell 1", "before\nmore\nX\ncell 2\nbehind", {2}},
      {"more", "cell 2", "before\nX\nbehind", {1}},
      {"before", "more", "X\ncell 0\ncell 1\ncell 2\nbehind", {3}},
      {"before", "cell 1", "X\ncell 2\nbehind", {1}},
      {"cell 1", "behind", "before\nmore\ncell 0\nX", {2}},
      {"before", "behind", "X", {}},
  };
  for (const Case& each : cases) {
    Document document = WithTable(3);
    const Range range{document.text.find(each.from), document.text.find(each.to) + each.to.size()};
    Replace(document, range, Plain("X"));
    EXPECT_EQ(document.text, each.text);
    EXPECT_TRUE(IsSound(document)) << each.text;
    std::vector<std::size_t> cells;
    for (const TableRow& row : document.rows) cells.push_back(row.cells.size());
    EXPECT_EQ(cells, each.cells) << each.text;
  }
}

TEST(Replace, ATableInAPieceStandsBetweenParagraphsAndIsTextWithinACell) {
  Document document = Plain("first\nlast");
  Replace(document, {6, 6}, WithTable(2));
  EXPECT_TRUE(IsSound(document));
  EXPECT_EQ(document.rows.size(), 1);
  const std::size_t cell = document.text.find("cell 1");
  Replace(document, {cell, cell}, WithTable(2));
  EXPECT_TRUE(IsSound(document));
  ASSERT_EQ(document.rows.size(), 1);
  EXPECT_EQ(document.rows.front().cells.size(), 2);
}

TEST(Editing, RandomEditsKeepADocumentSound) {
  std::mt19937 dice(8);
  const auto roll = [&dice](std::size_t sides) {
    return std::uniform_int_distribution<std::size_t>(0, sides - 1)(dice);
  };
  const Document pieces[] = {Plain(""),         Plain("x"), Plain("two\nlines"), Plain("\n"), Plain("a\fb"),
                             Plain("\xC3\xA9"), Picture(7), WithTable(1),        WithTable(3)};
  Document document;
  for (int step = 0; step < 20000; ++step) {
    const auto place = [&] {
      std::size_t at = roll(document.text.size() + 1);
      while (at < document.text.size() && (document.text[at] & 0xC0) == 0x80) ++at;
      return at;
    };
    const auto [begin, end] = std::minmax({place(), place()});
    const Range range{begin, document.text.size() > 300 || roll(3) == 0 ? end : begin};
    const Document& piece = pieces[roll(std::size(pieces))];
    std::string text = document.text;
    switch (roll(5)) {
      case 0: {
        const std::size_t first = document.ParagraphAt(range.begin);
        const std::size_t last = document.ParagraphAt(range.end);
        const std::size_t from = document.paragraphs[first].begin;
        text.replace(from, document.ParagraphEnd(last) - from, piece.text);
        ReplaceParagraphs(document, first, last + 1, piece);
        break;
      }
      case 1:
        ChangeStyle(document, range, {.half_points_more = roll(2) == 0 ? 2 : -2, .bold = roll(2) == 0});
        break;
      case 2:
        Align(document, range, roll(2) == 0 ? Alignment::kCenter : Alignment::kLeft);
        break;
      case 3: {
        const Document slice = Slice(document, range);
        ASSERT_TRUE(IsSound(slice)) << step;
        ASSERT_EQ(slice.text, text.substr(range.begin, range.end - range.begin));
        break;
      }
      default:
        text.replace(range.begin, range.end - range.begin, piece.text);
        Replace(document, range, piece);
    }
    ASSERT_EQ(document.text, text) << step;
    ASSERT_TRUE(IsSound(document)) << step;
  }
}

TEST(Slice, PutBackInItsPlaceGivesTheSame) {
  Document document = WithTable(3);
  ChangeStyle(document, {3, 20}, {.font = "Times", .color = Color{1, 2, 3}});
  Align(document, {0, 3}, Alignment::kRight);
  Document copy = document;
  ReplaceParagraphs(copy, 0, copy.paragraphs.size(), Slice(document, {0, document.text.size()}));
  EXPECT_TRUE(SameContent(document, copy));
  const std::size_t cell = document.ParagraphAt(document.text.find("cell 1"));
  const Document piece = Slice(document, {document.paragraphs[cell].begin, document.ParagraphEnd(cell)});
  EXPECT_TRUE(piece.rows.empty());
  ReplaceParagraphs(copy, cell, cell + 1, piece);
  EXPECT_TRUE(SameContent(document, copy)) << "what stands in a cell stays there";
}

TEST(ChangeStyle, StepsEachSizeWithinItsBounds) {
  Document document = Plain("abc");
  ChangeStyle(document, {1, 2}, {.half_points = 143});
  ChangeStyle(document, {2, 3}, {.half_points = 300});
  ChangeStyle(document, {0, 3}, {.half_points_more = 2});
  EXPECT_EQ(document.StyleAt(0).half_points, 22);
  EXPECT_EQ(document.StyleAt(1).half_points, kLargestStep);
  EXPECT_EQ(document.StyleAt(2).half_points, 300) << "what is beyond stays";
  EXPECT_TRUE(IsSound(document));
}

TEST(Align, LeavesTheParagraphThatTheRangeEndsInFrontOf) {
  Document document = Plain("a\nb\nc");
  Align(document, {0, 2}, Alignment::kCenter);
  EXPECT_EQ(document.StyleOf(document.paragraphs[0]).alignment, Alignment::kCenter);
  EXPECT_EQ(document.StyleOf(document.paragraphs[1]).alignment, Alignment::kLeft);
}

TEST(Find, GoesRoundWithoutRegardToCase) {
  const Document document = Plain("Caf\xC3\x89 one, caf\xC3\xA9 two");
  const Range first{0, 5};
  const Range second{11, 16};
  EXPECT_EQ(Find(document, "CAF\xC3\xA9", 0), first);
  EXPECT_EQ(Find(document, "CAF\xC3\xA9", first.end), second);
  EXPECT_EQ(Find(document, "CAF\xC3\xA9", second.end), first);
  EXPECT_EQ(Find(document, "CAF\xC3\xA9", 1000), first);
  EXPECT_EQ(Find(document, "two!", 0), std::nullopt);
  EXPECT_EQ(Find(document, "", 0), std::nullopt);
}

}  // namespace
}  // namespace tarvane::rich_text
