#include "job/room_text.h"

#include "text/trim.h"
#include "text/utf8.h"
#include "text_number/text_number.h"

namespace tarvane::job {

namespace {

constexpr int kMostTokens = 63;

}  // namespace

std::vector<std::string> RoomItemHeadings() {
  return {"Line", "Price", "Description", "Infomation", "Dialogbox", "Item No", "EstPageInfo"};
}

std::vector<std::string> SingleItemHeadings() {
  return {"Item No", "Qty", "Description", "Unit Price", "Total"};
}

ItemLines::ItemLines(std::string_view text, const LineLayout& layout) : layout_(layout) {
  text = TrimSpaces(text);
  for (std::size_t end; (end = text.find('\n')) != std::string_view::npos; text.remove_prefix(end + 1)) {
    ReadLine(WithoutLastCharacter(text.substr(0, end)));
  }
}

void ItemLines::ReadLine(std::string_view line) {
  Fields fields = lines_.empty() ? Fields{} : lines_.back();
  std::size_t count = 0;
  for (std::size_t bar; count < layout_.fields && (bar = line.find('|')) != std::string_view::npos;
       line.remove_prefix(bar + 1)) {
    fields[count++] = TakeField(line.substr(0, bar));
  }
  if (count < layout_.fields) unfinished_ += line;
  lines_.push_back(fields);
}

std::string_view ItemLines::TakeField(std::string_view piece) {
  if (unfinished_.empty()) return piece;
  unfinished_ += piece;
  joined_.push_back(std::move(unfinished_));
  unfinished_.clear();
  return joined_.back();
}

std::vector<HeldGrid::Row> ItemLines::Rows() const {
  std::vector<HeldGrid::Row> rows;
  rows.reserve(lines_.size());
  for (const Fields& fields : lines_) {
    HeldGrid::Row& row = rows.emplace_back();
    row.reserve(layout_.fields + 1);
    row.push_back(std::to_string(rows.size()));
    for (std::size_t field = 0; field < layout_.fields; ++field) row.emplace_back(fields[field]);
  }
  return rows;
}

std::string ItemLines::RunningTotal(std::string_view start) const {
  std::string total(start);
  const auto price = static_cast<std::size_t>(layout_.price_column - 1);
  for (const Fields& fields : lines_) {
    total = FormatNumber(ParseLeading(total) + ParseLeading(fields[price]), Mask::k0_00);
  }
  return total;
}

std::string WriteItemLines(const std::vector<HeldGrid::Row>& rows, const LineLayout& layout) {
  std::size_t size = 0;
  for (const HeldGrid::Row& row : rows) {
    size += layout.fields + 2;
    for (const std::string& cell : row) size += cell.size();
  }
  std::string text;
  text.reserve(size);
  for (const HeldGrid::Row& row : rows) {
    for (std::size_t column = 1; column <= layout.fields; ++column) {
      if (column < row.size()) text += row[column];
      text += '|';
    }
    text += "\r\n";
  }
  return text;
}

std::string CompileRoomSummary(const std::vector<HeldGrid::Row>& rows) {
  std::string summary;
  std::string token;
  for (const HeldGrid::Row& row : rows) {
    if (row.size() <= static_cast<std::size_t>(kEstPageInfoColumn)) continue;
    std::string_view rest = TrimSpaces(row[kEstPageInfoColumn]);
    int count = 0;
    for (std::size_t end; count < kMostTokens && (end = rest.find('~')) != std::string_view::npos;
         rest.remove_prefix(end + 1)) {
      summary.append(token).append(rest.substr(0, end)).append("\r\n");
      token.clear();
      ++count;
    }
    if (count < kMostTokens) token += rest;
  }
  return summary;
}

}  // namespace tarvane::job
