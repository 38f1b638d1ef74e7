#include "pdf/font_metrics.h"

#include <gmock/gmock.h>

#include <chrono>
#include <fstream>
#include <sstream>
#include <thread>

#include "pdf/pdf_test_support.h"
#include "text_number/fault.h"

namespace tarvane::pdf {
namespace {

constexpr std::string_view kStandardFonts[] = {
    "Courier",          "Courier-Bold",          "Courier-BoldOblique", "Courier-Oblique", "Helvetica",
    "Helvetica-Bold",   "Helvetica-BoldOblique", "Helvetica-Oblique",   "Symbol",          "Times-Bold",
    "Times-BoldItalic", "Times-Italic",          "Times-Roman",         "ZapfDingbats"};

std::string MetricFile(int width_of_a) {
  return "StartFontMetrics 4.1\nC 65 ; WX 999 ; before the start\nStartCharMetrics 3\nC 65 ; WX " +
         std::to_string(width_of_a) +
         " ; N A ;\nC 66 ; WX 20.9 ; N B ;\nC -1 ; WX 7 ; N Aacute ;\nC 67 ; WX 30 ;\n";
}

// A second reader of the files, by another road: words of a stream.
std::vector<int> WidthsOfFile(const std::string& path) {
  std::vector<int> widths(256, 0);
  std::ifstream file(path);
  for (std::string line; std::getline(file, line);) {
    std::istringstream words(line);
    std::string c, semicolon, wx;
    int code = 0;
    int width = 0;
    if (words >> c >> code >> semicolon >> wx >> width && c == "C" && wx == "WX" && code > 0)
      widths[code] = width;
  }
  return widths;
}

TEST(FontMetrics, EveryStandardFontIsThereWithTheWidthsOfItsFile) {
  FontFolder fonts;
  fonts.Load(FontsFolder());
  EXPECT_THAT(fonts.names(), testing::UnorderedElementsAreArray(kStandardFonts));
  for (const std::string_view name : kStandardFonts) {
    const std::vector<int> expected = WidthsOfFile(FontsFolder() + "/" + std::string(name) + ".afm");
    EXPECT_GT(expected[97], 0) << name;
    const WidthTable& widths = fonts.Widths(name);
    for (int code = 1; code < 256; ++code) ASSERT_EQ(widths.At(code), expected[code]) << name << ' ' << code;
  }
}

TEST(FontMetrics, ReadsTheEncodedRangeAlone) {
  const auto width_at = [](std::string_view file, int code) { return ReadWidths(file).At(code); };
  EXPECT_EQ(width_at(MetricFile(10), 65), 10);
  EXPECT_EQ(width_at(MetricFile(10), 66), 20) << "the whole part";
  EXPECT_EQ(width_at(MetricFile(10), 67), 0) << "behind the first unencoded character";
  EXPECT_EQ(width_at("StartCharMetrics\r\n C 70 ;  WX 5 ;\r\nEndCharMetrics\r\nC 71 ; WX 6 ;", 70), 5);
  EXPECT_EQ(width_at("StartCharMetrics\nC 70 ; WX 5 ;\nEndCharMetrics\nC 71 ; WX 6 ;", 71), 0);
  EXPECT_EQ(width_at("StartCharMetrics\nC 80 ; WX 5\nC 70 ; WX 6\nEndCharMetrics", 80), 0)
      << "above the last code";
  for (const std::string_view odd :
       {"", "StartCharMetrics", "StartCharMetrics\n;;;\nC\nC ;\nC 5\nC 5 ; WX\nC 999 ; WX 1",
        "StartCharMetrics\nC 0 ; WX 9 ;", "StartCharMetrics\nC 1 ; WX 99999 ;",
        "StartCharMetrics\nC -5 ; WX 9 ;\nC 1e300 ; WX 1e300"}) {
    const WidthTable widths = ReadWidths(odd);
    for (int code = 1; code < 256; ++code) ASSERT_EQ(widths.At(code), 0) << odd;
  }
}

TEST(FontMetrics, Sums) {
  FontFolder fonts;
  fonts.Load(FontsFolder());
  const WidthTable& helvetica = fonts.Widths("Helvetica");
  EXPECT_EQ(helvetica.SumOfText(""), 0);
  EXPECT_EQ(helvetica.SumOfText("A"), 667);
  EXPECT_EQ(helvetica.SumOfText("Hello, world 123"), helvetica.Sum("Hello, world 123"));
  // The table is by the file's codes: the WinAnsi code of "é" stands for another character there.
  EXPECT_EQ(helvetica.SumOfText("a long text with é in it"), helvetica.Sum("a long text with \xE9 in it"));
  EXPECT_EQ(helvetica.SumOfText("\x81"), helvetica.At('?'));
  for (const std::string& text :
       {std::string("\0", 1), std::string("abcdefgh\0jk", 11), std::string("é\0", 3)}) {
    EXPECT_THROW(helvetica.SumOfText(text), Fault);
    EXPECT_THROW(helvetica.Sum(text), Fault);
  }
}

TEST(FontMetrics, FolderTakesWhatHasTheEndingInItsPath) {
  ScratchFolder folder;
  for (const char* name : {"b.AFM", "A.afm", "c.txt", "d.afm.old"}) WriteBytes(folder / name, MetricFile(1));
  std::filesystem::create_directory(folder / "e.afm");
  FontFolder fonts;
  fonts.Load(folder / "");
  EXPECT_THAT(fonts.names(), testing::ElementsAre("A", "b", "d.afm"));
  EXPECT_EQ(fonts.Widths("b").At(65), 1);
  fonts.Load(folder / "nothing here");
  EXPECT_EQ(fonts.names().size(), 3u) << "a folder without metric files changes nothing";
  EXPECT_EQ(fonts.NumberOf("b"), 1);
  EXPECT_EQ(fonts.NumberOf("unknown"), 0);
  EXPECT_THROW(fonts.Widths("unknown"), Fault);
  EXPECT_THROW(fonts.Widths(""), Fault);
}

TEST(FontMetrics, NamesWithoutTheirHyphenAreFound) {
  FontFolder fonts;
  fonts.Load(FontsFolder());
  EXPECT_EQ(fonts.names()[fonts.NumberOf("TimesItalic")], "Times-Italic");
  EXPECT_EQ(fonts.names()[fonts.NumberOf("TimesRoman")], "Times-Roman");
  EXPECT_EQ(fonts.Widths("TimesItalic").At('m'), 722);
}

TEST(FontMetrics, AChangedFileIsReadAgain) {
  const auto later = [] { std::this_thread::sleep_for(std::chrono::milliseconds(2)); };
  ScratchFolder folder;
  WriteBytes(folder / "F.afm", MetricFile(100));
  FontFolder fonts;
  fonts.Load(folder / "");
  EXPECT_EQ(fonts.Widths("F").At(65), 100);
  // Same size, and perhaps the same time: the clocks of file systems are coarse.
  WriteBytes(folder / "F.afm", MetricFile(200));
  later();
  EXPECT_EQ(fonts.Widths("F").At(65), 200);
  WriteBytes(folder / "new", MetricFile(300));
  std::filesystem::rename(folder / "new", folder / "F.afm");
  later();
  EXPECT_EQ(fonts.Widths("F").At(65), 300);
  std::filesystem::last_write_time(folder / "F.afm",
                                   std::filesystem::file_time_type::clock::now() - std::chrono::hours(9));
  later();
  EXPECT_EQ(fonts.Widths("F").At(65), 300);
  WriteBytes(folder / "F.afm", MetricFile(400));
  later();
  EXPECT_EQ(fonts.Widths("F").At(65), 400);
  std::filesystem::remove(folder / "F.afm");
  later();
  EXPECT_THROW(fonts.Widths("F"), Fault);
}

}  // namespace
}  // namespace tarvane::pdf
