#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "screen/host.h"

namespace tarvane::printing {

// Writes the lines (each may hold line ends) into test.pdf in the program folder, wrapped, on as many pages
// as they need, and shows it. Where the file can't be written the worker is told. Faults where nothing can
// show it.
void ShowHeadPdf(Host& host, const std::filesystem::path& folder, const std::vector<std::string>& lines);

}  // namespace tarvane::printing
