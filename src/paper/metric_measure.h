#pragma once

#include <array>
#include <cstdint>
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
// all characters are half as wide as the font is high. A metric file is read once.
class MetricMeasure : public Measure {
 public:
  explicit MetricMeasure(const std::filesystem::path& folder);

  Extent ExtentOf(const Font& font) override;
  double WidthOf(const Font& font, std::string_view text) override;

 private:
  using Widths = std::array<std::int32_t, 256>;  // by code, of a font of a thousand points
  struct Known {
    std::string name;
    bool bold = false;
    bool italic = false;
    const Widths* widths = nullptr;
  };

  const Widths& WidthsOf(const Font& font);
  const Widths& Read(std::string_view standard_font);

  pdf::FontFolder fonts_;
  std::map<std::string_view, Widths> widths_;  // by standard font
  std::array<Known, 8> known_;                 // fonts that were measured lately
  std::size_t last_ = 0;                       // in known_
  std::size_t next_ = 0;
};

}  // namespace tarvane::paper
