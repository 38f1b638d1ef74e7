#include <gmock/gmock.h>

#include <QBuffer>
#include <QMimeData>
#include <QTextTable>
#include <random>

#include "desktop/rich_text_edit.h"
#include "desktop/shop_test.h"
#include "desktop/shown_form.h"
#include "printing/print_db.h"

namespace tarvane::desktop {
namespace {

using printing::FrmPrintDB;
using rich_text::Document;
using rich_text::FromPlainText;
using rich_text::Range;
using testing::ElementsAre;
using testing::HasSubstr;

class LetterScreen : public Screen {
 public:
  explicit LetterScreen(Host& host) : Screen(host, "Letter") {}
  RichTextBox Text{this, "Text"};
};

// What is pasted and dropped comes in here.
class OpenEdit : public RichTextEdit {
 public:
  using RichTextEdit::createMimeDataFromSelection;
  using RichTextEdit::insertFromMimeData;
};

QByteArray SmallPicture() {
  QImage image(4, 2, QImage::Format_RGB32);
  image.fill(Qt::red);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, "PNG");
  return bytes;
}

// Two rows whose cells have other edges, between paragraphs where `framed`.
Document WithTable(bool framed) {
  Document document = FromPlainText(framed ? "before\na\nb\nc\nd\ne\nbehind" : "a\nb\nc\nd\ne");
  document.rows = {{100, {{3000, 15}, {6000, 1}}}, {100, {{2000, 0}, {4000, 15}, {6000, 2}}}};
  constexpr std::pair<int, std::uint32_t> kPlaces[] = {{0, 0}, {0, 1}, {1, 0}, {1, 1}, {1, 2}};
  for (std::size_t i = 0; i < 5; ++i) {
    rich_text::Paragraph& paragraph = document.paragraphs[i + (framed ? 1 : 0)];
    std::tie(paragraph.row, paragraph.cell) = kPlaces[i];
  }
  return document;
}

class RichTextTest : public testing::Test {
 protected:
  RichTextTest() {
    shown_.Show({shown_.build.Rich(screen_.Text)});
    edit_ = static_cast<RichTextEdit*>(shown_.WidgetOf<QTextEdit>(screen_.Text));
    Focus(edit_);
  }
  void Set(Document document) {
    screen_.Text.SetDocument(std::move(document));
    Settle();
  }
  bool ShowsRed() {
    const QImage seen = edit_->viewport()->grab().toImage();
    for (int y = 0; y < seen.height(); ++y) {
      for (int x = 0; x < seen.width(); ++x) {
        if (seen.pixelColor(x, y) == QColor(Qt::red)) return true;
      }
    }
    return false;
  }
  void Select(int begin, int end) {
    QTextCursor cursor(edit_->document());
    cursor.setPosition(begin);
    cursor.setPosition(end, QTextCursor::KeepAnchor);
    edit_->setTextCursor(cursor);
    Settle();
  }
  void Paste(const char* kind, const QByteArray& bytes) {
    QMimeData mime;
    mime.setData(kind, bytes);
    (edit_->*&OpenEdit::insertFromMimeData)(&mime);
    Settle();
  }
  const Document& model() const { return screen_.Text.document(); }
  const std::string& text() const { return model().text; }

  // The editor shows what the model holds, character by character, with its looks.
  void ExpectInStep(const char* after) {
    const bool before = model().paragraphs.front().row >= 0;
    const bool behind = model().paragraphs.back().row >= 0;
    const QTextDocument& shown = *edit_->document();
    const QTextBlock first = before ? shown.begin().next() : shown.begin();
    const QTextBlock last = behind ? shown.lastBlock().previous() : shown.lastBlock();
    ASSERT_EQ(static_cast<std::size_t>(last.blockNumber() - first.blockNumber() + 1),
              model().paragraphs.size())
        << after;
    std::size_t paragraph = 0;
    for (QTextBlock block = first; paragraph < model().paragraphs.size(); block = block.next(), ++paragraph) {
      const std::size_t begin = model().paragraphs[paragraph].begin;
      ASSERT_EQ(FromQt(block.text()), text().substr(begin, model().ParagraphEnd(paragraph) - begin)) << after;
      const bool centered = block.blockFormat().alignment().testFlag(Qt::AlignHCenter);
      EXPECT_EQ(centered,
                model().StyleOf(model().paragraphs[paragraph]).alignment == rich_text::Alignment::kCenter);
      for (auto at = block.begin(); !at.atEnd(); ++at) {
        const int units = at.fragment().position() - block.position();
        const auto place = begin + static_cast<std::size_t>(block.text().left(units).toUtf8().size());
        const rich_text::CharStyle& style = model().StyleAt(place);
        const QTextCharFormat format = at.fragment().charFormat();
        EXPECT_EQ(format.fontWeight() == QFont::Bold, style.bold) << after << ": " << FromQt(block.text());
        EXPECT_EQ(format.fontPointSize() * 2, style.half_points) << after;
      }
    }
  }

  FakeHost host_;
  LetterScreen screen_{host_};
  ShownForm shown_{screen_};
  RichTextEdit* edit_ = nullptr;
};

TEST_F(RichTextTest, WhatHandsDoReachesTheModel) {
  Type("one\ntwo");
  EXPECT_EQ(text(), "one\ntwo");
  EXPECT_TRUE(screen_.Text.changed());
  EXPECT_EQ(screen_.Text.selection(), (Range{7, 7}));
  Key(Qt::Key_Home);
  Key(Qt::Key_Backspace);
  EXPECT_EQ(text(), "onetwo");
  EXPECT_EQ(screen_.Text.selection(), (Range{3, 3}));
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(text(), "one\ntwo");
  Select(1, 5);
  EXPECT_EQ(screen_.Text.selection(), (Range{1, 5}));
  Type("x");
  Key(Qt::Key_Return, Qt::ShiftModifier);
  Key(Qt::Key_Return, Qt::ControlModifier);
  ASSERT_EQ(model().paragraphs.size(), 2);
  EXPECT_TRUE(model().StyleOf(model().paragraphs[1]).page_break_before);
  Key(Qt::Key_Return);
  EXPECT_FALSE(model().StyleOf(model().paragraphs[2]).page_break_before) << "one key begins one page";
  ExpectInStep("keys");
  Set(FromPlainText("\xF0\x9F\xA7\xB5 x"));
  Select(3, 4);
  EXPECT_EQ(screen_.Text.SelectedText(), "x") << "behind a character of two units";
}

TEST_F(RichTextTest, WhatProceduresDoIsShownAndCanBeUndone) {
  Set(FromPlainText("one two three"));
  screen_.Text.Select({4, 7});
  Settle();
  screen_.Text.ChangeStyle({.bold = true});
  screen_.Text.Align(rich_text::Alignment::kCenter);
  Settle();
  ExpectInStep("bold");
  EXPECT_EQ(edit_->textCursor().selectedText(), "two");
  screen_.Text.Insert("2\n\xF0\x9F\xA7\xB5 and");
  Settle();
  ExpectInStep("inserted");
  EXPECT_EQ(edit_->textCursor().position(), 12) << "behind it, in units of Qt's";
  for (const char* expected : {"one two three", "one two three", "one two three"}) {
    edit_->undo();
    Settle();
    EXPECT_EQ(text(), expected);
    ExpectInStep("undo");
    EXPECT_EQ(edit_->textCursor().position(), 7) << "where the worker was";
  }
  EXPECT_EQ(model().runs.size(), 1) << "not bold any more";
  edit_->redo();
  EXPECT_EQ(model().runs.size(), 3);
}

TEST_F(RichTextTest, ALookThatIsChosenBeforeTypingIsTypedIn) {
  Type("a");
  screen_.Text.ChangeStyle({.bold = true});
  Settle();
  Type("b\nc");
  EXPECT_FALSE(model().StyleAt(0).bold);
  EXPECT_TRUE(model().StyleAt(1).bold);
  EXPECT_TRUE(model().StyleAt(3).bold) << "in the next paragraph as well";
  ExpectInStep("typed");
}

TEST_F(RichTextTest, RandomHandsAndProceduresStayInStep) {
  std::mt19937 dice(4);
  const auto roll = [&dice](int sides) { return std::uniform_int_distribution<int>(0, sides - 1)(dice); };
  Set(FromPlainText("The quick brown fox\njumps\n\nover \xC3\xA9\xF0\x9F\xA7\xB5 the lazy dog\nand away"));
  for (int step = 0; step < 1500; ++step) {
    const int most = edit_->document()->characterCount();
    if (roll(3) == 0) Select(roll(most), roll(most));
    switch (roll(9)) {
      case 0:
        Type(roll(2) == 0 ? "x" : "\n");
        break;
      case 1:
        Key(roll(2) == 0 ? Qt::Key_Backspace : Qt::Key_Delete);
        break;
      case 2:
        roll(3) == 0 ? edit_->redo() : edit_->undo();
        break;
      case 3:
        screen_.Text.ChangeStyle({.half_points_more = roll(2) == 0 ? 2 : -2, .bold = roll(2) == 0});
        break;
      case 4:
        screen_.Text.Align(roll(2) == 0 ? rich_text::Alignment::kCenter : rich_text::Alignment::kLeft);
        break;
      case 5:
        Paste("text/plain", roll(2) == 0 ? "p\r\n\r\nq" : "r");
        break;
      case 6:
        Paste("text/html", "<p><b>bold</b></p><p align=center style='font-size:14pt'>big</p>");
        break;
      case 7:
        screen_.Text.Replace(screen_.Text.selection(), FromPlainText("\xE2\x82\xAC\n"));
        break;
      default:
        Key(Qt::Key_Left, roll(2) == 0 ? Qt::ShiftModifier : Qt::NoModifier);
    }
    Settle();
    ExpectInStep(std::to_string(step).c_str());
    const QString selected = edit_->textCursor().selectedText().replace(QChar::ParagraphSeparator, "\r\n");
    ASSERT_EQ(FromQt(selected), screen_.Text.SelectedText()) << step;
    ASSERT_FALSE(HasFailure()) << step;
  }
  EXPECT_TRUE(host_.messages.empty());
}

TEST_F(RichTextTest, PastedTextHoldsNothingThatTheModelDoesNot) {
  Paste("text/plain", QByteArray("a\r\nb\0c\u2028d\re", 11));
  ExpectInStep("plain");
  EXPECT_EQ(text().find('\r'), std::string::npos);
  EXPECT_EQ(text().find('\0'), std::string::npos);
  Set(Document());
  Paste("text/html",
        "<b>x</b><img src='file:///etc/hostname'><ul><li>one</li></ul><table><tr><td>in a cell</table>");
  EXPECT_THAT(text(), testing::AllOf(HasSubstr("x"), HasSubstr("one"), HasSubstr("in a cell")));
  EXPECT_TRUE(model().pictures.empty()) << "no file is fetched";
  EXPECT_EQ(model().rows.size(), 1);
  EXPECT_THAT(text(), HasSubstr("\xE2\x80\xA2\tone"));
  ExpectInStep("html");
  edit_->undo();
  EXPECT_EQ(text(), "");
  edit_->redo();
  EXPECT_EQ(model().rows.size(), 1);
  ExpectInStep("redone");
}

TEST_F(RichTextTest, UndoPutsTheCaretBackToTheFrontOfTheText) {
  Set(FromPlainText("one two\nthree"));
  constexpr std::pair<const char*, const char*> kPieces[] = {
      {"text/plain", "p\nq"}, {"text/html", "x<table><tr><td>in a cell</table>"}};
  for (const auto& [kind, bytes] : kPieces) {
    Key(Qt::Key_Home, Qt::ControlModifier);
    Paste(kind, bytes);
    EXPECT_NE(text(), "one two\nthree");
    Key(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(text(), "one two\nthree");
    EXPECT_EQ(edit_->textCursor().position(), 0) << kind;
    ExpectInStep(kind);
  }
}

TEST_F(RichTextTest, ReadersOfALockedTextSelectAndNoMore) {
  Set(FromPlainText("locked"));
  screen_.Text.SetReadOnly(true);
  Settle();
  Type("x");
  Paste("text/plain", "y");
  Key(Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(text(), "locked");
  EXPECT_EQ(screen_.Text.SelectedText(), "locked");
}

TEST_F(RichTextTest, PicturesComeBackWhenTheyAreUndone) {
  QMimeData mime;
  mime.setImageData(QImage::fromData(SmallPicture()));
  (edit_->*&OpenEdit::insertFromMimeData)(&mime);
  ASSERT_EQ(model().pictures.size(), 1);
  EXPECT_EQ(model().pictures[0].width, 2 * model().pictures[0].height);
  const rich_text::Picture picture = model().pictures[0];
  Type("\b");
  EXPECT_TRUE(model().pictures.empty());
  edit_->undo();
  ASSERT_EQ(model().pictures.size(), 1);
  EXPECT_EQ(model().pictures[0], picture);
  EXPECT_TRUE(ShowsRed());
}

TEST_F(RichTextTest, PicturesOfADocumentAreShown) {
  Document document = FromPlainText("");
  document.text = rich_text::kPictureSign;
  document.pictures.push_back({rich_text::Picture::Format::kPng, SmallPicture().toStdString(), 600, 300});
  Set(document);
  EXPECT_TRUE(ShowsRed());
  document.pictures[0].bytes = "no picture";
  Set(document);
  EXPECT_FALSE(ShowsRed());
}

TEST_F(RichTextTest, TablesAreShownAndTypedInto) {
  for (const bool framed : {true, false}) {
    const Document document = WithTable(framed);
    Set(document);
    ExpectInStep("shown");
    ASSERT_EQ(edit_->document()->rootFrame()->childFrames().size(), 1);
    screen_.Text.Select({text().find('d'), text().find('d')});
    Settle();
    Type("x");
    Document expected = document;
    rich_text::Replace(expected, {expected.text.find('d'), expected.text.find('d')}, FromPlainText("x"));
    EXPECT_TRUE(SameContent(model(), expected)) << text();
    Type("\n");
    EXPECT_EQ(model().paragraphs.size(), document.paragraphs.size() + 1);
    EXPECT_EQ(model().rows, document.rows) << "cells keep their edges and borders";
    ExpectInStep("typed");
    Select(0, edit_->document()->characterCount() - 1);
    Key(Qt::Key_Delete);
    Type("new");
    // A table that is all there is stays, with empty cells.
    EXPECT_EQ(text(), framed ? "new" : "\n\n\n\nnew");
    ExpectInStep("deleted");
  }
}

TEST_F(RichTextTest, TheCaretNeverStandsInFrontOfATableThatBeginsTheText) {
  Document document = WithTable(false);
  ChangeStyle(document, {0, 1}, {.bold = true});
  Set(document);
  const auto to_the_front = [this](int how) {
    if (how == 0) return Key(Qt::Key_Home, Qt::ControlModifier);
    if (how == 1) return Select(0, 0);
    Key(Qt::Key_Home, Qt::ControlModifier);
    Key(how == 2 ? Qt::Key_Left : Qt::Key_Up);
  };
  for (int how = 0; how < 4; ++how) {
    to_the_front(how);
    Type("x");
    EXPECT_EQ(text(), std::string(static_cast<std::size_t>(how) + 1, 'x') + "a\nb\nc\nd\ne") << how;
    EXPECT_EQ(model().rows, document.rows);
    EXPECT_TRUE(model().StyleAt(0).bold) << "as the cell's text";
    ExpectInStep("typed at the front");
  }
}

TEST_F(RichTextTest, WhatIsTypedBehindATableLooksAsTheCellBefore) {
  Document document = WithTable(false);
  ChangeStyle(document, {8, 9}, {.half_points_more = 8, .bold = true});
  Set(document);
  Key(Qt::Key_End, Qt::ControlModifier);
  Key(Qt::Key_Right);
  Type("xy");
  EXPECT_EQ(text(), "a\nb\nc\nd\ne\nxy");
  for (const std::size_t place : {10U, 11U}) EXPECT_EQ(model().StyleAt(place), model().StyleAt(8)) << place;
  ExpectInStep("typed behind");
}

TEST_F(RichTextTest, TextsOfCellsBeginWhereThoseOfParagraphsDo) {
  Document document = WithTable(true);
  for (rich_text::TableRow& row : document.rows) row.left = -108;
  Set(document);
  const auto left_of = [this](std::size_t place) {
    Select(static_cast<int>(place), static_cast<int>(place));
    return edit_->cursorRect().x();
  };
  const QTextBlock before = edit_->document()->begin();
  EXPECT_NEAR(left_of(0), left_of(static_cast<std::size_t>(before.next().position())), 2);
}

TEST_F(RichTextTest, KeysWithAltAreNotTyped) {
  Type("one");
  Key(Qt::Key_Q, Qt::AltModifier);
  Key(Qt::Key_7, Qt::AltModifier);
  EXPECT_EQ(text(), "one");
  Key(Qt::Key_Backspace, Qt::AltModifier);  // this one takes back
  EXPECT_EQ(text(), "");
}

class LetterFormTest : public ShopTest {
 protected:
  void Tell(const std::function<void(Form&, FrmPrintDB&)>& story) {
    Run([&](Form& form) {
      if (auto* letter = dynamic_cast<FrmPrintDB*>(&form.screen())) return story(form, *letter);
      if (&form.screen() == &main_) printing::ShowTextInPrintDB(main_, shop_, "Dear Mrs Blake,\nsome text.");
    });
  }
};

TEST_F(LetterFormTest, KeysAloneWriteALetter) {
  Tell([this](Form& form, FrmPrintDB& letter) {
    ToFront(form.window());
    EXPECT_EQ(QApplication::focusWidget(), form.WidgetOf(letter.RichTextBox1));
    EXPECT_FALSE(form.window()->isWindowModified());
    Key(Qt::Key_F, Qt::ControlModifier);
    Type("TEXT\n");
    EXPECT_EQ(letter.RichTextBox1.SelectedText(), "text");
    EXPECT_EQ(QApplication::focusWidget(), form.WidgetOf(letter.TxtFind)) << "Enter finds on and on";
    Key(Qt::Key_B, Qt::ControlModifier);
    EXPECT_THAT(letter.LblStyle.caption(), HasSubstr("bold"));
    EXPECT_TRUE(WidgetOf<QAction>(form, letter.Bold)->isChecked());
    TabTo(letter.RichTextBox1);
    for (const int key : {Qt::Key_E, Qt::Key_I, Qt::Key_U}) Key(key, Qt::ControlModifier);
    Key(Qt::Key_Greater, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(letter.LblStyle.caption(), "Arial 11, bold, italic, underlined, centred");
    Key(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(QApplication::focusWidget(), form.WidgetOf(letter.TxtFind));
    Key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(QApplication::focusWidget(), form.WidgetOf(letter.RichTextBox1));
    Key(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_NE(QApplication::focusWidget(), form.WidgetOf(letter.RichTextBox1));
    WidgetOf<QTextEdit>(form, letter.RichTextBox1)->setFocus();
    Type("words");
    EXPECT_EQ(letter.RichTextBox1.PlainText(), "Dear Mrs Blake,\r\nsome words.");
    EXPECT_TRUE(form.window()->isWindowModified());
    host_.keeps = {TrialHost::Keep::kCancel, TrialHost::Keep::kDrop};
    Key(Qt::Key_Escape);
    EXPECT_FALSE(letter.is_closed());
    WidgetOf<QPushButton>(form, letter.CmdClose)->click();
    EXPECT_TRUE(letter.is_closed());
    EXPECT_THAT(host_.unsaved, ElementsAre("the text", "the text"));
  });
}

}  // namespace
}  // namespace tarvane::desktop
