#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace tarvane {

// What is wrong with the includes of the sources below `src`, one line each ("screen/field.h:9: ..."):
// an include that points up or to a sibling, a project file that isn't there or isn't named from src/, a
// folder that has no place in the layers, a library's header outside the folder that alone may know it.
std::vector<std::string> FindWrongIncludes(const std::filesystem::path& src);

}  // namespace tarvane
