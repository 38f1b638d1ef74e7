#include "catalogues/price_list/price_sheet.h"

#include <algorithm>

#include "text/fault.h"
#include "text/trim.h"

namespace tarvane::catalogues {

namespace {

constexpr std::string_view kNoBreakBlank = "\u00A0";

std::string_view TrimCell(std::string_view text) {
  for (;;) {
    text = Trim(text);
    if (text.starts_with(kNoBreakBlank)) {
      text.remove_prefix(kNoBreakBlank.size());
    } else if (text.ends_with(kNoBreakBlank)) {
      text.remove_suffix(kNoBreakBlank.size());
    } else {
      return text;
    }
  }
}

}  // namespace

PriceSheet::Cell PriceSheet::At(std::size_t line, std::size_t column) const {
  const std::size_t at = lines_[line].first_cell + column;
  const std::size_t end = line + 1 < lines_.size() ? lines_[line + 1].first_cell : line_start_;
  if (at >= end) return {};
  const std::size_t begin = at == 0 ? 0 : cells_[at - 1].end;
  return {std::string_view(text_).substr(begin, cells_[at].end - begin), cells_[at].number};
}

void PriceSheet::AddCell(std::string_view text, bool number) {
  text = TrimCell(text);
  const bool fits = cells_.size() < price_limit::kCells && text.size() <= price_limit::kTextBytes &&
                    text_.size() <= price_limit::kTextBytes - text.size();
  if (!fits) throw Fault("it holds more than a price list may");
  text_ += text;
  cells_.push_back({static_cast<std::uint32_t>(text_.size()), number});
}

void PriceSheet::EndLine(std::int64_t number) {
  const auto before = [this](std::size_t cell) { return cell == 0 ? 0 : cells_[cell - 1].end; };
  while (cells_.size() > line_start_ && cells_.back().end == before(cells_.size() - 1)) cells_.pop_back();
  const std::size_t width = cells_.size() - line_start_;
  if (width == 0) return;
  if (width > price_limit::kColumns) {
    throw Fault("line " + std::to_string(number) + " has more than " + std::to_string(price_limit::kColumns) +
                " columns");
  }
  if (lines_.size() >= price_limit::kLines) {
    throw Fault("it has more than " + std::to_string(price_limit::kLines) + " lines");
  }
  lines_.push_back({number, line_start_});
  line_start_ = cells_.size();
  columns_ = std::max(columns_, width);
}

}  // namespace tarvane::catalogues
