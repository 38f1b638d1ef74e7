#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "paper/surface.h"
#include "rich_text/document.h"
#include "screen/host.h"
#include "screen/screen.h"

namespace tarvane::printing {

// Twips. What is previewed has a little more room than what is printed, and always had.
struct Margins {
  double left = 0;
  double top = 0;
  double right = 0;
  double bottom = 0;
};
inline constexpr Margins kPreviewMargins = {1400, 1400, 1400, 1400};
inline constexpr Margins kLetterMargins = {1440, 1440, 1440, 1440};
inline constexpr std::string_view kPrintLetter = "Print Letter";

// What the preview's print button says and does.
struct PreviewButton {
  std::string caption = "&Print";
  // Only where the caption is "Print Letter"; may be null. False where the worker cancelled it.
  std::function<bool()> print;
  std::string name;  // suggested for a PDF file, without its ending; "": "letter"
};

// Shows the pages of the text, on the sheet that the printer is set up for, above `opener`. The text must
// stay as it is meanwhile.
void PreviewRichText(Screen& opener, const rich_text::Document& text, const Margins& margins,
                     const PreviewButton& button);

// Prints it. False where the worker cancels, which is told. Faults where it can't be printed.
bool PrintRichText(Screen& screen, const rich_text::Document& text, const Margins& margins,
                   const PrintOrder& order);

}  // namespace tarvane::printing
