#include "desktop/forms/main_form.h"

#include <QBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTableView>
#include <QToolBar>

#include "app/main_screen.h"
#include "desktop/forms/forms.h"
#include "desktop/theme.h"
#include "desktop/windows.h"

namespace tarvane {
namespace {

QWidget* Filled(Builder& build, const Piece& piece) {
  auto* widget = std::make_unique<QWidget>().release();
  widget->setLayout(build.Column({piece.Grow()}).layout);
  widget->layout()->setContentsMargins(0, 0, 0, 0);
  return widget;
}

// The finder, and in its place the job once one is open.
void FollowMode(Form& form, MainScreen& screen, QStackedWidget* stack) {
  const auto build_job = [&form, &screen, stack] {
    if (stack->count() > 1) return;
    Builder build(form);
    stack->addWidget(Filled(build, JobPanel(build, screen)));
  };
  form.AddLater(build_job);
  form.Follow([&form, &screen, stack, build_job] {
    const int page = screen.in_job_mode() ? 1 : 0;
    if (page == 1) build_job();
    if (stack->currentIndex() == page) return;
    stack->setCurrentIndex(page);
    const Control& first = page == 1 ? static_cast<Control&>(screen.Name) : screen.QuickFinderGrid;
    if (auto* widget = qobject_cast<QWidget*>(form.WidgetOf(first))) widget->setFocus(Qt::TabFocusReason);
  });
}

}  // namespace

void BuildMainForm(Form& form) {
  auto& screen = static_cast<MainScreen&>(form.screen());
  auto* window = static_cast<MainWindow*>(form.window());
  Builder build(form);
  FillMenus(form, screen, *window->menuBar());
  auto* tools = std::make_unique<QToolBar>().release();
  FillToolBar(form, screen, *tools);
  window->addToolBar(tools);

  auto* stack = std::make_unique<QStackedWidget>().release();
  stack->addWidget(Filled(build, FinderPanel(build, screen)));
  window->setCentralWidget(stack);
  const Piece message = build.Text(screen.Label8[0]);
  window->statusBar()->setContentsMargins(Quarters(2), 0, 0, 0);
  window->statusBar()->addWidget(message.widget, 1);
  FollowMode(form, screen, stack);
}

}  // namespace tarvane
