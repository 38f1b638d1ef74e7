#include "app/main_screen.h"

#include <gmock/gmock.h>
#include <unistd.h>

#include "app/addresses.h"
#include "app/commands.h"
#include "app/splash.h"
#include "curtain_wizard/wizard.h"
#include "support/fake_host.h"
#include "support/shop_folder.h"
#include "tools/enter_sales_person.h"

namespace tarvane::app {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

std::string ItemLine(std::string_view price, std::string_view dialogbox, std::string_view info = "line~") {
  return std::string(price) + "|item|state|" + std::string(dialogbox) + "|101|" + std::string(info) + "|\r\n";
}

std::string TextOf(const Screen& screen, std::string_view name) {
  const auto* field = dynamic_cast<const TextField*>(screen.Find(name));
  return field == nullptr ? "(none)" : field->text();
}

class MainScreenTest : public testing::Test {
 protected:
  // Starts the program, acknowledges the splash, does `steps` and ends it as its window's close button does.
  void Run(std::function<void(MainScreen&)> steps) {
    host_.shows.clear();
    host_.OnShow<frmSplash>([](frmSplash& splash) { splash.Command1.UserPress(); });
    host_.OnShow<MainScreen>([steps = std::move(steps)](MainScreen& main) {
      steps(main);
      main.UserClose();
    });
    Shop shop(folder_.path());
    MainScreen main(host_, shop);
    EXPECT_THROW(main.RunAsMain(), ProcessEnd);
  }
  void AddJobs(const std::vector<RowValues>& jobs) {
    folder_.AddSettings();
    for (const RowValues& job : jobs) folder_.AddJob(job);
  }
  static void Press(MainScreen& main, std::string_view name, int index = -1) {
    main.CommandButton(name, index).UserPress();
  }

  ShopFolder folder_;
  FakeHost host_;
};

TEST_F(MainScreenTest, StartsInFinderMode) {
  AddJobs({{{"Name", "Ann"}}, {{"Name", "Bea"}}});
  folder_.Write("SalesPersonslist.Dat", "Jo\r\nKim\r\n");
  folder_.Write("checklist.ini", "[CheckList]\r\nCheckList1=Measured\r\nCheckList2=Ordered\r\n");
  folder_.Write("Dat/Tarvane.ini", "1,2,3,4,5,6,7,8,9,10,11,\"17.5\",13");
  Run([](MainScreen& main) {
    EXPECT_EQ(main.title(), "Tarvane Max - The shop curtain estimating software - Version 1.0 (Build #0)");
    EXPECT_EQ(main.Name.text(), "Ann");
    EXPECT_EQ(main.Records.Caption.caption(), "Record: 1 of 2");
    EXPECT_EQ(main.cboVAT.text(), "0") << "the first activation comes after the settings file";
    EXPECT_THAT(main.SalesPerson.entries(), ElementsAre("Jo", "Kim"));
    EXPECT_THAT(main.CboSalesPersonSearch.entries(), ElementsAre("Jo", "Kim"));
    EXPECT_EQ(main.CheckList[0].caption(), "Measured");
    EXPECT_EQ(main.CheckList[1].caption(), "Ordered");
    EXPECT_EQ(main.CheckList[2].caption(), "");
    EXPECT_EQ(main.JobFinder.CboFabSearch.entries().size(), 5u);
    EXPECT_FALSE(main.in_job_mode());
    EXPECT_FALSE(main.tbToolBar.visible());
    EXPECT_FALSE(main.CommandButton("Save Records").shown());
    EXPECT_FALSE(main.CommandButton("CmdSize").visible());
    EXPECT_FALSE(main.CommandButton("MuuNextRec").enabled());
    EXPECT_TRUE(main.CommandButton("munFind").enabled());
    EXPECT_EQ(main.QuickFinderGrid.Cell(0, 1), "ID");
    EXPECT_EQ(main.QuickFinderGrid.RowCount(), 2);
  });
  EXPECT_THAT(host_.shown, ElementsAre("frmSplash", "Form1"));
  EXPECT_THAT(host_.messages, IsEmpty());
}

TEST_F(MainScreenTest, OpensAndClosesARecord) {
  AddJobs({{{"Name", "Ann"}}, {{"Name", "Bea"}}});
  Run([this](MainScreen& main) {
    main.SSTab2.Select(2);
    main.QuickFinderGrid.UserSelectRow(2);
    EXPECT_EQ(main.Name.text(), "Bea");
    main.QuickFinderGrid.UserOpenRow(2);
    EXPECT_TRUE(main.in_job_mode());
    EXPECT_EQ(main.SSTab2.selected(), 0);
    EXPECT_TRUE(main.CommandButton("Save Records").shown());
    EXPECT_EQ(main.CommandButton("CmdSize").caption(), "Close Record");
    EXPECT_TRUE(main.CommandButton("CmdSize").visible());
    EXPECT_FALSE(main.Label12.visible());
    EXPECT_TRUE(main.CommandButton("MuuNextRec").enabled());
    EXPECT_FALSE(main.CommandButton("munFind").enabled());
    EXPECT_FALSE(main.CommandButton("munPay").enabled()) << "its screen isn't there yet";

    main.Town.UserType("Ludlow");
    Press(main, "CmdSize");
    EXPECT_FALSE(main.in_job_mode());
    EXPECT_EQ(main.txtLastRecord.text(), "2");
    EXPECT_EQ(main.Records.Caption.caption(), "Record: 1 of 2");
    EXPECT_EQ(main.Name.text(), "Ann");
    EXPECT_EQ(main.Label8[0].caption(), "Database refreshed.");
    EXPECT_EQ(main.JobFinder.CboFabSearch.text(), "RefNo");
    EXPECT_EQ(main.focus(), &main.JobFinder.FabSText);
    EXPECT_FALSE(main.CommandButton("CmdSize").visible());
    EXPECT_EQ(folder_.Stored(kJobTable, 1, "Town"), "Ludlow") << "closing a record loses nothing";
  });
}

TEST_F(MainScreenTest, NewRecordsAreNumberedOnwards) {
  AddJobs({{{"Name", "Ann"}}});
  folder_.Write("SalesPersonslist.Dat", "Jo\r\n");
  Run([this](MainScreen& main) {
    host_.OnShow<tools::FrmEnterSalesPerson>([](tools::FrmEnterSalesPerson& enter) {
      enter.CboSalesPerson.UserPick(0);
      enter.Command1.UserPress();
    });
    Press(main, "munNew2");
    EXPECT_TRUE(main.in_job_mode());
    EXPECT_EQ(main.OrderReference.text(), "101");
    EXPECT_EQ(main.DateCreated.text(), "09/03/26");
    EXPECT_EQ(main.DiscountPercent.text(), "10");
    EXPECT_EQ(main.DepositPercent.text(), "25");
    EXPECT_EQ(main.SalesPerson.text(), "Jo");
    EXPECT_EQ(main.GTotal.text(), "0.00");
    EXPECT_EQ(main.RefNo.text(), "2");
    EXPECT_EQ(main.Records.Caption.caption(), "Record: 2 of 2");
    EXPECT_EQ(main.focus(), &main.Name);
    EXPECT_FALSE(main.Data1.rows().IsEditing());

    main.Name.UserType("Bea");
    Press(main, "New Record");
    EXPECT_EQ(main.OrderReference.text(), "102");
    EXPECT_EQ(main.SalesPerson.text(), "") << "asked, and closed without an answer";
    EXPECT_EQ(folder_.Stored(kJobTable, 1, "Name"), "Bea") << "the move commits";
  });
  EXPECT_EQ(folder_.Stored(kAdminTable, 0, "LastOrderNo"), "102");
  EXPECT_EQ(folder_.Stored(kJobTable, 2, "Ext2"), "102");
  EXPECT_EQ(folder_.Stored(kJobTable, 2, "Text10"), "Empty\r\n");
}

TEST_F(MainScreenTest, NewRecordInAnEmptyShop) {
  Run([this](MainScreen& main) {
    EXPECT_EQ(main.Records.Caption.caption(), "");
    Press(main, "munNew2");
    EXPECT_EQ(main.Records.Caption.caption(), "Record: 1 of 1");
    EXPECT_EQ(main.OrderReference.text(), "1");
    EXPECT_EQ(main.DiscountPercent.text(), "0");
    EXPECT_EQ(main.DepositPercent.text(), "20");
  });
  EXPECT_THAT(host_.messages, IsEmpty());
  EXPECT_EQ(folder_.Count(kJobTable), 1);
}

TEST_F(MainScreenTest, ANewRecordThatCantBeSavedWaits) {
  AddJobs({});
  Run([this](MainScreen& main) {
    host_.OnShow<tools::FrmEnterSalesPerson>(
        [&main](tools::FrmEnterSalesPerson&) { main.Town.SetText(std::string(256, 'x')); });
    Press(main, "munNew2");
    EXPECT_EQ(host_.messages.size(), 1u);
    EXPECT_EQ(folder_.Count(kJobTable), 0);
    main.Town.UserType("Ludlow");
    Press(main, "Save Records");
    EXPECT_EQ(main.RefNo.text(), "1");
    EXPECT_EQ(main.Records.Caption.caption(), "Record: 1 of 1");
  });
  EXPECT_EQ(folder_.Stored(kJobTable, 0, "Town"), "Ludlow");
  EXPECT_EQ(folder_.Stored(kJobTable, 0, "Ext2"), "101");
}

TEST_F(MainScreenTest, WithoutSettingsThereStillAreJobs) {
  AddJobs({{{"Name", "Ann"}}});
  Database(folder_.jobs_file()).Execute("DROP TABLE Admin");
  Run([](MainScreen& main) {
    EXPECT_EQ(main.Name.text(), "Ann");
    EXPECT_THAT(main.Label8[0].caption(), HasSubstr("Admin"));
  });
}

TEST_F(MainScreenTest, StepsThroughTheJobs) {
  AddJobs({{{"Name", "Ann"}}, {{"Name", "Bea"}}});
  Run([this](MainScreen& main) {
    main.OpenRecord();
    Press(main, "MnuPrevRec");
    EXPECT_EQ(host_.beeps, 1);
    main.Mobile.UserType("07700 900123");
    Press(main, "MuuNextRec");
    Press(main, "MuuNextRec");
    EXPECT_EQ(main.Name.text(), "Bea");
    EXPECT_EQ(main.Records.Caption.caption(), "Record: 2 of 2");
    EXPECT_EQ(host_.beeps, 1) << "the last row stops in silence";
    Press(main, "MnuPrevRec");
    EXPECT_EQ(main.Mobile.text(), "07700 900123");
  });
  EXPECT_EQ(folder_.Stored(kJobTable, 0, "Mobile"), "07700 900123");
}

TEST_F(MainScreenTest, ARestartFindsWhatWasSavedAndNothingElse) {
  AddJobs({{{"Name", "Ann"}}});
  Run([](MainScreen& main) {
    main.OpenRecord();
    main.RoomItems[0].SetText(ItemLine("12.5", "CurtainWizard"));
    main.LoadRoom();
    main.cal();
    main.Completed.UserSet(true);
    main.JobNotes.UserType("two\r\nlines");
    Press(main, "Save Records");
    main.Name.UserType("never saved");
  });
  Run([](MainScreen& main) {
    EXPECT_EQ(main.Name.text(), "Ann");
    EXPECT_EQ(main.GTotal.text(), "12.50");
    EXPECT_EQ(main.RoomItemGrid[0].Text(1, job::kDialogboxColumn), "CurtainWizard");
    EXPECT_TRUE(main.Completed.on());
    EXPECT_EQ(main.JobNotes.text(), "two\r\nlines");
    Press(main, "munexit");
  });
}

TEST_F(MainScreenTest, StartAndLooksWriteNothing) {
  // Stored totals that the figures don't bear out, and a tax from the settings file: neither is touched.
  AddJobs({{{"4text", "99.00"}, {"1T(0)", ItemLine("1", "")}}, {{"4text", "98.00"}}});
  folder_.Write("Dat/Tarvane.ini", "0,0,0,0,0,0,0,0,0,0,0,20");
  const std::string before = folder_.Read("Dat/Tarvane.mdb");
  Run([](MainScreen& main) {
    EXPECT_EQ(main.Total.text(), "1.00");
    main.QuickFinderGrid.UserSelectRow(2);
    EXPECT_EQ(main.Total.text(), "0.00");
    main.Records.CmdFirst.UserPress();
    main.JobFinder.CmdReset.UserPress();
    Press(main, "MunAbout");
  });
  EXPECT_TRUE(folder_.Read("Dat/Tarvane.mdb") == before);
  // Only a job that was opened keeps what was worked out for it.
  Run([](MainScreen& main) {
    main.QuickFinderGrid.UserOpenRow(1);
    Press(main, "CmdSize");
    main.QuickFinderGrid.UserSelectRow(2);
  });
  EXPECT_EQ(folder_.Stored(kJobTable, 0, "4text"), "1.00");
  EXPECT_EQ(folder_.Stored(kJobTable, 1, "4text"), "98.00");
  // A new job passes over the last one.
  Run([](MainScreen& main) {
    Press(main, "munNew2");
    Press(main, "CmdSize");
  });
  EXPECT_EQ(folder_.Stored(kJobTable, 1, "4text"), "98.00");
}

TEST_F(MainScreenTest, TaxIsOfOneJob) {
  AddJobs({{{"1T(0)", ItemLine("100", "")}}, {{"1T(0)", ItemLine("50", "")}}});
  Run([](MainScreen& main) {
    main.QuickFinderGrid.UserOpenRow(2);
    main.cboVAT.UserType("20");
    main.cboVAT.UserEnterKey();
    EXPECT_EQ(main.Total.text(), "60.00");
    Press(main, "CmdSize");
    EXPECT_EQ(main.cboVAT.text(), "0");
    EXPECT_EQ(main.Total.text(), "100.00") << "the first job, current again";
  });
  EXPECT_EQ(folder_.Stored(kJobTable, 0, "4text"), "0.00");
  EXPECT_EQ(folder_.Stored(kJobTable, 1, "4text"), "60.00");
}

TEST_F(MainScreenTest, SearchesForJobs) {
  AddJobs({{{"Name", "Smith"}}, {{"Name", "smythe"}, {"Ext2", "77"}}, {{"Name", "Jones [2]"}}});
  Run([](MainScreen& main) {
    Finder& finder = main.JobFinder;
    EXPECT_EQ(finder.CboFabSearch.text(), "<Category to Search>");
    EXPECT_FALSE(finder.CmdSearch.enabled());
    const auto search = [&](std::size_t category, std::string_view text) {
      finder.CmdReset.UserPress();
      EXPECT_EQ(finder.CboFabSearch.text(), "RefNo");
      finder.CboFabSearch.UserPick(category);
      finder.FabSText.UserType(text);
      finder.FabSText.UserEnterKey();
      return main.QuickFinderGrid.RowCount();
    };
    EXPECT_EQ(search(2, "sm"), 2);
    EXPECT_EQ(main.Label8[0].caption(), "2 matche(s) found. Refresh Database to search again.");
    EXPECT_FALSE(finder.CboFabSearch.shown());
    EXPECT_FALSE(finder.CmdSearch.enabled());
    EXPECT_EQ(main.Name.text(), "Smith");
    EXPECT_EQ(search(1, "77"), 1) << "order numbers are Ext2";
    EXPECT_EQ(search(2, "*[2"), 1) << "only * and ? are wild";
    EXPECT_EQ(search(2, "none"), 0);
    EXPECT_EQ(main.Label8[0].caption(), "0 matche(s) found. Refresh Database to search again.");
    EXPECT_EQ(search(2, "O'Brien"), 3) << "a criterion that breaks ends there";
    EXPECT_EQ(main.Label8[0].caption(), "Database refreshed.");
    EXPECT_EQ(finder.FabSText.text(), "O'Brien");
  });
}

TEST_F(MainScreenTest, AfterAFaultJobsAreWorkedOutAgain) {
  AddJobs({{{"1T(0)", ItemLine("7", "")}}, {{"1T(0)", ItemLine("8", "")}}});
  Run([](MainScreen& main) {
    main.QuickFinderGrid.UserOpenRow(1);
    main.Town.UserType(std::string(256, 'x'));
    Press(main, "munNew2");  // can't leave the job as it is
    main.Town.UserType("Ludlow");
    Press(main, "MuuNextRec");
    EXPECT_EQ(main.Total.text(), "8.00");
  });
  const auto aside = folder_.path() / "aside";
  std::filesystem::rename(folder_.jobs_file(), aside);
  Run([this, &aside](MainScreen& main) {
    std::filesystem::rename(aside, folder_.jobs_file());
    Press(main, "munNew2");
    Press(main, "MnuPrevRec");
    EXPECT_EQ(main.Total.text(), "8.00");
  });
}

TEST_F(MainScreenTest, NoOrderNumberIsGivenTwice) {
  AddJobs({});
  Run([](MainScreen& main) {
    Press(main, "munNew2");
    EXPECT_EQ(main.OrderReference.text(), "101");
  });
  EXPECT_EQ(folder_.Stored(kAdminTable, 0, "LastOrderNo"), "101");
  // Where the number can't be stored there is no new job.
  {
    Database database(folder_.jobs_file());
    database.Execute("CREATE TRIGGER no_number BEFORE UPDATE ON Admin BEGIN SELECT RAISE(FAIL, 'no'); END");
  }
  Run([this](MainScreen& main) {
    host_.messages.clear();
    Press(main, "munNew2");
    EXPECT_EQ(host_.messages.size(), 1u);
    EXPECT_FALSE(main.Data1.rows().IsAdding());
  });
  EXPECT_EQ(folder_.Count(kJobTable), 1);
}

TEST_F(MainScreenTest, MissingFilesAreNoHindrance) {
  std::filesystem::remove(folder_.jobs_file());
  Run([this](MainScreen& main) {
    EXPECT_THAT(main.Label8[0].caption(), HasSubstr("Tarvane.mdb"));
    EXPECT_EQ(main.Name.text(), "");
    EXPECT_EQ(main.GTotal.text(), "");
    EXPECT_EQ(main.Records.Caption.caption(), "");
    EXPECT_THAT(main.SalesPerson.entries(), IsEmpty());
    EXPECT_THAT(host_.messages, IsEmpty());
    Press(main, "munNew2");
    EXPECT_THAT(host_.messages,
                ElementsAre(HasSubstr("Tarvane.mdb could not be opened: the file is missing")));
    // Everything that is enabled, pressed once: told in messages, and the program stands.
    for (const Command& command : Commands()) {
      if (command.name != "munexit") Press(main, command.name, command.index);
    }
    EXPECT_EQ(main.RoomItemGrid[0].RowCount(), 0);
  });
  EXPECT_FALSE(std::filesystem::exists(folder_.jobs_file())) << "no database is made";
}

TEST_F(MainScreenTest, AFileThatIsNoDatabaseIsTold) {
  folder_.Write("Dat/Tarvane.mdb", std::string(5000, 'x'));
  Run([](MainScreen& main) { EXPECT_THAT(main.Label8[0].caption(), HasSubstr("Tarvane.mdb")); });
  EXPECT_EQ(folder_.Read("Dat/Tarvane.mdb"), std::string(5000, 'x'));
}

TEST_F(MainScreenTest, WhatCantBeSavedIsToldAndStays) {
  AddJobs({{{"Name", "Ann"}}, {{"Name", "Bea"}}});
  Run([this](MainScreen& main) {
    main.OpenRecord();
    main.Town.SetText(std::string(256, 'x'));  // too long for its column
    for (const char* command : {"Save Records", "MuuNextRec", "CmdSize"}) {
      host_.messages.clear();
      Press(main, command);
      EXPECT_EQ(host_.messages.size(), 1u) << command;
      EXPECT_EQ(main.Name.text(), "Ann") << command;
      EXPECT_EQ(main.Town.text().size(), 256u) << command;
      EXPECT_TRUE(main.in_job_mode()) << command;
    }
    main.Town.UserType("Ludlow");
    Press(main, "Save Records");
  });
  EXPECT_EQ(folder_.Stored(kJobTable, 0, "Town"), "Ludlow");
}

TEST_F(MainScreenTest, CommandsFormOneTree) {
  Shop shop(folder_.path());
  MainScreen main(host_, shop);
  for (const Command& command : Commands()) {
    const Button& button = main.CommandButton(command.name, command.index);
    EXPECT_EQ(button.kind(), command.kind);
    if (!command.parent.empty()) {
      EXPECT_EQ(main.CommandButton(command.parent).kind(), Button::Kind::kMenu) << command.name;
    }
    if (command.kind == Button::Kind::kToolButton) {
      EXPECT_FALSE(command.tip.empty()) << command.name;
      EXPECT_FALSE(button.shown());
    }
    EXPECT_EQ(button.to_come(), command.action.to_come) << command.name;
    if (command.action.to_come) {
      EXPECT_FALSE(button.enabled()) << command.name;
    }
    const bool does_nothing = command.action.run == nullptr && !command.action.to_come;
    EXPECT_EQ(does_nothing, command.kind == Button::Kind::kMenu) << command.name;
  }
}

TEST_F(MainScreenTest, HandsAddressesOver) {
  AddJobs({{}});
  Run([this](MainScreen& main) {
    main.OpenRecord();
    Press(main, "SendEmail");
    Press(main, "GoWebSite");
    EXPECT_THAT(host_.messages, ElementsAre("I Need an Email Address", "I Need the Web Site Address"));
    EXPECT_EQ(host_.beeps, 2);
    main.Email.UserType("ann@example.com");
    main.WebSite.UserType("ann.example.com");
    for (const char* command : {"SendEmail", "GoWebSite", "munwwwbrindel", "munWwwbrindelCoUk"})
      Press(main, command);
    Press(main, "MunUpgrades");
    Press(main, "MunPrinterSetup");
    Press(main, "MunAbout");
  });
  EXPECT_THAT(host_.launched, ElementsAre("mailto:ann@example.com", "https://ann.example.com", kMakerSite,
                                          kMakerSecondSite, kUpdatePage));
  EXPECT_EQ(
      host_.messages.back(),
      "You need a connection to the Internet to use this service. \nThis version of Tarvane is 1.0 (Build "
      "#0)\nClick OK to Continue.");
  EXPECT_EQ(host_.printer_setups, 1);
  EXPECT_EQ(host_.shown.back(), "frmSplash");
}

TEST_F(MainScreenTest, AddsAnItem) {
  AddJobs({{{"1T(2)", ItemLine("1", "CurtainWizard", "old~")}}});
  Run([this](MainScreen& main) {
    main.OpenRecord();
    main.SSTab1.UserSelect(2);
    host_.OnShow<curtain_wizard::MainCWizard>([&main](curtain_wizard::MainCWizard& wizard) {
      EXPECT_EQ(wizard.RoomIndex.text(), "2");
      EXPECT_EQ(wizard.Txtinfo.text(), "");
      EXPECT_EQ(wizard.TxtViewOnly.text(), "");
      main.RoomItemGrid[2].AddRow({"2", "4.50", "item", "state", "CurtainWizard", "102", "new~"});
      main.RewriteRoomText(2);
    });
    Press(main, "Command1", 0);
    EXPECT_EQ(main.RoomTotal[2].text(), "5.50");
    EXPECT_EQ(main.GTotal.text(), "5.50");
    EXPECT_EQ(main.RoomSummary[2].text(), "old\r\nnew\r\n");
    EXPECT_EQ(main.Label8[0].caption(), "Room 3 as been Re-Compiled. ");
  });
}

TEST_F(MainScreenTest, EditsItemsInTheWizardThatTheyComeFrom) {
  const struct {
    std::string dialogbox;
    std::string opens;
  } kCases[] = {
      {"CurtainWizard", "MainCWizard"},   {"MainCWizard", "MainCWizard"}, {"", ""},
      {" CurtainWizard ", "MainCWizard"}, {"curtainwizard", ""},          {"AddItem", "WizardNewBlinds"},
      {" AddItem ", "WizardNewBlinds"}};
  std::string items;
  for (const auto& c : kCases) items += ItemLine("1", c.dialogbox);
  AddJobs({{{"1T(0)", items}}});
  Run([&](MainScreen& main) {
    main.OpenRecord();
    std::int64_t row = 0;
    for (const auto& c : kCases) {
      ++row;
      host_.shown.clear();
      host_.shows.clear();
      host_.shows.emplace_back([row](Screen& wizard) {
        EXPECT_EQ(TextOf(wizard, "TxtRow"), std::to_string(row));
        EXPECT_EQ(TextOf(wizard, "Txtinfo"), "state");
        const bool curtain = wizard.name() == curtain_wizard::MainCWizard::kName;
        if (curtain) {
          EXPECT_EQ(TextOf(wizard, "TxtViewOnly"), "1");
        }
        EXPECT_EQ(TextOf(wizard, curtain ? "RoomIndex" : "Text37"), "0");
      });
      main.Label8[0].SetCaption("");
      main.RoomItemGrid[0].UserOpenRow(row);
      EXPECT_EQ(host_.shown, c.opens.empty() ? std::vector<std::string>() : std::vector{c.opens})
          << c.dialogbox;
      EXPECT_EQ(main.Label8[0].caption(), "Room 1 as been Re-Compiled. ") << "after the empty route too";
    }
    host_.shown.clear();
    main.SSTab1.UserSelect(4);
    main.RoomItemGrid[4].UserOpenRow(0);  // the heading of an empty room
    EXPECT_THAT(host_.shown, IsEmpty());
  });
}

TEST_F(MainScreenTest, TheQuickWizardSavesNothing) {
  AddJobs({{}});
  Run([this](MainScreen& main) {
    for (const char* command : {"Estimate", "Command2"}) {
      main.OpenRecord();
      host_.OnShow<curtain_wizard::MainCWizard>([](curtain_wizard::MainCWizard& wizard) {
        EXPECT_EQ(wizard.TxtViewOnly.text(), "2");
        EXPECT_FALSE(wizard.CmdFinishTwo.visible());
        EXPECT_FALSE(wizard.CmdUpdateAndClose.visible());
      });
      Press(main, command);
    }
  });
  EXPECT_THAT(host_.shown, ElementsAre("frmSplash", "Form1", "MainCWizard", "MainCWizard"));
}

TEST_F(MainScreenTest, WithoutAJobNoItemIsAdded) {
  Run([](MainScreen& main) { Press(main, "Command1", 0); });
  EXPECT_THAT(host_.messages, ElementsAre("No record is open. Add a new record first."));
  EXPECT_THAT(host_.shown, ElementsAre("frmSplash", "Form1"));
}

}  // namespace
}  // namespace tarvane::app
