#pragma once

#include <type_traits>
#include <utility>
#include <variant>

#include "screen/control.h"
#include "screen/field.h"
#include "screen/grid.h"
#include "screen/page_view.h"
#include "screen/rich_text_box.h"

// The one way to treat kinds of control differently.
namespace tarvane {

// One function out of several, a lambda for each kind.
template <typename... Cases>
struct OneOf : Cases... {
  using Cases::operator()...;
};
template <typename... Cases>
OneOf(Cases...) -> OneOf<Cases...>;

// Calls the one of `cases` that fits the control's own kind best: a case for TextField& also serves drop-down
// lists where these have none. A kind that no case takes doesn't compile.
template <typename... Cases>
decltype(auto) VisitKind(Control& control, Cases&&... cases) {
  const auto all = OneOf{std::forward<Cases>(cases)...};
  return std::visit([&all](auto* kind) -> decltype(auto) { return all(*kind); }, control.kind_of());
}
template <typename... Cases>
decltype(auto) VisitKind(const Control& control, Cases&&... cases) {
  const auto all = OneOf{std::forward<Cases>(cases)...};
  // Asking for the kind changes nothing; the cases see a const control.
  return std::visit([&all](const auto* kind) -> decltype(auto) { return all(*kind); },
                    const_cast<Control&>(control).kind_of());
}

// The control as one of `Kind` (or of what derives from it); nullptr where it is of another kind.
template <typename Kind>
Kind* As(Control& control) {
  return std::visit(
      [](auto* each) -> Kind* {
        if constexpr (std::is_convertible_v<decltype(each), Kind*>) {
          return each;
        } else {
          return nullptr;
        }
      },
      control.kind_of());
}
template <typename Kind>
const Kind* As(const Control& control) {
  return As<Kind>(const_cast<Control&>(control));
}

}  // namespace tarvane
