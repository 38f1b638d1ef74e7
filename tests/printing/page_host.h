#pragma once

#include <cstdlib>
#include <vector>

#include "printing/multi_page_preview.h"
#include "printing/page_files.h"
#include "support/fake_host.h"
#include "support/temporary_folder.h"

namespace tarvane::printing {

// Keeps what comes out of the printer, on a sheet of 420 by 720 points to print on.
class PageHost : public FakeHost {
 public:
  std::vector<paper::RecordedPage> pages;

  paper::Paper PrinterPaper() override { return sheet; }
  paper::Paper sheet = {.size = {444, 744}, .unprintable = {12, 12, 12, 12}};

 protected:
  void PagePrinted(const paper::RecordedPage& page, double left) override {
    FakeHost::PagePrinted(page, left);
    pages.push_back(page);
  }
};

// A screen that reports come up over, and a folder of its own for page files.
class ReportTest : public testing::Test {
 protected:
  ReportTest() { ::setenv("TEMP", folder_.path().c_str(), 1); }
  ~ReportTest() override { ::unsetenv("TEMP"); }

  // Shows that many pages.
  static void Compose(clsMultiPgPreview& report, int pages) {
    report.SetSendToPrinter(false);
    report.pStartDoc();
    for (int page = 0; page < pages; ++page) {
      if (page > 0) report.pNewPage();
      report.pPrint("Text " + std::to_string(page + 1));
    }
    report.pEndDoc();
  }
  std::filesystem::path File(int page) const { return PageFile(folder_.path(), page); }
  bool IsThere(int page) const { return std::filesystem::exists(File(page)); }

  TemporaryFolder folder_;
  PageHost host_;
  Screen screen_{host_, "opener"};
};

}  // namespace tarvane::printing
