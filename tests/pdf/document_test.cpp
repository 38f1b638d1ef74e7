// The life of a document, and what no caller should do to one.
#include <gmock/gmock.h>

#include <cmath>
#include <regex>
#include <thread>

#include "gallery.h"
#include "pdf/pdf_test_support.h"
#include "pdf/script.h"
#include "text/fault.h"

namespace tarvane::pdf {
namespace {

const Steps kNothing = [](tqrPDF&) {};

struct Ended {
  bool written;
  std::vector<std::string> said, viewed;
};

// A document that tells of its file and shows it.
Ended EndedAt(const std::string& path, const Steps& draw) {
  SeenMessages messages;
  Ended ended;
  Surroundings surroundings = FixedSurroundings(&messages);
  surroundings.view = [&](const std::string& shown) {
    EXPECT_THAT(FileBytes(shown), testing::EndsWith("%%EOF\r\n")) << "the file is whole before it is viewed";
    ended.viewed.push_back(shown);
  };
  tqrPDF document(surroundings);
  document.PDFFileName(path);
  document.PDFConfirm(true);
  document.PDFView(true);
  document.PDFBeginDoc();
  draw(document);
  EXPECT_FALSE(document.PDFWritten());
  document.PDFEndDoc();
  ended.written = document.PDFWritten();
  for (const Message& message : messages.list) ended.said.push_back(message.title + "|" + message.text);
  return ended;
}

TEST(Document, TellsAndShowsTheFileThatWasWrittenWhole) {
  ScratchFolder folder;
  const std::string path = folder / "x.pdf";
  const Ended good = EndedAt(path, [&](tqrPDF& document) {
    EXPECT_EQ(document.PDFGetFileName(), "x.pdf");
    EXPECT_EQ(FileBytes(path), "") << "made at once";
  });
  EXPECT_TRUE(good.written);
  EXPECT_EQ(good.said, std::vector<std::string>{"Generated PDF file - tqrPDF 1.0|PDF file generated."});
  EXPECT_EQ(good.viewed, std::vector<std::string>{path});

  const Steps large = [](tqrPDF& document) {
    for (int line = 0; line < 5000; ++line) document.PDFDrawLine(1, 1, 2, 2);
  };
  for (const std::string bad : {"/no such folder/at all/x.pdf", "/dev/full"}) {
    for (const Steps& draw : {kNothing, large}) {
      const Ended lost = EndedAt(bad, draw);
      EXPECT_FALSE(lost.written) << bad;
      EXPECT_EQ(lost.said,
                std::vector<std::string>{"PDF file - tqrPDF 1.0|The PDF file couldn't be written: " + bad});
      EXPECT_TRUE(lost.viewed.empty());
    }
  }
}

// Calls in no good order pass over, and what comes of them isn't taken for a whole file.
TEST(Document, WrongOrder) {
  ScratchFolder folder;
  const auto written = [&](const std::string& calls) {
    tqrPDF document(FixedSurroundings());
    for (const char call : calls) {
      if (call == 'f') document.PDFFileName(folder / "order.pdf");
      if (call == 'b') document.PDFBeginDoc();
      if (call == 'd') document.PDFDrawLine(1, 1, 2, 2), document.PDFLink("x");
      if (call == 'n') document.PDFNewPage();
      if (call == 'e') document.PDFEndDoc();
    }
    return document.PDFWritten();
  };
  for (const char* good : {"fbe", "dfbde", "fbenee", "bfdefbe"}) EXPECT_TRUE(written(good)) << good;
  for (const char* bad : {"fb", "bfe", "fbbe", "be", "fnbe", "ennbdeen", "fbef", "fbebe"})
    EXPECT_FALSE(written(bad)) << bad;
  const std::string bytes = Written([](tqrPDF& document) { document.PDFDrawLine(1, 1, 2, 2); }, kNothing);
  EXPECT_THAT(bytes, testing::Not(testing::HasSubstr("DEBUT_LN"))) << "drawn before the document began";
}

TEST(Document, ASecondDocumentOfTheSameObjectStartsAfresh) {
  ScratchFolder folder;
  tqrPDF document(FixedSurroundings());
  for (const char* name : {"1.pdf", "2.pdf"}) {
    EXPECT_EQ(document.PDFNbPage(), name[0] - '1');
    document.PDFInit();
    document.PDFFileName(folder / name);
    document.PDFBeginDoc();
    document.PDFSetBookmark("b");
    document.PDFDrawRectangle(1, 2, 3, 4, "http://localhost/");
    document.PDFEndDoc();
    document.PDFStrict(true);
  }
  EXPECT_EQ(FileBytes(folder / "1.pdf"), FileBytes(folder / "2.pdf"));
}

TEST(Document, TwoThreadsWriteTwoDocuments) {
  ScratchFolder folder;
  const auto write = [&](const std::string& name) {
    SeenMessages messages;
    for (int round = 0; round < 5; ++round)
      WriteGallery({folder / name, FontsFolder(), TARVANE_TEST_DATA "/images"}, messages);
  };
  write("alone");
  std::thread first(write, "first");
  write("second");
  first.join();
  EXPECT_EQ(FileBytes(folder / "first"), FileBytes(folder / "alone"));
  EXPECT_EQ(FileBytes(folder / "second"), FileBytes(folder / "alone"));
}

TEST(Texts, Widths) {
  tqrPDF document;
  document.PDFPathConfiguration(FontsFolder());
  document.PDFSetFont(kArial, 12);
  EXPECT_EQ(document.PDFGetStringWidth("", "", 10), 0);
  EXPECT_DOUBLE_EQ(document.PDFGetStringWidth("AB", "", 10), 13.34);
  EXPECT_DOUBLE_EQ(document.PDFGetStringWidth("AB", "Courier", 10), 12);
  EXPECT_DOUBLE_EQ(document.PDFGetStringWidth("A", "Courier", 0.0025), 0.002) << "1.5 rounds half to even";
  EXPECT_THROW(document.PDFGetStringWidth("AB", "NoFont", 10), Fault);
  EXPECT_THROW(document.PDFGetStringWidth(std::string("A\0B", 3), "", 10), Fault);
  EXPECT_THROW(document.PDFGetStringWidth("AB", "", 1e9), Fault);
  EXPECT_THROW(document.PDFGetStringWidth("AB", "", std::nan("")), Fault);
}

// Every operation with numbers that no caller should give: no end but a measurement's fault, a whole file,
// and in it no number that a reader wouldn't take.
TEST(Misuse, OddNumbersReachTheEnd) {
  const std::regex number(R"(-?\d+(\.\d+)?)");
  const std::string calls =
      "Fonts;Margins ODD ODD ODD ODD;CellMargin ODD;LineWidth ODD;Zoom ODD;Rotation ODD;TextColor ODD;"
      "Bookmark \"b\" -7 ODD;Line ODD ODD ODD ODD;Rectangle ODD ODD ODD ODD \"x\";Ellipse ODD ODD ODD ODD;"
      "Polygon ODD ODD;Image \"@stb_rgb.jpg\" ODD ODD ODD ODD;Font 0 ODD;Text \"text\" ODD ODD;"
      "Cell \"some words\" ODD ODD;Font 0 10;Text \"text\" ODD ODD;Cell \"some words\" ODD ODD;"
      "Size ODD ODD;PageHeight ODD;PageWidth ODD;";
  for (const char* odd : {"0", "-1", "1e300", "-1e300", "nan", "inf", "1e-300"}) {
    for (const bool strict : {false, true}) {
      std::istringstream lines(std::regex_replace(calls, std::regex("ODD"), odd));
      const std::string page = Written([&](tqrPDF& document) { document.PDFStrict(strict); },
                                       [&](tqrPDF& document) {
                                         for (std::string line; std::getline(lines, line, ';');)
                                           EXPECT_FALSE(Call(document, line).starts_with("unk"));
                                       });
      const std::string drawn = page.substr(0, page.find("endstream"));
      for (std::sregex_iterator
               at(drawn.begin() + static_cast<long>(drawn.find("stream")), drawn.end(), number),
           end;
           at != end; ++at)
        ASSERT_LE(std::abs(std::stod(at->str())), kFarthest) << odd;
    }
  }
}

}  // namespace
}  // namespace tarvane::pdf
