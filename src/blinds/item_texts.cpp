#include "blinds/item_texts.h"

#include <initializer_list>

#include "text_number/text_number.h"

namespace tarvane::blinds {

namespace {

using Element = ItemTexts::Element;

constexpr char kEnd = '~';
constexpr std::size_t kMostTokens = 62;

// The columns of the elements as the record has them, one behind the other.
constexpr std::string_view Element::*kStoredColumns[] = {&Element::text, &Element::quantity,
                                                         &Element::unit_price};

// Runs `visit` on each text of the record in its order, the grand total apart.
template <typename Item, typename Visit>
void ForEachStored(Item& item, Visit visit) {
  for (auto& line : item.lines) visit(line);
  for (const auto column : kStoredColumns) {
    for (auto& element : item.elements) visit(element.*column);
  }
}

void AppendLine(std::string& out, std::initializer_list<std::string_view> pieces) {
  for (const std::string_view piece : pieces) out += piece;
  out += kEnd;
}

}  // namespace

std::string WriteRecord(const ItemTexts& item) {
  std::string record;
  record.reserve(256);
  ForEachStored(item, [&record](std::string_view text) { AppendLine(record, {text}); });
  AppendLine(record, {item.grand_total});
  return record;
}

ItemTexts ReadRecord(std::string_view record) {
  std::array<std::string_view, kMostTokens> tokens;
  std::size_t count = 0;
  for (std::size_t end; count < kMostTokens && (end = record.find(kEnd)) != std::string_view::npos;
       record.remove_prefix(end + 1)) {
    tokens[count++] = record.substr(0, end);
  }
  ItemTexts item;
  std::size_t next = 0;
  ForEachStored(item, [&](std::string_view& text) { text = tokens[next++]; });
  return item;
}

std::string CompileItemText(const ItemTexts& item) {
  static const std::string kRule(58, '-');
  std::string text(1, kEnd);
  AppendLine(text, {"Item Number: ", item.lines[0]});
  for (std::size_t i = 1; i < kTextLines; ++i) {
    if (!item.lines[i].empty()) AppendLine(text, {item.lines[i]});
  }
  for (const Element& element : item.elements) {
    if (element.text.empty()) continue;
    AppendLine(text, {element.text, " Qty: ", element.quantity, " Unit Price: ", element.unit_price,
                      " Sub Total: ", element.total});
  }
  AppendLine(text, {kRule});
  if (ParseLeading(item.grand_total) == 0) return text;
  AppendLine(text, {"Price Includes Vat/Tax  ", item.grand_total});
  AppendLine(text, {kRule});
  return text;
}

}  // namespace tarvane::blinds
