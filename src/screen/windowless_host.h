#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "paper/metric_measure.h"
#include "paper/recorder.h"
#include "screen/host.h"

namespace tarvane {

// The paper of programs without a window: measured by the font metric files of a folder, printed into a
// record, written by the PDF writer in the standard fonts. The printer is always there, has A4 and asks
// nothing.
class WindowlessHost : public Host {
 public:
  explicit WindowlessHost(const std::filesystem::path& fonts) : fonts_(fonts), measure_(fonts) {}

  paper::Measure& TextMeasure() override { return measure_; }
  paper::Paper PrinterPaper() override { return {.unprintable = {12, 12, 12, 12}}; }
  bool Print(const paper::Pages& pages, const PrintOrder& order) override;
  void SetUpPrinter() override {}
  std::optional<paper::Font> ChooseFont(const paper::Font& font) override { return font; }
  std::string SavePdf(const paper::Pages& pages, const std::filesystem::path& file,
                      std::string_view title) override;
  std::unique_ptr<paper::PagePicture> MakePagePicture(const paper::Paper& paper) override;
  // Handed to the platform as an address.
  void SendMail(std::string_view address, std::string_view subject,
                const std::filesystem::path& attachment) override;

 protected:
  // A page came out of the printer; `left` is where its text begins, for LinesOf.
  virtual void PagePrinted(const paper::RecordedPage& page, double left) = 0;

 private:
  std::filesystem::path fonts_;
  paper::MetricMeasure measure_;
};

}  // namespace tarvane
