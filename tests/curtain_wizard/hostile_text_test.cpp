#include <gtest/gtest.h>

#include "curtain_wizard/costing.h"
#include "curtain_wizard/item_record.h"
#include "curtain_wizard/window_sketch.h"
#include "wizard_shop.h"

namespace tarvane::curtain_wizard {
namespace {

const std::string kHostileTexts[] = {"",
                                     " ",
                                     "abc",
                                     "-12.5",
                                     "1e308",
                                     "a|b~c\"d'e",
                                     "line\r\nbreak",
                                     "\xFF\xFE",
                                     "\xC3\xA9\xE2\x82\xAC\xF0\x9F\xAA\x9F",
                                     std::string("nul\0byte", 8),
                                     std::string(400, '1'),
                                     std::string(5'000, '9'),
                                     std::string(100'000, 'x')};

// Every field of the wizard gets the text, then the item goes through all steps and its saving.
void RunThrough(MainCWizard& w, const std::string& text) {
  for (Control* control : w.controls()) {
    auto* field = dynamic_cast<TextField*>(control);
    // The tax rate is the shop's, and stored: its column takes less.
    if (field == nullptr || field->never_shown() || field == &w.cboVAT) continue;
    field->UserType(text);
    field->UserEnterKey();
    field->UserLeave();
  }
  Play(w, R"(
    tick LiningByWidths; tick LiningNeeded; tick InterliningNeeded; tick AddTrims; tick TrimByWidths
    tick PlaceTop; tick PlaceFourSides; tick AutoRoundup; tick UnitMm; tick AutoMeasureBoxPleat
    go 6; press CmdGetInfo; go 4; type TrimKind Border; press CalculateTrims; tick TrimPriceExVat
    go 6; press CmdGetInfo; press CmdCopy
  )");
  CostSoFar(w);
  SketchWindow(w);
}

TEST(HostileTexts, NeitherCrashNorFault) {
  for (const std::string& text : kHostileTexts) {
    WizardShop shop("17.5");
    shop.WithJob([&](job::JobScreen& job) {
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
  for (const std::string& text : kHostileTexts) {
    WizardShop shop("17.5");
    std::string record;
    for (int i = 0; i < 70; ++i) record += text + "~";
    shop.WithJob([&](job::JobScreen& job) {
      const auto prepare = [&record](MainCWizard& w) {
        for (TextField* field : {&w.Txtinfo, &w.TxtRow}) field->SetText(record);
        w.TxtViewOnly.SetText("1");
      };
      shop.Wizard(job, WizardShop::Played("go 6; press CmdGetInfo"), prepare);
    });
  }
}

}  // namespace
}  // namespace tarvane::curtain_wizard
