#pragma once

#include <filesystem>

#include "paper/surface.h"

namespace tarvane::paper {

// A sheet as a picture at the screen's resolution, page after page: NewPage and Clear both make it blank.
class PagePicture : public Surface {
 public:
  virtual void Clear() = 0;
  // As a bitmap file (BMP). Faults where it can't be written.
  virtual void Save(const std::filesystem::path& file) const = 0;
};

}  // namespace tarvane::paper
