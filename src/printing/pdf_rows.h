#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "paper/metric_measure.h"
#include "pdf/tqr_pdf.h"

namespace tarvane::printing {

// How plain text stands on A4 pages; points.
struct RowsOnPage {
  double left;
  double right;
  double first;  // the base line of a page's first row
  double last;   // no row's base line is below
  double step;   // from base line to base line
  double size;   // of the font
};

// Lines of plain text one below the other on the pages of a PDF document whose unit is points: wide ones are
// wrapped, and a full page is followed by a new one. The document must outlive it.
class PdfRows {
 public:
  // Sets the document's font. `fonts` holds the metric files.
  PdfRows(pdf::tqrPDF& document, const std::filesystem::path& fonts, const RowsOnPage& place);

  // A line without line ends; tabs go as blanks. An empty one leaves a row free.
  void Write(std::string line);
  void NewPage();

 private:
  double WidthOf(std::string_view text);
  std::size_t Fitting(std::string_view text);
  void Put(const std::string& row);

  pdf::tqrPDF& document_;
  paper::MetricMeasure measure_;
  RowsOnPage place_;
  double y_;  // the next base line
};

}  // namespace tarvane::printing
