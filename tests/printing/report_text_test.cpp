#include "printing/report_text.h"

#include <gtest/gtest.h>

#include "printing/multi_page_preview.h"
#include "text/utf8.h"

namespace tarvane::printing {
namespace {

TEST(ReportText, NamesQuotesAndLineEnds) {
  const std::pair<const char*, const char*> names[] = {
      {"mcdonald o'neil-smith", "McDonald O'Neil-Smith"},
      {"o'brien", "O'Brien"},
      {"mary-ann", "Mary-Ann"},
      {"  ANNE   LEE", "Anne   Lee"},
      {"j.r. tolkien", "J.R. Tolkien"},
      {"élodie ÖSTERBERG", "Élodie Österberg"},
      {"smith-mcdonald", "Smith-Mcdonald"},  // what is raised last begins nothing
      {"mc o' - .", "Mc O' - ."},
      {"straße \xFF", "Straße \xFF"},
      {"", ""},
  };
  for (const auto& [name, formal] : names) EXPECT_EQ(clsMultiPgPreview::GetFormalCase(name), formal);
  const std::pair<const char*, const char*> quoted[] = {
      {"\"a\"", "a"}, {"\"a", "a"}, {"a\"", "a"}, {"\"\"a\"\"", "\"a\""}, {"\"", ""}, {"a", "a"}, {"", ""}};
  for (const auto& [text, plain] : quoted) EXPECT_EQ(clsMultiPgPreview::GetStripQuotes(text), plain);
  const std::pair<const char*, const char*> ends[] = {{"a\r\nb", "a b"},   {"a\nb", "a b"}, {"\na", "a"},
                                                      {"a\rb\nc", "a bc"}, {"\n\na", " a"}, {"", ""}};
  for (const auto& [text, line] : ends) EXPECT_EQ(clsMultiPgPreview::GetRemoveCRLF(text), line);
}

TEST(ReportText, Wrapping) {
  struct Case {
    const char* text;
    double room;  // characters; a line is narrower
    std::vector<std::string> lines;
  };
  const Case cases[] = {
      {"", 5, {""}},
      {"ab cd ef", 6, {"ab cd", "ef"}},
      {"ab cd", 6, {"ab cd"}},
      {"abcdefghij", 4, {"abc", "def", "ghi", "j"}},
      {"ab abcdefgh", 5, {"ab", "abcd", "efgh"}},
      {"ab   cd", 4, {"ab ", " cd"}},  // one blank is dropped
      {"a\r\nb\rc\nd", 9, {"a", "b", "c", "d"}},
      {" a \r\n b", 9, {"a", "b"}},
      {" a", 9, {" a"}},
      {"\r\n\r\n", 9, {"", "", ""}},
      {"a\tb", 9, {"a b"}},
      {"äöü€", 3, {"äö", "ü€"}},
      {"abc", 0, {"a", "b", "c"}},
      {"ab ", 3, {"ab"}},
      {"ab\n", 9, {"ab", ""}},
      {"abc", -1, {"a", "b", "c"}},
  };
  const auto width_of = [](std::string_view line) { return static_cast<double>(CountCharacters(line)); };
  for (const auto& [text, room, lines] : cases) EXPECT_EQ(WrapLines(text, room, width_of), lines) << text;
  // Characters without a width don't pile up in one line.
  EXPECT_GT(WrapLines(std::string(10'000, 'x'), 5, [](std::string_view) { return 0.0; }).size(), 3U);
}

}  // namespace
}  // namespace tarvane::printing
