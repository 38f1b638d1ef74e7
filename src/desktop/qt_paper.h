#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QHash>
#include <QImage>
#include <QPainter>
#include <array>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <tuple>
#include <unordered_map>

#include "paper/page_picture.h"
#include "paper/surface.h"

namespace tarvane::desktop {

inline constexpr double kPointsPerInch = 72;
inline constexpr double kScreenDotsPerInch = 96;

// Measures by the platform's fonts at one large size, unhinted, without kerning and ligatures, so that a text
// is as wide on the screen as on every printer and in PDF files. What simple characters need is kept.
class QtMeasure : public paper::Measure {
 public:
  static constexpr int kReferencePixels = 128;

  paper::Extent ExtentOf(const paper::Font& font) override;
  double WidthOf(const paper::Font& font, std::string_view text) override;

  // A font as high as the reference, to be drawn in the scale of points to that. Underline and strike aren't
  // in it.
  const QFont& ReferenceFont(const paper::Font& font) { return FaceOf(font).font; }
  // Where lines below and through the text lie, in points; a position counts up from the base line.
  struct Lines {
    double underline = 0;
    double strike = 0;
    double width = 0;
  };
  Lines LinesOf(const paper::Font& font);
  // Whether some font of the platform has it.
  bool CanShow(const paper::Font& font, char32_t character);

 private:
  static constexpr std::size_t kMostFaces = 256;  // hostile texts name thousands
  struct Face {
    explicit Face(const QFont& font_in) : font(font_in), metrics(font_in) { narrow.fill(-1); }
    double AdvanceOf(char32_t character);
    QFont font;
    QFontMetricsF metrics;
    std::array<float, 0x530> narrow;  // below 0: not known yet
    std::unordered_map<char32_t, float> wide;
  };
  Face& FaceOf(const paper::Font& font);

  std::map<std::tuple<std::string, bool, bool>, std::unique_ptr<Face>, std::less<>> faces_;
  Face* last_face_ = nullptr;
  paper::Font last_font_;
};

// Pictures as they were decoded, the latest ones.
class PictureCache {
 public:
  // A null image where the bytes can't be read.
  QImage Decoded(const paper::Picture& picture);

 private:
  static constexpr qsizetype kMostBytes = 64 << 20;
  std::map<std::size_t, QImage> images_;  // by hash
  qsizetype bytes_ = 0;
};

// What all surfaces of a program share.
struct PaperTools {
  QtMeasure measure;
  PictureCache pictures;
};

// Draws on whatever a painter does. The painter's unit must be a point, its origin the corner of the sheet.
class QtSurface : public paper::Surface {
 public:
  // `tools` and `painter` must outlive it. `new_page` turns to the next page.
  QtSurface(PaperTools& tools, QPainter& painter, const paper::Paper& paper,
            std::function<void()> new_page = {});

  // The characters drawn so far that no font has, each once.
  std::string missing() const;

  paper::Extent ExtentOf(const paper::Font& font) override { return tools_.measure.ExtentOf(font); }
  double WidthOf(const paper::Font& font, std::string_view text) override {
    return tools_.measure.WidthOf(font, text);
  }
  const paper::Paper& paper() const override { return paper_; }
  void NewPage() override;
  void DrawText(paper::Point at, const paper::Font& font, std::string_view text,
                const paper::TextLook& look) override;
  void DrawLine(paper::Point from, paper::Point to, const paper::Stroke& stroke) override;
  void DrawBox(const paper::Area& area, const paper::Stroke* outline, const paper::Color* fill) override;
  void DrawEllipse(const paper::Area& area, const paper::Stroke* outline, const paper::Color* fill) override;
  void DrawPicture(const paper::Picture& picture, const paper::Area& area) override;

 private:
  QPen PenOf(const paper::Stroke& stroke) const;
  void SetLook(const paper::Stroke* outline, const paper::Color* fill);
  void DrawWords(const paper::Font& font, const QString& text, double blank);
  void DrawRules(const paper::Font& font, double width, const paper::Color& color);
  void NoteMissing(const paper::Font& font, const QString& text);

  PaperTools& tools_;
  QPainter& painter_;
  paper::Paper paper_;
  std::function<void()> new_page_;
  std::map<char32_t, bool> shown_;  // what was looked up: whether a font has it
};

// Draws one page into an image, which becomes white first. The image shows the sheet in `zoom` (1: at the
// screen's resolution, device pixels aside).
void DrawPage(const paper::Pages& pages, int page, PaperTools& tools, double zoom, QImage& image);
// The sheet's size in pixels; 1 by 1 or more, and no more than can be held.
QSize PixelsOf(const paper::Size& sheet, double zoom);

// A sheet at the screen's resolution.
class QtPagePicture : public paper::PagePicture {
 public:
  QtPagePicture(std::shared_ptr<PaperTools> tools, const paper::Paper& paper);

  const QImage& image() const { return image_; }

  void Clear() override;
  void Save(const std::filesystem::path& file) const override;

  paper::Extent ExtentOf(const paper::Font& font) override { return surface_.ExtentOf(font); }
  double WidthOf(const paper::Font& font, std::string_view text) override {
    return surface_.WidthOf(font, text);
  }
  const paper::Paper& paper() const override { return surface_.paper(); }
  void NewPage() override { Clear(); }
  void DrawText(paper::Point at, const paper::Font& font, std::string_view text,
                const paper::TextLook& look) override {
    surface_.DrawText(at, font, text, look);
  }
  void DrawLine(paper::Point from, paper::Point to, const paper::Stroke& stroke) override {
    surface_.DrawLine(from, to, stroke);
  }
  void DrawBox(const paper::Area& area, const paper::Stroke* outline, const paper::Color* fill) override {
    surface_.DrawBox(area, outline, fill);
  }
  void DrawEllipse(const paper::Area& area, const paper::Stroke* outline, const paper::Color* fill) override {
    surface_.DrawEllipse(area, outline, fill);
  }
  void DrawPicture(const paper::Picture& picture, const paper::Area& area) override {
    surface_.DrawPicture(picture, area);
  }

 private:
  std::shared_ptr<PaperTools> tools_;
  QImage image_;
  QPainter painter_;
  QtSurface surface_;
};

}  // namespace tarvane::desktop
