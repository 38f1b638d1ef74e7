#include <algorithm>
#include <utility>

#include "rich_text/rtf_reader.h"

namespace tarvane::rich_text {

int RtfReader::Argument::Length() const { return std::clamp(number, -kLongest, kLongest); }

void RtfReader::SetHidden(const Argument& argument) {
  const int hidden = argument.On() ? state_.hidden | argument.value : state_.hidden & ~argument.value;
  state_.hidden = static_cast<std::uint8_t>(hidden);
}

void RtfReader::SetFontSize(const Argument& argument) {
  if (argument.number > 0) {
    state_.style.half_points = static_cast<std::uint16_t>(std::min(argument.number, kLargestHalfPoints));
  }
}

void RtfReader::SetColor(const Argument& argument) {
  const auto index = static_cast<std::size_t>(std::max(argument.number, 0));
  state_.style.color = index < colors_.size() ? colors_[index] : Color{};
}

void RtfReader::ResetCharacter(const Argument&) {
  constexpr std::uint16_t kHalfPoints = 24;
  state_.style = CharStyle{};
  state_.style.half_points = kHalfPoints;
  state_.hidden = 0;
  UseFont(default_font_);
}

void RtfReader::ResetParagraph(const Argument&) {
  state_.paragraph = ParagraphStyle{};
  state_.in_table = false;
  state_.page_break_before = false;
  state_.line = 0;
  state_.line_multiple = false;
  state_.next_tab = TabKind::kLeft;
}

void RtfReader::SetAlignment(const Argument& argument) {
  state_.paragraph.alignment = static_cast<Alignment>(argument.value);
}

void RtfReader::AddTab(const Argument& argument) {
  auto& tabs = state_.paragraph.tabs;
  const TabStop tab{argument.Length(), std::exchange(state_.next_tab, TabKind::kLeft)};
  const auto place = std::ranges::lower_bound(tabs, tab.at, {}, &TabStop::at);
  if (place != tabs.end() && place->at == tab.at) {
    *place = tab;
  } else if (tabs.size() < kMostTabStops) {
    tabs.insert(place, tab);
  }
}

void RtfReader::SetDocumentPage(const Argument& argument) {
  const int page = argument.value != 0 ? argument.value : argument.number;
  if (page <= 0) return;
  document_page_ = page;
  state_.page = page;
}

}  // namespace tarvane::rich_text
