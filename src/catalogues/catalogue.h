#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "screen/data_source.h"
#include "screen/finder.h"
#include "screen/record_bar.h"
#include "screen/screen.h"
#include "shop/shop.h"

namespace tarvane::catalogues {

// What differs between catalogues.
struct CatalogueLook {
  std::string_view name;  // of the screen
  std::string_view title;
  std::string_view file;                     // data_file
  std::string_view table;                    // its first column is the key
  std::vector<Finder::Category> categories;  // what may be searched by
  Finder::Look finder = {};                  // what the search buttons are called, and how they behave
  std::string_view record = "Record: ";      // before the position in the record caption
  std::string_view add = "Add New";          // captions
  std::string_view save = "Save";
  std::string_view named_by;  // the column that names a row in questions
  // A row is in the table as soon as it has been added; else with the first save, and only where something
  // was put in.
  bool adds_at_once = false;
};

// A screen over one table of the shop: search on top, a list, the fields of the current row, and the buttons
// that add, save, delete and step.
//
// What differs is a CatalogueLook and the screen's own rules. A derived class declares its fields under the
// names of their columns and calls BindColumns in its constructor:
//   frmSuppliers2::frmSuppliers2(Host& host, Shop& shop) : Catalogue(host, shop, kLook) { BindColumns(); ...
//   }
//
// A pending edit is committed whenever its row stops being current: by a move, a search, a reset, a
// hand-over, or closing. A database that can't be had keeps the screen from being shown, with a message.
class Catalogue : public Screen {
 public:
  Shop& shop() const { return shop_; }
  const CatalogueLook& look() const { return look_; }

  DataSource Data1;
  Finder Search;                               // CboFabSearch, FabSText and its two buttons
  RecordBar Records;                           // its caption goes by RecordCaption
  TableGrid MSFlexGrid1{this, "MSFlexGrid1"};  // every column; the row that is selected becomes current
  Label Messages{this, "Messages"};            // what was found or done last
  Button CmdFabAdd;
  Button Update;
  Button CmdDelete{this, "CmdDelete", "&Delete"};
  Button CmdExcel{this, "CmdExcel", "Copy Contents to &Excel"};
  Button CmdCancel{this, "CmdCancel", "&Close"};

  // What the three buttons do. A new row, at the end; faults where what waits can't be committed.
  virtual void Add();
  virtual void Save();
  // After a question. Nothing without a row.
  virtual void Delete();
  // Commits what waits and makes the row of that key current. A row that isn't among those that were searched
  // leaves the screen where it is.
  void GoToKey(std::string_view key);
  // "Voile, ivory": the row's name in questions; its key where that is blank.
  std::string RowName() const;
  // The field that a worker begins with.
  TextField& first_field() const { return *first_field_; }

  // A screen that was opened to hand a row over: `use` is what Enter in the list, and the window's strong
  // button, press. Null for none: Enter goes to the record.
  Button* use_button() const { return use_; }

 protected:
  Catalogue(Host& host, Shop& shop, const CatalogueLook& look);

  // Binds each column of the table to the field (or tick box) of its name. Fields that go by other names are
  // bound by the screen itself, before. The key's field is read-only. Faults for a column without one.
  void BindColumns();
  void SetFirstField(TextField& field) { first_field_ = &field; }
  // Shows the button, and makes it what the screen is there for. It is off while there is no row.
  void OpenFor(Button& use);
  // Before the current row is handed over: commits what waits. False where there is nothing to hand over: no
  // row, or a new one in which nothing was put, which is gone then.
  bool LeaveForUse();

  void Load() override;
  bool MayClose() override;

  // What a new row starts with.
  virtual void SetDefaults() {}
  // Before a save, as a worker presses it.
  virtual void BeforeSave() {}
  // How many rows a search found.
  virtual void TellFound(std::int64_t count);

 private:
  void SetRules();
  void TellNotices();

  Shop& shop_;
  CatalogueLook look_;
  TextField* first_field_ = nullptr;
  Button* use_ = nullptr;
};

}  // namespace tarvane::catalogues
