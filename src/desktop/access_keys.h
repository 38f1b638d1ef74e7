#pragma once

class QWidget;

namespace tarvane::desktop {

// Gives each letter to one of what can be seen in the window: the menus first, then buttons and captions in
// reading order. What comes second gets another letter of its text, or none.
void MakeAccessKeysUnique(QWidget& window);

}  // namespace tarvane::desktop
