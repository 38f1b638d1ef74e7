#pragma once

#include <string_view>
#include <vector>

#include "screen/control.h"

namespace tarvane {

class MainScreen;

// A menu, a menu entry, a toolbar button or a button of the main screen.
struct Command {
  Button::Kind kind;
  std::string_view parent;   // the menu that it stands in; "" for menus of the bar and for buttons
  std::string_view name;     // toolbar buttons: their key
  int index;                 // of a control array; -1 stands alone
  std::string_view caption;  // "" on the toolbar
  std::string_view tip;
  // What it does. nullptr for a menu, and for what waits for its screen: that stays disabled.
  void (*action)(MainScreen& main);
};

// All of them, in the order in which they are shown.
const std::vector<Command>& Commands();

}  // namespace tarvane
