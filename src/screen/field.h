#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "screen/control.h"
#include "text_number/text_number.h"

namespace tarvane {

// A field that holds a text.
class TextField : public Control {
 public:
  enum class Kind { kLine, kMemo };

  TextField(Home home, std::string name, std::string_view text = "", int index = -1, Kind kind = Kind::kLine)
      : Control(home, std::move(name), index), text_(text), kind_(kind) {}
  ControlKind kind_of() override { return this; }

  const std::string& text() const { return text_; }
  // The leading number of the text, 0 where there is none.
  double Number() const { return ParseLeading(text_); }
  bool empty() const { return text_.empty(); }
  // By a procedure. A different text runs the rules of OnChanged; the same one does nothing.
  void SetText(std::string_view text);
  // A calculated number, plain or with the decimals of `mask`. A calculation that came to no finite number
  // leaves the field as it is.
  void SetNumber(double value);
  void SetNumber(double value, Mask mask);
  // Without rules: what a row set puts in as another row becomes current.
  void LoadText(std::string_view text);

  Kind kind() const { return kind_; }
  bool read_only() const { return read_only_; }  // shown, may be focused, not typed into
  void SetReadOnly(bool read_only) { read_only_ = read_only; }
  // Most characters that fit, 0 for no limit. Faces keep typing within it.
  int max_length() const { return max_length_; }
  void SetMaxLength(int characters) { max_length_ = characters; }
  // A procedure wants the whole text selected as the field gets the focus.
  bool select_all_on_focus() const { return select_all_on_focus_; }
  void SetSelectAllOnFocus() { select_all_on_focus_ = true; }

  void OnChanged(Rule rule) { changed_.push_back(std::move(rule)); }
  void OnTyped(Rule rule) { typed_.push_back(std::move(rule)); }
  void OnEnterKey(Rule rule) { enter_key_.push_back(std::move(rule)); }

  // The worker's text: takes the focus, sets the text, then runs the rules of OnTyped. Faults in a message
  // where the field belongs to a row set without a current row.
  void UserType(std::string_view text);
  void UserEnterKey();

 protected:
  void RunTyped() { Run(typed_); }

 private:
  friend class DataSource;
  void CheckRow() const;

  std::string text_;
  Kind kind_;
  bool read_only_ = false;
  bool select_all_on_focus_ = false;
  int max_length_ = 0;
  Rules changed_;
  Rules typed_;
  Rules enter_key_;
  std::function<void(const std::string&)> sink_;
  std::function<bool()> has_row_;
};

// A field with a list of entries that fold out; typing is free unless told otherwise.
class DropDownList : public TextField {
 public:
  DropDownList(Home home, std::string name, std::string_view text = "", int index = -1)
      : TextField(home, std::move(name), text, index) {}
  DropDownList(Home home, std::string name, NotBuilt) : DropDownList(home, std::move(name)) { SetToCome(); }
  ControlKind kind_of() override { return this; }

  const std::vector<std::string>& entries() const { return entries_; }
  void SetEntries(std::vector<std::string> entries);
  void AddEntry(std::string entry);

  // False: an entry must be picked.
  bool typing_allowed() const { return typing_allowed_; }
  void SetTypingAllowed(bool allowed) { typing_allowed_ = allowed; }

  void OnPicked(Rule rule) { picked_.push_back(std::move(rule)); }
  // The text becomes the entry's, then the rules of OnPicked run.
  void UserPick(std::size_t entry);

 private:
  std::vector<std::string> entries_;
  bool typing_allowed_ = true;
  Rules picked_;
};

// A list that is always open; one entry may be selected, -1 for none. It holds its entries, or has them made
// as they are looked at (SetLines).
class ListBox : public Control {
 public:
  ListBox(Home home, std::string name, int index = -1) : Control(home, std::move(name), index) {}
  ControlKind kind_of() override { return this; }

  int EntryCount() const;
  std::string Entry(int entry) const;  // "" outside

  // Entries that are made on each look, from 0 to below the count. Holds until SetEntries.
  using Count = std::function<std::int64_t()>;
  using Line = std::function<std::string(std::int64_t)>;
  void SetLines(Count count, Line line);  // selects none
  // There are others now: faces draw anew. Selects none.
  void LinesChanged();

  // Those that it holds.
  const std::vector<std::string>& entries() const { return entries_; }
  void SetEntries(std::vector<std::string> entries);  // selects none
  void AddEntry(std::string entry);
  void RemoveEntry(std::size_t entry);  // faults where there is none; selects none
  int selected() const { return selected_; }
  void Select(int entry);

  void OnPicked(Rule rule) { picked_.push_back(std::move(rule)); }
  void OnOpened(Rule rule) { opened_.push_back(std::move(rule)); }
  void UserPick(int entry);
  void UserOpen(int entry);  // double click; -1 for the empty space below the entries

 private:
  std::vector<std::string> entries_;
  Count count_;  // with line_: none where entries_ hold
  Line line_;
  int selected_ = -1;
  Rules picked_;
  Rules opened_;
};

}  // namespace tarvane
