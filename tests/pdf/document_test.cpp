// The life of a document and the bytes of its file.
#include <gmock/gmock.h>

#include <functional>
#include <thread>

#include "gallery.h"
#include "pdf/pdf_test_support.h"
#include "text_number/fault.h"

namespace tarvane::pdf {
namespace {

using testing::HasSubstr;
using testing::Not;

// A file with the settings of `set` and the drawing of `draw`, in points.
template <typename Set, typename Draw>
std::string Written(Set set, Draw draw) {
  ScratchFolder folder;
  tqrPDF document(FixedSurroundings());
  document.PDFSetUnit(kPoint);
  document.PDFFileName(folder / "written.pdf");
  set(document);
  document.PDFBeginDoc();
  draw(document);
  document.PDFEndDoc();
  return FileBytes(folder / "written.pdf");
}

constexpr auto kNothing = [](tqrPDF&) {};

TEST(Document, OnePageWithoutFontsToTheByte) {
  const std::string bytes = Written([](tqrPDF& document) { document.PDFTitle("Empty"); }, kNothing);
  EXPECT_EQ(bytes, Lines({"%PDF-1.3",
                          "1 0 obj",
                          "<<",
                          "/Producer ()",
                          "/Author ()",
                          "/CreationDate (D:20240229130509)",
                          "/Creator ()",
                          "/Keywords ()",
                          "/Subject ()",
                          "/Title (Empty)",
                          "/ModDate ()",
                          ">>",
                          "endobj",
                          "",
                          "2 0 obj",
                          "<< /Length 3 0 R",
                          " >>",
                          "stream",
                          "endstream",
                          "endobj",
                          "",
                          "3 0 obj",
                          "0",
                          "endobj",
                          "",
                          "4 0 obj",
                          "<< /Type /Pages",
                          "/Kids [",
                          "6 0 R",
                          "]",
                          "/Count 1",
                          ">>",
                          "endobj",
                          "",
                          "5 0 obj",
                          "<< /ProcSet [ /PDF /Text /ImageC]",
                          "/XObject << ",
                          ">>",
                          "/Font << ",
                          ">>",
                          ">>",
                          "endobj",
                          "",
                          "6 0 obj",
                          "<< /Type /Page",
                          "/Parent 4 0 R",
                          "/MediaBox [ 0 0 595 842]",
                          "/Resources 5 0 R",
                          "/Contents 2 0 R",
                          ">>",
                          "endobj",
                          "",
                          "7 0 obj",
                          "<<",
                          "/Type /Catalog",
                          "/Pages 4 0 R",
                          "/OpenAction [3 0 R /Fit]",
                          "/PageLayout /SinglePage",
                          ">>",
                          "endobj",
                          "",
                          "xref",
                          "0 7",
                          "0000000000 65535 f",
                          "0000000008 00000 n",
                          "0000000162 00000 n",
                          "0000000221 00000 n",
                          "0000000241 00000 n",
                          "0000000308 00000 n",
                          "0000000397 00000 n",
                          "0000000510 00000 n",
                          "trailer",
                          "<< /Size 7",
                          "/Root 7 0 R",
                          "/Info 1 0 R",
                          ">>",
                          "startxref",
                          "616",
                          "",
                          "%%EOF"}));
}

// Each entry of the table falls short of its object by two for each earlier write.
TEST(Document, TableFallsShortByTheLineEnds) {
  ScratchFolder folder;
  SeenMessages messages;
  WriteGallery({folder / "g.pdf", FontsFolder(), TARVANE_TEST_DATA "/images"}, messages);
  EXPECT_TRUE(messages.list.empty()) << messages.list[0].title << messages.list[0].text;
  const std::string bytes = FileBytes(folder / "g.pdf");
  const size_t table = bytes.rfind("0000000000 65535 f\r\n");
  ASSERT_NE(table, std::string::npos);
  int number = 0;
  for (size_t at = table + 20; bytes.compare(at + 10, 8, " 00000 n") == 0; at += 20) {
    ++number;
    const size_t told = std::stoul(bytes.substr(at, 10));
    const std::string head = std::to_string(number) + " 0 obj\r\n";
    EXPECT_EQ(bytes.compare(told + 2 * static_cast<size_t>(number), head.size(), head), 0) << number;
  }
  EXPECT_EQ(number, 53);
  EXPECT_NE(bytes.find("xref\r\n0 53\r\n"), std::string::npos);
}

TEST(Document, LengthOfAPageThatAnotherFollowsIsTwelveGreater) {
  const std::string bytes = Written(kNothing, [](tqrPDF& document) {
    document.PDFDrawLineHor(1, 2, 3);
    document.PDFNewPage();
    document.PDFDrawLineHor(1, 2, 3);
  });
  const std::string line =
      Lines({"0 G", "%DEBUT_LNH/%", "1.00 840.00 m", "4.00 840.00 l", "0.57 w S", "%FIN_LNH/%"});
  ASSERT_EQ(line.size(), 71u);
  EXPECT_THAT(
      bytes,
      HasSubstr("2 0 obj\r\n<< /Length 3 0 R\r\n >>\r\nstream\r\n" + line +
                "endstream\r\nendobj\r\n%FIN_OBJ/%\r\n\r\n3 0 obj\r\n83\r\nendobj\r\n%FIN_OBJ/%\r\n\r\n"
                "4 0 obj\r\n<< /Length 5 0 R\r\n >>\r\nstream\r\n" +
                line + "endstream\r\nendobj\r\n\r\n5 0 obj\r\n71\r\nendobj\r\n\r\n6 0 obj\r\n"));
  EXPECT_THAT(bytes, HasSubstr("/Kids [\r\n8 0 R\r\n9 0 R\r\n]\r\n/Count 2\r\n"));
  EXPECT_THAT(bytes, HasSubstr("9 0 obj\r\n<< /Type /Page\r\n/Parent 6 0 R\r\n/MediaBox [ 0 0 595 842]\r\n"
                               "/Resources 7 0 R\r\n/Contents 4 0 R\r\n>>\r\nendobj\r\n"));
}

// The files in golden/ were read through by a person.
TEST(Document, GoldenFiles) {
  const auto everything = [](tqrPDF& document) {
    document.PDFPathConfiguration(FontsFolder());
    document.PDFProducer("tqrPDF");
    document.PDFAuthor("A. Müller (owner)");
    document.PDFCreator("c");
    document.PDFKeywords("k");
    document.PDFSubject("s");
    document.PDFTitle("odd ) title");
    document.PDFSetMargins(10, 20, 30, 40);
    document.PDFSetZoomMode(150);
    document.PDFSetLayoutMode(kTwoColumns);
    document.PDFUseThumbs(true);
    document.PDFUseOutlines(true);
    document.PDFSetViewerPreferences(kHideMenubar | kDisplayDocTitle | kFitWindow);
    document.PDFWatermark("DRAFT");
  };
  const std::string bytes = Written(everything, [](tqrPDF& document) {
    document.PDFSetFont(kArial, 12);
    document.PDFSetBookmark("one");
    document.PDFTextOut("first \\ (é)", 0, 30);
    document.PDFTextOut("second");
    document.PDFSetRotation(90);
    document.PDFTextOut("up", 50, 60);
    document.PDFSetTextColor("#F");
    document.PDFDrawRectangle(1, 2, 3, 4, "http://localhost/(a)");
    document.PDFNewPage();
    document.PDFFormatPage(kLetter);
    document.PDFOrientation(kLandscape);
    document.PDFSetBookmark("one a", 1, 100);
    document.PDFSetBorder(1);
    document.PDFSetFill(true);
    document.PDFSetAlignement(kFull);
    document.PDFSetFont(kArial, 10.5, kBold);
    document.PDFCell("a cell of several words, wrapped and set to the full width\nand a line of its own", 12,
                     150, "http://localhost/cell");
    document.PDFNewPage();
    document.PDFSetBookmark("two");
    document.PDFSetDrawMode(kFillAndOutline);
    document.PDFDrawEllipse(40, 100, 100, 20);
    document.PDFDrawPolygon({{1, 1}, {5, 1}, {3, 4}});
    double width = 0, height = 16;
    document.PDFImage(ImageFile("turbo_gray.jpg"), 200, 100, width, height);
    document.PDFLink("http://localhost/image");
  });
  ScratchFolder folder;
  if (bytes != FileBytes(TARVANE_TEST_DATA "/golden/everything.pdf")) {
    const std::string written = testing::TempDir() + "everything.pdf";
    WriteBytes(written, bytes);
    FAIL() << "compare golden/everything.pdf with " << written;
  }
}

TEST(Document, CatalogLines) {
  struct Case {
    std::function<void(tqrPDF&)> set;
    std::string lines;
  };
  const std::string page_lines = "/OpenAction [3 0 R /Fit]\r\n/PageLayout /SinglePage\r\n";
  const std::string layout = "/PageLayout /SinglePage\r\n";
  const std::string fit = "/OpenAction [3 0 R /Fit]\r\n";
  const std::vector<Case> cases = {
      {kNothing, fit + layout},
      {[](tqrPDF& d) { d.PDFSetZoomMode(kZoomFullWidth); }, "/OpenAction [3 0 R /FitH null]\r\n" + layout},
      {[](tqrPDF& d) { d.PDFSetZoomMode(kZoomRealSize); },
       "/OpenAction [3 0 R /XYZ null null 1]\r\n" + layout},
      {[](tqrPDF& d) { d.PDFSetZoomMode(kZoomDefault); }, layout},
      {[](tqrPDF& d) { d.PDFSetZoomMode(150); }, "/OpenAction [3 0 R /XYZ null null 1.5]\r\n" + layout},
      {[](tqrPDF& d) { d.PDFSetZoomMode(2.5); }, "/OpenAction [3 0 R /XYZ null null 0.025]\r\n" + layout},
      {[](tqrPDF& d) { d.PDFSetZoomMode("wide"); }, fit + layout},
      {[](tqrPDF& d) { d.PDFSetLayoutMode(kOneColumn); }, fit + "/PageLayout /OneColumn\r\n"},
      {[](tqrPDF& d) { d.PDFSetLayoutMode(kTwoColumns); }, fit + "/PageLayout /TwoColumnLeft\r\n"},
      {[](tqrPDF& d) { d.PDFSetLayoutMode(kLayoutDefault); }, fit},
      {[](tqrPDF& d) { d.PDFSetLayoutMode(9); }, fit + layout},
      {[](tqrPDF& d) { d.PDFUseThumbs(true); }, page_lines + "/PageMode /UseThumbs\r\n"},
      {[](tqrPDF& d) { d.PDFUseOutlines(true); }, page_lines},
      {[](tqrPDF& d) { d.PDFSetViewerPreferences(0); }, page_lines + "/ViewerPreferences<<\r\n>>\r\n"},
      {[](tqrPDF& d) { d.PDFSetViewerPreferences(63); },
       page_lines + "/ViewerPreferences<<\r\n/HideMenubar true\r\n/HideToolbar true\r\n/HideWindowUI true\r\n"
                    "/DisplayDocTitle true\r\n/CenterWindow true\r\n/FitWindow true\r\n>>\r\n"},
  };
  for (const Case& c : cases) {
    EXPECT_THAT(Written(c.set, kNothing),
                HasSubstr("/Type /Catalog\r\n/Pages 4 0 R\r\n" + c.lines + ">>\r\nendobj\r\n"));
  }
}

TEST(Document, MessagesAndViewerAtTheEnd) {
  ScratchFolder folder;
  SeenMessages messages;
  Surroundings surroundings = FixedSurroundings(&messages);
  std::vector<std::string> viewed;
  surroundings.view = [&](const std::string& path) {
    EXPECT_THAT(FileBytes(path), testing::EndsWith("%%EOF\r\n")) << "the file is whole before it is viewed";
    viewed.push_back(path);
  };
  tqrPDF document(surroundings);
  document.PDFFileName(folder / "x.pdf");
  EXPECT_EQ(document.PDFGetFileName(), "x.pdf");
  EXPECT_EQ(FileBytes(folder / "x.pdf"), "") << "made at once";
  document.PDFConfirm(true);
  document.PDFView(true);
  document.PDFBeginDoc();
  document.PDFEndDoc();
  ASSERT_EQ(messages.list.size(), 1u);
  EXPECT_EQ(messages.list[0].title, "Generated PDF file - tqrPDF 1.0");
  EXPECT_EQ(messages.list[0].text, "PDF file generated.");
  EXPECT_EQ(viewed, std::vector<std::string>{folder / "x.pdf"});
}

TEST(Document, WrongOrderAndUnwritablePathsPassOver) {
  tqrPDF nowhere;
  nowhere.PDFFileName("/no such folder/at all/x.pdf");
  nowhere.PDFBeginDoc();
  nowhere.PDFDrawLine(1, 1, 2, 2);
  nowhere.PDFEndDoc();
  EXPECT_EQ(nowhere.PDFNbPage(), 1);

  tqrPDF backwards;
  backwards.PDFEndDoc();
  backwards.PDFNewPage();
  backwards.PDFNewPage();
  backwards.PDFBeginDoc();
  EXPECT_EQ(backwards.PDFNbPage(), 1);
  backwards.PDFLink("http://localhost/");
  backwards.PDFEndDoc();
  backwards.PDFEndDoc();
  backwards.PDFNewPage();

  const std::string bytes = Written([](tqrPDF& document) { document.PDFDrawLine(1, 1, 2, 2); }, kNothing);
  EXPECT_THAT(bytes, Not(HasSubstr("DEBUT_LN"))) << "drawn before the document began";
}

TEST(Document, ASecondDocumentOfTheSameObjectStartsAfresh) {
  ScratchFolder folder;
  tqrPDF document(FixedSurroundings());
  for (const char* name : {"1.pdf", "2.pdf"}) {
    document.PDFInit();
    document.PDFFileName(folder / name);
    document.PDFBeginDoc();
    document.PDFSetUnit(kPoint);
    document.PDFSetBookmark("b");
    document.PDFDrawRectangle(1, 2, 3, 4, "http://localhost/");
    document.PDFNewPage();
    document.PDFEndDoc();
  }
  EXPECT_EQ(FileBytes(folder / "1.pdf"), FileBytes(folder / "2.pdf"));
}

TEST(Document, WatermarkOnEveryPageLeavesThePenAlone) {
  std::string page;
  const std::string bytes = Written(
      [](tqrPDF& document) {
        document.PDFPathConfiguration(FontsFolder());
        document.PDFSetFont(kArial, 12);
        document.PDFSetTextColor(Color(0, 0, 255));
        document.PDFWatermark("DRAFT");
      },
      [](tqrPDF& document) {
        EXPECT_EQ(document.PDFGetX(), document.PDFGetLeftMargin());
        EXPECT_EQ(document.PDFTextHeight(), 12);
        EXPECT_EQ(document.PDFGetTextColor(), (Rgb{0, 0, 255}));
        document.PDFNewPage();
      });
  // The width of DRAFT in Helvetica 50 is (722+722+667+611+611)*50/1000 = 166.65; sin(45) = 0.850904 and
  // cos(45) = 0.525322 of radians. x = (0.850904*166.65 + 842)/2.15; y = (595 - 0.525322*166.65)/2.75.
  const std::string mark =
      Lines({"q 1.000 0.753 0.796 rg", "%DEBUT_TEXT/%", "BT", "0.707 0.707 -0.707 0.707 457.583 657.471 Tm",
             "/F7 50 Tf", "(DRAFT) Tj", "ET", "Q", "%FIN_TEXT/%"});
  const size_t first = bytes.find("stream\r\n" + mark);
  ASSERT_NE(first, std::string::npos);
  EXPECT_NE(bytes.find("stream\r\n" + mark, first + 1), std::string::npos);
}

TEST(Document, WatermarkStandsAtTheSamePlaceInEveryUnit) {
  const auto matrix = [](int unit) {
    const std::string bytes = Written(
        [unit](tqrPDF& document) {
          document.PDFSetUnit(unit);
          document.PDFPathConfiguration(FontsFolder());
          document.PDFWatermark("DRAFT");
        },
        kNothing);
    const size_t end = bytes.find(" Tm");
    return bytes.substr(bytes.rfind('\n', end), end - bytes.rfind('\n', end));
  };
  EXPECT_EQ(matrix(kPoint), matrix(kCentimeter));
  EXPECT_EQ(matrix(kPoint), matrix(kMillimeter));
}

TEST(Document, WithoutMetricFilesMeasuringFaultsAndTheFileIsWhole) {
  const std::string bytes = Written(kNothing, [](tqrPDF& document) {
    EXPECT_THROW(document.PDFGetStringWidth("", "", 10), Fault);
    EXPECT_THROW(document.PDFTextOut("text"), Fault);
    EXPECT_THROW(document.PDFCell("text", 1, 1), Fault);
  });
  EXPECT_THAT(bytes, HasSubstr("(text) Tj"));
  EXPECT_THAT(bytes, testing::EndsWith("%%EOF\r\n"));
}

TEST(Document, TwoThreadsWriteTwoDocuments) {
  ScratchFolder folder;
  const auto write = [&](const std::string& name) {
    for (int round = 0; round < 5; ++round) {
      SeenMessages messages;
      WriteGallery({folder / name, FontsFolder(), TARVANE_TEST_DATA "/images"}, messages);
    }
  };
  write("alone");
  std::thread first(write, "first");
  std::thread second(write, "second");
  first.join();
  second.join();
  EXPECT_EQ(FileBytes(folder / "first"), FileBytes(folder / "alone"));
  EXPECT_EQ(FileBytes(folder / "second"), FileBytes(folder / "alone"));
}

}  // namespace
}  // namespace tarvane::pdf
