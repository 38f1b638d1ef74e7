#include "shop/list_editor.h"

#include <string>
#include <utility>

#include "screen/screen.h"
#include "shop/shop.h"

namespace tarvane {

ListEditor::ListEditor(Home home, Shop& shop, int first_option, int group, std::function<void()> after_save)
    : Options(MakeFamily<kOptionLists.size()>([&](int i) {
        return OptionButton(home, "Option" + std::to_string(first_option + i),
                            kOptionLists[static_cast<std::size_t>(i)].caption, group);
      })),
      lstData(home, "lstData"),
      txtLog(home, "txtLog"),
      CMDLOAD(home, "CMDLOAD", "&Load"),
      CMDADD(home, "CMDADD", "&Add Entry"),
      CMDDELETE(home, "CMDDELETE", "&Delete Entry"),
      CMDSAVE(home, "CMDSAVE", "&Save"),
      shop_(shop),
      after_save_(std::move(after_save)) {
  txtLog.SetReadOnly(true);
  Options[0].Set(true);
  SetEditing(false);
  for (OptionButton& option : Options) {
    // Loading a list turned it off; another list may be loaded now.
    option.OnClicked([this] { CMDLOAD.SetEnabled(true); });
  }
  CMDLOAD.OnClicked([this] { LoadList(); });
  CMDADD.OnClicked([this] { AddEntry(); });
  lstData.OnOpened([this] { AddEntry(); });
  CMDDELETE.OnClicked([this] { DeleteEntry(); });
  CMDSAVE.OnClicked([this] { SaveList(); });
}

const OptionList& ListEditor::Chosen() const {
  std::size_t list = 0;
  while (list + 1 < Options.size() && !Options[list].on()) ++list;
  return kOptionLists[list];
}

void ListEditor::SetEditing(bool on) {
  for (Button* button : {&CMDADD, &CMDDELETE, &CMDSAVE}) button->SetEnabled(on);
}

void ListEditor::LoadList() {
  if (!MayDrop("This list box has change please save before loading the next list.")) return;
  // A file that can't be read leaves the list that is shown, and the path that it is saved to, as they are.
  const std::filesystem::path file = shop_.File(Chosen().file);
  lstData.SetEntries(LoadListFile(file));
  txtLog.SetText(file.string());
  changed_ = typed_ = false;
  SetEditing(true);
  CMDLOAD.SetEnabled(false);
}

void ListEditor::StartEmpty() {
  if (txtLog.empty() && !MayDropTyped()) return;
  SetEditing(true);
  lstData.SetEntries({});
}

void ListEditor::AddEntry() {
  const auto entry = lstData.screen().host().Input("User Input", "List Entry:", "");
  if (!entry) return;
  lstData.AddEntry(*entry);
  changed_ = typed_ = true;
}

void ListEditor::DeleteEntry() {
  IgnoreFaults([this] { lstData.RemoveEntry(static_cast<std::size_t>(lstData.selected())); });
  changed_ = true;
}

// One that failed counts as saved in all but what was typed: the worker isn't kept here for ever.
void ListEditor::SaveList() {
  if (SaveListFile(lstData.screen(), txtLog.text(), lstData.entries())) typed_ = false;
  changed_ = false;
  if (after_save_) after_save_();
}

bool ListEditor::MayClose() { return MayDrop("This list box has change please save before exiting."); }

bool ListEditor::MayDrop(std::string_view told) {
  if (changed_) {
    lstData.screen().Message(told, kTitle);
    // Without a file there is nowhere to save it to; then the worker decides.
    if (!txtLog.empty() || !typed_) return false;
  }
  return MayDropTyped();
}

bool ListEditor::MayDropTyped() {
  if (!typed_ || lstData.entries().empty()) return true;
  if (!lstData.screen().AskYesNo(kTitle, "The entries typed here are in no list yet. Drop them?", Answer::kNo,
                                 Icon::kWarning)) {
    return false;
  }
  changed_ = typed_ = false;
  return true;
}

}  // namespace tarvane
