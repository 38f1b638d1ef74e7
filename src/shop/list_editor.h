#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <string_view>

#include "screen/control_family.h"
#include "screen/field.h"
#include "shop/option_lists.h"

namespace tarvane {

class Shop;

// The editor of the option lists, as a part of a screen: one list at a time is loaded, changed, and saved
// whole. It registers its controls with the screen or panel that it stands on; Load, Add, Delete and Save are
// off until there is a list to work on.
//
// Loading another list and MayClose stop, with a message, while changes aren't saved. Entries that saving
// can't keep (no list was loaded, or its file couldn't be written) are asked for before they go.
class ListEditor {
 public:
  static constexpr std::string_view kTitle = "Tarvane Listed";

  // The options are named "Option" and a number from `first_option` on, and are group `group` of the screen.
  // `shop` must outlive the editor. `after_save` runs once a list has been saved; may be empty.
  ListEditor(Home home, Shop& shop, int first_option, int group, std::function<void()> after_save = {});
  ListEditor(const ListEditor&) = delete;
  ListEditor& operator=(const ListEditor&) = delete;

  // Entries were added or deleted and Save not pressed since.
  bool changed() const { return changed_; }
  // Empties the list and lets the worker type into it; where it is saved to stays.
  void StartEmpty();
  // False where the screen has to stay open for what isn't saved; the worker has been told or asked.
  bool MayClose();

  // In the order of kOptionLists.
  std::array<OptionButton, kOptionLists.size()> Options;
  ListBox lstData;
  TextField txtLog;  // path of the list that is loaded, label "List Location: "; empty for none
  Button CMDLOAD;
  Button CMDADD;
  Button CMDDELETE;
  Button CMDSAVE;

 private:
  const OptionList& Chosen() const;
  void LoadList();
  void AddEntry();
  void DeleteEntry();
  void SaveList();
  void SetEditing(bool on);
  bool MayDrop(std::string_view told);
  bool MayDropTyped();

  Shop& shop_;
  std::function<void()> after_save_;
  bool changed_ = false;
  bool typed_ = false;  // entries that are in no file
};

}  // namespace tarvane
