#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tarvane::catalogues {

// Finds which product each line of a price list means (PricePlan tells the rules), in one pass over each.
class LineMatcher {
 public:
  // What a line or a product is known by; each may be blank.
  struct Known {
    std::string bar_code;
    std::string supplier;
    std::string item_code;
    std::string name;
  };
  struct Found {
    std::int32_t product = -1;           // -1: none, the line is a new product
    std::string_view wrong;              // why it can't be told, "" where it can
    std::optional<std::size_t> same_as;  // another line that means the same
  };

  explicit LineMatcher(std::size_t lines) : lines_(lines) { by_key_.reserve(2 * lines); }

  // Lines first, then products, then Resolve.
  void AddLine(std::size_t line, const Known& known);
  // False where no line can mean it. `product`: its number.
  bool AddProduct(std::int32_t product, const Known& known);
  void Resolve();

  const Found& FoundOf(std::size_t line) const { return lines_[line].found; }

 private:
  // Lines and products with one key: a bar code, or a supplier with a code or a name.
  struct Group {
    std::vector<std::int32_t> products;
    std::vector<std::uint32_t> lines;
    bool decides = false;  // for a line that has nothing stronger
  };
  struct Line {
    std::int32_t bar_code = -1;  // groups
    std::int32_t code = -1;
    std::int32_t name = -1;
    bool no_supplier = false;
    Found found;
  };

  std::int32_t GroupOf(const std::string& key, std::size_t line);
  Group* Find(const std::string& key);
  void ResolveLine(Line& line);
  void MarkTwice(const Group& group);

  std::vector<Line> lines_;
  std::vector<Group> groups_;
  std::unordered_map<std::string, std::int32_t> by_key_;
  std::vector<bool> has_bar_code_;  // by product
  bool any_names_ = false;          // a line is known by its name alone
};

}  // namespace tarvane::catalogues
