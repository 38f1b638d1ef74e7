#include <exception>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

#include "app/main_screen.h"
#include "script/run_script.h"
#include "script/script_error.h"
#include "script/script_options.h"

namespace {

int Run(const tarvane::ScriptOptions& options) {
  std::ifstream file;
  if (options.script) {
    file.open(*options.script, std::ios::binary);
    if (!file || std::filesystem::is_directory(*options.script)) {
      throw tarvane::ScriptError("can't read the script " + options.script->string());
    }
  }
  std::istream& script = options.script ? file : std::cin;
  return tarvane::RunScript(options.settings, script, options.script.has_value(), std::cout, std::cerr,
                            [&options](tarvane::Host& host) {
                              tarvane::MainScreen screen(host, options.folder);
                              screen.RunAsMain();
                            });
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return Run(tarvane::ParseScriptOptions(std::vector<std::string>(argv + 1, argv + argc)));
  } catch (const tarvane::ScriptError& error) {
    std::cerr << "tarvane-script: " << error.text() << '\n' << tarvane::kScriptUsage;
  } catch (const std::exception& error) {
    std::cerr << "tarvane-script: " << error.what() << '\n';
  }
  return tarvane::kScriptWrong;
}
