#include "paper/rich_text_pages.h"

#include <algorithm>
#include <cmath>

#include "paper/page_layout.h"

namespace tarvane::paper {
namespace {

constexpr double kLeastArea = 36;
constexpr double kLeastPaper = 72;
constexpr double kFarthest = 100'000;

double Finite(double place) { return std::isfinite(place) ? std::clamp(place, -kFarthest, kFarthest) : 0; }

Area FiniteArea(const Area& area) {
  return {Finite(area.left), Finite(area.top), Finite(area.right), Finite(area.bottom)};
}

struct Range {
  double begin;
  double end;
};

Range TextRange(double length, double before, double behind) {
  const double begin = Finite(before);
  const double end = Finite(length) - Finite(behind);
  if (end - begin >= kLeastArea) return {begin, end};
  return {0, std::max(Finite(length), kLeastPaper)};
}

Area TextArea(const Paper& paper, const Edges& margins) {
  const Range across = TextRange(paper.size.width, margins.left, margins.right);
  const Range down = TextRange(paper.size.height, margins.top, margins.bottom);
  return {across.begin, down.begin, across.end, down.end};
}

std::vector<std::uint32_t> PicturePlaces(const rich_text::Document& document) {
  std::vector<std::uint32_t> places;
  if (document.pictures.empty()) return places;
  for (std::size_t at = 0; (at = document.text.find(rich_text::kPictureSign, at)) != std::string::npos;) {
    places.push_back(static_cast<std::uint32_t>(at));
    at += rich_text::kPictureSign.size();
  }
  return places;
}

}  // namespace

Place FormatPage(const rich_text::Document& document, Measure& measure, const Area& area, const Place& from,
                 Surface* surface) {
  const std::vector<std::uint32_t> pictures = PicturePlaces(document);
  FontLooks looks(document, measure);
  return PageLayout(document, looks, pictures, FiniteArea(area), surface).LayOut(from);
}

RichTextPages::RichTextPages(const rich_text::Document& document, Measure& measure, const Paper& paper,
                             const Edges& margins)
    : document_(document),
      looks_(document, measure),
      paper_(paper),
      area_(TextArea(paper, margins)),
      pictures_(PicturePlaces(document)),
      begins_(1) {
  PageLayout layout(document, looks_, pictures_, area_, nullptr);
  for (Place next = layout.LayOut(begins_.back()); next.text < document.text.size();
       next = layout.LayOut(begins_.back())) {
    begins_.push_back(std::move(next));
  }
}

void RichTextPages::Draw(int page, Surface& surface) const {
  PageLayout(document_, looks_, pictures_, area_, &surface)
      .LayOut(begins_.at(static_cast<std::size_t>(page)));
}

}  // namespace tarvane::paper
