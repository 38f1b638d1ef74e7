#include "printing/page_browser.h"

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

class PageBrowser : public ReportTest {
 protected:
  // What the worker does in the window on a report of that many pages.
  void Browse(int pages, std::function<void(frmMultiPgPreview&)> step) {
    host_.OnShow<frmMultiPgPreview>(std::move(step));
    clsMultiPgPreview report(screen_);
    Compose(report, pages);
  }
};

TEST_F(PageBrowser, WalksThePages) {
  Browse(3, [this](frmMultiPgPreview& browser) {
    const auto expect = [&](int page) {
      EXPECT_EQ(browser.picChild.picture(), File(page));
      EXPECT_EQ(browser.Label2.caption(), "Page " + std::to_string(page + 1) + " of 3");
      EXPECT_EQ(browser.cmdPrevious.enabled(), page > 0);
      EXPECT_EQ(browser.cmdStart.enabled(), page > 0);
      EXPECT_EQ(browser.cmdNext.enabled(), page < 2);
      EXPECT_EQ(browser.cmdEnd.enabled(), page < 2);
    };
    expect(0);
    for (const auto& [button, page] : {std::pair{&browser.cmdNext, 1},
                                       {&browser.cmdEnd, 2},
                                       {&browser.cmdPrevious, 1},
                                       {&browser.cmdStart, 0}}) {
      button->UserPress();
      expect(page);
    }
    host_.inputs = {" 3 ", "4", "0", "two", "", std::nullopt};
    for (int times = 0; times < 6; ++times) browser.cmdGoto.UserPress();
    expect(2);
    EXPECT_EQ(host_.messages.size(), 4U);
    EXPECT_EQ(host_.messages.front(), "There is no page \"4\". Pages are 1 to 3.");
  });
  Browse(1, [](frmMultiPgPreview& browser) { EXPECT_FALSE(browser.cmdGoto.enabled()); });
}

TEST_F(PageBrowser, ZoomStaysAtItsEnds) {
  Browse(1, [](frmMultiPgPreview& browser) {
    EXPECT_EQ(browser.cboPercent.entries().size(), 18U);
    EXPECT_EQ(browser.cboPercent.text(), "100%");
    browser.cmdZoomIn.UserPress();
    EXPECT_EQ(browser.cboPercent.text(), "110%");
    EXPECT_EQ(browser.picChild.zoom(), 110);
    for (const auto& [entry, button, zoom] :
         {std::tuple{0, &browser.cmdZoomIn, 200}, {17, &browser.cmdZoomOut, 30}}) {
      browser.cboPercent.UserPick(static_cast<std::size_t>(entry));
      button->UserPress();
      EXPECT_EQ(browser.picChild.zoom(), zoom);
    }
  });
}

TEST_F(PageBrowser, PrintsARangeOfWhatWasDrawn) {
  Browse(4, [this](frmMultiPgPreview& browser) {
    std::vector<std::string> told;
    browser.lblStatus.Watch([&](Aspect) { told.push_back(browser.lblStatus.caption()); });
    host_.inputs = {"2", "3"};
    browser.cmdPrint.UserPress();
    EXPECT_THAT(host_.printed, ElementsAre(ElementsAre("Text 2"), ElementsAre("Text 3")));
    EXPECT_THAT(told, ElementsAre("Printing page 1 of 2", "Printing page 2 of 2", ""));
    EXPECT_EQ(host_.progress_ends, 1);

    host_.printed.clear();
    host_.inputs = {"3", "2", std::nullopt, "1", std::nullopt, "1", "5"};
    for (int times = 0; times < 4; ++times) browser.cmdPrint.UserPress();
    EXPECT_THAT(host_.inputs, IsEmpty());
    EXPECT_THAT(host_.messages, ElementsAre(HasSubstr("Nothing was printed"), HasSubstr("no page \"5\"")));
    EXPECT_EQ(host_.print_orders.size(), 1U);

    host_.inputs = {"1", "1", "1", "1"};
    host_.print_cancelled = true;
    browser.cmdPrint.UserPress();
    host_.print_fault = "The printer is off.";
    browser.cmdPrint.UserPress();
    EXPECT_EQ(host_.messages.back(), "The printer is off.");
    EXPECT_EQ(host_.messages[2], "Nothing was printed.");
    EXPECT_EQ(browser.lblStatus.caption(), "");
    EXPECT_TRUE(browser.is_shown());
  });
}

TEST_F(PageBrowser, CopiesThePagesIntoAFolder) {
  const fs::path target = folder_.path() / "made" / "here";
  Browse(2, [&](frmMultiPgPreview& browser) {
    const auto copy = [&](const std::string& folder) {
      host_.inputs = {folder};
      browser.cmdCopy.UserPress();
    };
    host_.answers = {Answer::kNo, Answer::kYes};
    copy(target);
    EXPECT_FALSE(fs::exists(target));
    copy(" " + target.string() + "\n");
    EXPECT_TRUE(IsPageFile(PageFile(target, 0)) && IsPageFile(PageFile(target, 1)));
    EXPECT_EQ(host_.messages.back(), "2 pages were copied to " + target.string() + ".");

    ReplaceFile(PageFile(target, 1), "mine");
    host_.answers = {Answer::kNo, Answer::kYes};
    copy(target);
    EXPECT_THAT(host_.questions.back().text, HasSubstr("Write over"));
    EXPECT_EQ(host_.questions.back().preset, Answer::kNo);
    EXPECT_EQ(ReadFile(PageFile(target, 1)), "mine");
    copy(target);
    EXPECT_TRUE(IsPageFile(PageFile(target, 1)));

    host_.messages.clear();
    copy(folder_.path());
    copy("");
    ASSERT_EQ(host_.messages.size(), 1U);
    EXPECT_THAT(host_.messages[0], HasSubstr("already"));
    EXPECT_TRUE(IsPageFile(File(0)));
  });
}

TEST_F(PageBrowser, ACopyThatFailsTellsWhatStands) {
  const fs::path target = folder_.path() / "target";
  fs::create_directories(PageFile(target, 1));
  ReplaceFile(folder_.path() / "file", "");
  Browse(3, [&](frmMultiPgPreview& browser) {
    host_.answers = {Answer::kYes, Answer::kYes};
    host_.inputs = {target.string(), (folder_.path() / "file" / "below").string()};
    browser.cmdCopy.UserPress();
    EXPECT_TRUE(IsPageFile(PageFile(target, 0)));
    EXPECT_FALSE(fs::exists(PageFile(target, 2)));
    EXPECT_THAT(host_.messages.back(), HasSubstr("Only 1 of 3 pages were copied"));
    EXPECT_THAT(host_.messages.back(), HasSubstr("PPview1.bmp"));
    browser.cmdCopy.UserPress();
    EXPECT_THAT(host_.messages.back(), HasSubstr("could not be made"));
    EXPECT_EQ(browser.lblStatus.caption(), "");
  });
}

TEST_F(PageBrowser, AMissingOrForeignPageFileIsBlankAndTold) {
  Browse(3, [&](frmMultiPgPreview& browser) {
    fs::remove(File(0));
    ReplaceFile(File(1), "BM, but no bitmap");
    fs::resize_file(File(2), 5000);
    for (int page = 0; page < 3; ++page) {
      browser.ShowPage(page);
      EXPECT_EQ(browser.picChild.picture(), "");
      EXPECT_THAT(browser.lblStatus.caption(), HasSubstr("can't be shown"));
    }
    host_.inputs = {"1", "3"};
    browser.cmdPrint.UserPress();
    EXPECT_EQ(host_.printed.size(), 3U);
  });
}

}  // namespace
}  // namespace tarvane::printing
