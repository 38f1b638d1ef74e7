#include "printing/preview.h"

#include <gmock/gmock.h>

#include <fstream>

#include "support/fake_host.h"
#include "support/temporary_folder.h"

namespace tarvane::printing {
namespace {

// So many pages, each with its number on it.
class NumberedPages : public paper::Pages {
 public:
  explicit NumberedPages(int count, paper::Paper paper = {}) : count_(count), paper_(paper) {}
  int Count() const override { return count_; }
  const paper::Paper& paper() const override { return paper_; }
  void Draw(int page, paper::Surface& surface) const override {
    surface.DrawText({72, 72}, {}, std::to_string(page + 1), {});
  }

 private:
  int count_;
  paper::Paper paper_;
};

// Lacks some characters.
class PdfHost : public FakeHost {
 public:
  std::string missing;
  std::string SavePdf(const paper::Pages& pages, const std::filesystem::path& file,
                      std::string_view title) override {
    if (!(std::ofstream(file) << title << " " << pages.Count())) throw Fault("It can't be written.");
    return missing;
  }
};

class PreviewTest : public testing::Test {
 protected:
  // Opens it over so many pages and does `step` with it.
  void Preview(int pages, PreviewButton button, const std::function<void(frmPreview&)>& step) {
    host_.OnShow<frmPreview>(step);
    const NumberedPages shown(pages);
    frmPreview preview(host_, shown, std::move(button));
    Screen opener(host_, "Opener");
    opener.ShowModal(preview);
  }
  // What tells where one is: the page line, slider, tab, and the buttons that are on.
  static std::string Place(const frmPreview& preview) {
    std::string place = preview.Label2.caption() + " " + std::to_string(preview.Slider1.value()) + " " +
                        std::to_string(preview.tabPreview.selected()) + " " +
                        std::to_string(preview.picChild.page());
    for (const Button* button :
         {&preview.cmdStart, &preview.cmdPrevious, &preview.cmdNext, &preview.cmdEnd}) {
      if (button->enabled()) place += " " + button->caption();
    }
    return place;
  }

  PdfHost host_;
};

TEST_F(PreviewTest, EveryWayToAPageLeadsToTheSameState) {
  Preview(3, {}, [](frmPreview& preview) {
    const std::string first = "Page 1 of 3 1 0 0 > >|";
    EXPECT_EQ(Place(preview), first);
    EXPECT_EQ(preview.tabPreview.captions(), (std::vector<std::string>{"Page 1", "Page 2", "Page 3"}));
    const std::pair<std::function<void()>, std::string> steps[] = {
        {[&] { preview.cmdNext.UserPress(); }, "Page 2 of 3 2 1 1 |< < > >|"},
        {[&] { preview.cmdEnd.UserPress(); }, "Page 3 of 3 3 2 2 |< <"},
        {[&] { preview.cmdNext.UserPress(); }, "Page 3 of 3 3 2 2 |< <"},
        {[&] { preview.cmdPrevious.UserPress(); }, "Page 2 of 3 2 1 1 |< < > >|"},
        {[&] { preview.cmdStart.UserPress(); }, first},
        {[&] { preview.Slider1.UserMove(9); }, "Page 3 of 3 3 2 2 |< <"},
        {[&] { preview.tabPreview.UserSelect(1); }, "Page 2 of 3 2 1 1 |< < > >|"},
        {[&] { preview.ShowPage(-5); }, first}};
    for (const auto& [step, place] : steps) {
      step();
      EXPECT_EQ(Place(preview), place);
    }
  });
}

TEST_F(PreviewTest, ZoomStaysAtTheEndsOfItsList) {
  Preview(1, {}, [](frmPreview& preview) {
    EXPECT_EQ(Place(preview), "Page 1 of 1 1 0 0");
    EXPECT_EQ(preview.cboPercent.entries().size(), 18U);
    const auto zoomed = [&preview] {
      return preview.cboPercent.text() + " " + std::to_string(preview.picChild.zoom()) +
             (preview.vscPreview.visible() ? " v" + std::to_string(preview.vscPreview.most()) : "") +
             (preview.hscPreview.visible() ? " h" + std::to_string(preview.hscPreview.most()) : "");
    };
    EXPECT_EQ(zoomed(), "100% 100");
    Button& in = preview.btnPreview[frmPreview::kZoomIn];
    Button& out = preview.btnPreview[frmPreview::kZoomOut];
    in.UserPress();
    EXPECT_EQ(zoomed(), "110% 110 v84 h60");
    for (int i = 0; i < 20; ++i) in.UserPress();
    EXPECT_EQ(zoomed(), "200% 200 v842 h595");
    out.UserPress();
    EXPECT_EQ(zoomed(), "190% 190 v758 h536");
    preview.cboPercent.UserPick(16);
    EXPECT_EQ(zoomed(), "40% 40");
    for (int i = 0; i < 3; ++i) out.UserPress();
    EXPECT_EQ(zoomed(), "30% 30");
  });
}

// What printing does, and what of it the worker is asked.
TEST_F(PreviewTest, TheQuestionFollowsWhatWasSentAndYesCloses) {
  int prints = 0;
  const auto letter = [&prints](bool sent) {
    return PreviewButton{.caption = std::string(kPrintLetter),
                         .print =
                             [&prints, sent] {
                               ++prints;
                               return sent;
                             },
                         .name = {}};
  };
  Preview(1, letter(true), [this](frmPreview& preview) {
    EXPECT_EQ(preview.btnPreview[frmPreview::kPrint].caption(), "Print Letter");
    host_.answers = {Answer::kNo, Answer::kYes};
    preview.btnPreview[frmPreview::kPrint].UserPress();
    EXPECT_FALSE(preview.is_closed());
    preview.btnPreview[frmPreview::kPrint].UserPress();
    EXPECT_TRUE(preview.is_closed());
  });
  EXPECT_EQ(prints, 2);
  EXPECT_EQ(host_.questions.at(0).title, "Printing Check ");
  EXPECT_EQ(host_.questions.at(0).text, "Did the document print ok. ");
  EXPECT_EQ(host_.questions.size(), 2U);

  Preview(1, letter(false), [](frmPreview& preview) {
    preview.btnPreview[frmPreview::kPrint].UserPress();
    EXPECT_FALSE(preview.is_closed());
  });
  PreviewButton failing = letter(true);
  failing.print = []() -> bool { throw Fault("The printer is on fire."); };
  Preview(1, failing, [this](frmPreview& preview) {
    preview.btnPreview[frmPreview::kPrint].UserPress();
    EXPECT_EQ(host_.messages, std::vector<std::string>{"The printer is on fire."});
    EXPECT_FALSE(preview.is_closed());
  });
  EXPECT_EQ(host_.questions.size(), 2U);

  // Any other caption asks all the same, and prints nothing.
  PreviewButton other = letter(true);
  other.caption = "Print Est";
  prints = 0;
  Preview(1, other, [this](frmPreview& preview) {
    host_.answers = {Answer::kNo};
    preview.btnPreview[frmPreview::kPrint].UserPress();
  });
  EXPECT_EQ(prints, 0);
  EXPECT_EQ(host_.questions.size(), 3U);
}

TEST_F(PreviewTest, KeepsThePagesAsPdfAndMailsThem) {
  const TemporaryFolder folder;
  const auto file = folder.path() / "kept.pdf";
  const std::string saved = "Saved in " + file.string() + ".";
  const auto told = [this](std::string_view part) {
    ASSERT_EQ(host_.messages.size(), 1U);
    EXPECT_THAT(host_.messages[0], testing::HasSubstr(std::string(part)));
    host_.messages.clear();
  };
  PreviewButton button;
  button.name = "Estimate 5/7";
  Preview(2, button, [&](frmPreview& preview) {
    host_.files = {std::nullopt, file, file, folder.path() / "nowhere" / "kept.pdf"};
    preview.CmdSavePdf.UserPress();
    EXPECT_TRUE(host_.messages.empty() && !exists(file)) << "cancelled";
    EXPECT_EQ(host_.suggestions.at(0), "Estimate 5-7.pdf");
    preview.CmdSavePdf.UserPress();
    EXPECT_TRUE(exists(file));
    told(saved);
    host_.missing = "\xE2\x99\x9E";
    preview.CmdSavePdf.UserPress();
    told("can't be shown in it: \xE2\x99\x9E");
    preview.CmdSavePdf.UserPress();
    told("can't be written");

    host_.files = {std::nullopt, file, file};
    host_.missing.clear();
    preview.CmdEmail.UserPress();
    EXPECT_TRUE(host_.launched.empty() && host_.messages.empty()) << "cancelled";
    preview.CmdEmail.UserPress();
    ASSERT_EQ(host_.launched.size(), 1U);
    EXPECT_THAT(host_.launched[0], testing::HasSubstr(file.string()));
    EXPECT_TRUE(host_.messages.empty());
    host_.can_launch = false;
    preview.CmdEmail.UserPress();
    told(saved);
    EXPECT_FALSE(preview.is_closed());
  });
}

TEST_F(PreviewTest, ATextIsShownOnTheSheetThatTheFreshlySetUpPrinterHas) {
  class OtherPaper : public FakeHost {
   public:
    paper::Paper PrinterPaper() override {
      if (broken) throw Fault("No printer.");
      return printer_setups == 0 ? paper::Paper{} : paper::Paper{{300, 200}, {}};
    }
    bool broken = false;
  };
  OtherPaper host;
  Screen opener(host, "Opener");
  std::string lines = "first";
  for (int i = 0; i < 40; ++i) lines += "\nline";
  const rich_text::Document text = rich_text::FromPlainText(lines);
  host.OnShow<frmPreview>([](frmPreview& preview) {
    EXPECT_EQ(preview.Label2.caption(), "Page 1 of 1");
    preview.CmdPrintSetup.UserPress();
    EXPECT_EQ(preview.picChild.pages()->paper().size, (paper::Size{300, 200}));
    EXPECT_GT(preview.tabPreview.captions().size(), 1U);
    EXPECT_EQ(preview.Slider1.most(), preview.picChild.pages()->Count());
  });
  PreviewRichText(opener, text, kPreviewMargins, {});
  host.broken = true;
  host.OnShow<frmPreview>(
      [](frmPreview& preview) { EXPECT_EQ(preview.picChild.pages()->paper(), paper::Paper{}); });
  PreviewRichText(opener, {}, kPreviewMargins, {});
  EXPECT_TRUE(host.shows.empty() && host.messages.empty());
}

}  // namespace
}  // namespace tarvane::printing
