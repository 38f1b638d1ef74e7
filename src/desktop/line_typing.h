#pragma once

#include <functional>

class QLineEdit;
class QWidget;

namespace tarvane {
class TextField;
}

namespace tarvane::desktop {

// What a line does while it is typed into. `holder` is the line itself, or the drop-down list that it is
// part of.

// Shows the field's text. The typed text stays while a rule only writes the same number in another way, until
// the line has lost the focus. A text that a rule has put in place of the typed one is selected as a whole.
// `before` runs ahead of the text being put in, and may change it.
void DrawLine(const QWidget* holder, QLineEdit* edit, const TextField& field,
              const std::function<void()>& before = {});

// Line ends that are pasted or dropped into the line become blanks.
void KeepOneLine(QLineEdit* edit);

// While the line holds something else than a number it says so. Nothing is said of an empty line.
void AskForNumber(QWidget* holder, QLineEdit* edit);

}  // namespace tarvane::desktop
