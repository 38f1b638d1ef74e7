// The first line is a customer's name, the second an amount, all behind them the template.
#include <string>
#include <string_view>
#include <vector>

#include "fuzz/require.h"
#include "printing/letter_tokens.h"
#include "rich_text/rtf.h"

namespace tarvane::printing {
namespace {

// Piece by piece, the plain way.
std::string FillPlainly(std::string_view rtf, const std::vector<LetterToken>& tokens) {
  std::string filled;
  while (!rtf.empty()) {
    const LetterToken* longest = nullptr;
    for (const LetterToken& token : tokens) {
      if (!rtf.starts_with(token.token)) continue;
      if (longest == nullptr || token.token.size() > longest->token.size()) longest = &token;
    }
    if (longest == nullptr) {
      filled += rtf.front();
      rtf.remove_prefix(1);
    } else {
      filled += rich_text::EscapeForRtf(longest->value);
      rtf.remove_prefix(longest->token.size());
    }
  }
  return filled;
}

// A group that ends where it ends, without another in it, in ASCII.
bool IsHarmless(std::string_view escaped) {
  if (escaped.size() < 2 || !escaped.starts_with('{') || !escaped.ends_with('}')) return false;
  escaped = escaped.substr(1, escaped.size() - 2);
  for (std::size_t at = 0; at < escaped.size(); ++at) {
    const char c = escaped[at];
    if (c == '{' || c == '}' || static_cast<unsigned char>(c) >= 0x80) return false;
    if (c == '\\' && ++at == escaped.size()) return false;
  }
  return true;
}

void Check(std::string_view rtf, LetterKind kind, const LetterValues& values) {
  const auto tokens = LetterTokens(kind, values);
  const std::string filled = FillLetter(rtf, tokens);
  Require(filled == FillPlainly(rtf, tokens));
  for (const LetterToken& token : tokens) Require(IsHarmless(rich_text::EscapeForRtf(token.value)));
  const rich_text::Document read = rich_text::ReadRtf(filled);
  Require(read.text.size() < 16 * (filled.size() + 1));
  SplitTokens(read.text, filled, tokens);
}

// On a page of its own a value reads as the text that it is.
void CheckReadBack(LetterValues values) {
  // Plain texts begin a page there; within a letter it is nothing.
  std::erase(values.name, '\f');
  const std::string rtf = FillLetter(R"({\rtf1\ansi\deff0{\fonttbl{\f0 Arial;}}\f0\b#Name#\b0.\par})",
                                     LetterTokens(LetterKind::kReceipt, values));
  std::string expected = rich_text::FromPlainText(values.name + ".").text;
  std::string read = rich_text::ReadRtf(rtf).text;
  // A line end of a value stays within its paragraph.
  for (std::string* text : {&expected, &read}) {
    for (std::size_t at = 0; (at = text->find("\u2028", at)) != std::string::npos;)
      text->replace(at, 3, "\n");
  }
  if (read.ends_with('\n')) read.pop_back();
  Require(read == expected);
}

}  // namespace
}  // namespace tarvane::printing

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tarvane;
  using namespace tarvane::printing;
  std::string_view rtf = InputText(data, size);
  LetterValues values;
  values.name = TakeLine(rtf);
  values.address[0] = values.name + "\r\n#Name#";
  values.symbol = "£{";
  values.balance = TakeLine(rtf);
  values.today = "04/05/2026";
  for (const LetterKind kind : {LetterKind::kReminder, LetterKind::kEstimate, LetterKind::kStatement}) {
    Check(rtf, kind, values);
  }
  CheckReadBack(values);
  return 0;
}
