// Searches over indexes in SQLite's own order, held against all rows matched and sorted one by one.
#include <gmock/gmock.h>

#include <algorithm>
#include <random>

#include "store/connection.h"
#include "store/criterion_query.h"
#include "store/prefix_ranges.h"
#include "store/shop_file.h"
#include "text/fold.h"

namespace tarvane {
namespace {

using namespace std::string_literals;

class SearchTest : public ShopFile {
 protected:
  SearchTest() : connection_(file_, Database::Mode::kExisting, "") {}

  // Name has an index, Town none.
  void Add(const std::vector<std::string>& texts) {
    connection_.Begin();
    for (const std::string& text : texts) {
      Statement insert = connection_.Use("INSERT INTO TblBrindel (Name, Town) VALUES (?1, ?1)");
      insert.Bind(1, text).Run();
      texts_.push_back(text);
    }
    connection_.Commit();
  }

  std::vector<std::int64_t> Expected(std::string_view pattern) const {
    std::vector<std::int64_t> keys;
    for (std::size_t i = 0; i < texts_.size(); ++i) {
      if (Like(texts_[i], pattern)) keys.push_back(static_cast<std::int64_t>(i) + 1);
    }
    const auto text_of = [this](std::int64_t key) -> const std::string& {
      return texts_[static_cast<std::size_t>(key - 1)];
    };
    std::ranges::stable_sort(
        keys, [](const std::string& a, const std::string& b) { return CompareFolded(a, b) < 0; }, text_of);
    return keys;
  }

  void Check(const std::string& pattern) {
    const std::vector<std::int64_t> expected = Expected(pattern);
    const TableSchema table = ReadSchema(connection_, "TblBrindel");
    for (const char* column : {"Name", "Town"}) {
      SCOPED_TRACE(std::string(column) + " like " + pattern);
      const CriterionQuery query(connection_, table, {column, pattern});
      ASSERT_EQ(query.Keys(), expected);
      ASSERT_EQ(query.Count(), std::ssize(expected));
      const auto few = std::min<std::ptrdiff_t>(3, std::ssize(expected));
      ASSERT_EQ(query.FirstKeys(3), (std::vector(expected.begin(), expected.begin() + few)));
      const auto smallest = std::ranges::min_element(expected);
      ASSERT_EQ(query.SmallestKey(), smallest == expected.end() ? std::nullopt : std::optional(*smallest));
    }
  }

  Connection connection_;
  std::vector<std::string> texts_;
};

TEST_F(SearchTest, FindsWhatOneByOneMatchingFindsInTheSameOrder) {
  const std::string characters[] = {"a",      "B",    "i",    "I",    "k",   "S",  "z", "Z", "@",
                                    "[",      "`",    "{",    "~",    "é",   "É",  "ı", "İ", "ſ",
                                    "\u212A", "ς",    "σ",    "Σ",    "ж",   "Ж",  "ß", "ẞ", "Å",
                                    "\u212B", "\xFF", "\xC3", "\x7F", "\0"s, "日", "ǆ", "ǅ"};
  std::mt19937 random(20260311);
  const auto invent = [&](std::size_t longest) {
    std::string text;
    // Few kinds, so that texts begin alike.
    const std::size_t first = random() % 5 == 0 ? 0 : random() % (std::size(characters) - 4);
    for (auto length = random() % (longest + 1); length > 0; --length)
      text += characters[first + random() % 5];
    return text;
  };
  std::vector<std::string> texts;
  for (int i = 0; i < 1500; ++i) texts.push_back(invent(4));
  Add(texts);
  Check("*");
  for (int i = 0; i < 400 && !HasFailure(); ++i) {
    const std::string pattern = invent(3);
    Check(pattern + "*");
    Check(pattern);
    if (i % 8 == 0) Check("*" + pattern + "*");
  }
}

// The table behind VariantsBeyondAscii, and what stands in the files for good.
TEST(Variants, AreAllCharactersThatFoldAlike) {
  std::string strays;
  std::size_t found = 0;
  for (char32_t folded = 0; folded < 0x110000; ++folded) {
    const auto variants = VariantsBeyondAscii(folded);
    for (const char32_t variant : variants) {
      ASSERT_TRUE(FoldCharacter(variant) == FoldCharacter(folded) || variant == folded);
      if (folded < 0x80) strays += EncodeCharacter(variant);
    }
    found += variants.size();
  }
  std::size_t cased = 0;
  for (char32_t character = 0x80; character < 0x110000; ++character) {
    if (FoldCharacter(character) != character) ++cased;
  }
  EXPECT_EQ(found, 0x110000U - 0x80 + cased);
  EXPECT_EQ(strays, "\u0130\u0131\u212A\u017F");
  for (const char* stray : {"\u0130", "\u0131", "\u212A", "\u017F"})
    EXPECT_THAT(IsStraySql("x"), testing::HasSubstr(stray));
}

TEST(Prefixes, HaveFewSpellings) {
  const std::pair<const char*, std::vector<std::string>> cases[] = {
      {"Smith", {"smith"}},       {"Öst", {"öst", "Öst"}},
      {"ı\u212A", {"ik"}},        {"", {""}},
      {"aΣ", {"aσ", "aΣ", "aς"}}, {"жук", {"жук", "жуК", "жУк", "жУК", "Жук", "ЖуК", "ЖУк", "ЖУК"}},
  };
  for (const auto& [prefix, spellings] : cases) {
    const SpelledPrefix spelled = SpellPrefix(prefix);
    EXPECT_THAT(spelled.spellings, testing::UnorderedElementsAreArray(spellings)) << prefix;
    EXPECT_TRUE(spelled.exact) << prefix;
  }
  for (const auto& [prefix, spellings] :
       std::vector<std::pair<std::string, std::size_t>>{{"жуков", 8}, {"a\xFF", 1}, {"a\0b"s, 1}}) {
    EXPECT_EQ(SpellPrefix(prefix).spellings.size(), spellings) << prefix;
    EXPECT_FALSE(SpellPrefix(prefix).exact) << prefix;
  }
}

}  // namespace
}  // namespace tarvane
