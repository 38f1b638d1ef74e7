// What the definitions say is pinned where files of older versions are held against fresh ones.
#include "store/table_definition.h"

#include <gmock/gmock.h>

#include "store/shop_file.h"

namespace tarvane {
namespace {

using TableDefinitionTest = ShopFile;

TEST_F(TableDefinitionTest, FilesHoldWhatIsDefined) {
  Database database(file_);
  for (const TableDefinition& table : TableDefinitions()) {
    EXPECT_EQ(CreateTable(database, table), table.file != data_file::kJobs) << "once";
    EXPECT_FALSE(CreateTable(database, table)) << "it is there already";
    RowSet rows = Opened(database, table.name);
    ASSERT_EQ(rows.ColumnCount(), static_cast<int>(table.columns.size())) << table.name;
    EXPECT_THROW(rows.FindColumn("no such"), Fault);
    rows.AddNew();
    std::vector<std::string> written = {"1"};
    for (int i = 0; i < rows.ColumnCount(); ++i) {
      const ColumnDefinition& column = table.columns[static_cast<std::size_t>(i)];
      const bool yes_no = column.type == ColumnType::kYesNo;
      EXPECT_EQ(rows.ColumnName(i), column.name);
      EXPECT_EQ(rows.FindColumn(column.name), i) << "no other column differs only in case";
      EXPECT_EQ(rows.Value(i), yes_no ? "0" : column.default_value) << column.name;
      if (column.type == ColumnType::kKey || column.type == ColumnType::kNextKey) continue;
      written.push_back(yes_no ? "1" : std::string(column.name));
      rows.SetValue(i, written.back());
    }
    rows.Update();
    rows.MoveLast();
    for (int i = 0; i < rows.ColumnCount(); ++i)
      EXPECT_EQ(rows.Value(i), written.at(static_cast<std::size_t>(i)));
  }
  EXPECT_THROW(FindTable("none"), Fault);
}

// Reports take the columns of a job by their positions.
TEST_F(TableDefinitionTest, ColumnsOfAJobKeepTheirPositions) {
  Database database(file_);
  const RowSet jobs = Opened(database);
  EXPECT_EQ(jobs.ColumnCount(), 78);
  for (const auto& [position, name] : {std::pair(0, "RefNo"), std::pair(36, "4text"), std::pair(63, "5T(4)")})
    EXPECT_EQ(jobs.ColumnName(position), name);
}

}  // namespace
}  // namespace tarvane
