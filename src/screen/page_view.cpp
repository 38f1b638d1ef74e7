#include "screen/page_view.h"

#include <algorithm>

#include "screen/screen.h"

namespace tarvane {

void PageView::SetPages(const paper::Pages* pages) {
  pages_ = pages;
  page_ = 0;
  picture_.clear();
  Notify(Aspect::kText);
}

void PageView::SetPage(int page) {
  const int last = pages_ != nullptr ? pages_->Count() - 1 : 0;
  page_ = std::clamp(page, 0, last);
  Notify(Aspect::kText);
}

void PageView::SetZoom(int percent) {
  zoom_ = std::clamp(percent, 1, 1000);
  Notify(Aspect::kState);
}

void PageView::SetPicture(std::filesystem::path file) {
  picture_ = std::move(file);
  Notify(Aspect::kText);
}

void Slider::SetEnds(int least, int most) {
  least_ = least;
  most_ = std::max(least, most);
  Notify(Aspect::kEntries);
  Set(value_);
}

void Slider::Set(int value) {
  value = std::clamp(value, least_, most_);
  if (value == value_) return;
  value_ = value;
  Notify(Aspect::kState);
  Run(moved_);
}

void Slider::UserMove(int value) {
  screen().Guard([this, value] {
    screen().SetFocus(*this);
    Set(value);
  });
}

}  // namespace tarvane
