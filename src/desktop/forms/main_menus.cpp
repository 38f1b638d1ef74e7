#include <QActionGroup>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QSettings>
#include <QToolBar>
#include <QToolButton>
#include <map>

#include "app/commands.h"
#include "app/main_screen.h"
#include "desktop/fields.h"
#include "desktop/forms/form_window.h"
#include "desktop/forms/main_form.h"
#include "desktop/icons.h"
#include "desktop/make.h"
#include "desktop/text.h"
#include "desktop/theme.h"

namespace tarvane::desktop {
namespace {

// Commands that belong together stand together on the toolbar.
constexpr std::string_view kGroupStarts[] = {"Order", "Payment", "Estimate", "Cdatabase"};

void ChooseScheme(QMenu* menu) {
  auto* group = Make<QActionGroup>(menu);
  constexpr std::pair<const char*, ColourScheme> kSchemes[] = {
      {"Colours of the &system", ColourScheme::kSystem},
      {"&Light", ColourScheme::kLight},
      {"&Dark", ColourScheme::kDark},
  };
  for (const auto& [caption, scheme] : kSchemes) {
    QAction* action = menu->addAction(caption);
    action->setCheckable(true);
    action->setChecked(CurrentTheme().scheme == scheme);
    group->addAction(action);
    QObject::connect(action, &QAction::triggered, menu, [scheme = scheme] {
      Theme theme = CurrentTheme();
      theme.scheme = scheme;
      ApplyTheme(theme);
      SaveTheme(theme);
    });
  }
}

void AddViewMenu(Form& form, QMenuBar& bar, QAction* before) {
  auto* menu = Make<QMenu>("&View", &bar);
  bar.insertMenu(before, menu);
  // The keys themselves are at work in every window.
  const auto size = [&](const char* caption, int step) {
    QObject::connect(menu->addAction(caption), &QAction::triggered, &form, [&form, step] {
      Theme theme = CurrentTheme();
      theme.text_size = step == 0 ? Theme::kUsualTextSize : theme.text_size + step;
      ApplyTheme(theme);
      form.Resize();
      SaveTheme(CurrentTheme());
    });
  };
  size("L&arger text\tCtrl++", 1);
  size("S&maller text\tCtrl+-", -1);
  size("&Usual text\tCtrl+0", 0);
  menu->addSeparator();
  ChooseScheme(menu);
  menu->addSeparator();
  QAction* to_come = menu->addAction("What is to &come");
  to_come->setCheckable(true);
  to_come->setChecked(Form::shows_to_come());
  QObject::connect(to_come, &QAction::toggled, &form, [](bool shown) {
    Form::SetShowsToCome(shown);
    QSettings().setValue(kShowsToCome, shown);
  });
}

// The way back to what was last saved, also where nothing can be saved.
void AddDiscard(Form& form, app::MainScreen& screen, QMenu& menu, QAction* before) {
  auto* action = Make<QAction>("&Discard changes...", &menu);
  menu.insertAction(before, action);
  const auto waits = [&screen] {
    return screen.in_job_mode() && screen.Data1.HasRow() && screen.Data1.rows().IsEditing();
  };
  form.Follow([action, waits] {
    action->setEnabled(waits());
    action->setToolTip(action->isEnabled() ? QString() : QString("Nothing has been changed."));
  });
  QObject::connect(action, &QAction::triggered, &form, [&form, &screen, waits] {
    if (!waits()) return;
    form.Act(screen.Name, [&screen](Control&) {
      const std::string name = screen.Name.empty() ? "this job" : screen.Name.text();
      if (!screen.AskYesNo("Discard changes",
                           "What was typed for " + name + " since the last save will be lost. Discard it?",
                           Answer::kNo, Icon::kWarning)) {
        return;
      }
      screen.DiscardChanges();
    });
  });
}

// A file in which damage was seen is only read until the worker says otherwise.
void AddWriteAllTheSame(Form& form, app::MainScreen& screen, QMenu& menu, QAction* before) {
  auto* action = Make<QAction>("&Write to the damaged file...", &menu);
  menu.insertAction(before, action);
  // Asking for the database opens nothing here: without it there is no row set.
  const auto damaged = [&screen] {
    return screen.Data1.rows().IsOpen() && screen.shop().database().damaged();
  };
  form.Follow([action, damaged] { action->setVisible(damaged()); });
  QObject::connect(action, &QAction::triggered, &form, [&form, &screen, damaged] {
    if (!damaged()) return;
    form.Act(screen.Name, [&screen](Control&) {
      const bool write = screen.AskYesNo("Write to the damaged file",
                                         "The file of the jobs is damaged, so Tarvane only reads it. Writing "
                                         "to it can make the damage worse. "
                                         "Copy the shop's folder first. Write all the same?",
                                         Answer::kNo, Icon::kWarning);
      if (write) screen.shop().database().AllowWriting();
    });
  });
}

// A menu without an entry that can be seen is no menu.
void HideEmptyMenus(Form& form, const std::vector<std::pair<QMenu*, Button*>>& menus) {
  form.Follow([menus] {
    // Those that stand in others come later in the table.
    for (auto at = menus.rbegin(); at != menus.rend(); ++at) {  // NOLINT(modernize-loop-convert)
      const auto& [menu, button] = *at;
      const QList<QAction*> entries = menu->actions();
      const bool any = std::ranges::any_of(
          entries, [](const QAction* entry) { return entry->isVisible() && !entry->isSeparator(); });
      QAction* action = menu->menuAction();
      if (action->isVisible() != (any && button->shown())) action->setVisible(!action->isVisible());
    }
  });
}

// Lines between groups of tools, none of which is empty.
void TidySeparators(Form& form, QToolBar& bar) {
  form.Follow([&bar] {
    QAction* line = nullptr;
    bool any = false;
    for (QAction* action : bar.actions()) {
      if (!action->isSeparator()) {
        any = any || action->isVisible();
        if (line != nullptr && action->isVisible()) {
          line->setVisible(true);
          line = nullptr;
        }
        continue;
      }
      action->setVisible(false);
      if (any) line = action;
    }
  });
}

// Keys of the desktop's own, for what a shop does all day.
constexpr std::pair<std::string_view, const char*> kKeys[] = {{"munNew2", "Ctrl+N"},
                                                              {"Save Records", "Ctrl+S"},
                                                              {"munPrint", "Ctrl+P"},
                                                              {"MuuNextRec", "Alt+PgDown"},
                                                              {"MnuPrevRec", "Alt+PgUp"}};

void AddKey(const app::Command& command, QAction* action) {
  for (const auto& [name, keys] : kKeys) {
    if (name == command.name) action->setShortcut(QKeySequence(keys));
  }
}

}  // namespace

void FillMenus(Form& form, app::MainScreen& screen, QMenuBar& bar) {
  std::map<std::string_view, QMenu*> menus;
  std::vector<std::pair<QMenu*, Button*>> all;
  QAction* help = nullptr;
  for (const app::Command& command : app::Commands()) {
    const bool is_menu = command.kind == Button::Kind::kMenu;
    if (!is_menu && command.kind != Button::Kind::kMenuEntry) continue;
    Button& button = screen.CommandButton(command.name, command.index);
    QMenu* parent = command.parent.empty() ? nullptr : menus.at(command.parent);
    if (is_menu) {
      QMenu* menu = parent == nullptr ? bar.addMenu(QString()) : parent->addMenu(QString());
      menu->setToolTipsVisible(true);
      menus[command.name] = menu;
      all.emplace_back(menu, &button);
      BindAction(form, button, menu->menuAction());
      help = menu->menuAction();
    } else {
      QAction* action = parent->addAction(QString());
      BindAction(form, button, action);
      AddKey(command, action);
      if (command.name == "munPrint") {
        AddDiscard(form, screen, *parent, action);
        AddWriteAllTheSame(form, screen, *parent, action);
      }
    }
  }
  AddViewMenu(form, bar, help);
  for (const char* name : {"MuuNextRec", "MnuPrevRec"}) {
    SayWhyOff(form, screen.CommandButton(name), "Open a job first.");
  }
  HideEmptyMenus(form, all);
}

void FillToolBar(Form& form, app::MainScreen& screen, QToolBar& bar) {
  bar.setMovable(false);
  bar.setContextMenuPolicy(Qt::PreventContextMenu);
  bar.setToolButtonStyle(Qt::ToolButtonIconOnly);
  form.AddSizer([&bar] { bar.setIconSize(QSize(Quarters(6), Quarters(6))); });
  for (const app::Command& command : app::Commands()) {
    if (command.kind != Button::Kind::kToolButton) continue;
    if (std::ranges::find(kGroupStarts, command.name) != std::end(kGroupStarts)) bar.addSeparator();
    Button& button = screen.CommandButton(command.name, command.index);
    QAction* action = bar.addAction(MakeIcon(command.name), QString());
    action->setToolTip(ToQt(command.tip).trimmed());
    action->setIconText(action->toolTip());
    BindAction(form, button, action);
    AddKey(command, action);
    // Reached with Tab, while a click leaves the worker in her field.
    if (auto* tool = qobject_cast<QToolButton*>(bar.widgetForAction(action))) {
      tool->setFocusPolicy(Qt::TabFocus);
      tool->setAccessibleName(action->toolTip());
    }
  }
  form.Bind(screen.tbToolBar, &bar, nullptr);
  TidySeparators(form, bar);
}

}  // namespace tarvane::desktop
