#include "printing/quick_print.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "printing/edit_template.h"
#include "support/fake_host.h"
#include "support/shop_folder.h"

namespace tarvane::printing {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr const char kLetter[] = "{\\rtf1\\ansi Dear #DearName#}";
constexpr const char kNote[] = "Printed out Estimate on 09/03/2026";

// As while the finder covers the jobs.
class ClosedJob : public job::JobScreen {
 public:
  using JobScreen::JobScreen;

 protected:
  bool JobIsOpen() const override { return false; }
};

class QuickPrintTest : public testing::Test {
 protected:
  QuickPrintTest() {
    folder_.AddSettings();
    for (const std::string_view file : {data_file::kReminderLetter, data_file::kEstimateLetter,
                                        data_file::kStatementLetter, data_file::kReceiptLetter}) {
      folder_.Write(file, kLetter);
    }
  }
  void Show(job::JobScreen& job, const std::function<void(FrmPrint&)>& step) {
    FrmPrint print(host_, shop_, job);
    Show(job, print, step);
  }
  void Show(job::JobScreen& job, FrmPrint& print, const std::function<void(FrmPrint&)>& step) {
    host_.OnShow<FrmPrint>(step);
    job.ShowModal(print);
  }
  std::string StoredNotes() const { return folder_.Stored(kJobTable, 0, "5T(3)"); }

  ShopFolder folder_;
  Shop shop_{folder_.path()};
  FakeHost host_;
};

TEST_F(QuickPrintTest, TheTrackTellsTheLetterAndTheNotesItsWord) {
  const struct {
    const char* track;
    std::optional<LetterKind> kind;
    const char* title;
    const char* note;
  } cases[] = {
      {"1", {}, "Tarvane Print Preview", "Printed out Reminder on 09/03/2026"},
      {"2", {}, "Tarvane Print Preview", kNote},
      {"3", {}, "Tarvane Statement Preview", "Printed out Statement on 09/03/2026"},
      {"", {}, "Tarvane Print Preview", kNote},
      {"3", LetterKind::kReceipt, "Tarvane Print Preview", "Printed out Receipt on 09/03/2026"},
  };
  folder_.AddJob({{"Name", "Ash"}});
  for (const auto& [track, kind, title, note] : cases) {
    ClosedJob job(host_, shop_);
    job.OpenData();
    job.TxtTrack.SetText(track);
    job.JobNotes.SetText("");
    FrmPrint print = kind ? FrmPrint(host_, shop_, job, *kind) : FrmPrint(host_, shop_, job);
    Show(job, print, [&](FrmPrint& screen) {
      EXPECT_EQ(screen.title(), title);
      screen.CmdPrintTwo.UserPress();
      EXPECT_FALSE(screen.is_closed());
    });
    EXPECT_EQ(host_.print_orders.back().copies, 2);
    EXPECT_FALSE(host_.print_orders.back().ask);
    EXPECT_EQ(StoredNotes(), note);
  }
}

TEST_F(QuickPrintTest, TheNoteStandsOnItsOwnLineAndTakesNothingElseOfALookAlong) {
  const std::pair<const char*, std::string> cases[] = {
      {"", kNote},
      {"Rings twice.", "Rings twice.\r\n" + std::string(kNote)},
      {"One\r\n", "One\r\n" + std::string(kNote)}};
  for (const auto& [notes, after] : cases) {
    ShopFolder folder;
    folder.AddSettings();
    folder.Write(data_file::kEstimateLetter, kLetter);
    // What the look works out, a total of 5.00, isn't stored.
    folder.AddJob({{"5T(3)", notes}, {"1T(0)", "5|a|b|c|d|e|\r\n"}, {"4text", "9.00"}});
    Shop shop(folder.path());
    ClosedJob job(host_, shop);
    job.OpenData();
    FrmPrint print(host_, shop, job);
    Show(job, print, [](FrmPrint& screen) { screen.CmdPrintOne.UserPress(); });
    EXPECT_EQ(folder.Stored(kJobTable, 0, "5T(3)"), after);
    EXPECT_EQ(folder.Stored(kJobTable, 0, "4text"), "9.00");
    EXPECT_FALSE(job.Data1.rows().IsEditing());
  }
}

TEST_F(QuickPrintTest, WhatWasNotPrintedIsNotNotedAndStaysOpen) {
  folder_.AddJob({{"5T(3)", "Rings twice."}});
  job::JobScreen job(host_, shop_);
  job.OpenData();
  job.Data1.Save();
  for (const bool cancelled : {true, false}) {
    host_.print_cancelled = cancelled;
    host_.print_fault = cancelled ? "" : "The printer is out of reach.";
    Show(job, [&](FrmPrint& screen) {
      screen.CloseAfterPrinting.UserSet(true);
      screen.CmdPrintOne.UserPress();
      EXPECT_FALSE(screen.is_closed());
    });
  }
  EXPECT_THAT(host_.messages, ElementsAre("Nothing was printed.", "The printer is out of reach."));
  EXPECT_EQ(job.JobNotes.text(), "Rings twice.");
  EXPECT_EQ(StoredNotes(), "Rings twice.");
}

TEST_F(QuickPrintTest, ANoteThatCannotBeStoredIsToldAndKeepsNobody) {
  folder_.AddJob({{"5T(3)", "Rings twice."}});
  job::JobScreen job(host_, shop_);
  job.OpenData();
  job.Data1.rows().SetValue("Name", std::string(300, 'x'));
  Show(job, [&](FrmPrint& screen) {
    screen.CloseAfterPrinting.UserSet(true);
    screen.CmdPrintOne.UserPress();
    EXPECT_TRUE(screen.is_closed());
  });
  EXPECT_THAT(host_.messages, ElementsAre(HasSubstr("was printed, but the job's notes don't tell it")));
  EXPECT_EQ(job.JobNotes.text(), "Rings twice.");
  EXPECT_EQ(host_.printed.size(), 1U);
}

TEST_F(QuickPrintTest, WithoutAJobThereIsALetterAndNoNote) {
  job::JobScreen job(host_, shop_);
  job.OpenData();
  Show(job, [](FrmPrint& screen) { screen.CmdPrintOne.UserPress(); });
  EXPECT_THAT(host_.messages, IsEmpty());
  ASSERT_EQ(host_.printed.size(), 1U);
  EXPECT_THAT(host_.printed[0], testing::Contains(HasSubstr("Sir/Madam")));
}

TEST_F(QuickPrintTest, ATemplateIsReplacedWholeOrNotAtAll) {
  folder_.AddJob({{"Name", "Ash"}});
  job::JobScreen job(host_, shop_);
  job.OpenData();
  // A folder stands where the new content would be written beside.
  std::filesystem::create_directories(folder_.path() / "DefaultEstimate.rtf.new" / "x");
  host_.answers = {Answer::kYes};
  Show(job, [](FrmPrint& screen) {
    screen.CmdEdit.UserPress();
    screen.RichTextBox1.UserType("Another letter");
    screen.CmdSave.UserPress();
    EXPECT_TRUE(screen.RichTextBox1.changed());
  });
  EXPECT_EQ(host_.questions.back().preset, Answer::kNo);
  EXPECT_THAT(host_.messages, ElementsAre(HasSubstr("could not be written")));
  EXPECT_EQ(folder_.Read(data_file::kEstimateLetter), kLetter);
}

class EditTemplateTest : public QuickPrintTest {
 protected:
  void Edit(const std::function<void(FrmEditTemp&)>& step) {
    FrmEditTemp screen(host_, shop_);
    screen.CboTemplates.UserPick(0);
    screen.CmdLoad.UserPress();
    step(screen);
  }
  std::string File() const { return folder_.Read(data_file::kEstimateLetter); }
};

TEST_F(EditTemplateTest, WhatIsNotChangedKeepsItsBytes) {
  const std::string odd = "{\\rtf1\\ansi\\unknown{\\*\\odd kept}\r\n Dear #Name#}";
  folder_.Write(data_file::kEstimateLetter, odd);
  Edit([&](FrmEditTemp& screen) {
    screen.CmdSave.UserPress();
    EXPECT_EQ(File(), odd);
    std::filesystem::remove(folder_.path() / data_file::kEstimateLetter);
    screen.CmdSave.UserPress();
    EXPECT_EQ(File(), odd);
  });
}

TEST_F(EditTemplateTest, WhatAnotherProgramWroteMeanwhileIsAskedFor) {
  Edit([&](FrmEditTemp& screen) {
    folder_.Write(data_file::kEstimateLetter, "{\\rtf1 newer}");
    screen.CmdSave.UserPress();
    EXPECT_EQ(File(), "{\\rtf1 newer}") << "nothing was changed here";
    screen.RichTextBox1.UserType("Mine");
    host_.answers = {Answer::kNo, Answer::kYes};
    EXPECT_FALSE(screen.Save());
    EXPECT_EQ(File(), "{\\rtf1 newer}");
    EXPECT_TRUE(screen.changed());
    EXPECT_TRUE(screen.Save());
    EXPECT_THAT(File(), HasSubstr("Mine"));
    EXPECT_FALSE(screen.changed());
    EXPECT_TRUE(screen.Save()) << "no further question";
  });
}

TEST_F(EditTemplateTest, ATokenGoesInWholeAndOneOfTwoLooksIsTold) {
  Edit([&](FrmEditTemp& screen) {
    screen.RichTextBox1.UserType("Balance: ");
    screen.RichTextBox1.Select({9, 9});
    const auto& tokens = screen.CboTokens.entries();
    screen.CboTokens.UserPick(static_cast<std::size_t>(std::ranges::find(tokens, "#Bal#") - tokens.begin()));
    EXPECT_EQ(screen.RichTextBox1.PlainText(), "Balance: #Bal#");
    screen.CmdSave.UserPress();
    EXPECT_THAT(File(), HasSubstr("#Bal#"));
    EXPECT_THAT(host_.messages, IsEmpty());
    screen.RichTextBox1.Select({10, 12});
    rich_text::StyleChange bold;
    bold.bold = true;
    screen.RichTextBox1.ChangeStyle(bold);
    screen.CmdSave.UserPress();
    EXPECT_THAT(host_.messages, ElementsAre(HasSubstr("a part of #Bal# looks otherwise")));
  });
}

}  // namespace
}  // namespace tarvane::printing
