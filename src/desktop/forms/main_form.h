#pragma once

#include "desktop/builders.h"

class QAction;
class QMenuBar;
class QToolBar;

namespace tarvane::app {
class MainScreen;
}

namespace tarvane::desktop {

// Parts of the main window.

// In the worker's settings: whether what is still to come is shown.
inline constexpr char kShowsToCome[] = "shows_to_come";

// Menus with the names that the command table gives; `&View` for the looks of the windows is the desktop's
// own.
void FillMenus(Form& form, app::MainScreen& screen, QMenuBar& bar);
void FillToolBar(Form& form, app::MainScreen& screen, QToolBar& bar);

Piece FinderPanel(Builder& build, app::MainScreen& screen);
Piece JobPanel(Builder& build, app::MainScreen& screen);
Piece CustomerPage(Builder& build, app::MainScreen& screen);
Piece SinglesPage(Builder& build, app::MainScreen& screen);
Piece RoomsPage(Builder& build, app::MainScreen& screen);
Piece HistoryPage(Builder& build, app::MainScreen& screen);
Piece TotalsStrip(Builder& build, app::MainScreen& screen);

}  // namespace tarvane::desktop
