#include "desktop/list_views.h"

#include <QAbstractTableModel>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QTableView>
#include <algorithm>
#include <limits>

#include "desktop/make.h"
#include "desktop/picking_view.h"
#include "desktop/row_table.h"
#include "desktop/text.h"
#include "desktop/theme.h"
#include "listing/grid_export.h"

namespace tarvane::desktop {
namespace {

// Cells of a grid; its heading row is the table's heading.
class GridModel : public QAbstractTableModel {
 public:
  GridModel(const Grid& grid, TableLook look, QObject* parent)
      : QAbstractTableModel(parent), grid_(&grid), look_(std::move(look)) {
    Read();
  }

  const TableLook& look() const { return look_; }
  // -1 where the grid has none of that heading.
  int ColumnOf(std::string_view heading) const {
    for (int column = 0; column < columns_; ++column) {
      if (grid_->Cell(0, column) == heading) return column;
    }
    return -1;
  }
  bool IsShown(int column) const { return look_.columns.empty() || LookOf(column) != nullptr; }
  int WidthOf(int column) const {
    const TableColumn* look = LookOf(column);
    return look == nullptr ? 0 : look->width;
  }

  void Reset() {
    beginResetModel();
    Read();
    endResetModel();
  }

  int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : rows_; }
  int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : columns_; }

  QVariant data(const QModelIndex& index, int role) const override {
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole) return Text(index.row() + 1, index.column());
    if (role == Qt::TextAlignmentRole) return Alignment(index.column());
    return {};
  }

  QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
    if (orientation != Qt::Horizontal || section >= columns_) return {};
    if (role == Qt::TextAlignmentRole) return Alignment(section);
    if (role != Qt::DisplayRole) return {};
    const TableColumn* look = LookOf(section);
    return look == nullptr || look->shown_as.empty() ? Text(0, section) : ToQt(look->shown_as);
    return {};
  }

 private:
  void Read() {
    rows_ = static_cast<int>(std::min<std::int64_t>(grid_->RowCount(), std::numeric_limits<int>::max()));
    columns_ = grid_->ColumnCount();
    looks_.assign(static_cast<std::size_t>(columns_), nullptr);
    for (const TableColumn& column : look_.columns) {
      if (const int at = ColumnOf(column.heading); at >= 0) looks_[static_cast<std::size_t>(at)] = &column;
    }
  }

  const TableColumn* LookOf(int column) const { return looks_[static_cast<std::size_t>(column)]; }
  int Alignment(int column) const {
    const TableColumn* look = LookOf(column);
    const bool number = look != nullptr && look->number;
    return static_cast<int>((number ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
  }

  // A row that can't be read is drawn empty: painting is no place for a message.
  QString Text(std::int64_t row, int column) const {
    try {
      return ToQt(grid_->Cell(row, column)).simplified();
    } catch (const std::exception&) {
      return {};
    }
  }

  const Grid* grid_;
  const TableLook look_;
  std::vector<const TableColumn*> looks_;
  int rows_ = 0;
  int columns_ = 0;
};

// Draws a cell's text in one line, several times as fast as the general delegate: a page of a table is drawn
// at every key.
class LineDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const bool selected = option.state & QStyle::State_Selected;
    // A view's items are active while it has the focus.
    const auto group = option.state & QStyle::State_Active ? QPalette::Active : QPalette::Inactive;
    if (selected) {
      painter->fillRect(option.rect, option.palette.brush(group, QPalette::Highlight));
    } else if (option.features & QStyleOptionViewItem::Alternate) {
      painter->fillRect(option.rect, option.palette.brush(QPalette::AlternateBase));
    }
    const QString text = index.data().toString();
    if (text.isEmpty()) return;
    const int margin = option.fontMetrics.averageCharWidth();
    const QRect room = option.rect.adjusted(margin, 0, -margin, 0);
    const int width = option.fontMetrics.horizontalAdvance(text);
    const QString shown =
        width <= room.width() ? text : option.fontMetrics.elidedText(text, Qt::ElideRight, room.width());
    const bool right = index.data(Qt::TextAlignmentRole).toInt() & Qt::AlignRight;
    const int left = right && width <= room.width() ? room.right() + 1 - width : room.left();
    const int base =
        room.top() + (room.height() + option.fontMetrics.ascent() - option.fontMetrics.descent()) / 2;
    painter->setPen(option.palette.color(group, selected ? QPalette::HighlightedText : QPalette::Text));
    painter->drawText(left, base, shown);
  }
};

// Cells go to the clipboard as they are shown.
class GridTable : public PickingView<RowTable> {
 public:
  std::function<void()> insert;  // what the keys do; may be empty
  std::function<void()> remove;

  bool opens = true;                     // whether something happens to a row that is opened
  std::function<void()> draw_selection;  // as the grid has it
  std::function<void()> export_rows;

  // The column that takes the room that the others leave, but never less than `least`; -1 for the last one.
  void SetWide(int column, int least) {
    wide_ = column;
    least_ = least;
    horizontalHeader()->setStretchLastSection(column < 0);
    FitWide();
  }
  void FitWide() {
    if (wide_ < 0 || isColumnHidden(wide_)) return;
    int others = 0;
    for (int column = 0; column < horizontalHeader()->count(); ++column) {
      if (column != wide_ && !isColumnHidden(column)) others += columnWidth(column);
    }
    const int width = std::max(least_, viewport()->width() - others);
    if (width != columnWidth(wide_)) setColumnWidth(wide_, width);
  }

  // The columns that are shown, in their order.
  std::vector<int> ShownColumns() const {
    std::vector<int> columns;
    for (int place = 0; place < horizontalHeader()->count(); ++place) {
      const int column = horizontalHeader()->logicalIndex(place);
      if (!isColumnHidden(column)) columns.push_back(column);
    }
    return columns;
  }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    RowTable::resizeEvent(event);
    FitWide();
  }
  void contextMenuEvent(QContextMenuEvent* event) override {
    const bool by_key = event->reason() == QContextMenuEvent::Keyboard;
    const QPersistentModelIndex at = by_key ? currentIndex() : indexAt(event->pos());
    const QPoint middle = at.isValid() ? visualRect(at).center() : viewport()->rect().center();
    QMenu menu;
    QAction* open = menu.addAction("&Open");
    open->setVisible(opens);
    QAction* cell = menu.addAction("Copy &Cell");
    QAction* row = menu.addAction("Copy &Row");
    for (QAction* action : {open, cell, row}) action->setEnabled(at.isValid());
    QAction* all = menu.addAction("To &Spreadsheet...");
    const QAction* chosen = menu.exec(by_key ? viewport()->mapToGlobal(middle) : event->globalPos());
    // The press of the mouse marked a row that isn't the grid's.
    draw_selection();
    if (chosen == all) return export_rows();
    if (chosen == nullptr || !at.isValid()) return;
    if (chosen == open) opened(at.row());
    if (chosen == cell) QApplication::clipboard()->setText(at.data().toString());
    if (chosen == row) QApplication::clipboard()->setText(RowText(at.row()));
  }
  void keyPressEvent(QKeyEvent* event) override {
    const int before = currentIndex().row();
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
      opened(before);
      return;
    }
    const auto& action = event->key() == Qt::Key_Insert ? insert : remove;
    if ((event->key() == Qt::Key_Insert || event->key() == Qt::Key_Delete) && action) {
      action();
      return;
    }
    if ((event->key() == Qt::Key_Home || event->key() == Qt::Key_End) && model()->rowCount() > 0) {
      const int row = event->key() == Qt::Key_Home ? 0 : model()->rowCount() - 1;
      setCurrentIndex(model()->index(row, std::max(0, currentIndex().column())));
    } else {
      QTableView::keyPressEvent(event);
    }
    if (currentIndex().row() != before) picked(currentIndex().row());
  }

 private:
  int wide_ = -1;
  int least_ = 0;

  // The shown cells with tabs between them.
  QString RowText(int row) const {
    QStringList cells;
    for (const int column : ShownColumns()) cells += model()->index(row, column).data().toString();
    return cells.join('\t');
  }
};

std::function<void()> Pressing(Form& form, Grid& grid, Button* button) {
  if (button == nullptr) return {};
  return [&form, &grid, button] {
    form.ActLater(grid, [button](Control& control) {
      if (button->shown()) control.screen().Guard([button] { button->Press(); });
    });
  };
}

// What the widest column keeps in a window that is too narrow for all of them, in digits.
constexpr int kLeastWide = 14;

// The grid's widths are meant for a text of 8.25 points.
int WidthOf(const Grid& grid, const GridModel& model, int column) {
  if (const int digits = model.WidthOf(column); digits > 0) return Digits(digits) + Quarters(2);
  const auto at = static_cast<std::size_t>(column);
  const double points = QApplication::font().pointSizeF();
  if (at < grid.widths().size() && grid.widths()[at] > 0) {
    return static_cast<int>(grid.widths()[at] / 15.0 * points / 8.25);
  }
  const QString heading = model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
  return std::max(QFontMetrics(QApplication::font()).horizontalAdvance(heading) + Quarters(4), Digits(7));
}

void MeasureColumns(GridTable* table, const GridModel& model, const Grid& grid) {
  for (int column = 0; column < grid.ColumnCount(); ++column) {
    if (!table->isColumnHidden(column)) table->setColumnWidth(column, WidthOf(grid, model, column));
  }
  const int wide = model.look().wide.empty() ? -1 : model.ColumnOf(model.look().wide);
  table->SetWide(wide, wide < 0 ? 0 : std::min(WidthOf(grid, model, wide), Digits(kLeastWide)));
}

void ArrangeColumns(GridTable* table, const GridModel& model, const Grid& grid) {
  QHeaderView* header = table->horizontalHeader();
  for (int column = 0; column < grid.ColumnCount(); ++column) {
    table->setColumnHidden(column, !model.IsShown(column));
  }
  int place = 0;
  for (const TableColumn& column : model.look().columns) {
    if (const int at = model.ColumnOf(column.heading); at >= 0)
      header->moveSection(header->visualIndex(at), place++);
  }
  MeasureColumns(table, model, grid);
}

void OfferColumns(GridTable* table) {
  QHeaderView* header = table->horizontalHeader();
  QObject::connect(header, &QHeaderView::sectionResized, table, [table] { table->FitWide(); });
  header->setContextMenuPolicy(Qt::CustomContextMenu);
  QObject::connect(header, &QWidget::customContextMenuRequested, table, [table, header](const QPoint& at) {
    QMenu menu;
    for (int column = 0; column < table->model()->columnCount(); ++column) {
      const QString heading = table->model()->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
      if (heading.isEmpty()) continue;
      QAction* action = menu.addAction(QString(heading).replace("&", "&&"));
      action->setCheckable(true);
      action->setChecked(!table->isColumnHidden(column));
      QObject::connect(action, &QAction::toggled, table, [table, column](bool shown) {
        table->setColumnHidden(column, !shown);
        table->FitWide();
      });
    }
    menu.exec(header->mapToGlobal(at));
  });
}

// The heading at the side, hidden though it is, would tell the new height of each of a million rows.
void SetRowHeight(QTableView* table) {
  QHeaderView* rows = table->verticalHeader();
  if (rows->defaultSectionSize() == Quarters(6)) return;
  {
    const QSignalBlocker quiet(rows);
    rows->setMinimumSectionSize(Quarters(5));
    rows->setDefaultSectionSize(Quarters(6));
  }
  table->doItemsLayout();
}

void DressTable(GridTable* table) {
  table->setSelectionBehavior(QAbstractItemView::SelectRows);
  table->setSelectionMode(QAbstractItemView::SingleSelection);
  table->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table->setTabKeyNavigation(false);
  table->setAlternatingRowColors(true);
  table->setShowGrid(false);
  table->setItemDelegate(Make<LineDelegate>(table));
  table->setWordWrap(false);
  table->verticalHeader()->hide();
  table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  table->horizontalHeader()->setHighlightSections(false);
}

void DrawSelection(QTableView* table, const Grid& grid) {
  const int row =
      static_cast<int>(std::min<std::int64_t>(grid.selected_row(), table->model()->rowCount())) - 1;
  if (row == table->currentIndex().row()) return;
  const int column = std::max(0, table->columnAt(0));
  table->setCurrentIndex(row < 0 ? QModelIndex() : table->model()->index(row, column));
}

// A column without a heading is the mark of the row.
std::vector<listing::SheetColumn> SheetColumns(const GridTable& table, const Grid& grid) {
  std::vector<listing::SheetColumn> columns;
  for (const int column : table.ShownColumns()) {
    const QString shown = table.model()->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    if (!shown.isEmpty() && !grid.Cell(0, column).empty()) columns.push_back({column, FromQt(shown)});
  }
  return columns;
}

void Export(Form& form, const GridTable& table, Grid& grid, const std::string& name) {
  form.ActLater(grid, [&grid, columns = SheetColumns(table, grid), name](Control&) {
    grid.screen().Guard([&] { listing::CopyFlexDataToExcel(grid.screen(), grid, columns, name); });
  });
}

}  // namespace

QTableView* MakeTable(Form& form, Grid& grid, const TableLook& look) {
  auto* table = Make<GridTable>();
  auto* model = Make<GridModel>(grid, look, table);
  DressTable(table);
  SetRowHeight(table);
  table->setModel(model);
  OfferColumns(table);
  form.Bind(grid, table, [table, model, &grid, columns = -1](Aspect aspect) mutable {
    if (aspect == Aspect::kRows) {
      if (columns >= 0) model->Reset();
      if (std::exchange(columns, grid.ColumnCount()) != grid.ColumnCount())
        ArrangeColumns(table, *model, grid);
    }
    if (aspect == Aspect::kState) table->viewport()->update();
    if (aspect == Aspect::kRows || aspect == Aspect::kSelection) DrawSelection(table, grid);
  });
  form.AddSizer([table, model, &grid] {
    SetRowHeight(table);
    MeasureColumns(table, *model, grid);
  });
  table->SetEmptyText(ToQt(look.empty));
  table->insert = Pressing(form, grid, look.insert);
  table->remove = Pressing(form, grid, look.remove);
  table->opens = grid.opens_rows();
  table->draw_selection = [table, &grid] { DrawSelection(table, grid); };
  table->export_rows = [&form, table, &grid, name = std::string(look.name)] {
    Export(form, *table, grid, name);
  };
  table->picked = [&form, &grid](int row) {
    form.ActLater(grid, [&grid, row](Control&) { grid.UserSelectRow(row + 1); });
  };
  table->opened = [&form, &grid](int row) {
    if (row >= 0) form.ActLater(grid, [&grid, row](Control&) { grid.UserOpenRow(row + 1); });
  };
  return table;
}

}  // namespace tarvane::desktop
