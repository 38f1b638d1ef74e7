#include <QAbstractListModel>
#include <QKeyEvent>
#include <QListView>

#include "desktop/list_views.h"
#include "desktop/make.h"
#include "desktop/picking_view.h"
#include "desktop/text.h"

namespace tarvane::desktop {
namespace {

// Entries of a list, drawn where they stand.
class EntryModel : public QAbstractListModel {
 public:
  EntryModel(const ListBox& list, QObject* parent) : QAbstractListModel(parent), list_(&list) { Reset(); }
  void Reset() {
    beginResetModel();
    rows_ = list_->EntryCount();
    endResetModel();
  }
  int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : rows_; }
  QVariant data(const QModelIndex& index, int role) const override {
    if (role != Qt::DisplayRole || index.row() >= rows_) return {};
    return ToQt(list_->Entry(index.row()));
  }

 private:
  const ListBox* list_;
  int rows_ = 0;
};

class EntryList : public PickingView<QListView> {
 protected:
  void keyPressEvent(QKeyEvent* event) override {
    const int before = currentIndex().row();
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
      opened(before);
      return;
    }
    QListView::keyPressEvent(event);
    if (currentIndex().row() != before) picked(currentIndex().row());
  }
};

}  // namespace

QWidget* MakeListBox(Form& form, ListBox& list) {
  auto* view = Make<EntryList>();
  auto* model = Make<EntryModel>(list, view);
  view->setModel(model);
  view->setUniformItemSizes(true);
  view->setEditTriggers(QAbstractItemView::NoEditTriggers);
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
