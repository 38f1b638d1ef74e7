#include <QApplication>
#include <QBoxLayout>
#include <QKeyEvent>
#include <QScrollArea>
#include <QShortcut>
#include <QStackedLayout>
#include <QTabBar>
#include <algorithm>

#include "desktop/builders.h"
#include "desktop/make.h"
#include "desktop/readers.h"
#include "desktop/text.h"
#include "desktop/theme.h"

namespace tarvane::desktop {
namespace {

// Tabs that ask before they move: the screen decides whether another one is selected.
class AskingTabBar : public QTabBar {
 public:
  std::function<void(int)> asked;

 protected:
  void mousePressEvent(QMouseEvent* event) override {
    const int tab = tabAt(event->position().toPoint());
    setFocus(Qt::MouseFocusReason);
    if (event->button() == Qt::LeftButton && tab >= 0) asked(tab);
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
  auto* bar = Make<AskingTabBar>();
  bar->setDocumentMode(true);
  bar->setDrawBase(true);
  bar->setExpanding(false);
  bar->setElideMode(Qt::ElideNone);
  bar->setUsesScrollButtons(true);
  bar->setFocusPolicy(Qt::TabFocus);
  bar->setAccessibleName("Pages");
  for (const std::string& caption : tabs.captions()) bar->addTab(ToQt(caption).trimmed().replace("&", "&&"));
  for (int tab = 0; tab < static_cast<int>(tabs.tips().size()); ++tab) {
    bar->setTabToolTip(tab, ToQt(tabs.tips()[static_cast<std::size_t>(tab)]));
  }
  Form& form = *form_;
  bar->asked = [&form, &tabs](int tab) {
    form.ActLater(tabs, [&tabs, tab](Control& control) {
      control.UserFocus();
      tabs.UserSelect(tab);
    });
  };
  // A reader's press moves the bar without asking; the screen is asked now.
  QObject::connect(bar, &QTabBar::currentChanged, &form, [bar, &tabs](int tab) {
    if (tab == tabs.selected()) return;
    const QSignalBlocker quiet(bar);
    bar->setCurrentIndex(tabs.selected());
    bar->asked(tab);
  });
  form.Bind(tabs, bar, [bar, &tabs, show = std::move(show)](Aspect aspect) {
    if (aspect != Aspect::kSelection) return;
    bar->setCurrentIndex(tabs.selected());
    show(tabs.selected());
  });
  return {bar};
}

namespace {

constexpr char kHasPageKeys[] = "has_page_keys";

void AddPageKeys(Form& form, TabStrip& tabs, const QWidget* pages) {
  // Tabs within a page leave the keys to those around them.
  if (form.window()->property(kHasPageKeys).toBool()) return;
  form.window()->setProperty(kHasPageKeys, true);
  const int count = std::min(9, static_cast<int>(tabs.captions().size()));
  for (int tab = 0; tab < count; ++tab) {
    const QKeySequence keys(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + tab));
    auto* shortcut = Make<QShortcut>(keys, form.window());
    QObject::connect(shortcut, &QShortcut::activated, &form, [&form, &tabs, pages, tab] {
      if (!pages->isVisible()) return;
      form.Act(tabs, [&tabs, tab](Control& control) {
        control.UserFocus();
        tabs.UserSelect(tab);
      });
    });
  }
}

// What comes into a window that is shown already comes last for Tab, wherever it stands: it is to follow the
// tabs.
void PutAfter(QWidget* bar, const QWidget* page) {
  std::vector<QWidget*> fields;
  for (QWidget* each = bar->nextInFocusChain(); each != bar; each = each->nextInFocusChain()) {
    const bool stops = each->focusPolicy() != Qt::NoFocus && each->focusProxy() == nullptr;
    if (stops && page->isAncestorOf(each)) fields.push_back(each);
  }
  QWidget* before = bar;
  for (QWidget* field : fields) QWidget::setTabOrder(std::exchange(before, field), field);
}

}  // namespace

Piece Builder::Pages(TabStrip& tabs, std::vector<PageBuilder> pages, const Piece& beside) {
  auto* holder = Make<QWidget>();
  auto* stack = Make<QStackedLayout>(holder);
  for (std::size_t page = 0; page < pages.size(); ++page) {
    stack->addWidget(Make<QWidget>());
  }
  AddPageKeys(*form_, tabs, holder);
  const auto tab_bar = std::make_shared<QWidget*>(nullptr);  // once there is one
  const auto build = [this_builder = *this, &tabs, tab_bar, stack,
                      pages = std::move(pages)](int page) mutable {
    if (page < 0 || page >= static_cast<int>(pages.size())) return;
    const PageBuilder make = std::exchange(pages[static_cast<std::size_t>(page)], nullptr);
    if (!make) return;
    const Piece content = make();
    NameAll(content, ToQt(tabs.captions()[static_cast<std::size_t>(page)]).trimmed());
    stack->widget(page)->setLayout(this_builder.Column({content.Grow()}).layout);
    stack->widget(page)->layout()->setContentsMargins(0, 0, 0, 0);
    if (*tab_bar != nullptr) PutAfter(*tab_bar, stack->widget(page));
  };
  const auto shared = std::make_shared<std::function<void(int)>>(build);
  form_->AddLater([shared, stack] {
    for (int page = 0; page < stack->count(); ++page) (*shared)(page);
  });
  const Piece bar = Tabs(tabs, [shared, stack](int page) {
    (*shared)(page);
    stack->setCurrentIndex(page);
  });
  *tab_bar = bar.widget;
  const Piece page{holder, nullptr, 3};
  const bool alone = beside.widget == nullptr && beside.layout == nullptr;
  return Column({bar, alone ? page : Row({page, beside}, 3).Grow()}, alone ? 0 : 1).Grow();
}

}  // namespace tarvane::desktop
