// Price lists: a file of any kind as a whole, its bytes as the parts of a spreadsheet, and its cells as
// prices and headings.
#include <string>
#include <string_view>

#include "catalogues/price_list/csv_reader.h"
#include "catalogues/price_list/list_columns.h"
#include "catalogues/price_list/price_text.h"
#include "catalogues/price_list/read_price_list.h"
#include "fuzz/require.h"
#include "text/fault.h"

namespace tarvane::catalogues {
namespace {

bool GoOn(std::int64_t) { return true; }

void CheckPrice(const PriceSheet::Cell& cell) {
  for (const DecimalMark mark : {DecimalMark::kNotKnown, DecimalMark::kPoint, DecimalMark::kComma}) {
    const ListPrice read = ReadListPrice(cell.text, false, mark);
    Require(read.wrong.empty() || read.price.empty());
    if (read.price.empty()) continue;
    // What was read is a price that is read as the same again.
    Require(read.price.size() >= 4 && read.price[read.price.size() - 3] == '.');
    Require(ReadListPrice(read.price, false, DecimalMark::kNotKnown).price == read.price);
  }
  if (cell.number) ReadListPrice(cell.text, true, DecimalMark::kNotKnown);
}

void CheckSheet(const PriceSheet& sheet) {
  std::int64_t last = 0;
  for (std::size_t line = 0; line < sheet.LineCount(); ++line) {
    Require(sheet.LineNumber(line) > last);
    last = sheet.LineNumber(line);
    std::size_t texts = 0;
    for (std::size_t cell = 0; cell < sheet.ColumnCount(); ++cell) {
      texts += sheet.At(line, cell).text.size();
      CheckPrice(sheet.At(line, cell));
    }
    Require(texts > 0 && sheet.At(line, sheet.ColumnCount()).text.empty());
  }
  const ColumnMatch match = MatchColumns(sheet);
  Require(sheet.LineCount() == 0 || match.heading_line < sheet.LineCount());
  Require(HeadingNames(sheet, match.heading_line).size() == sheet.ColumnCount());
}

// A packed file with one part, so that what is within is reached without luck.
std::string Packed(std::string_view name, std::string_view part) {
  const auto number = [](std::size_t value, std::size_t width) {
    std::string bytes;
    for (std::size_t i = 0; i < width; ++i) bytes += static_cast<char>(i < 4 ? value >> (8 * i) & 0xFFU : 0);
    return bytes;
  };
  const std::string sizes = number(0, 4) + number(part.size(), 4) + number(part.size(), 4);
  std::string file = "PK\x03\x04" + number(0, 10) + sizes + number(name.size(), 2) + number(0, 2);
  file += name;
  file += part;
  const std::size_t directory = file.size();
  file += "PK\x01\x02" + number(0, 12) + sizes + number(name.size(), 2) + number(0, 16);
  file += name;
  const std::size_t size = file.size() - directory;
  return file + "PK\x05\x06" + number(0, 4) + number(1, 2) + number(1, 2) + number(size, 4) +
         number(directory, 4) + number(0, 2);
}

void CheckBytes(std::string_view bytes) {
  try {
    if (const auto sheet = ReadPriceSheet(bytes, GoOn)) CheckSheet(*sheet);
  } catch (const Fault& fault) {
    Require(!std::string_view(fault.what()).empty());
  }
}

}  // namespace
}  // namespace tarvane::catalogues

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tarvane::catalogues;
  const std::string_view bytes = tarvane::InputText(data, size);
  CheckBytes(bytes);
  if (bytes.starts_with('<')) {
    for (const char* part : {"content.xml", "xl/workbook.xml"}) CheckBytes(Packed(part, bytes));
  }
  return 0;
}
