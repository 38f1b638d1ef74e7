#include "printing/print_db.h"

#include <gmock/gmock.h>

#include <fstream>

#include "rich_text/rtf.h"
#include "store/ordinary_user.h"
#include "support/fake_host.h"
#include "support/temporary_folder.h"

namespace tarvane::printing {
namespace {

using rich_text::Alignment;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class PrintDbTest : public testing::Test {
 protected:
  PrintDbTest() {
    std::filesystem::copy(TARVANE_DATA_DIR "/Fonts", folder_.path() / "Fonts");
    text_.OnChanged([this] { ++changes_; });
  }
  std::filesystem::path File(std::string_view name) const { return folder_.path() / name; }
  std::string Bytes(std::string_view name) const { return ReadFile(File(name)).value_or("none"); }
  void Write(std::string_view name, std::string_view bytes) const {
    std::ofstream(File(name), std::ios::binary) << bytes;
  }
  void Find(std::string_view what) {
    letter_.TxtFind.UserType(what);
    letter_.TxtFind.UserEnterKey();
  }
  std::string Style() const { return letter_.LblStyle.caption(); }

  TemporaryFolder folder_;
  FakeHost host_;
  Shop shop_{folder_.path()};
  FrmPrintDB letter_{host_, shop_};
  RichTextBox& text_ = letter_.RichTextBox1;
  int changes_ = 0;
};

TEST_F(PrintDbTest, ToolsChangeTheLooksAndTheStyleIsTold) {
  text_.UserType("one two");
  EXPECT_EQ(Style(), "Arial 10");
  Find("TWO");
  for (Button* button : {&letter_.Bold, &letter_.Italic, &letter_.Underline, &letter_.Center})
    button->UserPress();
  letter_.FontPlus.UserPress();
  EXPECT_EQ(Style(), "Arial 11, bold, italic, underlined, centred");
  Find("one");
  EXPECT_EQ(Style(), "Arial 10, centred");
  Find("two");
  for (Button* button : {&letter_.Bold, &letter_.Center, &letter_.FontMinus}) button->UserPress();
  EXPECT_EQ(Style(), "Arial 10, italic, underlined");
  for (int i = 0; i < 100; ++i) letter_.FontMinus.UserPress();
  EXPECT_THAT(Style(), HasSubstr("Arial 6,"));
  for (int i = 0; i < 100; ++i) letter_.FontPlus.UserPress();
  EXPECT_THAT(Style(), HasSubstr("Arial 72,"));
}

TEST_F(PrintDbTest, FindsRoundTheTextAndSaysWhatIsNotThere) {
  text_.UserType("ab\r\nAB");
  Find("ab");
  EXPECT_EQ(text_.selection(), (rich_text::Range{0, 2}));
  letter_.CmdFind.UserPress();
  EXPECT_EQ(text_.selection(), (rich_text::Range{3, 5}));
  letter_.CmdFind.UserPress();
  EXPECT_EQ(text_.selection(), (rich_text::Range{0, 2}));
  Find("x");
  EXPECT_THAT(host_.messages, ElementsAre("\"x\" isn't in the text."));
  EXPECT_EQ(text_.selection(), (rich_text::Range{0, 2}));
  Find("");
  EXPECT_EQ(host_.beeps, 1);
}

TEST_F(PrintDbTest, CopiesAndPastesPlainText) {
  letter_.Copy.UserPress();
  letter_.Paste.UserPress();
  EXPECT_EQ(host_.beeps, 2) << "nothing to copy, nothing to paste";
  host_.clipboard = "a\r\nb\rc\nd";
  letter_.Paste.UserPress();
  EXPECT_EQ(text_.PlainText(), "a\r\nb\r\nc\r\nd");
  Find("b");
  letter_.Copy.UserPress();
  EXPECT_EQ(host_.clipboard, "b");
  letter_.Paste.UserPress();
  letter_.Paste.UserPress();
  EXPECT_EQ(text_.PlainText(), "a\r\nbb\r\nc\r\nd");
}

TEST_F(PrintDbTest, SavesWholeAndOpensTheSame) {
  text_.UserType("Caf\xC3\xA9\r\n{braces}");
  EXPECT_EQ(letter_.Unsaved(), "the text");
  host_.files = {std::nullopt, File("letter.rtf")};
  letter_.Save.UserPress();
  EXPECT_TRUE(text_.changed()) << "not chosen, not saved";
  letter_.Save.UserPress();
  EXPECT_EQ(letter_.Unsaved(), "");
  EXPECT_EQ(letter_.title(), "Letter - letter.rtf");
  EXPECT_THAT(host_.suggestions, ElementsAre("Letter 2026-03-09.rtf", "Letter 2026-03-09.rtf"));
  EXPECT_EQ(Bytes("letter.rtf"), rich_text::WriteRtf(text_.document()));

  letter_.New.UserPress();
  EXPECT_EQ(text_.PlainText(), "");
  EXPECT_EQ(letter_.title(), "Letter");
  host_.files = {File("letter.rtf")};
  letter_.Open.UserPress();
  EXPECT_EQ(text_.PlainText(), "Caf\xC3\xA9\r\n{braces}");
  EXPECT_FALSE(text_.changed());
}

TEST_F(PrintDbTest, WhatIsNotSavedIsAskedForBeforeItGoes) {
  text_.UserType("typed");
  host_.answers = {Answer::kNo, Answer::kNo};
  letter_.New.UserPress();
  letter_.Open.UserPress();
  EXPECT_EQ(text_.PlainText(), "typed");
  ASSERT_EQ(host_.questions.size(), 2);
  EXPECT_EQ(host_.questions[0].preset, Answer::kNo);
  EXPECT_THAT(host_.questions[0].text, HasSubstr("the text"));
  host_.answers = {Answer::kYes};
  letter_.New.UserPress();
  EXPECT_EQ(text_.PlainText(), "");
  text_.UserType("typed");
  letter_.CmdClose.UserPress();
  EXPECT_TRUE(letter_.is_closed());
  EXPECT_EQ(host_.questions.size(), 3) << "closing asks nothing";
}

TEST_F(PrintDbTest, FilesThatHoldNoTextAreToldAndLeaveTheTextAlone) {
  Write("binary.doc", std::string_view("\xD0\xCF\0\1", 4));
  Write("locked.rtf", "{\\rtf1 x}");
  std::filesystem::permissions(File("locked.rtf"), std::filesystem::perms::none);
  Write("large.txt", "x");
  std::filesystem::resize_file(File("large.txt"), 50'000'001);
  text_.SetDocument(rich_text::FromPlainText("stays"));
  std::filesystem::permissions(folder_.path(), std::filesystem::perms(0755));
  const OrdinaryUser user;
  for (const char* name : {"none.rtf", "binary.doc", "locked.rtf", "large.txt"}) {
    host_.messages.clear();
    host_.files = {File(name)};
    letter_.Open.UserPress();
    EXPECT_THAT(host_.messages, ElementsAre(HasSubstr(name)));
    EXPECT_EQ(text_.PlainText(), "stays");
    EXPECT_EQ(letter_.title(), "Letter");
  }
}

TEST_F(PrintDbTest, OtherTextFilesComeInThePrintersFont) {
  host_.SetPrinterFont({"Courier New", 12});
  for (const char* bytes : {"Caf\xC3\xA9 \xE2\x82\xAC",
                            "\xEF\xBB\xBF"
                            "Caf\xC3\xA9 \xE2\x82\xAC",
                            "Caf\xE9 \x80"}) {
    Write("text.txt", bytes);
    host_.files = {File("text.txt")};
    letter_.Open.UserPress();
    EXPECT_EQ(text_.PlainText(), "Caf\xC3\xA9 \xE2\x82\xAC");
    EXPECT_EQ(Style(), "Courier New 12");
  }
  host_.files = {std::nullopt};
  letter_.Save.UserPress();
  EXPECT_EQ(host_.suggestions.back(), "text.rtf");
}

TEST_F(PrintDbTest, TheWordProcessorGetsACopy) {
  text_.UserType("text");
  letter_.Command2.UserPress();
  EXPECT_EQ(Bytes("temp.doc"), rich_text::WriteRtf(text_.document()));
  EXPECT_THAT(host_.launched, ElementsAre(File("temp.doc").string()));
  EXPECT_TRUE(text_.changed()) << "that isn't saving";
  host_.can_launch = false;
  letter_.Command2.UserPress();
  EXPECT_THAT(host_.messages, ElementsAre("Nothing here can open it."));
}

TEST_F(PrintDbTest, ThePdfGoesOnOverPagesAndTellsWhatItsFontsLack) {
  std::string text = "Caf\xC3\xA9 \xCE\xA9\xCE\xA9? ";
  for (int i = 0; i < 40; ++i) text += "words that wrap ";
  for (int i = 0; i < 100; ++i) text += "\r\nline";
  text_.UserType(text + "\r\n" + std::string(300, 'w') + "\flast");
  letter_.Command3.UserPress();
  EXPECT_THAT(host_.launched, ElementsAre(File("test.pdf").string()));
  ASSERT_EQ(host_.messages.size(), 1);
  EXPECT_THAT(host_.messages[0], testing::EndsWith(": \xCE\xA9"));
  const std::string pdf = Bytes("test.pdf");
  EXPECT_THAT(pdf, HasSubstr("/Count 3"));
  EXPECT_THAT(pdf, HasSubstr("(last)"));
  EXPECT_THAT(pdf, Not(HasSubstr(std::string(100, 'w')))) << "a long word is broken";

  std::filesystem::remove(File("test.pdf"));
  std::filesystem::create_directory(File("test.pdf"));
  letter_.Command3.UserPress();
  EXPECT_EQ(host_.launched.size(), 1);
  EXPECT_THAT(host_.messages.back(), HasSubstr("test.pdf"));
}

TEST_F(PrintDbTest, PreviewsAndPrints) {
  text_.UserType("text");
  letter_.CmdPreviewPrint.UserPress();
  EXPECT_THAT(host_.shown, ElementsAre("frmPreview"));
  letter_.PrintLetter_Click();
  ASSERT_EQ(host_.print_orders.size(), 1);
  EXPECT_EQ(host_.print_orders[0].title, "Letter");
  host_.print_cancelled = true;
  letter_.PrintLetter_Click();
  EXPECT_THAT(host_.messages, ElementsAre("Nothing was printed."));
}

TEST_F(PrintDbTest, OthersHandTextsOver) {
  host_.SetPrinterFont({"Times New Roman", 12.5, true});
  Screen opener(host_, "opener");
  host_.OnShow<FrmPrintDB>([](FrmPrintDB& shown) {
    EXPECT_EQ(shown.TxtTab.text(), "curtainwizard");
    EXPECT_EQ(shown.RichTextBox1.PlainText(), "a\r\nb");
    EXPECT_EQ(shown.LblStyle.caption(), "Times New Roman 12.5, bold");
    EXPECT_EQ(shown.Unsaved(), "");
  });
  ShowTextInPrintDB(opener, shop_, "a\r\nb");
  EXPECT_THAT(host_.shown, ElementsAre("FrmPrintDB"));
}

}  // namespace
}  // namespace tarvane::printing
