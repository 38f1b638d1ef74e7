#pragma once

#include <filesystem>
#include <map>
#include <string>

#include "paper/metric_measure.h"
#include "paper/surface.h"
#include "pdf/tqr_pdf.h"

namespace tarvane::paper {

// Draws on the pages of a strict document in points without margins, in the standard fonts.
class PdfSurface : public Surface {
 public:
  // The document, which has begun, must outlive it. `fonts`: the folder of metric files.
  PdfSurface(pdf::tqrPDF& document, const Paper& paper, const std::filesystem::path& fonts)
      : document_(document), paper_(paper), measure_(fonts) {}

  // The characters that the fonts lack, each once.
  const std::string& lacking() const { return lacking_; }

  Extent ExtentOf(const Font& font) override { return measure_.ExtentOf(font); }
  double WidthOf(const Font& font, std::string_view text) override { return measure_.WidthOf(font, text); }
  const Paper& paper() const override { return paper_; }
  void NewPage() override { document_.PDFNewPage(); }
  void DrawText(Point at, const Font& font, std::string_view text, const TextLook& look) override;
  void DrawLine(Point from, Point to, const Stroke& stroke) override;
  void DrawBox(const Area& area, const Stroke* outline, const Color* fill) override;
  void DrawEllipse(const Area& area, const Stroke* outline, const Color* fill) override;
  void DrawPicture(const Picture& picture, const Area& area) override;

 private:
  void SetFont(const Font& font);
  void SetStroke(const Stroke& stroke);
  bool SetShape(const Stroke* outline, const Color* fill);
  void DrawTextLines(Point at, const Font& font, double width, const TextLook& look);
  int NumberOf(const Picture& picture);  // 0: can't be read

  pdf::tqrPDF& document_;
  Paper paper_;
  MetricMeasure measure_;
  std::string room_;
  std::string lacking_;
  Font font_;
  bool font_set_ = false;
  Color text_color_;
  std::map<std::pair<std::size_t, std::size_t>, int> pictures_;  // by size and hash
};

}  // namespace tarvane::paper
