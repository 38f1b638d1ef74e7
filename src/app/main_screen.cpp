#include "app/main_screen.h"

#include <fmt/format.h>

#include <utility>

#include "app/addresses.h"
#include "app/commands.h"
#include "app/splash.h"
#include "app/version.h"
#include "job/option_lists.h"
#include "store/data_files.h"
#include "tools/enter_sales_person.h"
#include "tools/list_admin.h"
#include "tools/options.h"

namespace tarvane {

namespace {

constexpr std::string_view kCloseRecord = "Close Record";
constexpr std::size_t kSettingsValues = 50;
constexpr std::size_t kTaxValue = 11;

}  // namespace

MainScreen::MainScreen(Host& host, std::filesystem::path folder) : JobScreen(host, std::move(folder)) {
  MakeCommands();
  SetFinderRules();
  tbToolBar.SetVisible(false);
  CommandButton("CmdSize").SetVisible(false);
  tbToolBarclose();
}

void MainScreen::MakeCommands() {
  for (const Command& command : Commands()) {
    Button& button =
        commands_.emplace_back(this, std::string(command.name), command.caption, command.index, command.kind);
    button.SetTip(std::string(command.tip));
    if (command.kind == Button::Kind::kToolButton) button.SetPanel(&tbToolBar);
    if (command.action != nullptr) {
      button.OnClicked([this, action = command.action] { action(*this); });
    } else if (command.kind != Button::Kind::kMenu) {
      button.SetEnabled(false);
    }
  }
}

Button& MainScreen::CommandButton(std::string_view name, int index) {
  for (Button& button : commands_) {
    if (button.name() == name && button.index() == index) return button;
  }
  throw Fault("There is no command " + std::string(name) + ".");
}

void MainScreen::SetFinderRules() {
  // The searches are still to come.
  for (Button* button : {&CmdSearch, &CmdFindSalesPersonsJobs, &CMDLOAD}) button->SetEnabled(false);
  QuickFinderGrid.AddAlias("MSFlexGrid4");
  Data1.Attach(QuickFinderGrid, {}, "ID");
  QuickFinderGrid.OnRowOpened([this] { OpenRecord(); });
  for (Control* control : std::initializer_list<Control*>{
           &CboFabSearch, &FabSText, &CmdSearch, &CmdReset, &CboSalesPersonSearch, &CmdFindSalesPersonsJobs,
           &CMDLOAD, &txtLastRecord, &QuickFinderGrid, &Label12}) {
    control->SetPanel(&Frame2);
  }
  txtLastRecord.SetReadOnly(true);
  CmdReset.OnClicked([this] { Reset(); });
  for (HeldGrid& grid : RoomItemGrid) {
    grid.OnRowOpened([this] { EditItem(); });
  }
}

void MainScreen::Load() {
  ShowSplash();
  SSTab2.Select(0);
  CboFabSearch.SetEntries({"RefNo", "Order Number", "Name", "Telephone", "PostCode"});
  SetTitle(fmt::format("Tarvane Max - The shop curtain estimating software - Version {}.{} (Build #{})",
                       kVersionMajor, kVersionMinor, kVersionRevision));
  loadINI();
  try {
    // The first activation works out the totals.
    MoveUnseen([this] { OpenData(); });
  } catch (const Fault& fault) {
    // The start goes on without jobs; the worker sees why there are none.
    Label8[0].SetCaption(fault.what());
  }
  SSTab1.Select(0);
  FillSalesPersons();
  ReadSettings();
  IgnoreFaults([this] {
    MoveUnseen([this] {
      Data1.rows().MoveLast();
      Data1.rows().MoveFirst();
    });
  });
  ShowRecordPosition();
}

void MainScreen::loadINI() {
  const std::string text = ReadFile(FindFile(folder(), data_file::kCheckListCaptions)).value_or("");
  for (std::size_t i = 0; i < kCheckListCount; ++i) {
    CheckList[i].SetCaption(ReadProfileValue(text, "CheckList", "CheckList" + std::to_string(i + 1)));
  }
}

void MainScreen::FillSalesPersons() {
  const auto names = LoadListFile(FindFile(folder(), data_file::kSalesPersonsList));
  SalesPerson.SetEntries(names);
  CboSalesPersonSearch.SetEntries(names);
}

void MainScreen::ReadSettings() {
  const auto text = ReadFile(FindFile(folder(), data_file::kSettings));
  if (!text) return;
  const auto values = ReadSequentialValues(*text, kSettingsValues);
  if (values.size() > kTaxValue) cboVAT.SetText(values[kTaxValue]);
}

void MainScreen::SwitchMenus(bool job_open) {
  for (const std::string_view name : {"munPrint", "MunQP", "munPay", "MuuNextRec", "MnuPrevRec", "munFind"}) {
    CommandButton(name).SetEnabled(job_open == (name != "munFind"));
  }
  // What waits for its screen stays off.
  for (const std::string_view name : {"munPrint", "munPay"}) CommandButton(name).SetEnabled(false);
}

void MainScreen::tbToolBarOpen() { SwitchMenus(true); }
void MainScreen::tbToolBarclose() { SwitchMenus(false); }

void MainScreen::OpenRecord() {
  SSTab2.Select(0);
  QuickFinderGrid.SetVisible(false);
  tbToolBar.SetVisible(true);
  CommandButton("CmdSize").SetCaption(kCloseRecord);
  CommandButton("CmdSize").SetVisible(true);
  Label12.SetVisible(false);
  tbToolBarOpen();
}

void MainScreen::CloseRecord() {
  // Nothing that the worker entered may be lost when the jobs are opened anew.
  if (Data1.HasRow()) SaveRecord();
  txtLastRecord.SetText(RefNo.text());
  if (CommandButton("CmdSize").caption() != kCloseRecord) return;
  QuickFinderGrid.SetVisible(true);
  tbToolBar.SetVisible(false);
  tbToolBarclose();
  CommandButton("CmdSize").SetVisible(false);
  Label12.SetVisible(true);
  Reset();
}

void MainScreen::Reset() {
  if (Data1.HasRow()) SaveRecord();
  CboFabSearch.SetText("RefNo");
  FabSText.SetText("");
  CboFabSearch.SetEnabled(true);
  MoveUnseen([this] {
    OpenJobs();
    IgnoreFaults([this] {
      Data1.rows().MoveFirst();
      Data1.rows().MoveLast();
      Data1.rows().MoveFirst();
    });
  });
  Repositioned();
  Label8[0].SetCaption("Database refreshed.");
  SetFocus(FabSText);
}

void MainScreen::AddNewJob() {
  OpenRecord();
  NewRecord();
}

void MainScreen::NewRecord() {
  RowSet& jobs = Data1.rows();
  // What was missing at the start may be there by now; else the worker is told what it is.
  if (!jobs.IsOpen()) OpenData();
  jobs.MoveLast();
  jobs.AddNew();
  DateCreated.SetText(ShortDate(host().Now()));
  DiscountPercent.SetText(TxtP1.empty() ? kDefaultDiscountPercent : TxtP1.text());
  DepositPercent.SetText(TxtP2.empty() ? kDefaultDepositPercent : TxtP2.text());
  TxtLastOrderNo.SetText(NumberText(TxtLastOrderNo.Number() + 1));
  OrderReference.SetText(TxtLastOrderNo.text());
  FrmEnterSalesPerson enter_sales_person(host(), *this);
  ShowModal(enter_sales_person);
  if (Data2.HasRow()) Data2.rows().Update();
  SaveRecord();
  SetFocus(Name);
  jobs.MoveLast();
}

void MainScreen::SaveRecord() {
  const bool adding = Data1.rows().IsOpen() && Data1.rows().IsAdding();
  Data1.rows().Update();
  if (!adding) return;
  // The database has given the job its number and its place.
  Data1.LoadFields();
  Repositioned();
}

void MainScreen::NextRecord() {
  // Without jobs nothing happens. A job that can't be saved on the way is told.
  if (!Data1.HasRow()) return;
  RowSet& jobs = Data1.rows();
  if (jobs.IsAdding()) SaveRecord();
  if (jobs.AbsolutePosition() + 1 != jobs.RecordCount()) jobs.MoveNext();
}

void MainScreen::PreviousRecord() {
  if (!Data1.HasRow()) return;
  if (Data1.rows().AbsolutePosition() == 0) {
    host().Beep();
  } else {
    Data1.rows().MovePrevious();
  }
}

void MainScreen::Exit() {
  Update();
  host().EndProcess();
}

bool MainScreen::MayClose() {
  Exit();
  return true;
}

void MainScreen::ShowSplash() {
  frmSplash splash(host());
  ShowModal(splash);
}

void MainScreen::ShowListAdmin() {
  FrmListAdmin list_admin(host(), folder());
  ShowModal(list_admin);
}

void MainScreen::ShowOptions() {
  frmOptions options(host(), *this);
  ShowModal(options);
}

void MainScreen::ShowUpdates() {
  Message(fmt::format("You need a connection to the Internet to use this service. \n"
                      "This version of Tarvane is {}.{} (Build #{})\n"
                      "Click OK to Continue.",
                      kVersionMajor, kVersionMinor, kVersionRevision),
          "Internet");
  host().Launch(kUpdatePage);
}

void MainScreen::SendMail() {
  if (TrimSpaces(Email.text()).empty()) {
    host().Beep();
    Message("I Need an Email Address");
    return;
  }
  host().Launch("mailto:" + Email.text());
}

void MainScreen::VisitWebSite() {
  if (TrimSpaces(WebSite.text()).empty()) {
    host().Beep();
    Message("I Need the Web Site Address");
    return;
  }
  host().Launch("https://" + WebSite.text());
}

}  // namespace tarvane
