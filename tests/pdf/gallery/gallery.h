#pragma once

#include <string>

#include "pdf/tqr_pdf.h"

namespace tarvane::pdf {

struct GalleryFiles {
  std::string output;
  std::string fonts;   // folder of the metric files
  std::string images;  // folder of the sample JPEG files
  bool strict = false;
};

// Writes one document that shows every operation, style, alignment and mode of the writer, and the watermark.
// Its creation date is fixed. Nothing in it is a mistake: a message means that something is wrong.
void WriteGallery(const GalleryFiles& files, MessageSink& messages);

inline constexpr int kGalleryPages = 6;

}  // namespace tarvane::pdf
