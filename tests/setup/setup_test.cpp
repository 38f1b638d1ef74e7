#include "setup/setup.h"

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <fstream>
#include <string>
#include <vector>

#include "setup/setup_folder.h"
#include "shop/shop.h"
#include "shop/shop_lock.h"
#include "store/data_files.h"
#include "store/database.h"
#include "store/row_set.h"
#include "store/table_definition.h"

namespace tarvane::setup {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

void Write(const fs::path& file, const std::string& text) {
  fs::create_directories(file.parent_path());
  std::ofstream(file, std::ios::binary) << text;
}

TEST_F(SetupTest, LaysDownEveryTable) {
  ASSERT_EQ(Run(), 0) << err_;
  for (const TableDefinition& table : TableDefinitions()) {
    Database database(shop_ / table.file);
    EXPECT_TRUE(database.HasTable(table.name)) << table.name;
    RowSet rows;
    rows.Open(database, table.name);
    ASSERT_EQ(rows.ColumnCount(), static_cast<int>(table.columns.size())) << table.name;
    for (int i = 0; i < rows.ColumnCount(); ++i) {
      EXPECT_EQ(rows.ColumnName(i), table.columns[static_cast<std::size_t>(i)].name);
    }
  }
}

TEST_F(SetupTest, SettingsRowsHoldWhatTheProgramStartsWith) {
  ASSERT_EQ(Run(), 0) << err_;
  Database database(shop_ / data_file::kJobs);
  const std::array<const char*, 3> cases[] = {
      {"Admin", "LastOrderNo", "1000"},
      {"Admin", "Ext1", "0"},
      {"Admin", "Ext2", "20"},
      {"Admin", "LastEstimateNo", "50"},
      {"Admin", "VatAmount", "20"},
      {"Admin", "LastInvoiceNo", "0"},
      {"Admin", "CurrencySymbol", "£"},
      {"Admin", "CompanyName", "Pennyfold Curtains and Blinds"},
      {"tblCompany", "Company Name", "Pennyfold Curtains and Blinds"},
      {"tblCompany", "First Name", "Ruth"},
      {"tblCompany", "Town", "Marlowick"},
      {"tblCompany", "County", "Ashfordshire"},
      {"tblCompany", "Post Code", "ZZ9 4PF"},
      {"tblCompany", "Telephone No", "01632 960140"},
      {"tblCompany", "Vat Number", "000 0000 00"},
      {"TblLetters", "TxtLetter(5)",
       "We look forward to hearing from you.\r\n\r\nYours sincerely,\r\n\r\n\r\nRuth Pennyfold\r\n"
       "Pennyfold Curtains and Blinds\r\n"},
      {"TblLetters", "TxtLetter(8)", ""},
  };
  for (const auto& [table, column, value] : cases) {
    RowSet rows;
    rows.Open(database, table);
    ASSERT_EQ(rows.RecordCount(), 1) << table;
    EXPECT_EQ(rows.Value(column), value) << table << " " << column;
  }
  RowSet jobs;
  jobs.Open(database, kJobTable);
  EXPECT_EQ(jobs.RecordCount(), 0);
  RowSet letters;
  letters.Open(database, "TblLetters");
  for (int i = 0; i < 8; ++i)
    EXPECT_THAT(letters.Value(fmt::format("TxtLetter({})", i)), EndsWith("\r\n")) << i;
}

TEST_F(SetupTest, SettingsFilesAndListsAreCompleteWithCrLf) {
  ASSERT_EQ(Run(), 0) << err_;
  const auto files = Contents(shop_);
  const auto values = ReadSequentialValues(files.at("Dat/Tarvane.ini"), 100);
  ASSERT_THAT(values, SizeIs(50));
  EXPECT_EQ(values[11], "20");
  EXPECT_EQ(values[14], "CASH");
  EXPECT_EQ(values[21], "");
  for (int i = 1; i <= 12; ++i) {
    const std::string key = fmt::format("CheckList{}", i);
    EXPECT_NE(ReadProfileValue(files.at("checklist.ini"), "CheckList", key), "") << key;
  }
  EXPECT_THAT(SplitLines(files.at("Curtainlist.Dat")),
              ElementsAre("Box Pleat", "Cafe", "Eye Lets", "Goblet Pleat", "Hand Pencil Pleat",
                          "Hand Standard Tape", "Hourglass", "Machine Pencil Pleat", "Pencil Pleat",
                          "Pinch Pleat", "Slotted Heading", "Tab Top"));
  const std::pair<const char*, std::size_t> lines[] = {
      {"Options.dat", 8}, {"SalesPersonslist.Dat", 3}, {"Checklist.Dat", 12}};
  for (const auto& [name, count] : lines) EXPECT_THAT(SplitLines(files.at(name)), SizeIs(count)) << name;
  EXPECT_TRUE(files.contains("Fonts/Helvetica.afm"));
  for (const auto& [name, content] : files) {
    const bool exact = name.starts_with("Fonts/") || name.ends_with(".txt") || name.ends_with(".rtf");
    if (exact) {
      EXPECT_EQ(content, ReadFile(fs::path(TARVANE_DATA_DIR) / name)) << name;
    }
    if (exact || name.find(".mdb") != std::string::npos) continue;
    EXPECT_EQ(content, JoinLines(SplitLines(content))) << name;
  }
}

// Line ends stand between the lines: one behind the last would be a line of its own to those who split there.
TEST_F(SetupTest, BarcodeTablesHaveTheirLayoutToTheByte) {
  ASSERT_EQ(Run(), 0) << err_;
  const auto files = Contents(shop_);
  EXPECT_THAT(files.at("char.txt"), testing::StartsWith("0\t \r\n1\t!\r\n2\t\"\r\n"));
  EXPECT_THAT(files.at("char.txt"), EndsWith("\r\n63\t_\r\n103\t<\r\n106\t>"));
  EXPECT_THAT(files.at("binary.txt"), testing::StartsWith("11011001100\r\n"));
  EXPECT_THAT(files.at("binary.txt"), EndsWith("\r\n1100011101011"));
  EXPECT_THAT(SplitLines(files.at("binary.txt")), SizeIs(107));
}

TEST_F(SetupTest, TellsWhatItCreatedAndWhatItKept) {
  ASSERT_EQ(Run(), 0) << err_;
  EXPECT_THAT(out_, HasSubstr("Dat/Tarvane.mdb: created\n"));
  EXPECT_THAT(out_, Not(HasSubstr("kept")));
  const auto laid_down = Contents(shop_);

  fs::remove(shop_ / "Options.dat");
  ASSERT_EQ(Run(), 0) << err_;
  EXPECT_THAT(out_, HasSubstr("Dat/Tarvane.mdb: kept\n"));
  EXPECT_THAT(out_, HasSubstr("Options.dat: created\n"));
  EXPECT_EQ(Contents(shop_), laid_down);

  ASSERT_EQ(Run(), 0) << err_;
  EXPECT_THAT(out_, Not(HasSubstr("created")));
  EXPECT_EQ(Contents(shop_), laid_down);
}

TEST_F(SetupTest, WhatIsThereStaysWhateverItHolds) {
  Write(shop_ / "Dat/tarvane.MDB", "not a database");
  Write(shop_ / "SALESPERSONSLIST.DAT", "");
  Write(shop_ / "notes.txt", "mine\n");
  ASSERT_EQ(Run({"--sample"}), 0) << err_;
  const auto files = Contents(shop_);
  EXPECT_EQ(files.at("Dat/tarvane.MDB"), "not a database");
  EXPECT_EQ(files.at("SALESPERSONSLIST.DAT"), "");
  EXPECT_EQ(files.at("notes.txt"), "mine\n");
  EXPECT_FALSE(files.contains("Dat/Tarvane.mdb"));
  EXPECT_FALSE(files.contains("SalesPersonslist.Dat"));
  EXPECT_THAT(out_, HasSubstr("Dat/Tarvane.mdb: kept\n"));
  EXPECT_THAT(out_, HasSubstr("sample shop: left out (the jobs database was there already)\n"));
}

// A database that is found dead has left its journal, which SQLite would play into the next one.
TEST_F(SetupTest, NoDatabaseIsLaidDownBesideAJournalOfAnother) {
  for (const char* journal : {"Dat/Tarvane.mdb-journal", "Dat/Tarvane.mdb-wal", "dat/TARVANE.MDB-JOURNAL"}) {
    Write(shop_ / journal, "pages");
    EXPECT_EQ(Run(), 1) << journal;
    EXPECT_THAT(err_, HasSubstr((shop_ / journal).string() + " holds unfinished changes of the Tarvane.mdb"));
    EXPECT_THAT(Contents(shop_), SizeIs(1)) << journal;
    Write(shop_ / journal, "");
    EXPECT_EQ(Run(), 0) << err_;
    Write(shop_ / journal, "pages");
    EXPECT_EQ(Run(), 0) << "the database is there: " << err_;
    fs::remove_all(shop_);
  }
}

TEST_F(SetupTest, AFolderThatIsOpenElsewhereIsLeftAlone) {
  Write(shop_ / ".tarvane-setup-a1B2c3/Options.dat", "another setup works on it");
  auto lock = ShopLock::Take(shop_);
  EXPECT_EQ(Run(), 1);
  EXPECT_THAT(err_, HasSubstr("The shop in " + shop_.string() + " is open in another program."));
  EXPECT_THAT(Contents(shop_), SizeIs(1));
  lock.reset();
  EXPECT_EQ(Run(), 0) << err_;
}

TEST_F(SetupTest, WhatAKilledRunLeftGoes) {
  Write(root_ / "mine/kept", "x");
  Write(shop_ / ".tarvane-setup-a1B2c3/Dat/Tarvane.mdb", "half made");
  fs::create_directory_symlink(root_ / "mine", shop_ / ".tarvane-setup-link");
  Write(shop_ / "tarvane-setup-notes", "x");
  EXPECT_EQ(Run(), 0) << err_;
  for (const auto& entry : fs::directory_iterator(shop_)) {
    EXPECT_FALSE(entry.path().filename().string().starts_with(".")) << entry.path();
  }
  EXPECT_TRUE(fs::exists(root_ / "mine/kept"));
  EXPECT_TRUE(fs::exists(shop_ / "tarvane-setup-notes"));
}

TEST_F(SetupTest, AllIsForOwnerAndGroup) {
  for (const mode_t mask : {002, 022, 077}) {
    const mode_t former = ::umask(mask);
    EXPECT_EQ(Run(), 0) << err_;
    ::umask(former);
    EXPECT_EQ(fs::status(shop_).permissions(), fs::perms(0770 & ~mask));
    for (const auto& entry : fs::recursive_directory_iterator(shop_)) {
      const mode_t most = entry.is_directory() ? 0770 : 0660;
      EXPECT_EQ(entry.status().permissions(), fs::perms(most & ~mask)) << entry.path();
    }
    fs::remove_all(shop_);
  }
}

TEST_F(SetupTest, AnyNameIsAFolder) {
  const fs::path former = fs::current_path();
  fs::current_path(root_);
  for (const std::string name : {"--double", "file:shop?mode=memory", "a/b/../c/"}) {
    EXPECT_EQ(RunBare({"--data", TARVANE_DATA_DIR, "--", name}), 0) << err_;
    EXPECT_TRUE(Database(fs::path(name) / data_file::kJobs).HasTable(kJobTable)) << name;
  }
  fs::current_path(former);
  EXPECT_TRUE(fs::exists(root_ / "file:shop?mode=memory" / "Dat" / "Tarvane.mdb"));
}

// Faults leave nothing behind but what was there.
TEST_F(SetupTest, FaultsTellThePlaceAndTheCause) {
  // What is there, whether as a folder, the files in the end, and the cause.
  const std::tuple<const char*, bool, std::size_t, const char*> cases[] = {
      {"shop", false, 1, ": Not a directory"},
      {"shop/Dat", false, 1, ": Not a directory"},
      {"shop/Options.dat", true, 0, " is a folder"}};
  for (const auto& [file, folder, files, cause] : cases) {
    folder ? void(fs::create_directories(root_ / file)) : Write(root_ / file, "a file");
    EXPECT_EQ(Run(), 1);
    EXPECT_THAT(err_, HasSubstr((root_ / file).string() + cause));
    EXPECT_THAT(Contents(root_), SizeIs(files));
    EXPECT_THAT(out_, IsEmpty());
    fs::remove_all(shop_);
  }
  EXPECT_EQ(RunBare({shop_.string(), "--data", (root_ / "nowhere").string()}), 1);
  EXPECT_THAT(err_, HasSubstr((root_ / "nowhere").string()));
  EXPECT_FALSE(fs::exists(shop_));
}

TEST_F(SetupTest, AFolderThatMayNotBeWrittenIsTold) {
  fs::create_directories(shop_);
  chmod(root_.c_str(), 0755);
  chmod(shop_.c_str(), 0555);
  const bool as_root = geteuid() == 0;  // root may write anywhere
  ASSERT_TRUE(!as_root || seteuid(65534) == 0);
  const int status = Run();
  ASSERT_TRUE(!as_root || seteuid(0) == 0);
  EXPECT_EQ(status, 1);
  EXPECT_THAT(err_, HasSubstr(shop_.string() + ": Permission denied"));
  EXPECT_THAT(Contents(shop_), IsEmpty());
  chmod(shop_.c_str(), 0755);
}

TEST_F(SetupTest, WrongCommandLinesGetTheUsage) {
  const std::vector<std::vector<std::string>> wrong = {
      {}, {""}, {"--sample"}, {"a", "b"}, {"a", "--data"}, {"a", "--smaple"}, {"a", "--", "--sample"}};
  for (const auto& arguments : wrong) {
    EXPECT_EQ(RunBare(arguments), 2);
    EXPECT_THAT(err_, HasSubstr("usage: tarvane-setup ["));
  }
  EXPECT_EQ(RunBare({"--help"}), 0);
  EXPECT_THAT(out_, HasSubstr("usage: tarvane-setup ["));
}

}  // namespace
}  // namespace tarvane::setup
