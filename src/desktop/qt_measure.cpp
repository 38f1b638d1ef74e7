#include <algorithm>
#include <utility>

#include "desktop/qt_paper.h"
#include "desktop/text.h"
#include "text/fault.h"

namespace tarvane::desktop {
namespace {

// Characters that stand beside each other without regard to their neighbours, so that a text of them is as
// wide as their sum: Latin, Greek, Cyrillic, signs, and what is written in squares.
constexpr std::pair<char32_t, char32_t> kSimple[] = {
    {0x20, 0x7E},     {0xA0, 0xAC},     {0xAE, 0x2FF},    {0x370, 0x482},
    {0x48A, 0x52F},   {0x2010, 0x2027}, {0x2030, 0x205E}, {0x20A0, 0x20BF},
    {0x2100, 0x214F}, {0x3000, 0x3029}, {0x3030, 0x3098}, {0x309B, 0x30FF},
    {0x3400, 0x4DBF}, {0x4E00, 0x9FFF}, {0xAC00, 0xD7A3}, {0xFF01, 0xFFEE}};

bool IsSimple(char32_t character) {
  return std::ranges::any_of(kSimple, [character](const auto& range) {
    return character >= range.first && character <= range.second;
  });
}

// Ligatures are off where letters are spaced, be it by ever so little.
constexpr double kLeastSpacing = 1.0 / 64;

QFont MakeReferenceFont(const paper::Font& font) {
  QFont made(ToQt(font.name));
  made.setPixelSize(QtMeasure::kReferencePixels);
  made.setBold(font.bold);
  made.setItalic(font.italic);
  made.setHintingPreference(QFont::PreferNoHinting);
  made.setStyleStrategy(static_cast<QFont::StyleStrategy>(QFont::PreferOutline | QFont::PreferAntialias));
  made.setKerning(false);
  made.setLetterSpacing(QFont::AbsoluteSpacing, kLeastSpacing);
  return made;
}

// The character at `at` of valid UTF-8, and the place behind it; 0 where it isn't simple or not valid.
char32_t NextSimple(std::string_view text, std::size_t& at) {
  const auto byte = [&](std::size_t ahead) {
    return at + ahead < text.size() ? static_cast<unsigned char>(text[at + ahead]) : 0U;
  };
  const unsigned first = byte(0);
  char32_t character = first;
  std::size_t length = 1;
  if (first >= 0xE0 && first < 0xF0) {
    character = (first & 0xFU) << 12U | (byte(1) & 0x3FU) << 6U | (byte(2) & 0x3FU);
    length = 3;
  } else if (first >= 0xC0 && first < 0xE0) {
    character = (first & 0x1FU) << 6U | (byte(1) & 0x3FU);
    length = 2;
  }
  at += length;
  const bool plain = first >= 0x20 && first < 0x7F;
  return at <= text.size() && (plain || (length > 1 && IsSimple(character))) ? character : 0;
}

}  // namespace

double QtMeasure::Face::AdvanceOf(char32_t character) {
  float& known =
      character < narrow.size() ? narrow[character] : wide.try_emplace(character, -1.0F).first->second;
  if (known < 0) {
    known = static_cast<float>(metrics.horizontalAdvance(QString::fromUcs4(&character, 1)));
  }
  return static_cast<double>(known);
}

QtMeasure::Face& QtMeasure::FaceOf(const paper::Font& font) {
  const auto same = [&font](const paper::Font& other) {
    return font.bold == other.bold && font.italic == other.italic && font.name == other.name;
  };
  if (last_face_ != nullptr && same(last_font_)) return *last_face_;
  if (faces_.size() >= kMostFaces) faces_.clear();
  std::unique_ptr<Face>& face = faces_[{font.name, font.bold, font.italic}];
  if (face == nullptr) face = std::make_unique<Face>(MakeReferenceFont(font));
  last_font_ = font;
  last_face_ = face.get();
  return *face;
}

paper::Extent QtMeasure::ExtentOf(const paper::Font& font) {
  const QFontMetricsF& metrics = FaceOf(font).metrics;
  const double scale = font.points / kReferencePixels;
  return {metrics.ascent() * scale, metrics.descent() * scale};
}

double QtMeasure::WidthOf(const paper::Font& font, std::string_view text) {
  Face& face = FaceOf(font);
  const double scale = font.points / kReferencePixels;
  double width = 0;
  for (std::size_t at = 0; at < text.size();) {
    const char32_t character = NextSimple(text, at);
    if (character == 0) return face.metrics.horizontalAdvance(ToQt(text)) * scale;
    width += face.AdvanceOf(character);
  }
  return width * scale;
}

QtMeasure::Lines QtMeasure::LinesOf(const paper::Font& font) {
  const QFontMetricsF& metrics = FaceOf(font).metrics;
  const double scale = font.points / kReferencePixels;
  return {-metrics.underlinePos() * scale, metrics.strikeOutPos() * scale, metrics.lineWidth() * scale};
}

bool QtMeasure::CanShow(const paper::Font& font, char32_t character) {
  return FaceOf(font).metrics.inFontUcs4(character);
}

}  // namespace tarvane::desktop
