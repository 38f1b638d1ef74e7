#include "curtain_wizard/item_record.h"

#include <gtest/gtest.h>

#include "wizard_shop.h"

namespace tarvane::curtain_wizard {
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
  shop.WithJob([&shop](job::JobScreen& job) {
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
    // The summary is that of the tab in view.
    const std::string summary = job.RoomSummary[0].text();
    job.GoToRoom(3);
    shop.SaveFullItem(job);
    EXPECT_EQ(job.RoomItemGrid[0].RowCount(), 2);
    EXPECT_NE(job.RoomSummary[2].text().find("360.60"), std::string::npos);
    EXPECT_EQ(job.RoomSummary[0].text(), summary);
  });
}

TEST(ItemRecord, EditRestoresAndUpdateReplacesTheRow) {
  WizardShop shop;
  shop.WithJob([&shop](job::JobScreen& job) {
    for (int i = 0; i < 2; ++i) shop.SaveFullItem(job);
    const std::string before = job.RoomItems[0].text();
    shop.Edit(job, 2, [&job](MainCWizard& w) {
      EXPECT_EQ(job.TxtLastOrderNo.text(), "102") << "an edit uses no number up";
      // How trims are counted isn't in the record: by metres again.
      Play(w, R"(
        | ItemNumber=101 InputInInches=on +TrackWidthIns -TrackWidthCm +LiningPrice +CboTieBacks
        | AutoRoundup=on TrimCost=24 TxtVatRate=20.0 AddTrims=on +PlaceTop TxtPriceTarget2=6
        go 1; type FabricPrice 13; go 4; tick TrimPriceExVat; untick TrimPriceExVat | TrimPrice=6; go 6
        press CmdGetInfo | TrimMetres=5 totalCostingWiz=311.50; press CmdUpdateAndClose
      )");
    });
    const std::string& after = job.RoomItems[0].text();
    EXPECT_EQ(after.substr(0, after.find("\r\n")), before.substr(0, before.find("\r\n")));
    EXPECT_EQ(job.RoomItemGrid[0].RowCount(), 2);
    EXPECT_EQ(job.RoomItemGrid[0].Cell(2, job::kPriceColumn), "373.80");
    EXPECT_EQ(job.RoomItemGrid[0].Cell(2, job::kDescriptionColumn),
              "Pinch Pleat - Room 1 - Bay window Track Width = 254Cms (100ins) X Drop = 203.2Cms (80ins)"
              " # Fabric = Blue linen Qty = 10 Mts # "
              " # Tie backs Needed. # Lined. # Interlined # Border Required ");
    EXPECT_EQ(job.RoomTotal[0].text(), "734.40");
    EXPECT_EQ(shop.folder.Stored(kJobTable, 0, "1T(0)"), after) << "committed by the wizard";
  });
}

TEST(ItemRecord, WhatCannotBeCommittedCanBeSavedAgain) {
  WizardShop shop;
  shop.WithJob([&shop](job::JobScreen& job) {
    const auto refused = [&](MainCWizard& w, Button& save, const std::string& items, std::int64_t rows) {
      job.Name.SetText(std::string(256, 'x'));  // more than its column takes
      const std::string room = job.RoomSummary[0].text();
      shop.host.messages.clear();
      save.UserPress();
      save.UserPress();
      EXPECT_FALSE(w.is_closed());
      EXPECT_EQ(shop.host.messages.size(), 2U);
      EXPECT_EQ(job.RoomItems[0].text(), items);
      EXPECT_EQ(job.RoomSummary[0].text(), room);
      EXPECT_EQ(job.RoomItemGrid[0].RowCount(), rows);
      job.Name.SetText("Ash");
      save.UserPress();
      EXPECT_TRUE(w.is_closed());
      EXPECT_NE(shop.folder.Stored(kJobTable, 0, "1T(0)"), items);
      EXPECT_EQ(shop.folder.Stored(kJobTable, 0, "1T(0)"), job.RoomItems[0].text());
    };
    shop.Wizard(job, [&](MainCWizard& w) {
      FillFullItem(w);
      refused(w, w.CmdFinishTwo, "", 0);
    });
    EXPECT_EQ(job.RoomItemGrid[0].RowCount(), 1);
    EXPECT_EQ(shop.folder.Stored(kJobTable, 0, "Text10"), job.RoomSummary[0].text());
    const std::string items = job.RoomItems[0].text();
    shop.Edit(job, 1, [&](MainCWizard& w) {
      Play(w, "go 6; press CmdGetInfo");
      refused(w, w.CmdUpdateAndClose, items, 1);
    });
  });
}

// Restores `record` in an edit and looks at the screen.
void Restored(const std::string& record, const WizardShop::Step& look) {
  WizardShop shop;
  shop.WithJob([&](job::JobScreen& job) { shop.Edit(job, 1, look, record); });
  EXPECT_TRUE(shop.host.messages.empty());
}
void Restored(const std::string& record, std::string_view look) {
  Restored(record, [look](MainCWizard& w) { Play(w, look); });
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

TEST(ItemRecord, OddRecords) {
  // A tilde shifts what follows; missing fields are empty texts.
  Restored(Record({{2, "Bay~window"}}), "| TxtDescription=Bay TrackWidthIns=window FinishedLengthIns=100");
  Restored("Room 3~Cafe~", R"(| TxtRoom='Room 3' CboCurtainStyle=Cafe TrackWidthIns= ItemNumber=
    | InputInInches=off NoTieBacks=off UnitCms=on AddTrims=off)");
  Restored(Record({{52, "0.00"}}), "| AddTrims=off -TrimKind");
  // No message of a calculation; the change of kind comes before the amounts.
  Restored(Record({{45, "True"}, {47, "False"}, {35, "Trimming"}}), [](MainCWizard& w) {
    Play(w, "| AutoMeasureGoblet=on TxtAmountInches=130");
    EXPECT_TRUE(w.TrimmingPanel.visible());
    EXPECT_FALSE(w.BordersPanel.visible());
  });
}

TEST(ItemRecord, UnitsAndTicks) {
  const std::array<const char*, 3> units[] = {{"True", "False", "| UnitCms=on UnitMm=off UnitLabel[0]=Cms"},
                                              {"False", "True", "| UnitCms=off UnitMm=on UnitLabel[0]=mm"},
                                              {"", "", "| UnitCms=on UnitMm=off UnitLabel[0]=Cms"},
                                              {"False", "False", "| UnitCms=on UnitMm=off UnitLabel[0]=Cms"},
                                              {"True", "True", "| UnitCms=off UnitMm=on UnitLabel[0]=mm"},
                                              {"x", "true", "| UnitCms=on UnitMm=off UnitLabel[0]=Cms"}};
  for (const auto& [cms, mm, look] : units) Restored(Record({{56, cms}, {57, mm}}), look);
  Restored(Record({{56, ""}, {57, ""}}), [](MainCWizard& w) {
    w.UnitMm.Set(true);
    w.LoadItemRecord();
    Play(w, "| UnitCms=on UnitMm=off");
  });
  Restored(Record({{58, "0"}, {21, "0"}, {28, "1x"}, {29, "yes"}, {23, "1"}}), [](MainCWizard& w) {
    // All sides are chosen.
    Play(w, "| AutoRoundup=off -TrackWidthIns LiningNeeded=on InterliningNeeded=off -PlaceTop");
    w.AutoRoundup.Set(true);
    w.LoadItemRecord();
    EXPECT_TRUE(w.AutoRoundup.on()) << "\"0\" doesn't turn it off";
  });
}

TEST(ItemRecord, UpdateOfARowThatIsGoneChangesNothing) {
  WizardShop shop;
  shop.WithJob([&shop](job::JobScreen& job) {
    const auto update = [&shop](MainCWizard& w) {
      Play(w, "go 6; press CmdGetInfo; press CmdUpdateAndClose");
      EXPECT_FALSE(w.is_closed());
      EXPECT_EQ(shop.host.messages.size(), 1U);
    };
    shop.Edit(job, 7, update, "Room 1~");
    EXPECT_EQ(job.RoomItems[0].text(), "");
  });
}

TEST(ItemRecord, ForATextEditorThePricedTextIsCopiedAlone) {
  WizardShop shop;
  shop.NewItem([&shop](MainCWizard& w) {
    w.ItemTextPriced.SetText("1 - Room\r\n");
    w.CmdCopy.UserPress();
    EXPECT_TRUE(shop.host.clipboard.ends_with("\r\nGrand Total: 0.00\r\n=====================\r\n"));
    shop.host.answers = {Answer::kNo, Answer::kYes};
    w.CopyForTextEditor();
    EXPECT_EQ(shop.host.clipboard, "1 - Room\r\n");
    EXPECT_TRUE(shop.host.launched.empty());
    w.CopyForTextEditor();
    EXPECT_EQ(shop.host.launched.size(), 1U);
  });
}

}  // namespace
}  // namespace tarvane::curtain_wizard
