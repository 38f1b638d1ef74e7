#include "rich_text/picture.h"

#include <algorithm>
#include <utility>

namespace tarvane::rich_text {

namespace {

constexpr std::string_view kPngBegin("\x89PNG\r\n\x1A\n", 8);
constexpr std::string_view kJpegBegin = "\xFF\xD8\xFF";

std::uint32_t BigEndian(std::string_view bytes, std::size_t at, std::size_t length) {
  std::uint32_t number = 0;
  for (const char byte : bytes.substr(at, length)) number = number << 8 | static_cast<unsigned char>(byte);
  return number;
}

std::optional<PixelSize> Sized(std::uint32_t width, std::uint32_t height) {
  constexpr std::uint32_t kMost = 0x7FFFFFFF;
  if (width == 0 || height == 0 || width > kMost || height > kMost) return std::nullopt;
  return PixelSize{static_cast<int>(width), static_cast<int>(height)};
}

std::optional<PixelSize> PngSize(std::string_view bytes) {
  constexpr std::size_t kName = 12;
  constexpr std::size_t kWidth = 16;
  constexpr std::size_t kHeight = 20;
  if (bytes.size() < kHeight + 4 || bytes.substr(kName, 4) != "IHDR") return std::nullopt;
  return Sized(BigEndian(bytes, kWidth, 4), BigEndian(bytes, kHeight, 4));
}

// A frame's head: C0 to CF but for tables (C4, CC) and a reserved mark (C8).
bool BeginsFrame(unsigned char mark) {
  return mark >= 0xC0 && mark <= 0xCF && mark != 0xC4 && mark != 0xC8 && mark != 0xCC;
}

bool StandsAlone(unsigned char mark) { return mark == 0x01 || (mark >= 0xD0 && mark <= 0xD8); }

std::optional<PixelSize> JpegSize(std::string_view bytes) {
  std::size_t at = 2;
  while (at + 4 <= bytes.size()) {
    if (bytes[at] != '\xFF') return std::nullopt;
    const auto mark = static_cast<unsigned char>(bytes[at + 1]);
    if (mark == 0xFF) {
      ++at;
    } else if (StandsAlone(mark)) {
      at += 2;
    } else if (BeginsFrame(mark)) {
      if (at + 9 > bytes.size()) return std::nullopt;
      return Sized(BigEndian(bytes, at + 7, 2), BigEndian(bytes, at + 5, 2));
    } else {
      at += 2 + BigEndian(bytes, at + 2, 2);
    }
  }
  return std::nullopt;
}

}  // namespace

std::optional<Picture::Format> PictureFormat(std::string_view bytes) {
  if (bytes.starts_with(kPngBegin)) return Picture::Format::kPng;
  if (bytes.starts_with(kJpegBegin)) return Picture::Format::kJpeg;
  return std::nullopt;
}

std::optional<PixelSize> PictureSize(const Picture& picture) {
  const auto format = PictureFormat(picture.bytes);
  if (!format) return std::nullopt;
  return *format == Picture::Format::kPng ? PngSize(picture.bytes) : JpegSize(picture.bytes);
}

std::optional<Picture> MakePicture(std::string bytes) {
  const auto format = PictureFormat(bytes);
  if (!format) return std::nullopt;
  Picture picture{*format, std::move(bytes)};
  const auto size = PictureSize(picture);
  if (!size) return std::nullopt;
  picture.width = std::min(size->width, kLongest / kTwipsPerPixel) * kTwipsPerPixel;
  picture.height = std::min(size->height, kLongest / kTwipsPerPixel) * kTwipsPerPixel;
  return picture;
}

}  // namespace tarvane::rich_text
