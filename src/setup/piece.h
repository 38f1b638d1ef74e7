#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace tarvane::setup {

// One file of a program folder.
struct LaidDownPiece {
  std::string name;  // below the program folder, with forward slashes
  // Makes the file, which isn't there yet, in a folder that is. Faults with the file and the cause.
  std::function<void(const std::filesystem::path& file)> make;
};

// Every file that is laid down, in the order in which it is told: databases, settings, lists,
// letters, fonts. `data`
// is read as the pieces are made, apart from the names of the fonts. `sample`: the catalogues are those of
// the sample shop; else they are empty.
std::vector<LaidDownPiece> LaidDownPieces(const std::filesystem::path& data, bool sample);

}  // namespace tarvane::setup
