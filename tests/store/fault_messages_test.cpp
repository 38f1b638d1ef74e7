// What goes wrong with a file is told with the file and the cause.
#include <gmock/gmock.h>
#include <grp.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include <csignal>
#include <fstream>

#include "store/data_files.h"
#include "store/shop_file.h"

namespace tarvane {
namespace {

using testing::AllOf;
using testing::HasSubstr;

// Runs `step` in a process of its own, without the rights of an administrator, and gives its text.
template <typename Step>
std::string AsOrdinaryUser(Step step) {
  int ends[2];
  if (::pipe(ends) != 0) return "no pipe";
  const pid_t child = ::fork();
  if (child == 0) {
    constexpr unsigned kNobody = 65534;
    const bool ordinary = ::geteuid() != 0 ||
                          (::setgroups(0, nullptr) == 0 && ::setgid(kNobody) == 0 && ::setuid(kNobody) == 0);
    const std::string text = ordinary ? step() : "no other user";
    const auto written = ::write(ends[1], text.data(), text.size());
    ::_exit(written == static_cast<ssize_t>(text.size()) ? 0 : 1);
  }
  ::close(ends[1]);
  std::string text;
  char buffer[4096];
  for (ssize_t size = 0; (size = ::read(ends[0], buffer, sizeof buffer)) > 0;)
    text.append(buffer, static_cast<std::size_t>(size));
  ::close(ends[0]);
  int status = 0;
  ::waitpid(child, &status, 0);
  return status == 0 ? text : "failed: " + text;
}

class FaultMessagesTest : public ShopFile {
 protected:
  static std::string Opening(const std::filesystem::path& file) {
    return FaultOf([&] { Database database(file); });
  }

  std::string Saving() const {
    return FaultOf([&] {
      Database database(file_);
      RowSet jobs;
      jobs.Open(database, "TblBrindel");
      jobs.SetValue("Name", "changed");
      jobs.Update();
    });
  }

  void Write(const char* name, std::string_view content) const {
    std::ofstream(folder_.path() / name, std::ios::binary) << content;
  }
};

TEST_F(FaultMessagesTest, FilesThatAreNoDatabase) {
  Write("text.mdb", std::string(5000, 'x'));
  Write("short.mdb", "x");
  Write("empty.mdb", "");
  std::filesystem::create_directory(folder_.path() / "folder.mdb");
  const std::pair<const char*, const char*> cases[] = {
      {"missing.mdb", "the file is missing"}, {"no/such/folder.mdb", "the file is missing"},
      {"text.mdb", "it is not a database"},   {"short.mdb", "it is not a database"},
      {"empty.mdb", "it is not a database"},  {"folder.mdb", "it is not a file"},
  };
  for (const auto& [name, cause] : cases) {
    const std::filesystem::path file = folder_.path() / name;
    EXPECT_THAT(Opening(file), AllOf(HasSubstr(file.string() + " could not be opened"), HasSubstr(cause)));
  }
  EXPECT_FALSE(std::filesystem::exists(folder_.path() / "missing.mdb"));
  EXPECT_EQ(std::filesystem::file_size(folder_.path() / "empty.mdb"), 0U);
}

TEST_F(FaultMessagesTest, ADamagedFile) {
  AddJobs(std::vector<std::string>(200, std::string(200, 'x')));
  const auto size = std::filesystem::file_size(file_);
  {
    std::fstream file(file_, std::ios::in | std::ios::out | std::ios::binary);
    for (auto at = static_cast<std::streamoff>(4096 * 3); at < static_cast<std::streamoff>(size); at += 512) {
      file.seekp(at);
      file << std::string(300, '\xAB');
    }
  }
  const std::string told = FaultOf([&] {
    Database database(file_);
    RowSet jobs;
    jobs.Open(database, "TblBrindel");
    Walk(jobs, "Name");
    jobs.Open(database, "SELECT * FROM TblBrindel WHERE Name LIKE '*'");
    Walk(jobs, "Name");
  });
  EXPECT_THAT(told, AllOf(HasSubstr(file_.string()), HasSubstr("the file is damaged")));
}

TEST_F(FaultMessagesTest, AFileOrFolderThatMayOnlyBeRead) {
  AddJobs({"one"});
  namespace fs = std::filesystem;
  const auto expect_told = [&](const char* step) {
    const std::string told = AsOrdinaryUser([&] { return Saving(); });
    EXPECT_THAT(told, AllOf(HasSubstr(file_.string() + " could not be changed"), HasSubstr("read-only")))
        << step;
    const std::string read = AsOrdinaryUser([&] {
      Database database(file_);
      RowSet jobs;
      jobs.Open(database, "TblBrindel");
      return jobs.Value("Name");
    });
    EXPECT_EQ(read, "one") << step;
  };
  fs::permissions(folder_.path(), fs::perms(0777));
  fs::permissions(file_, fs::perms(0444));
  expect_told("file");
  fs::permissions(file_, fs::perms(0666));
  fs::permissions(folder_.path(), fs::perms(0555));
  expect_told("folder with a journal of someone else");
  fs::permissions(folder_.path(), fs::perms(0777));
  fs::remove(file_.string() + "-journal");
  fs::permissions(folder_.path(), fs::perms(0555));
  expect_told("folder");
  const fs::path list = folder_.path() / "list.dat";
  EXPECT_THAT(AsOrdinaryUser([&] { return FaultOf([&] { ReplaceFile(list, "a\r\n"); }); }),
              AllOf(HasSubstr(list.string() + " could not be written"), HasSubstr("Permission denied")));
  fs::permissions(file_, fs::perms(0));
  EXPECT_THAT(AsOrdinaryUser([&] { return Opening(file_); }),
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
  const std::filesystem::path list = folder_.path() / "list.dat";
  ReplaceFile(list, "old\r\n");
  std::filesystem::permissions(folder_.path(), std::filesystem::perms(0777));
  const std::string told = AsOrdinaryUser([&] {
    // A limit on the size of files stands for the full disk.
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{1000, 1000};
    if (::setrlimit(RLIMIT_FSIZE, &limit) != 0) return std::string("no limit");
    return FaultOf([&] { ReplaceFile(list, std::string(5000, 'x')); });
  });
  EXPECT_THAT(told, AllOf(HasSubstr(list.string() + " could not be written"), HasSubstr("too large")));
  EXPECT_EQ(ReadFile(list), "old\r\n");
  EXPECT_FALSE(std::filesystem::exists(folder_.path() / "list.dat.new"));
}

}  // namespace
}  // namespace tarvane
