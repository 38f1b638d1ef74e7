#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "rich_text/document.h"
#include "rich_text/editing.h"
#include "screen/control.h"

namespace tarvane {

// A box with a rich text. Faces keep what they show in step with its document, never the other way round.
class RichTextBox : public Control {
 public:
  RichTextBox(Home home, std::string name) : Control(home, std::move(name)) {}
  ControlKind kind_of() override { return this; }

  const rich_text::Document& document() const { return document_; }
  // The whole text is another one: nothing is selected, and nothing changed since.
  void SetDocument(rich_text::Document document);
  // How often that happened: a face draws the whole text anew only then.
  std::uint64_t whole_texts() const { return whole_texts_; }
  std::string PlainText() const { return rich_text::PlainText(document_); }

  bool read_only() const { return read_only_; }
  void SetReadOnly(bool read_only);

  // Whether the worker or a procedure changed it since SetDocument or SetUnchanged.
  bool changed() const { return changed_; }
  void SetUnchanged();

  // What is selected; the caret is at its end.
  rich_text::Range selection() const { return selection_; }
  void Select(rich_text::Range range);  // kept within the text
  std::string SelectedText() const;     // plain
  // How the selection begins, or, where nothing is selected, how the next character that is typed looks.
  rich_text::CharStyle CurrentStyle() const;
  const std::string& CurrentFont() const { return document_.fonts[CurrentStyle().font]; }
  rich_text::Alignment CurrentAlignment() const;

  // For procedures; the rules of OnChanged run.
  void Replace(rich_text::Range range, const rich_text::Document& piece);  // the caret behind it
  // A plain text in place of the selection, in the look of the caret.
  void Insert(std::string_view text);
  // Of the selection, or of what is typed next.
  void ChangeStyle(const rich_text::StyleChange& change);
  void Align(rich_text::Alignment alignment);

  void OnChanged(Rule rule) { changed_rules_.push_back(std::move(rule)); }
  // Another selection, or another look at the caret.
  void OnSelected(Rule rule) { selected_rules_.push_back(std::move(rule)); }

  // Tells a face what was replaced: the range of the text as it was, and how long it is now. A face that made
  // the change itself hears nothing of it.
  struct Edit {
    rich_text::Range before;
    std::size_t length = 0;
    bool looks_only = false;  // the text is the same
  };
  void SetEditWatcher(std::function<void(const Edit&)> watcher) { edit_watcher_ = std::move(watcher); }

  // What the worker does; nothing while it is read-only. The first is the whole text, in the look of the
  // caret.
  void UserType(std::string_view text);
  void UserSelect(rich_text::Range range);
  // Pasted in place of the selection.
  void UserInsert(std::string_view text);
  void UserInsert(const rich_text::Document& piece);
  // What the worker did in a face to the paragraphs from `first` to before `end`: they are those of `piece`
  // now. The face tells the selection afterwards.
  void UserReplaceParagraphs(std::size_t first, std::size_t end, const rich_text::Document& piece);

 private:
  rich_text::Document InLookOfCaret(std::string_view text) const;
  rich_text::Range Within(rich_text::Range range) const;
  void UserDo(const Rule& action);
  void Edited(const Edit& edit, bool tell);

  rich_text::Document document_;
  std::uint64_t whole_texts_ = 0;
  rich_text::Range selection_;
  std::optional<rich_text::CharStyle> typing_style_;  // chosen while nothing was selected
  bool read_only_ = false;
  bool changed_ = false;
  Rules changed_rules_;
  Rules selected_rules_;
  std::function<void(const Edit&)> edit_watcher_;
};

}  // namespace tarvane
