#include "screen/rich_text_box.h"

#include <algorithm>

#include "screen/screen.h"

namespace tarvane {

using rich_text::CharStyle;
using rich_text::Document;
using rich_text::Range;

void RichTextBox::SetDocument(Document document) {
  document_ = std::move(document);
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

void RichTextBox::Select(Range range) {
  const std::size_t length = document_.text.size();
  range = {std::min(range.begin, length), std::min(std::max(range.begin, range.end), length)};
  if (range == selection_) return;
  selection_ = range;
  typing_style_.reset();
  Notify(Aspect::kSelection);
  Run(selected_rules_);
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

void RichTextBox::Edited(const Edit& edit, bool tell) {
  changed_ = true;
  if (tell && edit_watcher_) edit_watcher_(edit);
  Notify(Aspect::kState);
  Run(changed_rules_);
}

void RichTextBox::Replace(Range range, const Document& piece) {
  rich_text::Replace(document_, range, piece);
  selection_ = {range.begin + piece.text.size(), range.begin + piece.text.size()};
  typing_style_.reset();
  Edited({range, piece.text.size(), false}, true);
  Notify(Aspect::kSelection);
  Run(selected_rules_);
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
  Run(selected_rules_);
}

void RichTextBox::Align(rich_text::Alignment alignment) {
  rich_text::Align(document_, selection_, alignment);
  Edited({selection_, selection_.end - selection_.begin, true}, true);
  Run(selected_rules_);
}

void RichTextBox::UserType(std::string_view text) {
  screen().Guard([this, text = std::string(text)] {
    screen().SetFocus(*this);
    const CharStyle style = CurrentStyle();
    Replace({0, document_.text.size()}, rich_text::FromPlainText(text, style, document_.fonts[style.font]));
  });
}

void RichTextBox::UserSelect(Range range) {
  screen().Guard([&] { Select(range); });
}

void RichTextBox::UserReplace(Range range, const Document& piece) {
  screen().Guard([&] {
    rich_text::Replace(document_, range, piece);
    typing_style_.reset();
    Edited({range, piece.text.size(), false}, false);
  });
}

}  // namespace tarvane
