#include "script/show.h"

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

#include "script/script_host.h"
#include "script/workshop.h"
#include "store/database.h"
#include "store/row_set.h"
#include "store/table_definition.h"

namespace tarvane::script {
namespace {

// A table's grid may stand for a million jobs: a script sees its heading and the first 200.
TEST(Show, OfATableEndsAfter200Rows) {
  const auto file = std::filesystem::path(testing::TempDir()) / "show_test.mdb";
  std::filesystem::remove(file);
  {
    Database database(file, Database::Mode::kCreate);
    const TableDefinition table = {"", "Letters", {{"ID", ColumnType::kKey}, {"Name", ColumnType::kText}}};
    CreateTable(database, table);
    RowSet rows;
    rows.Open(database, table.name);
    Database::Transaction all(database);
    for (int i = 1; i <= 203; ++i) {
      rows.AddNew();
      rows.SetValue("Name", fmt::format("n{}", i));
      rows.Update();
    }
    all.Commit();

    std::ostringstream out;
    ScriptHost host(out, {});
    Screen screen(host, "Form1");
    TableGrid grid(&screen, "Letters");
    rows.Open(database, table.name);
    grid.SetSource(&rows);
    std::vector<std::string> lines;
    TellControl("Form1:Letters", grid, [&lines](std::string_view line) { lines.emplace_back(line); });
    ASSERT_EQ(lines.size(), 201U);
    EXPECT_EQ(lines[0], "Form1:Letters[0] = \"\" \"ID\" \"Name\"");
    EXPECT_THAT(lines[1], testing::EndsWith(" \"1\" \"n1\""));
    EXPECT_THAT(lines[200], testing::MatchesRegex("Form1:Letters.200. = .* \"200\" \"n200\""));
  }
  std::filesystem::remove(file);
}

}  // namespace
}  // namespace tarvane::script
