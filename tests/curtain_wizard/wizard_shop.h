#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "curtain_wizard/wizard.h"
#include "job/job_screen.h"
#include "support/fake_host.h"
#include "support/shop_folder.h"

namespace tarvane {

// A shop with one job, whose main screen shows the wizard to a test.
class WizardShop {
 public:
  using JobStep = std::function<void(JobScreen&)>;
  using Step = std::function<void(MainCWizard&)>;

  explicit WizardShop(std::string_view vat = "0") {
    folder.AddSettings({{"LastOrderNo", "100"}, {"VatAmount", std::string(vat)}});
    folder.AddJob({{"Name", "Ash"}});
  }

  // The job is open and shown during `step`.
  void WithJob(JobStep step) {
    JobScreen job(host, folder.path());
    job.OpenData();
    host.OnShow<JobScreen>(std::move(step));
    job.RunAsMain();
  }
  // Within WithJob: a new item of room 1, or what `prepare` makes of it.
  void Wizard(JobScreen& job, Step step, const Step& prepare = {}) {
    MainCWizard wizard(host, job);
    wizard.RoomIndex.SetText("0");
    if (prepare) prepare(wizard);
    host.OnShow<MainCWizard>(std::move(step));
    job.ShowModal(wizard);
  }
  // As the main screen opens an item for editing.
  void Edit(JobScreen& job, int row, Step step) {
    Wizard(job, std::move(step), [&job, row](MainCWizard& wizard) {
      wizard.Txtinfo.SetText(job.RoomItemGrid[0].Cell(row, kInfomationColumn));
      wizard.TxtRow.SetText(std::to_string(row));
      wizard.TxtViewOnly.SetText("1");
    });
  }
  void NewItem(Step step) {
    WithJob([this, step = std::move(step)](JobScreen& job) { Wizard(job, step); });
  }

  ShopFolder folder;
  FakeHost host;
};

// Types the measurements in inches: a patterned item of 4 widths, 9 patterns of 10 inches, 9.11 metres.
inline void TypePatternedItem(MainCWizard& w) {
  w.InputInInches.UserSet(true);
  w.TrackWidthIns.UserType("100");
  w.FabricWidthIns.UserType("54");
  w.FinishedLengthIns.UserType("80");
  w.PatternRepeatIns.UserType("10");
  w.HemAllowanceIns.UserType("8");
}

inline void GoTo(MainCWizard& w, int step) {
  while (w.step() < step) w.CmdNext.UserPress();
  while (w.step() > step) w.CmdBack.UserPress();
}

// The full item of the tests: every part used, 300.50 and 20 % VAT.
inline void FillFullItem(MainCWizard& w) {
  w.TxtDescription.UserType("Bay window");
  w.CboCurtainStyle.UserType("Pinch Pleat");
  TypePatternedItem(w);
  w.AutoRoundup.UserSet(true);
  GoTo(w, 1);
  w.FabricName.UserType("Blue linen");
  w.FabricPrice.UserType("12.5");
  GoTo(w, 2);
  w.TieBacksNeeded.UserSet(true);
  w.CboTieBacks.UserPick(1);
  w.TieBackStyle.UserPick(0);
  w.TxtTieBacksUnitPrice.UserType("7.25");
  GoTo(w, 3);
  w.LiningByWidths.UserSet(true);
  w.LiningNeeded.UserSet(true);
  w.TxtLiningName.UserType("Sateen");
  w.LiningPrice.UserType("3");
  w.InterliningNeeded.UserSet(true);
  w.TxtInterliningName.UserType("Bump");
  w.InterliningPrice.UserType("4.50");
  GoTo(w, 4);
  w.AddTrims.UserSet(true);
  w.TrimName.UserType("Red border");
  w.CboTrims.UserPick(1);
  w.TxtBorderCutSize.UserType("10");
  w.TrimByWidths.UserSet(true);
  w.PlaceTop.UserSet(true);
  w.PlaceTwoSides.UserSet(true);
  w.TrimPrice.UserType("6");
  w.CalculateTrims.UserPress();
  GoTo(w, 5);
  w.LabourPrice.UserType("15");
  w.TieBackLabour.UserType("5");
  w.ExtraLabourText.UserType("Hooks");
  w.ExtraLabour.UserType("2.50");
  GoTo(w, 6);
  w.TxtVatRate.UserType("20");
  w.CmdGetInfo.UserPress();
}

}  // namespace tarvane
