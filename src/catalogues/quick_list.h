#pragma once

#include "listing/reclist_engine.h"
#include "screen/control.h"
#include "screen/field.h"

namespace tarvane::catalogues {

class Catalogue;

// All rows of a catalogue as a list of short lines, shown once it has been loaded. A click on a line leads to
// its row; while the catalogue shows the rows of a search, lines of others lead nowhere.
class QuickList {
 public:
  using Loader = void (listing::RECLIST_ENGINE::*)(ListBox&);

  // `catalogue` must outlive it. `load` fills the list with lines that begin with the catalogue's key and a
  // star.
  QuickList(Home home, Catalogue& catalogue, Loader load);
  QuickList(const QuickList&) = delete;
  QuickList& operator=(const QuickList&) = delete;

  ListBox lstTitles;
  Button Command1;  // loads the list, and brings all rows back

 private:
  void Load();
  void Go();

  Catalogue& catalogue_;
  Loader load_;
};

}  // namespace tarvane::catalogues
