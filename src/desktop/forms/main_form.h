#pragma once

#include "desktop/builders.h"

class QAction;
class QMenuBar;
class QToolBar;

namespace tarvane {

class MainScreen;

// Parts of the main window.

// Menus with the names that the command table gives; `&View` for the looks of the windows is the desktop's
// own.
void FillMenus(Form& form, MainScreen& screen, QMenuBar& bar);
void FillToolBar(Form& form, MainScreen& screen, QToolBar& bar);

Piece FinderPanel(Builder& build, MainScreen& screen);
Piece JobPanel(Builder& build, MainScreen& screen);
Piece CustomerPage(Builder& build, MainScreen& screen);
Piece SinglesPage(Builder& build, MainScreen& screen);
Piece RoomsPage(Builder& build, MainScreen& screen);
Piece HistoryPage(Builder& build, MainScreen& screen);
Piece TotalsStrip(Builder& build, MainScreen& screen);

}  // namespace tarvane
