#include "paper/metric_measure.h"

#include <algorithm>
#include <array>

#include "paper/standard_text.h"
#include "text/fault.h"

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
  static constexpr std::array<std::pair<std::string_view, const Family*>, 11> kWords = {{
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
  if (folded == "symbol") return kSigns;
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
  const Widths& widths = WidthsOf(font);
  std::int64_t sum = 0;
  unsigned char bits = 0;
  for (const char c : text) {
    bits |= static_cast<unsigned char>(c);
    sum += widths[static_cast<unsigned char>(c)];
  }
  if (bits >= 0x80) {
    sum = 0;
    for (const char code : StandardCodes(text)) sum += widths[static_cast<unsigned char>(code)];
  }
  return static_cast<double>(sum) * font.points / 1000;
}

const MetricMeasure::Widths& MetricMeasure::WidthsOf(const Font& font) {
  const auto same = [&](const Known& known) {
    return known.widths != nullptr && known.bold == font.bold && known.italic == font.italic &&
           known.name == font.name;
  };
  if (same(known_[last_])) return *known_[last_].widths;
  const auto found = std::ranges::find_if(known_, same);
  if (found != known_.end()) {
    last_ = static_cast<std::size_t>(found - known_.begin());
  } else {
    last_ = next_;
    next_ = (next_ + 1) % known_.size();
    known_[last_] = {font.name, font.bold, font.italic, &Read(StandardFontOf(font))};
  }
  return *known_[last_].widths;
}

const MetricMeasure::Widths& MetricMeasure::Read(std::string_view standard_font) {
  const auto [entry, is_new] = widths_.try_emplace(standard_font);
  Widths& widths = entry->second;
  if (!is_new) return widths;
  static constexpr std::int32_t kHalf = 500;
  std::fill(widths.begin() + ' ', widths.end(), kHalf);
  try {
    const pdf::WidthTable& table = fonts_.Widths(standard_font);
    for (int code = ' '; code <= 0xFF; ++code) {
      widths[static_cast<std::size_t>(code)] = static_cast<std::int32_t>(table.At(code));
    }
  } catch (const Fault&) {
    // A measure is better than none.
  }
  return widths;
}

}  // namespace tarvane::paper
