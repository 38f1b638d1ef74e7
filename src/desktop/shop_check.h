#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "shop/shop.h"

namespace tarvane::desktop {

// Why a shop can't be worked in, in the worker's words.
struct ShopTrouble {
  std::string what;  // one line
  std::string why;
  std::string help;  // what to do about it
};

// Looks at the folder, its rights and its database; nothing where the shop can be opened. What it opens stays
// open in the shop.
std::optional<ShopTrouble> FindTrouble(Shop& shop);

// Why nothing can be saved in this shop, though it can be looked at; "" where all can be written.
std::string WhyOnlyReading(const Shop& shop);

}  // namespace tarvane::desktop
