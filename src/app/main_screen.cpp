#include "app/main_screen.h"

#include <fmt/format.h>

#include <utility>

#include "app/addresses.h"
#include "app/commands.h"
#include "app/show.h"
#include "app/splash.h"
#include "app/version.h"
#include "shop/option_lists.h"
#include "store/data_files.h"
#include "text/trim.h"
#include "tools/enter_sales_person.h"

namespace tarvane::app {

namespace {

constexpr std::string_view kCloseRecord = "Close Record";
constexpr std::size_t kSettingsValues = 50;
constexpr std::size_t kTaxValue = 11;

}  // namespace

MainScreen::MainScreen(Host& host, Shop& shop)
    : job::JobScreen(host, shop),
      JobFinder(&Frame2, Data1, kJobTable,
                {{"RefNo", ""}, {"Order Number", "Ext2"}, {"Name", ""}, {"Telephone", ""}, {"PostCode", ""}},
                {.search_name = "CmdSearch",
                 .reset_name = "CmdReset",
                 .reset_caption = "Reset  Records",
                 .reset_category = "RefNo",
                 .must_choose = true}) {
  MakeCommands();
  SetFinderRules();
  SetItemRules();
  tbToolBar.SetVisible(false);
  CommandButton("CmdSize").SetVisible(false);
  tbToolBarclose();
}

void MainScreen::MakeCommands() {
  for (const Command& command : Commands()) {
    const Home home = command.kind == Button::Kind::kToolButton ? Home(&tbToolBar) : Home(this);
    const std::string name(command.name);
    Button& button =
        command.action.to_come
            ? commands_.emplace_back(home, name, command.caption, kNotBuilt, command.index, command.kind)
            : commands_.emplace_back(home, name, command.caption, command.index, command.kind);
    button.SetTip(std::string(command.tip));
    if (command.action.run == nullptr) continue;
    button.OnClicked([this, run = command.action.run] { run(*this); });
  }
}

Button& MainScreen::CommandButton(std::string_view name, int index) {
  for (Button& button : commands_) {
    if (button.name() == name && button.index() == index) return button;
  }
  throw Fault("There is no command " + std::string(name) + ".");
}

void MainScreen::SetFinderRules() {
  QuickFinderGrid.AddAlias("MSFlexGrid4");
  Data1.Attach(QuickFinderGrid, {}, "ID");
  QuickFinderGrid.OnRowOpened([this] { OpenRecord(); });
  txtLastRecord.SetReadOnly(true);
  JobFinder.ReadFrom([this]() -> Database& { return shop().database(); });
  JobFinder.BeforeSearch([this] { SaveRecord(); });
  JobFinder.MoveBy([this](const std::function<void()>& moves) { MoveUnseen(moves); });
  JobFinder.OnFound([this](std::int64_t count) {
    Label8[0].SetCaption(std::to_string(count) + " matche(s) found. Refresh Database to search again.");
    Repositioned();
  });
  JobFinder.OnReset([this] { JobsAreBack(); });
}

void MainScreen::Load() {
  ShowScreen<frmSplash>(*this);
  SSTab2.Select(0);
  SetTitle(fmt::format("Tarvane Max - The shop curtain estimating software - Version {}.{} (Build #{})",
                       kVersionMajor, kVersionMinor, kVersionRevision));
  Guard([this] { loadINI(); });
  try {
    // The first activation works out the totals.
    MoveUnseen([this] { OpenData(); });
  } catch (const Fault& fault) {
    // The start goes on without jobs; the worker sees why there are none.
    Label8[0].SetCaption(fault.what());
  }
  for (const std::string& notice : shop().TakeNotices()) Message(notice, kProgramTitle, Icon::kWarning);
  SSTab1.Select(0);
  Guard([this] { FillSalesPersons(); });
  Guard([this] { ReadSettings(); });
  IgnoreFaults([this] {
    MoveUnseen([this] {
      Data1.rows().MoveLast();
      Data1.rows().MoveFirst();
    });
  });
  Records.Show();
}

void MainScreen::loadINI() {
  const auto text = shop().ReadText(data_file::kCheckListCaptions);
  // A shop without captions of its own starts with the entries of its list, as far as the boxes go.
  const auto entries = text ? std::vector<std::string>() : shop().ReadList(data_file::kCheckList);
  for (std::size_t i = 0; i < job::kCheckListCount; ++i) {
    CheckList[i].SetCaption(text ? ReadProfileValue(*text, "CheckList", "CheckList" + std::to_string(i + 1))
                                 : (i < entries.size() ? entries[i] : ""));
  }
}

void MainScreen::FillSalesPersons() {
  const auto names = shop().ReadList(data_file::kSalesPersonsList);
  SalesPerson.SetEntries(names);
  CboSalesPersonSearch.SetEntries(names);
}

void MainScreen::ReadSettings() {
  const auto text = shop().ReadText(data_file::kSettings);
  if (!text) return;
  const auto values = ReadSequentialValues(*text, kSettingsValues);
  if (values.size() > kTaxValue) cboVAT.SetText(values[kTaxValue]);
}

void MainScreen::SwitchMenus(bool job_open) {
  for (const std::string_view name : {"munPrint", "MunQP", "munPay", "MuuNextRec", "MnuPrevRec", "munFind"}) {
    CommandButton(name).SetEnabled(job_open == (name != "munFind"));
  }
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
  // From here on what the look has worked out is the job's own.
  Data1.WriteFields();
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
  JobFinder.Reset();
}

void MainScreen::JobsAreBack() {
  MoveUnseen([this] {
    IgnoreFaults([this] {
      Data1.rows().MoveFirst();
      Data1.rows().MoveLast();
      Data1.rows().MoveFirst();
    });
  });
  Repositioned();
  Label8[0].SetCaption("Database refreshed.");
  SetFocus(JobFinder.FabSText);
}

void MainScreen::AddNewJob() {
  OpenRecord();
  NewRecord();
}

void MainScreen::NewRecord() {
  RowSet& jobs = Data1.rows();
  // What was missing at the start may be there by now; else the worker is told what it is.
  if (!jobs.IsOpen()) OpenData();
  MoveUnseen([&jobs] {
    jobs.MoveLast();
    jobs.AddNew();
  });
  Repositioned();
  DateCreated.SetText(ShortDate(host().Now().day));
  DiscountPercent.SetText(TxtP1.empty() ? job::kDefaultDiscountPercent : TxtP1.text());
  DepositPercent.SetText(TxtP2.empty() ? job::kDefaultDepositPercent : TxtP2.text());
  try {
    OrderReference.SetText(RaiseOrderNumber());
  } catch (const Fault&) {
    // Without a number there is no new job.
    jobs.CancelUpdate();
    throw;
  }
  ShowScreen<tools::FrmEnterSalesPerson>(*this);
  SaveRecord();
  SetFocus(Name);
  jobs.MoveLast();
}

void MainScreen::SaveRecord() { Data1.Save(); }

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

}  // namespace tarvane::app
