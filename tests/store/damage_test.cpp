// Damaged files: every step ends, what is wrong is told with what helps, and nothing more is written unasked.
#include <gmock/gmock.h>

#include <fstream>

#include "store/failing_disk.h"
#include "store/plain_sqlite.h"
#include "store/shop_file.h"

namespace tarvane {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
namespace fs = std::filesystem;

constexpr const char* kByName = "SELECT * FROM TblBrindel WHERE Name LIKE '*'";

class DamageTest : public ShopFile {
 protected:
  DamageTest() { AddJobs(std::vector<std::string>(100, "job")); }

  // Runs `sql` while SQLite doesn't know of that index, which isn't kept as it should be.
  void RunWithoutIndex(const std::string& index, const std::string& sql) const {
    const std::string row = " FROM sqlite_schema WHERE name = '" + index + "'";
    const std::string saved = PlainSqlite(file_).Run("SELECT quote(tbl_name), rootpage, quote(sql)" + row);
    std::string values = "'index', '" + index + "'";
    for (std::size_t at = 0, bar = 0; (bar = saved.find('|', at)) != std::string::npos; at = bar + 1)
      values += ", " + saved.substr(at, bar - at);
    const std::string open = "PRAGMA writable_schema=ON; ";
    ASSERT_EQ(PlainSqlite(file_).Run(open + "DELETE" + row), "");
    ASSERT_EQ(PlainSqlite(file_).Run(sql), "");
    ASSERT_EQ(PlainSqlite(file_).Run(open + "INSERT INTO sqlite_schema VALUES (" + values + ")"), "");
  }

  // A page of the table that holds rows, behind the first.
  void DamageAPage() const {
    const std::string page = PlainSqlite(file_).Run(
        "SELECT max(pageno) FROM dbstat WHERE name = 'TblBrindel' AND pagetype = 'leaf'");
    std::fstream stream(file_, std::ios::in | std::ios::out | std::ios::binary);
    stream.seekp((std::stoll(page) - 1) * 4096);
    stream << std::string(200, '\xAB');
  }

  static std::string SaveName(Database& database, const std::string& name) {
    return FaultOf([&] {
      RowSet jobs = Opened(database);
      Save(jobs, {{"Name", name}});
    });
  }

  static auto ToldWithHelp() {
    return AllOf(HasSubstr("the file is damaged"), HasSubstr("Nothing more is written to it."),
                 HasSubstr("bring back a backup"));
  }
};

TEST_F(DamageTest, AnIndexThatNamesMissingRowsEndsEveryStep) {
  using Step = std::function<void(RowSet&)>;
  struct Case {
    const char* index;
    const char* source;
    const char* gone;
    Step step;
    bool told;
  };
  const Step open = [](RowSet&) {};
  const Step walk = [](RowSet& jobs) { Walk(jobs, "RefNo"); };
  const Step last = [](RowSet& jobs) { jobs.MoveLast(); };
  const Step back = [](RowSet& jobs) {
    for (jobs.MoveLast(); jobs.HasRow();) jobs.MovePrevious();
  };
  const Step middle = [](RowSet& jobs) { jobs.MoveTo(50); };
  const Step draw = [](RowSet& jobs) {
    for (int row = 0; row < 100; ++row) jobs.PeekRow(row, {0, 1});
  };
  const Case cases[] = {
      {"TblBrindel_RefNo", "TblBrindel", "RefNo = 1", open, false},
      {"TblBrindel_RefNo", "TblBrindel", "RefNo > 0", walk, false},
      {"TblBrindel_RefNo", "TblBrindel", "RefNo = 100", last, false},
      {"TblBrindel_RefNo", "TblBrindel", "RefNo IN (20, 51)", middle, true},
      {"TblBrindel_RefNo", "TblBrindel", "RefNo IN (20, 51)", back, false},
      {"TblBrindel_RefNo", "TblBrindel", "RefNo IN (20, 51)", draw, false},
      {"TblBrindel_Name", kByName, "RefNo > 0", open, true},
      {"TblBrindel_Name", kByName, "RefNo = 60", walk, true},
      {"TblBrindel_Name", kByName, "RefNo = 100", last, true},
      {"TblBrindel_Name", kByName, "RefNo = 51", middle, true},
      {"TblBrindel_Name", kByName, "RefNo = 60", draw, false},
  };
  fs::copy_file(file_, file_.string() + ".sound");
  for (const Case& each : cases) {
    fs::copy_file(file_.string() + ".sound", file_, fs::copy_options::overwrite_existing);
    RunWithoutIndex(each.index, "DELETE FROM TblBrindel WHERE " + std::string(each.gone));
    Database database(file_);
    const std::string fault = FaultOf([&] {
      RowSet jobs = Opened(database, each.source);
      each.step(jobs);
    });
    const std::string place = std::string(each.source) + " without " + each.gone;
    EXPECT_EQ(database.damaged(), each.told) << place;
    EXPECT_EQ(fault.empty(), !each.told) << place << ": " << fault;
    if (!each.told) continue;
    EXPECT_THAT(fault, AllOf(HasSubstr(file_.string()), ToldWithHelp())) << place;
  }
}

TEST_F(DamageTest, AFileSeenToBeDamagedIsOnlyReadUntilTheWorkerSaysOtherwise) {
  // A job whose name an index doesn't have: found out by the first change of that name.
  RunWithoutIndex("TblBrindel_Name", "UPDATE TblBrindel SET Name = 'other' WHERE RefNo = 1");
  Database database(file_);
  EXPECT_FALSE(database.damaged());
  EXPECT_THAT(SaveName(database, "first"), ToldWithHelp());
  EXPECT_TRUE(database.damaged());
  RowSet jobs = Opened(database);
  EXPECT_EQ(jobs.Value("Name"), "other");
  jobs.SetValue("Town", "waits");
  EXPECT_THAT(FaultOf([&] { jobs.Update(); }), AllOf(HasSubstr("could not be changed"), ToldWithHelp()));
  EXPECT_THAT(FaultOf([&] { Database::Transaction transaction(database); }), ToldWithHelp());
  database.AllowWriting();
  jobs.Update();
  EXPECT_TRUE(database.damaged());
  EXPECT_NE(SaveName(database, "third"), "");
  jobs.SetValue("Town", "goes on");
  jobs.Update();
  EXPECT_EQ(jobs.StoredValue(jobs.FindColumn("Town")), "goes on");
  EXPECT_EQ(PlainSqlite(file_).Run("REINDEX"), "");
  EXPECT_EQ(SaveName(database, "mended"), "");
}

TEST_F(DamageTest, AFileIsCheckedOnceBehindACrash) {
  const fs::path journal = file_.string() + "-journal";
  const auto leave_journal = [&] { std::ofstream(journal) << std::string(1000, 'x'); };
  fs::copy_file(file_, file_.string() + ".sound");
  DamageAPage();
  EXPECT_EQ(Database(file_).notice(), "") << "a look at each page at every start would take too long";
  leave_journal();
  {
    Database database(file_);
    EXPECT_THAT(database.notice(), ToldWithHelp());
    EXPECT_TRUE(database.damaged());
    RowSet jobs = Opened(database);
    EXPECT_EQ(jobs.Value("Name"), "job");
    EXPECT_THAT(SaveName(database, "new"), ToldWithHelp());
    EXPECT_THAT(FaultOf([&] { Walk(jobs, "Memo21"); }), AllOf(HasSubstr(file_.string()), ToldWithHelp()));
  }
  fs::copy_file(file_.string() + ".sound", file_, fs::copy_options::overwrite_existing);
  leave_journal();
  Database database(file_);
  EXPECT_EQ(database.notice(), "");
  EXPECT_EQ(SaveName(database, "new"), "");
}

TEST_F(DamageTest, ADiskThatCannotBeReadIsNoDamage) {
  FailingDisk disk;
  const auto told_so =
      AllOf(HasSubstr(file_.string()), HasSubstr("the disk reported an error"), Not(HasSubstr("damaged")));
  disk.FailReads(true);
  const auto open = [&] { return Database(file_, Database::Mode::kExisting, disk.name()); };
  EXPECT_THAT(FaultOf([&] { open(); }), told_so);
  disk.FailReads(false);
  Database database = open();
  RowSet jobs = Opened(database);
  disk.FailReads(true);
  EXPECT_THAT(FaultOf([&] { Walk(jobs, "Memo21"); }), told_so);
  disk.FailReads(false);
  EXPECT_FALSE(database.damaged());
  EXPECT_EQ(SaveName(database, "goes on"), "");
}

TEST_F(DamageTest, AFileThatWasMovedOrReplacedIsToldSo) {
  const fs::path folder = folder_.path() / "Dat";
  const fs::path moved = folder_.path() / "Moved";
  const fs::path file = folder / "Tarvane.mdb";
  fs::create_directory(folder);
  fs::copy_file(file_, file);
  Database database(file);
  EXPECT_EQ(SaveName(database, "before"), "");
  fs::rename(folder, moved);
  EXPECT_THAT(SaveName(database, "away"),
              AllOf(HasSubstr("isn't there any more"), Not(HasSubstr("read-only"))));
  fs::rename(moved, folder);
  Database again(file);
  EXPECT_EQ(SaveName(again, "back"), "");
  fs::rename(file, folder / "old.mdb");
  fs::copy_file(file_, file);
  EXPECT_THAT(SaveName(again, "other"), HasSubstr("another file has been put in its place"));
}

}  // namespace
}  // namespace tarvane
