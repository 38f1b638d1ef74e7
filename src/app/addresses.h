#pragma once

#include <string_view>

// Where the program sends the browser. A deployment puts its own here.
namespace tarvane::app {

inline constexpr std::string_view kMakerSite = "https://www.tarvane.example/";
inline constexpr std::string_view kMakerSecondSite = "https://shop.tarvane.example/";
inline constexpr std::string_view kUpdatePage = "https://www.tarvane.example/updates";

}  // namespace tarvane::app
