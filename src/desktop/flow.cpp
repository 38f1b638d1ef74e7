#include "desktop/flow.h"

#include <QWidget>
#include <QWidgetItem>
#include <algorithm>

#include "desktop/make.h"

namespace tarvane::desktop {
namespace {

bool IsSpace(const QLayoutItem& item) { return const_cast<QLayoutItem&>(item).spacerItem() != nullptr; }

int HeightOf(const QLayoutItem& item, int width) {
  return item.hasHeightForWidth() ? item.heightForWidth(width) : item.sizeHint().height();
}

}  // namespace

FlowLayout::FlowLayout(int across, int down) : across_(across), down_(down) {
  setContentsMargins(0, 0, 0, 0);
}

FlowLayout::~FlowLayout() {
  // A layout in it still asks it as it goes.
  while (!items_.empty()) std::unique_ptr<QLayoutItem>(takeAt(0)).reset();
}

void FlowLayout::Keep(QLayoutItem* item, int stretch) {
  items_.push_back({std::unique_ptr<QLayoutItem>(item), stretch});
  invalidate();
}

void FlowLayout::addItem(QLayoutItem* item) { Keep(item, 0); }

void FlowLayout::Add(QWidget* widget, int stretch) {
  addChildWidget(widget);
  Keep(Make<QWidgetItemV2>(widget), stretch);
}

void FlowLayout::Add(QLayout* layout, int stretch) {
  addChildLayout(layout);
  Keep(layout, stretch);
}

void FlowLayout::AddGap(int width) { Keep(Make<QSpacerItem>(width, 0), 0); }

void FlowLayout::AddSpring(int stretch) { Keep(Make<QSpacerItem>(0, 0), stretch); }

QLayoutItem* FlowLayout::itemAt(int index) const {
  return index >= 0 && index < count() ? items_[static_cast<std::size_t>(index)].item.get() : nullptr;
}

QLayoutItem* FlowLayout::takeAt(int index) {
  if (index < 0 || index >= count()) return nullptr;
  QLayoutItem* taken = items_[static_cast<std::size_t>(index)].item.release();
  items_.erase(items_.begin() + index);
  return taken;
}

int FlowLayout::WidthOf(const Row& row) const {
  int width = 0;
  for (const Item* item : row) width += item->item->sizeHint().width();
  const auto is_shown = [](const Item* item) { return !IsSpace(*item->item); };
  return width + across_ * std::max(0, static_cast<int>(std::ranges::count_if(row, is_shown)) - 1);
}

std::vector<FlowLayout::Row> FlowLayout::Rows(int width) const {
  std::vector<Row> rows;
  Row row;
  const auto end_row = [&rows, &row] {
    while (!row.empty() && IsSpace(*row.back()->item) && row.back()->stretch == 0) row.pop_back();
    if (!row.empty()) rows.push_back(std::exchange(row, {}));
  };
  for (const Item& item : items_) {
    const bool space = IsSpace(*item.item);
    if (!space && item.item->isEmpty()) continue;
    if (space && row.empty() && item.stretch == 0) continue;
    row.push_back(&item);
    if (space || row.size() == 1 || WidthOf(row) <= width) continue;
    row.pop_back();
    end_row();
    row.push_back(&item);
  }
  end_row();
  return rows;
}

int FlowLayout::HeightOf(const Row& row, int width) const {
  int tallest = 0;
  for (const Item* item : row) {
    const int wanted = std::min(width, item->item->sizeHint().width());
    tallest = std::max(tallest, desktop::HeightOf(*item->item, wanted));
  }
  return tallest;
}

int FlowLayout::heightForWidth(int width) const {
  const QMargins edge = contentsMargins();
  const int inner = width - edge.left() - edge.right();
  int height = edge.top() + edge.bottom();
  bool first = true;
  for (const Row& row : Rows(inner))
    height += HeightOf(row, inner) + (std::exchange(first, false) ? 0 : down_);
  return height;
}

QSize FlowLayout::sizeHint() const {
  const QMargins edge = contentsMargins();
  int width = 0;
  for (const Row& row : Rows(QWIDGETSIZE_MAX)) width = std::max(width, WidthOf(row));
  width += edge.left() + edge.right();
  return {width, heightForWidth(width)};
}

QSize FlowLayout::minimumSize() const {
  const QMargins edge = contentsMargins();
  QSize least;
  for (const Item& item : items_) {
    if (!item.item->isEmpty()) least = least.expandedTo(item.item->minimumSize());
  }
  return least + QSize(edge.left() + edge.right(), edge.top() + edge.bottom());
}

void FlowLayout::Place(const Row& row, const QRect& room) const {
  int shares = 0;
  for (const Item* item : row) shares += item->stretch;
  int spare = std::max(0, room.width() - WidthOf(row));
  int x = room.left();
  for (const Item* item : row) {
    int width = std::min(item->item->sizeHint().width(), room.width());
    if (item->stretch > 0) {
      const int share = spare * item->stretch / shares;
      width += share;
      spare -= share;
      shares -= item->stretch;
    }
    const int height = std::min(room.height(), desktop::HeightOf(*item->item, width));
    const bool space = IsSpace(*item->item);
    if (!space) item->item->setGeometry({x, room.top() + (room.height() - height) / 2, width, height});
    x += width + (space ? 0 : across_);
  }
}

void FlowLayout::setGeometry(const QRect& room) {
  QLayout::setGeometry(room);
  const QRect inner = room.marginsRemoved(contentsMargins());
  int y = inner.top();
  for (const Row& row : Rows(inner.width())) {
    const int height = HeightOf(row, inner.width());
    Place(row, {inner.left(), y, inner.width(), height});
    y += height + down_;
  }
}

}  // namespace tarvane::desktop
