// What goes wrong with a file is told with the file and the cause.
#include <gmock/gmock.h>
#include <sys/resource.h>

#include <csignal>

#include "store/data_files.h"
#include "store/ordinary_user.h"
#include "store/shop_file.h"

namespace tarvane {
namespace {

using testing::AllOf;
using testing::HasSubstr;
namespace fs = std::filesystem;

class FaultMessagesTest : public ShopFile {
 protected:
  static std::string Opening(const fs::path& file) {
    return FaultOf([&] { Database database(file); });
  }

  std::string Saving() const {
    return FaultOf([&] {
      Database database(file_);
      RowSet jobs = Opened(database);
      Save(jobs, {{"Name", "changed"}});
    });
  }
};

TEST_F(FaultMessagesTest, FilesThatAreNoDatabase) {
  ReplaceFile(folder_.path() / "text.mdb", std::string(5000, 'x'));
  ReplaceFile(folder_.path() / "short.mdb", "x");
  ReplaceFile(folder_.path() / "empty.mdb", "");
  fs::create_directory(folder_.path() / "folder.mdb");
  const std::pair<const char*, const char*> cases[] = {
      {"missing.mdb", "the file is missing"}, {"no/such/folder.mdb", "the file is missing"},
      {"text.mdb", "it is not a database"},   {"short.mdb", "it is not a database"},
      {"empty.mdb", "it is not a database"},  {"folder.mdb", "it is not a file"},
  };
  for (const auto& [name, cause] : cases) {
    const fs::path file = folder_.path() / name;
    EXPECT_THAT(Opening(file), AllOf(HasSubstr(file.string() + " could not be opened"), HasSubstr(cause)));
  }
  EXPECT_FALSE(fs::exists(folder_.path() / "missing.mdb"));
  EXPECT_EQ(fs::file_size(folder_.path() / "empty.mdb"), 0U);
}

TEST_F(FaultMessagesTest, AFileOrFolderThatMayOnlyBeRead) {
  AddJobs({"one"});
  const fs::path list = folder_.path() / "list.dat";
  const auto allow = [&](int file, int folder) {
    fs::permissions(folder_.path(), fs::perms(0777));
    fs::permissions(file_, fs::perms(file));
    fs::permissions(folder_.path(), fs::perms(folder));
  };
  for (const auto& [file, folder, journal] :
       {std::tuple(0444, 0777, true), std::tuple(0666, 0555, true), std::tuple(0666, 0555, false)}) {
    if (!journal) fs::remove(file_.string() + "-journal");
    allow(file, folder);
    const OrdinaryUser user;
    EXPECT_THAT(Saving(), AllOf(HasSubstr(file_.string() + " could not be changed"), HasSubstr("read-only")))
        << file << " " << journal;
    Database database(file_);
    EXPECT_EQ(Opened(database).Value("Name"), "one");
  }
  allow(0, 0555);
  const OrdinaryUser user;
  EXPECT_THAT(FaultOf([&] { ReplaceFile(list, "a\r\n"); }),
              AllOf(HasSubstr(list.string() + " could not be written"), HasSubstr("Permission denied")));
  EXPECT_THAT(Opening(file_),
              HasSubstr(file_.string() + " could not be opened: the right to use the file is missing"));
}

TEST_F(FaultMessagesTest, AFileInUseByAnotherProgram) {
  AddJobs({"one"});
  Database other(file_);
  other.Execute("BEGIN EXCLUSIVE");
  EXPECT_THAT(Opening(file_),
              AllOf(HasSubstr(file_.string() + " could not be opened"), HasSubstr("in use by another")));
  other.Execute("ROLLBACK; BEGIN IMMEDIATE");
  EXPECT_THAT(Saving(),
              AllOf(HasSubstr(file_.string() + " could not be changed"), HasSubstr("in use by another")));
  other.Execute("ROLLBACK");
  EXPECT_EQ(Saving(), "");
}

TEST_F(FaultMessagesTest, AFullDiskLeavesTheOldListFile) {
  const fs::path list = folder_.path() / "list.dat";
  ReplaceFile(list, "old\r\n");
  // A limit on the size of files stands for the full disk.
  std::signal(SIGXFSZ, SIG_IGN);
  rlimit usual;
  ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &usual), 0);
  const rlimit small{1000, usual.rlim_max};
  ::setrlimit(RLIMIT_FSIZE, &small);
  const std::string told = FaultOf([&] { ReplaceFile(list, std::string(5000, 'x')); });
  ::setrlimit(RLIMIT_FSIZE, &usual);
  EXPECT_THAT(told, AllOf(HasSubstr(list.string() + " could not be written"), HasSubstr("too large")));
  EXPECT_EQ(ReadFile(list), "old\r\n");
  EXPECT_FALSE(fs::exists(list.string() + ".new"));
}

}  // namespace
}  // namespace tarvane
