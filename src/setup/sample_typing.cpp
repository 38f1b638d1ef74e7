#include "setup/sample_typing.h"

#include <algorithm>
#include <string>

#include "text/fault.h"

namespace tarvane::setup {

void Type(TextField& field, std::string_view text) {
  if (!field.enabled()) throw Fault("The field " + field.name() + " takes no text here.");
  field.UserType(text);
  field.UserEnterKey();
}

void Pick(DropDownList& list, std::string_view entry) {
  const auto found = std::ranges::find(list.entries(), entry);
  if (found == list.entries().end()) throw Fault(list.name() + " offers no \"" + std::string(entry) + "\".");
  list.UserPick(static_cast<std::size_t>(found - list.entries().begin()));
}

}  // namespace tarvane::setup
