#include <QAbstractListModel>
#include <QListView>
#include <QSlider>

#include "desktop/builders.h"
#include "desktop/make.h"
#include "desktop/page_widget.h"
#include "desktop/picking_view.h"
#include "desktop/readers.h"
#include "desktop/text.h"
#include "desktop/theme.h"

// What a form shows pages with.
namespace tarvane::desktop {
namespace {

// Captions of tabs, read as they are drawn.
class TabModel : public QAbstractListModel {
 public:
  TabModel(const TabStrip& tabs, QObject* parent) : QAbstractListModel(parent), tabs_(&tabs) { Reset(); }
  void Reset() {
    beginResetModel();
    rows_ = static_cast<int>(tabs_->captions().size());
    endResetModel();
  }
  int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : rows_; }
  QVariant data(const QModelIndex& index, int role) const override {
    const auto row = static_cast<std::size_t>(index.row());
    if (role != Qt::DisplayRole || row >= tabs_->captions().size()) return {};
    return ToQt(tabs_->captions()[row]);
  }

 private:
  const TabStrip* tabs_;
  int rows_ = 0;
};

class TabList : public PickingView<QListView> {
 public:
  TabList() {
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setAccessibleName("Pages");
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored);
    opened = [](int) {};
  }

 protected:
  void keyPressEvent(QKeyEvent* event) override {
    const int before = currentIndex().row();
    QListView::keyPressEvent(event);
    if (currentIndex().row() != before) picked(currentIndex().row());
  }
};

Button* ButtonOf(const PageSteps& steps, PageWidget::Step step) {
  switch (step) {
    case PageWidget::Step::kFirst:
      return steps.first;
    case PageWidget::Step::kPrevious:
      return steps.previous;
    case PageWidget::Step::kNext:
      return steps.next;
    case PageWidget::Step::kLast:
      return steps.last;
    case PageWidget::Step::kZoomIn:
      return steps.zoom_in;
    case PageWidget::Step::kZoomOut:
      return steps.zoom_out;
  }
  return nullptr;
}

}  // namespace

Piece Builder::Page(PageView& view, const PageSteps& steps) {
  auto* made = Make<PageWidget>(view);
  Form& form = *form_;
  // The focus stays with the page.
  made->asked = [&form, steps](PageWidget::Step step) {
    Button* button = ButtonOf(steps, step);
    if (button != nullptr) form.Act(*button, [button](Control&) { button->Press(); });
  };
  form.Bind(view, made, [made](Aspect aspect) {
    if (aspect == Aspect::kText || aspect == Aspect::kState) made->Follow();
  });
  return {made, nullptr, 1};
}

Piece Builder::PageStrip(TabStrip& tabs) {
  auto* list = Make<TabList>();
  auto* model = Make<TabModel>(tabs, list);
  list->setModel(model);
  Form& form = *form_;
  form.AddSizer([list] { list->setFixedWidth(Digits(14)); });
  list->picked = [&form, &tabs](int tab) {
    form.ActLater(tabs, [&tabs, tab](Control& control) {
      control.UserFocus();
      tabs.UserSelect(tab);
    });
  };
  form.Bind(tabs, list, [list, model, &tabs](Aspect aspect) {
    if (aspect == Aspect::kEntries) model->Reset();
    if (aspect == Aspect::kEntries || aspect == Aspect::kSelection) {
      list->setCurrentIndex(model->index(tabs.selected()));
    }
  });
  return {list};
}

Piece Builder::Slide(Slider& slider) {
  auto* made = Make<QSlider>(Qt::Horizontal);
  Form& form = *form_;
  form.AddSizer([made] { made->setMinimumWidth(Digits(12)); });
  form.Bind(slider, made, [made, &slider](Aspect aspect) {
    const QSignalBlocker quiet(made);
    if (aspect == Aspect::kEntries) {
      made->setRange(slider.least(), slider.most());
      made->setPageStep(std::max(1, (slider.most() - slider.least()) / 10));
    }
    if (aspect == Aspect::kEntries || aspect == Aspect::kState) made->setValue(slider.value());
  });
  QObject::connect(made, &QSlider::valueChanged, &form, [&form, &slider](int value) {
    form.Act(slider, [&slider, value](Control&) { slider.UserMove(value); });
  });
  return {made, nullptr, 1};
}

}  // namespace tarvane::desktop
