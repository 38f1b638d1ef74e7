#include "store/data_files.h"

#include <gmock/gmock.h>

#include <fstream>

#include "store/shop_file.h"

namespace tarvane {
namespace {

using testing::ElementsAre;

TEST(FindFile, MatchesNamesWithoutCase) {
  const TemporaryFolder folder;
  namespace fs = std::filesystem;
  fs::create_directory(folder.path() / "dat");
  ReplaceFile(folder.path() / "dat" / "TARVANE.MDB", "x");
  ReplaceFile(folder.path() / "curtainlist.dat", "x");
  ReplaceFile(folder.path() / "Options.dat", "exact");
  ReplaceFile(folder.path() / "options.dat", "other");
  EXPECT_EQ(FindFile(folder.path(), data_file::kJobs), folder.path() / "dat" / "TARVANE.MDB");
  EXPECT_EQ(FindFile(folder.path(), data_file::kSettings), folder.path() / "dat" / "Tarvane.ini");
  EXPECT_EQ(FindFile(folder.path(), data_file::kCurtainList), folder.path() / "curtainlist.dat");
  EXPECT_EQ(FindFile(folder.path(), data_file::kWizardOptions), folder.path() / "Options.dat");
  EXPECT_EQ(FindFile(folder.path() / "none", "Dat/x.ini"), folder.path() / "none" / "Dat" / "x.ini");
}

TEST(ReplaceFile, PutsTheNewContentInPlace) {
  const TemporaryFolder folder;
  const std::filesystem::path file = folder.path() / "list.dat";
  EXPECT_EQ(ReadFile(file), std::nullopt);
  for (const std::string& content :
       {std::string("one\r\n"), std::string(), std::string(1 << 20, 'x'), std::string("\0\xFF", 2)}) {
    ReplaceFile(file, content);
    EXPECT_EQ(ReadFile(file), content);
  }
  std::filesystem::permissions(file, std::filesystem::perms(0640));
  ReplaceFile(file, "kept");
  EXPECT_EQ(std::filesystem::status(file).permissions(), std::filesystem::perms(0640));
  EXPECT_FALSE(std::filesystem::exists(folder.path() / "list.dat.new"));
  EXPECT_THROW(ReplaceFile(folder.path() / "none" / "list.dat", "x"), Fault);
  EXPECT_EQ(ReadFile(folder.path()), std::nullopt) << "a folder is no file";
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

TEST(ProfileValue, IsCutAtACharacter) {
  const std::string head = "[S]\r\nk=";
  EXPECT_EQ(ReadProfileValue(head + std::string(300, 'x'), "S", "k"), std::string(254, 'x'));
  EXPECT_EQ(ReadProfileValue(head + std::string(253, 'x') + "éé", "S", "k"), std::string(253, 'x'));
  EXPECT_EQ(ReadProfileValue(head + std::string(252, 'x') + "éé", "S", "k"), std::string(252, 'x') + "é");
}

TEST(ProfileValue, IsSetAndAllElseStays) {
  struct Case {
    const char* text;
    const char* expected;
  };
  const Case cases[] = {
      {"", "[S]\r\nKey=new\r\n"},
      {"[s]\nkey = old\n; end", "[s]\nkey =new\n; end"},
      {"[S]\r\nkey=old\r\nb=1\r\n", "[S]\r\nkey=new\r\nb=1\r\n"},
      {"[S]\r\na=1\r\n\r\n[T]\r\nkey=t\r\n", "[S]\r\na=1\r\nKey=new\r\n\r\n[T]\r\nkey=t\r\n"},
      {"[S]", "[S]\r\nKey=new\r\n"},
      {"a=1", "a=1\r\n[S]\r\nKey=new\r\n"},
      {"[T]\nkey=t", "[T]\nkey=t\r\n[S]\r\nKey=new\r\n"},
  };
  for (const Case& each : cases) {
    const std::string changed = WithProfileValue(each.text, "S", "Key", "new");
    EXPECT_EQ(changed, each.expected);
    EXPECT_EQ(ReadProfileValue(changed, "S", "Key"), "new");
    EXPECT_EQ(WithProfileValue(changed, "S", "Key", "new"), changed);
  }
  EXPECT_EQ(ReadProfileValue(WithProfileValue("", "S", "k", "a\r\nb"), "S", "k"), "a  b");
}

}  // namespace
}  // namespace tarvane
