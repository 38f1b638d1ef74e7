#include "curtain_wizard/item_record.h"

#include <gtest/gtest.h>

#include "wizard_shop.h"

namespace tarvane {
namespace {

const char kFullRecord[] =
    "Room 1~Pinch Pleat~Bay window~100~80~54~2~10~9~4~360~8~"               // 0 to 11
    "254~137.16~203.2~25.4~Blue linen~20.32~2~90~228.6~1~1~0~1~0~1~0~1~1~"  // 12 to 29
    "12.5~0.50~15~6~Crescent Shaped Stiff (Buckram)~Border~False~True~"     // 30 to 37
    "1 - 1.5 Widths 50.8cm (20in)~2~7.25~Border to 2 sides and base~"       // 38 to 41
    "Red border~10~0~False~False~True~10~4~130~4~24~5~Hooks~2.50~"          // 42 to 55
    "True~False~1~3~4.50~20.0~100~Bump~Sateen~";                            // 56 to 64

TEST(ItemRecord, Split) {
  EXPECT_EQ(SplitItemRecord("a~~b\r\nc~rest"), (std::vector<std::string>{"a", "", "bc"}));
  EXPECT_TRUE(SplitItemRecord("").empty());
  std::string many;
  for (int i = 0; i < 200; ++i) many += "x~";
  EXPECT_EQ(SplitItemRecord(many).size(), 100U);
}

TEST(ItemRecord, NewItemBecomesALineOfTheRoom) {
  WizardShop shop;
  shop.WithJob([&shop](JobScreen& job) {
    std::string texts;
    shop.Wizard(job, [&texts](MainCWizard& w) {
      FillFullItem(w);
      texts = w.ItemTextRoom.text();
      w.CmdFinishTwo.UserPress();
      EXPECT_TRUE(w.is_closed());
    });
    EXPECT_EQ(
        job.RoomItems[0].text(),
        "360.60|Pinch Pleat - Room 1 - Bay window Track Width = 254Cms (100ins) X Drop = 203.2Cms (80ins)|" +
            std::string(kFullRecord) + "|CurtainWizard|100|" + texts + "|\r\n");
    EXPECT_EQ(job.RoomItemGrid[0].RowCount(), 1);
    EXPECT_EQ(job.RoomTotal[0].text(), "360.60");
    const std::string rule(58, '-');
    EXPECT_TRUE(job.RoomSummary[0].text().ends_with("=  -  2.50\r\n\r\n" + rule +
                                                    "\r\nPrice Includes Vat/Tax  360.60\r\n" + rule))
        << job.RoomSummary[0].text();
    EXPECT_NE(job.RoomSummary[0].text().find("\r\n\r\n1 - Room & Ref No: "), std::string::npos);
  });
}

TEST(ItemRecord, EditRestoresAndUpdateReplacesTheRow) {
  WizardShop shop;
  shop.WithJob([&shop](JobScreen& job) {
    for (int i = 0; i < 2; ++i) {
      shop.Wizard(job, [](MainCWizard& w) {
        FillFullItem(w);
        w.CmdFinishTwo.UserPress();
      });
    }
    const std::string before = job.RoomItems[0].text();
    shop.Edit(job, 2, [&job](MainCWizard& w) {
      EXPECT_EQ(w.title(), "Edit Entry");
      EXPECT_EQ(w.ItemNumber.text(), "101");
      EXPECT_TRUE(w.InputInInches.on());
      EXPECT_TRUE(w.TrackWidthIns.enabled());
      EXPECT_FALSE(w.TrackWidthCm.enabled());
      EXPECT_TRUE(w.LiningPrice.enabled());
      EXPECT_TRUE(w.CboTieBacks.enabled());
      EXPECT_TRUE(w.AutoRoundup.on());
      EXPECT_EQ(w.TrimCost.text(), "24");
      EXPECT_EQ(w.TxtVatRate.text(), "20.0");
      EXPECT_TRUE(w.AddTrims.on()) << "isn't in the record: by the trim's cost";
      EXPECT_TRUE(w.PlaceTop.enabled());
      EXPECT_EQ(job.TxtLastOrderNo.text(), "102") << "an edit uses no number up";
      GoTo(w, 1);
      w.FabricPrice.UserType("13");
      GoTo(w, 6);
      EXPECT_FALSE(w.CmdUpdateAndClose.enabled()) << "nothing is saved before Get Info";
      w.CmdGetInfo.UserPress();
      EXPECT_EQ(w.TrimMetres.text(), "5")
          << "counted by metres again: that choice isn't in the record either";
      EXPECT_EQ(w.totalCostingWiz.text(), "311.50");
      w.CmdUpdateAndClose.UserPress();
    });
    const std::string& after = job.RoomItems[0].text();
    EXPECT_EQ(after.substr(0, after.find("\r\n")), before.substr(0, before.find("\r\n")));
    EXPECT_EQ(job.RoomItemGrid[0].RowCount(), 2);
    EXPECT_EQ(job.RoomItemGrid[0].Cell(2, kPriceColumn), "373.80");
    EXPECT_EQ(job.RoomItemGrid[0].Cell(2, kDescriptionColumn),
              "Pinch Pleat - Room 1 - Bay window Track Width = 254Cms (100ins) X Drop = 203.2Cms (80ins)"
              " # Fabric = Blue linen Qty = 10 Mts # "
              " # Tie backs Needed. # Lined. # Interlined # Border Required ");
    EXPECT_EQ(job.RoomTotal[0].text(), "734.40");
  });
}

// Restores `record` in an edit and looks at the screen.
void Restored(const std::string& record, const WizardShop::Step& look, const WizardShop::Step& before = {}) {
  WizardShop shop;
  shop.WithJob([&](JobScreen& job) {
    shop.Wizard(job, look, [&](MainCWizard& w) {
      if (before) before(w);
      w.Txtinfo.SetText(record);
      w.TxtRow.SetText("1");
      w.TxtViewOnly.SetText("1");
    });
  });
  EXPECT_TRUE(shop.host.messages.empty());
}

// kFullRecord with some fields replaced.
std::string Record(const std::vector<std::pair<std::size_t, std::string>>& changes) {
  std::vector<std::string> fields = SplitItemRecord(kFullRecord);
  for (const auto& [place, text] : changes) fields[place] = text;
  std::string record;
  for (const std::string& field : fields) record += field + "~";
  return record;
}

TEST(ItemRecord, RoundTrip) {
  Restored(kFullRecord, [](MainCWizard& w) {
    EXPECT_EQ(ItemRecord(w), kFullRecord);
    w.CompileTxtInfo();
    EXPECT_TRUE(w.Txtinfo.text().ends_with("~20.0~Bump~Sateen~")) << "without the item number";
    EXPECT_EQ(SplitItemRecord(w.Txtinfo.text()).size(), 64U);
  });
}

TEST(ItemRecord, ATildeShiftsWhatFollows) {
  Restored(Record({{2, "Bay~window"}}), [](MainCWizard& w) {
    EXPECT_EQ(w.TxtDescription.text(), "Bay");
    EXPECT_EQ(w.TrackWidthIns.text(), "window");
    EXPECT_EQ(w.FinishedLengthIns.text(), "100");
  });
}

TEST(ItemRecord, ShortRecordsReadAsEmptyTexts) {
  Restored("Room 3~Cafe~", [](MainCWizard& w) {
    EXPECT_EQ(w.TxtRoom.text(), "Room 3");
    EXPECT_EQ(w.CboCurtainStyle.text(), "Cafe");
    EXPECT_EQ(w.TrackWidthIns.text(), "");
    EXPECT_EQ(w.ItemNumber.text(), "");
    EXPECT_FALSE(w.InputInInches.on());
    EXPECT_FALSE(w.NoTieBacks.on());
    EXPECT_TRUE(w.UnitCms.on());
  });
}

TEST(ItemRecord, UnitsAndTicks) {
  struct Case {
    std::string cms, mm;
    bool cms_on, mm_on;
    std::string label;
  };
  for (const Case& c : {Case{"True", "False", true, false, "Cms"}, Case{"False", "True", false, true, "mm"},
                        Case{"", "", true, false, "Cms"}, Case{"False", "False", true, false, "Cms"},
                        Case{"True", "True", false, true, "mm"}, Case{"x", "true", true, false, "Cms"}}) {
    Restored(Record({{56, c.cms}, {57, c.mm}}), [&c](MainCWizard& w) {
      EXPECT_EQ(w.UnitCms.on(), c.cms_on) << c.cms << ' ' << c.mm;
      EXPECT_EQ(w.UnitMm.on(), c.mm_on) << c.cms << ' ' << c.mm;
      EXPECT_EQ(w.UnitLabel[0].caption(), c.label) << c.cms << ' ' << c.mm;
    });
  }
  Restored(
      Record({{58, "0"}, {21, "0"}, {28, "1x"}, {29, "yes"}, {23, "1"}}),
      [](MainCWizard& w) {
        EXPECT_TRUE(w.AutoRoundup.on()) << "\"0\" doesn't turn it off";
        EXPECT_FALSE(w.TrackWidthIns.enabled());
        EXPECT_TRUE(w.LiningNeeded.on());
        EXPECT_FALSE(w.InterliningNeeded.on());
        w.AddTrims.UserSet(true);
        EXPECT_FALSE(w.PlaceTop.enabled()) << "all sides";
      },
      [](MainCWizard& w) { w.AutoRoundup.Set(true); });
  Restored(Record({{45, "True"}, {47, "False"}, {35, "Trimming"}}), [](MainCWizard& w) {
    EXPECT_TRUE(w.AutoMeasureGoblet.on()) << "and no message of its calculation";
    EXPECT_TRUE(w.TrimmingPanel.visible());
    EXPECT_FALSE(w.BordersPanel.visible());
    EXPECT_EQ(w.TxtAmountInches.text(), "130") << "the change of kind comes before the amounts";
  });
}

TEST(ItemRecord, UpdateOfARowThatIsGoneChangesNothing) {
  WizardShop shop;
  shop.WithJob([&shop](JobScreen& job) {
    shop.Edit(job, 7, [&shop](MainCWizard& w) {
      w.CmdUpdateAndClose.UserPress();
      EXPECT_FALSE(w.is_closed());
      EXPECT_EQ(shop.host.messages.size(), 1U);
    });
    EXPECT_EQ(job.RoomItems[0].text(), "");
  });
}

TEST(ItemRecord, Clipboard) {
  WizardShop shop;
  shop.NewItem([&shop](MainCWizard& w) {
    GoTo(w, 6);
    w.CmdCopy.UserPress();
    EXPECT_EQ(shop.host.messages.back(), "Nothing to copy");
    EXPECT_EQ(shop.host.clipboard, "");
    w.ItemTextPriced.SetText("1 - Room\r\n");
    w.totalCostingWiz.SetText("10.00");
    w.TotalCostingVat.SetText("2.00");
    w.GrandTotal.SetText("12.00");
    w.CmdCopy.UserPress();
    EXPECT_EQ(shop.host.clipboard,
              "1 - Room\r\n\r\n=====================\r\nCosting: 10.00\r\nVat/Tax: 2.00\r\n"
              "Grand Total: 12.00\r\n=====================\r\n");
    EXPECT_EQ(shop.host.messages.back(),
              "This Information has been copied to the clipboard. Use a text editor to print it out.");
    shop.host.answers = {Answer::kNo, Answer::kYes};
    w.CopyForTextEditor();
    EXPECT_EQ(shop.host.clipboard, "1 - Room\r\n");
    EXPECT_TRUE(shop.host.launched.empty());
    w.CopyForTextEditor();
    EXPECT_EQ(shop.host.launched.size(), 1U);
  });
}

}  // namespace
}  // namespace tarvane
