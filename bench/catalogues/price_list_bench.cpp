#include <benchmark/benchmark.h>
#include <sqlite3.h>
#include <sys/resource.h>

#include <filesystem>
#include <stdexcept>
#include <string>

#include "catalogues/price_list/csv_reader.h"
#include "catalogues/price_list/list_columns.h"
#include "catalogues/price_list/price_plan.h"
#include "catalogues/price_list/read_price_list.h"
#include "catalogues/price_list/take_over.h"
#include "shop/shop.h"
#include "support/shop_folder.h"

// A price list of 50,000 lines read, compared with 50,000 products and taken over, half of it new and half of
// it changed prices; and the same inserts and updates by hand, in one transaction.
namespace tarvane::catalogues {
namespace {

constexpr int kProducts = 50'000;
constexpr int kLinesOfList = 50'000;

bool GoOn(std::int64_t) { return true; }

std::string Code(int number) { return "TW-" + std::to_string(100'000 + number); }
std::string BarCode(int number) { return std::to_string(5'012'345'000'000 + number); }
std::string Name(int number) { return "Tarnwater cloth number " + std::to_string(number); }

// The list begins in the middle of the products.
constexpr int kFirstOfList = kProducts - kLinesOfList / 2;

std::string ListText() {
  std::string csv = "Code,EAN,Name,RRP,Trade\r\n";
  for (int i = 0; i < kLinesOfList; ++i) {
    const int number = kFirstOfList + i;
    csv += Code(number) + "," + BarCode(number) + "," + Name(number) + ",26.50,13.25\r\n";
  }
  return csv;
}

void Run(sqlite3* handle, const char* sql) {
  if (sqlite3_exec(handle, sql, nullptr, nullptr, nullptr) != SQLITE_OK) throw std::runtime_error(sql);
}

sqlite3* OpenByHand(const std::filesystem::path& file) {
  sqlite3* handle = nullptr;
  if (sqlite3_open_v2(file.c_str(), &handle, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr) !=
      SQLITE_OK) {
    throw std::runtime_error("open");
  }
  Run(handle, "PRAGMA journal_mode=TRUNCATE; PRAGMA synchronous=FULL; PRAGMA cache_size=-1536;");
  return handle;
}

class Writer {
 public:
  Writer(sqlite3* handle, const char* sql) {
    if (sqlite3_prepare_v2(handle, sql, -1, &statement_, nullptr) != SQLITE_OK) throw std::runtime_error(sql);
  }
  ~Writer() { sqlite3_finalize(statement_); }
  Writer(const Writer&) = delete;
  Writer& operator=(const Writer&) = delete;

  void Write(std::initializer_list<std::string_view> values) {
    int at = 0;
    for (const std::string_view value : values) {
      sqlite3_bind_text(statement_, ++at, value.data(), static_cast<int>(value.size()), SQLITE_STATIC);
    }
    if (sqlite3_step(statement_) != SQLITE_DONE) throw std::runtime_error("write");
    sqlite3_reset(statement_);
  }

 private:
  sqlite3_stmt* statement_ = nullptr;
};

constexpr const char* kInsert =
    "INSERT INTO Products (SuppliersName, ItemCode, BarCode, ProductName, SellingPrice, BuyPrice, VatRate, "
    "PriceWithOutVat, AmountInStock, StockLowLevelAmount, StockOnOrder, AmountOfStockToOrder) "
    "VALUES ('Tarnwater', ?1, ?2, ?3, ?4, ?5, '20', '0.00', '0', '0', '0', '0')";

// A shop with its products, made once and copied for each round.
class BenchShop {
 public:
  BenchShop() {
    folder_.MakeFile(kProductsTable);
    sqlite3* const handle = OpenByHand(file());
    Run(handle, "BEGIN");
    {
      Writer insert(handle, kInsert);
      for (int i = 0; i < kProducts; ++i) insert.Write({Code(i), BarCode(i), Name(i), "24.00", "12.00"});
    }
    Run(handle, "COMMIT");
    sqlite3_close(handle);
    std::filesystem::copy_file(file(), kept());
  }
  void Renew() const {
    std::filesystem::copy_file(kept(), file(), std::filesystem::copy_options::overwrite_existing);
  }
  std::filesystem::path file() const { return folder_.FileOf(kProductsTable); }
  std::filesystem::path kept() const { return folder_.path() / "kept"; }

 private:
  ShopFolder folder_;
};

const BenchShop& TheShop() {
  static const BenchShop shop;
  return shop;
}

double PeakMegabytes() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return static_cast<double>(usage.ru_maxrss) / 1024;
}

void ReadCompareTakeOver(benchmark::State& state) {
  const std::string text = ListText();
  for (auto _ : state) {
    state.PauseTiming();
    TheShop().Renew();
    Database database(TheShop().file());
    state.ResumeTiming();
    const PriceSheet sheet = *ReadPriceSheet(text, GoOn);
    const auto plan = PricePlan::Make(sheet, MatchColumns(sheet), "Tarnwater", database, GoOn);
    if (plan->counts().added != kLinesOfList / 2 || plan->counts().changed != kLinesOfList / 2) {
      throw std::runtime_error("plan");
    }
    if (!TakeOver(*plan, database, "20", GoOn)) throw std::runtime_error("not taken over");
  }
  state.counters["peak MB"] = PeakMegabytes();
}

void WriteByHand(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    TheShop().Renew();
    sqlite3* const handle = OpenByHand(TheShop().file());
    state.ResumeTiming();
    Run(handle, "BEGIN IMMEDIATE");
    {
      Writer update(handle, "UPDATE Products SET SellingPrice = ?2, BuyPrice = ?3 WHERE rowid = ?1");
      Writer insert(handle, kInsert);
      for (int i = 0; i < kLinesOfList; ++i) {
        const int number = kFirstOfList + i;
        if (number < kProducts) {
          update.Write({std::to_string(number + 1), "26.50", "13.25"});
        } else {
          insert.Write({Code(number), BarCode(number), Name(number), "26.50", "13.25"});
        }
      }
    }
    Run(handle, "COMMIT");
    state.PauseTiming();
    sqlite3_close(handle);
    state.ResumeTiming();
  }
  state.counters["peak MB"] = PeakMegabytes();
}
BENCHMARK(WriteByHand)->Unit(benchmark::kMillisecond)->Iterations(5);
BENCHMARK(ReadCompareTakeOver)->Unit(benchmark::kMillisecond)->Iterations(5);

void ReadAlone(benchmark::State& state) {
  const std::string text = ListText();
  for (auto _ : state) benchmark::DoNotOptimize(ReadPriceSheet(text, GoOn)->LineCount());
}
BENCHMARK(ReadAlone)->Unit(benchmark::kMillisecond);

void CompareAlone(benchmark::State& state) {
  TheShop().Renew();
  Database database(TheShop().file());
  const PriceSheet sheet = *ReadPriceSheet(ListText(), GoOn);
  for (auto _ : state) {
    benchmark::DoNotOptimize(
        PricePlan::Make(sheet, MatchColumns(sheet), "Tarnwater", database, GoOn)->counts().added);
  }
}
BENCHMARK(CompareAlone)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tarvane::catalogues

BENCHMARK_MAIN();
