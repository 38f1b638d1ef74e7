// A process that is killed in the middle of saving leaves every job that it reported as saved, and none half.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

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

  static Values Job(std::int64_t save) {
    // Of changing length, so that pages come and go.
    const std::string memo = TextOf(save) + std::string(static_cast<std::size_t>(save * 7919 % 9000), 'x');
    Values job = {{"Memo21", memo}};
    for (const char* column : kColumns) job.emplace_back(column, TextOf(save));
    return job;
  }

  static void AddJob(Database& database, RowSet& jobs, RowSet& admin, std::int64_t save) {
    Database::Transaction transaction(database);
    Save(admin, {{"LastOrderNo", std::to_string(std::stoll(admin.Value("LastOrderNo")) + 1)}});
    Values job = Job(save);
    job.emplace_back("Ext2", admin.Value("LastOrderNo"));
    Add(jobs, job);
    transaction.Commit();
  }

  // Saves without end: changed jobs, and new ones together with the counter in Admin.
  [[noreturn]] void WriteForever(int reports, std::int64_t save) const {
    // Most of a save's time goes by in syncs, where all is written: only a slow disk is met between two
    // writes.
    FailingDisk disk;
    disk.Slow(std::chrono::microseconds(200));
    Database database(file_, Database::Mode::kExisting, disk.name());
    RowSet jobs = Opened(database);
    RowSet admin = Opened(database, "Admin");
    for (;; ++save) {
      if (save % 3 == 0) {
        AddJob(database, jobs, admin, save);
      } else {
        jobs.MoveTo(save * 31 % jobs.RecordCount());
        Save(jobs, Job(save));
      }
      const Report report{std::stoll(jobs.Value("RefNo")), save};
      if (::write(reports, &report, sizeof report) != sizeof report) ::_exit(1);
    }
  }

  // A writer that is killed at any time; gives its reports. Some are waited for, so that a busy machine tests
  // as much as an idle one.
  std::vector<Report> WriteUntilKilled(std::int64_t save, unsigned wanted, int microseconds) const {
    int ends[2];
    EXPECT_EQ(::pipe(ends), 0);
    const pid_t writer = ::fork();
    if (writer == 0) {
      ::close(ends[0]);
      WriteForever(ends[1], save);
    }
    ::close(ends[1]);
    std::vector<Report> reports;
    const auto read_report = [&] {
      Report report{};
      const bool read = ::read(ends[0], &report, sizeof report) == sizeof report;
      if (read) reports.push_back(report);
      return read;
    };
    while (reports.size() < wanted && read_report()) {
    }
    std::this_thread::sleep_for(std::chrono::microseconds(microseconds));
    ::kill(writer, SIGKILL);
    int status = 0;
    ::waitpid(writer, &status, 0);
    EXPECT_TRUE(WIFSIGNALED(status)) << "the writer ended by itself";
    while (read_report()) {
    }
    ::close(ends[0]);
    return reports;
  }

  // Holds the file against all reports, the last of them of `last`. At most the one save that was under way
  // stands beyond them; from now on it counts as reported.
  void Check(std::int64_t& last) {
    Connection connection(file_, Database::Mode::kExisting, "");
    Statement check = connection.Prepare("PRAGMA integrity_check");
    check.Step();
    EXPECT_EQ(check.Text(0), "ok");
    std::string sql = "SELECT RefNo, Ext2, Memo21";
    for (const char* column : kColumns) sql += ", " + QuotedName(column);
    Statement rows = connection.Prepare(sql + " FROM TblBrindel ORDER BY RefNo");
    const std::int64_t under_way = last + 1;
    std::int64_t count = 0;
    while (rows.Step()) {
      const std::int64_t key = rows.Number(0);
      const std::string text(rows.Text(3));
      EXPECT_TRUE(rows.Text(2).starts_with(text));
      for (int i = 3; i < rows.ColumnCount(); ++i)
        EXPECT_EQ(rows.Text(i), text) << "half a save of job " << key;
      EXPECT_EQ(rows.Text(1), std::to_string(++count)) << "order numbers and jobs belong together";
      if (text == TextOf(under_way)) reported_[key] = last = under_way;
      EXPECT_EQ(text, TextOf(reported_[key])) << "of job " << key;
    }
    Statement admin = connection.Prepare("SELECT LastOrderNo FROM Admin");
    admin.Step();
    EXPECT_EQ(admin.Text(0), std::to_string(count));
    EXPECT_EQ(std::ssize(reported_), count) << "a reported job is missing";
  }

  std::map<std::int64_t, std::int64_t> reported_;  // the last save of each job
};

TEST_F(KillTest, LosesNothingReportedAndLeavesNothingHalf) {
  {
    Database database(file_);
    RowSet admin = Opened(database, "Admin");
    Add(admin, {{"LastOrderNo", "0"}});
    RowSet jobs = Opened(database);
    AddJob(database, jobs, admin, 0);
    reported_ = {{1, 0}};
  }
  std::int64_t last = 0;
  std::size_t reports_in_all = 0;
  std::mt19937 random(20240229);
  for (int kill = 0; kill < kKills && !HasFailure(); ++kill) {
    const unsigned wanted = random() % 3;
    const auto reports = WriteUntilKilled(last + 1, wanted, static_cast<int>(random() % 30000));
    for (const Report& report : reports) reported_[report.key] = last = report.save;
    reports_in_all += reports.size();
    Check(last);
  }
  EXPECT_GT(reports_in_all, kKills / 2U);
}

}  // namespace
}  // namespace tarvane
