#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tarvane::paper {

// A PNG picture as PDF files hold one.
struct PackedPixels {
  std::uint32_t width = 0;
  std::uint32_t height = 0;
  int bits = 8;           // of each part of a colour
  std::string colors;     // "/DeviceGray", "/DeviceRGB", or a palette
  std::string predictor;  // what "/DecodeParms" says; empty without
  std::string bytes;      // compressed (zlib)
};

// Reads a PNG file of any kind that its format knows. Pixels without transparency go on as they are packed;
// others are laid upon white and packed anew. Nothing for what is damaged, cut off, or larger than 40 million
// pixels.
std::optional<PackedPixels> ReadPng(std::string_view file);

}  // namespace tarvane::paper
