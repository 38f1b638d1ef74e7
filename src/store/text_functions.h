#pragma once

#include <sqlite3.h>

#include <string_view>

namespace tarvane {

// Ordered as CompareFolded does. For statements only, never for what stands in a file: other programs
// couldn't touch it. Files of version 0 have it in their indexes.
inline constexpr std::string_view kFoldedCollation = "SHOP_NOCASE";
// shop_like(text, pattern): Like (criteria.h). For statements only.
inline constexpr std::string_view kLikeFunction = "shop_like";

// Makes both known to `handle`. Returns SQLite's code.
int RegisterTextFunctions(sqlite3* handle);

}  // namespace tarvane
