#include "curtain_wizard/item_printing.h"

#include <gtest/gtest.h>

namespace tarvane::curtain_wizard {
namespace {

PrintedItem Item(bool of_job) {
  return {.of_job = of_job,
          .date = "04/05/2026",
          .item_number = "1007",
          .room = "Room 1",
          .description = "Bay window",
          .reference = "7",
          .order_reference = "1006",
          .customer = "Ash",
          .address = {"1 Mill Lane", " ", "Ashfordshire"},
          .post_code = "ZZ9 4PF"};
}

const std::string kCounter =
    "Customers Name: __________________________________________\r\n\r\n"
    "Customers Ref Number: ____________________________________________ \r\n\r\nDate: 04/05/2026\r\n";
const std::string kRoom = "\r\nRoom Ref: Room 1\r\n\r\nRoom Description: Bay window\r\n\r\nLINES\r\n\r\n";
const std::string kSummary =
    "Summary ==================================================\r\n\r\n"
    "Total Price Includes Vat/Tax  ........... 9.50\r\n\r\n"
    "==========================================================\r\n\r\n";

TEST(ItemPrinting, WithPrices) {
  EXPECT_EQ(PricedItemText(Item(false), "LINES", "9.50"), kCounter + kRoom + kSummary + "Office Use");
  EXPECT_EQ(PricedItemText(Item(true), "LINES", "9.50"),
            "\r\n\r\n\r\n\r\n\r\n\r\nDate: 04/05/2026\r\n\r\nItem Number: 1007\r\n" + kRoom + kSummary +
                "Office Use");
}

TEST(ItemPrinting, WithoutPrices) {
  EXPECT_EQ(PlainItemText(Item(false), "LINES"), kCounter + kRoom + "Office Use");
  EXPECT_EQ(PlainItemText(Item(true), "LINES"),
            "Customers Name: Ash\r\n\r\nCustomers Ref Number: 7\r\n\r\n"
            "Customers Address: 1 Mill Lane, Ashfordshire, Post Code: ZZ9 4PF\r\n\r\nDate: 04/05/2026\r\n"
            "\r\nItem Number: 1007\r\n\r\nEstimate Order Number: 1006\r\n\r\nRef Number: 7\r\n" +
                kRoom + "Office Use");
}

}  // namespace
}  // namespace tarvane::curtain_wizard
