#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "screen/data_source.h"
#include "screen/field.h"

namespace tarvane {

class Database;

// The search of a catalogue: a category, a text in which * and ? are wild, and the buttons that search and
// that bring all rows back. What meets the text from its beginning becomes the source's rows; how many there
// are is told by the screen's own rule. A search that the store refuses ends there in silence: nothing more
// of the action runs and the rows stay.
class Finder {
 public:
  static constexpr std::string_view kPrompt = "<Category to Search>";

  struct Category {
    std::string_view caption;
    std::string_view column;  // "": the caption
  };
  // What differs between screens.
  struct Look {
    std::string_view search_name = "FabSerch";
    std::string_view reset_name = "CmdAllFab";
    std::string_view reset_caption = "Reset  Records ";
    std::string_view idle_category = kPrompt;   // what the category shows at first
    std::string_view reset_category = kPrompt;  // and after a reset
    // After a search the category hides until a reset, and search is off until one has been chosen.
    bool must_choose = false;
  };

  // `source` must outlive the finder; `table` is where its rows come from.
  Finder(Home home, DataSource& source, std::string_view table, std::vector<Category> categories, Look look);
  Finder(const Finder&) = delete;
  Finder& operator=(const Finder&) = delete;

  DropDownList CboFabSearch;
  TextField FabSText;
  Button CmdSearch;
  Button CmdReset;

  // Before the rows are replaced: commit what waits. The default does that.
  void BeforeSearch(Rule rule) { before_ = std::move(rule); }
  // Told after a search, with the true count.
  void OnFound(std::function<void(std::int64_t count)> rule) { found_ = std::move(rule); }
  // After all rows are back, the first one current.
  void OnReset(Rule rule) { reset_ = std::move(rule); }
  // How the source is moved where only its count is to be right; the default just moves.
  void MoveBy(std::function<void(const std::function<void()>&)> mover) { mover_ = std::move(mover); }
  // The connection to read from; asked for at each search.
  void ReadFrom(std::function<Database&()> database) { database_ = std::move(database); }

  void Search();
  void Reset();

 private:
  std::string Column() const;

  DataSource& source_;
  std::string table_;
  std::vector<Category> categories_;
  Look look_;
  Rule before_;
  std::function<void(std::int64_t)> found_;
  Rule reset_;
  std::function<void(const std::function<void()>&)> mover_ = [](const std::function<void()>& move) {
    move();
  };
  std::function<Database&()> database_;
};

}  // namespace tarvane
