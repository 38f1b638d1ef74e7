#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "curtain_wizard/wizard.h"
#include "job/job_screen.h"
#include "play.h"
#include "support/fake_host.h"
#include "support/shop_folder.h"

namespace tarvane::curtain_wizard {

// A shop with one job, whose main screen shows the wizard to a test.
class WizardShop {
 public:
  using JobStep = std::function<void(job::JobScreen&)>;
  using Step = std::function<void(MainCWizard&)>;

  explicit WizardShop(std::string_view vat = "0") {
    folder.AddSettings({{"LastOrderNo", "100"}, {"VatAmount", std::string(vat)}});
    folder.AddJob({{"Name", "Ash"}});
  }

  // The job is open and shown during `step`.
  void WithJob(JobStep step) {
    Shop shop(folder.path());
    job::JobScreen job(host, shop);
    job.OpenData();
    host.OnShow<job::JobScreen>(std::move(step));
    job.RunAsMain();
  }
  // Within WithJob: a new item of room 1, or what `prepare` makes of it.
  void Wizard(job::JobScreen& job, Step step, const Step& prepare = {}) {
    MainCWizard wizard(host, job.shop(), job);
    wizard.RoomIndex.SetText("0");
    if (prepare) prepare(wizard);
    host.OnShow<MainCWizard>(std::move(step));
    job.Guard([&] { job.ShowModal(wizard); });
  }
  // As the main screen opens the item of `row`, or that of `record`, for editing.
  void Edit(job::JobScreen& job, int row, Step step, std::string_view record = "") {
    Wizard(job, std::move(step), [&job, row, record](MainCWizard& wizard) {
      wizard.Txtinfo.SetText(record.empty() ? job.RoomItemGrid[0].Cell(row, job::kInfomationColumn) : record);
      wizard.TxtRow.SetText(std::to_string(row));
      wizard.TxtViewOnly.SetText("1");
    });
  }
  void NewItem(Step step) {
    WithJob([this, step = std::move(step)](job::JobScreen& job) { Wizard(job, step); });
  }
  // Within WithJob: the full item (below), saved.
  void SaveFullItem(job::JobScreen& job);
  // A new item that is played.
  void Item(std::string_view script) { NewItem(Played(script)); }
  static Step Played(std::string_view script) {
    return [script](MainCWizard& w) { Play(w, script); };
  }

  ShopFolder folder;
  FakeHost host;
};

// The measurements in inches: a patterned item of 4 widths, 9 patterns of 10 inches, 9.11 metres.
inline constexpr std::string_view kPatternedItem = R"(
  tick InputInInches; type TrackWidthIns 100; type FabricWidthIns 54; type FinishedLengthIns 80
  type PatternRepeatIns 10; type HemAllowanceIns 8
)";

// The full item of the tests: every part used, 300.50 and 20 % VAT.
inline void FillFullItem(MainCWizard& w) {
  Play(w, "type TxtDescription 'Bay window'; type CboCurtainStyle 'Pinch Pleat'");
  Play(w, kPatternedItem);
  Play(w, R"(
    tick AutoRoundup; go 1; type FabricName 'Blue linen'; type FabricPrice 12.5; go 2
    tick TieBacksNeeded; pick CboTieBacks 1; pick TieBackStyle 0; type TxtTieBacksUnitPrice 7.25; go 3
    tick LiningByWidths; tick LiningNeeded; type TxtLiningName Sateen; type LiningPrice 3
    tick InterliningNeeded; type TxtInterliningName Bump; type InterliningPrice 4.50; go 4
    tick AddTrims; type TrimName 'Red border'; pick CboTrims 1; type TxtBorderCutSize 10
    tick TrimByWidths; tick PlaceTop; tick PlaceTwoSides; type TrimPrice 6; press CalculateTrims; go 5
    type LabourPrice 15; type TieBackLabour 5; type ExtraLabourText Hooks; type ExtraLabour 2.50; go 6
    type TxtVatRate 20; press CmdGetInfo
  )");
}

inline void WizardShop::SaveFullItem(job::JobScreen& job) {
  Wizard(job, [](MainCWizard& w) {
    FillFullItem(w);
    w.CmdFinishTwo.UserPress();
  });
}

}  // namespace tarvane::curtain_wizard
