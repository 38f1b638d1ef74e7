#include "job/job_screen.h"

#include <utility>

#include "text/trim.h"

namespace tarvane::job {

namespace {

constexpr int kUnlimited = 0;
constexpr std::string_view kNoTax = "0";
constexpr std::string_view kNoMoney = "0.00";
constexpr int kSingleItemsPage = 1;
constexpr int kRoomsPage = 2;
constexpr std::string_view kPrePaidHint =
    "This amount can be changed in Make a Payment and entering say -100.00 as a credit amount.";

}  // namespace

JobScreen::JobScreen(Host& host, Shop& shop) : Screen(host, std::string(kName)), shop_(shop) {
  BindJob();
  BindSettings();
  MarkHidden();
  SetRules();
  SetRoomRules();
}

std::vector<std::string> JobScreen::RoomTabCaptions() {
  std::vector<std::string> captions;
  for (std::size_t room = 1; room <= kRoomCount; ++room) captions.push_back("Room " + std::to_string(room));
  return captions;
}

void JobScreen::BindJob() {
  for (TextField* field : std::initializer_list<TextField*>{
           &RefNo,       &OrderReference, &SalesPerson,   &DateCreated, &CompletionDate,
           &FittingDate, &Name,           &Company,       &Address,     &Town,
           &County,      &PostCode,       &HomeTelephone, &Mobile,      &WorksTelephone,
           &Fax,         &Email,          &WebSite,       &GTotal,      &DiscountPercent,
           &Total,       &DepositPercent, &DepositPaid,   &PrePaid,     &Balance}) {
    Data1.Bind(*field, field->name());
  }
  for (TextField* memo : {&JobNotes, &History, &SingleItems}) Data1.Bind(*memo, memo->name(), kUnlimited);
  for (TextField& items : RoomItems) Data1.Bind(items, items.name(), kUnlimited);
  for (TextField& summary : RoomSummary) Data1.Bind(summary, summary.name(), kUnlimited);
  for (TextField& total : RoomTotal) Data1.Bind(total, total.name());
  for (TickBox* flag : {&Completed, &Lost}) Data1.Bind(*flag, flag->name());
  for (std::size_t i = 0; i < kCheckListCount; ++i) {
    Data1.Bind(CheckList[i], CheckList[i].name());
    CheckList[i].AddAlias("CheckList" + std::to_string(i + 1));
  }
  SalesPerson.AddAlias("CboSalesPerson");
}

void JobScreen::BindSettings() {
  Data2.Bind(TxtLastOrderNo, "LastOrderNo");
  Data2.Bind(TxtCurrencySymbol, "CurrencySymbol");
  Data2.Bind(TxtP1, "Ext1");
  Data2.Bind(TxtP2, "Ext2");
}

void JobScreen::MarkHidden() {
  for (TextField* field :
       {&TxtRoomNum, &TxtLastOrderNo, &TxtCurrencySymbol, &TxtP1, &TxtP2, &TxtTrack, &SingleItems}) {
    field->SetNeverShown();
  }
  for (TextField& items : RoomItems) items.SetNeverShown();
  for (TextField* field : {&RefNo, &GTotal, &Total, &DepositPaid, &Balance, &TxtSubTotal, &TxtTotalVat,
                           &TxtTotalDiscount, &Text1}) {
    field->SetReadOnly(true);
  }
}

void JobScreen::SetRules() {
  Name.SetSelectAllOnFocus();
  Name.OnTyped([this] { Update(); });
  for (const std::size_t room : {3, 4, 11}) RoomSummary[room].OnTyped([this] { Update(); });

  Completed.OnClicked([this] {
    if (Completed.on()) Lost.Set(false);
  });
  Lost.OnClicked([this] {
    if (Lost.on()) Completed.Set(false);
  });

  cboVAT.SetEntries({"0", "5", "17.5", "20"});
  cboVAT.OnPicked([this] { TaxEntered(); });
  cboVAT.OnEnterKey([this] { TaxEntered(); });
  PrePaid.OnChanged([this] { cal(); });
  PrePaid.OnEntered([this] { host().Hint(kProgramTitle, kPrePaidHint, RefNo.text()); });
  DiscountPercent.OnChanged([this] { cal(); });
  DepositPercent.OnTyped([this] {
    if (DepositPercent.empty()) DepositPercent.SetText(TxtP2.empty() ? kDefaultDepositPercent : TxtP2.text());
    SetDeposit();
  });
  // Of the rooms' totals, only that of room 2 does so.
  RoomTotal[1].OnChanged([this] { cal(); });

  Data1.OnReposition([this] { Repositioned(); });
}

void JobScreen::SetRoomRules() {
  SSTab1.OnSelected([this] { RoomTabSelected(); });
  for (std::size_t i = 0; i < kRoomCount; ++i) {
    RoomItemGrid[i].AddAlias("MSFlexGrid3");
    RoomItemGrid[i].OnRowSelected([this] { ShowSelectedItem(); });
    CmdClearRoom[i].SetVisible(i == 0);
    CmdClearRoom[i].OnClicked([this, room = static_cast<int>(i) + 1] { ClearRoom(room); });
  }
  CmdDeleteFromRoom.OnClicked([this] { DeleteFromRoom(); });

  for (std::size_t i = 0; i <= kRoomCount; ++i) {
    RoomSummaryTotal[i].AddAlias("Label11");
    Label10[i].OnClicked([this, room = static_cast<int>(i)] { GoToRoom(room); });
  }

  SingleItemGrid.AddAlias("MSFlexGrid1");
  SingleItemGrid.SetWidths({800, 500, 4500, 1200, 1200});
  for (Button* button : {&CmdRooms[1], &CmdRooms[2]}) button->SetEnabled(false);
  SingleItemGrid.OnRowSelected([this] {
    for (Button* button : {&CmdRooms[1], &CmdRooms[2]}) button->SetEnabled(true);
  });
  CmdRooms[2].OnClicked([this] { DeleteSingleItem(); });
}

int JobScreen::CurrentMember(std::string_view family) const {
  if (family == "Label8") return 0;
  if (family != "RoomItemGrid" && family != "CmdClearRoom") return -1;
  const double room = TxtRoomNum.Number();
  return room >= 1 && room <= static_cast<double>(kRoomCount) ? static_cast<int>(room) - 1 : -1;
}

void JobScreen::OpenData() {
  // The settings first: jobs with blank percentages take theirs. Without settings there still are jobs.
  std::optional<Fault> no_settings;
  try {
    Data2.Open(shop_.database(), kAdminTable);
  } catch (const Fault& fault) {
    no_settings = fault;
  }
  OpenJobs();
  if (no_settings) throw *no_settings;
}

void JobScreen::OpenJobs() { Data1.Open(shop_.database(), kJobTable); }

void JobScreen::RefreshSettings() {
  RowSet& settings = Data2.rows();
  // The first company may have been added since; another screen may have changed the settings.
  if (!settings.IsOpen()) IgnoreFaults([this] { Data2.Open(shop_.database(), kAdminTable); });
  if (!settings.IsOpen()) return;
  if (!Data2.HasRow()) settings.MoveFirst();
  if (!Data2.HasRow()) return;
  settings.Resync();
  Data2.LoadFields();
}

void JobScreen::DiscardChanges() {
  Data1.rows().CancelUpdate();
  Data1.LoadFields();
  Repositioned();
  Records.Show();
}

std::string JobScreen::RaiseOrderNumber() {
  RefreshSettings();
  if (!Data2.HasRow()) {
    TxtLastOrderNo.SetText(NumberText(TxtLastOrderNo.Number() + 1));
    return TxtLastOrderNo.text();
  }
  shop_.Raise(counter::kOrder);
  RefreshSettings();
  return TxtLastOrderNo.text();
}

void JobScreen::Activate() {
  cboVAT.SetText(kNoTax);
  RunEach({[this] { RefreshSettings(); }, [this] { Records.Show(); }, [this] { Refresh(); },
           [this] {
             if (std::exchange(save_is_due_, false) && !JobIsOpen()) Data1.Save();
           }});
}

void JobScreen::Refresh() {
  WorkOut([this] { RunEach({[this] { LoadSingles(); }, [this] { LoadRoom(); }, [this] { cal(); }}); });
}

void JobScreen::WorkOut(const std::function<void()>& step) {
  if (JobIsOpen()) {
    step();
  } else {
    Data1.WithoutWriting(step);
  }
}

void JobScreen::Repositioned() {
  // A table without rows, or a total that can't be worked out, must not keep the worker from moving on.
  IgnoreFaults([this] { HistoryHeading.SetCaption(" Payments History for " + Name.text()); });
  // The other rooms are read as their tabs are selected.
  for (HeldGrid& grid : RoomItemGrid) grid.Clear();
  grid_text_.fill(std::nullopt);
  Text1.SetText("");
  if (unseen_) return;
  // Before its totals: no job pays the tax of the one before it.
  cboVAT.SetText(kNoTax);
  WorkOut([this] {
    IgnoreFaults([this] { LoadSingles(); });
    IgnoreFaults([this] { LoadRoom(); });
    IgnoreFaults([this] { cal(); });
  });
}

void JobScreen::MoveUnseen(const std::function<void()>& moves) {
  unseen_ = true;
  try {
    moves();
  } catch (...) {
    unseen_ = false;
    throw;
  }
  unseen_ = false;
}

std::size_t JobScreen::RoomIndex() const {
  const double index = ParseLeading(NumberText(ParseStrict(TxtRoomNum.text()) - 1));
  for (std::size_t room = 0; room < kRoomCount; ++room) {
    if (index == static_cast<double>(room)) return room;
  }
  throw Fault("There is no room " + TxtRoomNum.text() + ".");
}

void JobScreen::LoadRoom() {
  const std::size_t room = RoomIndex();
  const ItemLines lines(RoomItems[room].text(), kRoomItemLayout);
  RoomItemGrid[room].SetRows(lines.Rows());
  grid_text_[room] = RoomItems[room].text();
  ShowSelectedItem();
  if (!Data1.HasRow()) return;
  const bool selected = SSTab1.selected() == static_cast<int>(room);
  RoomTotal[room].SetText(lines.RunningTotal(selected ? kNoMoney : RoomTotal[room].text()));
}

void JobScreen::ShowSelectedItem() {
  const double room = TxtRoomNum.Number();
  if (room < 1 || room > static_cast<double>(kRoomCount)) return;
  const HeldGrid& grid = RoomItemGrid[static_cast<std::size_t>(room) - 1];
  Text1.SetText(grid.RowCount() == 0 ? "" : TrimSpaces(grid.Text(grid.selected_row(), kEstPageInfoColumn)));
}

void JobScreen::LoadSingles() {
  const ItemLines lines(SingleItems.text(), kSingleItemLayout);
  SingleItemGrid.SetRows(lines.Rows());
  TxtSubTotal.SetText(lines.RunningTotal(kNoMoney));
}

void JobScreen::RoomTabSelected() {
  TxtRoomNum.SetText(std::to_string(SelectedRoom()));
  for (std::size_t i = 0; i < kRoomCount; ++i) {
    CmdClearRoom[i].SetVisible(static_cast<int>(i) + 1 == SelectedRoom());
  }
  RunEach({[this] { LoadRoom(); }, [this] { cal(); }});
}

void JobScreen::GoToRoom(int room) {
  if (room == 0) {
    SSTab2.Select(kSingleItemsPage);
    return;
  }
  SSTab2.Select(kRoomsPage);
  SSTab1.Select(room - 1);
  TxtRoomNum.SetText(std::to_string(room));
}

}  // namespace tarvane::job
