#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "desktop/theme.h"

namespace tarvane::desktop {

// What the command line asks for.
struct ProgramOptions {
  std::filesystem::path folder;  // empty: the executable's
  std::optional<ColourScheme> scheme;
  std::optional<int> text_size;       // points
  std::filesystem::path screenshots;  // where to; empty: none
  bool benchmark_start = false;
  bool help = false;
};

// Faults on an option that it doesn't know, or that lacks its value.
ProgramOptions ParseOptions(const std::vector<std::string>& arguments);

// The whole program; gives its exit code.
int RunProgram(int argc, char** argv);

}  // namespace tarvane::desktop
