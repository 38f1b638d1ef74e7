#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <string>
#include <vector>

namespace tarvane {
namespace {

namespace fs = std::filesystem;

// Types that stand at the left margin of a header, by their qualified name, with the headers that define
// them.
std::map<std::string, std::vector<std::string>> DefinedTypes(const fs::path& src) {
  static const std::regex kNamespace(R"(namespace ([a-z_:]+) \{.*)");
  static const std::regex kType(R"((?:struct|class|enum class|enum) (\w+)( [^;:]*)?( : [^;]*)?)");
  std::map<std::string, std::vector<std::string>> types;
  for (const auto& entry : fs::recursive_directory_iterator(src)) {
    if (entry.path().extension() != ".h") continue;
    std::ifstream in(entry.path());
    std::string space;
    std::smatch match;
    for (std::string line; std::getline(in, line);) {
      if (std::regex_match(line, match, kNamespace)) space = match[1];
      if (std::regex_match(line, match, kType)) {
        types[space + "::" + match[1].str()].push_back(fs::relative(entry.path(), src));
      }
    }
  }
  return types;
}

// Two types of one name in one namespace link without a word and crash where both are used.
TEST(TypeNames, AreUniqueAcrossTheFolders) {
  const auto types = DefinedTypes(TARVANE_SOURCE_DIR);
  EXPECT_THAT(types, testing::Contains(testing::Key("tarvane::RowSet")));
  EXPECT_GT(types.size(), 50U);
  for (const auto& [name, headers] : types) {
    EXPECT_EQ(headers.size(), 1U) << name << " in " << testing::PrintToString(headers);
  }
}

}  // namespace
}  // namespace tarvane
