#include "catalogues/price_list/line_matcher.h"

#include <algorithm>

#include "text/fold.h"
#include "text/trim.h"

namespace tarvane::catalogues {

namespace {

constexpr std::string_view kManyBarCodes = "more than one product has this bar code";
constexpr std::string_view kManyCodes = "more than one product of the supplier has this code";
constexpr std::string_view kManyNames = "more than one product of the supplier has this name";
constexpr std::string_view kTwoProducts = "bar code and item code belong to different products";
constexpr std::string_view kNoSupplier = "no supplier";
constexpr std::string_view kNothing = "no name and no code";

void AddFolded(std::string& key, std::string_view text) {
  text = Trim(text);
  for (std::size_t at = 0; at < text.size();) {
    const DecodedCharacter decoded = DecodeCharacter(text, at);
    const char32_t folded = FoldCharacter(decoded.character);
    if (folded < 0x80) {
      key += static_cast<char>(folded);
    } else {
      key += EncodeCharacter(folded);
    }
    at += decoded.length;
  }
}

// The kinds of keys are kept apart by their first character.
std::string BarCodeKey(const LineMatcher::Known& known) {
  return std::string(1, 'b').append(Trim(known.bar_code));
}

std::string KeyWithSupplier(char kind, std::string_view supplier, std::string_view text) {
  std::string key(1, kind);
  AddFolded(key, supplier);
  key += '\n';
  AddFolded(key, text);
  return key;
}

bool Has(std::string_view text) { return !Trim(text).empty(); }

bool Holds(const std::vector<std::int32_t>& products, std::int32_t product) {
  return std::find(products.begin(), products.end(), product) != products.end();
}

}  // namespace

std::int32_t LineMatcher::GroupOf(const std::string& key, std::size_t line) {
  const auto [found, fresh] = by_key_.emplace(key, static_cast<std::int32_t>(groups_.size()));
  if (fresh) groups_.emplace_back();
  groups_[static_cast<std::size_t>(found->second)].lines.push_back(static_cast<std::uint32_t>(line));
  return found->second;
}

LineMatcher::Group* LineMatcher::Find(const std::string& key) {
  const auto found = by_key_.find(key);
  return found == by_key_.end() ? nullptr : &groups_[static_cast<std::size_t>(found->second)];
}

void LineMatcher::AddLine(std::size_t line, const Known& known) {
  Line& told = lines_[line];
  const bool bar_code = Has(known.bar_code);
  const bool supplier = Has(known.supplier);
  told.no_supplier = !supplier;
  if (bar_code) told.bar_code = GroupOf(BarCodeKey(known), line);
  if (supplier && Has(known.item_code)) {
    told.code = GroupOf(KeyWithSupplier('c', known.supplier, known.item_code), line);
  } else if (supplier && !bar_code && Has(known.name)) {
    any_names_ = true;
    told.name = GroupOf(KeyWithSupplier('n', known.supplier, known.name), line);
  }
  if (!bar_code && !Has(known.item_code) && !Has(known.name)) told.found.wrong = kNothing;
  const std::int32_t decides = bar_code ? told.bar_code : std::max(told.code, told.name);
  if (decides >= 0) groups_[static_cast<std::size_t>(decides)].decides = true;
}

bool LineMatcher::AddProduct(std::int32_t product, const Known& known) {
  bool meant = false;
  const auto add = [&](const std::string& key) {
    Group* const group = Find(key);
    if (group == nullptr) return;
    group->products.push_back(product);
    meant = true;
  };
  const bool bar_code = Has(known.bar_code);
  if (bar_code) add(BarCodeKey(known));
  if (Has(known.item_code)) add(KeyWithSupplier('c', known.supplier, known.item_code));
  if (any_names_ && Has(known.name)) add(KeyWithSupplier('n', known.supplier, known.name));
  if (meant) has_bar_code_.push_back(bar_code);
  return meant;
}

void LineMatcher::ResolveLine(Line& line) {
  static const Group kNone;
  const auto group = [this](std::int32_t at) -> const Group& {
    return at < 0 ? kNone : groups_[static_cast<std::size_t>(at)];
  };
  const auto& by_bar_code = group(line.bar_code).products;
  std::vector<std::int32_t> by_code = group(line.code).products;
  // Two bar codes are two products, whatever their codes say.
  if (line.bar_code >= 0 && by_bar_code.empty()) {
    std::erase_if(by_code,
                  [this](std::int32_t product) { return has_bar_code_[static_cast<std::size_t>(product)]; });
  }
  const auto& by_name = group(line.name).products;
  if (by_bar_code.size() > 1) {
    line.found.wrong = kManyBarCodes;
  } else if (by_bar_code.size() == 1) {
    line.found.product = by_bar_code.front();
    const bool elsewhere = std::any_of(by_code.begin(), by_code.end(), [this](std::int32_t product) {
      return !has_bar_code_[static_cast<std::size_t>(product)];
    });
    if (elsewhere && !Holds(by_code, by_bar_code.front())) line.found.wrong = kTwoProducts;
  } else if (line.no_supplier && line.found.wrong.empty()) {
    line.found.wrong = kNoSupplier;
  } else if (by_code.size() > 1) {
    line.found.wrong = kManyCodes;
  } else if (by_code.size() == 1) {
    line.found.product = by_code.front();
  } else if (by_name.size() > 1) {
    line.found.wrong = kManyNames;
  } else if (by_name.size() == 1) {
    line.found.product = by_name.front();
  }
}

void LineMatcher::MarkTwice(const Group& group) {
  if (group.lines.size() < 2) return;
  for (const std::uint32_t line : group.lines) {
    const std::uint32_t other = line == group.lines.front() ? group.lines[1] : group.lines.front();
    if (!lines_[line].found.same_as) lines_[line].found.same_as = other;
  }
}

void LineMatcher::Resolve() {
  std::vector<Group> meant(has_bar_code_.size());  // lines by the product that they mean
  for (std::size_t i = 0; i < lines_.size(); ++i) {
    ResolveLine(lines_[i]);
    if (lines_[i].found.product < 0) continue;
    meant[static_cast<std::size_t>(lines_[i].found.product)].lines.push_back(static_cast<std::uint32_t>(i));
  }
  for (const Group& group : groups_) {
    if (group.decides) MarkTwice(group);
  }
  for (const Group& group : meant) MarkTwice(group);
}

}  // namespace tarvane::catalogues
