// Damaged files: the program comes up, or says why it doesn't, in time, and never ends badly.
#include <fmt/format.h>
#include <sqlite3.h>

#include <algorithm>
#include <memory>
#include <random>
#include <stdexcept>

#include "soak/trials.h"

namespace tarvane::soak {
namespace {

using Dice = std::mt19937_64;

constexpr std::size_t kPage = 4096;

std::string RandomBytes(Dice& dice, std::size_t size) {
  std::string bytes(size, '\0');
  for (char& byte : bytes) byte = static_cast<char>(dice());
  return bytes;
}

// Where a page of a database begins; 0 where it is shorter than one.
std::size_t Page(Dice& dice, const std::string& bytes) {
  const std::size_t pages = bytes.size() / kPage;
  return pages == 0 ? 0 : dice() % pages * kPage;
}

std::size_t AnyPlace(Dice& dice, const std::string& bytes) { return dice() % (bytes.size() + 1); }

void FlipBits(Dice& dice, std::string& bytes) {
  if (bytes.empty()) return;
  for (auto flips = 1 + dice() % 60; flips > 0; --flips) {
    bytes[dice() % bytes.size()] ^= static_cast<char>(1U << dice() % 8);
  }
}

void Cut(Dice& dice, std::string& bytes) { bytes.resize(AnyPlace(dice, bytes)); }
void Garbage(Dice& dice, std::string& bytes) { bytes = RandomBytes(dice, dice() % 100'000); }

struct Damage {
  const char* what;
  void (*run)(Dice&, std::string&);
};

constexpr Damage kDatabaseDamages[] = {
    {"flipped bits", FlipBits},
    {"cut", Cut},
    {"garbage", Garbage},
    {"flipped bits of a page",
     [](Dice& dice, std::string& bytes) {
       const std::size_t at = Page(dice, bytes);
       std::string page = bytes.substr(at, kPage);
       FlipBits(dice, page);
       bytes.replace(at, page.size(), page);
     }},
    {"a zeroed page",
     [](Dice& dice, std::string& bytes) {
       const std::size_t at = Page(dice, bytes);
       std::fill_n(bytes.begin() + static_cast<std::ptrdiff_t>(at), std::min(kPage, bytes.size() - at), '\0');
     }},
    {"swapped pages",
     [](Dice& dice, std::string& bytes) {
       const std::size_t one = Page(dice, bytes);
       const std::size_t other = Page(dice, bytes);
       const std::string page = bytes.substr(one, kPage);
       bytes.replace(one, kPage, bytes.substr(other, kPage));
       bytes.replace(other, kPage, page);
     }},
    {"a repeated page",
     [](Dice& dice, std::string& bytes) {
       const std::size_t to = Page(dice, bytes);
       bytes.replace(to, kPage, bytes.substr(Page(dice, bytes), kPage));
     }},
};
constexpr Damage kTextDamages[] = {
    {"flipped bits", FlipBits},
    {"cut", Cut},
    {"garbage", Garbage},
    {"no UTF-8",
     [](Dice& dice, std::string& bytes) {
       bytes.insert(AnyPlace(dice, bytes), "\xC3\x28\xFF\xED\xA0\x80\xF8");
     }},
    {"a byte order mark", [](Dice&, std::string& bytes) { bytes.insert(0, "\xEF\xBB\xBF"); }},
    {"zeros", [](Dice& dice, std::string& bytes) { bytes.insert(AnyPlace(dice, bytes), 50, '\0'); }},
    {"a huge line",
     [](Dice& dice, std::string& bytes) {
       bytes.insert(AnyPlace(dice, bytes), 1'000'000 + dice() % 4'000'000, 'x');
     }},
    {"many lines",
     [](Dice& dice, std::string& bytes) {
       for (auto lines = dice() % 100'000; lines > 0; --lines) bytes += "=,\"\r\n";
     }},
};
constexpr const char* kTexts[] = {"Dat/Tarvane.ini",   "checklist.ini",    "Options.dat",
                                  "Curtainlist.Dat",   "TieBackslist.Dat", "TieBacksStylelist.Dat",
                                  "Trimmingslist.Dat", "Checklist.Dat",    "SalesPersonslist.Dat"};

// False where the file is no database any more.
bool Execute(const fs::path& file, const std::string& sql) {
  sqlite3* database = nullptr;
  sqlite3_open_v2(file.c_str(), &database, SQLITE_OPEN_READWRITE, nullptr);
  const int code = sqlite3_exec(database, sql.c_str(), nullptr, nullptr, nullptr);
  sqlite3_close(database);
  return code == SQLITE_OK;
}

// Rows go from the table or come into it while the indexes sleep, and one index takes the place of another.
std::string DamageIndexes(Dice& dice, const fs::path& file) {
  const std::string row = std::to_string(1 + dice() % 64);
  const std::string changes[] = {
      "DELETE FROM TblBrindel WHERE RefNo = " + row,
      "DELETE FROM TblBrindel WHERE RefNo % 2 = 0",
      "DELETE FROM TblBrindel WHERE RefNo > " + row,
      "DELETE FROM TblBrindel",
      "UPDATE TblBrindel SET Name = Town, Ext2 = RefNo WHERE RefNo > " + row,
      "UPDATE TblBrindel SET RefNo = RefNo + 1000 WHERE RefNo > " + row,
      "UPDATE asleep SET rootpage = (SELECT max(rootpage) FROM asleep)",
  };
  const std::string& change = changes[dice() % std::size(changes)];
  for (const std::string& sql :
       {std::string("PRAGMA writable_schema = ON;"
                    "CREATE TABLE asleep AS SELECT * FROM sqlite_schema WHERE type = 'index';"
                    "DELETE FROM sqlite_schema WHERE type = 'index'"),
        change,
        std::string("PRAGMA writable_schema = ON; INSERT INTO sqlite_schema SELECT * FROM asleep;"
                    "DROP TABLE asleep")}) {
    if (!Execute(file, sql)) return "a database that is none any more: " + change;
  }
  return "behind the indexes' backs: " + change;
}

class DamageTrials {
 public:
  explicit DamageTrials(const Bench& bench) : bench_(bench) {
    // A journal that another copy's database would need.
    const fs::path shop = bench.FreshShop();
    for (int nth = 1; journal_.empty() && nth < 40; ++nth) {
      bench.Run(bench.Failing(shop, "look.story", CallKind::kWrite, nth, 0));
      const std::string journal = ReadAll(shop / "Dat/Tarvane.mdb-journal");
      if (journal.starts_with("\xD9\xD5\x05\xF9") && journal.size() > 2 * kPage) journal_ = journal;
    }
    if (journal_.empty()) throw std::runtime_error("no journal was left behind");
  }

  Outcome Try(std::uint64_t seed) const {
    Dice dice(seed);
    const fs::path shop = bench_.FreshShop();
    Outcome outcome{DamageOne(dice, shop), {}};
    if (dice() % 4 == 0) outcome.what += "; " + DamageOne(dice, shop);
    const Ended ended = bench_.Run(bench_.Script(shop, "look.story"));
    if (const std::string wrong = ended.Wrong(); !wrong.empty()) outcome.wrong.push_back(wrong);
    return outcome;
  }

 private:
  std::string DamageOne(Dice& dice, const fs::path& shop) const {
    const fs::path database = shop / "Dat/Tarvane.mdb";
    switch (dice() % 8) {
      case 0:
        return DamageIndexes(dice, database);
      case 1:
        return DamageJournal(dice, shop);
      case 2:
      case 3:
        return DamageContent(dice, shop / kTexts[dice() % std::size(kTexts)], kTextDamages);
      case 4:
        return ReplaceFile(dice, dice() % 4 == 0 ? database : shop / kTexts[dice() % std::size(kTexts)]);
      default:
        return DamageContent(dice, database, kDatabaseDamages);
    }
  }

  template <std::size_t kSize>
  static std::string DamageContent(Dice& dice, const fs::path& file, const Damage (&damages)[kSize]) {
    std::error_code error;
    if (!fs::is_regular_file(file, error)) return "";
    std::string bytes = ReadAll(file);
    const Damage& damage = damages[dice() % kSize];
    damage.run(dice, bytes);
    WriteAll(file, bytes);
    return fmt::format("{}: {}", file.filename().string(), damage.what);
  }

  std::string DamageJournal(Dice& dice, const fs::path& shop) const {
    std::string journal = journal_;
    const auto kind = dice() % 4;
    if (kind == 1) FlipBits(dice, journal);
    if (kind == 2) journal = RandomBytes(dice, dice() % 20'000);
    if (kind == 3) Cut(dice, journal);
    const char* name = dice() % 4 == 0 ? "Dat/Tarvane.mdb-wal" : "Dat/Tarvane.mdb-journal";
    WriteAll(shop / name, journal);
    return fmt::format("a stale {}, way {}", name, kind);
  }

  static std::string ReplaceFile(Dice& dice, const fs::path& file) {
    fs::remove_all(file);
    const auto kind = dice() % 4;
    if (kind == 0) fs::create_directory(file);
    if (kind == 1) fs::create_symlink("nowhere", file);
    if (kind == 2) fs::create_symlink(file.filename(), file);
    constexpr const char* kNames[] = {"a folder", "a link to nowhere", "a link to itself", "nothing"};
    return fmt::format("{} in place of {}", kNames[kind], file.filename().string());
  }

  const Bench& bench_;
  std::string journal_;
};

}  // namespace

Trial DamagedFiles(const Bench& bench) {
  return [trials = std::make_shared<DamageTrials>(bench)](std::uint64_t seed) { return trials->Try(seed); };
}

}  // namespace tarvane::soak
