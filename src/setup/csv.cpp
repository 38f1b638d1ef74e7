#include "setup/csv.h"

#include <fmt/format.h>

#include <algorithm>
#include <utility>

#include "store/data_files.h"
#include "text/fault.h"
#include "text/utf8.h"

namespace tarvane::setup {

namespace {

constexpr std::string_view kLineEnd = "\r\n";

class CsvReader {
 public:
  // `text`: with CR LF at the end of each line.
  CsvReader(std::string_view text, std::string_view name) : rest_(text), name_(name) {}

  std::vector<CsvRecord> Read() {
    std::vector<CsvRecord> records;
    while (!rest_.empty()) {
      CsvRecord record = ReadRecord();
      const std::size_t wanted = records.empty() ? record.fields.size() : records.front().fields.size();
      if (record.fields == std::vector<std::string>{""}) Throw(record.line, "a blank line");
      if (record.fields.size() != wanted)
        Throw(record.line, fmt::format("{} fields; the head has {}", record.fields.size(), wanted));
      records.push_back(std::move(record));
    }
    if (records.empty()) Throw(line_, "no head");
    return records;
  }

 private:
  CsvRecord ReadRecord() {
    CsvRecord record{.line = line_, .fields = {}};
    do record.fields.push_back(rest_.starts_with('"') ? ReadQuoted() : ReadPlain());
    while (Take(","));
    if (!Take(kLineEnd)) Throw(line_, "text behind a closing quote");
    ++line_;
    return record;
  }

  std::string ReadPlain() {
    std::string field(TakeUpTo(std::min(rest_.find(','), rest_.find(kLineEnd))));
    if (field.find('"') != std::string::npos) Throw(line_, "a quote amid a field");
    return field;
  }

  std::string ReadQuoted() {
    const int begin = line_;
    std::string field;
    while (Take("\"")) {
      const std::size_t quote = rest_.find('"');
      if (quote == std::string_view::npos) Throw(begin, "a quote that isn't closed");
      field += TakeUpTo(quote);
      Take("\"");
      if (rest_.starts_with('"')) field += '"';
    }
    line_ += static_cast<int>(std::ranges::count(field, '\n'));
    return field;
  }

  bool Take(std::string_view what) {
    if (!rest_.starts_with(what)) return false;
    rest_.remove_prefix(what.size());
    return true;
  }
  std::string_view TakeUpTo(std::size_t end) {
    const std::string_view taken = rest_.substr(0, end);
    rest_.remove_prefix(taken.size());
    return taken;
  }

  [[noreturn]] void Throw(int line, std::string_view what) const {
    throw Fault(fmt::format("{}, line {}: {}.", name_, line, what));
  }

  std::string_view rest_;
  std::string_view name_;
  int line_ = 1;
};

}  // namespace

std::vector<CsvRecord> ReadCsv(std::string_view text, std::string_view name) {
  const std::string lines = JoinLines(SplitLines(WithoutByteOrderMark(text)));
  return CsvReader(lines, name).Read();
}

}  // namespace tarvane::setup
