#include "store/criteria.h"

#include <gtest/gtest.h>

#include "store/text_fold.h"
#include "text_number/fault.h"

namespace tarvane {
namespace {

TEST(ParseCriterion, ReadsColumnAndPattern) {
  struct Case {
    const char* text;
    const char* column;
    const char* pattern;
  };
  const Case cases[] = {
      {"Name LIKE 'smi*'", "Name", "smi*"},
      {"  refno\tlike'12*'  ", "refno", "12*"},
      {"[Post Code] Like 'AB1 *'", "Post Code", "AB1 *"},
      {"5T(2) lIkE ''", "5T(2)", ""},
      {"G-Total LIKE '\"x\"; --'", "G-Total", "\"x\"; --"},
      {"[Name]LIKE '*é*'", "Name", "*é*"},
      {"like like 'like'", "like", "like"},
  };
  for (const Case& each : cases) {
    const Criterion criterion = ParseCriterion(each.text);
    EXPECT_EQ(criterion.column, each.column) << each.text;
    EXPECT_EQ(criterion.pattern, each.pattern) << each.text;
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
  struct Case {
    const char* pattern;
    const char* text;
    bool matches;
  };
  const Case cases[] = {
      {"smi*", "Smith", true},
      {"smi*", "SMI", true},
      {"smi*", "sm", false},
      {"*mit*", "Smith", true},
      {"*", "", true},
      {"", "", true},
      {"", "a", false},
      {"?", "", false},
      {"?", "é", true},
      {"a?c", "abc", true},
      {"a?c", "ac", false},
      {"#", "7", true},
      {"#", "x", false},
      {"#", "٣", false},
      {"[a-c]x", "BX", true},
      {"[a-c]x", "dx", false},
      {"[!a-c]x", "dx", true},
      {"[!a-c]x", "ax", false},
      {"[xyz]", "Y", true},
      {"[*]", "*", true},
      {"[*]", "a", false},
      {"[?]a", "?a", true},
      {"[[]", "[", true},
      {"a]", "a]", true},
      {"[a", "[a", false},
      {"[a", "a", false},
      {"*[", "x[", false},
      {"[a-]", "-", true},
      {"[z-a]", "m", false},
      {"[é-ü]", "Ö", true},
      {"Ärger*", "äRGERlich", true},
      {"ΣΊΣΥΦΟΣ", "σίσυφος", true},
      {"straße", "STRAẞE", true},
      {"жук*", "ЖУКОВ", true},
      {"%", "x", false},
      {"_", "x", false},
      {"*a*b*c*", "xxaxxbxxcxx", true},
      {"*a*b*c*", "xxaxxcxxbxx", false},
      {"a**b", "ab", true},
      {"*ab", "aab", true},
      {"*aab", "aaaab", true},
      {"*b?d", "abcbcd", true},
      {"\xFF*", "\xFFx", true},
      {"?", "\xFF", true},
      {"??", "\xC3(", true},
      {"é", "e", false},
      {"*\n*", "a\nb", true},
  };
  for (const Case& each : cases)
    EXPECT_EQ(Like(each.text, each.pattern), each.matches) << each.pattern << " : " << each.text;
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
  const char* ordered[] = {
      "", "a", "AB", "abc", "b", "zebra", "Äpfel", "ä\xFF", "Zürich", "\xF0\x9F\x98\x80", "\xFF"};
  EXPECT_TRUE(CompareFolded("zebra", "Äpfel") < 0);
  for (const char* left : ordered) {
    for (const char* right : ordered) {
      EXPECT_EQ(CompareFolded(left, right) < 0, CompareFolded(right, left) > 0) << left << " " << right;
    }
  }
}

TEST(TextFold, BoundOfAPrefixLiesRightBehindIt) {
  for (const char* prefix : {"a", "Z", "@", "smi", "é", "ÿ", "`", "9", "\x7F", "日本", "\uD7FF"}) {
    const std::string behind = FirstBehindPrefix(prefix);
    ASSERT_FALSE(behind.empty()) << prefix;
    EXPECT_TRUE(CompareFolded(prefix, behind) < 0) << prefix;
    for (const char* tail : {"", "z", "\xFF\xFF", "\U0010FFFF"}) {
      EXPECT_TRUE(CompareFolded(std::string(prefix) + tail, behind) < 0) << prefix << tail;
    }
  }
  for (const char* other : {"[", "A", "a", "\\", "Z"}) {
    EXPECT_TRUE(CompareFolded(other, FirstBehindPrefix("@")) >= 0) << other;
  }
  for (const char* none : {"", "\xFF", "a\xC3", "\U0010FFFF"}) EXPECT_EQ(FirstBehindPrefix(none), "") << none;
}

}  // namespace
}  // namespace tarvane
