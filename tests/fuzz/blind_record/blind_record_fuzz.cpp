#include <algorithm>
#include <string>
#include <string_view>

#include "blinds/item_wizard.h"
#include "fuzz/require.h"
#include "job/job_screen.h"
#include "job/room_text.h"
#include "support/silent_shop.h"

// An item is opened from a record that may be any text, added up and saved; what was saved must come back.
namespace tarvane {
namespace {

using blinds::WizardNewBlinds;

void OpenItem(SilentShop& shop, const std::string& record,
              const std::function<void(WizardNewBlinds&)>& step) {
  WizardNewBlinds wizard(shop.host, shop.shop, shop.job);
  wizard.TargetRoomIndex.SetText("0");
  wizard.Txtinfo.SetText(record);
  wizard.TxtRow.SetText("1");
  shop.host.step = [&](Screen&) { step(wizard); };
  shop.job.ShowModal(wizard);
}

// Two passes later the record is what it stays: quantities and prices have their decimals.
std::string Settled(WizardNewBlinds& wizard) {
  wizard.SSTab1.UserSelect(1);
  wizard.SSTab1.UserSelect(0);
  return blinds::WriteRecord(wizard.Texts());
}

// The grand total apart, which isn't read: a line beyond all numbers keeps the total that it had before.
std::string_view WithoutTotal(std::string_view record) {
  record.remove_suffix(1);
  return record.substr(0, record.rfind('~'));
}

void Check(SilentShop& shop, const std::string& record) {
  HeldGrid& grid = shop.job.RoomItemGrid[0];
  grid.SetRows({HeldGrid::Row{"1", "0.00", "", record, "AddItem", "1", ""}});
  shop.job.RewriteRoomText(0);
  std::string saved;
  OpenItem(shop, record, [&](WizardNewBlinds& wizard) {
    saved = Settled(wizard);
    Require(std::ranges::count(saved, '~') == 42);
    wizard.Command3.UserPress();
    Require(wizard.CompiledItemText.text().starts_with("~Item Number: "));
    (record.empty() ? wizard.CmdFinishTwo : wizard.CmdUpdateAndClose).UserPress();
    // A total of more digits than the job has room for is refused; a line end makes a line of its own in the
    // room, with any price.
    const bool too_long =
        wizard.Elements.TxtGrandTotal.text().size() > 200 || record.find('\n') != std::string::npos;
    Require(wizard.is_closed() == wizard.item_saved() && (wizard.is_closed() || too_long));
  });
  OpenItem(shop, saved,
           [&](WizardNewBlinds& wizard) { Require(WithoutTotal(Settled(wizard)) == WithoutTotal(saved)); });
  shop.job.LoadRoom();
}

}  // namespace
}  // namespace tarvane

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static tarvane::SilentShop shop;
  tarvane::Check(shop, std::string(tarvane::InputText(data, size)));
  return 0;
}
