#include "printing/letter_tokens.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "rich_text/rtf.h"

namespace tarvane::printing {
namespace {

using enum LetterKind;

LetterValues Values() {
  return {.reference = "7",
          .order_reference = "1007",
          .name = "Ash",
          .address = {"1 Mill Lane", "Marlowick", "Ashfordshire"},
          .post_code = "ZZ9 4PF",
          .telephone = "01632 960001",
          .sales_person = "Ruth",
          .today = "04/05/2026",
          .symbol = "$",
          .sub_total = "100.00",
          .vat = "20.00",
          .total = "108.00",
          .discount = "12.00",
          .deposit = "21.60",
          .paid = "8.00",
          .balance = "100.01"};
}

std::string Filled(LetterKind kind, std::string_view rtf, const LetterValues& values = Values()) {
  return FillLetter(rtf, LetterTokens(kind, values));
}

TEST(LetterTokens, EachStandsForItsValueInTheLettersThatKnowIt) {
  const struct {
    LetterKind kind;
    const char* rtf;
    const char* filled;
  } cases[] = {
      {kEstimate, "#Doc#|#FileID#|#OrderRef#|#Ref#", "{Estimate}|{7}|{1007}|{}"},
      {kStatement, "#Doc##OrderRef#", "{Statement: }{1007}"},
      {kEstimate, "#Name#, #Address1#, #Address2#, #Address3#, #PostCode#, #000000#",
       "{Ash}, {1 Mill Lane}, {Marlowick}, {Ashfordshire}, {ZZ9 4PF}, {01632 960001}"},
      {kStatement, "#Subtotal# #Vat# #Total# #PrevPaid# #Bal#",
       "{$100.00} {$20.00} {$108.00} {$8.00} {$100.01}"},
      {kEstimate, "#Discount# #Deposit# #ContactName#", "{12.00} {21.60} {Ruth}"},
      {kStatement, "#Discount# #Deposit#", "#Discount# #Deposit#"},
      {kReminder, "#Discount# #Deposit#", "#Discount# #Deposit#"},
      {kReceipt, "Dear #DearName#", "Dear {Ash}"},
      // The longer one where two begin alike, and only in a reminder.
      {kReminder, "xx/xx/xx, #xx/xx/xx#, xxx/xx/xx", "{04/05/2026}, {04/05/2026}, x{04/05/2026}"},
      {kEstimate, "#xx/xx/xx#", "#{04/05/2026}#"},
      // In one piece, and as they are spelled.
      {kEstimate, R"(#Na{\b me#} #name# # #Name #Nam##Name#)", R"(#Na{\b me#} #name# # #Name #Nam#{Ash})"},
      {kEstimate, "#Name#Name#", "{Ash}Name#"},
      {kEstimate, R"(\b#Name#\b0#Name#0)", R"(\b{Ash}\b0{Ash}0)"},
      {kEstimate, "no token at all", "no token at all"},
      {kEstimate, "", ""},
  };
  for (const auto& [kind, rtf, filled] : cases) EXPECT_EQ(Filled(kind, rtf), filled) << rtf;
}

TEST(LetterTokens, OfTwoThatBeginAlikeTheLongerCounts) {
  EXPECT_EQ(FillLetter("#A#B #A#", {{"#A#", "1"}, {"#A#B", "2"}, {"#A", "3"}}), "{2} {1}");
}

TEST(LetterTokens, WhoHasNoNameIsSirOrMadam) {
  LetterValues values = Values();
  for (const char* name : {"", "  "}) {
    values.name = name;
    EXPECT_EQ(Filled(kReminder, "#DearName#", values), "{Sir/Madam}");
  }
}

TEST(LetterTokens, WhateverAValueHoldsIsTextOnPaper) {
  const struct {
    const char* name;
    const char* read;
  } cases[] = {
      {R"({\b Hazel} \par }}{{ \\)", R"({\b Hazel} \par }}{{ \\)"},
      {"#Bal# #Name# xx/xx/xx", "#Bal# #Name# xx/xx/xx"},
      {"Müller & Söhne", "Müller & Söhne"},
      {"窓 \U0001F9F5", "窓 \U0001F9F5"},
      {"1 Mill Lane\r\nMarlowick", "1 Mill Lane\r\nMarlowick"},
      {R"(\'41\u65?\bin9 )", R"(\'41\u65?\bin9 )"},
      {"2 Hill Road", "2 Hill Road"},
      {" Ash ", " Ash "},
  };
  for (const auto& [name, read] : cases) {
    LetterValues values = Values();
    values.name = name;
    const std::string rtf =
        Filled(kEstimate, R"({\rtf1\ansi\deff0{\fonttbl{\f0 Arial;}}\b#Name#\b0#Ref#.})", values);
    EXPECT_EQ(PlainText(rich_text::ReadRtf(rtf)), std::string(read) + ".") << rtf;
  }
}

TEST(LetterTokens, OneOfTwoLooksIsFound) {
  const auto tokens = LetterTokens(kEstimate, {});
  EXPECT_THAT(SplitTokens("#Name# #Bal# #Name#", R"({\rtf1 #Name# #Ba{\b l#} #Name#})", tokens),
              testing::ElementsAre("#Bal#"));
  EXPECT_THAT(SplitTokens("#Name# #Name#", R"({\rtf1 #Name# #{\b Name}#})", tokens),
              testing::ElementsAre("#Name#"));
  EXPECT_THAT(SplitTokens("#Name#", R"({\rtf1 #Name#})", tokens), testing::IsEmpty());
}

}  // namespace
}  // namespace tarvane::printing
