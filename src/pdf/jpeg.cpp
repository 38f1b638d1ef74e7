#include "pdf/jpeg.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace tarvane::pdf {
namespace {

constexpr size_t kSmallest = 250;
constexpr int kStartOfImage = 0xFFD8;
constexpr int kEndOfImage = 0xFFD9;
constexpr int kApplication = 0xFFE0;
constexpr int kFillBytes = 0xFFFF;
constexpr std::array<int, 7> kFrameHeaders = {0xFFC0, 0xFFC1, 0xFFC2, 0xFFC3, 0xFFC5, 0xFFC6, 0xFFC7};
// By the density unit of the application segment.
constexpr std::array<std::string_view, 3> kResolutionUnits = {"Dots", "Dots/inch (DPI)", "Dots/cm"};

struct ColorSpace {
  int bits;  // of one pixel
  std::string_view name;
};
constexpr std::array<ColorSpace, 3> kColorSpaces = {
    {{8, "DeviceGray"}, {24, "DeviceRGB"}, {32, "DeviceCMYK"}}};

// Places within a segment, counted from its marker.
constexpr size_t kLengthAt = 2;
constexpr size_t kIdentifierAt = 4;
constexpr size_t kDensityUnitAt = 11;
constexpr size_t kPrecisionAt = 4;
constexpr size_t kHeightAt = 5;
constexpr size_t kWidthAt = 7;
constexpr size_t kComponentsAt = 9;

// The number of one or two bytes at `at`; -1 where it isn't within the bytes.
int ByteAt(std::string_view bytes, size_t at) {
  return at < bytes.size() ? static_cast<uint8_t>(bytes[at]) : -1;
}
int PairAt(std::string_view bytes, size_t at) {
  if (bytes.size() < 2 || at > bytes.size() - 2) return -1;
  return static_cast<uint8_t>(bytes[at]) << 8 | static_cast<uint8_t>(bytes[at + 1]);
}

std::optional<ImageError> ReadApplication(std::string_view segment, JpegInfo& info) {
  // A thumbnail extension bears the same marker, and has other things where the unit would be.
  if (segment.substr(std::min(kIdentifierAt, segment.size())).starts_with("JFXX")) return std::nullopt;
  const int unit = ByteAt(segment, kDensityUnitAt);
  if (unit < 0 || unit >= static_cast<int>(kResolutionUnits.size())) return ImageError::kInvalidResolution;
  info.resolution_unit = kResolutionUnits[static_cast<size_t>(unit)];
  return std::nullopt;
}

std::optional<ImageError> ReadFrame(std::string_view segment, JpegInfo& info) {
  const int components = ByteAt(segment, kComponentsAt);
  if (components < 0) return ImageError::kInvalidMarker;
  info.width = PairAt(segment, kWidthAt);
  info.height = PairAt(segment, kHeightAt);
  if (info.width == 0 || info.height == 0) return ImageError::kInvalidMarker;
  const int bits = components * 8;
  const auto found = std::find_if(kColorSpaces.begin(), kColorSpaces.end(),
                                  [bits](const ColorSpace& space) { return space.bits == bits; });
  if (found == kColorSpaces.end()) {
    info.bits_per_component = bits;
  } else {
    info.color_space = found->name;
    info.bits_per_component = ByteAt(segment, kPrecisionAt);
  }
  return std::nullopt;
}

}  // namespace

std::optional<ImageError> ParseJpeg(std::string_view bytes, JpegInfo& info) {
  info = {};
  if (bytes.size() < kSmallest) return ImageError::kNotJpeg;
  if (PairAt(bytes, 0) != kStartOfImage || PairAt(bytes, bytes.size() - 2) != kEndOfImage) {
    return ImageError::kInvalidMarker;
  }
  for (size_t at = 2;;) {
    while (PairAt(bytes, at) == kFillBytes) ++at;
    const int marker = PairAt(bytes, at);
    const int length = PairAt(bytes, at + kLengthAt);
    if (marker < 0xFF00 || length < 2) return ImageError::kInvalidMarker;
    const std::string_view segment = bytes.substr(at, kLengthAt + static_cast<size_t>(length));
    if (std::find(kFrameHeaders.begin(), kFrameHeaders.end(), marker) != kFrameHeaders.end()) {
      return ReadFrame(segment, info);
    }
    if (marker == kApplication) {
      if (const auto error = ReadApplication(segment, info)) return error;
    }
    at += kLengthAt + static_cast<size_t>(length);
  }
}

}  // namespace tarvane::pdf
