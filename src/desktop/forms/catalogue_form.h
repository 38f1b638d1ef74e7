#pragma once

#include <functional>
#include <vector>

#include "catalogues/catalogue.h"
#include "catalogues/quick_list.h"
#include "desktop/builders.h"

namespace tarvane::desktop {

// What differs between the windows of catalogues.
struct CataloguePieces {
  TableLook list;  // the columns that are shown
  // The fields of the record, put when their turn in the Tab order has come.
  std::function<Piece(Builder&)> record;
  // What hands a row over: at the right end, the first one strong where the window was opened for it.
  std::vector<Button*> use = {};
  // Below the list, and beside the buttons that add and save; may be empty.
  std::function<Piece(Builder&)> below_list = {};
  std::vector<Button*> more = {};
  // What a text is looked for in that is typed before a category was chosen; "": the window sees to it.
  std::string_view usual_category = {};
};

// Search on top, the list at the left, the record at the right (below in a narrow window), the buttons below.
// Ctrl+N adds, Ctrl+S saves, Ctrl+F leads to the search.
void FillCatalogue(Form& form, catalogues::Catalogue& screen, const CataloguePieces& pieces);

// The quick list under its button, for below_list. It keeps to some lines, so that the list above it stays in
// view.
Pieces QuickListPieces(Builder& build, catalogues::QuickList& quick);

}  // namespace tarvane::desktop
