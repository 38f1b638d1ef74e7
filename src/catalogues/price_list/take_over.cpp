#include "catalogues/price_list/take_over.h"

#include <utility>

#include "store/row_set.h"
#include "text/fault.h"

namespace tarvane::catalogues {

namespace {

// What a product starts with, as one that is added by hand.
constexpr std::pair<std::string_view, std::string_view> kDefaults[] = {
    {"BuyPrice", "0.00"},         {"PriceWithOutVat", "0.00"}, {"AmountInStock", "0"},
    {"StockLowLevelAmount", "0"}, {"StockOnOrder", "0"},       {"AmountOfStockToOrder", "0"},
};

class ProductWriter {
 public:
  ProductWriter(const PricePlan& plan, Database& database, std::string_view vat_rate) : plan_(plan) {
    rows_.Open(database, kProductsTable);
    defaults_.emplace_back(rows_.FindColumn("VatRate"), vat_rate);
    for (const auto& [column, value] : kDefaults) defaults_.emplace_back(rows_.FindColumn(column), value);
    columns_.reserve(kListColumnCount);
    for (const ListColumn& column : kListColumns) columns_.push_back(rows_.FindColumn(column.name));
  }

  void Add(std::size_t line) {
    rows_.AddNew();
    for (const auto& [column, value] : defaults_) rows_.SetValue(column, value);
    for (std::size_t column = 0; column < kListColumnCount; ++column) {
      const std::string given = column == kSuppliersName ? plan_.SupplierOf(line) : plan_.Given(line, column);
      if (!given.empty()) rows_.SetValue(columns_[column], given);
    }
    rows_.Update();
  }

  void Change(std::size_t line) {
    rows_.SetBookmark(plan_.KeyOf(line));
    for (const PricePlan::Change& change : plan_.ChangesOf(line)) {
      const int column = columns_[change.column];
      if (rows_.StoredValue(column) != change.from) {
        throw Fault("Line " + std::to_string(plan_.LineNumber(line)) +
                    ": the product has been changed since the list was compared. Open the file again.");
      }
      rows_.SetValue(column, change.to);
    }
    rows_.Update();
  }

 private:
  const PricePlan& plan_;
  RowSet rows_;
  std::vector<int> columns_;                                // of kListColumns
  std::vector<std::pair<int, std::string_view>> defaults_;  // column and value
};

}  // namespace

bool TakeOver(const PricePlan& plan, Database& database, std::string_view vat_rate,
              const KeepGoing& keep_going) {
  Database::Transaction transaction(database);
  ProductWriter writer(plan, database, vat_rate);
  for (std::size_t line = 0; line < plan.LineCount(); ++line) {
    if (!keep_going(static_cast<std::int64_t>(line))) return false;
    const PricePlan::State state = plan.StateOf(line);
    if (state == PricePlan::State::kNew) writer.Add(line);
    if (state == PricePlan::State::kChanged) writer.Change(line);
  }
  transaction.Commit();
  return true;
}

}  // namespace tarvane::catalogues
