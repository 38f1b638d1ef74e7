#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "store/data_files.h"
#include "store/database.h"
#include "store/row_set.h"
#include "store/table_definition.h"
#include "support/temporary_folder.h"
#include "text/fault.h"

namespace tarvane {

// The text of the fault that `step` ends in, "" where it ends well.
template <typename Step>
std::string FaultOf(Step step) {
  try {
    step();
  } catch (const Fault& fault) {
    return fault.what();
  }
  return "";
}

// Rows of the jobs, where nothing else is asked for.
inline RowSet Opened(Database& database, std::string_view source = "TblBrindel") {
  RowSet rows;
  rows.Open(database, source);
  return rows;
}

using Values = std::vector<std::pair<std::string_view, std::string>>;

inline void Save(RowSet& rows, const Values& values) {
  for (const auto& [column, value] : values) rows.SetValue(column, value);
  rows.Update();
}

inline void Add(RowSet& rows, const Values& values) {
  rows.AddNew();
  Save(rows, values);
}

// Where a row set stands: the key of its current row (or "-"), its position, and how many rows there are.
inline std::string Where(const RowSet& rows) {
  return (rows.HasRow() ? rows.Value(0) : "-") + " at " + std::to_string(rows.AbsolutePosition()) + " of " +
         std::to_string(rows.RecordCount());
}

// The tables that stand in the file of the jobs.
inline void CreateJobTables(Database& database) {
  for (const TableDefinition& table : TableDefinitions()) {
    if (table.file == data_file::kJobs) CreateTable(database, table);
  }
}

// A jobs file with all its tables and no rows.
class ShopFile : public testing::Test {
 protected:
  ShopFile() : file_(folder_.path() / "Tarvane.mdb") {
    Database database(file_, Database::Mode::kCreate);
    Database::Transaction together(database);
    CreateJobTables(database);
    together.Commit();
  }

  void AddJobs(const std::vector<std::string>& names) const {
    Database database(file_);
    Database::Transaction transaction(database);
    RowSet jobs = Opened(database);
    for (const std::string& name : names) Add(jobs, {{"Name", name}});
    transaction.Commit();
  }

  // `column` of all rows from the first to the last.
  static std::vector<std::string> Walk(RowSet& rows, std::string_view column) {
    std::vector<std::string> values;
    for (rows.MoveFirst(); rows.HasRow(); rows.MoveNext()) values.push_back(rows.Value(column));
    return values;
  }

  TemporaryFolder folder_;
  std::filesystem::path file_;
};

}  // namespace tarvane
