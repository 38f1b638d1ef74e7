#pragma once

#include <QString>

#include "desktop/builders.h"

class QWidget;

// What is said of a widget when a page is read aloud.
namespace tarvane::desktop {

// All widgets in a piece, also those in layouts and in other widgets, in their order.
std::vector<QWidget*> WidgetsIn(const Piece& piece);

// Fields, memos, lists, tables: what has no text of its own that says what it is.
bool NeedsName(const QWidget& widget);

// Its name; one that it has stays. The unit follows it, whichever comes first.
void SetReaderName(QWidget* widget, const QString& name);
void SetReaderUnit(QWidget* widget, const QString& unit);
// The heading under which it stands; the first one counts.
void SetReaderGroup(QWidget* widget, const QString& heading);
// What is wrong with its text: told by readers and as its tip, and marked by the style. "": nothing.
void SetFault(QWidget* widget, const QString& fault);
bool HasFault(const QWidget& widget);

// The fields of `piece` go by `heading`: as their name where they have none, else as their group.
void NameAll(const Piece& piece, const QString& heading);
// A short text names the unnamed field right after it, beside or below.
void NameByTexts(const Pieces& pieces);

}  // namespace tarvane::desktop
