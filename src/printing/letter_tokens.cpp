#include "printing/letter_tokens.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "rich_text/rtf.h"
#include "text/trim.h"

namespace tarvane::printing {
namespace {

constexpr std::array kForms = {
    LetterForm{LetterKind::kReminder, data_file::kReminderLetter, "Reminder", "Reminder"},
    LetterForm{LetterKind::kEstimate, data_file::kEstimateLetter, "Estimate", "Estimate"},
    LetterForm{LetterKind::kStatement, data_file::kStatementLetter, "Statement", "Statement: "},
    LetterForm{LetterKind::kReceipt, data_file::kReceiptLetter, "Receipt", "Receipt"},
};

// Letters that know a token, as a sum.
using Kinds = std::uint8_t;
constexpr Kinds In(LetterKind kind) { return static_cast<Kinds>(1U << static_cast<unsigned>(kind)); }
constexpr Kinds kAll = 0xFF;

// One line of the table of tokens. Its value is a text, or an amount with the currency before it.
struct Known {
  std::string_view token;
  std::string LetterValues::*text = nullptr;
  Kinds in = kAll;
};
constexpr std::array kTexts = {
    Known{"#FileID#", &LetterValues::reference},
    Known{"#Name#", &LetterValues::name},
    Known{"#PostCode#", &LetterValues::post_code},
    Known{"#000000#", &LetterValues::telephone},
    Known{"xx/xx/xx", &LetterValues::today},
    Known{"#Discount#", &LetterValues::discount, In(LetterKind::kEstimate)},
    Known{"#OrderRef#", &LetterValues::order_reference},
    Known{"#ContactName#", &LetterValues::sales_person},
    Known{"#Deposit#", &LetterValues::deposit, In(LetterKind::kEstimate)},
    Known{"#xx/xx/xx#", &LetterValues::today, In(LetterKind::kReminder)},
};
constexpr std::array kAmounts = {
    Known{"#Subtotal#", &LetterValues::sub_total}, Known{"#Vat#", &LetterValues::vat},
    Known{"#Total#", &LetterValues::total},        Known{"#PrevPaid#", &LetterValues::paid},
    Known{"#Bal#", &LetterValues::balance},
};
constexpr std::array<std::string_view, 3> kAddress = {"#Address1#", "#Address2#", "#Address3#"};

// The longest of the tokens that stands at `place`; the number of tokens where none does.
std::size_t TokenAt(std::string_view rtf, std::size_t place, const std::vector<LetterToken>& tokens) {
  std::size_t found = tokens.size();
  for (std::size_t i = 0; i < tokens.size(); ++i) {
    const std::string_view token = tokens[i].token;
    if (token.empty() || rtf.compare(place, token.size(), token) != 0) continue;
    if (found == tokens.size() || token.size() > tokens[found].token.size()) found = i;
  }
  return found;
}

std::size_t CountOf(std::string_view what, std::string_view text) {
  std::size_t count = 0;
  for (std::size_t at = text.find(what); at != std::string_view::npos;
       at = text.find(what, at + what.size())) {
    ++count;
  }
  return count;
}

}  // namespace

const LetterForm& FormOf(LetterKind kind) { return *std::ranges::find(kForms, kind, &LetterForm::kind); }

std::vector<LetterToken> LetterTokens(LetterKind kind, const LetterValues& values) {
  std::vector<LetterToken> tokens = {
      {"#Doc#", std::string(FormOf(kind).doc)},
      {"#Ref#", ""},
      {"#DearName#", TrimSpaces(values.name).empty() ? "Sir/Madam" : values.name},
  };
  for (std::size_t i = 0; i < kAddress.size(); ++i) tokens.push_back({kAddress[i], values.address[i]});
  for (const Known& known : kTexts) {
    if ((known.in & In(kind)) != 0) tokens.push_back({known.token, values.*known.text});
  }
  for (const Known& known : kAmounts) tokens.push_back({known.token, values.symbol + values.*known.text});
  return tokens;
}

std::string FillLetter(std::string_view rtf, const std::vector<LetterToken>& tokens) {
  std::string firsts;
  std::vector<std::string> values;
  for (const LetterToken& token : tokens) {
    const std::string_view first = token.token.substr(0, 1);
    if (firsts.find(first) == std::string::npos) firsts += first;
    values.push_back(rich_text::EscapeForRtf(token.value));
  }
  std::string filled;
  filled.reserve(rtf.size());
  std::size_t done = 0;
  for (std::size_t at = rtf.find_first_of(firsts); at != std::string_view::npos;
       at = rtf.find_first_of(firsts, at)) {
    const std::size_t token = TokenAt(rtf, at, tokens);
    if (token == tokens.size()) {
      ++at;
      continue;
    }
    filled.append(rtf, done, at - done).append(values[token]);
    at += tokens[token].token.size();
    done = at;
  }
  return filled.append(rtf, done);
}

std::vector<std::string_view> SplitTokens(std::string_view text, std::string_view rtf,
                                          const std::vector<LetterToken>& tokens) {
  std::vector<std::string_view> split;
  for (const LetterToken& token : tokens) {
    if (CountOf(token.token, text) > CountOf(token.token, rtf)) split.push_back(token.token);
  }
  return split;
}

}  // namespace tarvane::printing
