#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "job/job_screen.h"
#include "printing/work_sheet.h"
#include "screen/data_source.h"

namespace tarvane::printing {

// Letters and work sheets of the open job: the texts of the letters, what goes with them, and the hand-over
// of the whole to the rich text screen. The job itself is only read. A letter's text is saved as its tab is
// left, before it is used, and on closing.
class FrmPrinting : public Screen {
 public:
  static constexpr std::string_view kName = "FrmPrinting";
  static constexpr std::size_t kTexts = 8;
  static constexpr std::size_t kLetters = 5;  // of them; then two closings and the exceptions
  static constexpr std::size_t kTicks = 21;

  // `job` must outlive the screen.
  FrmPrinting(Host& host, Shop& shop, job::JobScreen& job);

  TabStrip SSTab1{this,
                  "SSTab1",
                  {"Estimate", "Follow Up", "Thanks", "Payment Reminder", "Promotions", "End Letter 1",
                   "End Letter 2", "Except"}};
  // Go by their columns, "TxtLetter(0)" to "TxtLetter(7)"; the selected tab's is seen.
  std::array<TextField, kTexts> TxtLetter = MakeFamily<kTexts>([this](int i) {
    return TextField(this, "TxtLetter(" + std::to_string(i) + ")", "", -1, TextField::Kind::kMemo);
  });
  Label Label1{this, "Label1"};  // which letter is selected
  TextField TxtDear{this, "TxtDear"};
  // Check1 to Check21 are the entries 0 to 20.
  std::array<TickBox, kTicks> Ticks = MakeFamily<kTicks>(
      [this](int i) { return TickBox(this, "Check" + std::to_string(i + 1), TickCaption(i + 1)); });
  TickBox& Check(int number) { return Ticks[static_cast<std::size_t>(number - 1)]; }
  const TickBox& Check(int number) const { return Ticks[static_cast<std::size_t>(number - 1)]; }
  enum : int {  // numbers of ticks; 1 to 12 are the rooms
    kBalance = 13,
    kLetter,
    kEndLetter1,
    kEndLetter2,
    kExcept,
    kCompany,
    kLetterSeparate,
    kNotes,
    kSingleItems
  };
  TickBox CheckDrawings{this, "CheckDrawings", "Draw each curtain to scale"};
  // What the job has of them, beside their ticks: entries 0 to 11 the rooms, 12 the single items.
  std::array<Label, job::kRoomCount + 1> RoomTotal =
      MakeFamily<job::kRoomCount + 1>([this](int i) { return Label(this, "RoomTotal", i); });
  Label Outcome{this, "Outcome"};  // what the next press gives

  Button Command6{this, "Command6", "Select All"};
  Button Command5{this, "Command5", "Deselect All"};
  Button Command1{this, "Command1", "Select Fonts"};
  Button Command2{this, "Command2", "Build Work Sheets"};
  Button StartPrinting{this, "StartPrinting", "&Start Print/View"};
  Button Command7{this, "Command7", "PDF Print Out"};
  Button Command4{this, "Command4", "Help", kNotBuilt};
  Button Command3{this, "Command3", "&Close"};

  DataSource Data1;  // the texts of the letters

  // Commits what was typed into them. Faults where it can't be stored; it waits on.
  void SaveTexts();
  bool HasUnsavedTexts() const;

 protected:
  void Load() override;
  bool MayClose() override;

 private:
  static std::string TickCaption(int number);

  void SetRules();
  void OpenTexts();
  void TabSelected();
  void ShowTab();
  void TickRooms(bool on);
  void TickRoomsWithTotals();
  void ShowRoomTotals();
  void TellOutcome();
  std::string OutcomeText() const;
  std::string RoomsInWords() const;
  bool LetterSelected() const { return SSTab1.selected() < static_cast<int>(kLetters); }

  void BuildWorkSheets();
  void BuildAndShow();
  void ShowPdf();
  void SelectFonts();

  PrintedJob Gather(bool work_sheet);
  JobHead Head() const;
  CompanyHead Company();
  SinglesPart Singles() const;
  std::vector<RoomPart> Rooms(bool drawings) const;

  Shop& shop_;
  job::JobScreen& job_;
  bool work_sheet_ = false;  // the run that begins next is one
};

}  // namespace tarvane::printing
