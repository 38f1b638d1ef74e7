#include <chrono>
#include <exception>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

#include "app/main_screen.h"
#include "script/run_script.h"
#include "script/script_error.h"
#include "script/script_options.h"
#include "shop/shop_lock.h"
#include "text/fault.h"

namespace {

constexpr std::chrono::seconds kWaitForFolder{10};

int Run(const tarvane::script::ScriptOptions& options) {
  tarvane::script::ScriptSettings settings = options.settings;
  settings.fonts = options.folder / "Fonts";
  std::ifstream file;
  if (options.script) {
    file.open(*options.script, std::ios::binary);
    if (!file || std::filesystem::is_directory(*options.script)) {
      throw tarvane::script::ScriptError("can't read the script " + options.script->string());
    }
  }
  const auto lock = tarvane::ShopLock::Take(options.folder, kWaitForFolder);
  if (!lock) throw tarvane::Fault(tarvane::ShopIsOpenText(options.folder));
  std::istream& script = options.script ? file : std::cin;
  return tarvane::script::RunScript(settings, script, options.script.has_value(), std::cout, std::cerr,
                                    [&options](tarvane::Host& host) {
                                      tarvane::Shop shop(options.folder);
                                      tarvane::app::MainScreen screen(host, shop);
                                      screen.RunAsMain();
                                    });
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return Run(tarvane::script::ParseScriptOptions(std::vector<std::string>(argv + 1, argv + argc)));
  } catch (const tarvane::script::ScriptError& error) {
    std::cerr << "tarvane-script: " << error.text() << '\n' << tarvane::script::kScriptUsage;
  } catch (const std::exception& error) {
    std::cerr << "tarvane-script: " << error.what() << '\n';
  }
  return tarvane::script::kScriptWrong;
}
