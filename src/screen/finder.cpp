#include "screen/finder.h"

#include <algorithm>

#include "screen/busy.h"
#include "screen/screen.h"

namespace tarvane {

namespace {

// Only * and ? are wild in what a worker types; the other signs of a pattern stand for themselves.
std::string Pattern(std::string_view typed) {
  std::string pattern;
  for (const char c : typed) {
    if (c == '[' || c == '#') {
      pattern.append("[").append(1, c).append("]");
    } else {
      pattern += c;
    }
  }
  return pattern + "*";
}

}  // namespace

Finder::Finder(Home home, DataSource& source, std::string_view table, std::vector<Category> categories,
               Look look)
    : CboFabSearch(home, "CboFabSearch", look.idle_category),
      FabSText(home, "FabSText"),
      CmdSearch(home, std::string(look.search_name), "Search"),
      CmdReset(home, std::string(look.reset_name), look.reset_caption),
      source_(source),
      table_(table),
      categories_(std::move(categories)),
      look_(look),
      before_([this] { source_.Leave(); }) {
  std::vector<std::string> captions;
  for (const Category& category : categories_) captions.emplace_back(category.caption);
  CboFabSearch.SetEntries(std::move(captions));
  CboFabSearch.OnPicked([this] {
    FabSText.SetEnabled(true);
    CmdSearch.SetEnabled(true);
    FabSText.screen().SetFocus(FabSText);
  });
  FabSText.OnEnterKey([this] { CmdSearch.Press(); });
  CmdSearch.OnClicked([this] { Search(); });
  CmdReset.OnClicked([this] { Reset(); });
  CmdSearch.SetEnabled(!look_.must_choose);
}

std::string Finder::Column() const {
  const auto found = std::ranges::find(categories_, CboFabSearch.text(), &Category::caption);
  const bool told = found != categories_.end() && !found->column.empty();
  return told ? std::string(found->column) : CboFabSearch.text();
}

void Finder::Search() {
  if (source_.HasRow()) before_();
  const std::string query =
      "SELECT * FROM " + table_ + " WHERE " + Column() + " LIKE '" + Pattern(FabSText.text()) + "'";
  std::optional<std::int64_t> count;
  // A pattern with a star in front passes every row of the table.
  const Busy busy(FabSText.screen().host());
  IgnoreFaults([&] {
    mover_([&] { source_.Open(database_(), query); });
    count = source_.rows().RecordCount();
  });
  if (!count) return;
  FabSText.SetText("");
  CboFabSearch.SetText(kPrompt);
  if (look_.must_choose) {
    CmdSearch.SetEnabled(false);
    CboFabSearch.SetVisible(false);
  }
  if (found_) found_(*count);
}

void Finder::Reset() {
  if (source_.HasRow()) before_();
  CboFabSearch.SetText(look_.reset_category);
  CboFabSearch.SetVisible(true);
  CboFabSearch.SetEnabled(true);
  FabSText.SetText("");
  mover_([this] { source_.Open(database_(), table_); });
  if (reset_) reset_();
}

}  // namespace tarvane
