#pragma once

#include <string>
#include <vector>

namespace tarvane::curtain_wizard {

// What is printed of a curtain item. Any text may be empty.
struct PrintedItem {
  bool of_job = true;  // else a quick calculation: places to write in stand for the customer
  std::string date;
  std::string item_number;
  std::string room;
  std::string description;
  // Of the job.
  std::string reference;
  std::string order_reference;
  std::string customer;
  std::vector<std::string> address;  // without the post code
  std::string post_code;
};

// Whole pages as plain text with CR LF: for the shop, with `lines` (ItemTextPriced) and the total;
std::string PricedItemText(const PrintedItem& item, const std::string& lines, const std::string& total);
// for the customer, with `lines` (ItemTextPlain) alone.
std::string PlainItemText(const PrintedItem& item, const std::string& lines);

}  // namespace tarvane::curtain_wizard
