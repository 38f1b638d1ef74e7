#include "catalogues/room_entry.h"

#include <cmath>
#include <cstddef>
#include <functional>
#include <optional>
#include <string_view>

#include "catalogues/net_price.h"
#include "job/job_screen.h"
#include "text_number/text_number.h"

namespace tarvane::catalogues {

namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::size_t kRuleLength = 30;
// With two places no larger amount keeps all of its digits.
constexpr double kMostMoney = 1e13;

constexpr int kRoomWithTheTotalOfTheFirst = 6;

// Asks until `read` makes something of an answer; nothing where the worker gives up.
template <typename Read>
auto AskFor(Screen& asking, std::string_view prompt, std::string_view wrong, Read read)
    -> decltype(read(std::string())) {
  for (;;) {
    const std::optional<std::string> answer = asking.host().Input(kProgramTitle, prompt, "");
    if (!answer || answer->empty()) return {};
    if (auto taken = read(*answer)) return taken;
    asking.Message(wrong, kProgramTitle, Icon::kError);
  }
}

// A whole number, as it stands in the room's text. Faults where the answer is no number.
std::optional<std::string> AskAmount(Screen& asking) {
  return AskFor(asking, "Enter amount needed?", "Invlid Number 1 or more!",
                [](const std::string& answer) -> std::optional<std::string> {
                  std::string amount = Format(answer, Mask::k0);
                  if (ParseStrict(amount) < 1) return {};
                  return amount;
                });
}

std::optional<int> AskRoom(Screen& asking) {
  return AskFor(asking, "Enter Order/Room No 1 to 12 to enter information to.", "Invlid Number 1 to 12 only!",
                [](const std::string& answer) -> std::optional<int> {
                  if (!IsNumber(answer)) return {};
                  const double room = ParseStrict(Format(answer, Mask::k0));
                  if (room < 1 || room > static_cast<double>(job::kRoomCount)) return {};
                  return static_cast<int>(room);
                });
}

// The entry as the room's summary shows it.
struct EntryText {
  std::string amount;
  std::string unit_price;
  std::string line_total;

  std::string Compile(const RoomEntry& entry) const {
    const std::string rule(kRuleLength, '-');
    std::string text;
    for (const std::string& line :
         {rule, "Item added from " + entry.database + " Ref No: " + entry.number, entry.text,
          "Price excludes Vat/Tax " + amount + " X " + unit_price + " = " + line_total}) {
      text.append(line).append(kLineEnd);
    }
    return text + rule;
  }
};

void CheckSize(double total) {
  if (!(std::abs(total) < kMostMoney)) {
    throw Fault("The price comes to more than a job can hold. Nothing was put in.");
  }
}

// Setting a total may run rules of the job that fault; what belongs together is put in all the same.
void PutIn(Screen& asking, job::JobScreen& job, int room, const std::string& text, double line_total) {
  const auto at = static_cast<std::size_t>(room - 1);
  TextField& summary = job.RoomSummary[at];
  TextField& total = job.RoomTotal[at];
  // Meant so: that room comes to show the total of the first one.
  const TextField& formatted = room == kRoomWithTheTotalOfTheFirst ? job.RoomTotal[0] : total;
  asking.RunEach({
      [&] { summary.SetText(summary.text() + "\r\n\r\n" + text); },
      [&] { total.SetNumber(total.Number() + line_total); },
      [&] { total.SetText(Format2(formatted.text())); },
      [&] {
        job.RoomItems[at].SetText(std::to_string(room) + ") - Order Total " + total.text() + " Exc Vat");
      },
      [&] { job.GTotal.SetNumber(job.GTotal.Number() + line_total); },
  });
}

}  // namespace

bool PutIntoRoom(Screen& asking, job::JobScreen& job, const RoomEntry& entry) {
  if (!job.Data1.HasRow()) throw Fault("No job is open. Open one first, or add a new one.");
  const std::optional<std::string> amount = AskAmount(asking);
  if (!amount) return false;
  const std::optional<int> room = AskRoom(asking);
  if (!room) return false;

  const std::string unit_price = NetPrice(entry.selling_price, job.cboVAT.text());
  const double price = ParseLeading(*amount) * ParseLeading(unit_price);
  CheckSize(price);
  const EntryText text = {*amount, unit_price, FormatNumber(price, Mask::k0_00)};
  const double line_total = ParseLeading(text.line_total);
  CheckSize(job.RoomTotal[static_cast<std::size_t>(*room - 1)].Number() + line_total);
  CheckSize(job.GTotal.Number() + line_total);

  PutIn(asking, job, *room, text.Compile(entry), line_total);
  job.SaveUnlessOpen();
  asking.Message("Item Added in Tab Order " + std::to_string(*room));
  return true;
}

std::string WhoseRooms(const job::JobScreen& job) {
  if (!job.Data1.HasRow()) return "No job is open to put it into.";
  return "Goes into the job of " + (job.Name.empty() ? "a customer without a name" : job.Name.text()) + ".";
}

std::string WhatItemsLose(const job::JobScreen& job) {
  std::string rooms;
  int count = 0;
  for (std::size_t at = 0; at < job::kRoomCount; ++at) {
    if (job::ItemLines(job.RoomItems[at].text(), job::kRoomItemLayout).size() == 0) continue;
    rooms += (count++ == 0 ? "" : ", ") + std::to_string(at + 1);
  }
  if (count == 0) return "";
  const std::string have = count == 1 ? "Room " + rooms + " has" : "Rooms " + rooms + " have";
  return have +
         " items. Putting this in takes a room's items out of its list and its total; its summary keeps "
         "their text.";
}

}  // namespace tarvane::catalogues
