#include "screen/rich_text_box.h"

#include <algorithm>

#include "screen/screen.h"

namespace tarvane {

using rich_text::CharStyle;
using rich_text::Document;
using rich_text::ParagraphStyle;
using rich_text::Range;

void RichTextBox::SetDocument(Document document) {
  document_ = std::move(document);
  ++whole_texts_;
  selection_ = {};
  typing_style_.reset();
  changed_ = false;
  Notify(Aspect::kText);
  Run(changed_rules_);
  Run(selected_rules_);
}

void RichTextBox::SetReadOnly(bool read_only) {
  if (read_only_ == read_only) return;
  read_only_ = read_only;
  Notify(Aspect::kState);
}

void RichTextBox::SetUnchanged() {
  changed_ = false;
  Notify(Aspect::kState);
}

Range RichTextBox::Within(Range range) const {
  const std::size_t length = document_.text.size();
  return {std::min(range.begin, length), std::min(std::max(range.begin, range.end), length)};
}

void RichTextBox::Select(Range range) {
  range = Within(range);
  if (range == selection_) return;
  selection_ = range;
  typing_style_.reset();
  Notify(Aspect::kSelection);
  Run(selected_rules_);
}

std::string RichTextBox::SelectedText() const {
  return rich_text::PlainText(rich_text::Slice(document_, selection_));
}

CharStyle RichTextBox::CurrentStyle() const {
  if (typing_style_) return *typing_style_;
  // A caret types on in the look of what is before it in its paragraph.
  const bool looks_back =
      selection_.empty() && selection_.begin > 0 && document_.text[selection_.begin - 1] != '\n';
  return document_.StyleAt(looks_back ? selection_.begin - 1 : selection_.begin);
}

rich_text::Alignment RichTextBox::CurrentAlignment() const {
  return document_.StyleOf(document_.paragraphs[document_.ParagraphAt(selection_.begin)]).alignment;
}

// Its paragraphs look like the one that the caret is in, but don't begin a page as that one may do.
Document RichTextBox::InLookOfCaret(std::string_view text) const {
  const CharStyle style = CurrentStyle();
  Document piece = rich_text::FromPlainText(text, style, document_.fonts[style.font]);
  const auto& caret = document_.paragraphs[document_.ParagraphAt(selection_.begin)];
  for (ParagraphStyle& each : piece.paragraph_styles) {
    const bool begins_page = each.page_break_before;
    each = document_.StyleOf(caret);
    each.page_break_before = begins_page;
  }
  return piece;
}

void RichTextBox::Edited(const Edit& edit, bool tell) {
  changed_ = true;
  if (tell && edit_watcher_) edit_watcher_(edit);
  Notify(Aspect::kState);
  Notify(Aspect::kSelection);
  Run(changed_rules_);
  Run(selected_rules_);
}

void RichTextBox::Replace(Range range, const Document& piece) {
  range = Within(range);
  rich_text::Replace(document_, range, piece);
  selection_ = {range.begin + piece.text.size(), range.begin + piece.text.size()};
  typing_style_.reset();
  Edited({range, piece.text.size(), false}, true);
}

void RichTextBox::Insert(std::string_view text) {
  const Range range = selection_;
  Replace(range, InLookOfCaret(text));
}

void RichTextBox::ChangeStyle(const rich_text::StyleChange& change) {
  if (selection_.empty()) {
    typing_style_ = rich_text::Changed(document_, CurrentStyle(), change);
    Notify(Aspect::kState);
    Run(selected_rules_);
    return;
  }
  rich_text::ChangeStyle(document_, selection_, change);
  Edited({selection_, selection_.end - selection_.begin, true}, true);
}

void RichTextBox::Align(rich_text::Alignment alignment) {
  rich_text::Align(document_, selection_, alignment);
  Edited({selection_, selection_.end - selection_.begin, true}, true);
}

void RichTextBox::UserDo(const Rule& action) {
  screen().Guard([&] {
    screen().SetFocus(*this);
    if (!read_only_) action();
  });
}

void RichTextBox::UserType(std::string_view text) {
  UserDo([this, text = std::string(text)] {
    const CharStyle style = CurrentStyle();
    const Range whole{0, document_.text.size()};
    const Document piece = InLookOfCaret(text);
    rich_text::ReplaceParagraphs(document_, 0, document_.paragraphs.size(), piece);
    selection_ = {piece.text.size(), piece.text.size()};
    typing_style_ = style;
    Edited({whole, piece.text.size(), false}, true);
  });
}

void RichTextBox::UserSelect(Range range) {
  screen().Guard([&] { Select(range); });
}

void RichTextBox::UserInsert(std::string_view text) {
  UserDo([&] { Insert(text); });
}

void RichTextBox::UserInsert(const Document& piece) {
  UserDo([&] { Replace(selection_, piece); });
}

void RichTextBox::UserReplaceParagraphs(std::size_t first, std::size_t end, const Document& piece) {
  UserDo([&] {
    const Range range{document_.paragraphs[first].begin, document_.ParagraphEnd(end - 1)};
    const CharStyle former = CurrentStyle();
    rich_text::ReplaceParagraphs(document_, first, end, piece);
    selection_ = {range.begin + piece.text.size(), range.begin + piece.text.size()};
    // A new paragraph goes on in the look of the one before.
    const bool begins_paragraph = piece.paragraphs.back().begin == piece.text.size();
    typing_style_.reset();
    if (begins_paragraph && piece.paragraphs.size() > end - first) typing_style_ = former;
    Edited({range, piece.text.size(), false}, false);
  });
}

}  // namespace tarvane
