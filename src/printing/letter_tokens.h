#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "store/data_files.h"

namespace tarvane::printing {

enum class LetterKind { kReminder, kEstimate, kStatement, kReceipt };

// The form letter of a kind.
struct LetterForm {
  LetterKind kind;
  std::string_view file;  // in the program folder
  std::string_view word;  // what it is called in notes, and in the queue of the printer
  std::string_view doc;   // what #Doc# stands for
};
const LetterForm& FormOf(LetterKind kind);

// Of the open job, as its fields show it. Any of them may be empty and hold any text.
struct LetterValues {
  std::string reference;
  std::string order_reference;
  std::string name;
  std::string address[3];
  std::string post_code;
  std::string telephone;
  std::string sales_person;
  std::string today;
  std::string symbol;  // of the currency; stands before the amounts but discount and deposit
  std::string sub_total;
  std::string vat;
  std::string total;
  std::string discount;
  std::string deposit;
  std::string paid;
  std::string balance;
};

struct LetterToken {
  std::string_view token;
  std::string value;  // UTF-8, as it is to be read on paper
};
// The tokens that a letter of that kind knows. Any other stays as it stands.
std::vector<LetterToken> LetterTokens(LetterKind kind, const LetterValues& values);

// Puts the values into a template, which is raw RTF: in one pass, so that a value is never read as a token;
// of tokens that begin alike the longest counts. A token counts where it stands in one piece. Whatever a
// value holds is text on paper. Takes time in proportion to the lengths of template and result.
std::string FillLetter(std::string_view rtf, const std::vector<LetterToken>& tokens);

// Those of `tokens` that stand in `text` more often than in one piece in `rtf`, its raw form: half of such a
// token has another look than the rest.
std::vector<std::string_view> SplitTokens(std::string_view text, std::string_view rtf,
                                          const std::vector<LetterToken>& tokens);

}  // namespace tarvane::printing
