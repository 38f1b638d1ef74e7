#include "desktop/program.h"

#include <QApplication>
#include <QMessageBox>
#include <charconv>
#include <iostream>

#include "app/main_screen.h"
#include "app/version.h"
#include "desktop/forms/start_page.h"
#include "desktop/icons.h"
#include "desktop/qt_host.h"
#include "desktop/screenshots.h"
#include "desktop/shop_check.h"
#include "desktop/start_benchmark.h"
#include "desktop/text.h"
#include "shop/shop_lock.h"
#include "text/fault.h"

namespace tarvane::desktop {
namespace {

constexpr std::string_view kHelp =
    "tarvane [FOLDER] [options]\n"
    "  FOLDER               the shop's program folder; the folder of this program where none is given\n"
    "  --theme NAME         light, dark or system\n"
    "  --text-size POINTS   8 to 28; Ctrl + and Ctrl - change it later\n"
    "  --screenshots DIR    write pictures of all screens of the shop in FOLDER to DIR, and end\n"
    "  --benchmark-start    tell the time to the first paint and the peak memory, and end\n"
    "  --help               this text\n"
    "  --                   what follows is the folder, whatever it begins with\n";

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

void TellWorker(const std::string& text) {
  std::cerr << "tarvane: " << text << "\n";
  QMessageBox box(QMessageBox::Critical, ToQt(kProgramTitle), ToQt(text), QMessageBox::Ok);
  box.setTextFormat(Qt::PlainText);
  box.exec();
}

// Whatever is thrown while an event is served is told, and the program goes on.
class Application : public QApplication {
 public:
  using QApplication::QApplication;

  bool notify(QObject* receiver, QEvent* event) override {
    try {
      return QApplication::notify(receiver, event);
    } catch (const std::exception& error) {
      Tell(error.what());
    } catch (...) {
      Tell("the cause isn't known");
    }
    return false;
  }

 private:
  // Once at a time: what goes wrong while a window is drawn goes wrong again behind the message.
  void Tell(const std::string& cause) {
    if (std::exchange(telling_, true)) return;
    TellWorker("This could not be done: " + cause + ".");
    telling_ = false;
  }
  bool telling_ = false;
};

int ServeShop(Shop& shop) {
  QtHost host;
  host.RememberPlaces();
  app::MainScreen screen(host, shop);
  screen.RunAsMain();
  return 0;
}

// Until a shop has been opened, or the worker gives up.
int RunShop(std::filesystem::path folder) {
  while (true) {
    // Goes with the process, however that ends.
    const std::optional<ShopLock> lock = ShopLock::Take(folder);
    if (!lock) {
      TellWorker(ShopIsOpenText(folder));
      return 1;
    }
    Shop shop(folder);
    const std::optional<ShopTrouble> trouble = FindTrouble(shop);
    if (!trouble) return ServeShop(shop);
    const StartChoice choice = ShowStartPage(*trouble);
    if (choice == StartChoice::kQuit) return 1;
    if (choice == StartChoice::kTryAgain) continue;
    const std::filesystem::path chosen = AskForFolder(folder);
    if (!chosen.empty()) folder = chosen;
  }
}

int RunTask(const ProgramOptions& options) {
  if (!options.screenshots.empty()) return TakeScreenshots(options.folder, options.screenshots);
  return options.benchmark_start ? BenchmarkStart(options.folder) : RunShop(options.folder);
}

int RunInWindows(char* program, ProgramOptions options) {
  // Qt has no options of its own here: a folder may be called like one of them.
  int count = 1;
  char* arguments[] = {program, nullptr};
  const Application application(count, arguments);
  QCoreApplication::setOrganizationName("Tarvane");
  QCoreApplication::setApplicationName("Tarvane");
  // The process ends where the main screen does, also while windows come and go.
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setWindowIcon(WindowIcon());
  SetLook(options);
  if (options.folder.empty()) options.folder = QCoreApplication::applicationDirPath().toStdU16String();
  const bool worker_is_there = options.screenshots.empty() && !options.benchmark_start;
  try {
    return RunTask(options);
  } catch (const std::exception& error) {
    if (!worker_is_there) throw;
    TellWorker(error.what());
    return 2;
  }
}

}  // namespace

ProgramOptions ParseOptions(const std::vector<std::string>& arguments) {
  ProgramOptions options;
  bool ended = false;
  for (std::size_t at = 0; at < arguments.size(); ++at) {
    const std::string& argument = arguments[at];
    if (ended || !argument.starts_with("-")) {
      if (!options.folder.empty()) throw Fault("The program doesn't know \"" + argument + "\".");
      options.folder = argument;
    } else if (argument == "--") {
      ended = true;
    } else if (argument == "--theme") {
      options.scheme = SchemeOf(ValueOf(arguments, at));
    } else if (argument == "--text-size") {
      options.text_size = TextSizeOf(ValueOf(arguments, at));
    } else if (argument == "--screenshots") {
      options.screenshots = ValueOf(arguments, at);
    } else if (argument == "--benchmark-start") {
      options.benchmark_start = true;
    } else if (argument == "--help") {
      options.help = true;
    } else {
      throw Fault("The program doesn't know \"" + argument + "\".");
    }
  }
  return options;
}

int RunProgram(int argc, char** argv) {
  try {
    const ProgramOptions options = ParseOptions({argv + 1, argv + argc});
    if (!options.help) return RunInWindows(argv[0], options);
    std::cout << kHelp;
    return 0;
  } catch (const std::exception& error) {
    std::cerr << "tarvane: " << error.what() << "\n";
  } catch (...) {
    std::cerr << "tarvane: ended, and the cause isn't known\n";
  }
  return 2;
}

}  // namespace tarvane::desktop
