#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarvane::setup {

struct CsvRecord {
  int line = 0;  // of the file, from 1, where the record begins
  std::vector<std::string> fields;
};

// The records of a CSV file in UTF-8: RFC 4180, where a line may end with LF alone. The first record is the
// head; every other one has as many fields as it. A line end inside a quoted field is read as CR LF. Faults,
// with `name` and the line, for everything else: no head, a blank line, a record that is too short or too
// long, a quote that isn't closed or stands amid a field.
std::vector<CsvRecord> ReadCsv(std::string_view text, std::string_view name);

}  // namespace tarvane::setup
