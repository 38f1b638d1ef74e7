#pragma once

#include <vector>

#include "screen/host.h"

class QPrinter;
class QWidget;

namespace tarvane::desktop {

// Prints pages of character columns in a fixed-width font, as large as the widest line and the longest page
// allow, at most 11 points. Faults where no printer is there to print on.
void PrintOn(QPrinter& printer, const std::vector<PrintedPage>& pages);

// Lets the worker choose the printer and the paper.
void AskForPrinter(QPrinter& printer, QWidget* parent);

}  // namespace tarvane::desktop
