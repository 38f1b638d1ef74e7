// Settings and list files. The first three lines are a section, a key and a value, all behind them the file.
#include <algorithm>
#include <string>
#include <string_view>

#include "fuzz/require.h"
#include "store/data_files.h"

namespace tarvane {
namespace {

// A name as the program uses them.
bool IsPlainName(std::string_view name) {
  return !name.empty() && std::all_of(name.begin(), name.end(), [](char c) {
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
  });
}

void CheckProfile(std::string_view file, std::string_view section, std::string_view key,
                  std::string_view value) {
  const std::string read = ReadProfileValue(file, section, key);
  Require(read.size() <= 254);
  if (!IsPlainName(section) || !IsPlainName(key)) return;
  const std::string changed = WithProfileValue(file, section, key, value);
  const std::string alone = WithProfileValue("", section, key, value);
  const std::string stored = ReadProfileValue(alone, section, key);
  Require(ReadProfileValue(changed, section, key) == stored);
  Require(WithProfileValue(changed, section, key, value) == changed);
  const std::string other = std::string(key) + "x";
  Require(ReadProfileValue(changed, section, other) == ReadProfileValue(file, section, other));
}

void CheckLines(std::string_view file) {
  const std::vector<std::string> lines = SplitLines(file);
  Require(SplitLines(JoinLines(lines)) == lines);
  for (const std::string& line : lines) Require(line.find('\n') == std::string::npos);
  const std::vector<std::string> values = ReadSequentialValues(file, 50);
  Require(values.size() <= 50);
  const std::vector<std::string> all = ReadSequentialValues(file, file.size() + 1);
  Require(all.size() <= file.size() + 1 && std::equal(values.begin(), values.end(), all.begin()));
}

}  // namespace
}  // namespace tarvane

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view file = tarvane::InputText(data, size);
  tarvane::CheckLines(file);
  const std::string_view section = tarvane::TakeLine(file);
  const std::string_view key = tarvane::TakeLine(file);
  const std::string_view value = tarvane::TakeLine(file);
  tarvane::CheckProfile(file, section, key, value);
  return 0;
}
