#include "shop/option_lists.h"

#include "screen/screen.h"
#include "text/utf8.h"

namespace tarvane {

std::vector<std::string> LoadListFile(const std::filesystem::path& file) {
  return SplitLines(WithoutByteOrderMark(ReadFile(file).value_or("")));
}

bool SaveListFile(Screen& screen, const std::filesystem::path& file,
                  const std::vector<std::string>& entries) {
  try {
    ReplaceFile(file, JoinLines(entries));
  } catch (const Fault&) {
    return false;
  }
  screen.Message("List has been saved", "Tarvane Lists");
  return true;
}

}  // namespace tarvane
