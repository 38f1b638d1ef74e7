#pragma once

#include <functional>
#include <istream>
#include <ostream>

#include "script/script_host.h"

namespace tarvane::script {

// What a process gives back.
enum ScriptStatus { kAllHeld = 0, kSomeFailed = 1, kScriptWrong = 2 };

// Runs `program` (which shows its first screen on the host that it is given) under the commands of `script`,
// until either ends. The transcript goes to `out`, failures to `err`. `to_the_end`: commands that are left
// when the program has ended are an error of the script; false leaves them unread.
ScriptStatus RunScript(const ScriptSettings& settings, std::istream& script, bool to_the_end,
                       std::ostream& out, std::ostream& err, const std::function<void(Host&)>& program);

}  // namespace tarvane::script
