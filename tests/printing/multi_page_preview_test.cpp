#include "printing/multi_page_preview.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "printing/page_host.h"
#include "store/data_files.h"

namespace tarvane::printing {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using Report = clsMultiPgPreview;

// The texts of a page in the order in which they were drawn.
std::vector<paper::RecordedText> Texts(const paper::RecordedPage& page) {
  std::vector<paper::RecordedText> texts;
  for (const auto& item : page.items) {
    if (const auto* text = std::get_if<paper::RecordedText>(&item)) texts.push_back(*text);
  }
  return texts;
}

TEST_F(ReportTest, WrappedTextTurnsPagesWithFooterAndHeader) {
  Report report(screen_);
  report.SetReportTitle("Till");
  report.pStartDoc();
  report.pHeader();
  std::string text;
  for (int line = 1; line <= 100; ++line) text += std::to_string(line) + "\n";
  report.SetFontBold(true);
  report.pPrint(text + "last");
  EXPECT_TRUE(report.FontBold());
  report.PrintCopies(2);
  report.PrintCopies(0);
  report.pEndDoc();
  ASSERT_THAT(host_.printed, SizeIs(4));  // two copies
  std::vector<std::string> lines;
  for (int page = 0; page < 2; ++page) {
    for (const std::string& line : host_.printed[static_cast<std::size_t>(page)]) {
      if (!line.empty()) lines.push_back(line);
    }
  }
  ASSERT_THAT(lines, SizeIs(101 + 3));  // two titles, one footer
  EXPECT_THAT(lines.front(), HasSubstr("Till"));
  EXPECT_THAT(host_.printed[0].back(), HasSubstr("Pg. 1"));
  EXPECT_THAT(host_.printed[1].front(), HasSubstr("Till"));
  EXPECT_EQ(lines.back(), "last");
  ASSERT_THAT(host_.print_orders, SizeIs(1));
  EXPECT_EQ(host_.print_orders[0].copies, 2);
  EXPECT_FALSE(host_.print_orders[0].ask);
  EXPECT_THAT(host_.shown, IsEmpty());
}

TEST_F(ReportTest, ATitleLongerThanThePageEndsAndTheTextGoesOn) {
  Report report(screen_);
  report.pStartDoc();
  report.pHeader(std::string(20'000, 'W'));
  EXPECT_EQ(report.GetPage(), 1);
  report.pPrint("a\nb");
  EXPECT_EQ(report.GetPage(), 2);
}

TEST_F(ReportTest, APageIsFullWhereFooterOrLineHaveNoRoom) {
  Report report(screen_);
  report.pStartDoc();
  const double line = report.GetTextHeight("TextString");
  const double last = report.GetPaperHeight() - line;
  report.SetFontSize(10);
  struct Case {
    double y, extra;
    bool footer, full;
  };
  for (const auto& [y, extra, footer, full] :
       {Case{last, 0, false, true}, Case{last - 0.01, 0, false, false}, Case{last - 0.01, 0.02, false, true},
        Case{last - 2 * line, 0, true, true}, Case{last - 2 * line - 0.01, 0, true, false}}) {
    report.SetCurrentY(y);
    EXPECT_EQ(report.pEndOfPage(extra, footer), full) << y;
  }
  EXPECT_EQ(report.GetPage(), 1);
  EXPECT_EQ(report.FontSize(), 10);
}

TEST_F(ReportTest, LooksAreThoseThatWereSet) {
  Report report(screen_);
  report.pStartDoc();
  report.SetForeColor(0x0102FF);
  report.SetFontTransparent(false);
  report.SetBackColor(0x00FF00);
  report.FontStrikethru(true);
  report.SetFontSize(0.2);
  report.pPrint("red");
  report.SetColorMode(1);
  report.SetFontTransparent(true);
  report.pPrint("grey");
  report.pEndDoc();
  const auto texts = Texts(host_.pages.at(0));
  EXPECT_EQ(texts[0].look.color, (paper::Color{255, 2, 1}));
  EXPECT_EQ(texts[1].look.color, (paper::Color{78, 78, 78}));
  EXPECT_EQ(texts[0].font, (paper::Font{.points = 1, .strike = true}));
  const auto ground = std::get<paper::RecordedShape>(host_.pages[0].items[0]);
  EXPECT_EQ(ground.fill, (paper::Color{0, 255, 0}));
  EXPECT_THAT(host_.pages[0].items, SizeIs(3));
}

TEST_F(ReportTest, TheSheetLiesAsItIsWantedAndIsNeverTooSmallForALine) {
  struct Case {
    paper::Paper sheet;
    std::int16_t orientation;
    double width, height;  // points
  };
  const paper::Paper wide = {{800, 500}, {1, 2, 3, 4}};
  for (const auto& [sheet, orientation, width, height] :
       {Case{wide, 2, 796, 494}, Case{wide, 1, 494, 796}, Case{{{0, 0}, {}}, 1, 595.28, 841.89},
        Case{{{500, 500}, {300, 0, 300, 0}}, 1, 595.28, 841.89}}) {
    host_.sheet = sheet;
    Report report(screen_);
    report.SetOrientation(orientation);
    report.pStartDoc();
    EXPECT_NEAR(report.GetPaperWidth() * 72, width, 0.001);
    EXPECT_NEAR(report.GetPaperHeight() * 72, height, 0.001);
    report.pPrint("x");
    report.pEndDoc();
    EXPECT_THAT(host_.printed.back(), ElementsAre("x"));
  }
}

TEST_F(ReportTest, PagesBecomeFilesThatStandUntilTheNextReportOrTheEnd) {
  const fs::path others[] = {folder_.path() / "PPview.bmp", folder_.path() / "PPview1.bmp.old",
                             folder_.path() / "PPviewx.bmp"};
  for (const fs::path& other : others) ReplaceFile(other, "kept");
  ReplaceFile(File(7), "of an earlier report");
  {
    Report report(screen_);
    Compose(report, 3);
    EXPECT_FALSE(IsThere(7));
    for (int page = 0; page < 3; ++page) {
      ASSERT_TRUE(IsThere(page));
      EXPECT_TRUE(IsPageFile(File(page)));
      EXPECT_EQ(fs::file_size(File(page)), 54U + 1776U * 992U);  // 592 by 992 pixels
    }
    EXPECT_FALSE(IsThere(3));
    Compose(report, 1);
    EXPECT_TRUE(IsThere(0));
    EXPECT_FALSE(IsThere(1));
  }
  EXPECT_FALSE(IsThere(0));
  for (const fs::path& other : others) EXPECT_TRUE(fs::exists(other));
  EXPECT_THAT(host_.messages, IsEmpty());
  EXPECT_EQ(host_.shown, (std::vector<std::string>{"frmMultiPgPreview", "frmMultiPgPreview"}));
}

TEST_F(ReportTest, ALinkInPlaceOfAPageFileIsNotFollowed) {
  const fs::path mine = folder_.path() / "mine.txt";
  ReplaceFile(mine, "kept");
  Report report(screen_);
  report.SetSendToPrinter(false);
  report.pStartDoc();
  fs::create_symlink(mine, File(0));
  report.pEndDoc();
  EXPECT_EQ(ReadFile(mine), "kept");
  EXPECT_TRUE(IsPageFile(File(0)));
}

TEST_F(ReportTest, APageThatCannotBeWrittenIsToldAndTheReportGoesOn) {
  Report report(screen_);
  report.SetSendToPrinter(false);
  report.pStartDoc();
  fs::create_directories(File(1) / "in the way");
  report.pNewPage();
  report.pNewPage();
  report.pEndDoc();
  EXPECT_TRUE(IsThere(0) && IsThere(2));
  EXPECT_THAT(host_.messages, ElementsAre(HasSubstr("1 of 3 pages can't be shown")));
  EXPECT_THAT(host_.messages, ElementsAre(HasSubstr("PPview1.bmp")));
  ::setenv("TEMP", "/no-such-folder", 1);
  host_.messages.clear();
  Compose(report, 2);
  EXPECT_THAT(host_.messages, ElementsAre(HasSubstr("2 of 2 pages can't be shown")));
  EXPECT_THAT(host_.shown, SizeIs(2));
}

TEST_F(ReportTest, OnePageTooManyEndsTheReport) {
  Report report(screen_);
  report.pStartDoc();
  for (int page = 1; page < 32'768; ++page) report.pNewPage();
  EXPECT_EQ(report.GetPage(), 32'768);
  EXPECT_THROW(report.pNewPage(), Fault);
  report.pPrint("lost");
  report.pEndDoc();
  EXPECT_THAT(host_.printed, IsEmpty());
  report.pStartDoc();
  report.pPrint("the next one");
  report.pEndDoc();
  EXPECT_THAT(host_.printed, ElementsAre(ElementsAre("the next one")));
}

TEST_F(ReportTest, APrinterThatFailsOrIsCancelledLeavesTheNextReportAlone) {
  Report report(screen_);
  report.pEndDoc();  // there is none
  report.pNewPage();
  report.pStartDoc();
  host_.print_fault = "No paper.";
  EXPECT_THROW(report.pEndDoc(), Fault);
  host_.print_fault.clear();
  host_.print_cancelled = true;
  report.pStartDoc();
  report.pEndDoc();
  EXPECT_THAT(host_.messages, ElementsAre("Nothing was printed."));
  host_.print_cancelled = false;
  report.pStartDoc();
  report.pPrint("x");
  report.pEndDoc();
  EXPECT_THAT(host_.printed, ElementsAre(ElementsAre("x")));
}

}  // namespace
}  // namespace tarvane::printing
