#pragma once

#include <array>
#include <filesystem>

#include "job/option_lists.h"
#include "screen/control_family.h"
#include "screen/screen.h"

namespace tarvane {

// Edits the option lists of the program folder.
class FrmListAdmin : public Screen {
 public:
  FrmListAdmin(Host& host, std::filesystem::path folder);

  // Named Option1 to Option6, in the order of kOptionLists.
  std::array<OptionButton, kOptionLists.size()> Options = MakeFamily<kOptionLists.size()>([this](int i) {
    const OptionList& list = kOptionLists[static_cast<std::size_t>(i)];
    return OptionButton(this, std::string(list.option), list.caption, /*group=*/1);
  });
  ListBox lstData{this, "lstData"};
  TextField txtLog{this, "txtLog"};  // path of the list that is open, label "List Location: "
  Button CMDLOAD{this, "CMDLOAD", "&Load"};
  Button CMDNEW{this, "CMDNEW", "&New"};
  Button CMDADD{this, "CMDADD", "&Add Entry"};
  Button CMDDELETE{this, "CMDDELETE", "&Delete Entry"};
  Button CMDCLEAR{this, "CMDCLEAR", "&Clear List"};
  Button CMDSAVE{this, "CMDSAVE", "&Save"};
  Button Command1{this, "Command1", "Cancel"};
  Label Note{this, "Note"};

  bool changed() const { return changed_; }

 protected:
  bool MayClose() override;

 private:
  void LoadList();
  void AddEntry();
  void DeleteEntry();
  void SetEditing(bool on);
  std::filesystem::path SelectedFile() const;

  std::filesystem::path folder_;
  bool changed_ = false;
};

}  // namespace tarvane
