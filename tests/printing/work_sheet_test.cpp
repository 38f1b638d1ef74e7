#include "printing/work_sheet.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace tarvane::printing {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

const std::string kRule(58, '-');

PrintedJob Job() {
  PrintedJob job;
  job.now = {MakeDay(2026, 5, 4), 9, 5, 7};
  job.job = {.name = "Mrs Tarrant",
             .address = {"5 Weavers Row", "Marlowick", "", "ZZ9 1AB"},
             .telephone = "01632 1",
             .mobile = "07700 2",
             .reference = "17",
             .order_reference = "1042",
             .completion_date = "01/06/26",
             .fitting_date = "",
             .notes = "Dog.\r\nRing twice.",
             .balance = "12.50"};
  return job;
}

TEST(PrintedText, EachPartStandsInItsPlaceWithItsLineEnds) {
  struct Case {
    const char* what;
    std::function<void(PrintedJob&)> tick;
    std::string text;
  };
  const std::string address = "Mrs Tarrant\r\n5 Weavers Row\r\nMarlowick\r\n\r\nZZ9 1AB\r\n";
  const std::string head = "\r\n" + address +
                           "Telephone: 01632 1\r\nMobile: 07700 2\r\n"
                           "Work Sheets Printed on: 04/05/2026 09:05:07\r\nTarvane Ref No: 17\r\n"
                           "Tarvane Order No: 1042\r\nCompletion Date:   01/06/26\r\nFitting Date: \r\n\r\n";
  const std::string letter =
      address + "\r\n\r\nDate: 04/05/2026\r\nRef No: 17\r\n\r\n\r\n\r\n\r\nDear Anne\r\n\r\n\r\n";
  const std::vector<Case> cases = {
      {"nothing", [](PrintedJob&) {}, ""},
      {"notes without a work sheet", [](PrintedJob& job) { job.notes = true; }, ""},
      {"work sheet", [](PrintedJob& job) { job.work_sheet = true; }, head},
      {"work sheet with notes", [](PrintedJob& job) { job.work_sheet = job.notes = true; },
       head + "Notes about this Job\r\nDog.\r\nRing twice.\r\n\r\n-------------------------\r\n"},
      {"company",
       [](PrintedJob& job) {
         job.company = {"Pennyfold", {"14 Weavers Row", "", "Marlowick", "ZZ9", ""}, "1", "2", "3"};
       },
       "Pennyfold\r\n14 Weavers Row, Marlowick, ZZ9\r\nTele: 1 Fax No: 2\r\nVat No: 3\r\n\r\n\r\n\r\n"},
      {"letter",
       [](PrintedJob& job) {
         job.letter = {"Anne", "Thank you."};
       },
       letter + "Thank you.\r\n"},
      {"letter on a tab without one",
       [](PrintedJob& job) {
         job.letter = {"Anne", {}};
       },
       letter},
      {"balance", [](PrintedJob& job) { job.balance = true; },
       "The total balance payable for the order(s) will be 12.50\r\n\r\n\r\n"},
      {"closing", [](PrintedJob& job) { job.closings = {"Yours"}; }, "\r\nYours\r\n\r\n"},
      {"letter separate", [](PrintedJob& job) { job.new_page = true; },
       "\r\n\r\nDate Printed 04/05/2026 09:05:07\r\n"},
      {"single items",
       [](PrintedJob& job) {
         job.singles = {{{"1", "2", "Pole", "3.00", "6.00"}}, "6.00"};
       },
       "------- START OF SINGLE ITEMS\r\n(Item No:) 1 (Qty:) 2 (Description:) Pole (Unit Price:) 3.00 "
       "(Total Price:) 6.00\r\n\r\n" +
           kRule + "\r\nTotal price for single items includes Vat/Tax  6.00\r\n" + kRule +
           "\r\n------- END OF SINGLE ITEMS\r\n"},
      {"rooms",
       [](PrintedJob& job) {
         job.rooms = {{1, "One\r\n", {}}, {12, "", {}}};
       },
       "------- START OF ORDER/ROOM 1\r\nOne\r\n\r\n------- END OF ORDER/ROOM 1\r\n"
       "------- START OF ORDER/ROOM 12\r\n\r\n------- END OF ORDER/ROOM 12\r\n"},
      {"exceptions", [](PrintedJob& job) { job.exceptions = "Not ladders."; }, "\r\nNot ladders.\r\n\r\n"},
  };
  PrintedJob whole = Job();
  std::string whole_text;
  for (const Case& each : cases) {
    PrintedJob job = Job();
    each.tick(job);
    EXPECT_EQ(PrintedText(job), each.text) << each.what;
    if (std::string_view(each.what).find("without") != std::string_view::npos || each.text == head) continue;
    each.tick(whole);
    // A page begins in place of a line's end.
    if (whole.new_page && whole.rooms.empty() && !whole.singles) {
      whole_text.replace(whole_text.size() - 2, 2, "\f");
    }
    whole_text += each.text;
  }
  EXPECT_EQ(PrintedText(whole), whole_text);
}

TEST(PrintedText, WhatAJobHoldsBeginsNoPage) {
  PrintedJob job = Job();
  job.job.name = std::string("A\fB\0C\x1B\tD\x7F", 8);
  job.job.address = {"Mill\r\nLane", "", "", ""};
  EXPECT_THAT(PrintedText(job), "");
  job.letter = {"Ann\f", "Yes.\f"};
  EXPECT_THAT(PrintedText(job), AllOf(StartsWith("ABC\tD\r\nMill\r\nLane\r\n"), HasSubstr("Dear Ann\r\n"),
                                      Not(HasSubstr("\f"))));
  EXPECT_EQ(WorkSheetHead(job.job, false, job.now).front(), "ABC\tD");
}

TEST(PrintedDocument, DrawingsStandBelowTheirRoomAndTheTextIsTheSame) {
  PrintedJob job = Job();
  job.balance = job.new_page = true;
  const CurtainMeasures bay = {"Bay", 2400, 2100, 0, 2, "Track 240 cm, drop 210 cm"};
  const CurtainMeasures plain = {"", 500, 400, 0, 2, "Track 50 cm, drop 40 cm"};
  job.rooms = {{1, "One", {bay, plain}}, {2, "Two", {}}};
  rich_text::CharStyle style;
  style.bold = true;
  const rich_text::Document document = PrintedDocument(job, style, "Courier");

  std::string text = document.text;
  const std::string drawn =
      std::string(rich_text::kPictureSign) + "\nBay: Track 240 cm, drop 210 cm, scale 1 : 40\n\n" +
      std::string(rich_text::kPictureSign) + "\nTrack 50 cm, drop 40 cm, scale 1 : 10\n\n";
  const std::size_t at = text.find(drawn);
  ASSERT_NE(at, std::string::npos) << text;
  EXPECT_TRUE(text.substr(0, at).ends_with("ROOM 1\nOne\n"));
  text.erase(at, drawn.size());
  const rich_text::Document undrawn = rich_text::FromPlainText(PrintedText(job));
  EXPECT_EQ(text, undrawn.text);

  ASSERT_EQ(document.pictures.size(), 2U);
  ASSERT_EQ(document.paragraphs.size(), undrawn.paragraphs.size() + 6);
  for (std::size_t i = 1; i < document.paragraphs.size(); ++i) {
    EXPECT_EQ(document.text[document.paragraphs[i].begin - 1], '\n') << i;
    const std::string_view paragraph = std::string_view(document.text).substr(document.paragraphs[i].begin);
    EXPECT_EQ(document.StyleOf(document.paragraphs[i]).page_break_before,
              paragraph.starts_with("\n\nDate Printed"))
        << i;
  }
  EXPECT_EQ(document.runs.size(), 1U);
  EXPECT_TRUE(document.StyleAt(at).bold);
  EXPECT_EQ(document.fonts[document.StyleAt(at).font], "Courier");
}

}  // namespace
}  // namespace tarvane::printing
