#pragma once

#include <filesystem>
#include <functional>
#include <string>

#include "paper/surface.h"
#include "text/day.h"

namespace tarvane::paper {

struct PdfInformation {
  std::string title;
  std::filesystem::path fonts;  // the folder of metric files
  std::function<DateTime()> now = LocalNow;
};

// Writes the pages as a PDF file in the standard fonts, with nothing in it that a reader has to repair. The
// file is there whole or not at all: what stood there before stays where it can't be written, which is a
// Fault. Gives the characters that the standard fonts lack, each once; "?" stands for them in the file.
std::string WritePdf(const Pages& pages, const std::filesystem::path& file,
                     const PdfInformation& information);

}  // namespace tarvane::paper
