#include "store/criteria.h"

#include <gtest/gtest.h>

#include "text/fault.h"
#include "text/fold.h"

namespace tarvane {
namespace {

TEST(ParseCriterion, ReadsColumnAndPattern) {
  const std::tuple<const char*, const char*, const char*> cases[] = {
      {"Name LIKE 'smi*'", "Name", "smi*"},
      {"  refno\tlike'12*'  ", "refno", "12*"},
      {"[Post Code] Like 'AB1 *'", "Post Code", "AB1 *"},
      {"5T(2) lIkE ''", "5T(2)", ""},
      {"G-Total LIKE '\"x\"; --'", "G-Total", "\"x\"; --"},
      {"[Name]LIKE '*é*'", "Name", "*é*"},
      {"like like 'like'", "like", "like"},
  };
  for (const auto& [text, column, pattern] : cases) {
    EXPECT_EQ(ParseCriterion(text).column, column) << text;
    EXPECT_EQ(ParseCriterion(text).pattern, pattern) << text;
  }
}

TEST(ParseCriterion, FaultsForAnythingElse) {
  for (const char* text : {"", "Name", "Name LIKE", "Name LIKE x", "Name LIKE 'x", "Name LIKE 'O'Brien*'",
                           "Name LIKE 'O''Brien'", "Name = 'x'", "LIKE 'x'", "Name LIKE 'x' OR 1=1",
                           "Name LIKE 'x';", "[Name LIKE 'x'", "[] LIKE 'x'",
                           "<Category to Search> LIKE 'x*'", "Name LIKES 'x'", "'Name' LIKE 'x'"}) {
    EXPECT_THROW(ParseCriterion(text), Fault) << text;
  }
}

TEST(Like, MatchesAsTheShopIsUsedTo) {
  using Case = std::pair<const char*, const char*>;  // a pattern and a text
  const Case matching[] = {{"smi*", "Smith"}, {"smi*", "SMI"},   {"*mit*", "Smith"}, {"*", ""},
                           {"", ""},          {"a?c", "abc"},    {"#", "7"},         {"[a-c]x", "BX"},
                           {"[!a-c]x", "dx"}, {"[xyz]", "Y"},    {"[*]", "*"},       {"[?]a", "?a"},
                           {"[[]", "["},      {"a]", "a]"},      {"[a-]", "-"},      {"a**b", "ab"},
                           {"*ab", "aab"},    {"*aab", "aaaab"}, {"*b?d", "abcbcd"}, {"\xFF*", "\xFFx"},
                           {"?", "\xFF"},     {"??", "\xC3("},   {"*\n*", "a\nb"},   {"*a*b*c*", "xaxbxxcx"}};
  const Case beyond_ascii[] = {
      {"?", "é"},           {"[é-ü]", "Ö"},   {"Ärger*", "äRGERlich"}, {"ΣΊΣΥΦΟΣ", "σίσυφος"},
      {"straße", "STRAẞE"}, {"жук*", "ЖУКОВ"}};
  const Case others[] = {{"smi*", "sm"}, {"", "a"},    {"?", ""},        {"a?c", "ac"},
                         {"#", "x"},     {"#", "٣"},   {"[a-c]x", "dx"}, {"[!a-c]x", "ax"},
                         {"[*]", "a"},   {"[a", "[a"}, {"[a", "a"},      {"*[", "x["},
                         {"[z-a]", "m"}, {"%", "x"},   {"_", "x"},       {"*a*b*c*", "xxaxxcxxbxx"},
                         {"é", "e"}};
  for (const auto& [pattern, text] : matching) EXPECT_TRUE(Like(text, pattern)) << pattern << " : " << text;
  for (const auto& [pattern, text] : beyond_ascii) EXPECT_TRUE(Like(text, pattern)) << pattern;
  for (const auto& [pattern, text] : others) EXPECT_FALSE(Like(text, pattern)) << pattern << " : " << text;
}

TEST(Like, ManyStarsDoNotExplode) {
  const std::string text(20000, 'a');
  std::string pattern;
  for (int i = 0; i < 200; ++i) pattern += "a*";
  EXPECT_TRUE(Like(text, pattern));
  EXPECT_FALSE(Like(text, pattern + "b"));
}

TEST(IsPrefixPattern, TellsWhatAnIndexAnswers) {
  for (const char* pattern : {"", "*", "smith", "smith*", "é*"})
    EXPECT_TRUE(IsPrefixPattern(pattern)) << pattern;
  for (const char* pattern : {"*a", "a*b", "a**", "a?", "#*", "[a]*"})
    EXPECT_FALSE(IsPrefixPattern(pattern)) << pattern;
}

TEST(TextFold, FoldingIsStable) {
  for (char32_t c = 0; c <= 0x1100FF; ++c) {
    ASSERT_EQ(FoldCharacter(FoldCharacter(c)), FoldCharacter(c)) << static_cast<std::uint32_t>(c);
  }
  EXPECT_EQ(FoldCharacter(U'Ž'), FoldCharacter(U'ž'));
  EXPECT_NE(FoldCharacter(U'e'), FoldCharacter(U'é'));
}

TEST(TextFold, OrdersTextsWithoutCase) {
  EXPECT_EQ(CompareFolded("Émile", "éMILE"), std::strong_ordering::equal);
  const char* const ordered[] = {"", "a", "AB", "abc", "b", "zebra", "Zürich", "Äpfel", "ä\xFF"};
  for (std::size_t i = 0; i < std::size(ordered); ++i) {
    for (std::size_t j = 0; j < std::size(ordered); ++j)
      EXPECT_EQ(CompareFolded(ordered[i], ordered[j]), i <=> j) << ordered[i] << " " << ordered[j];
  }
}

}  // namespace
}  // namespace tarvane
