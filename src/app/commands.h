#pragma once

#include <string_view>
#include <vector>

#include "screen/control.h"

namespace tarvane::app {

class MainScreen;

// What a command does. A menu, and a command that waits for its screen (kNotBuilt), do nothing.
struct Action {
  using Run = void (*)(MainScreen& main);
  // Written in the table as what it is.
  constexpr Action(Run run_in) : run(run_in) {}  // NOLINT(google-explicit-constructor)
  constexpr Action(NotBuilt) : to_come(true) {}  // NOLINT(google-explicit-constructor)
  Run run = nullptr;
  bool to_come = false;
};

// A menu, a menu entry, a toolbar button or a button of the main screen.
struct Command {
  Button::Kind kind;
  std::string_view parent;   // the menu that it stands in; "" for menus of the bar and for buttons
  std::string_view name;     // toolbar buttons: their key
  int index;                 // of a control array; -1 stands alone
  std::string_view caption;  // "" on the toolbar
  std::string_view tip;
  Action action;
};

// All of them, in the order in which they are shown.
const std::vector<Command>& Commands();

}  // namespace tarvane::app
