#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <string_view>

#include "paper/surface.h"
#include "pdf/font_metrics.h"

namespace tarvane::paper {

// The standard font of PDF files that stands for a font: by words in its name.
std::string_view StandardFontOf(const Font& font);  // "Helvetica-BoldOblique"

// Measures by the font metric files of a folder, the same on every machine. Characters that the standard
// fonts lack are as wide as "?", which stands for them in the PDF files of this face. Without a metric file
// all characters are half as wide as the font is high.
class MetricMeasure : public Measure {
 public:
  explicit MetricMeasure(const std::filesystem::path& folder);

  Extent ExtentOf(const Font& font) override;
  double WidthOf(const Font& font, std::string_view text) override;

 private:
  pdf::FontFolder fonts_;
};

}  // namespace tarvane::paper
