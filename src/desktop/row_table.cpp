#include "desktop/row_table.h"

#include <QAbstractButton>
#include <QHeaderView>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStandardItemModel>
#include <algorithm>
#include <memory>

#include "desktop/make.h"

namespace tarvane::desktop {
namespace {

// Qt's own keeps a place and a height for each row of the model. This one sees a model without rows.
class RowlessHeader : public QHeaderView {
 public:
  explicit RowlessHeader(QWidget* parent) : QHeaderView(Qt::Vertical, parent) {
    QHeaderView::setModel(&nothing_);
  }
  void setModel(QAbstractItemModel*) override {}
  void setSelectionModel(QItemSelectionModel*) override {}

 private:
  QStandardItemModel nothing_;
};

}  // namespace

RowTable::RowTable() {
  setVerticalHeader(Make<RowlessHeader>(this));
  setVerticalScrollMode(ScrollPerItem);
  setHorizontalScrollMode(ScrollPerPixel);
  // Between the headings, of which there is but one.
  if (auto* corner = findChild<QAbstractButton*>(QString(), Qt::FindDirectChildrenOnly)) corner->hide();
}

void RowTable::SetEmptyText(const QString& text) {
  empty_text_ = text;
  viewport()->update();
}

int RowTable::Rows() const { return model() == nullptr ? 0 : model()->rowCount(); }
int RowTable::RowHeight() const { return std::max(1, verticalHeader()->defaultSectionSize()); }
int RowTable::WholeRows() const { return std::max(1, viewport()->height() / RowHeight()); }
int RowTable::RowAt(int y) const { return verticalScrollBar()->value() + y / RowHeight(); }

int RowTable::verticalOffset() const { return verticalScrollBar()->value() * RowHeight(); }

bool RowTable::isIndexHidden(const QModelIndex& index) const { return isColumnHidden(index.column()); }

QRect RowTable::visualRect(const QModelIndex& index) const {
  if (!index.isValid() || isIndexHidden(index)) return {};
  return {columnViewportPosition(index.column()), (index.row() - verticalScrollBar()->value()) * RowHeight(),
          columnWidth(index.column()), RowHeight()};
}

QModelIndex RowTable::indexAt(const QPoint& point) const {
  const int row = RowAt(point.y());
  const int column = columnAt(point.x());
  if (point.y() < 0 || column < 0) return {};
  return model()->index(row, column);
}

void RowTable::scrollTo(const QModelIndex& index, ScrollHint hint) {
  if (!index.isValid() || isIndexHidden(index)) return;
  const int left = columnViewportPosition(index.column());
  const int over = left + columnWidth(index.column()) - viewport()->width();
  QScrollBar* sideways = horizontalScrollBar();
  if (left < 0 || over > 0) sideways->setValue(sideways->value() + (left < 0 ? left : std::min(left, over)));

  QScrollBar* bar = verticalScrollBar();
  const int last = index.row() - WholeRows() + 1;
  switch (hint) {
    case EnsureVisible:
      bar->setValue(std::clamp(bar->value(), last, index.row()));
      break;
    case PositionAtTop:
      bar->setValue(index.row());
      break;
    case PositionAtBottom:
      bar->setValue(last);
      break;
    case PositionAtCenter:
      bar->setValue(index.row() - WholeRows() / 2);
      break;
  }
  viewport()->update();
}

// The table's own leaves the number of rows to the heading at the side.
void RowTable::reset() {
  QTableView::reset();
  updateGeometries();
}

void RowTable::updateGeometries() {
  if (std::exchange(arranging_, true)) return;
  QHeaderView* header = horizontalHeader();
  const int height = header->isHidden() ? 0 : std::max(header->minimumHeight(), header->sizeHint().height());
  setViewportMargins(0, height, 0, 0);
  const QRect room = viewport()->geometry();
  header->setGeometry(room.left(), room.top() - height, room.width(), height);
  horizontalScrollBar()->setPageStep(room.width());
  horizontalScrollBar()->setSingleStep(std::max(room.width() / 20, 2));
  horizontalScrollBar()->setRange(0, std::max(0, header->length() - room.width()));
  verticalScrollBar()->setPageStep(WholeRows());
  verticalScrollBar()->setRange(0, std::max(0, Rows() - WholeRows()));
  // Not the table's own: that would count the heights of all rows.
  QAbstractItemView::updateGeometries();  // NOLINT(bugprone-parent-virtual-call)
  arranging_ = false;
}

void RowTable::scrollContentsBy(int columns, int rows) {
  if (columns != 0) QTableView::scrollContentsBy(columns, 0);
  if (rows == 0) return;
  if (std::abs(rows) < WholeRows()) {
    viewport()->scroll(0, rows * RowHeight());
  } else {
    viewport()->update();
  }
}

void RowTable::PaintRow(QPainter& painter, QStyleOptionViewItem option, int row, int left, int right) const {
  const QHeaderView* header = horizontalHeader();
  option.features.setFlag(QStyleOptionViewItem::Alternate, alternatingRowColors() && row % 2 == 1);
  const QStyle::State state = option.state;
  for (int place = left; place <= right; ++place) {
    const int column = header->logicalIndex(place);
    if (isColumnHidden(column)) continue;
    const QModelIndex index = model()->index(row, column);
    option.rect = visualRect(index);
    option.state = state;
    option.state.setFlag(QStyle::State_Selected, selectionModel()->isSelected(index));
    option.state.setFlag(QStyle::State_HasFocus, hasFocus() && index == currentIndex());
    itemDelegateForIndex(index)->paint(&painter, option, index);
  }
}

void RowTable::paintEvent(QPaintEvent* event) {
  QPainter painter(viewport());
  if (Rows() == 0) {
    painter.setPen(palette().color(QPalette::PlaceholderText));
    const int margin = RowHeight();
    painter.drawText(viewport()->rect().adjusted(margin, margin, -margin, -margin),
                     Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, empty_text_);
    return;
  }
  QStyleOptionViewItem option;
  initViewItemOption(&option);
  const QRect area = event->rect();
  const QHeaderView* header = horizontalHeader();
  const int left = std::max(0, header->visualIndexAt(area.left()));
  const int past = header->visualIndexAt(area.right());
  const int right = past < 0 ? header->count() - 1 : past;
  const int last = std::min(RowAt(area.bottom()), Rows() - 1);
  for (int row = RowAt(area.top()); row <= last; ++row) PaintRow(painter, option, row, left, right);
}

int RowTable::NextColumn(int column, int step) const {
  const QHeaderView* header = horizontalHeader();
  for (int place = header->visualIndex(column) + step; place >= 0 && place < header->count(); place += step) {
    if (!isColumnHidden(header->logicalIndex(place))) return header->logicalIndex(place);
  }
  return column;
}

QModelIndex RowTable::moveCursor(CursorAction action, Qt::KeyboardModifiers) {
  if (Rows() == 0) return {};
  const QModelIndex current = currentIndex();
  int row = current.row();
  int column = current.isValid() ? current.column() : std::max(0, columnAt(0));
  switch (action) {
    case MoveUp:
    case MovePrevious:
      --row;
      break;
    case MoveDown:
    case MoveNext:
      ++row;
      break;
    case MovePageUp:
      row -= WholeRows();
      break;
    case MovePageDown:
      row += WholeRows();
      break;
    case MoveHome:
      row = 0;
      break;
    case MoveEnd:
      row = Rows() - 1;
      break;
    case MoveLeft:
    case MoveRight:
      column = NextColumn(column, action == MoveLeft ? -1 : 1);
      break;
  }
  return model()->index(std::clamp(row, 0, Rows() - 1), column);
}

void RowTable::setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags command) {
  const QModelIndex from = indexAt(rect.topLeft());
  const QModelIndex to = indexAt(rect.bottomRight());
  if (!from.isValid() || !to.isValid()) return;
  selectionModel()->select(QItemSelection(from, to), command);
}

QRegion RowTable::visualRegionForSelection(const QItemSelection& selection) const {
  QRegion region;
  for (const QItemSelectionRange& range : selection) {
    const int top = std::max(range.top(), verticalScrollBar()->value());
    const int bottom = std::min(range.bottom(), RowAt(viewport()->height()));
    if (top > bottom) continue;
    region += QRect(0, (top - verticalScrollBar()->value()) * RowHeight(), viewport()->width(),
                    (bottom - top + 1) * RowHeight());
  }
  return region;
}

}  // namespace tarvane::desktop
