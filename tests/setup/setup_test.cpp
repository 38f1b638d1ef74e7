#include "setup/setup.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "setup/setup_folder.h"
#include "store/data_files.h"
#include "store/database.h"
#include "store/row_set.h"
#include "store/table_definition.h"

namespace tarvane {
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
  struct Case {
    const char* table;
    const char* column;
    const char* value;
  };
  const Case cases[] = {
      {"Admin", "LastOrderNo", "1000"},
      {"Admin", "Ext1", "0"},
      {"Admin", "Ext2", "20"},
      {"Admin", "LastEstimateNo", "50"},
      {"Admin", "VatAmount", "20"},
      {"Admin", "LastInvoiceNo", "0"},
      {"Admin", "CurrencySymbol", "£"},
      {"Admin", "CompanyName", "Pennyfold Curtains and Blinds"},
      {"tblCompany", "Company Name", "Pennyfold Curtains and Blinds"},
      {"tblCompany", "Post Code", "ZZ9 4PF"},
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
  jobs.Open(database, "TblBrindel");
  EXPECT_EQ(jobs.RecordCount(), 0);
  RowSet letters;
  letters.Open(database, "TblLetters");
  for (int column = letters.FindColumn("TxtLetter(0)"); column <= letters.FindColumn("TxtLetter(7)");
       ++column) {
    EXPECT_THAT(letters.Value(column), EndsWith("\r\n")) << letters.ColumnName(column);
  }
}

TEST_F(SetupTest, SettingsFilesAndListsAreComplete) {
  ASSERT_EQ(Run(), 0) << err_;
  const auto files = Contents(shop_);
  const auto values = ReadSequentialValues(files.at("Dat/Tarvane.ini"), 100);
  ASSERT_THAT(values, SizeIs(50));
  EXPECT_EQ(values[11], "20");
  EXPECT_EQ(values[14], "CASH");
  EXPECT_EQ(values[21], "");
  EXPECT_THAT(SplitLines(files.at("Options.dat")), SizeIs(8));
  for (int i = 1; i <= 12; ++i) {
    const std::string key = "CheckList" + std::to_string(i);
    EXPECT_NE(ReadProfileValue(files.at("checklist.ini"), "CheckList", key), "") << key;
  }
  EXPECT_THAT(SplitLines(files.at("Curtainlist.Dat")),
              ElementsAre("Box Pleat", "Cafe", "Eye Lets", "Goblet Pleat", "Hand Pencil Pleat",
                          "Hand Standard Tape", "Hourglass", "Machine Pencil Pleat", "Pencil Pleat",
                          "Pinch Pleat", "Slotted Heading", "Tab Top"));
  EXPECT_THAT(SplitLines(files.at("SalesPersonslist.Dat")), SizeIs(3));
  EXPECT_THAT(SplitLines(files.at("Checklist.Dat")), SizeIs(12));
  EXPECT_TRUE(files.contains("Fonts/Helvetica.afm"));
}

TEST_F(SetupTest, LineEndsOfListsAndSettingsAreCrLf) {
  ASSERT_EQ(Run(), 0) << err_;
  for (const auto& [name, content] : Contents(shop_)) {
    if (name.ends_with(".mdb") || name.starts_with("Fonts/")) continue;
    EXPECT_THAT(content, EndsWith("\r\n")) << name;
    std::size_t alone = 0;
    for (std::size_t i = 0; i < content.size(); ++i) {
      alone += content[i] == '\n' && (i == 0 || content[i - 1] != '\r');
    }
    EXPECT_EQ(alone, 0u) << name;
  }
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

// Faults leave nothing behind but what was there.
TEST_F(SetupTest, FaultsTellThePlaceAndTheCause) {
  Write(shop_, "a file");
  EXPECT_EQ(Run(), 1);
  EXPECT_THAT(err_, HasSubstr(shop_.string() + ": Not a directory"));
  EXPECT_THAT(out_, IsEmpty());
  EXPECT_THAT(Contents(root_), SizeIs(1));
  fs::remove(shop_);

  Write(shop_ / "Dat", "a file");
  EXPECT_EQ(Run(), 1);
  EXPECT_THAT(err_, HasSubstr((shop_ / "Dat").string() + ": Not a directory"));
  EXPECT_THAT(Contents(root_), SizeIs(1));
  fs::remove_all(shop_);

  fs::create_directories(shop_ / "Options.dat");
  EXPECT_EQ(Run(), 1);
  EXPECT_THAT(err_, HasSubstr((shop_ / "Options.dat").string() + " is a folder"));
  EXPECT_THAT(Contents(root_), IsEmpty());
  fs::remove_all(shop_);

  EXPECT_EQ(RunBare({shop_.string(), "--data", (root_ / "nowhere").string()}), 1);
  EXPECT_THAT(err_, HasSubstr((root_ / "nowhere").string()));
  EXPECT_FALSE(fs::exists(shop_));
}

TEST_F(SetupTest, AFolderThatMayNotBeWrittenIsTold) {
  fs::create_directories(shop_);
  chmod(root_.c_str(), 0755);
  chmod(shop_.c_str(), 0555);
  const bool as_root = geteuid() == 0;  // root may write anywhere
  if (as_root) {
    ASSERT_EQ(seteuid(65534), 0);
  }
  const int status = Run();
  if (as_root) {
    ASSERT_EQ(seteuid(0), 0);
  }
  EXPECT_EQ(status, 1);
  EXPECT_THAT(err_, HasSubstr(shop_.string() + ": Permission denied"));
  EXPECT_THAT(Contents(shop_), IsEmpty());
  chmod(shop_.c_str(), 0755);
}

TEST_F(SetupTest, WrongCommandLinesGetTheUsage) {
  const std::vector<std::vector<std::string>> wrong = {
      {}, {""}, {"--sample"}, {"a", "b"}, {"a", "--data"}, {"a", "--smaple"}};
  for (const auto& arguments : wrong) {
    EXPECT_EQ(RunBare(arguments), 2);
    EXPECT_THAT(err_, HasSubstr("usage: tarvane-setup FOLDER"));
  }
  EXPECT_EQ(RunBare({"--help"}), 0);
  EXPECT_THAT(out_, HasSubstr("usage: tarvane-setup FOLDER"));
}

}  // namespace
}  // namespace tarvane
