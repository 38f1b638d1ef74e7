#include "setup/command_line.h"

#include <fmt/format.h>

#include <exception>
#include <optional>
#include <ostream>
#include <string_view>

#include "setup/data_folder.h"
#include "setup/setup.h"

namespace tarvane::setup {

namespace {

constexpr std::string_view kUsage =
    "usage: tarvane-setup [--sample] [--data DIR] [--] FOLDER\n"
    "\n"
    "Lays down a program folder: databases, settings, lists, letters and fonts.\n"
    "What is in FOLDER already stays as it is.\n"
    "\n"
    "  --sample     fill a new shop with the jobs and catalogues of an invented one\n"
    "  --data DIR   take what is laid down from DIR\n"
    "  --           what follows is no option\n";

// Nothing where the arguments make no command.
std::optional<SetupOptions> ParseArguments(const std::vector<std::string>& arguments) {
  SetupOptions options;
  bool ended = false;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    const bool option = !ended && argument.starts_with("--");
    if (option && argument == "--") {
      ended = true;
    } else if (option && argument == "--sample") {
      options.sample = true;
    } else if (option && argument == "--data" && i + 1 < arguments.size()) {
      options.data = arguments[++i];
    } else if (!option && !argument.empty() && options.folder.empty()) {
      options.folder = argument;
    } else {
      return std::nullopt;
    }
  }
  if (options.folder.empty()) return std::nullopt;
  if (options.data.empty()) options.data = FindDataFolder();
  return options;
}

std::string_view Word(SetupResult result) {
  switch (result) {
    case SetupResult::kCreated:
      return "created";
    case SetupResult::kKept:
      return "kept";
    case SetupResult::kSkipped:
      return "left out (the jobs database was there already)";
  }
  return "";
}

}  // namespace

int RunSetup(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err) {
  try {
    if (arguments == std::vector<std::string>{"--help"}) {
      out << kUsage;
      return 0;
    }
    const auto options = ParseArguments(arguments);
    if (!options) {
      err << kUsage;
      return 2;
    }
    SetUpFolder(*options, [&out](std::string_view name, SetupResult result) {
      out << fmt::format("{}: {}\n", name, Word(result));
    });
  } catch (const std::exception& error) {
    err << "tarvane-setup: " << error.what() << '\n';
    return 1;
  }
  return 0;
}

}  // namespace tarvane::setup
