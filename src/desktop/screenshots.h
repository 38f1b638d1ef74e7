#pragma once

#include <filesystem>

namespace tarvane::desktop {

// Goes through the screens of the shop in `folder` and writes a picture of each, light and dark, to
// `pictures`: main-finder-light.png and so on. Gives the exit code. Nothing of the shop is changed.
int TakeScreenshots(const std::filesystem::path& folder, const std::filesystem::path& pictures);

}  // namespace tarvane::desktop
