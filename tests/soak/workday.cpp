#include "soak/workday.h"

#include <fmt/format.h>
#include <sqlite3.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <set>
#include <sstream>
#include <stdexcept>
#include <utility>

namespace tarvane::soak {
namespace {

constexpr std::string_view kMark = "RecordBar = ";
constexpr std::string_view kAlways = "# always ";
constexpr std::string_view kSaved = "# saved ";

std::vector<std::string> Split(const std::string& text, char end = '\n') {
  std::vector<std::string> pieces;
  std::istringstream stream(text);
  for (std::string piece; std::getline(stream, piece, end);) pieces.push_back(piece);
  return pieces;
}

// What was told in front of each mark; mark n is entry n-1. A line that was cut off isn't one.
std::vector<std::string> ToldBeforeMarks(const std::string& out) {
  std::vector<std::string> told;
  std::string messages;
  for (const std::string& line : Split(out.substr(0, out.rfind('\n') + 1))) {
    if (line.starts_with("message") || line.starts_with("beep")) messages += line + "\n";
    if (line.starts_with(kMark)) told.push_back(std::exchange(messages, ""));
  }
  return told;
}

// The rows of a query as text, or "file NAME": that file of the shop. A fault is an answer, too.
std::string AnswerOf(const fs::path& shop, const std::string& question) {
  if (question.starts_with("file ")) return ReadAll(shop / question.substr(5));
  sqlite3* opened = nullptr;
  sqlite3_open_v2((shop / "Dat/Tarvane.mdb").c_str(), &opened, SQLITE_OPEN_READWRITE, nullptr);
  const std::unique_ptr<sqlite3, decltype(&sqlite3_close)> database(opened, sqlite3_close);
  sqlite3_stmt* prepared = nullptr;
  sqlite3_prepare_v2(opened, question.c_str(), -1, &prepared, nullptr);
  const std::unique_ptr<sqlite3_stmt, decltype(&sqlite3_finalize)> statement(prepared, sqlite3_finalize);
  std::string answer;
  int code = SQLITE_ERROR;
  while (prepared != nullptr && (code = sqlite3_step(prepared)) == SQLITE_ROW) {
    for (int i = 0; i < sqlite3_column_count(prepared); ++i) {
      const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(prepared, i));
      answer += fmt::format("{}{}", i == 0 ? "" : "\t", text == nullptr ? "(null)" : text);
    }
    answer += '\n';
  }
  return code == SQLITE_DONE ? answer : answer + sqlite3_errmsg(opened);
}

// Item numbers that two items have, of all rooms of all jobs: the fifth of a line's fields.
std::string SharedItemNumbers(const fs::path& shop) {
  std::string shared;
  std::set<std::string> seen;
  for (int room = 0; room < 12; ++room) {
    const std::string items = AnswerOf(shop, fmt::format("SELECT \"1T({})\" FROM TblBrindel", room));
    for (const std::string& line : Split(items)) {
      const std::vector<std::string> fields = Split(line, '|');
      if (fields.size() >= 6 && !seen.insert(fields[4]).second) shared += " " + fields[4];
    }
  }
  return shared;
}

std::map<std::string, std::string> TextsOf(const fs::path& shop) {
  std::map<std::string, std::string> texts;
  for (const auto& entry : fs::recursive_directory_iterator(shop)) {
    const std::string name = entry.path().lexically_relative(shop).string();
    const std::string ending = entry.path().extension().string();
    if (ending == ".dat" || ending == ".Dat" || ending == ".ini") texts[name] = ReadAll(entry.path());
  }
  return texts;
}

std::string Short(const std::string& text) { return text.size() <= 160 ? text : text.substr(0, 160) + "..."; }

}  // namespace

Bench::Bench(fs::path programs) : programs_(std::move(programs)) {
  std::string name = (fs::temp_directory_path() / "tarvane-soak-XXXXXX").string();
  if (::mkdtemp(name.data()) == nullptr) throw std::runtime_error("can't make " + name);
  folder_ = name;
  fs::permissions(folder_, fs::perms(0711));
  const Ended laid = Run(Setup(folder_ / "sample"));
  if (laid.status != 0) throw std::runtime_error("no sample shop: " + laid.err);
  fs::remove_all(folder_ / "sample/Fonts");
}

Bench::~Bench() {
  std::error_code ignored;
  fs::remove_all(folder_, ignored);
}

fs::path Bench::FreshShop() const {
  fs::remove_all(folder_ / "shop");
  fs::copy(folder_ / "sample", folder_ / "shop", fs::copy_options::recursive);
  return folder_ / "shop";
}

Process Bench::Setup(const fs::path& shop) const {
  Process process;
  process.command = {programs_ / "tarvane-setup", "--sample", shop};
  return process;
}

Process Bench::Script(const fs::path& shop, const fs::path& story) const {
  Process process;
  process.command = {programs_ / "tarvane-script",       "--now", "2026-05-04T09:30:00", "--seed", "1", shop,
                     fs::path(TARVANE_TEST_DATA) / story};
  return process;
}

Process Bench::Failing(const fs::path& shop, const fs::path& story, CallKind kind, long nth,
                       int error) const {
  WriteAll(folder_ / "counts", std::string(sizeof(long) * kCallKinds, '\0'));
  Process process = Script(shop, story);
  process.environment = {{"LD_PRELOAD", programs_ / "libfailing_calls.so"},
                         {"FAILING_CALLS_UNDER", shop.string() + "/"},
                         {"FAILING_CALLS_COUNTS", folder_ / "counts"},
                         {"FAILING_CALLS_KIND", std::to_string(static_cast<int>(kind))},
                         {"FAILING_CALLS_NTH", std::to_string(nth)},
                         {"FAILING_CALLS_ERRNO", std::to_string(error)}};
  return process;
}

Workday::Workday(const Bench& bench) : bench_(bench) {
  const std::size_t marks = ReadStory();
  if (marks == 0) throw std::runtime_error("the story has no marks");
  for (std::size_t mark = 0; mark <= marks; ++mark) days_.push_back(PlayTo(mark));
}

// Writes the story to each mark as a file, and takes the claims; gives the number of marks.
std::size_t Workday::ReadStory() {
  std::size_t mark = 0;
  std::string story;
  for (const std::string& line : Split(ReadAll(fs::path(TARVANE_TEST_DATA) / "workday.story"))) {
    story += line + "\n";
    if (line == "show RecordBar") WriteAll(bench_.folder() / Name(++mark), story);
    if (line.starts_with(kAlways)) claims_.push_back({0, line.substr(kAlways.size())});
    if (line.starts_with(kSaved)) claims_.push_back({mark, line.substr(kSaved.size())});
  }
  WriteAll(bench_.folder() / Name(0), "");
  return mark;
}

Workday::Day Workday::PlayTo(std::size_t mark) {
  Day day;
  const fs::path shop = bench_.FreshShop();
  day.ended = bench_.Run(Failing(shop, mark, CallKind::kOpen, 0, 0));
  const std::string bytes = ReadAll(bench_.folder() / "counts");
  std::copy_n(bytes.data(), sizeof day.calls, reinterpret_cast<char*>(day.calls.data()));
  for (const auto& [name, text] : TextsOf(shop)) texts_[name].insert(text);
  const Ended after = bench_.Run(bench_.Script(shop, "day_after.story"));
  for (const Claim& claim : claims_) day.answers.push_back(AnswerOf(shop, claim.question));
  const std::string wrong = day.ended.err + after.err + SharedItemNumbers(shop);
  if (day.ended.status != 0 || after.status != 0 || !wrong.empty() || day.answers[0] != "ok\n") {
    throw std::runtime_error("an undisturbed day ended badly: " + wrong + day.answers[0]);
  }
  return day;
}

std::size_t Workday::MarkOf(CallKind kind, long nth) const {
  std::size_t mark = 0;
  while (mark < marks() && Calls(kind, mark) < nth) ++mark;
  return mark;
}

std::vector<std::string> Workday::Check(const fs::path& shop, std::size_t mark, const Ended& day) const {
  std::vector<std::string> wrong;
  for (const auto& [name, texts] : texts_) {
    const std::string text = ReadAll(shop / name);
    if (!texts.contains(text)) wrong.push_back(name + " now holds: " + Short(text));
  }
  const Ended after = bench_.Run(bench_.Script(shop, "day_after.story"));
  if (after.status != 0) {
    wrong.push_back(fmt::format("the day after: {} status {} {}", after.Wrong(), after.status, after.err));
  }
  const std::vector<std::string> told = ToldBeforeMarks(day.out);
  const std::vector<std::string> right = ToldBeforeMarks(days_[mark].ended.out);
  for (std::size_t i = 0; i < claims_.size(); ++i) {
    const std::size_t at = claims_[i].mark;
    if (at > 0 && (at > std::min(told.size(), right.size()) || told[at - 1] != right[at - 1])) continue;
    const std::string answer = AnswerOf(shop, claims_[i].question);
    if (answer == days_[mark].answers[i]) continue;
    wrong.push_back(fmt::format("{}: {} gives {}, not {}", at == 0 ? "always" : "told as saved",
                                claims_[i].question, Short(answer), Short(days_[mark].answers[i])));
  }
  const std::string shared = SharedItemNumbers(shop);
  if (!shared.empty()) wrong.push_back("items share the numbers" + shared);
  return wrong;
}

}  // namespace tarvane::soak
