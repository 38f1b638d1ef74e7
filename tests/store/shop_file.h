#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "store/database.h"
#include "store/row_set.h"
#include "store/table_definition.h"
#include "text_number/fault.h"

namespace tarvane {

// A folder of its own for each test, gone with it.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "tarvane-test-XXXXXX").string();
    if (::mkdtemp(pattern.data()) == nullptr) throw Fault("no temporary folder");
    path_ = pattern;
  }
  ~TemporaryFolder() {
    std::error_code error;
    std::filesystem::permissions(path_, std::filesystem::perms::owner_all, error);
    std::filesystem::remove_all(path_, error);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

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

// A jobs file with all its tables and no rows.
class ShopFile : public testing::Test {
 protected:
  ShopFile() : file_(folder_.path() / "Tarvane.mdb") {
    Database database(file_, Database::Mode::kCreate);
    for (const TableDefinition& table : TableDefinitions()) CreateTable(database, table);
  }

  void AddJobs(const std::vector<std::string>& names) const {
    Database database(file_);
    Database::Transaction transaction(database);
    RowSet jobs;
    jobs.Open(database, "TblBrindel");
    for (const std::string& name : names) {
      jobs.AddNew();
      jobs.SetValue("Name", name);
      jobs.Update();
    }
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
