#include "script/run_script.h"

#include <exception>

#include "script/interpreter.h"
#include "script/script_error.h"

namespace tarvane::script {
namespace {

void RunProgram(const std::function<void(Host&)>& program, Host& host) {
  try {
    program(host);
  } catch (const ProcessEnd&) {
  }
}

}  // namespace

ScriptStatus RunScript(const ScriptSettings& settings, std::istream& script, bool to_the_end,
                       std::ostream& out, std::ostream& err, const std::function<void(Host&)>& program) {
  LineReader lines(script);
  ScriptHost host(out, settings);
  Interpreter interpreter(host, lines, err);
  try {
    RunProgram(program, host);
    if (to_the_end) interpreter.RequireNothingLeft();
  } catch (const ScriptError& error) {
    err << "line " << lines.line() << ": " << error.text() << std::endl;
    return kScriptWrong;
  } catch (const std::exception& error) {
    err << "line " << lines.line() << ": the program failed: " << error.what() << std::endl;
    return kScriptWrong;
  }
  return interpreter.failures() == 0 ? kAllHeld : kSomeFailed;
}

}  // namespace tarvane::script
