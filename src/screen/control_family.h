#pragma once

#include <array>
#include <cstddef>
#include <utility>

namespace tarvane {

// The members of a control array, made in place by `make(index)`, index from 0:
//   std::array<Label, 3> Label8 = MakeFamily<3>([this](int i) { return Label(this, "Label8", i); });
template <std::size_t count, typename Make>
auto MakeFamily(Make make) {
  return [&make]<std::size_t... index>(std::index_sequence<index...>) {
    return std::array<decltype(make(0)), count>{{make(static_cast<int>(index))...}};
  }
  (std::make_index_sequence<count>());
}

}  // namespace tarvane
