#include "desktop/forms/main_form.h"

#include <QAction>
#include <QBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QSettings>
#include <QStackedWidget>
#include <QStatusBar>
#include <QToolBar>
#include <tuple>

#include "desktop/access_keys.h"
#include "desktop/forms/form_window.h"
#include "desktop/forms/forms.h"
#include "desktop/forms/message_line.h"
#include "desktop/make.h"
#include "desktop/shop_check.h"
#include "desktop/theme.h"
#include "desktop/windows.h"

namespace tarvane::desktop {
namespace {

QWidget* Filled(Builder& build, const Piece& piece) {
  auto* widget = Make<QWidget>();
  widget->setLayout(build.Column({piece.Grow()}).layout);
  widget->layout()->setContentsMargins(0, 0, 0, 0);
  return widget;
}

// The finder, and in its place the job once one is open.
void FollowMode(Form& form, app::MainScreen& screen, QStackedWidget* stack) {
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

// Ctrl+S and the toolbar's button answer where the worker sees it.
void SayWhenSaved(Form& form, app::MainScreen& screen, MessageLine* line) {
  auto* save = qobject_cast<QAction*>(form.WidgetOf(screen.CommandButton("Save Records")));
  QObject::connect(save, &QAction::triggered, line, [&screen, line] {
    if (screen.Data1.HasRow() && !screen.Data1.rows().IsEditing()) line->Say("Saved.");
  });
}

// A folder that may only be read is told as long as it is so.
Piece ReadingNote(Builder& build, const Shop& shop) {
  const std::string why = WhyOnlyReading(shop);
  if (why.empty()) return {};
  auto* note = qobject_cast<QLabel*>(build.Text(why).widget);
  note->setWordWrap(true);
  note->setAutoFillBackground(true);
  note->setBackgroundRole(QPalette::ToolTipBase);
  note->setMargin(Quarters(2));
  return {note};
}

// Letters of access keys are given anew as other things come into view.
void FollowAccessKeys(Form& form, app::MainScreen& screen) {
  form.Follow([&form, &screen, seen = std::tuple(-1, -1, -1, false)]() mutable {
    const std::tuple now(screen.in_job_mode() ? 1 : 0, screen.SSTab2.selected(), screen.SSTab1.selected(),
                         Form::shows_to_come());
    if (std::exchange(seen, now) != now) MakeAccessKeysUnique(*form.window());
  });
}

}  // namespace

void BuildMainForm(Form& form, app::MainScreen& screen) {
  auto* window = static_cast<MainWindow*>(form.window());
  Builder build(form);
  Form::SetShowsToCome(QSettings().value(kShowsToCome).toBool());
  FillMenus(form, screen, *window->menuBar());
  ClosesWindow(form, screen.CommandButton("munexit"));
  auto* tools = Make<QToolBar>();
  FillToolBar(form, screen, *tools);
  window->addToolBar(tools);

  auto* stack = Make<QStackedWidget>();
  stack->addWidget(Filled(build, FinderPanel(build, screen)));
  const Piece note = ReadingNote(build, screen.shop());
  window->setCentralWidget(
      note.widget == nullptr ? stack : Filled(build, build.Column({note, Piece{stack}.Grow()}, 0)));
  MessageLine* message = MakeMessageLine(form, screen.Label8[0]);
  window->statusBar()->setContentsMargins(Quarters(2), 0, 0, 0);
  window->statusBar()->addWidget(message, 1);
  SayWhenSaved(form, screen, message);
  FollowMode(form, screen, stack);
  FollowAccessKeys(form, screen);
}

}  // namespace tarvane::desktop
