#include "paper/png_file.h"

#include <zlib.h>

#include <algorithm>
#include <array>
#include <cstdlib>

namespace tarvane::paper {
namespace {

constexpr std::string_view kSignature = "\x89PNG\r\n\x1A\n";
constexpr std::uint64_t kMostPixels = 40'000'000;

enum ColorType { kGrey = 0, kRgb = 2, kPalette = 3, kGreyAlpha = 4, kRgbAlpha = 6 };

struct Png {
  std::uint32_t width = 0;
  std::uint32_t height = 0;
  int depth = 0;
  int type = 0;
  bool interlaced = false;
  std::string_view palette;
  std::string_view transparency;
  std::string packed;

  std::size_t parts() const { return type == kRgb ? 3 : type == kRgbAlpha ? 4 : type == kGreyAlpha ? 2 : 1; }
  std::size_t bits() const { return parts() * static_cast<std::size_t>(depth); }
  std::size_t RowBytes(std::uint32_t columns) const { return (columns * bits() + 7) / 8; }
  // Whether the pixels may stay packed as they are.
  bool plain() const {
    return !interlaced && depth <= 8 && transparency.empty() && type != kGreyAlpha && type != kRgbAlpha;
  }
};

// The pixels that one pass over an interlaced picture has: from where on and how far apart.
struct Pass {
  std::uint32_t x, y, step_x, step_y;
};
constexpr std::array<Pass, 7> kPasses = {
    {{0, 0, 8, 8}, {4, 0, 8, 8}, {0, 4, 4, 8}, {2, 0, 4, 4}, {0, 2, 2, 4}, {1, 0, 2, 2}, {0, 1, 1, 2}}};
constexpr std::array<Pass, 1> kOnePass = {{{0, 0, 1, 1}}};

std::uint32_t NumberAt(std::string_view bytes, std::size_t at) {
  std::uint32_t number = 0;
  for (std::size_t index = 0; index < 4; ++index) {
    number = number << 8 | static_cast<unsigned char>(bytes[at + index]);
  }
  return number;
}

bool ReadHead(std::string_view data, Png& png) {
  if (data.size() != 13 || data[10] != 0 || data[11] != 0) return false;
  png.width = NumberAt(data, 0);
  png.height = NumberAt(data, 4);
  png.depth = static_cast<unsigned char>(data[8]);
  png.type = static_cast<unsigned char>(data[9]);
  png.interlaced = data[12] != 0;
  const bool low = png.depth == 1 || png.depth == 2 || png.depth == 4;
  const bool depth_fits = png.depth == 8 || (low && (png.type == kGrey || png.type == kPalette)) ||
                          (png.depth == 16 && png.type != kPalette);
  const bool known = png.type == kGrey || png.type == kRgb || png.type == kPalette ||
                     png.type == kGreyAlpha || png.type == kRgbAlpha;
  return known && depth_fits && png.width > 0 && png.height > 0 && png.width <= kMostPixels &&
         png.height <= kMostPixels && std::uint64_t{png.width} * png.height <= kMostPixels;
}

// The chunks, each with its sum.
bool ReadChunks(std::string_view file, Png& png) {
  if (!file.starts_with(kSignature)) return false;
  file.remove_prefix(kSignature.size());
  for (bool first = true; file.size() >= 12; first = false) {
    const std::size_t length = NumberAt(file, 0);
    if (length > file.size() - 12) return false;
    const std::string_view kind = file.substr(4, 4);
    const std::string_view data = file.substr(8, length);
    const auto sum = crc32(0, reinterpret_cast<const Bytef*>(kind.data()), static_cast<uInt>(length + 4));
    if (sum != NumberAt(file, 8 + length)) return false;
    if (first != (kind == "IHDR") || (first && !ReadHead(data, png))) return false;
    if (kind == "PLTE") png.palette = data;
    if (kind == "tRNS") png.transparency = data;
    if (kind == "IDAT") png.packed += data;
    if (kind == "IEND") return png.type != kPalette || (png.palette.size() >= 3 && png.palette.size() <= 768);
    file.remove_prefix(length + 12);
  }
  return false;
}

template <typename Passes>
std::size_t UnpackedSize(const Png& png, const Passes& passes) {
  std::size_t size = 0;
  for (const Pass& pass : passes) {
    if (png.width <= pass.x || png.height <= pass.y) continue;
    const std::uint32_t columns = (png.width - pass.x + pass.step_x - 1) / pass.step_x;
    const std::uint32_t rows = (png.height - pass.y + pass.step_y - 1) / pass.step_y;
    size += rows * (png.RowBytes(columns) + 1);
  }
  return size;
}

std::optional<std::string> Unpacked(const Png& png) {
  const std::size_t size = png.interlaced ? UnpackedSize(png, kPasses) : UnpackedSize(png, kOnePass);
  // No stream is packed closer than a thousand to one: what claims to be is no picture.
  if (size / 1100 > png.packed.size()) return std::nullopt;
  std::string bytes(size, '\0');
  uLongf got = size;
  uLong used = png.packed.size();
  const int result = uncompress2(reinterpret_cast<Bytef*>(bytes.data()), &got,
                                 reinterpret_cast<const Bytef*>(png.packed.data()), &used);
  if (result != Z_OK || got != size || used != png.packed.size()) return std::nullopt;
  return bytes;
}

unsigned char Paeth(int left, int above, int corner) {
  const int guess = left + above - corner;
  const int from_left = std::abs(guess - left);
  const int from_above = std::abs(guess - above);
  const int from_corner = std::abs(guess - corner);
  if (from_left <= from_above && from_left <= from_corner) return static_cast<unsigned char>(left);
  return static_cast<unsigned char>(from_above <= from_corner ? above : corner);
}

// Takes the filter off a row; `above` is the row before, or zeros.
bool Unfilter(int filter, std::size_t step, const unsigned char* above, unsigned char* row,
              std::size_t length) {
  if (filter > 4) return false;
  for (std::size_t at = 0; at < length; ++at) {
    const int left = at >= step ? row[at - step] : 0;
    const int corner = at >= step ? above[at - step] : 0;
    const int guesses[] = {0, left, above[at], (left + above[at]) / 2, Paeth(left, above[at], corner)};
    row[at] = static_cast<unsigned char>(row[at] + guesses[filter]);
  }
  return true;
}

struct Rgb {
  std::array<unsigned char, 3> parts{};
};

// One pixel of a row upon white.
Rgb PixelOf(const Png& png, const unsigned char* row, std::uint32_t column) {
  const auto sample = [&](std::size_t part) -> unsigned {
    if (png.depth == 16) {
      const std::size_t at = (column * png.parts() + part) * 2;
      return static_cast<unsigned>(row[at] << 8 | row[at + 1]);
    }
    if (png.depth == 8) return row[column * png.parts() + part];
    const std::size_t bit = column * static_cast<std::size_t>(png.depth);
    return static_cast<unsigned>(row[bit / 8] >> (8 - png.depth - static_cast<int>(bit % 8))) &
           ((1U << png.depth) - 1);
  };
  const auto byte = [&](unsigned value) {
    return static_cast<unsigned>(value * 255ULL / ((1U << png.depth) - 1));
  };
  std::array<unsigned, 3> color{};
  unsigned alpha = 255;
  if (png.type == kPalette) {
    const std::size_t entry = sample(0);
    for (std::size_t part = 0; part < 3; ++part) {
      const std::size_t at = entry * 3 + part;
      color[part] = at < png.palette.size() ? static_cast<unsigned char>(png.palette[at]) : 0;
    }
    if (entry < png.transparency.size()) alpha = static_cast<unsigned char>(png.transparency[entry]);
  } else {
    const std::size_t colors = png.type == kRgb || png.type == kRgbAlpha ? 3 : 1;
    for (std::size_t part = 0; part < 3; ++part) color[part] = byte(sample(colors == 3 ? part : 0));
    if (png.parts() > colors) alpha = byte(sample(colors));
    bool key = png.parts() == colors && png.transparency.size() == 2 * colors;
    for (std::size_t part = 0; key && part < colors; ++part) {
      const auto* bytes = reinterpret_cast<const unsigned char*>(png.transparency.data()) + 2 * part;
      key = sample(part) == static_cast<unsigned>(bytes[0] << 8 | bytes[1]);
    }
    if (key) alpha = 0;
  }
  Rgb pixel;
  for (std::size_t part = 0; part < 3; ++part) {
    pixel.parts[part] = static_cast<unsigned char>((color[part] * alpha + 255 * (255 - alpha)) / 255);
  }
  return pixel;
}

// The pixels upon white, three bytes each; `bytes` are unpacked. False for a filter that there isn't.
template <typename Passes>
bool Flatten(const Png& png, const Passes& passes, std::string& bytes, std::string& pixels) {
  pixels.resize(std::size_t{png.width} * png.height * 3);
  auto* row = reinterpret_cast<unsigned char*>(bytes.data());
  const std::size_t step = std::max<std::size_t>(png.bits() / 8, 1);
  for (const Pass& pass : passes) {
    if (png.width <= pass.x || png.height <= pass.y) continue;
    const std::uint32_t columns = (png.width - pass.x + pass.step_x - 1) / pass.step_x;
    const std::size_t length = png.RowBytes(columns);
    const std::string blank(length, '\0');
    const auto* above = reinterpret_cast<const unsigned char*>(blank.data());
    for (std::uint32_t y = pass.y; y < png.height; y += pass.step_y) {
      if (!Unfilter(row[0], step, above, row + 1, length)) return false;
      for (std::uint32_t column = 0; column < columns; ++column) {
        const Rgb pixel = PixelOf(png, row + 1, column);
        const std::size_t place = std::size_t{y} * png.width + pass.x + std::size_t{column} * pass.step_x;
        std::ranges::copy(pixel.parts, pixels.begin() + static_cast<std::ptrdiff_t>(place * 3));
      }
      above = row + 1;
      row += length + 1;
    }
  }
  return true;
}

std::optional<std::string> Packed(const std::string& pixels) {
  uLongf size = compressBound(pixels.size());
  std::string packed(size, '\0');
  const int result = compress(reinterpret_cast<Bytef*>(packed.data()), &size,
                              reinterpret_cast<const Bytef*>(pixels.data()), pixels.size());
  if (result != Z_OK) return std::nullopt;
  packed.resize(size);
  return packed;
}

std::string PaletteText(std::string_view palette) {
  static constexpr char kDigits[] = "0123456789ABCDEF";
  std::string text = "[/Indexed /DeviceRGB " + std::to_string(palette.size() / 3 - 1) + " <";
  for (const char c : palette.substr(0, palette.size() / 3 * 3)) {
    text += kDigits[static_cast<unsigned char>(c) >> 4];
    text += kDigits[static_cast<unsigned char>(c) & 15];
  }
  return text + ">]";
}

}  // namespace

std::optional<PackedPixels> ReadPng(std::string_view file) {
  Png png;
  if (!ReadChunks(file, png)) return std::nullopt;
  std::optional<std::string> bytes = Unpacked(png);
  if (!bytes) return std::nullopt;
  PackedPixels picture{png.width, png.height, 8, "/DeviceRGB", "", ""};
  if (png.plain()) {
    const std::size_t row = png.RowBytes(png.width) + 1;
    for (std::size_t at = 0; at < bytes->size(); at += row) {
      if (static_cast<unsigned char>((*bytes)[at]) > 4) return std::nullopt;
    }
    picture.bits = png.depth;
    if (png.type != kRgb) picture.colors = png.type == kGrey ? "/DeviceGray" : PaletteText(png.palette);
    picture.predictor = "<</Predictor 15 /Colors " + std::to_string(png.parts()) + " /BitsPerComponent " +
                        std::to_string(png.depth) + " /Columns " + std::to_string(png.width) + ">>";
    picture.bytes = std::move(png.packed);
    return picture;
  }
  std::string pixels;
  const bool whole =
      png.interlaced ? Flatten(png, kPasses, *bytes, pixels) : Flatten(png, kOnePass, *bytes, pixels);
  if (!whole) return std::nullopt;
  std::optional<std::string> packed = Packed(pixels);
  if (!packed) return std::nullopt;
  picture.bytes = std::move(*packed);
  return picture;
}

}  // namespace tarvane::paper
