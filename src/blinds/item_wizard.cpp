#include "blinds/item_wizard.h"

#include "blinds/templates.h"
#include "job/job_screen.h"

namespace tarvane::blinds {

namespace {

// "24-Dec-2026".
std::string DateWithMonthName(Day day) {
  static constexpr std::array<std::string_view, 12> kMonths = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                               "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
  const std::string iso = IsoDate(day);
  const std::string_view month = kMonths[static_cast<std::size_t>(MonthOf(day)) - 1];
  return iso.substr(iso.size() - 2) + "-" + std::string(month) + "-" + iso.substr(0, iso.size() - 6);
}

}  // namespace

WizardNewBlinds::WizardNewBlinds(Host& host, Shop& shop, job::JobScreen& job)
    : Screen(host, std::string(kName)), shop_(shop), job_(job) {
  SetTitle("Item Wizard");
  TargetRoomIndex.AddAlias("Text37");
  for (TextField& field : HPtxtFields) field.SetSelectAllOnFocus();
  CmdUpdateAndClose.SetVisible(false);
  HideWorkingValues();
  HookItem();
  HookCosting();
}

void WizardNewBlinds::HideWorkingValues() {
  for (Control* control : std::initializer_list<Control*>{
           &HPtxtFields.back(), &Command2,         &TargetRoomIndex,    &Txtinfo,          &TxtRow,
           &CompiledItemText,   &BlindInfo,        &CboTieBacks,        &TxtSuppliersName, &TxtNotes,
           &LblBandNo,          &cmdGenerate,      &nsdProduct,         &FabricText,       &QtyNeeded,
           &PricePerMetre,      &BlindPriceIncVat, &TxtDeliveryCosting, &TxtLabour,        &TxtOtherCosting,
           &TxtNoOfTieBacks,    &TxtSubTotal}) {
    control->SetNeverShown();
  }
  for (Label& label : CostingLabel) label.SetNeverShown();
}

void WizardNewBlinds::HookItem() {
  SSTab1.OnSelected([this] { Elements.Cal2(); });
  for (auto* amounts : {&Elements.TxtItemQty, &Elements.TxtSubTotalForItem}) {
    for (TextField& amount : *amounts) amount.OnLeft([this] { Elements.Cal2(); });
  }
  dtpDate.OnClicked([this] { TakeDate(); });
  Command1.OnClicked([this] { Close(); });
  Command3.OnClicked([this] { Compile(); });
  Command4.OnClicked([this] { ShowTemplates(); });
  for (Button* save : {&CmdFinishTwo, &Command2}) save->OnClicked([this] { FinishNew(); });
  CmdUpdateAndClose.OnClicked([this] { Update(); });
}

void WizardNewBlinds::Load() {
  SSTab1.Select(0);
  FillCostingLists();
  date_ = host().Now().day;
  dtpDate.Set(date_);
}

// Runs again when the templates close; the record is read at the opening alone, since by then the fields may
// hold more than it does.
void WizardNewBlinds::Activate() {
  for (TextField* amount : {&TxtDeliveryCosting, &BlindPriceIncVat, &TxtLabour, &Elements.TxtGrandTotal}) {
    amount->SetText("0.00");
  }
  const auto set_room = [this] {
    if (HPtxtFields[kRoom].empty()) HPtxtFields[kRoom].SetText("Room " + job_.TxtRoomNum.text());
  };
  if (is_shown()) {
    // Whatever becomes of the number, the totals must be those of the lines.
    RunEach({[this] { TakeItemNumber(); }, set_room, [this] { Elements.Cal2(); }});
    return;
  }
  if (!Txtinfo.empty()) TakeRecord();
  TakeItemNumber();
  set_room();
  Elements.Cal2();
  opened_with_ = WriteRecord(Texts());
  // What comes before it is filled in already.
  SetFocus(HPtxtFields[kDescription]);
}

void WizardNewBlinds::TakeRecord() {
  const ItemTexts item = ReadRecord(Txtinfo.text());
  for (std::size_t i = 0; i < kTextLines; ++i) HPtxtFields[i].SetText(item.lines[i]);
  for (std::size_t i = 0; i < ElementLines::kCount; ++i) {
    Elements.txtItems[i].SetText(item.elements[i].text);
    Elements.TxtItemQty[i].SetText(item.elements[i].quantity);
    Elements.TxtSubTotalForItem[i].SetText(item.elements[i].unit_price);
  }
  CmdUpdateAndClose.SetVisible(true);
  CmdFinishTwo.SetVisible(false);
  SetTitle("Edit Mode.");
}

// The number is used up at once, whether the item is saved or not. One that can't be used up isn't given.
void WizardNewBlinds::TakeItemNumber() {
  TextField& number = HPtxtFields[kItemNo];
  if (!number.empty()) return;
  const std::string next = job_.TxtLastOrderNo.text();
  job_.RaiseOrderNumber();
  number.SetText(next);
}

void WizardNewBlinds::TakeDate() {
  TextField& date = HPtxtFields[kDate];
  if (!date.empty() &&
      !AskYesNo(kProgramTitle, "This action will change the date for this Blind. Do you want to processed?",
                Answer::kNo)) {
    dtpDate.Set(date_);
    return;
  }
  date_ = dtpDate.day();
  date.SetText(DateWithMonthName(date_));
}

ItemTexts WizardNewBlinds::Texts() const {
  ItemTexts item;
  for (std::size_t i = 0; i < kTextLines; ++i) item.lines[i] = HPtxtFields[i].text();
  for (std::size_t i = 0; i < ElementLines::kCount; ++i) {
    item.elements[i] = {Elements.txtItems[i].text(), Elements.TxtItemQty[i].text(),
                        Elements.TxtSubTotalForItem[i].text(), Elements.TxtItemTotal[i].text()};
  }
  item.grand_total = Elements.TxtGrandTotal.text();
  return item;
}

void WizardNewBlinds::Compile() {
  Elements.TxtGrandTotal.SetText(Format2(Elements.TxtGrandTotal.text()));
  CompiledItemText.SetText(CompiledItemText.text() + CompileItemText(Texts()));
}

void WizardNewBlinds::ShowTemplates() {
  FrmBlindsTemplates templates(host(), shop_, job_);
  templates.ForWizard(*this);
  ShowModal(templates);
}

}  // namespace tarvane::blinds
