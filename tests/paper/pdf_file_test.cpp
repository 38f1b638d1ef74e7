// PDF files of pages, opened by readers that have nothing to do with the writer.
#include "paper/pdf_file.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <sstream>

#include "paper/metric_measure.h"
#include "paper/recorder.h"
#include "paper/rich_text_pages.h"
#include "pdf/pdf_test_support.h"
#include "text/fault.h"

namespace tarvane::paper {
namespace {

using pdf::FileBytes;
using pdf::RunCommand;
using pdf::ScratchFolder;
using testing::ElementsAre;
using testing::HasSubstr;

PdfInformation Information() {
  return {"A title", pdf::FontsFolder(), [] { return DateTime{MakeDay(2024, 2, 29), 13, 5, 9}; }};
}

// A page on which `draw` draws.
template <typename Draw>
RecordedPages OnePage(const Paper& paper, const Draw& draw) {
  MetricMeasure measure(pdf::FontsFolder());
  Recorder recorder(measure, paper);
  draw(recorder);
  return {recorder.pages(), paper};
}

// Of each word of a file where it begins, and its base line's page: "x word".
std::vector<std::string> WordsOf(const std::string& file) {
  std::istringstream lines(RunCommand("pdftotext -bbox " + file + " -").output);
  std::vector<std::string> words;
  for (std::string line; std::getline(lines, line);) {
    const std::size_t word = line.find("<word xMin=\"");
    if (word == std::string::npos) continue;
    const std::size_t begin = line.find('>', word) + 1;
    words.push_back(std::to_string(std::lround(std::stod(line.substr(word + 12)))) + " " +
                    line.substr(begin, line.find("</word>") - begin));
  }
  return words;
}

TEST(PdfFile, HoldsTheTextsOfALetter) {
  ScratchFolder folder;
  const std::string file = folder / "letter.pdf";
  std::string text;
  for (int line = 0; line < 200; ++line) text += "Line " + std::to_string(line) + " – (café) \\ 12 € “so”\n";
  rich_text::Document document = rich_text::FromPlainText(text);
  document.runs.front().style.underline = true;
  MetricMeasure measure(pdf::FontsFolder());
  const RichTextPages pages(document, measure, Paper{}, {72, 72, 72, 72});
  EXPECT_EQ(WritePdf(pages, file, Information()), "");
  pdf::ExpectSound(file);
  EXPECT_THAT(RunCommand("pdfinfo " + file).output,
              testing::AllOf(HasSubstr("A title"), HasSubstr("595 x 842 pts"),
                             HasSubstr("Pages:           " + std::to_string(pages.Count()) + "\n")));
  std::string read = RunCommand("pdftotext -layout -nopgbrk " + file + " -").output;
  std::erase(read, '\f');
  std::istringstream lines(read);
  int found = 0;
  for (std::string line; std::getline(lines, line);) {
    if (line.empty()) continue;
    EXPECT_THAT(line, HasSubstr("Line " + std::to_string(found++) + " – (café) \\ 12 € “so”"));
  }
  EXPECT_EQ(found, 200);
}

TEST(PdfFile, SetsTextsInTheirPlaces) {
  ScratchFolder folder;
  const std::string file = folder / "places.pdf";
  const Font mono{"Courier New", 10};
  const RecordedPages pages = OnePage({{300, 200}, {}}, [&](Surface& surface) {
    surface.DrawText({0, 20}, mono, "at zero");
    surface.DrawText({100, 20}, mono, "one two", {{}, 20});
    surface.DrawText({150, 40}, mono, "up", {{255, 0, 0}, 0, 90});
    surface.DrawText({60, 60}, mono, "soft\u2011ware\x01");
    surface.DrawText({250, 60}, mono, "");
    surface.DrawText({20, 80}, {"Nobody's", 1e9}, "W");
  });
  EXPECT_EQ(WritePdf(pages, file, Information()), "");
  pdf::ExpectSound(file);
  const std::vector<std::string> words = WordsOf(file);
  for (const char* word : {"0 at", "18 zero", "100 one", "144 two", "60 soft-ware"}) {
    EXPECT_THAT(words, testing::Contains(word));
  }
}

TEST(PdfFile, TellsWhatItsFontsLackOnce) {
  ScratchFolder folder;
  const std::string file = folder / "signs.pdf";
  const RecordedPages pages = OnePage({}, [&](Surface& surface) {
    surface.DrawText({10, 20}, {}, "a?窗é👍窗b");
    surface.DrawText({10, 40}, {}, "ł窗");
  });
  EXPECT_EQ(WritePdf(pages, file, Information()), "窗👍ł");
  EXPECT_THAT(RunCommand("pdftotext " + file + " -").output, HasSubstr("a??é??b"));
}

// Nine by seven squares, those of every third diagonal dark.
class Pictures : public testing::TestWithParam<const char*> {};

TEST_P(Pictures, AreDrawn) {
  ScratchFolder folder;
  const std::string file = folder / "picture.pdf";
  const std::string bytes = FileBytes(TARVANE_TEST_DATA "/pictures/" + std::string(GetParam()) + ".png");
  const Picture picture{Picture::Format::kPng, bytes, 90, 70};
  const RecordedPages pages = OnePage({{90, 70}, {}}, [&](Surface& surface) {
    surface.DrawPicture(picture, {0, 0, 90, 70});
  });
  WritePdf(pages, file, Information());
  pdf::ExpectSound(file);
  RunCommand("mutool draw -q -r 72 -c gray -o " + folder / "page.pgm" + " " + file);
  const std::string page = FileBytes(folder / "page.pgm");
  ASSERT_GE(page.size(), 90U * 70);
  const std::string pixels = page.substr(page.size() - std::size_t{90} * 70);
  for (int y = 0; y < 7; ++y) {
    for (int x = 0; x < 9; ++x) {
      const bool dark =
          static_cast<unsigned char>(pixels[static_cast<std::size_t>((y * 10 + 5) * 90 + x * 10 + 5)]) < 128;
      EXPECT_EQ(dark, (x + y) % 3 == 0) << x << " " << y;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Png, Pictures,
                         testing::Values("rgb", "rgb-interlaced", "rgb-16", "rgb-key", "rgb-alpha",
                                         "rgb-alpha-interlaced", "palette", "palette-clear", "grey",
                                         "grey-alpha"),
                         [](const auto& tested) {
                           std::string name = tested.param;
                           std::ranges::replace(name, '-', '_');
                           return name;
                         });

TEST(PdfFile, FramesPicturesThatAreDamagedAndKeepsOneOfASort) {
  ScratchFolder folder;
  const std::string file = folder / "pictures.pdf";
  const std::string png = FileBytes(TARVANE_TEST_DATA "/pictures/rgb-alpha.png");
  std::string turned = png;
  turned[50] = static_cast<char>(turned[50] ^ 4);
  const std::string jpeg = FileBytes(TARVANE_TEST_DATA "/../pdf/images/turbo_gray.jpg");
  const RecordedPages pages = OnePage({}, [&](Surface& surface) {
    for (const std::string& bytes :
         {png, png, png.substr(0, 60), turned, std::string(), jpeg.substr(0, 30)}) {
      surface.DrawPicture({Picture::Format::kPng, bytes, 100, 100}, {10, 10, 20, 20});
    }
    surface.DrawPicture({Picture::Format::kJpeg, jpeg.substr(0, 30), 100, 100}, {10, 10, 20, 20});
    surface.DrawPicture({Picture::Format::kJpeg, jpeg, 100, 100}, {10, 10, 20, 20});
  });
  WritePdf(pages, file, Information());
  pdf::ExpectSound(file);
  const std::string content = FileBytes(file);
  const auto count = [&](const std::string& what) {
    int found = 0;
    for (std::size_t at = 0; (at = content.find(what, at)) != std::string::npos; ++at) ++found;
    return found;
  };
  EXPECT_EQ(count("/Subtype /Image"), 2);
  EXPECT_EQ(count(" Do Q"), 3);
  EXPECT_EQ(count(" re s"), 5);
}

class Breaking : public RecordedPages {
 public:
  using RecordedPages::RecordedPages;
  void Draw(int, Surface&) const override { throw Fault("No page."); }
};

TEST(PdfFile, IsThereWholeOrNotAtAll) {
  ScratchFolder folder;
  const std::string file = folder / "kept.pdf";
  const RecordedPages pages = OnePage({}, [](Surface& surface) { surface.DrawText({10, 20}, {}, "new"); });
  pdf::WriteBytes(file, "old");
  PdfInformation without_fonts = Information();
  without_fonts.fonts = folder / "none";
  EXPECT_THROW(WritePdf(pages, file, without_fonts), Fault);
  EXPECT_THROW(WritePdf(Breaking({{}}, {}), file, Information()), Fault);
  EXPECT_THROW(WritePdf(pages, folder / "none/file.pdf", Information()), Fault);
  std::filesystem::create_directories(folder / "full/inner");
  EXPECT_THROW(WritePdf(pages, folder / "full", Information()), Fault);
  EXPECT_EQ(FileBytes(file), "old");
  EXPECT_EQ(WritePdf(pages, file, Information()), "");
  EXPECT_THAT(FileBytes(file), testing::StartsWith("%PDF-1.3"));
  std::vector<std::string> left;
  for (const auto& entry : std::filesystem::directory_iterator(folder / "")) {
    left.push_back(entry.path().filename());
  }
  EXPECT_THAT(left, testing::UnorderedElementsAre("kept.pdf", "full"));
}

}  // namespace
}  // namespace tarvane::paper
