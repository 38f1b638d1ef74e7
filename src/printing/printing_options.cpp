#include "printing/printing_options.h"

#include <algorithm>
#include <utility>

#include "printing/head_pdf.h"
#include "printing/print_db.h"
#include "screen/busy.h"
#include "text/trim.h"
#include "text/utf8.h"
#include "tools/company.h"

namespace tarvane::printing {
namespace {

constexpr std::string_view kLettersTable = "TblLetters";
// Who made a line that holds a curtain's measures.
constexpr std::array<std::string_view, 2> kCurtainEditors = {"CurtainWizard", "MainCWizard"};
constexpr std::size_t kFirstClosing = 5;
constexpr std::size_t kExceptions = 7;

enum class RoomTicks { kNone, kWithTotals };

// What a letter begins with; everything can be changed afterwards.
struct LetterSettings {
  bool balance;
  bool letter;
  bool end_letter_1;
  bool end_letter_2;
  bool exceptions;
  RoomTicks rooms;
};
constexpr std::array<LetterSettings, FrmPrinting::kLetters> kLetterSettings = {{
    {true, true, true, false, true, RoomTicks::kWithTotals},
    {true, true, true, false, true, RoomTicks::kWithTotals},
    {false, true, false, true, false, RoomTicks::kNone},
    {true, true, false, true, false, RoomTicks::kWithTotals},
    {false, true, false, true, false, RoomTicks::kNone},
}};

// Places in the company record.
enum CompanyBox : std::size_t {
  kCompanyName = 3,
  kFirstLine = 4,
  kTelephone = 9,
  kFax = 10,
  kVatNumber = 11
};

std::string Counted(std::size_t number, const std::string& what) {
  return std::to_string(number) + " " + what + (number == 1 ? "" : "s");
}

// A name that can't be broken would make the window as wide as itself.
std::string Shortened(const std::string& name) {
  static constexpr std::size_t kMost = 60;  // characters
  const std::string_view begin = FirstCharacters(name, kMost);
  return begin.size() < name.size() ? std::string(begin) + "..." : name;
}

rich_text::Document WithDrawings(Host& host, const PrintedJob& job) {
  const Busy busy(host);
  const rich_text::Document plain = InPrinterFont(host, "");
  return PrintedDocument(job, plain.runs.front().style, plain.fonts.front());
}

std::vector<CurtainMeasures> CurtainsIn(std::string_view item_lines) {
  std::vector<CurtainMeasures> curtains;
  const job::ItemLines lines(item_lines, job::kRoomItemLayout);
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const std::string_view editor = TrimSpaces(lines[i][job::kDialogboxColumn - 1]);
    if (std::ranges::find(kCurtainEditors, editor) == kCurtainEditors.end()) continue;
    if (auto measures = MeasuresIn(lines[i][job::kInfomationColumn - 1])) curtains.push_back(*measures);
  }
  return curtains;
}

}  // namespace

std::string FrmPrinting::TickCaption(int number) {
  static constexpr std::array<std::string_view, kTicks - job::kRoomCount> kCaptions = {
      "Print Balance",
      "Print Letter",
      "End Letter 1",
      "End Letter 2",
      "Except",
      "Add Company Details",
      "Keep Letter Separate from orders.",
      "Print notes for this Job",
      "Print Single Items"};
  const int behind_rooms = number - static_cast<int>(job::kRoomCount) - 1;
  if (behind_rooms < 0) return "Print Room/Order " + std::to_string(number);
  return std::string(kCaptions[static_cast<std::size_t>(behind_rooms)]);
}

FrmPrinting::FrmPrinting(Host& host, Shop& shop, job::JobScreen& job)
    : Screen(host, std::string(kName)), shop_(shop), job_(job) {
  SetTitle("Printing Options");
  static const std::string kEndTip = "How you would like your letters to end";
  SSTab1.SetTips({"", "", "Thank You Letter", "Payment Reminder Letter", "", kEndTip, kEndTip, ""});
  StartPrinting.SetTip("Start Printer call and print view");
  for (TextField& text : TxtLetter) Data1.Bind(text, text.name(), 0);
  SetRules();
}

void FrmPrinting::SetRules() {
  SSTab1.OnSelected([this] { TabSelected(); });
  SSTab1.OnSelectedAgain([this] { TabSelected(); });  // the first tab's settings are had so on opening
  for (TickBox& tick : Ticks) tick.OnClicked([this] { TellOutcome(); });
  for (const auto& [ticked, other] :
       {std::pair(kEndLetter1, kEndLetter2), std::pair(kEndLetter2, kEndLetter1)}) {
    Check(ticked).OnClicked([this, ticked = ticked, other = other] {
      if (Check(ticked).on()) Check(other).Set(false);
      TellOutcome();
    });
  }
  Command6.OnClicked([this] { TickRooms(true); });
  Command5.OnClicked([this] { TickRooms(false); });
  Command1.OnClicked([this] { SelectFonts(); });
  Command2.OnClicked([this] { BuildWorkSheets(); });
  StartPrinting.OnClicked([this] { BuildAndShow(); });
  Command7.OnClicked([this] { ShowPdf(); });
  Command3.OnClicked([this] { UserClose(); });
}

void FrmPrinting::Load() {
  // Work sheets need no letters.
  Guard([this] { OpenTexts(); });
  TxtDear.SetText(job_.Name.text());
  TickRoomsWithTotals();
  ShowRoomTotals();
  ShowTab();
}

// A shop without texts gets a row of them with the first that is typed.
void FrmPrinting::OpenTexts() {
  for (TextField& text : TxtLetter) text.SetReadOnly(true);
  Data1.Open(shop_.database(), kLettersTable);
  if (!Data1.HasRow()) {
    Data1.rows().AddNew();
    Data1.rows().SetUntouched();
  }
  for (TextField& text : TxtLetter) text.SetReadOnly(false);
}

bool FrmPrinting::HasUnsavedTexts() const {
  return Data1.HasRow() && Data1.rows().IsEditing() && !Data1.rows().IsUntouched();
}

void FrmPrinting::SaveTexts() {
  if (HasUnsavedTexts()) Data1.Save();
}

bool FrmPrinting::MayClose() {
  try {
    SaveTexts();
    return true;
  } catch (const Fault& fault) {
    // What waits goes with the row set.
    return AskYesNo(title(), std::string(fault.what()) + "\nClose without saving it?", Answer::kNo,
                    Icon::kWarning);
  }
}

void FrmPrinting::TabSelected() {
  if (LetterSelected()) {
    const LetterSettings& settings = kLetterSettings[static_cast<std::size_t>(SSTab1.selected())];
    Check(kBalance).Set(settings.balance);
    Check(kLetter).Set(settings.letter);
    Check(kEndLetter1).Set(settings.end_letter_1);
    Check(kEndLetter2).Set(settings.end_letter_2);
    Check(kExcept).Set(settings.exceptions);
    if (settings.rooms == RoomTicks::kWithTotals) {
      TickRoomsWithTotals();
    } else {
      for (int room = 1; room <= static_cast<int>(job::kRoomCount); ++room) Check(room).Set(false);
    }
  }
  ShowTab();
  SaveTexts();
}

void FrmPrinting::ShowTab() {
  const auto tab = static_cast<std::size_t>(SSTab1.selected());
  for (std::size_t i = 0; i < kTexts; ++i) TxtLetter[i].SetVisible(i == tab);
  Label1.SetCaption((LetterSelected() ? SSTab1.captions()[tab] : "No Letter") + " Selected");
  StartPrinting.SetEnabled(LetterSelected());
  TellOutcome();
}

void FrmPrinting::TickRooms(bool on) {
  for (int room = 1; room <= static_cast<int>(job::kRoomCount); ++room) Check(room).Set(on);
  Check(kSingleItems).Set(on);
  TellOutcome();
}

void FrmPrinting::TickRoomsWithTotals() {
  for (std::size_t i = 0; i < job::kRoomCount; ++i) {
    if (job_.RoomTotal[i].Number() > 0) Ticks[i].Set(true);
  }
}

void FrmPrinting::ShowRoomTotals() {
  for (std::size_t i = 0; i < job::kRoomCount; ++i) RoomTotal[i].SetCaption(job_.RoomTotal[i].text());
  RoomTotal[job::kRoomCount].SetCaption(job_.TxtSubTotal.text());
}

void FrmPrinting::TellOutcome() { Outcome.SetCaption(OutcomeText()); }

std::string FrmPrinting::RoomsInWords() const {
  const auto rooms = static_cast<std::size_t>(std::count_if(Ticks.begin(), Ticks.begin() + job::kRoomCount,
                                                            [](const TickBox& tick) { return tick.on(); }));
  std::string words = rooms == 0 ? "" : ", " + Counted(rooms, "room");
  if (Check(kSingleItems).on()) words += ", single items";
  return words;
}

std::string FrmPrinting::OutcomeText() const {
  const std::string customer = job_.Name.empty() ? "a customer without a name" : Shortened(job_.Name.text());
  const std::string goes_with = " for " + customer + RoomsInWords();
  if (!LetterSelected()) return "No letter here. Work sheets" + goes_with;
  if (Check(kLetter).on()) {
    return SSTab1.captions()[static_cast<std::size_t>(SSTab1.selected())] + goes_with;
  }
  const bool anything = std::ranges::any_of(Ticks, [](const TickBox& tick) { return tick.on(); });
  return anything ? "No letter, the orders" + goes_with : "Nothing is ticked";
}

void FrmPrinting::SelectFonts() {
  if (auto font = host().ChooseFont(host().printer_font())) host().SetPrinterFont(std::move(*font));
}

void FrmPrinting::BuildWorkSheets() {
  for (int tick = kBalance; tick <= kCompany; ++tick) Check(tick).Set(false);
  TellOutcome();
  work_sheet_ = true;
  BuildAndShow();
}

void FrmPrinting::BuildAndShow() {
  const bool work_sheet = std::exchange(work_sheet_, false);
  // A text that can't be stored can be printed all the same.
  Guard([this] { SaveTexts(); });
  const PrintedJob job = Gather(work_sheet);
  if (work_sheet && CheckDrawings.on()) {
    ShowInPrintDB(*this, shop_, WithDrawings(host(), job));
  } else {
    ShowTextInPrintDB(*this, shop_, PrintedText(job));
  }
}

void FrmPrinting::ShowPdf() {
  std::vector<std::string> lines = WorkSheetHead(Head(), Check(kNotes).on(), host().Now());
  lines.emplace_back("msg");
  ShowHeadPdf(host(), shop_.folder(), lines);
}

PrintedJob FrmPrinting::Gather(bool work_sheet) {
  PrintedJob job;
  job.now = host().Now();
  job.job = Head();
  job.work_sheet = work_sheet;
  job.notes = Check(kNotes).on();
  if (Check(kCompany).on()) job.company = Company();
  if (Check(kLetter).on()) {
    job.letter = LetterPart{.dear = TxtDear.text(), .body = {}};
    if (LetterSelected()) job.letter->body = TxtLetter[static_cast<std::size_t>(SSTab1.selected())].text();
  }
  job.balance = Check(kBalance).on();
  for (const int closing : {kEndLetter1, kEndLetter2}) {
    if (!Check(closing).on()) continue;
    job.closings.push_back(TxtLetter[kFirstClosing + static_cast<std::size_t>(closing - kEndLetter1)].text());
  }
  job.new_page = Check(kLetterSeparate).on();
  if (Check(kSingleItems).on()) job.singles = Singles();
  job.rooms = Rooms(work_sheet && CheckDrawings.on());
  if (Check(kExcept).on()) job.exceptions = TxtLetter[kExceptions].text();
  return job;
}

JobHead FrmPrinting::Head() const {
  return {.name = job_.Name.text(),
          .address = {job_.Address.text(), job_.Town.text(), job_.County.text(), job_.PostCode.text()},
          .telephone = job_.HomeTelephone.text(),
          .mobile = job_.Mobile.text(),
          .reference = job_.RefNo.text(),
          .order_reference = job_.OrderReference.text(),
          .completion_date = job_.CompletionDate.text(),
          .fitting_date = job_.FittingDate.text(),
          .notes = job_.JobNotes.text(),
          .balance = job_.Balance.text()};
}

CompanyHead FrmPrinting::Company() {
  tools::frmtblCompany company(host(), shop_);
  company.Load();
  CompanyHead head{.name = company.TxtFields[kCompanyName].text(),
                   .address = {},
                   .telephone = company.TxtFields[kTelephone].text(),
                   .fax = company.TxtFields[kFax].text(),
                   .vat_number = company.TxtFields[kVatNumber].text()};
  for (std::size_t i = 0; i < head.address.size(); ++i) {
    head.address[i] = company.TxtFields[kFirstLine + i].text();
  }
  return head;
}

SinglesPart FrmPrinting::Singles() const {
  SinglesPart singles{.rows = {}, .sum = job_.TxtSubTotal.text()};
  for (std::int64_t row = 1; row <= job_.SingleItemGrid.RowCount(); ++row) {
    auto& cells = singles.rows.emplace_back();
    for (std::size_t column = 0; column < cells.size(); ++column) {
      cells[column] = job_.SingleItemGrid.Text(row, static_cast<int>(column));
    }
  }
  return singles;
}

std::vector<RoomPart> FrmPrinting::Rooms(bool drawings) const {
  std::vector<RoomPart> rooms;
  for (std::size_t i = 0; i < job::kRoomCount; ++i) {
    if (!Ticks[i].on()) continue;
    RoomPart& room = rooms.emplace_back();
    room.number = static_cast<int>(i) + 1;
    room.text = job_.RoomSummary[i].text();
    if (drawings) room.curtains = CurtainsIn(job_.RoomItems[i].text());
  }
  return rooms;
}

}  // namespace tarvane::printing
