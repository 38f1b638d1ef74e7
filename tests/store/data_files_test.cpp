#include "store/data_files.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

#include <fstream>

#include "store/ordinary_user.h"
#include "store/shop_file.h"

namespace tarvane {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::EndsWith;
using namespace std::string_literals;

TEST(FindFile, MatchesNamesWithoutCase) {
  const TemporaryFolder folder;
  fs::create_directory(folder.path() / "dat");
  for (const char* name : {"dat/TARVANE.MDB", "curtainlist.dat", "Options.dat", "options.dat"})
    ReplaceFile(folder.path() / name, "x");
  const std::pair<std::string_view, const char*> cases[] = {{data_file::kJobs, "dat/TARVANE.MDB"},
                                                            {data_file::kSettings, "dat/Tarvane.ini"},
                                                            {data_file::kCurtainList, "curtainlist.dat"},
                                                            {data_file::kWizardOptions, "Options.dat"},
                                                            {"none/Dat/x.ini", "none/Dat/x.ini"}};
  for (const auto& [name, found] : cases) EXPECT_EQ(FindFile(folder.path(), name), folder.path() / found);
}

class ListFileTest : public testing::Test {
 protected:
  std::string Read(const char* name) const { return ReadFile(folder_.path() / name).value_or("(missing)"); }
  void Write(const char* name, std::string_view content) const {
    std::ofstream(folder_.path() / name, std::ios::binary) << content;
  }
  // What replacing the file by "new" ends in; "" where it ends well.
  std::string Replacing(const char* name) const {
    return FaultOf([&] { ReplaceFile(folder_.path() / name, "new"); });
  }

  TemporaryFolder folder_;
};

TEST_F(ListFileTest, IsReadAndReplacedWhole) {
  EXPECT_EQ(ReadFile(folder_.path() / "list.dat"), std::nullopt);
  for (const std::string& content : {""s, std::string(1 << 20, 'x'), "one\r\n\0\xFF"s}) {
    ReplaceFile(folder_.path() / "list.dat", content);
    EXPECT_EQ(Read("list.dat"), content);
  }
  EXPECT_FALSE(fs::exists(folder_.path() / "list.dat.new"));
  EXPECT_THAT(Replacing("none/list.dat"),
              EndsWith("none/list.dat could not be written: No such file or directory."));
}

// Only what isn't there is nothing; what can't be read is told, and stays.
TEST_F(ListFileTest, ThatCannotBeReadIsToldAndNeverReplaced) {
  fs::create_directory(folder_.path() / "folder");
  ASSERT_EQ(::mkfifo((folder_.path() / "pipe").c_str(), 0666), 0);
  fs::create_symlink("loop", folder_.path() / "loop");
  fs::create_symlink("nowhere", folder_.path() / "dangling");
  Write("secret", "kept");
  fs::permissions(folder_.path() / "secret", fs::perms(0));
  fs::permissions(folder_.path(), fs::perms(0777));
  const OrdinaryUser user;
  const std::pair<const char*, const char*> cases[] = {{"folder", "it is not a file"},
                                                       {"pipe", "it is not a file"},
                                                       {"loop", "Too many levels of symbolic links"},
                                                       {"secret", "Permission denied"}};
  for (const auto& [name, cause] : cases) {
    const std::string file = (folder_.path() / name).string();
    EXPECT_EQ(FaultOf([&] { ReadFile(file); }), file + " could not be read: " + cause + ".");
    EXPECT_EQ(Replacing(name), file + " could not be written: " + cause + ".");
  }
  for (const char* missing : {"none", "none/list.dat", "secret/list.dat", "dangling"})
    EXPECT_EQ(Read(missing), "(missing)") << missing;
  EXPECT_EQ(fs::file_size(folder_.path() / "secret"), 4U);
}

TEST_F(ListFileTest, IsForOwnerAndGroupAndKeepsItsRights) {
  const fs::path list = folder_.path() / "list.dat";
  for (const mode_t mask : {0, 002, 022, 027}) {
    const mode_t former = ::umask(mask);
    fs::remove(list);
    ReplaceFile(list, "first");
    EXPECT_EQ(fs::status(list).permissions(), fs::perms(0660 & ~mask));
    fs::permissions(list, fs::perms(0646));
    ReplaceFile(list, "second");
    EXPECT_EQ(fs::status(list).permissions(), fs::perms(0646));
    ::umask(former);
  }
}

TEST_F(ListFileTest, LinksAreWrittenThroughButNoneThatLiesBeside) {
  fs::create_directory(folder_.path() / "shared");
  Write("shared/names", "old");
  Write("victim", "mine");
  const auto link = [&](const fs::path& to, const char* at) { fs::create_symlink(to, folder_.path() / at); };
  link("shared/second", "list.dat");
  link("names", "shared/second");
  link("../victim", "shared/names.new");
  link(folder_.path() / "made", "dangling");
  for (const char* name : {"list.dat", "dangling"}) {
    EXPECT_EQ(Replacing(name), "");
    EXPECT_TRUE(fs::is_symlink(folder_.path() / name));
  }
  EXPECT_TRUE(fs::is_symlink(folder_.path() / "shared/second"));
  EXPECT_FALSE(fs::is_symlink(folder_.path() / "shared/names"));
  EXPECT_EQ(Read("shared/names"), "new");
  EXPECT_EQ(Read("made"), "new");
  EXPECT_EQ(Read("victim"), "mine");
}

TEST_F(ListFileTest, WhatAKilledRunLeftBesideIsNoHindrance) {
  Write("plain.new", "left by a run that was killed, longer than what comes");
  EXPECT_EQ(Replacing("plain"), "");
  EXPECT_EQ(Read("plain"), "new");
  EXPECT_FALSE(fs::exists(folder_.path() / "plain.new"));
  fs::create_directory(folder_.path() / "plain.new");
  EXPECT_THAT(Replacing("plain"), EndsWith("plain could not be written: File exists."));
}

TEST(SplitLines, TakesBothLineEnds) {
  EXPECT_THAT(SplitLines(""), ElementsAre());
  EXPECT_THAT(SplitLines("a\r\nb\n c \r\n\r\n"), ElementsAre("a", "b", " c ", ""));
  EXPECT_THAT(SplitLines("a\nb"), ElementsAre("a", "b"));
  EXPECT_THAT(SplitLines("\n"), ElementsAre(""));
  EXPECT_THAT(SplitLines("a\rb\r\r\n"), ElementsAre("a\rb\r"));
  EXPECT_EQ(JoinLines({"a", "", "b c"}), "a\r\n\r\nb c\r\n");
  EXPECT_EQ(JoinLines({}), "");
}

TEST(ReadSequentialValues, SplitsAtCommasAndLineEnds) {
  EXPECT_THAT(ReadSequentialValues("", 50), ElementsAre());
  EXPECT_THAT(ReadSequentialValues("1,2\r\n 3 ,\"a, b\"\n\n\"c\r\nd\" ,e", 50),
              ElementsAre("1", "2", "3", "a, b", "", "c\r\nd", "e"));
  EXPECT_THAT(ReadSequentialValues("a,\r\nb,", 50), ElementsAre("a", "", "b", ""));
  EXPECT_THAT(ReadSequentialValues("1\n2\n3\n", 2), ElementsAre("1", "2"));
  EXPECT_THAT(ReadSequentialValues("\" kept \"\n\"open", 50), ElementsAre(" kept ", "open"));
  EXPECT_THAT(ReadSequentialValues("x", 0), ElementsAre());
}

TEST(ProfileValue, IsReadWithoutRegardToCase) {
  const std::string text =
      "\xEF\xBB\xBF; settings\r\nCheckList1=outside\r\n[Other]\r\nCheckList1=wrong\r\n\r\n [CHECKLIST] \r\n"
      ";CheckList1=comment\r\nCheckList1 =  Deposit taken  \r\nchecklist2=\"quoted "
      "\"\nCheckList3='\nCheckList4==a=b\n"
      "CheckList5=\nno equals\nCheckList1=second\n[Last]\nCheckList6=wrong";
  const std::pair<const char*, const char*> cases[] = {{"checklist1", "Deposit taken"},
                                                       {"CheckList2", "quoted "},
                                                       {"CheckList3", "'"},
                                                       {"CheckList4", "=a=b"},
                                                       {"CheckList5", ""},
                                                       {"CheckList6", ""},
                                                       {"no equals", ""}};
  for (const auto& [key, value] : cases) EXPECT_EQ(ReadProfileValue(text, "CheckList", key), value) << key;
  EXPECT_EQ(ReadProfileValue(text, "None", "CheckList1"), "");
  EXPECT_EQ(ReadProfileValue("\xEF\xBB\xBF[A]\nk=v", "a", "K"), "v");
}

TEST(ProfileValue, HasAtMost254Characters) {
  const std::string head = "[S]\r\nk=";
  EXPECT_EQ(ReadProfileValue(head + std::string(300, 'x'), "S", "k"), std::string(254, 'x'));
  EXPECT_EQ(ReadProfileValue(head + std::string(253, 'x') + "éé", "S", "k"), std::string(253, 'x') + "é");
  EXPECT_EQ(ReadProfileValue(head + std::string(252, 'x') + "éé", "S", "k"), std::string(252, 'x') + "éé");
}

TEST(ProfileValue, IsSetAndAllElseStays) {
  const std::pair<const char*, const char*> cases[] = {
      {"", "[S]\r\nKey=new\r\n"},
      {"[s]\nkey = old\n; end", "[s]\nkey =new\n; end"},
      {"[S]\r\nkey=old\r\nb=1\r\n", "[S]\r\nkey=new\r\nb=1\r\n"},
      {"[S]\r\na=1\r\n\r\n[T]\r\nkey=t\r\n", "[S]\r\na=1\r\nKey=new\r\n\r\n[T]\r\nkey=t\r\n"},
      {"[S]", "[S]\r\nKey=new\r\n"},
      {"a=1", "a=1\r\n[S]\r\nKey=new\r\n"},
      {"[T]\nkey=t", "[T]\nkey=t\r\n[S]\r\nKey=new\r\n"},
  };
  for (const auto& [text, expected] : cases) {
    const std::string changed = WithProfileValue(text, "S", "Key", "new");
    EXPECT_EQ(changed, expected);
    EXPECT_EQ(ReadProfileValue(changed, "S", "Key"), "new");
    EXPECT_EQ(WithProfileValue(changed, "S", "Key", "new"), changed);
  }
  EXPECT_EQ(ReadProfileValue(WithProfileValue("", "S", "k", "a\r\nb"), "S", "k"), "a  b");
}

}  // namespace
}  // namespace tarvane
