#include "tools/list_admin.h"

#include <utility>

namespace tarvane {

namespace {

constexpr std::string_view kSaveTitle = "Tarvane Listed";
constexpr std::size_t kCheckListOption = 4;

}  // namespace

FrmListAdmin::FrmListAdmin(Host& host, std::filesystem::path folder)
    : Screen(host, "FrmListAdmin"), folder_(std::move(folder)) {
  SetTitle("Tarvane Option Lists Manager");
  Note.SetCaption(
      "NOTE: On editing the Sales persons list you will need to close and start Tarvane again to load in the "
      "names.");
  txtLog.SetReadOnly(true);
  Options[0].Set(true);
  SetEditing(false);
  for (OptionButton& option : Options) {
    // Loading a list turned it off; another list may be loaded now.
    option.OnClicked([this] { CMDLOAD.SetEnabled(true); });
  }
  Options[kCheckListOption].OnClicked([this] {
    Message("The Check List system only reads the first 12 items in the list", "Tarvane List Admin");
  });
  CMDLOAD.OnClicked([this] { LoadList(); });
  CMDNEW.OnClicked([this] {
    SetEditing(true);
    lstData.SetEntries({});
  });
  CMDADD.OnClicked([this] { AddEntry(); });
  lstData.OnOpened([this] { AddEntry(); });
  CMDDELETE.OnClicked([this] { DeleteEntry(); });
  CMDCLEAR.OnClicked([this] { lstData.SetEntries({}); });
  CMDSAVE.OnClicked([this] {
    SaveListFile(*this, txtLog.text(), lstData.entries());
    changed_ = false;
  });
  Command1.OnClicked([this] {
    if (MayClose()) Close();
  });
}

std::filesystem::path FrmListAdmin::SelectedFile() const {
  std::size_t list = 0;
  while (list + 1 < Options.size() && !Options[list].on()) ++list;
  return FindFile(folder_, kOptionLists[list].file);
}

void FrmListAdmin::SetEditing(bool on) {
  for (Button* button : {&CMDADD, &CMDCLEAR, &CMDDELETE, &CMDSAVE}) button->SetEnabled(on);
}

void FrmListAdmin::LoadList() {
  if (changed_) {
    Message("This list box has change please save before loading the next list.", kSaveTitle);
    return;
  }
  txtLog.SetText(SelectedFile().string());
  lstData.SetEntries(LoadListFile(txtLog.text()));
  SetEditing(true);
  CMDLOAD.SetEnabled(false);
}

void FrmListAdmin::AddEntry() {
  const auto entry = host().Input("User Input", "List Entry:", "");
  if (!entry) return;
  lstData.AddEntry(*entry);
  changed_ = true;
}

void FrmListAdmin::DeleteEntry() {
  IgnoreFaults([this] { lstData.RemoveEntry(static_cast<std::size_t>(lstData.selected())); });
  changed_ = true;
}

bool FrmListAdmin::MayClose() {
  if (changed_) Message("This list box has change please save before exiting.", kSaveTitle);
  return !changed_;
}

}  // namespace tarvane
