#pragma once

#include <filesystem>
#include <string>

namespace tarvane::setup {

// Where the files that tarvane-setup lays down stand: share/tarvane beside the folder of the running program,
// else the data folder of the source tree that it was built from.
std::filesystem::path FindDataFolder();

// The content of one of its files. Faults where that is missing.
std::string ReadDataFile(const std::filesystem::path& file);

}  // namespace tarvane::setup
