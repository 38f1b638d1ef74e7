#include "catalogues/barcode.h"

#include <algorithm>
#include <cstdint>

#include "screen/screen.h"
#include "shop/shop.h"
#include "text_number/text_number.h"

namespace tarvane::catalogues {

namespace {

// The first value that is no character; check sums begin with it and are taken modulo it.
constexpr int kStartValue = 103;
constexpr int kMostValue = 999;
constexpr char kStart = '<';
constexpr char kStop = '>';

void ReadSymbol(std::string_view line, BarcodeTables& tables) {
  const std::size_t tab = line.find('\t');
  if (tab == std::string_view::npos || line.size() != tab + 2 || !IsNumber(line.substr(0, tab))) return;
  const double number = ParseStrict(line.substr(0, tab));
  if (!(number >= 0 && number <= kMostValue)) return;
  const int value = static_cast<int>(number);
  (value < kStartValue ? tables.values : tables.marks).emplace(line.back(), value);
}

bool IsPattern(std::string_view line) {
  return !line.empty() && std::ranges::all_of(line, [](char c) { return c == '0' || c == '1'; });
}

// Puts the values of start, characters, check and stop together; false where one isn't in the tables.
bool ValuesOf(const BarcodeTables& tables, std::string_view code, std::vector<int>& values) {
  const auto add = [&values](const std::map<char, int>& table, char symbol) {
    const auto found = table.find(symbol);
    if (found != table.end()) values.push_back(found->second);
    return found != table.end();
  };
  if (!add(tables.marks, kStart)) return false;
  std::int64_t check = kStartValue;
  std::int64_t place = 0;
  for (const char symbol : code) {
    if (!add(tables.values, symbol)) return false;
    check += values.back() * ++place;
  }
  values.push_back(static_cast<int>(check % kStartValue));
  return add(tables.marks, kStop);
}

}  // namespace

BarcodeTables ParseBarcodeTables(std::string_view symbols, std::string_view patterns) {
  BarcodeTables tables;
  for (const std::string& line : SplitLines(symbols)) ReadSymbol(line, tables);
  tables.patterns = SplitLines(patterns);
  return tables;
}

BarcodeTables ReadBarcodeTables(const Shop& shop) {
  BarcodeTables tables;
  IgnoreFaults([&] {
    tables = ParseBarcodeTables(shop.ReadText(data_file::kBarcodeSymbols).value_or(""),
                                shop.ReadText(data_file::kBarcodePatterns).value_or(""));
  });
  return tables;
}

std::string BarcodeBars(const BarcodeTables& tables, std::string_view code) {
  std::vector<int> values;
  values.reserve(code.size() + 3);
  if (code.empty() || !ValuesOf(tables, code, values)) return "";
  std::string bars;
  for (const int value : values) {
    const auto at = static_cast<std::size_t>(value);
    if (at >= tables.patterns.size() || !IsPattern(tables.patterns[at])) return "";
    bars += tables.patterns[at];
  }
  return bars;
}

}  // namespace tarvane::catalogues
