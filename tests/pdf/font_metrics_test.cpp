#include "pdf/font_metrics.h"

#include <gmock/gmock.h>

#include <chrono>
#include <thread>

#include "pdf/pdf_test_support.h"
#include "text/fault.h"

namespace tarvane::pdf {
namespace {

std::string MetricFile(int width_of_a) {
  return "StartFontMetrics 4.1\nC 65 ; WX 999 ; before the start\nStartCharMetrics 3\nC 65 ; WX " +
         std::to_string(width_of_a) +
         " ; N A ;\nC 66 ; WX 20.9 ; N B ;\nC -1 ; WX 7 ; N Aacute ;\nC 67 ; WX 30 ;\n";
}

// The sum of all widths of each standard font and the widths of some characters, by codes and by names.
TEST(FontMetrics, StandardFonts) {
  FontFolder fonts;
  fonts.Load(FontsFolder());
  std::string all;
  for (const bool by_name : {false, true}) {
    fonts.MeasureByName(by_name);
    for (const std::string& name : fonts.names()) {
      const WidthTable& widths = fonts.Widths(name);
      int64_t sum = 0;
      for (int code = 1; code < 256; ++code) sum += widths.At(code);
      all += name + " " + std::to_string(sum);
      for (const char* text : {"m", "'", "`", "€", "é", "\u00A0", "\u00AD"})
        all.append(" ").append(std::to_string(widths.SumOfText(text)));
      all += "\r\n";
    }
  }
  ExpectGolden("widths.txt", all);
  const std::string file = MetricFile(10) + "C -1 ; WX 40 ; N Euro ;\nEndCharMetrics\nC 68 ; WX 50 ; N D ;\n";
  const WidthTable table = ReadWidthsByName(file);
  EXPECT_THAT(
      (std::vector<int64_t>{table.At('A'), table.At('B'), table.At(0xC1), table.At(0x80), table.At('D')}),
      testing::ElementsAre(10, 20, 7, 40, 0));
  EXPECT_EQ(fonts.names()[fonts.NumberOf("TimesItalic")], "Times-Italic") << "but for hyphens";
  EXPECT_EQ(fonts.names()[fonts.NumberOf("TimesRoman")], "Times-Roman");
  EXPECT_EQ(fonts.Widths("TimesItalic").At('m'), 722);
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

TEST(FontMetrics, AChangedFileIsReadAgain) {
  ScratchFolder folder;
  const std::string path = folder / "F.afm";
  FontFolder fonts;
  const auto expect = [&](int width) {
    std::this_thread::sleep_for(std::chrono::milliseconds(2));
    EXPECT_EQ(fonts.Widths("F").At(65), width);
  };
  WriteBytes(path, MetricFile(100));
  fonts.Load(folder / "");
  expect(100);
  // Same size, and perhaps the same time: the clocks of file systems are coarse.
  WriteBytes(path, MetricFile(200));
  expect(200);
  WriteBytes(folder / "new", MetricFile(300));
  std::filesystem::rename(folder / "new", path);
  expect(300);
  std::filesystem::last_write_time(path,
                                   std::filesystem::file_time_type::clock::now() - std::chrono::hours(9));
  expect(300);
  WriteBytes(path, MetricFile(400));
  expect(400);
  std::filesystem::remove(path);
  EXPECT_THROW(expect(0), Fault);
}

}  // namespace
}  // namespace tarvane::pdf
