#include <fmt/format.h>

#include <algorithm>

#include "script/interpreter.h"
#include "text/utf8.h"

namespace tarvane::script {
namespace {

// As much of the text as fits into the field.
std::string_view Fitting(std::string_view text, int max_length) {
  return max_length <= 0 ? text : FirstCharacters(text, static_cast<std::size_t>(max_length));
}

[[noreturn]] void NoEntry(const Argument& address, const Control& control, const std::string& text,
                          const std::vector<std::string>& entries) {
  std::string message = fmt::format("{} has no entry {}", Place(address, control), InQuotes(text));
  if (!entries.empty()) message += fmt::format("; did you mean {}?", InQuotes(Nearest(text, entries)));
  throw ScriptError(message);
}

std::size_t FindEntry(const Argument& address, const Control& control, const std::string& text,
                      const std::vector<std::string>& entries) {
  const auto entry = std::ranges::find(entries, text);
  if (entry == entries.end()) NoEntry(address, control, text, entries);
  return static_cast<std::size_t>(entry - entries.begin());
}

std::int64_t RowOf(const Argument& address, const Argument& word, const Control& control, std::int64_t first,
                   std::int64_t last) {
  const std::int64_t row = WholeNumber(word);
  if (row < first || row > last) {
    throw ScriptError(fmt::format("{} has no row {} (there are {})", Place(address, control), row, last));
  }
  return row;
}

}  // namespace

void Interpreter::RequireUsable(const Argument& address, const Control& control) const {
  const std::string place = Place(address, control);
  if (&control.screen() != &top()) {
    throw ScriptError(fmt::format("{} can't be used: {} is on top", place, top().name()));
  }
  if (control.never_shown()) throw ScriptError(place + " is never shown");
  if (!control.visible()) throw ScriptError(place + " is hidden");
  if (!control.enabled()) throw ScriptError(place + " is disabled");
}

void Interpreter::Type(Arguments arguments) {
  if (auto* box = As<RichTextBox>(*FindControls(arguments[0], host_.open_screens()).front())) {
    RequireUsable(arguments[0], *box);
    if (box->read_only()) throw ScriptError(Place(arguments[0], *box) + " is read-only");
    return box->UserType(arguments[1].text);
  }
  auto& field = Usable<TextField>(arguments[0], "a field");
  const auto* list = As<DropDownList>(field);
  if (field.read_only()) throw ScriptError(Place(arguments[0], field) + " is read-only");
  if (list != nullptr && !list->typing_allowed()) {
    throw ScriptError(Place(arguments[0], field) + " takes only its entries: choose one");
  }
  field.UserType(Fitting(arguments[1].text, field.max_length()));
}

void Interpreter::Enter(Arguments arguments) { Usable<TextField>(arguments[0], "a field").UserEnterKey(); }

void Interpreter::Focus(Arguments arguments) { Usable<Control>(arguments[0], "a control").UserFocus(); }

void Interpreter::Leave(Arguments arguments) { Usable<Control>(arguments[0], "a control").UserLeave(); }

void Interpreter::Press(Arguments arguments) {
  Control* found = FindControls(arguments[0], host_.open_screens()).front();
  if (auto* label = As<Label>(*found); label != nullptr && label->clickable()) {
    RequireUsable(arguments[0], *label);
    label->UserClick();
    return;
  }
  if (auto* option = As<OptionButton>(*found)) {
    RequireUsable(arguments[0], *option);
    option->UserClick();
    return;
  }
  Usable<Button>(arguments[0], "a button").UserPress();
}

void Interpreter::SetBox(const Argument& address, bool on) {
  Usable<TickBox>(address, "a tick box or a round option").UserSet(on);
}

void Interpreter::Tick(Arguments arguments) { SetBox(arguments[0], true); }

void Interpreter::Untick(Arguments arguments) { SetBox(arguments[0], false); }

void Interpreter::ChooseEntry(const Argument& address, Control& control, const std::string& text) const {
  VisitKind(
      control,
      [&](DropDownList& list) {
        if (list.read_only()) throw ScriptError(Place(address, control) + " is read-only");
        list.UserPick(FindEntry(address, control, text, list.entries()));
      },
      [&](ListBox& list) {
        std::vector<std::string> entries;
        entries.reserve(static_cast<std::size_t>(list.EntryCount()));
        for (int entry = 0; entry < list.EntryCount(); ++entry) entries.push_back(list.Entry(entry));
        list.UserPick(static_cast<int>(FindEntry(address, control, text, entries)));
      },
      [&](TabStrip& tabs) {
        std::vector<std::string> captions;
        std::ranges::transform(tabs.captions(), std::back_inserter(captions), BareCaption);
        tabs.UserSelect(static_cast<int>(FindEntry(address, control, BareCaption(text), captions)));
      },
      [&](Calendar& calendar) {
        const std::optional<Day> day = ParseIsoDate(text);
        if (!day)
          throw ScriptError(fmt::format("{} takes a day such as 2026-12-24", Place(address, control)));
        calendar.UserClick(*day);
      },
      [&](Slider& slider) {
        slider.UserMove(static_cast<int>(WholeNumber({text, text, false})));
      },
      [&](Control&) {
        throw ScriptError(fmt::format("{} is {}, not a list, tabs or a calendar", Place(address, control),
                                      KindOf(control)));
      });
}

void Interpreter::Choose(Arguments arguments) {
  auto& control = Usable<Control>(arguments[0], "a list");
  ChooseEntry(arguments[0], control, arguments[1].text);
}

void Interpreter::Select(Arguments arguments) {
  auto& control = Usable<Control>(arguments[0], "a grid");
  if (auto* list = As<ListBox>(control)) {
    list->UserPick(static_cast<int>(RowOf(arguments[0], arguments[1], control, 1, list->EntryCount())) - 1);
    return;
  }
  auto& grid = Usable<Grid>(arguments[0], "a grid or a list");
  grid.UserSelectRow(RowOf(arguments[0], arguments[1], control, 0, grid.RowCount()));
}

void Interpreter::Open(Arguments arguments) {
  auto& control = Usable<Control>(arguments[0], "a grid");
  if (auto* list = As<ListBox>(control)) {
    const std::int64_t row = WholeNumber(arguments[1]);
    const bool on_entry = row >= 1 && row <= list->EntryCount();
    list->UserOpen(on_entry ? static_cast<int>(row) - 1 : -1);
    return;
  }
  auto& grid = Usable<Grid>(arguments[0], "a grid or a list");
  grid.UserOpenRow(RowOf(arguments[0], arguments[1], control, 0, grid.RowCount()));
}

void Interpreter::Close(Arguments) { top().UserClose(); }

void Interpreter::AnswerNext(Arguments arguments) { host_.QueueAnswer(arguments[0].text); }

void Interpreter::CancelNext(Arguments) { host_.QueueCancel(); }

}  // namespace tarvane::script
