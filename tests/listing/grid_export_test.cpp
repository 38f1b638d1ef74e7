#include "listing/grid_export.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>

#include "store/data_files.h"
#include "support/fake_host.h"
#include "support/temporary_folder.h"
#include "text/fault.h"

namespace tarvane::listing {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

bool GoOn(std::int64_t, std::int64_t) { return true; }

// A part of a packed file, or what is wrong with it.
std::string Unpacked(const fs::path& file, const std::string& part) {
  const std::string command =
      "python3 -c \"import sys, zipfile; z = zipfile.ZipFile(sys.argv[1]); z.testzip(); "
      "sys.stdout.buffer.write(z.read(sys.argv[2]))\" '" +
      file.string() + "' " + part + " 2>&1";
  std::string text;
  std::FILE* pipe = ::popen(command.c_str(), "r");
  for (int byte = std::fgetc(pipe); byte != EOF; byte = std::fgetc(pipe)) text += static_cast<char>(byte);
  ::pclose(pipe);
  return text;
}

class ExportTest : public testing::Test {
 protected:
  ExportTest() { screen_.SetTitle("Your <Suppliers>/"); }

  void Export(const fs::path& file) {
    host_.files = {file};
    CopyFlexDataToExcel(screen_, Grid_);
  }
  void Fill(std::int64_t rows) {
    for (std::int64_t row = 1; row <= rows; ++row) {
      Grid_.AddRow({"", std::to_string(row), "Tarnwater \"Check\", ivory " + std::to_string(row), "24.50"});
    }
  }
  std::vector<std::string> Files() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder_.path())) names.push_back(entry.path().filename());
    return names;
  }
  fs::path At(const char* name) const { return folder_.path() / name; }

  TemporaryFolder folder_;
  FakeHost host_;
  Screen screen_{host_, "Trial"};
  HeldGrid Grid_{&screen_, "MSFlexGrid1", {"", "RefNo", "Name", "Price"}};
};

TEST_F(ExportTest, AGridWithoutRowsHasNothingToExtract) {
  CopyFlexDataToExcel(screen_, Grid_);
  EXPECT_THAT(host_.messages, ElementsAre("No Data to extract"));
  EXPECT_THAT(host_.suggestions, IsEmpty());
}

TEST_F(ExportTest, WritesASheetAndHandsItOver) {
  Grid_.AddRow({"", "12", " =1+1 _x0041_", "24.50"});
  Grid_.AddRow({"", "007", "two\r\nlines", "3"});
  Grid_.AddRow({"", "", "", ""});
  Export(At("list.XLSX"));
  EXPECT_THAT(host_.suggestions, ElementsAre("Your Suppliers 2026-03-09.xlsx"));
  EXPECT_THAT(host_.launched, ElementsAre(At("list.XLSX").string()));
  EXPECT_THAT(host_.messages, ElementsAre("Data has been successfully copied to Excel. "));
  EXPECT_THAT(host_.titles, ElementsAre("Success"));
  EXPECT_THAT(Files(), ElementsAre("list.XLSX"));
  EXPECT_EQ(host_.busy, 0);
  EXPECT_EQ(host_.busy_times, 1);
  const std::string sheet = Unpacked(At("list.XLSX"), "xl/worksheets/sheet1.xml");
  const auto text = [](const char* cell, const char* style, const std::string& held) {
    return std::string("<c r=\"") + cell + "\"" + style + " t=\"inlineStr\"><is><t" + held + "</t></is></c>";
  };
  EXPECT_THAT(sheet, HasSubstr(text("A1", " s=\"1\"", ">RefNo") + text("B1", " s=\"1\"", ">Name")));
  EXPECT_THAT(
      sheet, HasSubstr(text("A2", "", ">12") + text("B2", "", " xml:space=\"preserve\"> =1+1 _x005F_x0041_") +
                       "<c r=\"C2\" s=\"2\"><v>24.5</v></c>"));
  EXPECT_THAT(sheet,
              HasSubstr(text("A3", "", ">007") + text("B3", "", ">two\nlines") + "<c r=\"C3\"><v>3</v></c>"));
  EXPECT_THAT(sheet, HasSubstr("<col min=\"2\" max=\"2\" width=\"21."));
  const std::string styles = Unpacked(At("list.XLSX"), "xl/styles.xml");
  EXPECT_THAT(styles, HasSubstr("<b/>"));
  EXPECT_THAT(styles, HasSubstr("formatCode=\"0.00\""));
}

TEST_F(ExportTest, WritesCommaSeparatedValues) {
  Grid_.AddRow({"", "007", "a \"b\", c", "24.50"});
  Grid_.AddRow({"", "=1+1", "two\r\nlines", ""});
  Export(At("list.Csv"));
  EXPECT_EQ(ReadFile(At("list.Csv")),
            "\uFEFFRefNo,Name,Price\r\n007,\"a \"\"b\"\", c\",24.50\r\n=1+1,\"two\r\nlines\",\r\n");
  EXPECT_THAT(host_.launched, ElementsAre(At("list.Csv").string()));
}

TEST_F(ExportTest, ANameWithoutEndingGetsOneAndReplacesNothingUnasked) {
  Fill(1);
  ReplaceFile(At("prices 1.12.xlsx"), "former");
  host_.answers = {Answer::kNo};
  Export(At("prices 1.12"));
  ASSERT_EQ(host_.questions.size(), 1U);
  EXPECT_EQ(host_.questions[0].preset, Answer::kNo);
  EXPECT_EQ(ReadFile(At("prices 1.12.xlsx")), "former");
  host_.answers = {Answer::kYes};
  Export(At("prices 1.12"));
  EXPECT_THAT(Unpacked(At("prices 1.12.xlsx"), "xl/workbook.xml"), HasSubstr("Sheet1"));
  EXPECT_THAT(Files(), ElementsAre("prices 1.12.xlsx"));
}

TEST_F(ExportTest, TellsWhereTheFileLiesWhereNoProgramOpensIt) {
  Fill(1);
  host_.can_launch = false;
  Export(At("list.xlsx"));
  EXPECT_THAT(host_.messages, ElementsAre(HasSubstr(At("list.xlsx").string())));
}

TEST_F(ExportTest, StoppedItLeavesTheFormerFile) {
  Fill(3000);
  for (const char* name : {"list.xlsx", "list.csv"}) {
    ReplaceFile(At(name), "former");
    // A workbook is asked about once more while it is packed.
    for (const int steps : {0, 2, 6}) {
      if (steps == 6 && name == std::string_view("list.csv")) continue;
      host_.messages.clear();
      host_.steps_until_stop = steps;
      Export(At(name));
      EXPECT_THAT(host_.messages, ElementsAre(HasSubstr("Stopped")));
      EXPECT_EQ(ReadFile(At(name)), "former");
    }
  }
  EXPECT_THAT(host_.launched, IsEmpty());
  EXPECT_EQ(host_.progress_ends, 5);
  EXPECT_EQ(Files().size(), 2U);
}

// Where files may grow to `bytes` and no further, as on a full disk.
class FullDisk {
 public:
  explicit FullDisk(rlim_t bytes) {
    ::getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit now{bytes, before_.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &now);
    old_ = std::signal(SIGXFSZ, SIG_IGN);
  }
  ~FullDisk() {
    ::setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, old_);
  }

 private:
  rlimit before_{};
  void (*old_)(int) = nullptr;
};

std::string FaultOf(const std::function<void()>& step) {
  try {
    step();
  } catch (const Fault& fault) {
    return fault.what();
  }
  return "";
}

TEST_F(ExportTest, OnAFullDiskItFaultsAndLeavesTheFormerFile) {
  Fill(5000);
  for (const char* name : {"list.xlsx", "list.csv"}) {
    ReplaceFile(At(name), "former");
    // From the first byte on, within the rows, at their last bytes, and where the library copies them: about
    // 1,000,000 bytes.
    for (const rlim_t bytes : {0, 100, 50000, 190000, 1000000}) {
      std::string told;
      {
        const FullDisk full(bytes);
        told = FaultOf([&] { Export(At(name)); });
      }
      if (bytes == 1000000 && told.empty()) {
        EXPECT_NE(ReadFile(At(name)), "former");
        continue;
      }
      EXPECT_THAT(told, HasSubstr(At(name).string())) << bytes;
      EXPECT_THAT(told, HasSubstr("could not be written: ")) << bytes;
      EXPECT_EQ(ReadFile(At(name)), "former") << bytes;
    }
  }
  EXPECT_EQ(Files().size(), 2U);
}

TEST_F(ExportTest, EveryShortageOfRoomIsTold) {
  Fill(300);
  int whole = 0;
  for (rlim_t bytes = 20000; bytes < 150000; bytes += 401) {
    fs::remove(At("list.xlsx"));
    std::string told;
    {
      const FullDisk full(bytes);
      told = FaultOf([&] { Export(At("list.xlsx")); });
    }
    EXPECT_EQ(fs::exists(At("list.xlsx")), told.empty()) << bytes;
    EXPECT_THAT(told, testing::Not(HasSubstr("cut short"))) << bytes;
    if (!told.empty()) continue;
    ++whole;
    EXPECT_THAT(Unpacked(At("list.xlsx"), "xl/worksheets/sheet1.xml"), testing::EndsWith("</worksheet>"))
        << bytes;
    break;
  }
  EXPECT_EQ(whole, 1);
}

TEST_F(ExportTest, RowsThatFoundNoRoomAreMissedThoughThereIsRoomAgain) {
  Fill(5000);
  std::optional<FullDisk> full(50000);
  int steps = 0;
  const auto make_room = [&](std::int64_t, std::int64_t) {
    if (++steps == 5) full.reset();
    return true;
  };
  EXPECT_THAT(FaultOf([&] { WriteXlsx(Grid_, AllColumns(Grid_), At("list.xlsx"), make_room); }),
              HasSubstr("No space left"));
  EXPECT_THAT(Files(), IsEmpty());
}

TEST_F(ExportTest, WhatCannotBeWrittenIsTold) {
  Fill(1);
  EXPECT_THAT(FaultOf([&] { Export(At("nowhere") / "list.xlsx"); }),
              HasSubstr("nowhere/list.xlsx could not be"));
  fs::create_directory(At("folder.csv"));
  EXPECT_THAT(FaultOf([&] { Export(At("folder.csv")); }), HasSubstr("it is not a file"));
  Grid_.AddRow({"", "1", std::string(40000, 'x'), ""});
  EXPECT_THAT(FaultOf([&] { Export(At("list.xlsx")); }),
              testing::AllOf(HasSubstr("Row 2"), HasSubstr("\"Name\""), HasSubstr(".csv")));
  EXPECT_THAT(Files(), ElementsAre("folder.csv"));
}

TEST_F(ExportTest, AFileKeepsItsRightsAndALinkItsFile) {
  Fill(1);
  ReplaceFile(At("kept.csv"), "former");
  ::chmod(At("kept.csv").c_str(), 0604);
  fs::create_symlink("kept.csv", At("link.csv"));
  Export(At("link.csv"));
  EXPECT_TRUE(fs::is_symlink(At("link.csv")));
  EXPECT_NE(ReadFile(At("kept.csv")), "former");
  EXPECT_EQ(fs::status(At("kept.csv")).permissions(), fs::perms{0604});
}

// A grid whose rows can't be read any more behind the first ones.
class BreakingGrid : public HeldGrid {
 public:
  using HeldGrid::HeldGrid;
  std::int64_t RowCount() const override { return 5000; }
  std::string Cell(std::int64_t row, int column) const override {
    if (row > 3000) throw Fault("The disk is gone.");
    return row == 0 ? "Name" : "cell " + std::to_string(row * 10 + column);
  }
};

TEST_F(ExportTest, RowsThatCannotBeReadEndIt) {
  BreakingGrid grid(&screen_, "Breaking", {"Name", "Name"});
  for (const char* name : {"list.xlsx", "list.csv"}) {
    host_.files = {At(name)};
    EXPECT_EQ(FaultOf([&] { CopyFlexDataToExcel(screen_, grid); }), "The disk is gone.");
  }
  EXPECT_THAT(Files(), IsEmpty());
}

}  // namespace
}  // namespace tarvane::listing
