#pragma once

#include <string>
#include <vector>

#include "pdf/tqr_pdf.h"

namespace tarvane::pdf {

// Calls an operation as a script writes it: its name and its arguments, parted by blanks. A text stands in
// quotes; "@name" is a sample image, "~" a line end. Arguments at the end may be left out for 0 or an empty
// text; "Fonts" loads the fonts. What faults gives a line "fault: ...".
std::string Call(tqrPDF& document, const std::string& line);

// The cases of a file of golden/: a line "== name", and calls behind "> ".
struct ScriptCase {
  std::string name;
  std::vector<std::string> calls;
};
std::vector<ScriptCase> ReadScript(const std::string& file);

}  // namespace tarvane::pdf
