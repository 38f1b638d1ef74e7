#include "catalogues/price_list/price_plan.h"

#include <algorithm>

#include "catalogues/price_list/line_matcher.h"
#include "store/row_set.h"
#include "text/trim.h"
#include "text/utf8.h"
#include "text_number/text_number.h"

namespace tarvane::catalogues {

namespace {

constexpr std::size_t kMostCharacters = 255;  // of a text column
constexpr std::array kPriceColumns = {kSellingPrice, kBuyPrice, kPriceWithOutVat};

// "5.01235E+12": what is left of a bar code that went through a spreadsheet as a number.
bool IsShortenedNumber(std::string_view text) {
  const std::size_t exponent = text.find_first_of("eE");
  if (exponent == std::string_view::npos || exponent + 1 >= text.size()) return false;
  const bool exact = text.substr(0, exponent).find_first_of(".,") == std::string_view::npos;
  return !exact && text.find_first_not_of("0123456789.,+eE") == std::string_view::npos;
}

bool SameValue(const ListColumn& column, const std::string& stored, const std::string& given) {
  if (column.kind == ListColumn::Kind::kPrice) return Format2(stored) == given;
  return TrimSpaces(stored) == given;
}

}  // namespace

PricePlan::PricePlan(const PriceSheet& sheet, const ColumnMatch& match, std::string_view supplier)
    : sheet_(&sheet), match_(match), supplier_(Trim(supplier)), first_(match.heading_line + 1) {
  lines_.resize(sheet.LineCount() - std::min(first_, sheet.LineCount()));
}

PriceSheet::Cell PricePlan::CellOf(std::size_t line, std::size_t column) const {
  const int cell = match_.cells[column];
  return cell < 0 ? PriceSheet::Cell{} : sheet_->At(first_ + line, static_cast<std::size_t>(cell));
}

std::string PricePlan::Given(std::size_t line, std::size_t column) const {
  const PriceSheet::Cell cell = CellOf(line, column);
  switch (kListColumns[column].kind) {
    case ListColumn::Kind::kPrice:
      return ReadListPrice(cell.text, cell.number, mark_).price;
    case ListColumn::Kind::kMemo:
      return std::string(cell.text);
    case ListColumn::Kind::kText:
      break;
  }
  return OneLine(cell.text);
}

std::string PricePlan::SupplierOf(std::size_t line) const {
  std::string given = Given(line, kSuppliersName);
  return given.empty() ? supplier_ : given;
}

const std::string& PricePlan::KeyOf(std::size_t line) const {
  return products_[static_cast<std::size_t>(lines_[line].product)].key;
}

std::vector<PricePlan::Change> PricePlan::ChangesOf(std::size_t line) const {
  const KnownProduct& product = products_[static_cast<std::size_t>(lines_[line].product)];
  std::vector<Change> changes;
  for (std::size_t column = 0; column < kListColumnCount; ++column) {
    std::string given = Given(line, column);
    const std::string& stored = product.values[column];
    if (given.empty() || SameValue(kListColumns[column], stored, given)) continue;
    changes.push_back({column, stored, std::move(given)});
  }
  return changes;
}

// What all prices of the list that can be read in one way agree on.
void PricePlan::FindDecimalMark() {
  bool seen[3] = {};
  for (std::size_t line = 0; line < lines_.size(); ++line) {
    for (const ListColumnPlace column : kPriceColumns) {
      const PriceSheet::Cell cell = CellOf(line, column);
      if (cell.number) continue;
      seen[static_cast<int>(ReadListPrice(cell.text, false, DecimalMark::kNotKnown).mark)] = true;
    }
  }
  const bool point = seen[static_cast<int>(DecimalMark::kPoint)];
  const bool comma = seen[static_cast<int>(DecimalMark::kComma)];
  if (point != comma) mark_ = point ? DecimalMark::kPoint : DecimalMark::kComma;
}

void PricePlan::SetWrong(std::size_t line, const std::string& why) {
  lines_[line].state = State::kWrong;
  lines_[line].wrong += (lines_[line].wrong.empty() ? "" : "; ") + why;
}

void PricePlan::CheckCells(std::size_t line) {
  for (std::size_t column = 0; column < kListColumnCount; ++column) {
    const PriceSheet::Cell cell = CellOf(line, column);
    if (cell.text.empty()) continue;
    const ListColumn& told = kListColumns[column];
    const std::string name(told.name);
    if (told.kind == ListColumn::Kind::kPrice) {
      const ListPrice price = ReadListPrice(cell.text, cell.number, mark_);
      if (price.wrong.empty()) continue;
      SetWrong(line,
               name + " \"" + std::string(FirstCharacters(cell.text, 30)) + "\" " + std::string(price.wrong));
    } else if (told.kind == ListColumn::Kind::kText && CountCharacters(cell.text) > kMostCharacters) {
      SetWrong(line, name + " is longer than 255 characters");
    }
  }
  const PriceSheet::Cell code = CellOf(line, kBarCode);
  if (!code.number && IsShortenedNumber(code.text)) {
    SetWrong(line, "BarCode \"" + std::string(code.text) + "\" has lost its digits");
  }
}

void PricePlan::CheckNew(std::size_t line) {
  if (CellOf(line, kProductName).text.empty() && CellOf(line, kItemCode).text.empty()) {
    SetWrong(line, "no name and no code");
    return;
  }
  const bool prices = std::any_of(kPriceColumns.begin(), kPriceColumns.end(),
                                  [this](std::size_t column) { return match_.cells[column] >= 0; });
  const bool priced = std::any_of(kPriceColumns.begin(), kPriceColumns.end(),
                                  [&](std::size_t column) { return !CellOf(line, column).text.empty(); });
  if (prices && !priced) SetWrong(line, "no price");
}

void PricePlan::Count() {
  for (const PlanLine& line : lines_) {
    counts_.added += line.state == State::kNew ? 1 : 0;
    counts_.changed += line.state == State::kChanged ? 1 : 0;
    counts_.unchanged += line.state == State::kUnchanged ? 1 : 0;
    counts_.wrong += line.state == State::kWrong ? 1 : 0;
  }
}

std::optional<PricePlan> PricePlan::Make(const PriceSheet& sheet, const ColumnMatch& match,
                                         std::string_view supplier, Database& database,
                                         const KeepGoing& keep_going) {
  PricePlan plan(sheet, match, supplier);
  plan.FindDecimalMark();
  LineMatcher matcher(plan.lines_.size());
  for (std::size_t line = 0; line < plan.lines_.size(); ++line) {
    matcher.AddLine(line, {plan.Given(line, kBarCode), plan.SupplierOf(line), plan.Given(line, kItemCode),
                           plan.Given(line, kProductName)});
    plan.CheckCells(line);
  }

  RowSet rows;
  rows.Open(database, kProductsTable);
  std::vector<int> columns = {0};
  columns.reserve(kListColumnCount + 1);
  for (const ListColumn& column : kListColumns) columns.push_back(rows.FindColumn(column.name));
  const std::int64_t count = rows.RecordCount();
  for (std::int64_t at = 0; at < count; ++at) {
    if (!keep_going(at)) return std::nullopt;
    const std::vector<std::string>& row = rows.PeekRow(at, columns);
    if (row.empty()) break;
    const auto value = [&](std::size_t column) -> const std::string& { return row[column + 1]; };
    const auto product = static_cast<std::int32_t>(plan.products_.size());
    const bool meant = matcher.AddProduct(
        product, {value(kBarCode), value(kSuppliersName), value(kItemCode), value(kProductName)});
    if (!meant) continue;
    plan.products_.push_back({row[0], {}});
    std::copy_n(row.begin() + 1, kListColumnCount, plan.products_.back().values.begin());
  }

  const auto line_number = [&](std::size_t line) { return std::to_string(plan.LineNumber(line)); };
  matcher.Resolve();
  for (std::size_t line = 0; line < plan.lines_.size(); ++line) {
    PlanLine& told = plan.lines_[line];
    const LineMatcher::Found& found = matcher.FoundOf(line);
    told.product = found.product;
    if (found.same_as) plan.SetWrong(line, "the same product as line " + line_number(*found.same_as));
    if (!found.wrong.empty()) plan.SetWrong(line, std::string(found.wrong));
    if (told.product < 0 && found.wrong.empty()) plan.CheckNew(line);
    if (told.state == State::kWrong) continue;
    told.state = told.product < 0               ? State::kNew
                 : plan.ChangesOf(line).empty() ? State::kUnchanged
                                                : State::kChanged;
  }
  plan.Count();
  return plan;
}

}  // namespace tarvane::catalogues
