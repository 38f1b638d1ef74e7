#include <gmock/gmock.h>

#include "catalogues/price_list/csv_reader.h"
#include "catalogues/price_list/file_text.h"
#include "catalogues/price_list/read_price_list.h"
#include "store/data_files.h"
#include "support/temporary_folder.h"
#include "text/fault.h"

namespace tarvane::catalogues {
namespace {

using ::testing::HasSubstr;

bool GoOn(std::int64_t) { return true; }

// "1: a|b": number and cells of each line, numbers as the file holds them in brackets.
std::string Shown(const PriceSheet& sheet) {
  std::string shown;
  for (std::size_t line = 0; line < sheet.LineCount(); ++line) {
    shown += std::to_string(sheet.LineNumber(line)) + ":";
    std::size_t width = sheet.ColumnCount();
    while (width > 0 && sheet.At(line, width - 1).text.empty()) --width;
    for (std::size_t column = 0; column < width; ++column) {
      const auto cell = sheet.At(line, column);
      shown += column == 0 ? " " : "|";
      shown += cell.number ? "[" + std::string(cell.text) + "]" : std::string(cell.text);
    }
    shown += "\n";
  }
  return shown;
}

std::string Read(std::string_view bytes) {
  try {
    return Shown(*ReadPriceSheet(bytes, GoOn));
  } catch (const Fault& fault) {
    return std::string("fault: ") + fault.what();
  }
}

std::string FileBytes(const std::string& name) {
  return *ReadFile(std::string(TARVANE_TEST_DATA) + "/price_lists/" + name);
}

TEST(PriceListReader, ReadsSeparatedText) {
  const struct {
    std::string_view bytes;
    std::string_view shown;
  } kCases[] = {
      {"a,b\nc,d", "1: a|b\n2: c|d\n"},
      {"a;b\r\n\r\n1,5;d\r\n", "1: a|b\n3: 1,5|d\n"},
      {"Name;Price\nVoile, ivory;24,50\nNet, white;3,00\n",
       "1: Name|Price\n2: Voile, ivory|24,50\n3: Net, white|3,00\n"},
      {"a\tb,c\rd\te\r", "1: a|b,c\n2: d|e\n"},
      {"sep=;\r\na,b;c", "2: a,b|c\n"},
      {"\xEF\xBB\xBF\"a \"\"b\"\"\",\"c\r\nd\",e\nf,g,h", "1: a \"b\"|c\r\nd|e\n3: f|g|h\n"},
      {" \"a,b\" ,c\n \xC2\xA0"
       "d , ,e, , \n",
       "1: a,b|c\n2: d||e\n"},
      {"5\" pole,4\n6\" pole,5", "1: 5\" pole|4\n2: 6\" pole|5\n"},
      {"a,\"b", "fault: line 1 has a quote mark that isn't closed"},
      {"a,b\n\"c\nd\n,e", "fault: line 2 has a quote mark that isn't closed"},
      {"=1+1,@x", "1: =1+1|@x\n"},
      {"", "fault: there is nothing in it"},
      {",,\n ,\n\"\"", "fault: there is nothing in it"},
      {"alone", "1: alone\n"},
      {std::string_view("a\0b", 3), "fault: it is neither a spreadsheet nor a text"},
      {"caf\xE9,\x80 5", "1: caf\u00E9|\u20AC 5\n"},
      {"caf\xC3\xA9,b", "1: caf\u00E9|b\n"},
      {std::string_view("\xFF\xFE"
                        "a\0,\0\xA3\0\x3D\xD8\x00\xDE",
                        12),
       "1: a|\u00A3\U0001F600\n"},
      {std::string_view("\xFE\xFF\0a\0,\0b\xD8\x00", 10), "1: a|b\uFFFD\n"},
      {"%PDF-1.7", "fault: it is a PDF document; ask for it as XLSX, ODS or CSV"},
  };
  for (const auto& [bytes, shown] : kCases) EXPECT_EQ(Read(bytes), shown) << testing::PrintToString(bytes);
}

TEST(PriceListReader, ReadsSpreadsheetsByTheirContent) {
  EXPECT_EQ(Read(FileBytes("plain.xlsx")),
            "1: Code|Name|RRP|Date||In\n"
            "3: TW-1|Voile & net|[24.5]|2024-03-15\n"
            "4: [5012345678900]|Two parts|[49]|=NOW()|ab|TRUE\n");
  EXPECT_EQ(Read(FileBytes("plain.ods")),
            "1: Code|RRP\n"
            "2: [24.5]|[24.5]|2026-03-09\n"
            "3: [49]|[12.4]\n");
}

TEST(PriceListReader, ListsThatAreTooLargeAreRefused) {
  EXPECT_EQ(Read(FileBytes("wide.xlsx")), "fault: line 1 has more than 256 columns");
  EXPECT_EQ(Read(FileBytes("wide.ods")), "fault: line 1 has more than 256 columns");
  EXPECT_THAT(Read(FileBytes("bomb.xlsx")), HasSubstr("fault: it holds more than a price list may"));
  EXPECT_EQ(Read(FileBytes("long.ods")), "fault: it has more than 200000 lines");
  EXPECT_EQ(Read(std::string(1000, ',') + "x"), "fault: line 1 has more than 256 columns");
  std::string lines;
  for (std::size_t i = 0; i <= price_limit::kLines; ++i) lines += "a\n";
  EXPECT_EQ(Read(lines), "fault: it has more than 200000 lines");
  EXPECT_EQ(Read(std::string(price_limit::kCells + 1, ',')), "fault: it holds more than a price list may");
}

TEST(PriceListReader, BrokenSpreadsheetsAreToldAndNothingElse) {
  EXPECT_EQ(Read(FileBytes("no_spreadsheet.zip")), "fault: it is a packed file, but no spreadsheet");
  EXPECT_THAT(Read(FileBytes("deep.xlsx")), HasSubstr("fault: "));
  EXPECT_EQ(Read(FileBytes("texts_missing.xlsx")), "fault: the file is broken or not complete");
  for (const char* name : {"plain.xlsx", "plain.ods"}) {
    const std::string whole = FileBytes(name);
    for (std::size_t size = 4; size < whole.size(); size += 7) {
      EXPECT_THAT(Read(whole.substr(0, size)), HasSubstr("fault: the file is broken")) << name << " " << size;
    }
    // Each byte wrong in turn: whatever comes of it, it comes back.
    for (std::size_t at = 0; at < whole.size(); ++at) {
      std::string wrong = whole;
      wrong[at] = static_cast<char>(wrong[at] ^ 0x55);
      EXPECT_FALSE(Read(wrong).empty());
    }
  }
}

TEST(PriceListReader, SizesThatAreMadeUpAreSeenBeforeAnythingIsUnpacked) {
  std::string bytes = FileBytes("plain.xlsx");
  const std::size_t entry = bytes.find("PK\x01\x02");
  bytes.replace(entry + 24, 4, "\xFF\xFF\xFF\x7F");
  EXPECT_EQ(Read(bytes), "fault: it unpacks to more than a price list may hold");
}

TEST(PriceListReader, StopsWhereTheWorkerWantsItTo) {
  std::int64_t told = 0;
  const auto stop = [&](std::int64_t done) { return (told = done) < 3; };
  EXPECT_FALSE(ReadPriceSheet(FileBytes("plain.xlsx"), stop));
  EXPECT_EQ(told, 3);
  EXPECT_FALSE(ReadPriceSheet(FileBytes("plain.ods"), stop));
}

TEST(PriceListReader, TellsTheFileAndTheCause) {
  const TemporaryFolder folder;
  const auto fault = [](const std::filesystem::path& file) {
    try {
      ReadPriceFile(file, GoOn);
      return std::string("read");
    } catch (const Fault& told) {
      return std::string(told.what());
    }
  };
  const auto none = folder.path() / "none.csv";
  EXPECT_EQ(fault(none), none.string() + " could not be read as a price list: the file is missing.");
  EXPECT_THAT(fault(folder.path()), HasSubstr("it is not a file"));
  EXPECT_THAT(fault("/dev/zero"), HasSubstr("it is not a file"));
  const auto file = folder.path() / "list.xlsx";
  ReplaceFile(file, "Code,RRP\n1,2\n");
  EXPECT_EQ(fault(file), "read");
  std::filesystem::resize_file(file, price_limit::kFileBytes + 1);
  EXPECT_THAT(fault(file), HasSubstr("it is larger than 64 MB."));
}

}  // namespace
}  // namespace tarvane::catalogues
