// Pages, tables and pictures; what is recorded of them; rows of pieces; the measure of metric files.
#include <gmock/gmock.h>

#include "paper/metric_measure.h"
#include "paper/paper_test_support.h"
#include "paper/text_rows.h"

namespace tarvane::paper {
namespace {

using rich_text::Document;
using testing::ElementsAre;
using testing::ElementsAreArray;
using Lines = std::vector<std::string>;

// A row of the cells' texts, their right edges in points, behind and before a paragraph.
Document WithTable(const std::vector<std::string>& cells, const std::vector<int>& edges) {
  std::string text = "before\n";
  for (const std::string& cell : cells) text += cell + "\n";
  Document document = rich_text::FromPlainText(text + "behind");
  document.rows.emplace_back();
  for (const int edge : edges) {
    document.rows.front().cells.push_back({edge * rich_text::kTwipsPerPoint, 0});
  }
  std::size_t paragraph = 0;
  std::uint32_t cell = 0;
  for (const std::string& content : cells) {
    for (auto lines = 1 + std::ranges::count(content, '\n'); lines > 0; --lines) {
      document.paragraphs[++paragraph].row = 0;
      document.paragraphs[paragraph].cell = cell;
    }
    ++cell;
  }
  return document;
}

TEST(Tables, StandSideBySideWithTheirBorders) {
  Document document = WithTable({"ab cd", "e"}, {40, 100});
  document.rows.front().cells[1].borders = rich_text::kLeftSide | rich_text::kBottomSide;
  EXPECT_THAT(Formatted(document, Columns(10)),
              ElementsAre("0,8 before", "5.4,18 ab", "5.4,28 cd", "45.4,18 e", "line 40,10 40,30",
                          "line 40,30 100,30", "0,38 behind"));
}

TEST(Tables, ArePlacedWholeOrCutLineByLine) {
  EXPECT_THAT(Formatted(WithTable({"a\nb", "c"}, {50, 100}), Columns(10, 2)),
              ElementsAre("0,8 before", "---", "5.4,8 a", "5.4,18 b", "55.4,8 c", "---", "0,8 behind"));
  EXPECT_THAT(Formatted(WithTable({"a\nb\nc", "d\ne\nf\n\ng", ""}, {50, 100, 150}), Columns(15, 2)),
              ElementsAre("0,8 before", "---", "5.4,8 a", "5.4,18 b", "55.4,8 d", "55.4,18 e", "105.4,8 ",
                          "---", "5.4,8 c", "55.4,8 f", "55.4,18 ", "---", "55.4,8 g", "0,18 behind"));
}

TEST(Tables, OfHostileEdgesFitTheArea) {
  EXPECT_THAT(Formatted(WithTable({"a", "b", "c"}, {9000000, -5, 20}), Columns(10)),
              ElementsAre("0,8 before", "5.4,18 a", "97.59,18 b", "101.5,18 c", "0,28 behind"));
}

TEST(Pages, EndWhereTheyAreFull) {
  EXPECT_THAT(Formatted(Marked("a\nb\nc d"), Columns(1, 2)),
              ElementsAre("0,8 a", "0,18 b", "---", "0,8 c", "0,18 d"));
  EXPECT_THAT(Formatted(Marked("a\f\fb\f"), Columns(5)), ElementsAre("0,8 a", "---", "0,8 ", "---", "0,8 b"));
  Document spaced = Marked("a\nb\fc");
  for (auto& style : spaced.paragraph_styles) style.before = 100;
  EXPECT_THAT(Formatted(spaced, Columns(5, 2)), ElementsAre("0,13 a", "---", "0,8 b", "---", "0,13 c"));
}

TEST(Pages, ShrinkPicturesToTheirArea) {
  Document document = Marked("a\uFFFCb\n\uFFFC");
  document.text = "a\uFFFCb\n\uFFFC";  // plain text has another sign there, which is as long
  document.pictures = {{{}, "x", 400, 600}, {{}, "y", 4000, 100}};
  ASSERT_TRUE(rich_text::IsSound(document));
  EXPECT_THAT(Formatted(document, Columns(10)),
              ElementsAre("0,30 a", "picture 10,0 30,30", "30,30 b", "picture 0,32 100,34.5"));
  EXPECT_THAT(Formatted(document, Columns(10, 2)),
              ElementsAre("0,20 a", "picture 10,0 23.33,20", "23.33,20 b", "---", "picture 0,0 100,2.5"));
}

TEST(Pages, WithMarginsThatLeaveNothingUseThePaper) {
  SquareMeasure measure;
  const Document document = Marked("a b c");
  for (const Paper& paper : {Paper{{0, 0}, {}}, Paper{{100, 100}, {}}, Paper{{-5, 1e300}, {}}}) {
    const RichTextPages pages(document, measure, paper, {90, 90, 90, 90});
    EXPECT_EQ(pages.Count(), 1);
    EXPECT_EQ(pages.LeftOfText(), 0);
  }
}

// A font that sets some pairs closer is laid out word by word; without such pairs in the text the same comes
// out.
class Kerned : public SquareMeasure {
 public:
  double WidthOf(const Font& font, std::string_view text) override {
    return SquareMeasure::WidthOf(font, text) - (text.find("AVA") == std::string_view::npos ? 0 : 1);
  }
};

TEST(Lines, AreTheSameByWordsAndByCharacters) {
  const Document document = Marked(
      "  An order of well-known -5 things: a - b, (x)-y --z  and  more\nwithout-any-blank-in-it 'til-the-end "
      " \n");
  for (int columns = 1; columns < 30; ++columns) {
    Lines drawn[2];
    SquareMeasure square;
    Kerned kerned;
    Measure* measures[] = {&square, &kerned};
    for (int way = 0; way < 2; ++way) {
      Recorder recorder(square, {});
      FormatPage(document, *measures[way], Columns(columns), {}, &recorder);
      drawn[way] = ItemsOf(recorder.pages().front());
    }
    EXPECT_EQ(drawn[0], drawn[1]) << columns;
  }
}

Lines RecordedLines(const Document& document, double left = 0) {
  SquareMeasure measure;
  Recorder recorder(measure, {});
  FormatPage(document, measure, {left, 0, left + 400, 400}, {}, &recorder);
  return LinesOf(recorder.pages().front(), left);
}

TEST(Recorded, ReadsAsItStands) {
  EXPECT_THAT(RecordedLines(Marked("Dear {Mrs} Blake, {th}ank\n\n  a\tb\t\tc  "), 30),
              ElementsAre("Dear Mrs Blake, thank", "", "  a b      c"));
  EXPECT_THAT(RecordedLines(WithTable({"ab", "c\nd"}, {100, 200})),
              ElementsAre("before", " ab        c", "           d", "behind"));
  Document spread = Marked("a {b c} d e" + std::string(40, 'f'));
  spread.paragraph_styles.front().alignment = rich_text::Alignment::kJustified;
  EXPECT_THAT(RecordedLines(spread), ElementsAre("a b c d", "e" + std::string(39, 'f'), "f"));
}

TEST(Recorded, IsDrawnAgainAsItWas) {
  SquareMeasure measure;
  Recorder recorder(measure, {});
  const Stroke stroke{2, {1, 2, 3}};
  const Color fill{4, 5, 6};
  recorder.DrawText({1, 2}, {}, "text", {fill, 3, 45});
  recorder.DrawBox({1, 2, 3, 4}, &stroke, nullptr);
  recorder.DrawEllipse({1, 2, 3, 4}, nullptr, &fill);
  recorder.NewPage();
  recorder.DrawLine({4, 3}, {2, 1}, stroke);
  recorder.DrawPicture({{}, "x", 1, 1}, {1, 2, 3, 4});
  const RecordedPages pages(recorder.pages(), {});
  Recorder again(measure, {});
  pages.Draw(0, again);
  again.NewPage();
  pages.Draw(1, again);
  for (std::size_t page = 0; page < 2; ++page) {
    EXPECT_EQ(ItemsOf(recorder.pages()[page]), ItemsOf(again.pages()[page]));
  }
  const auto& box = std::get<RecordedShape>(again.pages()[0].items[1]);
  EXPECT_EQ(box.outline->width, 2);
  EXPECT_FALSE(box.fill);
}

TEST(Rows, SetPiecesAtColumnsAndNeverOverEachOther) {
  SquareMeasure measure;
  Recorder recorder(measure, {});
  const double below =
      DrawRows(recorder, {}, {5, 20},
               {{{0, "Item"}, {6, "2.00"}}, {}, {{0, "Long name"}, {6, "3"}, {20, "x"}, {0, "y"}}});
  EXPECT_EQ(below, 50);
  EXPECT_THAT(
      ItemsOf(recorder.pages().front()),
      ElementsAre("5,28 Item", "65,28 2.00", "5,38 ", "5,48 Long name", "105,48 3", "205,48 x", "225,48 y"));
  EXPECT_THAT(LinesOf(recorder.pages().front(), 5), ElementsAre("Item  2.00", "", "Long name 3         x y"));
}

TEST(MetricMeasure, AddsUpTheWidthsOfMetricFiles) {
  MetricMeasure measure(TARVANE_DATA_DIR "/Fonts");
  EXPECT_DOUBLE_EQ(measure.WidthOf({"Arial", 10}, "Hall"), 7.22 + 5.56 + 2.22 + 2.22);
  EXPECT_DOUBLE_EQ(measure.WidthOf({"Arial", 10, true}, "Hall"), 7.22 + 5.56 + 2.78 + 2.78);
  EXPECT_DOUBLE_EQ(measure.WidthOf({"Consolas", 10}, "Hall"), 24);
  EXPECT_DOUBLE_EQ(measure.WidthOf({"Arial", 10}, "é€窗"), 5.56 * 3);
  EXPECT_DOUBLE_EQ(measure.WidthOf({"Arial", 10}, std::string_view("\0\x01\n\x7F", 4)), 0);
  EXPECT_DOUBLE_EQ(measure.WidthOf({"Arial", 10}, "\u00A0\u2011\u200B"), 2.78 + 3.33);
  MetricMeasure without("/nowhere");
  EXPECT_DOUBLE_EQ(without.WidthOf({"Arial", 10}, "Hä"), 10);
}

}  // namespace
}  // namespace tarvane::paper
