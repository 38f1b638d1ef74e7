#pragma once

#include <filesystem>
#include <functional>
#include <string_view>

namespace tarvane::setup {

struct SetupOptions {
  std::filesystem::path folder;  // the program folder; made where it isn't there, its parents too
  std::filesystem::path data;    // what is laid down, as in the project's data/
  bool sample = false;           // fill a new shop with the sample jobs and catalogues
};

enum class SetupResult {
  kCreated,
  kKept,     // was there already and is as it was
  kSkipped,  // the sample shop, where the jobs database was there already
};

// Told once for each thing laid down: its name below the program folder, and what became of it.
using SetupReport = std::function<void(std::string_view name, SetupResult result)>;

// Lays down a program folder, for owner and group. Nothing that is there is changed. Everything is made whole
// in a folder beside and then moved into its place, so that a fault leaves nothing half-made; what a killed
// run left of that goes first. Faults tell the file and the cause: also where another program has the folder
// open, and where a journal that isn't empty waits for a database that isn't there.
void SetUpFolder(const SetupOptions& options, const SetupReport& report);

}  // namespace tarvane::setup
