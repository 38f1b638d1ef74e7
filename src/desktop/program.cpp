#include "desktop/program.h"

#include <QApplication>
#include <charconv>
#include <iostream>

#include "app/main_screen.h"
#include "app/version.h"
#include "desktop/qt_host.h"
#include "desktop/screenshots.h"
#include "desktop/start_benchmark.h"
#include "text_number/fault.h"

namespace tarvane {
namespace {

constexpr std::string_view kHelp =
    "tarvane [FOLDER] [options]\n"
    "  FOLDER               the shop's program folder; the folder of this program where none is given\n"
    "  --theme NAME         light, dark or system\n"
    "  --text-size POINTS   8 to 28; Ctrl + and Ctrl - change it later\n"
    "  --screenshots DIR    write pictures of all screens of the shop in FOLDER to DIR, and end\n"
    "  --benchmark-start    tell the time to the first paint and the peak memory, and end\n"
    "  --help               this text\n";

// Takes the value of the option at `at`.
const std::string& ValueOf(const std::vector<std::string>& arguments, std::size_t& at) {
  if (at + 1 >= arguments.size()) throw Fault("The option " + arguments[at] + " needs a value.");
  return arguments[++at];
}

ColourScheme SchemeOf(const std::string& text) {
  ColourScheme scheme{};
  if (!ParseScheme(QString::fromStdString(text), scheme)) throw Fault("There is no theme " + text + ".");
  return scheme;
}

int TextSizeOf(const std::string& text) {
  int points = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), points);
  const bool whole = error == std::errc() && end == text.data() + text.size();
  if (!whole || points < Theme::kSmallestText || points > Theme::kLargestText) {
    throw Fault("The text size must be a number from 8 to 28.");
  }
  return points;
}

void SetLook(const ProgramOptions& options) {
  Theme theme = LoadTheme();
  theme.scheme = options.scheme.value_or(theme.scheme);
  theme.text_size = options.text_size.value_or(theme.text_size);
  ApplyTheme(theme);
}

int RunShop(const std::filesystem::path& folder) {
  QtHost host;
  host.RememberPlaces();
  MainScreen screen(host, folder);
  screen.RunAsMain();
  return 0;
}

}  // namespace

ProgramOptions ParseOptions(const std::vector<std::string>& arguments) {
  ProgramOptions options;
  for (std::size_t at = 0; at < arguments.size(); ++at) {
    const std::string& argument = arguments[at];
    if (argument == "--theme") {
      options.scheme = SchemeOf(ValueOf(arguments, at));
    } else if (argument == "--text-size") {
      options.text_size = TextSizeOf(ValueOf(arguments, at));
    } else if (argument == "--screenshots") {
      options.screenshots = ValueOf(arguments, at);
    } else if (argument == "--benchmark-start") {
      options.benchmark_start = true;
    } else if (argument == "--help") {
      options.help = true;
    } else if (argument.starts_with("-") || !options.folder.empty()) {
      throw Fault("The program doesn't know \"" + argument + "\".");
    } else {
      options.folder = argument;
    }
  }
  return options;
}

int RunProgram(int argc, char** argv) {
  try {
    ProgramOptions options = ParseOptions({argv + 1, argv + argc});
    if (options.help) {
      std::cout << kHelp;
      return 0;
    }
    QApplication application(argc, argv);
    QCoreApplication::setOrganizationName("Tarvane");
    QCoreApplication::setApplicationName("Tarvane");
    // The process ends where the main screen does, also while windows come and go.
    QApplication::setQuitOnLastWindowClosed(false);
    SetLook(options);
    if (options.folder.empty()) options.folder = QCoreApplication::applicationDirPath().toStdU16String();
    if (!options.screenshots.empty()) return TakeScreenshots(options.folder, options.screenshots);
    return options.benchmark_start ? BenchmarkStart(options.folder) : RunShop(options.folder);
  } catch (const std::exception& error) {
    std::cerr << "tarvane: " << error.what() << "\n";
    return 2;
  }
}

}  // namespace tarvane
