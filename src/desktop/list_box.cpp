#include <QAbstractListModel>
#include <QHeaderView>
#include <QKeyEvent>

#include "desktop/list_views.h"
#include "desktop/make.h"
#include "desktop/picking_view.h"
#include "desktop/row_table.h"
#include "desktop/text.h"
#include "desktop/theme.h"

namespace tarvane::desktop {
namespace {

// Entries of a list, made as they are drawn.
class EntryModel : public QAbstractListModel {
 public:
  EntryModel(const ListBox& list, QObject* parent) : QAbstractListModel(parent), list_(&list) { Reset(); }
  void Reset() {
    beginResetModel();
    rows_ = list_->EntryCount();
    endResetModel();
  }
  int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : rows_; }
  // An entry that can't be read is drawn empty: painting is no place for a message.
  QVariant data(const QModelIndex& index, int role) const override {
    if (role != Qt::DisplayRole || index.row() >= rows_) return {};
    try {
      return ToQt(list_->Entry(index.row())).simplified();
    } catch (const std::exception&) {
      return {};
    }
  }

 private:
  const ListBox* list_;
  int rows_ = 0;
};

// One column without a heading, so that a million entries cost what ten do.
class EntryList : public PickingView<RowTable> {
 public:
  EntryList() {
    horizontalHeader()->hide();
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    horizontalHeader()->setStretchLastSection(true);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setShowGrid(false);
    setWordWrap(false);
  }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    const int before = currentIndex().row();
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
      opened(before);
      return;
    }
    const int rows = model()->rowCount();
    if ((event->key() == Qt::Key_Home || event->key() == Qt::Key_End) && rows > 0) {
      setCurrentIndex(model()->index(event->key() == Qt::Key_Home ? 0 : rows - 1, 0));
    } else {
      RowTable::keyPressEvent(event);
    }
    if (currentIndex().row() != before) picked(currentIndex().row());
  }
};

}  // namespace

QWidget* MakeListBox(Form& form, ListBox& list) {
  auto* view = Make<EntryList>();
  auto* model = Make<EntryModel>(list, view);
  view->setModel(model);
  form.AddSizer([view] {
    view->verticalHeader()->setMinimumSectionSize(Quarters(5));
    view->verticalHeader()->setDefaultSectionSize(Quarters(5));
    view->doItemsLayout();
  });
  form.Bind(list, view, [view, model, &list](Aspect aspect) {
    if (aspect == Aspect::kEntries) model->Reset();
    if (aspect != Aspect::kEntries && aspect != Aspect::kSelection) return;
    view->setCurrentIndex(list.selected() < 0 ? QModelIndex() : model->index(list.selected()));
  });
  view->picked = [&form, &list](int entry) {
    form.ActLater(list, [&list, entry](Control&) { list.UserPick(entry); });
  };
  view->opened = [&form, &list](int entry) {
    form.ActLater(list, [&list, entry](Control&) { list.UserOpen(entry); });
  };
  return view;
}

}  // namespace tarvane::desktop
