// The arithmetic of a job. Every quantity is read from its text and goes back as text with two places, in
// just this order: the rounding follows from it.
#include "job/job_screen.h"

namespace tarvane {

namespace {

constexpr std::string_view kNothing = "0.00";
constexpr std::string_view kUsualTax = "17.5";

void SetMoney(TextField& field, double amount) { field.SetText(FormatNumber(amount, Mask::k0_00)); }
void FormatMoney(TextField& field) { field.SetText(Format2(field.text())); }

}  // namespace

void JobScreen::FillBlankMoney() {
  if (PrePaid.empty()) PrePaid.SetText(kNothing);
  if (GTotal.empty()) GTotal.SetText(kNothing);
  Balance.SetText(kNothing);
}

void JobScreen::cal() {
  if (Data1.HasRow()) {
    std::string sum = NumberText(RoomTotal[0].Number());
    const auto add = [&sum](const TextField& field) { sum = NumberText(ParseLeading(sum) + field.Number()); };
    for (std::size_t room = 1; room < kRoomCount; ++room) add(RoomTotal[room]);
    add(TxtSubTotal);
    GTotal.SetText(NumberText(ParseLeading(sum)));
    FillBlankMoney();
    FormatMoney(GTotal);
    SetMoney(TxtTotalVat, GTotal.Number() * cboVAT.Number() / 100);
    if (DiscountPercent.empty()) DiscountPercent.SetText(kDefaultDiscountPercent);
    SetMoney(TxtTotalDiscount, (GTotal.Number() + TxtTotalVat.Number()) * DiscountPercent.Number() / 100);
    SetMoney(Total, GTotal.Number() + TxtTotalVat.Number() - TxtTotalDiscount.Number());
    if (DepositPercent.empty()) DepositPercent.SetText(TxtP2.empty() ? kDefaultDepositPercent : TxtP2.text());
    SetDeposit();
    FormatMoney(PrePaid);
    FormatMoney(Balance);
    SetMoney(Balance, ParseStrict(Total.text()) - ParseStrict(PrePaid.text()));
    FormatMoney(TxtSubTotal);
    for (TextField& total : RoomTotal) FormatMoney(total);
  }
  RoomSummaryTotal[0].SetCaption(TxtSubTotal.text());
  for (std::size_t room = 0; room < kRoomCount; ++room) {
    RoomSummaryTotal[room + 1].SetCaption(RoomTotal[room].text());
  }
}

void JobScreen::SetDeposit() { SetMoney(DepositPaid, Total.Number() * DepositPercent.Number() / 100); }

void JobScreen::TaxEntered() {
  if (cboVAT.empty()) cboVAT.SetText(kUsualTax);
  cal();
}

void JobScreen::ActivationTotals() {
  FillBlankMoney();
  SetMoney(GTotal, TxtSubTotal.Number());
  SetMoney(TxtTotalVat, GTotal.Number() * cboVAT.Number() / 100);
  SetMoney(Total, GTotal.Number() + TxtTotalVat.Number());
  FormatMoney(PrePaid);
  FormatMoney(Balance);
  SetMoney(Balance, ParseStrict(Total.text()) - ParseStrict(PrePaid.text()));
}

void JobScreen::Activate() {
  // An event of its own: a fault in it doesn't end what follows the closing of the other screen.
  Guard([this] {
    if (Data2.HasRow()) {
      // Another screen may have changed the settings.
      Data2.rows().Resync();
      Data2.LoadFields();
    }
    cboVAT.SetText("0");
    ShowRecordPosition();
    if (Data1.HasRow()) ActivationTotals();
    LoadSingles();
    LoadRoom();
    cal();
  });
}

}  // namespace tarvane
