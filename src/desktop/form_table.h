#pragma once

#include <span>
#include <string>
#include <string_view>

namespace tarvane {
class Screen;
namespace app {
class MainScreen;
}
}  // namespace tarvane

namespace tarvane::desktop {

class Form;

// A screen that has a window: what fills it, and how one comes to see it.
struct FormEntry {
  std::string_view name;                // kName of the screen's class
  bool (*shows)(const Screen& screen);  // whether the screen is of that class
  std::string_view picture;             // what its screenshots are called
  bool remembers_place;                 // its window comes up where and as large as it was left
  void (*build)(Form& form);            // only for a form whose screen is of that class
  // Shows one over the main screen, on the sample shop, as the worker would come to it; nullptr for the main
  // screen itself.
  void (*show)(app::MainScreen& main);
  // What the worker typed that isn't stored: its name ("the job of Mrs Blake"), "" where nothing waits. It is
  // marked in the title, and asked for before the window closes. Null for screens where nothing ever waits.
  std::string (*unsaved)(Screen& screen);
  bool closing_saves;            // closing the screen stores it: only a log-out asks
  void (*save)(Screen& screen);  // faults where it can't; with `unsaved` only
};

// All of them. Tests and screenshots walk along this table.
std::span<const FormEntry> Forms();

// Null where the screen's class has no form.
const FormEntry* FindForm(const Screen& screen);

}  // namespace tarvane::desktop
