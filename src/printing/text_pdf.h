#pragma once

#include <filesystem>
#include <string>

#include "rich_text/document.h"
#include "screen/host.h"

namespace tarvane::printing {

// Writes the words of the text, without its looks and pictures, as a PDF file of A4 pages: lines are wrapped,
// and the text goes on over new pages. Fonts are measured by the metric files in the program folder's
// "Fonts". Faults where the file can't be written. Gives the characters that have no place in it, each once;
// "?" stands for them.
std::string WriteTextPdf(Host& host, const std::filesystem::path& program_folder,
                         const std::filesystem::path& file, const rich_text::Document& text);

}  // namespace tarvane::printing
