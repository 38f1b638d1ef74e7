#pragma once

#include <cstdint>
#include <filesystem>

namespace tarvane {

// Fills the jobs file `file` with `jobs` more invented jobs of usual width (about 1 KB each), and makes the
// file and its tables where they aren't there. The same jobs each time. Not safe against a loss of power
// while it runs.
void MakeShop(const std::filesystem::path& file, std::int64_t jobs);

}  // namespace tarvane
