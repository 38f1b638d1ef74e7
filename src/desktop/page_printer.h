#pragma once

#include <vector>

#include "screen/host.h"

class QPrinter;
class QWidget;

namespace tarvane::desktop {

// Lets the worker choose the printer and the paper.
void AskForPrinter(QPrinter& printer, QWidget* parent);

}  // namespace tarvane::desktop
