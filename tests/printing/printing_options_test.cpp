#include "printing/printing_options.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "printing/print_db.h"
#include "support/fake_host.h"
#include "support/shop_folder.h"

namespace tarvane::printing {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::IsEmpty;

class PrintingOptions : public testing::Test {
 protected:
  PrintingOptions() {
    folder_.AddSettings();
    std::string notes = std::string(40000, 'w') + " end\r\n";
    for (int i = 0; i < 60; ++i) notes += "hem ";
    folder_.AddJob({{"Name", "Mrs Tarrant"}, {"Text13", "20.00"}, {"5T(3)", notes}});
  }
  // Shows the screen over the job; `steps` is what the worker does.
  void Show(const std::function<void(FrmPrinting&)>& steps) {
    Shop shop(folder_.path());
    job::JobScreen job(host_, shop);
    job.OpenData();
    job.Data1.rows().MoveLast();
    FrmPrinting screen(host_, shop, job);
    host_.OnShow<FrmPrinting>([&](FrmPrinting& shown) {
      steps(shown);
      shown.UserClose();
    });
    job.ShowModal(screen);
  }
  // What the rich text screen gets as the button is pressed.
  std::string Printed(Button& button) {
    std::string text;
    host_.OnShow<FrmPrintDB>([&](FrmPrintDB& shown) {
      text = shown.RichTextBox1.PlainText();
      pictures_ = shown.RichTextBox1.document().pictures.size();
    });
    button.UserPress();
    return text;
  }

  ShopFolder folder_;
  FakeHost host_;
  std::size_t pictures_ = 0;  // in what was printed last
};

TEST_F(PrintingOptions, AShopWithoutLettersGetsARowWithTheFirstThatIsTyped) {
  folder_.MakeFile("TblLetters");
  Show([](FrmPrinting& screen) { screen.SSTab1.UserSelect(1); });
  EXPECT_EQ(folder_.Count("TblLetters"), 0);
  Show([](FrmPrinting& screen) {
    screen.TxtLetter[0].UserType("Thank you.");
    screen.SSTab1.UserSelect(7);
    screen.TxtLetter[7].UserType("No ladders.");
  });
  EXPECT_EQ(folder_.Count("TblLetters"), 1);
  EXPECT_EQ(folder_.Stored("TblLetters", 0, "TxtLetter(0)"), "Thank you.");
  EXPECT_EQ(folder_.Stored("TblLetters", 0, "TxtLetter(7)"), "No ladders.");
  EXPECT_THAT(host_.messages, IsEmpty());
}

TEST_F(PrintingOptions, WithoutTheTableOfLettersWorkSheetsAreBuiltAllTheSame) {
  Show([this](FrmPrinting& screen) {
    EXPECT_EQ(host_.messages.size(), 1U);
    EXPECT_TRUE(screen.TxtLetter[0].read_only());
    EXPECT_THAT(Printed(screen.Command2), HasSubstr("START OF ORDER/ROOM 2"));
  });
}

// A text that can't be stored is told, printed, and lost only where the worker says so.
TEST_F(PrintingOptions, WhatCannotBeStoredWaits) {
  folder_.AddRow("TblLetters", {{"TxtLetter(0)", "Old."}});
  Database(folder_.jobs_file())
      .Execute("CREATE TRIGGER no_letters BEFORE UPDATE ON TblLetters BEGIN SELECT RAISE(FAIL, 'full'); END");
  Show([&](FrmPrinting& screen) {
    screen.TxtLetter[0].UserType("New.");
    screen.Check(FrmPrinting::kLetter).UserSet(true);
    EXPECT_THAT(Printed(screen.StartPrinting), HasSubstr("New."));
    EXPECT_EQ(host_.messages.size(), 1U);
    screen.SSTab1.UserSelect(2);
    EXPECT_EQ(screen.Label1.caption(), "Thanks Selected");
    EXPECT_EQ(host_.messages.size(), 2U);
    host_.answers = {Answer::kNo, Answer::kYes};
    screen.UserClose();
    EXPECT_FALSE(screen.is_closed());
    EXPECT_EQ(screen.TxtLetter[0].text(), "New.");
  });
  EXPECT_EQ(host_.questions.size(), 2U);
  EXPECT_EQ(folder_.Stored("TblLetters", 0, "TxtLetter(0)"), "Old.");
}

TEST_F(PrintingOptions, ARunThatFaultsEndsTheWorkSheet) {
  folder_.AddRow("TblLetters", {});
  Show([this](FrmPrinting& screen) {
    host_.shows.emplace_back([](Screen&) { throw Fault("No room for a window."); });
    screen.Command2.UserPress();
    EXPECT_EQ(host_.messages.back(), "No room for a window.");
    EXPECT_THAT(Printed(screen.StartPrinting), testing::Not(HasSubstr("Work Sheets Printed on")));
  });
}

// A line of a room that holds the state of a curtain of that width.
std::string ItemLine(const std::string& editor, const std::string& width) {
  std::string line = "1.00|Window|";
  for (int field = 0; field < 65; ++field) {
    line += (field == 12 ? width : field == 14 ? "200" : field == 56 || field == 57 ? "False" : "") + "~";
  }
  return line + "|" + editor + "|1|A curtain~|\r\n";
}

TEST_F(PrintingOptions, OnlyCurtainsWithMeasuresAreDrawnAndOnlyOnWorkSheets) {
  folder_.AddRow("TblLetters", {});
  folder_.AddJob({{"Text11", "4.00"},
                  {"Text10", "A curtain"},
                  {"1T(0)", ItemLine("CurtainWizard", "240") + ItemLine("AddItem", "250") +
                                ItemLine(" MainCWizard ", "260") + ItemLine("CurtainWizard", "wide")}});
  Show([this](FrmPrinting& screen) {
    for (const bool drawings : {false, true}) {
      screen.CheckDrawings.UserSet(drawings);
      for (Button* button : {&screen.Command2, &screen.StartPrinting}) {
        const std::string text = Printed(*button);
        const bool drawn = drawings && button == &screen.Command2;
        EXPECT_EQ(pictures_, drawn ? 2U : 0U);
        for (const std::string_view caption : {"Track 240 cm, drop 200 cm", "Track 260 cm, drop 200 cm"}) {
          EXPECT_EQ(text.find(caption) != std::string::npos, drawn) << caption;
        }
      }
    }
  });
}

TEST_F(PrintingOptions, ALongNameIsToldByItsBeginning) {
  folder_.AddJob({{"Name", std::string(255, 'W')}});
  Show([](FrmPrinting& screen) {
    screen.Check(FrmPrinting::kLetter).UserSet(true);
    EXPECT_EQ(screen.Outcome.caption(), "Estimate for " + std::string(60, 'W') + "...");
    EXPECT_EQ(screen.TxtDear.text().size(), 255U);
  });
}

TEST_F(PrintingOptions, LongNotesGoOnOverThePagesOfThePdf) {
  folder_.AddRow("TblLetters", {});
  fs::copy(TARVANE_DATA_DIR "/Fonts", folder_.path() / "Fonts");
  Show([this](FrmPrinting& screen) {
    screen.Check(FrmPrinting::kNotes).UserSet(true);
    screen.Command7.UserPress();
    EXPECT_EQ(host_.launched.size(), 1U);
    const std::string pdf = folder_.Read("test.pdf");
    for (const std::string_view part : {"(Test PDF Document)", "/Count 15\r\n", " end) Tj", "(msg) Tj"}) {
      EXPECT_NE(pdf.find(part), std::string::npos) << part;
    }
    EXPECT_EQ(pdf.find("( hem"), std::string::npos);
    EXPECT_NE(pdf.find("(hem hem"), std::string::npos);
    fs::remove(folder_.path() / "test.pdf");
    fs::create_directory(folder_.path() / "test.pdf");
    screen.Command7.UserPress();
  });
  EXPECT_EQ(host_.launched.size(), 1U);
  ASSERT_EQ(host_.messages.size(), 1U);
  EXPECT_THAT(host_.messages[0], HasSubstr("couldn't be written"));
}

}  // namespace
}  // namespace tarvane::printing
