// Files of every version that landed, of later ones, and of other programs; and what other programs may do.
#include <gmock/gmock.h>

#include <set>

#include "store/connection.h"
#include "store/data_files.h"
#include "store/failing_disk.h"
#include "store/ordinary_user.h"
#include "store/plain_sqlite.h"
#include "store/shop_file.h"

namespace tarvane {
namespace {

using testing::AllOf;
using testing::HasSubstr;
namespace fs = std::filesystem;

// Behind its first hundred bytes a database holds no counters of its changes.
constexpr std::size_t kHead = 100;

std::string ContentOf(const fs::path& file) { return ReadFile(file).value(); }

class FileVersionTest : public ShopFile {
 protected:
  FileVersionTest() : copy_(file_.string() + ".version-0") { MakeVersion(0); }

  // As the program of that version laid it down, with four jobs.
  void MakeVersion(int version, const std::string& more = "") const {
    fs::remove(file_);
    Connection connection(file_, Database::Mode::kCreate, "");
    const fs::path versions = fs::path(TARVANE_TEST_DATA) / "versions";
    connection.Execute(ContentOf(versions / ("version-" + std::to_string(version) + ".sql")) + more);
  }

  static void ExpectJobs(Database& database) {
    RowSet jobs = Opened(database);
    for (const auto& [source, keys] : std::vector<std::pair<std::string, std::vector<std::string>>>{
             {"TblBrindel", {"1", "2", "3", "4"}},
             {"SELECT * FROM TblBrindel WHERE Name LIKE 'smi*'", {"1", "3"}},
             {"SELECT * FROM TblBrindel WHERE Name LIKE 'é*'", {"2", "4"}},
             {"SELECT * FROM TblBrindel WHERE Telephone LIKE '*4'", {"4"}}}) {
      jobs.Open(database, source);
      EXPECT_EQ(Walk(jobs, "RefNo"), keys) << source;
    }
    jobs.MoveLast();
    EXPECT_EQ(jobs.Value("5T(3)"), "last");
    EXPECT_EQ(Opened(database, "Admin").Value("LastOrderNo"), "1004");
  }

  std::string Marks() const { return PlainSqlite(file_).Run("PRAGMA application_id; PRAGMA user_version"); }

  const std::string ours_ = std::to_string(kApplicationId) + "|" + std::to_string(kSchemaVersion) + "|";
  fs::path copy_;
};

TEST_F(FileVersionTest, EveryOlderVersionIsBroughtUpBehindACopy) {
  const auto schema = [](const fs::path& file) {
    return PlainSqlite(file).Run("SELECT type, name, sql FROM sqlite_schema ORDER BY type, name");
  };
  const fs::path fresh = folder_.path() / "fresh.mdb";
  {
    Database database(fresh, Database::Mode::kCreate);
    CreateJobTables(database);
  }
  for (int version = 0; version < kSchemaVersion; ++version) {
    MakeVersion(version);
    const std::string before = ContentOf(file_);
    const std::string copy = file_.string() + ".version-" + std::to_string(version);
    {
      Database database(file_);
      EXPECT_THAT(database.notice(), AllOf(HasSubstr(file_.string() + " has been brought up from version " +
                                                     std::to_string(version) + " to"),
                                           HasSubstr(copy)));
      ExpectJobs(database);
    }
    EXPECT_EQ(Marks(), ours_);
    EXPECT_TRUE(ContentOf(copy).substr(kHead) == before.substr(kHead));
    EXPECT_EQ(schema(file_), schema(fresh));
    EXPECT_EQ(Database(file_).notice(), "");
  }
  const std::string before = ContentOf(copy_);
  // The next one of the same version doesn't take the place of the first copy.
  MakeVersion(0);
  EXPECT_THAT(Database(file_).notice(), HasSubstr(copy_.string() + "-2."));
  EXPECT_TRUE(ContentOf(copy_).substr(kHead) == before.substr(kHead));
}

TEST_F(FileVersionTest, TablesAndColumnsThatAreMissingAreAdded) {
  MakeVersion(
      0, "DROP TABLE TblLetters; ALTER TABLE TblBrindel DROP COLUMN Check12; DROP INDEX TblBrindel_RefNo;");
  Database database(file_);
  EXPECT_NE(database.notice(), "");
  ExpectJobs(database);
  EXPECT_EQ(Opened(database).Value("Check12"), "0");
  EXPECT_TRUE(database.HasTable("TblLetters"));
  EXPECT_EQ(PlainSqlite(file_).Run("SELECT count(*) FROM sqlite_schema WHERE name = 'TblBrindel_RefNo'"),
            "1|");
}

TEST_F(FileVersionTest, NewerAndForeignFilesAreRefused) {
  const std::string newer =
      "PRAGMA application_id=" + std::to_string(kApplicationId) + "; PRAGMA user_version=99";
  for (const auto& [sql, cause] :
       {std::pair(newer.c_str(), "a newer Tarvane"), std::pair("PRAGMA application_id=7", "another program"),
        std::pair("PRAGMA user_version=1", "another program")}) {
    MakeVersion(0);
    PlainSqlite(file_).Run(sql);
    const std::string before = ContentOf(file_);
    EXPECT_THAT(FaultOf([&] { Database database(file_); }),
                AllOf(HasSubstr(file_.string()), HasSubstr(cause)));
    EXPECT_EQ(ContentOf(file_), before);
    EXPECT_FALSE(fs::exists(copy_));
  }
}

TEST_F(FileVersionTest, AnOlderFileThatMayOnlyBeReadIsReadWhereItHasAll) {
  const std::string expected = file_.string() + " couldn't be brought up from version 0 to version 2";
  for (const auto& [file, folder] : {std::pair(0444, 0777), std::pair(0666, 0555), std::pair(0444, 0555)}) {
    fs::permissions(file_, fs::perms(file));
    fs::permissions(folder_.path(), fs::perms(folder));
    {
      const OrdinaryUser user;
      Database database(file_);
      EXPECT_THAT(database.notice(), HasSubstr(expected)) << file << " " << folder;
      ExpectJobs(database);
      RowSet jobs = Opened(database);
      EXPECT_THAT(FaultOf([&] { Save(jobs, {{"Name", "new"}}); }), HasSubstr("could not be changed"));
    }
    fs::permissions(folder_.path(), fs::perms(0777));
    EXPECT_FALSE(fs::exists(copy_));
  }
  EXPECT_EQ(Marks(), "0|0|");
  MakeVersion(0, "ALTER TABLE TblBrindel DROP COLUMN Check12;");
  fs::permissions(file_, fs::perms(0444));
  const OrdinaryUser user;
  EXPECT_THAT(FaultOf([&] { Database database(file_); }),
              AllOf(HasSubstr("read-only"), testing::Not(HasSubstr("couldn't be brought up"))));
}

TEST_F(FileVersionTest, AnUpgradeThatFailsLeavesTheFileAsItWas) {
  FailingDisk disk;
  bool failed = true;
  for (int change = 1; failed; ++change) {
    MakeVersion(0);
    fs::remove(copy_);
    disk.Fail(change, change % 2 == 0 ? FailingDisk::Failure::kFull : FailingDisk::Failure::kError,
              change % 3 == 0);
    const std::string fault = FaultOf([&] {
      Database database(file_, Database::Mode::kExisting, disk.name());
      ExpectJobs(database);
    });
    failed = disk.failed();
    disk.Heal();
    { const Connection look(file_, Database::Mode::kExisting, ""); }
    EXPECT_TRUE(Marks() == ours_ || Marks() == "0|0|") << change;
    EXPECT_EQ(fs::exists(copy_), Marks() == ours_) << change << " " << fault;
    fs::remove(copy_);
    Database database(file_);
    ExpectJobs(database);
    ASSERT_LT(change, 500);
  }
}

TEST_F(FileVersionTest, OtherProgramsCheckRepairAndChange) {
  Database database(file_);
  PlainSqlite other(file_);
  EXPECT_EQ(other.Run("PRAGMA integrity_check"), "ok|");
  EXPECT_EQ(
      other.Run("UPDATE TblBrindel SET Name = 'Ünal' WHERE RefNo = 3; REINDEX; VACUUM;"
                "INSERT INTO TblBrindel (Name) VALUES ('ünalİ'); DELETE FROM TblBrindel WHERE RefNo = 1"),
      "");
  EXPECT_EQ(other.Run("PRAGMA integrity_check"), "ok|");
  for (const auto& [source, keys] : std::vector<std::pair<std::string, std::vector<std::string>>>{
           {"SELECT * FROM TblBrindel WHERE Name LIKE 'ü*'", {"3", "5"}},
           {"SELECT * FROM TblBrindel WHERE Name LIKE 'smi*'", {}},
           {"TblBrindel", {"2", "3", "4", "5"}}}) {
    RowSet jobs = Opened(database, source);
    EXPECT_EQ(Walk(jobs, "RefNo"), keys) << source;
  }
}

// The databases that came with a version are made beside jobs of an older one, and not where one went
// missing.
TEST_F(FileVersionTest, FilesThatCameLaterAreMadeForOlderShops) {
  const fs::path dat = folder_.path() / "Dat";
  fs::create_directory(dat);
  const auto files = [&dat] {
    std::set<std::string> names;
    for (const auto& entry : fs::directory_iterator(dat)) names.insert(entry.path().filename());
    return names;
  };
  const auto place_jobs = [&](int version) {
    MakeVersion(version);
    fs::rename(file_, dat / "Tarvane.mdb");
  };
  place_jobs(1);
  const std::string theirs = "kept as it is";
  ReplaceFile(dat / "Items.mdb", theirs);
  MakeFilesOfLaterVersions(folder_.path());
  EXPECT_EQ(files(), (std::set<std::string>{"Items.mdb", "Popup1.mdb", "Products.mdb", "Suppliers2.mdb",
                                            "Tarvane.mdb", "Templates.mdb"}));
  EXPECT_EQ(ContentOf(dat / "Items.mdb"), theirs);
  for (const auto& [file, table] :
       {std::pair("Popup1.mdb", "PopUp1"), std::pair("Products.mdb", "Products"),
        std::pair("Suppliers2.mdb", "Suppliers"), std::pair("Templates.mdb", "Templates")}) {
    Database database(dat / file);
    EXPECT_EQ(database.notice(), "");
    EXPECT_EQ(Opened(database, table).RecordCount(), 0);
  }
  // The jobs are of this version by now, or aren't ours: what is missing stays missing.
  Database(dat / "Tarvane.mdb");
  fs::remove(dat / "Products.mdb");
  MakeFilesOfLaterVersions(folder_.path());
  EXPECT_FALSE(fs::exists(dat / "Products.mdb"));
  for (const char* marks : {"PRAGMA application_id=7; PRAGMA user_version=1", "PRAGMA user_version=99"}) {
    place_jobs(1);
    PlainSqlite(dat / "Tarvane.mdb").Run(marks);
    MakeFilesOfLaterVersions(folder_.path());
    EXPECT_FALSE(fs::exists(dat / "Products.mdb")) << marks;
  }
  place_jobs(0);
  fs::permissions(dat, fs::perms(0555));
  {
    const OrdinaryUser user;
    MakeFilesOfLaterVersions(folder_.path());
  }
  fs::permissions(dat, fs::perms(0777));
  EXPECT_FALSE(fs::exists(dat / "Products.mdb"));
}

}  // namespace
}  // namespace tarvane
