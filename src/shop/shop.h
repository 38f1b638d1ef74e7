#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "store/data_files.h"
#include "store/database.h"

namespace tarvane {

inline constexpr std::string_view kJobTable = "TblBrindel";
inline constexpr std::string_view kAdminTable = "Admin";
inline constexpr std::string_view kCompanyTable = "tblCompany";

// A setting of the shop: a column of the first row of Admin.
struct Setting {
  std::string_view column;
};
namespace setting {
inline constexpr Setting kMarkUp{"LastEstimateNo"};
inline constexpr Setting kVat{"VatAmount"};
inline constexpr Setting kCurrencySymbol{"CurrencySymbol"};
inline constexpr Setting kDiscountPercent{"Ext1"};
inline constexpr Setting kDepositPercent{"Ext2"};
}  // namespace setting

// A number that is counted up in Admin, each at most once.
struct Counter {
  std::string_view column;
};
namespace counter {
inline constexpr Counter kOrder{"LastOrderNo"};
}  // namespace counter

// The folder that a shop works in: its databases, settings, counters, lists and settings files. Screens get
// it beside their host. One connection for each database file, so that all row sets see each other's writes.
//
// What is missing is found out at first use, and tried again at the next.
class Shop {
 public:
  // `folder`: the program folder. Opens nothing yet.
  explicit Shop(std::filesystem::path folder) : folder_(std::move(folder)) {}
  Shop(const Shop&) = delete;
  Shop& operator=(const Shop&) = delete;

  const std::filesystem::path& folder() const { return folder_; }
  // The file of that name (data_file), matched without regard to case.
  std::filesystem::path File(std::string_view name) const { return FindFile(folder_, name); }

  // The connection to a database file, opened at first use and kept. Faults where it can't be opened.
  Database& database(std::string_view file = data_file::kJobs);

  // What was done or found as databases were opened (Database::notice), each told once: taken by whoever
  // shows it to the worker.
  std::vector<std::string> TakeNotices() { return std::exchange(notices_, {}); }

  // "" where the shop has no row of settings. Faults where the database or the table can't be read.
  std::string Get(const Setting& setting);
  // Raises the counter by one, commits that, and gives the new number. Faults where it can't be stored, or
  // where there is no row of settings; a number that may or may not have been stored isn't given again.
  std::string Raise(const Counter& counter);

  // The whole text of a list or settings file, without a byte order mark; nothing where there is no such
  // file. Faults where it is there and can't be read.
  std::optional<std::string> ReadText(std::string_view name) const;
  // Its lines, as they stand; none where there is no such file. Faults like ReadText.
  std::vector<std::string> ReadList(std::string_view name) const;

 private:
  std::filesystem::path folder_;
  std::map<std::string, Database, std::less<>> databases_;  // by file
  std::vector<std::string> notices_;
};

}  // namespace tarvane
