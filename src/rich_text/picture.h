#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "rich_text/document.h"

namespace tarvane::rich_text {

inline constexpr int kTwipsPerPixel = 15;  // at 96 dots per inch

struct PixelSize {
  int width = 0;  // above 0, both
  int height = 0;
  bool operator==(const PixelSize&) const = default;
};

// What kind of file the bytes begin as.
std::optional<Picture::Format> PictureFormat(std::string_view bytes);

// As the head of its file tells; the pixels behind it aren't looked at. Nothing where the head is damaged.
std::optional<PixelSize> PictureSize(const Picture& picture);

// A picture of a file's bytes in its natural size at 96 dots per inch. Nothing where they are neither PNG nor
// JPEG, or their head is damaged.
std::optional<Picture> MakePicture(std::string bytes);

}  // namespace tarvane::rich_text
