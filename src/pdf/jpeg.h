#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "pdf/messages.h"

namespace tarvane::pdf {

// What a document needs to know of a JPEG file.
struct JpegInfo {
  int width = 0;   // pixels, above 0
  int height = 0;  // pixels, above 0
  // "DeviceGray", "DeviceRGB" or "DeviceCMYK"; empty for another number of components.
  std::string_view color_space;
  int bits_per_component = 0;  // for another number of components, eight times that number
  // "Dots", "Dots/inch (DPI)" and "Dots/cm" are what a JFIF segment may say; empty without one.
  std::string_view resolution_unit;
};

// Walks the markers of the file's bytes up to the frame header. Gives the error where the bytes aren't such a
// file; never reads outside them.
std::optional<ImageError> ParseJpeg(std::string_view bytes, JpegInfo& info);

}  // namespace tarvane::pdf
