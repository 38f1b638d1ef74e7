#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "job/job_record.h"
#include "job/room_text.h"
#include "screen/control_family.h"
#include "screen/data_source.h"
#include "screen/record_bar.h"
#include "screen/screen.h"
#include "shop/shop.h"

namespace tarvane::job {

// The job part of the main screen: the open job with its rooms, single items and totals. Other screens work
// on its members directly; after each of them has closed it is activated and reads all anew.
//
// A control that shows a column of the job goes by the column's name ("5T(4)"), whatever the member is
// called. Quantities are decimal text, money with two places. Without a current row the bound fields are
// blank, and what procedures put into them is lost.
class JobScreen : public Screen {
 public:
  static constexpr std::string_view kName = "Form1";

  // `shop` must outlive the screen. Opens nothing yet.
  JobScreen(Host& host, Shop& shop);

  Shop& shop() const { return shop_; }

  // ---- Customer details, bound to the job.
  TextField RefNo{this, "RefNo"};  // given by the database, never typed
  TextField OrderReference{this, "Ext2"};
  DropDownList SalesPerson{this, "Ext6"};  // alias CboSalesPerson
  TextField DateCreated{this, "3Text"};
  TextField CompletionDate{this, "CompletionDate"};
  TextField FittingDate{this, "Ext3"};
  TextField Name{this, "Name"};
  TextField Company{this, "5T(2)"};
  TextField Address{this, "Address"};
  TextField Town{this, "Town"};
  TextField County{this, "County"};
  TextField PostCode{this, "PostCode"};
  TextField HomeTelephone{this, "Telephone"};
  TextField Mobile{this, "Mobile"};
  TextField WorksTelephone{this, "1Text"};
  TextField Fax{this, "2Text"};
  TextField Email{this, "5T(0)"};
  TextField WebSite{this, "4T(4)"};  // without scheme
  TickBox Completed{this, "Completed", "Completed"};
  TickBox Lost{this, "Check2", "Losted Job"};
  TextField JobNotes{this, "5T(3)", "", -1, TextField::Kind::kMemo};
  TextField History{this, "History", "", -1, TextField::Kind::kMemo};
  // Go by their columns (kCheckListColumns), aliases CheckList1 to CheckList12.
  std::array<TickBox, kCheckListCount> CheckList = MakeFamily<kCheckListCount>(
      [this](int i) { return TickBox(this, std::string(kCheckListColumns[static_cast<std::size_t>(i)])); });

  // ---- Totals of the job, bound.
  TextField GTotal{this, "G-Total"};  // twelve rooms and the singles; no tax, no discount yet
  TextField DiscountPercent{this, "Ext4"};
  TextField Total{this, "4text"};  // after tax and discount
  TextField DepositPercent{this, "Ext1"};
  TextField DepositPaid{this, "DepositPaid"};
  TextField PrePaid{this, "5T(4)"};
  TextField Balance{this, "5Text"};

  // ---- Totals that aren't stored.
  TextField TxtSubTotal{this, "TxtSubTotal", "0.00"};  // single items
  DropDownList cboVAT{this, "cboVAT", "20"};           // tax in percent
  TextField TxtTotalVat{this, "TxtTotalVat"};
  TextField TxtTotalDiscount{this, "TxtTotalDiscount"};

  // ---- Rooms; entry n-1 is room n.
  TextField TxtRoomNum{this, "TxtRoomNum", "1"};  // the current room, "1" to "12"
  std::array<TextField, kRoomCount> RoomItems = Rooms(&RoomColumns::items, TextField::Kind::kMemo);
  std::array<TextField, kRoomCount> RoomSummary = Rooms(&RoomColumns::summary, TextField::Kind::kMemo);
  std::array<TextField, kRoomCount> RoomTotal = Rooms(&RoomColumns::total, TextField::Kind::kLine);
  // Alias MSFlexGrid3. The bare name is the current room's.
  std::array<HeldGrid, kRoomCount> RoomItemGrid =
      MakeFamily<kRoomCount>([this](int i) { return HeldGrid(this, "RoomItemGrid", RoomItemHeadings(), i); });
  std::array<Button, kRoomCount> CmdClearRoom = MakeFamily<kRoomCount>([this](int i) {
    return Button(this, "CmdClearRoom", "Clear and Complie " + std::to_string(i + 1), i);
  });
  Button CmdDeleteFromRoom{this, "CmdDeleteFromRoom", "De&lete From Room"};
  TextField Text1{this, "Text1", "", -1, TextField::Kind::kMemo};  // the selected item's lines

  // ---- Single items.
  TextField SingleItems{this, "Memo21", "", -1, TextField::Kind::kMemo};
  HeldGrid SingleItemGrid{this, "SingleItemGrid", SingleItemHeadings()};  // alias MSFlexGrid1
  std::array<Button, 3> CmdRooms = MakeFamily<3>([this](int i) {
    static constexpr std::array<std::string_view, 3> kCaptions = {"&Add Item", "&Update Item",
                                                                  "&Delete Item"};
    const std::string_view caption = kCaptions[static_cast<std::size_t>(i)];
    return i == 2 ? Button(this, "CmdRooms", caption, i) : Button(this, "CmdRooms", caption, kNotBuilt, i);
  });

  // ---- Pages, the summary panel, captions.
  TabStrip SSTab2{
      this, "SSTab2", {" Customer Details", "Single Items / Check List", "Rooms", "Payment History"}};
  TabStrip SSTab1{this, "SSTab1", RoomTabCaptions()};
  // Names to click on, and the totals beside them: 0 the single items, n room n.
  std::array<Label, kRoomCount + 1> Label10 = MakeFamily<kRoomCount + 1>([this](int i) {
    return Label(this, "Label10", i, i == 0 ? "Single Items" : "Room " + std::to_string(i));
  });
  std::array<Label, kRoomCount + 1> RoomSummaryTotal = MakeFamily<kRoomCount + 1>(
      [this](int i) { return Label(this, "RoomSummaryTotal", i); });  // alias Label11
  std::array<Label, 1> Label8 =
      MakeFamily<1>([this](int i) { return Label(this, "Label8", i, "Messages"); });  // 0: the message line
  Label HistoryHeading{this, "HistoryHeading"};  // " Payments History for " and the customer

  // ---- Columns of Admin.
  TextField TxtLastOrderNo{this, "TxtLastOrderNo"};        // LastOrderNo
  TextField TxtCurrencySymbol{this, "TxtCurrencySymbol"};  // CurrencySymbol
  TextField TxtP1{this, "TxtP1"};                          // Ext1, discount % of new jobs
  TextField TxtP2{this, "TxtP2"};                          // Ext2, deposit % of new jobs
  TextField TxtTrack{this, "TxtTrack", "2"};               // letter to print: "2" estimate, "3" statement

  DataSource Data1;  // the jobs
  DataSource Data2;  // the settings row
  RecordBar Records{this, Data1};

  // Opens the jobs and the settings. Faults where the database or a table can't be had.
  void OpenData();
  // Opens the table of the jobs anew; what waits unsaved is lost.
  void OpenJobs();
  // Fills grid and total of the current room (TxtRoomNum) from its stored lines. Faults where that is no
  // room.
  void LoadRoom();
  void LoadSingles();
  // All three, each for itself: a fault in one is told and the others still run.
  void Refresh();
  // Works out all totals of the job. Faults where 5T(4) isn't a number.
  void cal();

  // Another screen has put something into the job. It waits for the worker's next save or move like all that
  // is typed; into a job that isn't open, and so can't be saved, it is committed with the next activation.
  void SaveUnlessOpen() { save_is_due_ = true; }
  // Drops what waits unsaved: the job is again as it stands on the disk, or gone where it was new.
  void DiscardChanges();

  // Takes the next order number: LastOrderNo, raised by one and committed at once, so that no number is given
  // twice. Without a row of settings it is counted on the screen alone. Faults where it can't be stored.
  std::string RaiseOrderNumber();

  // TxtRoomNum as an index from 0; faults where it is no room.
  std::size_t RoomIndex() const;
  // The room whose tab is selected, from 1.
  int SelectedRoom() const { return SSTab1.selected() + 1; }
  void GoToRoom(int room);  // 1 to 12: its tab on the page of the rooms; 0: the page of the single items

  // Puts the grid's lines into the stored text. `room_index` from 0.
  void RewriteRoomText(std::size_t room_index);
  void RewriteSinglesText();

  // Compiles the summary of `room` (1 to 12) from its grid.
  void ClearRoom(int room);
  void ClearedMessage();
  // Delete the selected row after a question.
  void DeleteFromRoom();
  void DeleteSingleItem();

  // Operations without content, kept for those who call them.
  void ClearCurtainData() {}
  void Update() {}

 protected:
  void Activate() override;
  int CurrentMember(std::string_view family) const override;

  // Whether the worker has opened the job, and not just passes over it: then the totals that are worked out
  // for it are its own, and are committed with the next move or save.
  virtual bool JobIsOpen() const { return true; }
  // After another job has become current.
  void Repositioned();
  // Runs `moves` between jobs that the worker doesn't see: totals are worked out, and so stored, for the job
  // that is current in the end only.
  void MoveUnseen(const std::function<void()>& moves);

 private:
  std::array<TextField, kRoomCount> Rooms(std::string_view RoomColumns::*column, TextField::Kind kind) {
    return MakeFamily<kRoomCount>([this, column, kind](int i) {
      return TextField(this, std::string(kRoomColumns[static_cast<std::size_t>(i)].*column), "", -1, kind);
    });
  }
  static std::vector<std::string> RoomTabCaptions();

  void BindJob();
  void BindSettings();
  void SetRules();
  void SetRoomRules();
  void MarkHidden();

  void SetDeposit();
  void RoomTabSelected();
  void TaxEntered();
  bool DeleteSelectedRow(HeldGrid& grid);
  void RefreshSettings();
  // For a job that isn't open, what `step` works out stays on the screen.
  void WorkOut(const std::function<void()>& step);
  void ShowSelectedItem();

  Shop& shop_;
  // The stored text that each room's grid was made of; none where it is to be read first.
  std::array<std::optional<std::string>, kRoomCount> grid_text_;
  bool unseen_ = false;
  bool save_is_due_ = false;
};

}  // namespace tarvane::job
