#include "paper/metric_measure.h"

#include <algorithm>
#include <array>

#include "pdf/text_encoding.h"
#include "text/fault.h"
#include "text/utf8.h"

namespace tarvane::paper {
namespace {

struct Family {
  std::string_view plain, bold, italic, bold_italic;
  double ascent, descent;  // of a font of one point
};

constexpr Family kSans = {"Helvetica", "Helvetica-Bold", "Helvetica-Oblique", "Helvetica-BoldOblique", 0.931,
                          0.225};
constexpr Family kSerif = {"Times-Roman", "Times-Bold", "Times-Italic", "Times-BoldItalic", 0.898, 0.218};
constexpr Family kMono = {"Courier", "Courier-Bold", "Courier-Oblique", "Courier-BoldOblique", 0.805, 0.25};
constexpr Family kSigns = {"Symbol", "Symbol", "Symbol", "Symbol", 1.01, 0.293};

const Family& FamilyOf(const std::string& name) {
  static constexpr std::array<std::pair<std::string_view, const Family*>, 12> kWords = {{
      {"symbol", &kSigns},
      {"sans", &kSans},
      {"courier", &kMono},
      {"mono", &kMono},
      {"consol", &kMono},
      {"fixed", &kMono},
      {"times", &kSerif},
      {"roman", &kSerif},
      {"serif", &kSerif},
      {"georgia", &kSerif},
      {"garamond", &kSerif},
      {"cambria", &kSerif},
  }};
  std::string folded = name;
  std::ranges::transform(folded, folded.begin(),
                         [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
  for (const auto& [word, family] : kWords) {
    if (folded.find(word) != std::string::npos) return *family;
  }
  return kSans;
}

}  // namespace

double ColumnWidth(Measure& measure, const Font& font) {
  static constexpr std::string_view kAlphabet = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ";
  return measure.WidthOf(font, kAlphabet) / static_cast<double>(kAlphabet.size());
}

std::string_view StandardFontOf(const Font& font) {
  const Family& family = FamilyOf(font.name);
  if (font.bold) return font.italic ? family.bold_italic : family.bold;
  return font.italic ? family.italic : family.plain;
}

MetricMeasure::MetricMeasure(const std::filesystem::path& folder) {
  fonts_.MeasureByName(true);
  fonts_.Load(folder.string());
}

Extent MetricMeasure::ExtentOf(const Font& font) {
  const Family& family = FamilyOf(font.name);
  return {family.ascent * font.points, family.descent * font.points};
}

double MetricMeasure::WidthOf(const Font& font, std::string_view text) {
  try {
    return static_cast<double>(fonts_.Widths(StandardFontOf(font)).SumOfText(text)) * font.points / 1000;
  } catch (const Fault&) {
    return static_cast<double>(CountCharacters(text)) * font.points / 2;
  }
}

}  // namespace tarvane::paper
