#include "screen/rich_text_box.h"

#include <gmock/gmock.h>

#include "support/fake_host.h"

namespace tarvane {
namespace {

using rich_text::FromPlainText;
using rich_text::Range;
using testing::ElementsAre;

class RichTextBoxTest : public testing::Test {
 protected:
  class TextScreen : public Screen {
   public:
    using Screen::Screen;
    RichTextBox Text{this, "Text"};
  };

  RichTextBoxTest() {
    text_.OnChanged([this] { log_.push_back("changed " + text_.document().text); });
    text_.OnSelected([this] { log_.push_back("selected"); });
    text_.SetEditWatcher([this](const RichTextBox::Edit& edit) { edits_.push_back(edit); });
  }

  FakeHost host_;
  TextScreen screen_{host_, "Text"};
  RichTextBox& text_ = screen_.Text;
  std::vector<std::string> log_;
  std::vector<RichTextBox::Edit> edits_;
};

TEST_F(RichTextBoxTest, AWholeTextIsUnchangedAndNothingOfItSelected) {
  text_.UserType("typed");
  EXPECT_TRUE(text_.changed());
  text_.SetDocument(FromPlainText("other"));
  EXPECT_FALSE(text_.changed());
  EXPECT_EQ(text_.selection(), Range{});
  EXPECT_EQ(text_.whole_texts(), 1);
  EXPECT_EQ(edits_.size(), 1) << "a face draws it as a whole";
  EXPECT_THAT(log_, ElementsAre("changed typed", "selected", "changed other", "selected"));
}

TEST_F(RichTextBoxTest, TypingReplacesTheWholeTextInTheLookOfTheCaret) {
  text_.SetDocument(FromPlainText("one\ntwo", {.half_points = 30, .color = {}, .italic = true}, "Times"));
  text_.Align(rich_text::Alignment::kCenter);
  text_.UserType("a\r\nb\fc");
  EXPECT_EQ(text_.PlainText(), "a\r\nb\r\nc");
  EXPECT_EQ(text_.selection(), (Range{5, 5}));
  EXPECT_EQ(text_.CurrentFont(), "Times");
  EXPECT_TRUE(text_.CurrentStyle().italic);
  const auto& document = text_.document();
  for (const auto& paragraph : document.paragraphs) {
    EXPECT_EQ(document.StyleOf(paragraph).alignment, rich_text::Alignment::kCenter);
  }
  EXPECT_FALSE(document.StyleOf(document.paragraphs[1]).page_break_before);
  EXPECT_TRUE(document.StyleOf(document.paragraphs[2]).page_break_before);
  text_.Select({4, 5});
  text_.ChangeStyle({.bold = true});
  text_.Select({5, 5});
  text_.UserType("");
  text_.UserType("again");
  EXPECT_TRUE(text_.CurrentStyle().bold) << "not that of the beginning";
  EXPECT_EQ(text_.CurrentStyle().half_points, 30);
  EXPECT_EQ(screen_.focus(), &text_);
}

TEST_F(RichTextBoxTest, WhatIsTypedNextLooksAsChosenUntilTheCaretMoves) {
  text_.SetDocument(FromPlainText("word"));
  text_.Select({4, 4});
  text_.ChangeStyle({.bold = true});
  EXPECT_TRUE(text_.CurrentStyle().bold);
  EXPECT_FALSE(text_.changed());
  text_.Insert("s");
  EXPECT_TRUE(text_.document().StyleAt(4).bold);
  EXPECT_FALSE(text_.document().StyleAt(3).bold);
  text_.Select({0, 4});
  EXPECT_FALSE(text_.CurrentStyle().bold);
  text_.Select({5, 5});
  EXPECT_TRUE(text_.CurrentStyle().bold) << "a caret goes on like what is before it";
}

TEST_F(RichTextBoxTest, TellsFacesWhatAProcedureChangedAndNotWhatTheyDid) {
  text_.SetDocument(FromPlainText("one two"));
  text_.Select({4, 7});
  EXPECT_EQ(text_.SelectedText(), "two");
  text_.ChangeStyle({.bold = true});
  text_.Insert("three");
  text_.UserReplaceParagraphs(0, 1, FromPlainText("new\n"));
  ASSERT_EQ(edits_.size(), 2);
  EXPECT_TRUE(edits_[0].looks_only);
  EXPECT_EQ(edits_[1].before, (Range{4, 7}));
  EXPECT_EQ(edits_[1].length, 5);
  EXPECT_EQ(text_.document().text, "new\n");
}

TEST_F(RichTextBoxTest, ALockedTextIsChangedByProceduresAlone) {
  text_.SetDocument(FromPlainText("locked"));
  text_.SetReadOnly(true);
  text_.UserType("x");
  text_.UserInsert("x");
  text_.UserReplaceParagraphs(0, 1, FromPlainText("x"));
  EXPECT_EQ(text_.PlainText(), "locked");
  text_.Replace({0, 100}, FromPlainText("open"));
  EXPECT_EQ(text_.PlainText(), "open") << "a range is kept within the text";
}

}  // namespace
}  // namespace tarvane
