#include "job/option_lists.h"

#include "screen/screen.h"

namespace tarvane {

std::vector<std::string> LoadListFile(const std::filesystem::path& file) {
  return SplitLines(ReadFile(file).value_or(""));
}

void SaveListFile(Screen& screen, const std::filesystem::path& file,
                  const std::vector<std::string>& entries) {
  IgnoreFaults([&] {
    ReplaceFile(file, JoinLines(entries));
    screen.Message("List has been saved", "Tarvane Lists");
  });
}

}  // namespace tarvane
