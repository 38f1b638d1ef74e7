#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <string_view>

#include "shop/shop.h"
#include "store/data_files.h"
#include "store/database.h"
#include "store/row_set.h"
#include "store/table_definition.h"
#include "support/temporary_folder.h"

namespace tarvane {

using RowValues = std::map<std::string, std::string>;

// A program folder of its own for one test, gone with it. The job database has its tables and no rows; the
// other databases come into being with MakeFile or the first row of one of their tables.
class ShopFolder {
 public:
  ShopFolder() {
    std::filesystem::create_directory(path_ / "Dat");
    Database database(jobs_file(), Database::Mode::kCreate);
    for (const std::string_view table : {kJobTable, kAdminTable}) CreateTable(database, FindTable(table));
  }
  ~ShopFolder() {
    std::error_code ignored;
    std::filesystem::permissions(path_ / "Dat", std::filesystem::perms::owner_all, ignored);
  }
  ShopFolder(const ShopFolder&) = delete;
  ShopFolder& operator=(const ShopFolder&) = delete;

  const std::filesystem::path& path() const { return path_; }
  std::filesystem::path jobs_file() const { return path_ / "Dat" / "Tarvane.mdb"; }

  void Write(std::string_view name, std::string_view content) const { ReplaceFile(path_ / name, content); }
  std::string Read(std::string_view name) const { return ReadFile(path_ / name).value_or("(missing)"); }

  std::filesystem::path FileOf(std::string_view table) const { return path_ / FindTable(table).file; }
  // The database of that table, where it isn't there yet.
  void MakeFile(std::string_view table) const {
    Database database(FileOf(table), Database::Mode::kCreate);
    CreateTable(database, FindTable(table));
  }
  void AddRow(std::string_view table, const RowValues& values) const {
    MakeFile(table);
    Database database(FileOf(table));
    RowSet rows;
    rows.Open(database, table);
    rows.AddNew();
    for (const auto& [column, value] : values) rows.SetValue(column, value);
    rows.Update();
  }
  void AddJob(const RowValues& values) const { AddRow(kJobTable, values); }
  void AddSettings(const RowValues& values = {{"LastOrderNo", "100"}, {"Ext1", "10"}, {"Ext2", "25"}}) const {
    AddRow(kAdminTable, values);
  }

  // As stored, of the row at `position`.
  std::string Stored(std::string_view table, int position, std::string_view column) const {
    Database database(FileOf(table));
    RowSet rows;
    rows.Open(database, table);
    rows.MoveTo(position);
    return rows.StoredValue(rows.FindColumn(column));
  }
  std::int64_t Count(std::string_view table) const {
    Database database(FileOf(table));
    RowSet rows;
    rows.Open(database, table);
    return rows.RecordCount();
  }

 private:
  TemporaryFolder folder_;
  const std::filesystem::path path_ = folder_.path();
};

}  // namespace tarvane
