#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "curtain_wizard/wizard.h"
#include "screen/kinds.h"

namespace tarvane::curtain_wizard {

// The words of a line; single quotes hold blanks together.
inline std::vector<std::string> Words(std::string_view line) {
  std::vector<std::string> words;
  bool open = false, quoted = false;
  for (const char c : line) {
    if (c == '\'') quoted = !quoted;
    if (c == ' ' && !quoted) {
      open = false;
      continue;
    }
    if (!open) words.emplace_back();
    open = true;
    if (c != '\'') words.back() += c;
  }
  return words;
}

// What the worker does and what is then to be seen, in lines of steps:
//   type TrackWidthIns 100; press CmdCalculate | NumberOfDrops=4 -CmdGetInfo
// Before the bar: type, key (Enter), focus, leave, tick, untick, click (an option), press, pick (an entry by
// number), go (to a step). Lines that begin with # are remarks. Behind it: NAME=TEXT of a field or label or
// on/off of a box, title=TEXT, NAME@CAPTION, NAME#ROWS, +NAME and -NAME enabled or not, ^NAME and _NAME shown
// or not.
class Player {
 public:
  explicit Player(Screen& screen) : screen_(screen) {}

  void Play(std::string_view script) {
    std::istringstream lines{std::string(script)};
    for (std::string line; std::getline(lines, line);) {
      const testing::ScopedTrace trace(__FILE__, __LINE__, line);
      if (Words(line).empty() || Words(line)[0] == "#") continue;
      std::istringstream steps{line};
      for (std::string step; std::getline(steps, step, ';');) Step(step);
    }
  }

 private:
  Control& Named(const std::string& name) const {
    const std::size_t bracket = name.find('[');
    const int index = bracket == std::string::npos ? -1 : name[bracket + 1] - '0';
    Control* control = screen_.Find(name.substr(0, bracket), index);
    if (control == nullptr) throw std::runtime_error("no control " + name);
    return *control;
  }
  template <typename Kind>
  Kind& As(const std::string& name) const {
    Kind* kind = tarvane::As<Kind>(Named(name));
    if (kind == nullptr) throw std::runtime_error("another kind: " + name);
    return *kind;
  }

  void Step(const std::string& step) const {
    const std::size_t bar = step.find('|');
    const std::vector<std::string> words = Words(step.substr(0, bar));
    if (!words.empty()) Act(words);
    if (bar == std::string::npos) return;
    for (const std::string& check : Words(step.substr(bar + 1))) Check(check);
  }
  void Act(const std::vector<std::string>& words) const {
    const std::string& on = words.at(1);
    const std::map<std::string_view, std::function<void()>> verbs = {
        {"type", [&] { As<TextField>(on).UserType(words.at(2)); }},
        {"key", [&] { As<TextField>(on).UserEnterKey(); }},
        {"focus", [&] { Named(on).UserFocus(); }},
        {"leave", [&] { Named(on).UserLeave(); }},
        {"tick", [&] { As<TickBox>(on).UserSet(true); }},
        {"untick", [&] { As<TickBox>(on).UserSet(false); }},
        {"click", [&] { As<OptionButton>(on).UserClick(); }},
        {"press", [&] { As<Button>(on).UserPress(); }},
        {"pick", [&] { As<DropDownList>(on).UserPick(std::stoul(words.at(2))); }},
        {"go", [&] { Go(std::stoi(on)); }},
    };
    verbs.at(words[0])();
  }
  void Go(int step) const {
    auto& wizard = dynamic_cast<MainCWizard&>(screen_);
    while (wizard.step() < step) wizard.CmdNext.UserPress();
    while (wizard.step() > step) wizard.CmdBack.UserPress();
  }
  void Check(const std::string& check) const {
    const std::size_t sign = check.find_first_of("=@#");
    if (sign == std::string::npos) {
      const Control& control = Named(check.substr(1));
      const bool in_view = check[0] == '^' || check[0] == '_';
      EXPECT_EQ(in_view ? control.shown() : control.enabled(), check[0] == '^' || check[0] == '+') << check;
      return;
    }
    const std::string name = check.substr(0, sign);
    const std::string found = name == "title"      ? screen_.title()
                              : check[sign] == '@' ? Named(name).caption()
                              : check[sign] == '#' ? std::to_string(As<Grid>(name).RowCount())
                                                   : Shown(Named(name));
    EXPECT_EQ(found, check.substr(sign + 1)) << check;
  }
  static std::string Shown(Control& control) {
    if (const auto* field = tarvane::As<TextField>(control)) return field->text();
    if (const auto* box = tarvane::As<TickBox>(control)) return box->on() ? "on" : "off";
    return control.caption();
  }

  Screen& screen_;
};

inline void Play(Screen& screen, std::string_view script) { Player(screen).Play(script); }

}  // namespace tarvane::curtain_wizard
