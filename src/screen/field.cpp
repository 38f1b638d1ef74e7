#include "screen/field.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "screen/screen.h"

namespace tarvane {

void TextField::SetText(std::string_view text) {
  if (text_ == text) return;
  text_.assign(text);
  if (sink_) sink_(text_);
  Notify(Aspect::kText);
  Run(changed_);
}

void TextField::SetNumber(double value) {
  if (std::isfinite(value)) SetText(NumberText(value));
}

void TextField::SetNumber(double value, Mask mask) {
  if (std::isfinite(value)) SetText(FormatNumber(value, mask));
}

void TextField::LoadText(std::string_view text) {
  if (text_ == text) return;
  text_.assign(text);
  Notify(Aspect::kText);
}

void TextField::CheckRow() const {
  if (has_row_ && !has_row_()) throw Fault("No record is open. Add a new record first.");
}

void TextField::UserType(std::string_view text) {
  screen().Guard([this, text = std::string(text)] {
    screen().SetFocus(*this);
    if (text_ != text) CheckRow();
    SetText(text);
    Run(typed_);
  });
  // Where the step faulted, or a rule put something else in, the face shows what the field holds.
  if (text_ != text) Notify(Aspect::kText);
}

void TextField::UserEnterKey() {
  screen().Guard([this] {
    screen().SetFocus(*this);
    Run(enter_key_);
  });
}

void DropDownList::SetEntries(std::vector<std::string> entries) {
  entries_ = std::move(entries);
  Notify(Aspect::kEntries);
}

void DropDownList::AddEntry(std::string entry) {
  entries_.push_back(std::move(entry));
  Notify(Aspect::kEntries);
}

void DropDownList::UserPick(std::size_t entry) {
  if (entry >= entries_.size()) return;
  const std::string picked = entries_[entry];
  UserType(picked);
  screen().Guard([this] { Run(picked_); });
}

int ListBox::EntryCount() const {
  const std::int64_t count = count_ ? count_() : static_cast<std::int64_t>(entries_.size());
  return static_cast<int>(std::min<std::int64_t>(count, std::numeric_limits<int>::max()));
}

std::string ListBox::Entry(int entry) const {
  if (entry < 0 || entry >= EntryCount()) return {};
  return line_ ? line_(entry) : entries_[static_cast<std::size_t>(entry)];
}

void ListBox::SetLines(Count count, Line line) {
  SetEntries({});
  count_ = std::move(count);
  line_ = std::move(line);
  LinesChanged();
}

void ListBox::LinesChanged() {
  selected_ = -1;
  Notify(Aspect::kEntries);
}

void ListBox::SetEntries(std::vector<std::string> entries) {
  count_ = nullptr;
  line_ = nullptr;
  entries_ = std::move(entries);
  selected_ = -1;
  Notify(Aspect::kEntries);
}

void ListBox::AddEntry(std::string entry) {
  entries_.push_back(std::move(entry));
  Notify(Aspect::kEntries);
}

void ListBox::RemoveEntry(std::size_t entry) {
  if (entry >= entries_.size()) throw Fault("No entry of the list is selected.");
  entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(entry));
  selected_ = -1;
  Notify(Aspect::kEntries);
}

void ListBox::Select(int entry) {
  if (entry < -1 || entry >= EntryCount() || entry == selected_) return;
  selected_ = entry;
  Notify(Aspect::kSelection);
}

void ListBox::UserPick(int entry) {
  screen().Guard([this, entry] {
    screen().SetFocus(*this);
    Select(entry);
    Run(picked_);
  });
}

void ListBox::UserOpen(int entry) {
  screen().Guard([this, entry] {
    screen().SetFocus(*this);
    Select(entry);
    Run(opened_);
  });
}

}  // namespace tarvane
