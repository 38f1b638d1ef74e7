// Wherever and by whomever it is run, a script prints the same, byte for byte.
#include <fmt/format.h>

#include <algorithm>
#include <memory>
#include <stdexcept>

#include "soak/trials.h"

namespace tarvane::soak {
namespace {

struct Surrounding {
  std::string what;
  std::map<std::string, std::string> environment = {};
  std::string name = "shop";  // of the program folder
  mode_t mask = 022;
  bool bare = false;
  bool from_root = false;  // run in "/"
  bool relative = false;   // run beside the program folder, which is told by its name alone
  bool nobody = false;
  bool closed_input = false;
};

std::vector<Surrounding> AllSurroundings() {
  std::vector<Surrounding> all;
  for (const char* zone : {"UTC", "Europe/London", "America/St_Johns", "Asia/Kathmandu", "Pacific/Kiritimati",
                           "<-12:59>12:59", "XYZ-30", "no/such/zone", ":", "", "\xFF"}) {
    all.push_back({.what = fmt::format("TZ={}", zone), .environment = {{"TZ", zone}}});
  }
  for (const char* locale : {"C", "C.UTF-8", "POSIX", "de_DE.UTF-8", "tr_TR.UTF-8", "no_SUCH", "\xFF"}) {
    all.push_back({.what = fmt::format("LC_ALL={}", locale),
                   .environment = {{"LC_ALL", locale}, {"LANG", locale}, {"LANGUAGE", "tr"}}});
  }
  for (const char* name : {"a b", " ", "it's \"mine\"", "Gardinen für Jürgen ß", "日本", "100% #1?x=1&y",
                           "file:x", "--double", "-", "~", "$HOME", "*", "\\", "a\nb", "\xC3\x28"}) {
    all.push_back({.what = fmt::format("folder {}", name), .name = name});
    all.push_back({.what = fmt::format("beside folder {}", name), .name = name, .relative = true});
  }
  const std::string step(99, 'p');
  all.push_back({.what = "a path of 400 bytes", .name = fmt::format("{0}/{0}/{0}/{0}", step)});
  all.push_back({.what = "from /", .from_root = true});
  for (const mode_t mask : {0, 027, 077}) {
    all.push_back({.what = fmt::format("umask {:03o}", mask), .mask = mask});
  }
  all.push_back({.what = "no environment", .bare = true});
  all.push_back({.what = "no input", .closed_input = true});
  all.push_back({.what = "no folder for passing files",
                 .environment = {{"TMPDIR", "/no"}, {"SQLITE_TMPDIR", "/no"}, {"HOME", "/no"}}});
  all.push_back({.what = "as nobody", .nobody = true});
  return all;
}

class PlaceTrials {
 public:
  explicit PlaceTrials(const Bench& bench) : bench_(bench), all_(AllSurroundings()) {
    MakeLocales();
    right_ = Play({.what = "as usual"}, right_setup_);
    if (right_.status != 0) throw std::runtime_error("the sample story ended badly: " + right_.err);
  }

  Outcome Try(std::uint64_t seed) const {
    const std::size_t at = seed % (all_.size() + 1);
    if (at == all_.size()) return {"a folder for reading only", TryReadOnly()};
    const Surrounding& place = all_[at];
    Outcome outcome{place.what, {}};
    std::string setup;
    const Ended ended = Play(place, setup);
    if (const std::string wrong = ended.Wrong(); !wrong.empty()) outcome.wrong.push_back(wrong);
    if (setup != right_setup_) outcome.wrong.push_back("tarvane-setup prints " + setup);
    if (ended.out != right_.out || ended.err != right_.err || ended.status != right_.status) {
      const auto [differs, _] = std::ranges::mismatch(ended.out, right_.out);
      outcome.wrong.push_back(fmt::format("status {}, {}, it prints otherwise from byte {} on: {}",
                                          ended.status, ended.err, differs - ended.out.begin(),
                                          std::string(differs, ended.out.end()).substr(0, 200)));
    }
    return outcome;
  }

 private:
  // Those that the machine lacks are made in a folder of the build, once.
  void MakeLocales() {
    const fs::path folder = fs::path(TARVANE_SOAK_LOCALES);
    for (const std::string language : {"de_DE", "tr_TR"}) {
      const fs::path locale = folder / (language + ".UTF-8");
      if (fs::exists(locale / "LC_CTYPE")) continue;
      fs::create_directories(folder);
      Process make;
      make.command = {"/usr/bin/localedef", "-i", language, "-f", "UTF-8", "--no-archive", locale};
      bench_.Run(make);
      if (!fs::exists(locale / "LC_CTYPE"))
        fmt::print("surroundings: no locale {}, its run tells little\n", language);
    }
    locales_ = folder;
  }

  Ended Play(const Surrounding& place, std::string& setup_told) const {
    const fs::path above = bench_.folder() / "place";
    fs::remove_all(above);
    fs::create_directory(above);
    fs::permissions(above, fs::perms::all);
    // A name that looks like an option is told with its folder.
    const std::string beside = (place.name.starts_with("-") ? "./" : "") + place.name;
    const fs::path shop = place.relative ? fs::path(beside) : above / place.name;
    if (shop.has_parent_path() && !place.relative) fs::create_directories(shop.parent_path());
    const auto run = [&](Process process) {
      process.environment.insert(place.environment.begin(), place.environment.end());
      process.environment["LOCPATH"] = locales_;
      process.bare = place.bare;
      process.mask = place.mask;
      process.as_nobody = place.nobody;
      process.closed_input = place.closed_input;
      process.folder = place.from_root ? "/" : above.string();
      return bench_.Run(process);
    };
    const Ended laid = run(bench_.Setup(shop));
    setup_told = laid.out + laid.err + laid.Wrong();
    return run(bench_.Script(shop, TARVANE_SAMPLE_STORY));
  }

  // Looking works, no save is told as made, and nothing changes.
  std::vector<std::string> TryReadOnly() const {
    std::vector<std::string> wrong;
    const fs::path shop = bench_.FreshShop();
    const std::string before = ReadAll(shop / "Dat/Tarvane.mdb");
    const auto allow = [&shop](int folders, int files) {
      fs::permissions(shop, fs::perms(folders));
      for (const auto& entry : fs::recursive_directory_iterator(shop))
        fs::permissions(entry.path(), fs::perms(entry.is_directory() ? folders : files));
    };
    allow(0555, 0444);
    Process look = bench_.Script(shop, "look.story");
    look.as_nobody = true;
    const Ended ended = bench_.Run(look);
    allow(0755, 0644);
    if (const std::string bad = ended.Wrong(); !bad.empty()) wrong.push_back(bad);
    for (const char* told : {"Mrs A Abernethy", "read-only"}) {
      if (ended.out.find(told) != std::string::npos) continue;
      wrong.push_back(fmt::format("it doesn't tell {}: {}", told, ended.out.substr(0, 3000)));
    }
    if (ReadAll(shop / "Dat/Tarvane.mdb") != before) wrong.push_back("the database was changed");
    return wrong;
  }

  const Bench& bench_;
  std::vector<Surrounding> all_;
  fs::path locales_;
  std::string right_setup_;
  Ended right_;
};

}  // namespace

Trial Surroundings(const Bench& bench) {
  return [trials = std::make_shared<PlaceTrials>(bench)](std::uint64_t seed) { return trials->Try(seed); };
}

}  // namespace tarvane::soak
