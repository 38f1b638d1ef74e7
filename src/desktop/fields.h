#pragma once

#include "desktop/form.h"

class QAction;
class QComboBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;

namespace tarvane::desktop {

// Widgets for the controls of a form, bound both ways. They have no parent yet; the layout that takes them
// gives them one.
// `mirror`: where the screen disables it, it is only read.
QLineEdit* MakeLineEdit(Form& form, TextField& field, bool mirror = false);
QPlainTextEdit* MakeMemo(Form& form, TextField& field, char line_mark);
QComboBox* MakeDropDown(Form& form, DropDownList& list);
QWidget* MakeTickBox(Form& form, TickBox& box);
// A property of the widget that says whether the button is its window's strong one.
inline constexpr char kStrongButton[] = "strong";
QWidget* MakeButton(Form& form, Button& button, bool strong);
QWidget* MakeLabel(Form& form, Label& label);
QWidget* MakeCalendar(Form& form, Calendar& calendar);

// A menu entry or a toolbar button. Its caption's F-key becomes its shortcut.
QAction* BindAction(Form& form, Button& button, QAction* action);

// Sets the palette role in which a label is written, also after the colours changed.
void WriteQuietly(QWidget* label);

}  // namespace tarvane::desktop
