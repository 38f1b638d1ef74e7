#include "store/table_definition.h"

#include <gmock/gmock.h>

#include <set>

#include "store/shop_file.h"

namespace tarvane {
namespace {

class TableDefinitionTest : public ShopFile {};

TEST_F(TableDefinitionTest, ReportsTakeJobColumnsByPosition) {
  const std::pair<int, const char*> positions[] = {{0, "RefNo"},  {1, "Name"},   {35, "3Text"}, {36, "4text"},
                                                   {37, "5Text"}, {61, "5T(2)"}, {63, "5T(4)"}};
  Database database(file_);
  RowSet jobs;
  jobs.Open(database, "TblBrindel");
  EXPECT_EQ(jobs.ColumnCount(), 78);
  for (const auto& [position, name] : positions) EXPECT_EQ(jobs.ColumnName(position), name);
}

TEST_F(TableDefinitionTest, AJobHasEveryColumnOfItsTwelveRooms) {
  const TableDefinition& jobs = FindTable("tblbrindel");
  const auto find = [&](const std::string& name) {
    for (const ColumnDefinition& column : jobs.columns) {
      if (column.name == name) return column;
    }
    ADD_FAILURE() << "no column " << name;
    return ColumnDefinition{};
  };
  for (int room = 1; room <= 12; ++room) {
    EXPECT_EQ(find("1T(" + std::to_string(room - 1) + ")").type, ColumnType::kMemo);
    EXPECT_EQ(find("Text" + std::to_string(8 + 2 * room)).type, ColumnType::kMemo);
    EXPECT_EQ(find("Text" + std::to_string(8 + 2 * room)).default_value, "Empty\r\n");
    EXPECT_EQ(find("Text" + std::to_string(9 + 2 * room)).default_value, "0.00");
    EXPECT_EQ(find(room == 2 ? "YesNo2" : "Check" + std::to_string(room)).type, ColumnType::kYesNo);
  }
  for (const char* memo : {"5T(3)", "History", "Memo21"}) EXPECT_EQ(find(memo).type, ColumnType::kMemo);
  for (const char* flag : {"Completed", "Check2"}) EXPECT_EQ(find(flag).type, ColumnType::kYesNo);
  for (const char* searched : {"RefNo", "Name", "Telephone", "PostCode", "Ext2", "Ext6"}) {
    EXPECT_TRUE(find(searched).searched) << searched;
  }
}

TEST_F(TableDefinitionTest, FilesHoldWhatIsDefined) {
  Database database(file_);
  for (const TableDefinition& table : TableDefinitions()) {
    EXPECT_FALSE(CreateTable(database, table)) << "it is there already";
    RowSet rows;
    rows.Open(database, table.name);
    ASSERT_EQ(rows.ColumnCount(), static_cast<int>(table.columns.size())) << table.name;
    std::set<std::string_view> names;
    for (int i = 0; i < rows.ColumnCount(); ++i) {
      const ColumnDefinition& column = table.columns[static_cast<std::size_t>(i)];
      EXPECT_EQ(rows.ColumnName(i), column.name);
      EXPECT_EQ(rows.FindColumn(column.name), i) << "no other column differs only in case";
      names.insert(column.name);
    }
    EXPECT_EQ(names.size(), table.columns.size());
    EXPECT_EQ(rows.FindColumn("no such"), -1);
    rows.AddNew();
    for (int i = 0; i < rows.ColumnCount(); ++i) {
      const ColumnDefinition& column = table.columns[static_cast<std::size_t>(i)];
      const bool yes_no = column.type == ColumnType::kYesNo;
      EXPECT_EQ(rows.Value(i), yes_no ? "0" : column.default_value) << column.name;
      if (column.type != ColumnType::kKey) rows.SetValue(i, yes_no ? "1" : std::string(column.name));
    }
    rows.Update();
    rows.MoveLast();
    EXPECT_EQ(rows.Value(0), "1");
    for (int i = 1; i < rows.ColumnCount(); ++i) {
      const ColumnDefinition& column = table.columns[static_cast<std::size_t>(i)];
      EXPECT_EQ(rows.Value(i), column.type == ColumnType::kYesNo ? "1" : column.name);
    }
  }
  EXPECT_THROW(FindTable("none"), Fault);
}

}  // namespace
}  // namespace tarvane
