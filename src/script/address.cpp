#include "script/address.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <numeric>

#include "text/trim.h"

namespace tarvane::script {
namespace {

// "txtItems[3]" apart; index -1 where none is told.
struct NameAndIndex {
  std::string_view name;
  int index = -1;
};

NameAndIndex SplitIndex(std::string_view text) {
  const std::size_t open = text.rfind('[');
  if (open == std::string_view::npos || !text.ends_with(']')) return {text};
  const char* first = text.data() + open + 1;
  const char* last = text.data() + text.size() - 1;
  int index = 0;
  const auto [end, error] = std::from_chars(first, last, index);
  if (error != std::errc() || end != last || index < 0) return {text};
  return {text.substr(0, open), index};
}

bool GoesByCaption(const Control& control) {
  return As<Button>(control) != nullptr || As<TickBox>(control) != nullptr;
}

// Those with the caption; what can be used now comes first.
std::vector<Control*> FindByCaption(const Screen& screen, std::string_view text) {
  const std::string caption = BareCaption(text);
  std::vector<Control*> found;
  if (caption.empty()) return found;
  for (Control* control : screen.controls()) {
    if (GoesByCaption(*control) && BareCaption(control->caption()) == caption) found.push_back(control);
  }
  const auto rank = [](const Control* control) {
    if (control->never_shown() || !control->visible()) return 3;
    if (!control->enabled()) return 2;
    return control->shown() ? 0 : 1;
  };
  std::ranges::stable_sort(found, {}, rank);
  return found;
}

// A member of an array, or of a family that carries its number in the name: Text[11] is Text11, 1T[0] is
// 1T(0).
Control* FindMember(const Screen& screen, std::string_view text) {
  const auto [name, index] = SplitIndex(text);
  if (index < 0) return nullptr;
  Control* member = screen.Find(name, index);
  if (member == nullptr) member = screen.Find(fmt::format("{}{}", name, index));
  return member != nullptr ? member : screen.Find(fmt::format("{}({})", name, index));
}

std::vector<Control*> FindOnScreen(const Argument& address, std::string_view text, const Screen& screen) {
  std::vector<Control*> found = FindByCaption(screen, text);
  Control* named = screen.Find(text);
  if (named == nullptr) named = FindMember(screen, text);
  if (named != nullptr && std::ranges::find(found, named) == found.end()) {
    found.insert(address.quoted ? found.end() : found.begin(), named);
  }
  return found;
}

Screen* FindScreen(std::string_view name, const std::vector<Screen*>& open) {
  const auto at =
      std::find_if(open.rbegin(), open.rend(), [name](Screen* screen) { return screen->name() == name; });
  return at == open.rend() ? nullptr : *at;
}

std::vector<std::string> NamesOn(const Screen& screen) {
  std::vector<std::string> names;
  for (const Control* control : screen.controls()) {
    names.push_back(FullName(*control));
    names.insert(names.end(), control->aliases().begin(), control->aliases().end());
    if (GoesByCaption(*control)) names.push_back(BareCaption(control->caption()));
  }
  std::erase(names, "");
  return names;
}

// The message for an address that nothing answers to.
std::string NothingFound(const Argument& address, std::string_view text, const Screen& screen) {
  int first = -1;
  int last = -1;
  const std::string_view name = SplitIndex(text).name;
  for (const Control* control : screen.controls()) {
    if (control->name() != name || control->index() < 0) continue;
    first = first < 0 ? control->index() : std::min(first, control->index());
    last = std::max(last, control->index());
  }
  if (last >= 0) {
    return fmt::format("{} names none of {}[{}] to {}[{}] on {}", address.source, name, first, name, last,
                       screen.name());
  }
  std::string message = fmt::format("no control {} on {}", address.source, screen.name());
  const std::string nearest = Nearest(text, NamesOn(screen));
  if (!nearest.empty()) message += fmt::format("; did you mean {}?", nearest);
  return message;
}

// Small letters for ASCII; other bytes as they stand.
std::string Folded(std::string_view text) {
  std::string folded(text);
  for (char& c : folded) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return folded;
}

std::size_t EditDistance(std::string_view a, std::string_view b) {
  std::vector<std::size_t> row(b.size() + 1);
  std::iota(row.begin(), row.end(), std::size_t{0});
  for (std::size_t i = 1; i <= a.size(); ++i) {
    std::size_t diagonal = std::exchange(row[0], i);
    for (std::size_t j = 1; j <= b.size(); ++j) {
      const std::size_t replaced = diagonal + (a[i - 1] == b[j - 1] ? 0 : 1);
      diagonal = row[j];
      row[j] = std::min({replaced, row[j] + 1, row[j - 1] + 1});
    }
  }
  return row.back();
}

}  // namespace

std::string BareCaption(std::string_view caption) {
  std::string bare(caption);
  std::erase(bare, '&');
  return std::string(TrimSpaces(bare));
}

std::string FullName(const Control& control) {
  return control.index() < 0 ? control.name() : fmt::format("{}[{}]", control.name(), control.index());
}

std::string Place(const Argument& address, const Control& control) {
  return fmt::format("{} on {}", address.source, control.screen().name());
}

std::string Nearest(std::string_view name, const std::vector<std::string>& names) {
  const std::string folded = Folded(name);
  const auto distance = [&folded](const std::string& other) { return EditDistance(folded, Folded(other)); };
  const auto nearest = std::ranges::min_element(names, {}, distance);
  return nearest == names.end() ? "" : *nearest;
}

std::string_view KindOf(const Control& control) {
  return VisitKind(
      control, [](const DropDownList&) { return "a drop-down list"; },
      [](const TextField&) { return "a field"; }, [](const ListBox&) { return "a list"; },
      [](const Grid&) { return "a grid"; }, [](const OptionButton&) { return "a round option"; },
      [](const TickBox&) { return "a tick box"; }, [](const Button&) { return "a button"; },
      [](const TabStrip&) { return "a row of tabs"; }, [](const Calendar&) { return "a calendar"; },
      [](const RichTextBox&) { return "a rich text box"; }, [](const PageView&) { return "a page"; },
      [](const Slider&) { return "a slider"; }, [](const Label&) { return "a label"; },
      [](const Panel&) { return "a panel"; });
}

std::vector<Control*> FindControls(const Argument& address, const std::vector<Screen*>& open) {
  if (open.empty()) throw ScriptError(fmt::format("no screen is open for {}", address.source));
  const Screen& top = *open.back();
  std::vector<Control*> found = FindOnScreen(address, address.text, top);
  if (!found.empty()) return found;
  const std::size_t colon = address.text.find(':');
  if (colon == std::string::npos || colon + 1 == address.text.size()) {
    throw ScriptError(NothingFound(address, address.text, top));
  }
  const std::string_view text = address.text;
  const Screen* screen = FindScreen(text.substr(0, colon), open);
  if (screen == nullptr) {
    throw ScriptError(fmt::format("{}: no screen {} is open ({} is on top); {}", address.source,
                                  text.substr(0, colon), top.name(), NothingFound(address, text, top)));
  }
  found = FindOnScreen(address, text.substr(colon + 1), *screen);
  if (found.empty()) throw ScriptError(NothingFound(address, text.substr(colon + 1), *screen));
  return found;
}

}  // namespace tarvane::script
