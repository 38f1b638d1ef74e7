#include "catalogues/price_list/xlsx_reader.h"

#include <chrono>
#include <cmath>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "catalogues/price_list/xml_walk.h"
#include "text/day.h"
#include "text/fault.h"
#include "text_number/text_number.h"

namespace tarvane::catalogues {

namespace {

[[noreturn]] void FailTooLarge() { throw Fault("it holds more than a price list may"); }

struct Relations : XmlListener {
  void Begin(std::string_view element, const XmlAttributes& attributes) override {
    if (element == "Relationship") targets[std::string(attributes["Id"])] = attributes["Target"];
  }
  void End(std::string_view) override {}
  void Text(std::string_view) override {}

  // The part that an id leads to, as the packed file calls it.
  std::string Part(const std::string& id) const {
    const auto found = targets.find(id);
    if (found == targets.end()) return "";
    return found->second.starts_with('/') ? found->second.substr(1) : "xl/" + found->second;
  }

  std::map<std::string, std::string> targets;
};

struct WorkbookPart : XmlListener {
  void Begin(std::string_view element, const XmlAttributes& attributes) override {
    if (element == "sheet") sheets.emplace_back(attributes["id"]);
    if (element != "workbookPr") return;
    const std::string_view late = attributes["date1904"];
    if (late == "1" || late == "true") day_zero = MakeDay(1904, 1, 1);
  }
  void End(std::string_view) override {}
  void Text(std::string_view) override {}

  std::vector<std::string> sheets;  // ids, in the order of their tabs
  Day day_zero = MakeDay(1899, 12, 30);
};

// The texts that cells share.
struct SharedTexts : XmlListener {
  void Begin(std::string_view element, const XmlAttributes&) override {
    if (element == "si") text.clear();
    if (element == "rPh") reading = true;
    in_text = element == "t" && !reading;
  }
  void End(std::string_view element) override {
    in_text = false;
    if (element == "rPh") reading = false;
    if (element != "si") return;
    if (texts.size() >= price_limit::kCells) FailTooLarge();
    texts.push_back(text);
  }
  void Text(std::string_view piece) override {
    if (in_text) text += piece;
  }

  std::vector<std::string> texts;
  std::string text;
  bool in_text = false;
  bool reading = false;  // how a text is pronounced
};

// Formats without a definition: dates, with or without a time.
bool IsKnownDate(int format) { return (format >= 14 && format <= 17) || format == 22; }

// "dd/mm/yyyy": a letter of a day or a year outside of quotes, brackets and escapes.
bool IsDateCode(std::string_view code) {
  char within = 0;
  for (std::size_t i = 0; i < code.size(); ++i) {
    const char c = code[i];
    if (within != 0) {
      if (c == within) within = 0;
    } else if (c == '"' || c == '[') {
      within = c == '[' ? ']' : c;
    } else if (c == '\\' || c == '_' || c == '*') {
      ++i;
    } else if (std::string_view("dDyY").find(c) != std::string_view::npos) {
      return true;
    }
  }
  return false;
}

int WholeNumber(std::string_view text) {
  constexpr double kMost = 1e8;
  const double number = ParseLeading(text);
  return number >= 0 && number < kMost ? static_cast<int>(number) : -1;
}

// Which styles of cells show a number as a date.
struct DateStyles : XmlListener {
  void Begin(std::string_view element, const XmlAttributes& attributes) override {
    if (element == "cellXfs") in_cells = true;
    const int format = WholeNumber(attributes["numFmtId"]);
    if (element == "numFmt" && IsDateCode(attributes["formatCode"])) formats.insert(format);
    if (element == "xf" && in_cells) dates.push_back(IsKnownDate(format) || formats.contains(format));
  }
  void End(std::string_view element) override {
    if (element == "cellXfs") in_cells = false;
  }
  void Text(std::string_view) override {}

  std::set<int> formats;
  std::vector<bool> dates;  // by style
  bool in_cells = false;
};

std::string DateText(Day day_zero, double days) {
  constexpr double kMostDays = 3'000'000;  // beyond the year 9999
  if (std::fabs(days) >= kMostDays) return NumberText(days);
  const auto day = std::chrono::sys_days(day_zero) + std::chrono::days(static_cast<int>(std::floor(days)));
  return IsoDate(Day(day));
}

struct CellPlace {
  std::int64_t row = -1;
  std::int64_t column = -1;
};

// "AB12" from 0; -1 for what isn't told.
CellPlace PlaceOf(std::string_view reference) {
  constexpr std::int64_t kMost = 100'000'000;
  CellPlace place{0, 0};
  for (const char c : reference) {
    const bool letter = c >= 'A' && c <= 'Z';
    if ((!letter && (c < '0' || c > '9')) || place.row > kMost || place.column > kMost) {
      throw Fault("the file is broken or not complete");
    }
    if (letter) place.column = place.column * 26 + c - 'A' + 1;
    if (!letter) place.row = place.row * 10 + c - '0';
  }
  return {place.row - 1, place.column - 1};
}

class SheetPart : public XmlListener {
 public:
  SheetPart(const SharedTexts& shared, const DateStyles& styles, Day day_zero, SheetCells& cells)
      : shared_(shared), styles_(styles), day_zero_(day_zero), cells_(cells) {}

  void Begin(std::string_view element, const XmlAttributes& attributes) override {
    taking_ = nullptr;
    if (element == "row") {
      const int row = WholeNumber(attributes["r"]);
      row_ = row > 0 ? row - 1 : row_ + 1;
      column_ = -1;
    } else if (element == "c") {
      BeginCell(attributes);
    } else if (element == "v" || element == "t") {
      taking_ = &value_;
    } else if (element == "f") {
      taking_ = &formula_;
    }
  }
  void End(std::string_view element) override {
    taking_ = nullptr;
    if (element == "c") EndCell();
  }
  void Text(std::string_view text) override {
    if (taking_ != nullptr) *taking_ += text;
  }

 private:
  void BeginCell(const XmlAttributes& attributes) {
    const CellPlace place = PlaceOf(attributes["r"]);
    if (place.row >= 0) row_ = place.row;
    column_ = place.column >= 0 ? place.column : column_ + 1;
    type_ = attributes["t"];
    style_ = WholeNumber(attributes["s"]);
    value_.clear();
    formula_.clear();
  }

  void EndCell() {
    const bool number = (type_.empty() || type_ == "n") && IsNumber(value_);
    if (!number) {
      cells_.Put(row_, column_, CellText(), false);
      return;
    }
    const double value = ParseStrict(value_);
    const auto style = static_cast<std::size_t>(style_);
    const bool date = style_ >= 0 && style < styles_.dates.size() && styles_.dates[style];
    cells_.Put(row_, column_, date ? DateText(day_zero_, value) : NumberText(value), !date);
  }

  std::string CellText() const {
    if (value_.empty()) return formula_.empty() ? "" : "=" + formula_;
    if (type_ == "b") return value_ == "1" ? "TRUE" : "FALSE";
    if (type_ != "s") return value_;
    const int text = WholeNumber(value_);
    if (text < 0 || static_cast<std::size_t>(text) >= shared_.texts.size()) {
      throw Fault("the file is broken or not complete");
    }
    return shared_.texts[static_cast<std::size_t>(text)];
  }

  const SharedTexts& shared_;
  const DateStyles& styles_;
  Day day_zero_;
  SheetCells& cells_;
  std::int64_t row_ = -1;
  std::int64_t column_ = -1;
  std::string type_;
  int style_ = 0;
  std::string value_;
  std::string formula_;
  std::string* taking_ = nullptr;  // what the text goes into
};

void WalkPart(const ZipParts& parts, const std::string& part, XmlListener& listener) {
  if (parts.Has(part)) WalkXml(parts.Read(part), listener);
}

}  // namespace

SheetCells ReadXlsx(const ZipParts& parts, const KeepGoing& keep_going) {
  WorkbookPart workbook;
  Relations relations;
  SharedTexts shared;
  DateStyles styles;
  WalkPart(parts, "xl/workbook.xml", workbook);
  WalkPart(parts, "xl/_rels/workbook.xml.rels", relations);
  WalkPart(parts, "xl/sharedStrings.xml", shared);
  WalkPart(parts, "xl/styles.xml", styles);
  SheetCells cells(keep_going);
  for (const std::string& id : workbook.sheets) {
    SheetPart sheet(shared, styles, workbook.day_zero, cells);
    WalkPart(parts, relations.Part(id), sheet);
    if (!cells.empty()) break;
  }
  return cells;
}

}  // namespace tarvane::catalogues
