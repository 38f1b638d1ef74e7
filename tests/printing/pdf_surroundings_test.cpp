#include "printing/pdf_surroundings.h"

#include <gtest/gtest.h>

#include "store/data_files.h"
#include "support/fake_host.h"

namespace tarvane::printing {
namespace {

TEST(PdfSurroundings, TheHostTellsItsMessagesSetsItsClockAndShowsTheFile) {
  FakeHost host;
  host.now = {MakeDay(2026, 5, 4), 9, 30, 15};
  const auto file = std::filesystem::temp_directory_path() / "tarvane-surroundings-test.pdf";
  PdfSurroundings surroundings(host, TARVANE_DATA_DIR);
  {
    pdf::tqrPDF document(surroundings.For());
    document.PDFFileName(file.string());
    document.PDFView(true);
    document.PDFSetZoomMode("no such mode");
    document.PDFBeginDoc();
    document.PDFEndDoc();
  }
  ASSERT_FALSE(host.messages.empty());
  EXPECT_NE(host.messages.front().find("no such mode"), std::string::npos) << host.messages.front();
  EXPECT_EQ(host.launched, std::vector<std::string>{file.string()});
  EXPECT_NE(ReadFile(file).value_or("").find("20260504093015"), std::string::npos);
  std::filesystem::remove(file);
}

TEST(PdfSurroundings, AFileThatCannotBeWrittenIsToldAndNotShown) {
  FakeHost host;
  PdfSurroundings surroundings(host, TARVANE_DATA_DIR);
  pdf::tqrPDF document(surroundings.For());
  document.PDFFileName("/dev/full");
  document.PDFView(true);
  document.PDFBeginDoc();
  document.PDFEndDoc();
  EXPECT_FALSE(document.PDFWritten());
  EXPECT_TRUE(host.launched.empty());
  EXPECT_EQ(host.messages, std::vector<std::string>{"The PDF file couldn't be written: /dev/full"});
}

}  // namespace
}  // namespace tarvane::printing
