// A process that is killed in the middle of saving leaves every job that it reported as saved, and none half.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <chrono>
#include <csignal>
#include <map>
#include <random>
#include <thread>
#include <vector>

#include "store/connection.h"
#include "store/failing_disk.h"
#include "store/shop_file.h"

namespace tarvane {
namespace {

constexpr int kKills = 220;

// Columns that are always saved with the same text.
constexpr const char* kColumns[] = {"Name", "1T(0)", "1T(11)", "Text10", "History", "5Text", "Mobile"};

struct Report {
  std::int64_t key;
  std::int64_t save;  // counted through all writers
};

class KillTest : public ShopFile {
 protected:
  static std::string TextOf(std::int64_t save) { return "save " + std::to_string(save); }

  static void Set(RowSet& jobs, std::int64_t save) {
    for (const char* column : kColumns) jobs.SetValue(column, TextOf(save));
    // Of changing length, so that pages come and go.
    jobs.SetValue("Memo21", TextOf(save) + std::string(static_cast<std::size_t>(save * 7919 % 9000), 'x'));
  }

  // Saves without end: changed jobs, and new ones together with the counter in Admin.
  [[noreturn]] void WriteForever(int reports, std::int64_t save) const {
    // Most of a save's time goes by in syncs, where all is written: only a slow disk is met between two
    // writes.
    FailingDisk disk;
    disk.Slow(std::chrono::microseconds(200));
    Database database(file_, Database::Mode::kExisting, disk.name());
    RowSet jobs;
    RowSet admin;
    jobs.Open(database, "TblBrindel");
    admin.Open(database, "Admin");
    for (;; ++save) {
      if (save % 3 == 0) {
        Database::Transaction transaction(database);
        admin.SetValue("LastOrderNo", std::to_string(std::stoll(admin.Value("LastOrderNo")) + 1));
        admin.Update();
        jobs.AddNew();
        jobs.SetValue("Ext2", admin.Value("LastOrderNo"));
        Set(jobs, save);
        jobs.Update();
        transaction.Commit();
      } else {
        jobs.MoveTo(save * 31 % jobs.RecordCount());
        Set(jobs, save);
        jobs.Update();
      }
      const Report report{std::stoll(jobs.Value("RefNo")), save};
      if (::write(reports, &report, sizeof report) != sizeof report) ::_exit(1);
    }
  }

  // Holds the file against all reports; gives the number of the last save in it.
  std::int64_t Check(const std::map<std::int64_t, std::int64_t>& reported, std::int64_t last_report) const {
    Connection connection(file_, Database::Mode::kExisting, "");
    Statement check = connection.Prepare("PRAGMA integrity_check");
    check.Step();
    EXPECT_EQ(check.Text(0), "ok");
    std::string sql = "SELECT RefNo, Ext2, Memo21";
    for (const char* column : kColumns) sql += ", " + QuotedName(column);
    Statement rows = connection.Prepare(sql + " FROM TblBrindel ORDER BY RefNo");
    std::int64_t last = last_report;
    std::int64_t count = 0;
    while (rows.Step()) {
      const std::int64_t key = rows.Number(0);
      const std::string text(rows.Text(3));
      const std::int64_t save = std::stoll(text.substr(5));
      EXPECT_EQ(rows.Text(2).substr(0, text.size()), text);
      for (int i = 3; i < rows.ColumnCount(); ++i)
        EXPECT_EQ(rows.Text(i), text) << "half a save of job " << key;
      EXPECT_EQ(rows.Text(1), std::to_string(++count)) << "order numbers and jobs belong together";
      const auto found = reported.find(key);
      // At most the one save that was under way when the process ended stands beyond the reports.
      EXPECT_TRUE((found != reported.end() && save == found->second) || save == last_report + 1)
          << "job " << key << " has " << text;
      last = std::max(last, save);
    }
    Statement admin = connection.Prepare("SELECT LastOrderNo FROM Admin");
    admin.Step();
    EXPECT_EQ(admin.Text(0), std::to_string(count));
    for (const auto& [key, save] : reported) EXPECT_LE(key, count) << "a reported job is missing";
    return last;
  }
};

TEST_F(KillTest, LosesNothingReportedAndLeavesNothingHalf) {
  {
    Database database(file_);
    RowSet admin;
    admin.Open(database, "Admin");
    admin.AddNew();
    admin.SetValue("LastOrderNo", "1");
    admin.Update();
    RowSet jobs;
    jobs.Open(database, "TblBrindel");
    jobs.AddNew();
    jobs.SetValue("Ext2", "1");
    Set(jobs, 0);
    jobs.Update();
  }
  std::map<std::int64_t, std::int64_t> reported = {{1, 0}};
  std::int64_t last = 0;
  int reports_in_all = 0;
  std::mt19937 random(20240229);
  for (int kill = 0; kill < kKills && !HasFailure(); ++kill) {
    int ends[2];
    ASSERT_EQ(::pipe(ends), 0);
    const pid_t writer = ::fork();
    if (writer == 0) {
      ::close(ends[0]);
      WriteForever(ends[1], last + 1);
    }
    ::close(ends[1]);
    // Some saves are waited for, so that a busy machine tests as much as an idle one.
    std::vector<Report> reports;
    const auto read_report = [&] {
      Report report{};
      const bool read = ::read(ends[0], &report, sizeof report) == sizeof report;
      if (read) reports.push_back(report);
      return read;
    };
    for (auto wanted = random() % 3; wanted > 0 && read_report();) --wanted;
    std::this_thread::sleep_for(std::chrono::microseconds(random() % 30000));
    ::kill(writer, SIGKILL);
    int status = 0;
    ::waitpid(writer, &status, 0);
    ASSERT_TRUE(WIFSIGNALED(status)) << "the writer ended by itself";
    while (read_report()) {
    }
    std::int64_t last_report = last;
    for (const Report& report : reports) {
      reported[report.key] = report.save;
      last_report = report.save;
    }
    reports_in_all += static_cast<int>(reports.size());
    ::close(ends[0]);
    last = Check(reported, last_report);
    if (last > last_report) {
      // The save under way stands; from now on it counts as reported.
      Connection connection(file_, Database::Mode::kExisting, "");
      Statement row = connection.Prepare("SELECT RefNo FROM TblBrindel WHERE Name = ?1");
      const std::string text = TextOf(last);
      ASSERT_TRUE(row.Bind(1, text).Step());
      reported[row.Number(0)] = last;
    }
  }
  EXPECT_GT(reports_in_all, kKills / 2);
  RecordProperty("saves_reported", reports_in_all);
}

}  // namespace
}  // namespace tarvane
