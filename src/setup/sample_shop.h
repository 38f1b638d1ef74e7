#pragma once

#include <filesystem>

namespace tarvane::setup {

// Fills the empty jobs database of the program folder `folder` with the jobs of an invented shop, through the
// program's own screens, so that each can be opened and edited. The same jobs each time. Faults where the
// program tells a fault or asks what no shop worker would be asked.
void FillSampleShop(const std::filesystem::path& folder);

}  // namespace tarvane::setup
