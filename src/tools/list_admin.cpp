#include "tools/list_admin.h"

namespace tarvane::tools {

namespace {

constexpr int kFirstOption = 1;
constexpr int kListGroup = 1;
constexpr std::size_t kCheckListOption = 4;

}  // namespace

FrmListAdmin::FrmListAdmin(Host& host, Shop& shop)
    : Screen(host, std::string(kName)), Lists(this, shop, kFirstOption, kListGroup) {
  SetTitle("Tarvane Option Lists Manager");
  Note.SetCaption(
      "NOTE: On editing the Sales persons list you will need to close and start Tarvane again to load in the "
      "names.");
  Lists.Options[kCheckListOption].OnClicked([this] {
    Message("The Check List system only reads the first 12 items in the list", "Tarvane List Admin");
  });
  CMDNEW.OnClicked([this] { Lists.StartEmpty(); });
  CMDCLEAR.OnClicked([this] { Lists.lstData.SetEntries({}); });
  // Clearing goes with the other ways of editing.
  CMDCLEAR.SetEnabled(false);
  for (Button* button : {&Lists.CMDLOAD, &CMDNEW}) {
    button->OnClicked([this] { CMDCLEAR.SetEnabled(Lists.CMDADD.enabled()); });
  }
  Command1.OnClicked([this] {
    if (MayClose()) Close();
  });
}

}  // namespace tarvane::tools
