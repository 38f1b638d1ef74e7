#include <gtest/gtest.h>

#include "curtain_wizard/costing.h"
#include "curtain_wizard/item_record.h"
#include "curtain_wizard/window_sketch.h"
#include "wizard_shop.h"

namespace tarvane {
namespace {

std::vector<std::string> HostileTexts() {
  return {"",
          " ",
          "abc",
          "-12.5",
          "1e308",
          std::string(400, '1'),
          "a|b~c\"d'e",
          "line\r\nbreak",
          "\xC3\xA9\xE2\x82\xAC\xF0\x9F\xAA\x9F",
          std::string(100'000, 'x'),
          std::string(5'000, '9'),
          std::string("nul\0byte", 8),
          "\xFF\xFE"};
}

// Every field of the wizard gets the text, then the item goes through all steps and its saving.
void RunThrough(MainCWizard& w, const std::string& text) {
  for (Control* control : w.controls()) {
    auto* field = dynamic_cast<TextField*>(control);
    if (field == nullptr || field->never_shown()) continue;
    field->UserType(text);
    field->UserEnterKey();
    field->UserLeave();
  }
  for (TickBox* box : {&w.LiningByWidths, &w.LiningNeeded, &w.InterliningNeeded, &w.AddTrims, &w.TrimByWidths,
                       &w.PlaceTop, &w.PlaceFourSides, &w.AutoRoundup}) {
    box->UserSet(true);
  }
  w.UnitMm.UserSet(true);
  w.AutoMeasureBoxPleat.UserSet(true);
  GoTo(w, 6);
  w.CmdGetInfo.UserPress();
  GoTo(w, 4);
  w.TrimKind.UserType("Border");
  w.CalculateTrims.UserPress();
  w.TrimPriceExVat.UserSet(true);
  GoTo(w, 6);
  w.CmdGetInfo.UserPress();
  w.CmdCopy.UserPress();
  CostSoFar(w);
  SketchWindow(w);
}

TEST(HostileTexts, NeitherCrashNorFault) {
  for (const std::string& text : HostileTexts()) {
    WizardShop shop("17.5");
    shop.WithJob([&](JobScreen& job) {
      shop.Wizard(job, [&](MainCWizard& w) {
        RunThrough(w, text);
        EXPECT_EQ(ItemRecord(w).find(text) != std::string::npos, true);
        w.CmdFinishTwo.UserPress();
        EXPECT_TRUE(w.is_closed());
      });
      EXPECT_FALSE(job.RoomItems[0].empty());
    });
    for (const std::string& message : shop.host.messages) {
      EXPECT_TRUE(message.starts_with("Box Pleated") || message.starts_with("This Information")) << message;
    }
  }
}

TEST(HostileTexts, AsARecord) {
  for (const std::string& text : HostileTexts()) {
    WizardShop shop("17.5");
    std::string record;
    for (int i = 0; i < 70; ++i) record += text + "~";
    shop.WithJob([&](JobScreen& job) {
      shop.Wizard(
          job,
          [](MainCWizard& w) {
            GoTo(w, 6);
            w.CmdGetInfo.UserPress();
          },
          [&record](MainCWizard& w) {
            w.Txtinfo.SetText(record);
            w.TxtRow.SetText(record);
            w.TxtViewOnly.SetText("1");
          });
    });
  }
}

}  // namespace
}  // namespace tarvane
