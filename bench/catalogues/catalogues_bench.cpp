// catalogues_bench [PRODUCTS]: searches of a catalogue (100,000 products without a word) against the same
// work straight against SQLite's C interface, in turn, in one run; and how long opening a catalogue takes.
// Medians.
#include <fmt/format.h>
#include <sqlite3.h>

#include <array>
#include <filesystem>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "catalogues/suppliers.h"
#include "store/database.h"
#include "store/row_set.h"
#include "store/table_definition.h"
#include "support/compare.h"
#include "support/silent_host.h"
#include "support/temporary_folder.h"

namespace tarvane {
namespace {

constexpr int kScreenful = 50;
constexpr const char* kPrefix = "tarn";
constexpr const char* kBehindPrefix = "taro";

std::string BarCodeOf(std::int64_t product) {
  std::string code;
  std::uint64_t dice = static_cast<std::uint64_t>(product) * 0x9E3779B97F4A7C15U;
  for (int i = 0; i < 13; ++i, dice >>= 4U) code += static_cast<char>('1' + (dice & 7U));
  return code;
}

void Fill(const std::filesystem::path& file, std::string_view table, std::int64_t rows) {
  static constexpr std::array kNames = {"Tarnwater Check", "Marlow Stripe", "Tarn Plain",
                                        "Quarns Velvet",   "Hexley Linen",  "Saltenby Voile"};
  Database database(file, Database::Mode::kCreate);
  CreateTable(database, FindTable(table));
  Database::Transaction transaction(database);
  RowSet set;
  set.Open(database, table);
  for (std::int64_t row = 1; row <= rows; ++row) {
    set.AddNew();
    set.SetValue("SuppliersName", fmt::format("Supplier {}", row % 25));
    if (table == "Products") {
      set.SetValue("ProductName",
                   fmt::format("{} {}", kNames.at(static_cast<std::size_t>(row) % kNames.size()), row));
      set.SetValue("ItemCode", fmt::format("TW-{:06}", row));
      set.SetValue("Category", "Fabric");
      set.SetValue("BarCode", BarCodeOf(row));
      set.SetValue("SellingPrice", fmt::format("{}.50", row % 90 + 5));
      set.SetValue("Remarks", "Railroaded; wash cool, press on the wrong side.");
    }
    set.Update();
  }
  transaction.Commit();
}

using Row = std::vector<std::string>;

// The same work by hand.
class PlainC {
 public:
  ~PlainC() { Forget(); }
  PlainC(const PlainC&) = delete;
  PlainC& operator=(const PlainC&) = delete;
  explicit PlainC(const std::filesystem::path& file) {
    sqlite3* handle = nullptr;
    if (sqlite3_open_v2(file.c_str(), &handle, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr) !=
        SQLITE_OK)
      throw std::runtime_error("open");
    handle_.reset(handle);
    sqlite3_exec(handle, "PRAGMA journal_mode=TRUNCATE; PRAGMA synchronous=FULL; PRAGMA cache_size=-1536;",
                 nullptr, nullptr, nullptr);
  }

  void Forget() {
    for (const auto& [sql, statement] : prepared_) sqlite3_finalize(statement);
    prepared_.clear();
  }

  // Rows of a statement, which is prepared once and kept, with texts bound in turn.
  std::vector<Row> Rows(const char* sql, const std::vector<std::string>& texts) {
    sqlite3_stmt*& made = prepared_[sql];
    if (made == nullptr && sqlite3_prepare_v2(handle_.get(), sql, -1, &made, nullptr) != SQLITE_OK)
      throw std::runtime_error(sql);
    for (std::size_t i = 0; i < texts.size(); ++i) {
      sqlite3_bind_text(made, static_cast<int>(i) + 1, texts[i].data(), static_cast<int>(texts[i].size()),
                        SQLITE_STATIC);
    }
    std::vector<Row> rows;
    while (sqlite3_step(made) == SQLITE_ROW) {
      Row& row = rows.emplace_back();
      row.reserve(static_cast<std::size_t>(sqlite3_column_count(made)));
      for (int i = 0; i < sqlite3_column_count(made); ++i) {
        const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(made, i));
        row.emplace_back(text == nullptr ? "" : text,
                         static_cast<std::size_t>(sqlite3_column_bytes(made, i)));
      }
    }
    sqlite3_reset(made);
    return rows;
  }

 private:
  struct Close {
    void operator()(sqlite3* handle) const { sqlite3_close_v2(handle); }
  };
  std::map<std::string, sqlite3_stmt*> prepared_;
  std::unique_ptr<sqlite3, Close> handle_;
};

Row AllValues(const RowSet& rows) {
  Row values;
  for (int i = 0; i < rows.ColumnCount(); ++i) values.push_back(rows.Value(i));
  return values;
}

void CompareSearches(const std::filesystem::path& file, std::int64_t products) {
  Database database(file);
  PlainC hand(file);
  Row ours;
  Row theirs;
  std::int64_t round = 0;
  const auto some_product = [&round, products] { return 1 + (++round / 2 * 7919) % products; };

  const std::string behind = ":";
  Compare(
      "search by bar code", 1.5, 1001,
      [&] {
        const std::string code = BarCodeOf(some_product());
        RowSet rows;
        rows.Open(database, "SELECT * FROM products WHERE BarCode LIKE '" + code + "*'");
        ours = AllValues(rows);
      },
      [&] {
        const std::string code = BarCodeOf(some_product());
        theirs =
            hand.Rows(
                    "SELECT * FROM Products WHERE BarCode COLLATE NOCASE >= ?1 AND BarCode COLLATE NOCASE < "
                    "?2 ORDER BY BarCode COLLATE NOCASE, ProductID",
                    {code, code + behind})
                .front();
      });
  Expect(ours.size() == theirs.size() && !ours.empty(), "bar codes");

  std::size_t bytes_ours = 0;
  std::size_t bytes_theirs = 0;
  const std::string query = fmt::format("SELECT * FROM products WHERE ProductName LIKE '{}*'", kPrefix);
  const auto read_ours = [&] {
    bytes_ours = 0;
    RowSet rows;
    rows.Open(database, query);
    for (int row = 0; row < kScreenful; ++row, rows.MoveNext()) {
      for (int i = 0; i < rows.ColumnCount(); ++i) bytes_ours += rows.Value(i).size();
    }
  };
  const auto read_theirs = [&] {
    bytes_theirs = 0;
    for (const Row& row : hand.Rows("SELECT * FROM Products WHERE ProductName COLLATE NOCASE >= ?1 AND "
                                    "ProductName COLLATE NOCASE "
                                    "< ?2 ORDER BY ProductName COLLATE NOCASE, ProductID LIMIT 50",
                                    {kPrefix, kBehindPrefix})) {
      for (const std::string& value : row) bytes_theirs += value.size();
    }
  };
  // As a program does that prepares a statement for each search; below, against one that keeps it.
  Compare("prefix of a name, first 50 rows, all columns", 1.5, 501, read_ours, [&] {
    hand.Forget();
    read_theirs();
  });
  Compare("the same, by hand with a statement that is kept", 0, 501, read_ours, read_theirs);
  Expect(bytes_ours == bytes_theirs, "first rows");

  RowSet all;
  all.Open(database, "Products");
  Compare(
      "move to a record by the prefix of its ID", 1.5, 1001,
      [&] {
        all.FindFirst("ProductID Like'" + std::to_string(some_product()) + "*'");
        ours = AllValues(all);
      },
      [&] {
        theirs = hand.Rows(
                         "SELECT * FROM Products WHERE ProductID = +?1 OR ProductID BETWEEN ?1 * 10 AND ?1 * "
                         "10 + 9 OR "
                         "ProductID BETWEEN ?1 * 100 AND ?1 * 100 + 99 OR ProductID BETWEEN ?1 * 1000 AND ?1 "
                         "* 1000 + "
                         "999 ORDER BY ProductID LIMIT 1",
                         {std::to_string(some_product())})
                     .front();
      });
  Expect(ours.size() == theirs.size() && !ours.empty(), "records by ID");
}

// From the object to the screen as it stands before the worker, its first rows drawn.
double TimeOpening(const std::filesystem::path& shop_folder) {
  SilentHost host;
  Shop shop(shop_folder);
  std::vector<double> times;
  std::size_t bytes = 0;
  for (int i = 0; i < 201; ++i) {
    times.push_back(Microseconds([&] {
      catalogues::frmSuppliers2 screen(host, shop);
      host.step = [&](Screen&) {
        for (int row = 1; row <= kScreenful; ++row) {
          for (int column = 0; column < 5; ++column) bytes += screen.MSFlexGrid1.Cell(row, column).size();
        }
        screen.Close();
      };
      screen.RunAsMain();
    }));
  }
  Expect(bytes > 0, "nothing was drawn");
  return Median(times);
}

void CompareOpening(std::int64_t rows) {
  std::array<double, 2> medians{};
  for (const std::size_t large : {0U, 1U}) {
    const TemporaryFolder folder;
    std::filesystem::create_directory(folder.path() / "Dat");
    Fill(folder.path() / data_file::kSuppliers, "Suppliers", large != 0 ? rows : 100);
    medians.at(large) = TimeOpening(folder.path());
  }
  std::printf("opening a catalogue of %lld rows %.1f us, of 100 rows %.1f us, ratio %.2f (most 1.50)\n",
              static_cast<long long>(rows), medians[1], medians[0], medians[1] / medians[0]);
}

int Run(std::int64_t products) {
  const TemporaryFolder folder;
  const std::filesystem::path file = folder.path() / "Products.mdb";
  Fill(file, "Products", products);
  PrintHeading("store", "by hand");
  CompareSearches(file, products);
  CompareOpening(products);
  return 0;
}

}  // namespace
}  // namespace tarvane

int main(int argc, char** argv) {
  try {
    return tarvane::Run(argc > 1 ? std::strtoll(argv[1], nullptr, 10) : 100'000);
  } catch (const std::exception& fault) {
    std::fprintf(stderr, "%s\n", fault.what());
    return 1;
  }
}
