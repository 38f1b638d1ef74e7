#pragma once

#include <filesystem>

#include "pdf/tqr_pdf.h"
#include "screen/host.h"

namespace tarvane::printing {

// What a PDF document needs from outside, out of the host: its messages, clock and viewer. `folder` is the
// program folder, below which metric files are found. A screen that asks for the viewer or a confirmation
// (PDFView, PDFConfirm) has the worker told where the file couldn't be written; any other asks PDFWritten.
// Host and surroundings must outlive their documents.
class PdfSurroundings : private pdf::MessageSink {
 public:
  PdfSurroundings(Host& host, std::filesystem::path folder) : host_(host), folder_(std::move(folder)) {}

  pdf::Surroundings For();

 private:
  void Show(const pdf::Message& message) override;

  Host& host_;
  std::filesystem::path folder_;
};

}  // namespace tarvane::printing
