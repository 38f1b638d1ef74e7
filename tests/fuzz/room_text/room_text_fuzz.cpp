#include <string>
#include <string_view>
#include <vector>

#include "fuzz/require.h"
#include "job/room_text.h"
#include "text/trim.h"

namespace tarvane {
namespace {

// Reads item lines the plain way, letter by letter, as the format is written up in docs/job-record.md.
std::vector<HeldGrid::Row> ReadPlainly(std::string_view text, std::size_t fields) {
  std::vector<HeldGrid::Row> rows;
  std::vector<std::string> kept(fields);
  std::string line;
  std::string field;
  for (const char letter : TrimSpaces(text)) {
    if (letter != '\n') {
      line += letter;
      continue;
    }
    while (!line.empty() && (line.back() & 0xC0) == 0x80 && line.size() > 1) line.pop_back();
    if (!line.empty()) line.pop_back();
    std::size_t count = 0;
    for (const char in_line : line) {
      if (count == fields) break;
      if (in_line != '|') {
        field += in_line;
        continue;
      }
      kept[count++] = field;
      field.clear();
    }
    line.clear();
    rows.push_back({std::to_string(rows.size() + 1)});
    rows.back().insert(rows.back().end(), kept.begin(), kept.end());
  }
  return rows;
}

bool IsWellFormed(const std::vector<HeldGrid::Row>& rows) {
  const auto parts_a_line = [](const std::string& cell) { return cell.find_first_of("|\n") != cell.npos; };
  for (const HeldGrid::Row& row : rows) {
    if (std::ranges::any_of(row, parts_a_line)) return false;
  }
  // The first field's leading spaces would go with the outer spaces of the text.
  return rows.empty() || !rows.front()[1].starts_with(' ');
}

void Check(std::string_view text, const job::LineLayout& layout) {
  const job::ItemLines lines(text, layout);
  const auto rows = lines.Rows();
  Require(rows == ReadPlainly(text, layout.fields));
  Require(!lines.RunningTotal("0.00").empty());
  job::CompileRoomSummary(rows);
  if (!IsWellFormed(rows)) return;
  const std::string written = job::WriteItemLines(rows, layout);
  Require(job::ItemLines(written, layout).Rows() == rows);
  Require(job::WriteItemLines(job::ItemLines(written, layout).Rows(), layout) == written);
}

}  // namespace
}  // namespace tarvane

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  for (const auto& layout : {tarvane::job::kRoomItemLayout, tarvane::job::kSingleItemLayout}) {
    tarvane::Check(tarvane::InputText(data, size), layout);
  }
  return 0;
}
