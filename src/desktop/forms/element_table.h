#pragma once

#include <string_view>

#include "blinds/element_lines.h"
#include "desktop/builders.h"

namespace tarvane::desktop {

// The priced lines of an item as a table that is typed through: Tab leads to the next cell, Enter to the next
// line, Up and Down stay in the column, Ctrl+Delete empties a line. The totals stand in their column and
// follow; the grand total, behind its caption, ends it.
Piece ElementTable(Builder& build, blinds::ElementLines& lines, std::string_view heading,
                   std::string_view grand_total);

}  // namespace tarvane::desktop
