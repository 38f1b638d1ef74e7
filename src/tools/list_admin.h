#pragma once

#include "screen/screen.h"
#include "shop/list_editor.h"
#include "shop/shop.h"

namespace tarvane::tools {

// Edits the option lists of the program folder. Stays open while a list has changes that aren't saved.
class FrmListAdmin : public Screen {
 public:
  static constexpr std::string_view kName = "FrmListAdmin";
  FrmListAdmin(Host& host, Shop& shop);

  ListEditor Lists;  // Option1 to Option6
  Button CMDNEW{this, "CMDNEW", "&New"};
  Button CMDCLEAR{this, "CMDCLEAR", "&Clear List"};
  Button Command1{this, "Command1", "Cancel"};
  Label Note{this, "Note"};

 protected:
  bool MayClose() override { return Lists.MayClose(); }
};

}  // namespace tarvane::tools
