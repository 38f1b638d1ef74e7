#include "catalogues/price_list/list_columns.h"

#include <algorithm>

#include "text/fold.h"

namespace tarvane::catalogues {

namespace {

using enum ListColumn::Kind;

constexpr std::size_t kLinesLookedAt = 30;

// "£", dashes, quotes, the euro: what counts for nothing in a heading.
bool IsMark(char32_t character) { return character < 0xC0 || (character >= 0x2000 && character < 0x2C00); }

// The place of `heading` among the synonyms, from 0; npos where it isn't among them.
std::size_t PlaceAmong(std::string_view headings, std::string_view heading) {
  for (std::size_t place = 0;; ++place) {
    const std::size_t end = std::min(headings.find(' '), headings.size());
    if (headings.substr(0, end) == heading) return place;
    if (end == headings.size()) return std::string_view::npos;
    headings.remove_prefix(end + 1);
  }
}

std::vector<std::string> PlainHeadings(const PriceSheet& sheet, std::size_t line) {
  std::vector<std::string> headings;
  headings.reserve(sheet.ColumnCount());
  for (std::size_t cell = 0; cell < sheet.ColumnCount(); ++cell) {
    headings.push_back(PlainHeading(sheet.At(line, cell).text));
  }
  return headings;
}

// The cell with the likeliest heading, the first of several alike; -1 for none.
int FindCell(const ListColumn& column, const std::vector<std::string>& headings) {
  int best = -1;
  std::size_t best_place = std::string_view::npos;
  for (std::size_t cell = 0; cell < headings.size(); ++cell) {
    const std::size_t place =
        headings[cell].empty() ? std::string_view::npos : PlaceAmong(column.headings, headings[cell]);
    if (place >= best_place) continue;
    best = static_cast<int>(cell);
    best_place = place;
  }
  return best;
}

std::array<int, kListColumnCount> MatchLine(const PriceSheet& sheet, std::size_t line) {
  const std::vector<std::string> headings = PlainHeadings(sheet, line);
  std::array<int, kListColumnCount> cells{};
  for (std::size_t i = 0; i < kListColumnCount; ++i) cells[i] = FindCell(kListColumns[i], headings);
  // A list without a name describes its goods instead.
  if (cells[kProductName] < 0) std::swap(cells[kProductName], cells[kDescription]);
  return cells;
}

// "A" to "Z", then "AA".
std::string ColumnLetters(std::size_t cell) {
  const std::string last(1, static_cast<char>('A' + cell % 26));
  return cell < 26 ? last : ColumnLetters(cell / 26 - 1) + last;
}

}  // namespace

// clang-format off
const std::array<ListColumn, kListColumnCount> kListColumns = {{
    {"ProductName", "Product Name", kText,
     "productname name product itemname item producttitle title designname design fabricname fabric articlename article"},
    {"ItemCode", "Item Code", kText,
     "itemcode code productcode sku ref reference itemref productref itemno itemnumber productno productnumber partno "
     "partnumber stockcode articleno articlenumber articlecode designcode patternno style styleno"},
    {"BarCode", "Bar Code", kText,
     "barcode barcodeno barcodenumber ean ean13 eancode gtin gtin13 upc upccode isbn"},
    {"SellingPrice", "Selling Price Includes Vat/Tax", kPrice,
     "sellingprice sellingpriceincludesvattax rrp rrpincvat rrpincludingvat rrpinclvat retail retailprice "
     "retailincvat retailpriceincvat retailinclvat recommendedretailprice suggestedretailprice srp msrp selling "
     "sellprice saleprice salesprice priceincvat priceinclvat priceincludingvat"},
    {"BuyPrice", "Buying Price Excludes Vat", kPrice,
     "buyprice buyingprice buyingpriceexcludesvat trade tradeprice tradeexvat tradepriceexvat cost costprice "
     "costexvat costpriceexvat wholesale wholesaleprice purchaseprice dealerprice netcost yourprice unitcost"},
    {"PriceWithOutVat", "Price Excludes Vat", kPrice,
     "pricewithoutvat priceexcludesvat priceexvat priceexclvat priceexcludingvat rrpexvat rrpexclvat "
     "rrpexcludingvat retailexvat retailpriceexvat retailexclvat"},
    {"SuppliersName", "Suppliers Name", kText,
     "suppliersname suppliername supplier brand manufacturer maker vendor mill"},
    {"SuppliersShortCode", "Suppliers Short Code", kText,
     "suppliersshortcode supplierscode suppliercode supplierno vendorcode"},
    {"Description", "Description", kText,
     "description desc productdescription itemdescription longdescription details colour color colourname colorname "
     "colourway"},
    {"Category", "Category", kText, "category productcategory type producttype group productgroup range department"},
    {"BookName", "Book Name", kText, "bookname book patternbook samplebook collection collectionname"},
    {"Width", "Width in CM", kText, "width widthincm widthcm widthcms fabricwidth fabricwidthcm usablewidth"},
    {"PattrenRepeat", "P-Repeat in CM", kText,
     "pattrenrepeat patternrepeat patternrepeatcm patternrepeatincm prepeat prepeatincm repeat repeatcm "
     "verticalrepeat verticalrepeatcm vrepeat"},
    {"BatchNo", "Batch/Shelf Num", kText, "batchno batch batchshelfnum batchnumber shelf shelfnum shelfno"},
    {"Remarks", "Remarks", kMemo, "remarks remark notes note comments comment composition"},
}};
// clang-format on

std::string PlainHeading(std::string_view heading) {
  std::string plain;
  for (std::size_t at = 0; at < heading.size();) {
    const DecodedCharacter decoded = DecodeCharacter(heading, at);
    at += decoded.length;
    const char32_t folded = FoldCharacter(decoded.character);
    const bool letter = (folded >= U'a' && folded <= U'z') || (folded >= U'0' && folded <= U'9');
    if (letter || !IsMark(folded)) plain += EncodeCharacter(folded);
  }
  return plain;
}

ColumnMatch MatchColumns(const PriceSheet& sheet) {
  ColumnMatch best;
  std::ptrdiff_t most = 0;
  for (std::size_t line = 0; line < std::min(kLinesLookedAt, sheet.LineCount()); ++line) {
    const auto cells = MatchLine(sheet, line);
    const auto known = std::count_if(cells.begin(), cells.end(), [](int cell) { return cell >= 0; });
    if (known <= most) continue;
    most = known;
    best = {line, cells};
  }
  return best;
}

std::vector<std::string> HeadingNames(const PriceSheet& sheet, std::size_t heading_line) {
  std::vector<std::string> names;
  names.reserve(sheet.ColumnCount());
  for (std::size_t cell = 0; cell < sheet.ColumnCount(); ++cell) {
    const std::string name(sheet.LineCount() == 0 ? "" : sheet.At(heading_line, cell).text);
    bool alone = !name.empty() && !name.starts_with('(');
    for (std::size_t other = 0; alone && other < sheet.ColumnCount(); ++other) {
      alone = other == cell || sheet.At(heading_line, other).text != name;
    }
    const std::string letters = "(column " + ColumnLetters(cell) + ")";
    const std::string_view between = alone || name.empty() ? "" : " ";
    names.push_back(name);
    names.back().append(between).append(alone ? "" : letters);
  }
  return names;
}

}  // namespace tarvane::catalogues
