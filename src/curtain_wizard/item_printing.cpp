#include "curtain_wizard/item_printing.h"

#include <string_view>

#include "curtain_wizard/wizard.h"
#include "job/job_screen.h"
#include "printing/print_db.h"
#include "text/day.h"
#include "text/trim.h"

namespace tarvane::curtain_wizard {
namespace {

constexpr std::string_view kEnd = "\r\n";
constexpr std::string_view kTwoEnds = "\r\n\r\n";
constexpr std::string_view kFourEnds = "\r\n\r\n\r\n\r\n";
constexpr std::string_view kQuickHead =
    "Customers Name: __________________________________________\r\n\r\n"
    "Customers Ref Number: ____________________________________________ ";
const std::string kDoubleRule(58, '=');
const std::string kSummaryRule(50, '=');

template <typename... Pieces>
std::string Join(const Pieces&... pieces) {
  std::string text;
  (text.append(pieces), ...);
  return text;
}

std::string CustomerHead(const PrintedItem& item) {
  std::string address;
  for (const std::string& line : item.address) {
    if (!TrimSpaces(line).empty()) address.append(line).append(", ");
  }
  return Join("Customers Name: ", item.customer, kTwoEnds, "Customers Ref Number: ", item.reference, kTwoEnds,
              "Customers Address: ", address, "Post Code: ", item.post_code);
}

std::string DateAndNumber(const PrintedItem& item) {
  std::string text = Join(kTwoEnds, "Date: ", item.date, kEnd);
  if (item.of_job) text += Join(kEnd, "Item Number: ", item.item_number, kEnd);
  return text;
}

std::string RoomLines(const PrintedItem& item) {
  return Join(kEnd, "Room Ref: ", item.room, kTwoEnds, "Room Description: ", item.description, kTwoEnds);
}

PrintedItem Printed(const MainCWizard& w) {
  const job::JobScreen& job = w.job();
  return {.of_job = w.PrintMode.text() != "1",
          .date = LongDate(w.host().Now().day),
          .item_number = w.ItemNumber.text(),
          .room = w.TxtRoom.text(),
          .description = w.TxtDescription.text(),
          .reference = job.RefNo.text(),
          .order_reference = job.OrderReference.text(),
          .customer = job.Name.text(),
          .address = {job.Address.text(), job.Town.text(), job.County.text()},
          .post_code = job.PostCode.text()};
}

}  // namespace

std::string PricedItemText(const PrintedItem& item, const std::string& lines, const std::string& total) {
  return Join(item.of_job ? kFourEnds : kQuickHead, DateAndNumber(item), RoomLines(item), lines, kTwoEnds,
              "Summary ", kSummaryRule, kTwoEnds, "Total Price Includes Vat/Tax  ........... ", total,
              kTwoEnds, kDoubleRule, kTwoEnds, "Office Use");
}

std::string PlainItemText(const PrintedItem& item, const std::string& lines) {
  std::string text = item.of_job ? CustomerHead(item) : std::string(kQuickHead);
  text += DateAndNumber(item);
  if (item.of_job) {
    text += Join(kEnd, "Estimate Order Number: ", item.order_reference, kTwoEnds,
                 "Ref Number: ", item.reference, kEnd);
  }
  return text.append(RoomLines(item)).append(lines).append(kTwoEnds).append("Office Use");
}

void MainCWizard::HookPrinting() {
  CmdPrint.OnClicked([this] {
    printing::ShowTextInPrintDB(*this, shop_,
                                PricedItemText(Printed(*this), ItemTextPriced.text(), GrandTotal.text()));
  });
  Cmdprintwithoutprices.OnClicked([this] {
    printing::ShowTextInPrintDB(*this, shop_, PlainItemText(Printed(*this), ItemTextPlain.text()));
  });
  EnablePrinting(false);
}

}  // namespace tarvane::curtain_wizard
