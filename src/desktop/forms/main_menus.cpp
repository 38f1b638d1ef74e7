#include <QActionGroup>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>
#include <map>

#include "app/commands.h"
#include "app/main_screen.h"
#include "desktop/fields.h"
#include "desktop/forms/main_form.h"
#include "desktop/icons.h"
#include "desktop/text.h"
#include "desktop/theme.h"

namespace tarvane {
namespace {

// Commands that belong together stand together on the toolbar.
constexpr std::string_view kGroupStarts[] = {"Order", "Payment", "Estimate", "Cdatabase"};

void ChooseScheme(QMenu* menu) {
  auto* group = std::make_unique<QActionGroup>(menu).release();
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
  auto* menu = std::make_unique<QMenu>("&View", &bar).release();
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
}

// Keys of the desktop's own, for what a shop does all day.
constexpr std::pair<std::string_view, const char*> kKeys[] = {{"munNew2", "Ctrl+N"},
                                                              {"Save Records", "Ctrl+S"},
                                                              {"MuuNextRec", "Alt+PgDown"},
                                                              {"MnuPrevRec", "Alt+PgUp"}};

void AddKey(const Command& command, QAction* action) {
  for (const auto& [name, keys] : kKeys) {
    if (name == command.name) action->setShortcut(QKeySequence(keys));
  }
}

}  // namespace

void FillMenus(Form& form, MainScreen& screen, QMenuBar& bar) {
  std::map<std::string_view, QMenu*> menus;
  QAction* help = nullptr;
  for (const Command& command : Commands()) {
    const bool is_menu = command.kind == Button::Kind::kMenu;
    if (!is_menu && command.kind != Button::Kind::kMenuEntry) continue;
    Button& button = screen.CommandButton(command.name, command.index);
    QMenu* parent = command.parent.empty() ? nullptr : menus.at(command.parent);
    if (is_menu) {
      QMenu* menu = parent == nullptr ? bar.addMenu(QString()) : parent->addMenu(QString());
      menus[command.name] = menu;
      BindAction(form, button, menu->menuAction());
      help = menu->menuAction();
    } else {
      QAction* action = parent->addAction(QString());
      BindAction(form, button, action);
      AddKey(command, action);
    }
  }
  AddViewMenu(form, bar, help);
}

void FillToolBar(Form& form, MainScreen& screen, QToolBar& bar) {
  bar.setMovable(false);
  bar.setContextMenuPolicy(Qt::PreventContextMenu);
  bar.setToolButtonStyle(Qt::ToolButtonIconOnly);
  form.AddSizer([&bar] { bar.setIconSize(QSize(Quarters(6), Quarters(6))); });
  for (const Command& command : Commands()) {
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
}

}  // namespace tarvane
