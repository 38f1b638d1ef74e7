#pragma once

#include <QTableView>

namespace tarvane::desktop {

// A table whose rows are equally high, as high as the vertical header's default section. It keeps nothing for
// each row: a million cost what ten do. Rows scroll one by one, columns by pixels; rows can't be hidden,
// moved, or dragged to another height.
class RowTable : public QTableView {
 public:
  RowTable();

  // What stands in its middle while there are no rows.
  void SetEmptyText(const QString& text);

  QRect visualRect(const QModelIndex& index) const override;
  QModelIndex indexAt(const QPoint& point) const override;
  void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;
  void reset() override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void updateGeometries() override;
  void scrollContentsBy(int columns, int rows) override;
  int verticalOffset() const override;
  bool isIndexHidden(const QModelIndex& index) const override;
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
  void setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags command) override;
  QRegion visualRegionForSelection(const QItemSelection& selection) const override;

 private:
  int Rows() const;
  int RowHeight() const;
  int WholeRows() const;  // that there is room for, at least 1
  int RowAt(int y) const;
  int NextColumn(int column, int step) const;
  void PaintRow(QPainter& painter, QStyleOptionViewItem option, int row, int left, int right) const;

  bool arranging_ = false;
  QString empty_text_;
};

}  // namespace tarvane::desktop
