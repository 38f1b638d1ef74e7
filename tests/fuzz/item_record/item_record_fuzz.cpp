#include <string>

#include "curtain_wizard/costing.h"
#include "curtain_wizard/item_record.h"
#include "curtain_wizard/window_sketch.h"
#include "curtain_wizard/wizard.h"
#include "fuzz/require.h"
#include "job/job_screen.h"
#include "job/room_text.h"
#include "support/silent_shop.h"

// An item is opened from a record that may be any text, taken through all steps and saved; what was saved
// must come back the same.
namespace tarvane {
namespace {

using curtain_wizard::MainCWizard;

void OpenItem(SilentShop& shop, const std::string& record, const std::function<void(MainCWizard&)>& step) {
  MainCWizard wizard(shop.host, shop.shop, shop.job);
  wizard.RoomIndex.SetText("0");
  wizard.Txtinfo.SetText(record);
  wizard.TxtRow.SetText("1");
  wizard.TxtViewOnly.SetText("1");
  shop.host.step = [&](Screen&) { step(wizard); };
  shop.job.ShowModal(wizard);
}

void WalkThrough(MainCWizard& wizard) {
  wizard.AddTrims.UserSet(true);
  while (wizard.step() < MainCWizard::kSteps - 1) wizard.CmdNext.UserPress();
  wizard.CmdGetInfo.UserPress();
  Require(!curtain_wizard::CostSoFar(wizard).empty());
  const curtain_wizard::WindowSketch sketch = curtain_wizard::SketchWindow(wizard);
  Require(sketch.track >= 0 && sketch.widths >= 0 && sketch.cut_length >= 0);
  wizard.CmdUpdateAndClose.UserPress();
  Require(wizard.is_closed());
}

void Check(SilentShop& shop, const std::string& record) {
  std::string restored;
  OpenItem(shop, record, [&](MainCWizard& wizard) { restored = curtain_wizard::ItemRecord(wizard); });
  // Fields cut at "~" hold none, so that the record is whole again.
  if (!record.empty()) {
    Require(curtain_wizard::SplitItemRecord(restored).size() == curtain_wizard::kItemRecordFields);
    std::string again;
    OpenItem(shop, restored, [&](MainCWizard& wizard) { again = curtain_wizard::ItemRecord(wizard); });
    Require(again == restored);
  }

  HeldGrid& grid = shop.job.RoomItemGrid[0];
  grid.SetRows({HeldGrid::Row{"1", "0.00", "", record, "CurtainWizard", "1", ""}});
  shop.job.RewriteRoomText(0);
  OpenItem(shop, grid.Cell(1, job::kInfomationColumn), [&](MainCWizard& wizard) {
    if (!record.empty()) WalkThrough(wizard);
  });
  shop.job.LoadRoom();
}

}  // namespace
}  // namespace tarvane

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static tarvane::SilentShop shop;
  tarvane::Check(shop, std::string(tarvane::InputText(data, size)));
  return 0;
}
