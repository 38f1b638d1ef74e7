#pragma once

#include <filesystem>
#include <optional>
#include <span>
#include <string>

#include "script/script_host.h"

namespace tarvane::script {

// The command line of tarvane-script.
struct ScriptOptions {
  ScriptSettings settings;
  std::filesystem::path folder;
  std::optional<std::filesystem::path> script;  // nothing: standard input
};

inline constexpr const char* kScriptUsage =
    "usage: tarvane-script [--now YYYY-MM-DDTHH:MM:SS] [--seed N] [--] FOLDER [SCRIPT]\n";

// `arguments`: without the program's name. ScriptError tells what is wrong with them.
ScriptOptions ParseScriptOptions(std::span<const std::string> arguments);

}  // namespace tarvane::script
