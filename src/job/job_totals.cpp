// The arithmetic of a job. Every quantity is read from its text and goes back as text with two places, in
// just this order: the rounding follows from it.
#include "job/job_screen.h"

namespace tarvane::job {

namespace {

constexpr std::string_view kNothing = "0.00";
constexpr std::string_view kUsualTax = "17.5";

void FormatMoney(TextField& field) { field.SetText(Format2(field.text())); }

}  // namespace

void JobScreen::cal() {
  if (Data1.HasRow()) {
    std::string sum = NumberText(RoomTotal[0].Number());
    const auto add = [&sum](const TextField& field) { sum = NumberText(ParseLeading(sum) + field.Number()); };
    for (std::size_t room = 1; room < kRoomCount; ++room) add(RoomTotal[room]);
    add(TxtSubTotal);
    GTotal.SetText(NumberText(ParseLeading(sum)));
    if (PrePaid.empty()) PrePaid.SetText(kNothing);
    FormatMoney(GTotal);
    TxtTotalVat.SetNumber(GTotal.Number() * cboVAT.Number() / 100, Mask::k0_00);
    if (DiscountPercent.empty()) DiscountPercent.SetText(kDefaultDiscountPercent);
    TxtTotalDiscount.SetNumber((GTotal.Number() + TxtTotalVat.Number()) * DiscountPercent.Number() / 100,
                               Mask::k0_00);
    Total.SetNumber(GTotal.Number() + TxtTotalVat.Number() - TxtTotalDiscount.Number(), Mask::k0_00);
    if (DepositPercent.empty()) DepositPercent.SetText(TxtP2.empty() ? kDefaultDepositPercent : TxtP2.text());
    SetDeposit();
    FormatMoney(PrePaid);
    FormatMoney(Balance);
    Balance.SetNumber(ParseStrict(Total.text()) - ParseStrict(PrePaid.text()), Mask::k0_00);
    FormatMoney(TxtSubTotal);
    for (TextField& total : RoomTotal) FormatMoney(total);
  }
  RoomSummaryTotal[0].SetCaption(TxtSubTotal.text());
  for (std::size_t room = 0; room < kRoomCount; ++room) {
    RoomSummaryTotal[room + 1].SetCaption(RoomTotal[room].text());
  }
}

void JobScreen::SetDeposit() {
  DepositPaid.SetNumber(Total.Number() * DepositPercent.Number() / 100, Mask::k0_00);
}

void JobScreen::TaxEntered() {
  if (cboVAT.empty()) cboVAT.SetText(kUsualTax);
  cal();
}

}  // namespace tarvane::job
