#pragma once

#include <string_view>

namespace tarvane {

class Form;

// The form of a screen: what fills its window.
struct FormEntry {
  std::string_view screen;
  void (*build)(Form& form);  // the form's screen is of that name, and so of its class
  bool remembers_place;       // its window comes up where and as large as it was left
};

// Null where a screen has no form.
const FormEntry* FindForm(std::string_view screen);

}  // namespace tarvane
