// store_bench [FILE [JOBS]]: the store against the same work by hand, in turn, in one run; medians. Without a
// file a shop of 1,000,000 jobs is made and taken away again.
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>
#include <vector>

#include "by_hand.h"
#include "store/database.h"
#include "store/make_shop/make_shop.h"
#include "store/row_set.h"
#include "support/compare.h"
#include "text/fault.h"

namespace tarvane {
namespace {

constexpr const char* kPrefix = "smith";
constexpr const char* kBehindPrefix = "smiti";
constexpr int kScreenful = 50;

void CompareReading(const std::filesystem::path& file) {
  const std::string query = "SELECT * FROM TblBrindel WHERE Name LIKE '" + std::string(kPrefix) + "*'";
  const std::string behind = kBehindPrefix;
  Database database(file);
  ByHand hand(file);
  std::size_t bytes_ours = 0;
  std::size_t bytes_hand = 0;
  Compare(
      "prefix criterion, first 50 rows, all columns", 1.25, 301,
      [&] {
        bytes_ours = 0;
        RowSet rows;
        rows.Open(database, query);
        for (int row = 0; row < kScreenful; ++row, rows.MoveNext()) {
          for (int i = 0; i < rows.ColumnCount(); ++i) bytes_ours += rows.Value(i).size();
        }
      },
      [&] {
        bytes_hand = 0;
        for (const auto& row : hand.FirstRows(kPrefix, behind, kScreenful)) {
          for (const std::string& value : row) bytes_hand += value.size();
        }
      });
  Expect(bytes_ours == bytes_hand, "first rows");
  std::string last_key;
  std::vector<std::int64_t> keys;
  Compare(
      "prefix criterion, all keys", 1.3, 51,
      [&] {
        RowSet rows;
        rows.Open(database, query);
        rows.MoveLast();
        last_key = rows.Bookmark();
      },
      [&] { keys = hand.Keys(kPrefix, behind); });
  Expect(last_key == std::to_string(keys.back()), "keys");
  std::int64_t ours = 0;
  std::int64_t theirs = 0;
  Compare(
      "record count", 1.2, 51,
      [&] {
        RowSet rows;
        rows.Open(database, "TblBrindel");
        ours = rows.RecordCount();
      },
      [&] { theirs = hand.Count(); });
  Expect(ours == theirs, "count");
  std::printf("%zu keys of %lld jobs\n", keys.size(), static_cast<long long>(ours));
}

void CompareOpening(const std::filesystem::path& file) {
  std::string ours;
  std::string theirs;
  Compare(
      "open to first row", 1.2, 501,
      [&] {
        Database database(file);
        RowSet rows;
        rows.Open(database, "TblBrindel");
        ours = rows.Value("Name");
      },
      [&] { theirs = ByHand(file).FirstRow()[1]; });
  Expect(ours == theirs, "first row");
}

void CompareSaving(const std::filesystem::path& file) {
  Database database(file);
  RowSet jobs;
  jobs.Open(database, "TblBrindel");
  const std::int64_t count = jobs.RecordCount();
  ByHand hand(file);
  // Other texts in each run: a value that is stored already would not be written.
  const std::string run =
      "run " + std::to_string(std::chrono::system_clock::now().time_since_epoch().count());
  std::int64_t round = 0;
  const auto key = [&round, count] { return 1 + (++round * 7919) % count; };
  Compare(
      "save of one job", 1.3, 151,
      [&] {
        jobs.MoveTo(key() - 1);
        const std::string text = run + std::to_string(round);
        for (const char* column : {"Name", "Town", "1T(0)", "G-Total", "5Text"}) jobs.SetValue(column, text);
        jobs.Update();
      },
      [&] {
        const std::int64_t saved = key();
        hand.Save(saved, run + std::to_string(round));
      });
}

// What the grid of the finder does: no yardstick by hand, milliseconds count.
void TimeGrid(const std::filesystem::path& file) {
  Database database(file);
  RowSet jobs;
  const std::vector<int> columns = {0, 1, 2, 3, 4, 5, 6, 7};
  std::vector<double> pages;
  std::vector<double> ends;
  std::vector<double> scans;
  for (int i = 0; i < 31; ++i) {
    jobs.Open(database, "TblBrindel");
    ends.push_back(Microseconds([&] {
      jobs.MoveLast();
      for (std::int64_t row = jobs.RecordCount() - kScreenful; row < jobs.RecordCount(); ++row)
        jobs.PeekRow(row, columns);
    }));
    const std::int64_t top = jobs.RecordCount() / 2 + i * kScreenful;
    pages.push_back(Microseconds([&] {
      for (std::int64_t row = top; row < top + kScreenful; ++row) jobs.PeekRow(row, columns);
    }));
  }
  for (int i = 0; i < 5; ++i) {
    scans.push_back(Microseconds([&] {
      jobs.Open(database, "SELECT * FROM TblBrindel WHERE Name LIKE '*worth rup*'");
      jobs.MoveLast();
    }));
  }
  std::printf("grid: to the end %.1f us, a page down %.1f us; a pattern with a star in front %.0f us\n",
              Median(ends), Median(pages), Median(scans));
}

// Runs this program again for one side alone, and gives the most memory it held.
long PeakKilobytes(const char* side, const std::filesystem::path& file) {
  const pid_t child = ::fork();
  if (child == 0) {
    ::execl("/proc/self/exe", "store_bench", side, file.c_str(), nullptr);
    ::_exit(127);
  }
  int status = 0;
  rusage usage{};
  ::wait4(child, &status, 0, &usage);
  Expect(status == 0, side);
  return usage.ru_maxrss;
}

int RunSide(const std::string& side, const std::filesystem::path& file) {
  const std::string behind = kBehindPrefix;
  if (side == "--hand") {
    ByHand hand(file);
    Expect(hand.Count() > 0 && !hand.FirstRows(kPrefix, behind, kScreenful).empty() &&
               !hand.Keys(kPrefix, behind).empty(),
           "hand");
    hand.Save(1, "memory");
    return 0;
  }
  Database database(file);
  RowSet rows;
  rows.Open(database, "TblBrindel");
  Expect(rows.RecordCount() > 0, "count");
  rows.SetValue("Town", "memory");
  rows.Update();
  rows.Open(database, "SELECT * FROM TblBrindel WHERE Name LIKE '" + std::string(kPrefix) + "*'");
  for (int row = 0; row < kScreenful; ++row) rows.MoveNext();
  rows.MoveLast();
  return 0;
}

int Run(int argc, char** argv) {
  if (argc == 3 && std::string(argv[1]).starts_with("--")) return RunSide(argv[1], argv[2]);
  const bool temporary = argc < 2;
  const std::filesystem::path file = temporary ? std::filesystem::temp_directory_path() /
                                                     ("tarvane-bench-" + std::to_string(::getpid()) + ".mdb")
                                               : argv[1];
  if (!std::filesystem::exists(file))
    MakeShop(file, argc > 2 ? std::strtoll(argv[2], nullptr, 10) : 1'000'000);
  PrintHeading("store", "by hand");
  CompareOpening(file);
  CompareReading(file);
  TimeGrid(file);
  CompareSaving(file);
  const long ours = PeakKilobytes("--store", file);
  const long theirs = PeakKilobytes("--hand", file);
  std::printf("peak memory %ld KB, by hand %ld KB, ratio %.2f (most 2.0)\n", ours, theirs,
              static_cast<double>(ours) / static_cast<double>(theirs));
  if (temporary) std::filesystem::remove(file), std::filesystem::remove(file.string() + "-journal");
  return 0;
}

}  // namespace
}  // namespace tarvane

int main(int argc, char** argv) {
  try {
    return tarvane::Run(argc, argv);
  } catch (const std::exception& fault) {
    std::fprintf(stderr, "%s\n", fault.what());
    return 1;
  }
}
