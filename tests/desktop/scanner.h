#pragma once

#include <zbar.h>

#include <QImage>
#include <string>

namespace tarvane::desktop {

// What a hand scanner reads in a picture: a line for each code that it finds.
inline std::string Scan(const QImage& picture) {
  // It sees more than one spot of each of the screen's dots.
  const QImage grey = picture.scaled(picture.size() * 3).convertToFormat(QImage::Format_Grayscale8);
  std::string pixels;
  for (int y = 0; y < grey.height(); ++y) {
    pixels.append(reinterpret_cast<const char*>(grey.constScanLine(y)),
                  static_cast<std::size_t>(grey.width()));
  }
  zbar::ImageScanner scanner;
  scanner.set_config(zbar::ZBAR_NONE, zbar::ZBAR_CFG_ENABLE, 0);
  scanner.set_config(zbar::ZBAR_CODE128, zbar::ZBAR_CFG_ENABLE, 1);
  zbar::Image image(static_cast<unsigned>(grey.width()), static_cast<unsigned>(grey.height()), "Y800",
                    pixels.data(), pixels.size());
  scanner.scan(image);
  std::string read;
  for (auto symbol = image.symbol_begin(); symbol != image.symbol_end(); ++symbol) {
    read += symbol->get_data() + "\n";
  }
  return read;
}

}  // namespace tarvane::desktop
