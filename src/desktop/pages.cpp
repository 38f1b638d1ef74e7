#include <QApplication>
#include <QBoxLayout>
#include <QKeyEvent>
#include <QScrollArea>
#include <QStackedLayout>
#include <QTabBar>

#include "desktop/builders.h"
#include "desktop/text.h"
#include "desktop/theme.h"

namespace tarvane {
namespace {

// Tabs that ask before they move: the screen decides whether another one is selected.
class AskingTabBar : public QTabBar {
 public:
  std::function<void(int)> asked;

 protected:
  void mousePressEvent(QMouseEvent* event) override {
    const int tab = tabAt(event->position().toPoint());
    setFocus(Qt::MouseFocusReason);
    if (event->button() == Qt::LeftButton && tab >= 0 && tab != currentIndex()) asked(tab);
  }
  void keyPressEvent(QKeyEvent* event) override {
    const int step = event->key() == Qt::Key_Right ? 1 : event->key() == Qt::Key_Left ? -1 : 0;
    if (step == 0) return QTabBar::keyPressEvent(event);
    const int tab = currentIndex() + step;
    if (tab >= 0 && tab < count()) asked(tab);
  }
  void wheelEvent(QWheelEvent* event) override { event->ignore(); }
};

}  // namespace

Piece Builder::Tabs(TabStrip& tabs, std::function<void(int)> show) {
  auto* bar = std::make_unique<AskingTabBar>().release();
  bar->setDocumentMode(true);
  bar->setDrawBase(true);
  bar->setExpanding(false);
  bar->setElideMode(Qt::ElideNone);
  bar->setUsesScrollButtons(true);
  bar->setFocusPolicy(Qt::TabFocus);
  for (const std::string& caption : tabs.captions()) bar->addTab(ToQt(caption).trimmed().replace("&", "&&"));
  Form& form = *form_;
  bar->asked = [&form, &tabs](int tab) {
    form.ActLater(tabs, [&tabs, tab](Control& control) {
      control.UserFocus();
      tabs.UserSelect(tab);
    });
  };
  form.Bind(tabs, bar, [bar, &tabs, show = std::move(show)](Aspect aspect) {
    if (aspect != Aspect::kSelection) return;
    bar->setCurrentIndex(tabs.selected());
    show(tabs.selected());
  });
  return {bar};
}

Piece Builder::Pages(TabStrip& tabs, std::vector<PageBuilder> pages, const Piece& beside) {
  auto* holder = std::make_unique<QWidget>().release();
  auto* stack = std::make_unique<QStackedLayout>(holder).release();
  for (std::size_t page = 0; page < pages.size(); ++page) {
    stack->addWidget(std::make_unique<QWidget>().release());
  }
  const auto build = [this_builder = *this, stack, pages = std::move(pages)](int page) mutable {
    if (page < 0 || page >= static_cast<int>(pages.size())) return;
    const PageBuilder make = std::exchange(pages[static_cast<std::size_t>(page)], nullptr);
    if (!make) return;
    const Piece content = make();
    stack->widget(page)->setLayout(this_builder.Column({content.Grow()}).layout);
    stack->widget(page)->layout()->setContentsMargins(0, 0, 0, 0);
  };
  const auto shared = std::make_shared<std::function<void(int)>>(build);
  form_->AddLater([shared, stack] {
    for (int page = 0; page < stack->count(); ++page) (*shared)(page);
  });
  const Piece bar = Tabs(tabs, [shared, stack](int page) {
    (*shared)(page);
    stack->setCurrentIndex(page);
  });
  const Piece page{holder, nullptr, 3};
  const bool alone = beside.widget == nullptr && beside.layout == nullptr;
  return Column({bar, alone ? page : Row({page, beside}, 3).Grow()}, alone ? 0 : 1).Grow();
}

}  // namespace tarvane
