#include <gtest/gtest.h>

#include <algorithm>

#include "catalogues/products.h"
#include "curtain_wizard/pleats.h"
#include "curtain_wizard/pricing.h"
#include "curtain_wizard/pricing_entry.h"
#include "curtain_wizard/single_item.h"
#include "wizard_shop.h"

namespace tarvane::curtain_wizard {
namespace {

TEST(PleatLayout, SpreadsPleatsAndSpacesAlike) {
  struct Case {
    const char* track;
    const char* pleats;
    const char* earlier;
    const char* size;
    const char* count;
    const char* spaces;  // as they are told
  };
  constexpr Case kCases[] = {
      {"100", "10", "0", "4.8", "10.0", "9 @ 4.8"},
      {" 1 0 0 ", "10", "0", "4.8", "10.0", "9 @ 4.8"},
      // One decimal; the count comes of the size before it was rounded.
      {"100", "7", "0", "6.9", "7.0", "6 @ 6.9"},
      {"100", "7.25", "0", "6.6", "7.3", "6.3 @ 6.6"},
      {"51.3", "9", "0", "2.6", "9.0", "8 @ 2.6"},
      {"100", "5 goblets", "0", "9.6", "5.0", "4 @ 9.6"},
      {"42", "-4", "0", "-4.8", "-4.0", "-5 @ -4.8"},
      // Nothing to divide by: the earlier size stands, and the count follows it.
      {"100", "0", "4.8", "4.8", "10.0", "9 @ 4.8"},
      {"100", "", "0", "0.0", "0.0", "-1 @ 0"},
      {"100", "none", "6.9", "6.9", "7.0", "6 @ 6.9"},
      // What is taken off is more than there is.
      {"4", "3", "0", "0.0", "0.0", "-1 @ 0"},
      {"3", "2", "0", "-0.3", "2.0", "1 @ -0.3"},
      // A track that is no number counts as none.
      {"", "2", "0", "-1.0", "2.0", "1 @ -1"},
      {"100ins", "2", "0", "-1.0", "2.0", "1 @ -1"},
  };
  for (const Case& c : kCases) {
    SCOPED_TRACE(std::string(c.track) + " " + c.pleats);
    const PleatLayout layout = LayOutPleats(c.track, c.pleats, c.earlier);
    EXPECT_EQ(layout.size, c.size);
    EXPECT_EQ(layout.count, c.count);
    EXPECT_NE(layout.Text("Pinch = ", c.pleats).find(std::string(" ins - Spaces = ") + c.spaces + " ins - "),
              std::string::npos)
        << layout.Text("Pinch = ", c.pleats);
  }
}

TEST(Pleats, TheInchesOfTheTrackLeadAlsoWhereTheyWereTheSame) {
  WizardShop shop;
  shop.NewItem([&shop](MainCWizard& w) {
    Play(w, "tick InputInInches; type TrackWidthIns 100; key TrackWidthIns; type TrackWidthCm 1");
    shop.host.OnShow<FrmPleats>([](FrmPleats& p) {
      Play(p, "click PleatPinch; type PleatTrack 100; type PleatCount 10; press CmdCalculate; press CmdUse");
    });
    w.CmdGobletWizard.UserPress();
    Play(w, "| TrackWidthCm=254 AutoMeasureGoblet=on NumberOfDrops=5");
    EXPECT_EQ(shop.host.messages, std::vector<std::string>{"Pinch - Track X by 2.5 = 250"});
    EXPECT_EQ(w.focus(), &w.FabricWidthIns);
    // Cancelled, it leaves the focus where it is, and the item.
    shop.host.OnShow<FrmPleats>([](FrmPleats& p) { Play(p, "type PleatTrack 7; press CmdCancel"); });
    w.CmdGobletWizard.UserPress();
    Play(w, "| TrackWidthIns=100");
    EXPECT_EQ(w.focus(), &w.CmdGobletWizard);
  });
}

// The wizard's boxes after each text of the row, and before it.
TEST(Pricing, ARowGoesIntoTheWizard) {
  struct Case {
    RowValues row;
    const char* before;
    const char* after;
  };
  const Case cases[] = {
      {{{"AutoRoundUp", "YES"}}, "tick AutoRoundup", "| AutoRoundup=on"},
      {{{"AutoRoundUp", "NO"}}, "tick AutoRoundup", "| AutoRoundup=on"},
      {{{"AutoRoundUp", "off"}}, "tick AutoRoundup", "| AutoRoundup=on"},
      {{{"AutoRoundUp", "OFF"}}, "tick AutoRoundup", "| AutoRoundup=off"},
      {{{"AutoRoundUp", "ON"}}, "", "| AutoRoundup=on"},
      {{{"HemsIns", "8"}, {"HemsCms", "30"}}, "type HemAllowanceIns 8", "| HemAllowanceCm=20.32"},
      {{{"HemsIns", "deep"}, {"HemsCms", "30"}}, "", "| HemAllowanceIns=deep HemAllowanceCm=30"},
      {{{"HemsIns", ""}, {"HemsCms", "30"}}, "", "| HemAllowanceIns=0 HemAllowanceCm=0"},
      {{{"Fullness", "3"}}, "", "| FullnessMirror=3"},
      {{}, "type LabourPrice 15; type TxtDescription Bay", "| LabourPrice= TxtDescription="},
      {{{"Reference", "a|b~c"}}, "", "| TxtDescription=a|b~c"},
  };
  for (const Case& c : cases) {
    WizardShop shop;
    shop.folder.AddRow(kPricingTable, c.row);
    shop.NewItem([&](MainCWizard& w) {
      Play(w, c.before);
      shop.host.OnShow<FrmPopUp1>([](FrmPopUp1& f) { Play(f, "| +CmdUse ^CmdUse; press CmdUse"); });
      w.CmdSelect.UserPress();
      Play(w, c.after);
      EXPECT_EQ(w.focus(), &w.TrackWidthCm);
    });
  }
}

TEST(Pricing, NothingIsUsedWithoutAWizardOrARow) {
  WizardShop shop;
  shop.folder.MakeFile(kPricingTable);
  shop.WithJob([&shop](job::JobScreen& job) {
    const auto look = [](FrmPopUp1& f) { Play(f, "| -CmdUse -Update -CmdDelete"); };
    FrmPopUp1 alone(shop.host, job.shop());
    shop.host.OnShow<FrmPopUp1>(look);
    job.ShowModal(alone);
    shop.Wizard(job, [&](MainCWizard& w) {
      shop.host.OnShow<FrmPopUp1>(look);
      w.CmdSelect.UserPress();
    });
    shop.folder.AddRow(kPricingTable, {});
    FrmPopUp1 rows(shop.host, job.shop());
    shop.host.OnShow<FrmPopUp1>([](FrmPopUp1& f) { Play(f, "| -CmdUse _CmdUse +Update +CmdDelete"); });
    job.ShowModal(rows);
  });
}

TEST(PricingEntry, FormatsOnLeavingAndKeepsWhatCannotBeSaved) {
  WizardShop shop;
  shop.folder.MakeFile(kPricingTable);
  shop.WithJob([&shop](job::JobScreen& job) {
    FrmPopUp1Options entry(shop.host, job.shop());
    shop.host.OnShow<FrmPopUp1Options>([&](FrmPopUp1Options& f) {
      EXPECT_FALSE(f.changed());
      Play(f, R"(
        type LabourPrice 1.005; leave LabourPrice | LabourPrice=1.01
        type Fullness 2.5; leave Fullness | Fullness=3
        type HemsCms 20.32; leave HemsCms | HemsCms=20.3
        type HemsIns ' 8'; leave HemsIns | HemsIns=8.0
        type TapePrice much; leave TapePrice | TapePrice=much
        type LiningPrice ''; leave LiningPrice | LiningPrice=
      )");
      f.Description.UserType("Goblet\r\nhead");
      f.Reference.UserType(std::string(256, 'x'));
      f.CmdSave.UserPress();
      EXPECT_EQ(shop.host.messages.size(), 1U);
      Play(f, "| PopUpID= CmdSave@Save");
      EXPECT_TRUE(f.changed());
      EXPECT_EQ(shop.folder.Count(kPricingTable), 0);
      Play(f, "type Reference Blind; type LabourPrice 2; press CmdSave | PopUpID=1 CmdSave@Update");
      EXPECT_FALSE(f.changed());
      // As the closing window saves: the box that is typed into is still to be formatted.
      Play(f, "type LabourPrice 3");
      f.Save();
      EXPECT_FALSE(f.changed());
    });
    job.ShowModal(entry);
  });
  EXPECT_EQ(shop.folder.Count(kPricingTable), 1);
  EXPECT_EQ(shop.folder.Stored(kPricingTable, 0, "LabourPrice"), "3.00");
  EXPECT_EQ(shop.folder.Stored(kPricingTable, 0, "Description"), "Goblet head");
}

TEST(PricingEntry, ARowThatIsGoneIsToldAndNotAddedAnew) {
  WizardShop shop;
  shop.folder.AddRow(kPricingTable, {{"Description", "Goblet"}});
  shop.WithJob([&shop](job::JobScreen& job) {
    FrmPopUp1Options entry(shop.host, job.shop());
    entry.Change("1");
    RowSet rows;
    rows.Open(job.shop().database(data_file::kPricing), kPricingTable);
    rows.Delete();
    shop.host.OnShow<FrmPopUp1Options>(
        [](FrmPopUp1Options& f) { Play(f, "type LabourPrice 3; press CmdSave | LabourPrice=3.00"); });
    job.ShowModal(entry);
  });
  EXPECT_EQ(shop.host.messages.size(), 1U);
  EXPECT_EQ(shop.folder.Count(kPricingTable), 0);
}

TEST(SingleItem, CalTakesThePriceAsItWasTyped) {
  struct Case {
    const char* quantity;
    const char* price;
    const char* price_after;
    const char* total;
  };
  constexpr Case kCases[] = {
      {"3", "2.5", "2.50", "7.50"},    {"", "2.5", "2.50", "0.00"},   {"3", "0.335", "0.34", "1.01"},
      {"3 m", "2", "2.00", "6.00"},    {"3", "free", "free", "0.00"}, {"-2", "1.10", "1.10", "-2.20"},
      {"0.5", "0.01", "0.01", "0.01"},
  };
  WizardShop shop;
  shop.WithJob([&](job::JobScreen& job) {
    for (const Case& c : kCases) {
      FrmSimgleItem item(shop.host, job.shop(), job);
      item.SingleTotal.SetText("5.00");
      item.SingleQty.SetText(c.quantity);
      item.SinglePrice.SetText(c.price);
      item.cal();
      EXPECT_EQ(item.SinglePrice.text(), c.price_after) << c.quantity << " x " << c.price;
      EXPECT_EQ(item.SingleTotal.text(), c.total) << c.quantity << " x " << c.price;
    }
  });
}

TEST(SingleItem, LinesAreWrittenByteForByte) {
  WizardShop shop;
  shop.WithJob([&shop](job::JobScreen& job) {
    const auto add = [&](std::string_view script, std::string_view description = "") {
      FrmSimgleItem item(shop.host, job.shop(), job);
      shop.host.OnShow<FrmSimgleItem>([&](FrmSimgleItem& f) {
        f.SingleDescription.UserType(description);
        Play(f, script);
      });
      job.ShowModal(item);
      return item.item_saved();
    };
    EXPECT_TRUE(add("type SingleQty 3; type SinglePrice 2.5; press CmdProcess", "Pole"));
    EXPECT_TRUE(add("press CmdProcess"));
    EXPECT_FALSE(add("type SingleQty 3; press CmdCancel"));
    EXPECT_TRUE(add("type SinglePrice 4; type SingleQty 1; press CmdProcess", "a|b"));
    EXPECT_EQ(job.SingleItems.text(), "3|Pole|2.50|7.50|\r\n||||\r\n1|a|b|4.00|4.00|\r\n");
    // The fifth field isn't read: the price stands where the total is added up.
    EXPECT_EQ(job.SingleItemGrid.Cell(3, 4), "4.00");
    EXPECT_EQ(job.TxtSubTotal.text(), "11.50");
  });
}

TEST(SingleItem, AnUpdateOutsideTheGridChangesNothing) {
  WizardShop shop;
  shop.WithJob([&shop](job::JobScreen& job) {
    job.SingleItems.SetText("1|Pole|2.00|2.00|\r\n");
    job.LoadSingles();
    for (const char* row : {"0", "2", "-1", "", "1e300", "one"}) {
      FrmSimgleItem item(shop.host, job.shop(), job);
      item.Change(1);
      item.SingleRow.SetText(row);
      shop.host.messages.clear();
      shop.host.OnShow<FrmSimgleItem>([&](FrmSimgleItem& f) {
        Play(f, "type SingleDescription Rail; press CmdProcess");
        EXPECT_FALSE(f.is_closed()) << row;
      });
      job.ShowModal(item);
      EXPECT_EQ(shop.host.messages.size(), 1U) << row;
      EXPECT_EQ(job.SingleItems.text(), "1|Pole|2.00|2.00|\r\n") << row;
    }
    FrmSimgleItem item(shop.host, job.shop(), job);
    item.Change(1);
    shop.host.OnShow<FrmSimgleItem>([](FrmSimgleItem& f) { Play(f, "type SingleQty 3; press CmdProcess"); });
    job.ShowModal(item);
    EXPECT_EQ(job.SingleItems.text(), "3|Pole|2.00|6.00|\r\n") << "also after the main screen has come back";
  });
}

TEST(SingleItem, AddToRoomWritesTheLineOfAChangedItem) {
  WizardShop shop;
  shop.WithJob([&shop](job::JobScreen& job) {
    shop.SaveFullItem(job);
    const std::string first = job.RoomItems[0].text();
    shop.Wizard(job, [&](MainCWizard& w) {
      FillFullItem(w);
      FrmSimgleItem item(shop.host, job.shop(), job);
      item.SingleRow.SetText("12");
      EXPECT_THROW(item.AddToRoom(w), Fault);
      item.SingleRow.SetText("0");
      item.AddToRoom(w);
    });
    const HeldGrid& grid = job.RoomItemGrid[0];
    ASSERT_EQ(grid.RowCount(), 2);
    const std::string added = job.RoomItems[0].text().substr(first.size());
    EXPECT_EQ(job.RoomItems[0].text().substr(0, first.size()), first);
    EXPECT_TRUE(
        added.starts_with("360.60|Pinch Pleat - Room 1 - Bay window Track Width = 254Cms (100ins) X Drop = "
                          "203.2Cms (80ins) # Fabric = Blue linen Qty = 10 Mts #  # Tie backs Needed. # "
                          "Lined. # Interlined # Border Required |Room 1~"))
        << added;
    EXPECT_TRUE(job.TxtList2.text().starts_with("1\t360.60\tPinch Pleat"));
    EXPECT_EQ(std::ranges::count(job.TxtList2.text(), '\t'), 6);
  });
}

// A fabric, and how its price comes back: divided by the joined text of the rate on each return.
TEST(FabricPick, TheLastPickIsCopiedOnEachReturn) {
  WizardShop shop("20");
  shop.folder.AddRow(
      "Products",
      {{"SuppliersName", "Tarn"}, {"ProductName", "Voile"}, {"ItemCode", "V7"}, {"SellingPrice", "24.00"}});
  shop.NewItem([&shop](MainCWizard& w) {
    const auto visit = [&](std::string_view script) {
      shop.host.OnShow<catalogues::FrmFabricDatabase2>(
          [script](catalogues::FrmFabricDatabase2& f) { Play(f, script); });
      w.CmdGetFabricFromDatabase.UserPress();
    };
    Play(w, "go 1; type FabricName Linen; type FabricPrice 12");
    visit("press CmdCancel");
    Play(w, "| FabricName= FabricPrice=");
    EXPECT_FALSE(w.fabric_picked());
    EXPECT_EQ(w.focus(), &w.CmdGetFabricFromDatabase);
    Play(w, "type FabricMetres 3");
    visit("press CmdUseInCW");
    Play(w, "| FabricName='Tarn Voile V7' FabricPrice=20.00 FabricCost=60.00 PickedPrice=24.00");
    EXPECT_TRUE(w.fabric_picked());
    EXPECT_EQ(w.focus(), &w.FabricMetres);
    Play(w, "type FabricName Linen; type FabricPrice 12");
    visit("press CmdCancel");
    Play(w, "| FabricName='Tarn Voile V7' FabricPrice=20.00");
    // Any other screen copies nothing; the division is the same.
    Play(w,
         "type FabricName Linen; type FabricPrice 12; press CmdCurOptions | FabricName=Linen "
         "FabricPrice=10.00");
  });
}

TEST(FabricPick, ProductsThatCannotBeHadChangeNothing) {
  WizardShop shop;  // no products
  shop.NewItem([&shop](MainCWizard& w) {
    Play(w, "go 1; type FabricName Linen; type FabricPrice 12; press CmdGetFabricFromDatabase");
    EXPECT_EQ(shop.host.messages.size(), 1U);
    Play(w, "| FabricName=Linen FabricPrice=12; press CmdCurOptions | FabricName=Linen FabricPrice=12.00");
  });
}

}  // namespace
}  // namespace tarvane::curtain_wizard
