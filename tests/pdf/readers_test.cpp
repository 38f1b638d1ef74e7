// The gallery and the golden file, opened by readers that have nothing to do with the writer.
#include <gmock/gmock.h>

#include <cmath>
#include <cstdlib>
#include <map>
#include <memory>
#include <regex>
#include <sstream>

#include "gallery.h"
#include "pdf/pdf_test_support.h"

namespace tarvane::pdf {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class Readers : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    folder_ = std::make_unique<ScratchFolder>();
    SeenMessages messages;
    WriteGallery({Gallery(), FontsFolder(), TARVANE_TEST_DATA "/images"}, messages);
  }
  static void TearDownTestSuite() { folder_.reset(); }
  static std::string Gallery() { return *folder_ / "gallery.pdf"; }

  static std::unique_ptr<ScratchFolder> folder_;
};
std::unique_ptr<ScratchFolder> Readers::folder_;

std::vector<std::string> Matches(const std::string& text, const std::string& pattern) {
  const std::regex regex(pattern);
  std::vector<std::string> found;
  for (std::sregex_iterator at(text.begin(), text.end(), regex), end; at != end; ++at)
    found.push_back((*at)[1]);
  return found;
}

// qpdf may complain of the table, whose offsets fall short, and of the stream lengths of pages that another
// follows, and of nothing else.
TEST_F(Readers, QpdfComplainsOnlyOfWhatIsKeptOnPurpose) {
  const std::regex meant(
      R"(WARNING: .*(file is damaged|xref not found|Attempting to reconstruct cross-reference table)|)"
      R"(WARNING: .*(expected endstream|attempting to recover stream length|recovered stream length: \d+)|)"
      R"(checking .*|PDF Version: 1\.3|File is not (encrypted|linearized)|qpdf: operation succeeded with warnings)");
  const RunResult result = RunCommand("qpdf --check " + Gallery());
  EXPECT_EQ(result.status, 3) << result.output;
  std::istringstream lines(result.output);
  for (std::string line; std::getline(lines, line);) EXPECT_TRUE(std::regex_match(line, meant)) << line;
  // The five pages that another follows, and not the last.
  EXPECT_THAT(Matches(result.output, R"(object (\d+) 0, offset \d+\): expected endstream)"),
              ElementsAre("3", "5", "7", "9", "11"));
  // The golden file has the page mode twice, as both of its settings are on.
  const RunResult golden = RunCommand("qpdf --check " TARVANE_TEST_DATA "/golden/everything.pdf");
  EXPECT_THAT(golden.output, HasSubstr("duplicated key /PageMode"));
}

TEST_F(Readers, PagesSizesAndInformation) {
  const std::string info = RunCommand("pdfinfo -l 9 " + Gallery()).output;
  EXPECT_THAT(info, HasSubstr("Title:           Gallery of the PDF writer\n"));
  EXPECT_THAT(info, HasSubstr("Keywords:        gallery, pdf\n"));
  EXPECT_THAT(info, HasSubstr("Pages:           6\n"));
  EXPECT_THAT(Matches(info, R"(Page +\d size: +(\d+ x \d+))"),
              ElementsAre("595 x 842", "595 x 842", "595 x 842", "595 x 842", "595 x 842", "595 x 421"));
  const std::string trace = RunCommand("mutool show " + Gallery() + " trailer/Info/CreationDate").output;
  EXPECT_THAT(trace, HasSubstr("(D:20240229130509)"));
}

TEST_F(Readers, FontsAndImages) {
  const std::string fonts = RunCommand("pdffonts " + Gallery()).output;
  EXPECT_THAT(
      Matches(fonts, R"(\n(\S+) +Type 1 +WinAnsi +no  no  no)"),
      ElementsAre("Courier-Bold", "Courier-BoldOblique", "Courier-Oblique", "Courier", "Helvetica-Bold",
                  "Helvetica-BoldOblique", "Helvetica-Oblique", "Helvetica", "Symbol", "Times-Bold",
                  "Times-BoldItalic", "Times-Italic", "Times-Roman", "ZapfDingbats"));
  const std::string images = RunCommand("pdfimages -list " + Gallery()).output;
  EXPECT_THAT(Matches(images, R"(image +(48 +32 +\w+ +\d +8 +jpeg))"), testing::SizeIs(8));
  EXPECT_THAT(Matches(images, R"(48 +32 +(\w+))"),
              ElementsAre("rgb", "gray", "rgb", "cmyk", "rgb", "rgb", "rgb", "rgb"));
}

TEST_F(Readers, LinksAndOutline) {
  const std::string links = RunCommand("pdfinfo -url " + Gallery()).output;
  EXPECT_THAT(Matches(links, R"(3 +Annotation +(\S+))"), ElementsAre("http://localhost/rectangle"));
  EXPECT_THAT(Matches(links, R"(4 +Annotation +(\S+))"), testing::SizeIs(4));
  EXPECT_THAT(Matches(links, R"(5 +Annotation +(\S+))"), testing::Contains("http://localhost/stb_rgb.jpg"));
  const std::string outline = RunCommand("mutool show " + Gallery() + " outline").output;
  EXPECT_THAT(
      Matches(outline, R"(\t"(.*)\"\t)"),
      ElementsAre("Fonts and texts", "Codes", "Rotation", "Lines, styles and widths",
                  "Rectangles, ellipses and polygons", "Cells", "Images, in millimetres", "A5 in landscape"));
  EXPECT_THAT(outline, HasSubstr("\t\t\"Rotation\"\t#page=1"));
  EXPECT_THAT(outline, HasSubstr("\"A5 in landscape\"\t#page=6"));
}

struct Word {
  double left, top, right, bottom;
};

std::multimap<std::string, Word> WordsOf(const std::string& file, int page) {
  const std::string number = std::to_string(page);
  const std::string text =
      RunCommand("pdftotext -f " + number + " -l " + number + " -bbox " + file + " -").output;
  std::multimap<std::string, Word> words;
  const std::regex word(
      "<word xMin=\"([0-9.-]+)\" yMin=\"([0-9.-]+)\" xMax=\"([0-9.-]+)\" yMax=\"([0-9.-]+)\">(.*)</word>");
  for (std::sregex_iterator at(text.begin(), text.end(), word), end; at != end; ++at) {
    words.insert(
        {(*at)[5], {std::stod((*at)[1]), std::stod((*at)[2]), std::stod((*at)[3]), std::stod((*at)[4])}});
  }
  return words;
}

TEST_F(Readers, TextStandsWhereItWasPut) {
  const auto words = WordsOf(Gallery(), 1);
  const auto heading = words.find("Fonts");
  ASSERT_NE(heading, words.end());
  EXPECT_NEAR(heading->second.left, 40, 0.01);
  EXPECT_NEAR(heading->second.right, 40 + 18 * (611 + 611 + 611 + 333 + 556) / 1000.0, 0.01);
  EXPECT_LT(heading->second.top, 50);
  EXPECT_GT(heading->second.bottom, 50);
  // Three texts side by side: the one behind the other, with the blank between.
  ASSERT_EQ(words.count("by"), 1u);
  EXPECT_NEAR(words.find("by")->second.left, 40 + 14 * (389 + 278 + 500 + 444 + 250) / 1000.0, 0.01);
  EXPECT_EQ(words.count("“quotes”"), 1u) << "the reader finds the WinAnsi codes";
  EXPECT_EQ(words.count("\\\\"), 1u) << "one backslash shows as two";

  const auto cells = WordsOf(Gallery(), 4);
  int flush_right = 0;
  for (auto [at, end] = cells.equal_range("two"); at != end; ++at) {
    if (std::abs(at->second.right - 336) < 0.05) ++flush_right;
  }
  EXPECT_EQ(flush_right, 6) << "the first lines of three cells set right and of three set full";
  for (auto [at, end] = cells.equal_range("side."); at != end; ++at) EXPECT_LT(at->second.right, 336.05);
}

// A picture in grey: rendered pages and kept pictures go through the same reader.
struct Picture {
  int width = 0;
  int height = 0;
  std::string pixels;
};

Picture ReadPicture(const std::string& file) {
  const ScratchFolder folder;
  const std::string grey = folder / "picture.pgm";
  const RunResult result = RunCommand("mutool draw -q -F pgm -o " + grey + " " + file);
  EXPECT_EQ(result.status, 0) << result.output;
  std::istringstream bytes(FileBytes(grey));
  Picture picture;
  std::string kind;
  int most = 0;
  bytes >> kind >> picture.width >> picture.height >> most;
  bytes.get();
  picture.pixels.assign(std::istreambuf_iterator<char>(bytes), {});
  EXPECT_EQ(picture.pixels.size(), static_cast<size_t>(picture.width * picture.height));
  return picture;
}

// The mean grey of the blocks of `size` pixels.
std::vector<double> Blocks(const Picture& picture, int size) {
  std::vector<double> means;
  for (int top = 0; top + size <= picture.height; top += size) {
    for (int left = 0; left + size <= picture.width; left += size) {
      double sum = 0;
      for (int y = top; y < top + size; ++y) {
        for (int x = left; x < left + size; ++x) {
          sum += static_cast<unsigned char>(picture.pixels[static_cast<size_t>(y * picture.width + x)]);
        }
      }
      means.push_back(sum / (size * size));
    }
  }
  return means;
}

// The share of blocks that differ by more than `tolerance` greys.
double Difference(const Picture& left, const Picture& right, double tolerance) {
  static constexpr int kBlock = 4;
  EXPECT_LE(std::abs(left.width - right.width), 1);
  EXPECT_LE(std::abs(left.height - right.height), 1);
  if (left.width / kBlock != right.width / kBlock || left.height / kBlock != right.height / kBlock) return 1;
  const std::vector<double> first = Blocks(left, kBlock);
  const std::vector<double> second = Blocks(right, kBlock);
  double differing = 0;
  for (size_t block = 0; block < first.size(); ++block)
    differing += std::abs(first[block] - second[block]) > tolerance;
  return differing / static_cast<double>(first.size());
}

std::string KeptPicture(int page) {
  return TARVANE_DATA_DIR "/../docs/screenshots/pdf-gallery-" + std::to_string(page) + ".png";
}

// A person has looked at the kept pictures.
TEST_F(Readers, PagesLookAsTheyDid) {
  const std::string stem = *folder_ / "page";
  EXPECT_EQ(RunCommand("pdftoppm -r 48 -png " + Gallery() + " " + stem).status, 0);
  for (int page = 1; page <= kGalleryPages; ++page) {
    const Picture rendered = ReadPicture(stem + "-" + std::to_string(page) + ".png");
    EXPECT_LE(Difference(rendered, ReadPicture(KeptPicture(page)), 24), 0.01) << page;
  }
  // The measure sees a page that isn't the one meant.
  EXPECT_GT(Difference(ReadPicture(stem + "-1.png"), ReadPicture(KeptPicture(2)), 24), 0.05);
}

// Another family of renderer. It knows the symbol fonts in this encoding, which the other leaves blank, and
// sets colours and letters a little differently.
TEST_F(Readers, AnotherRendererSeesTheSamePages) {
  for (int page = 1; page <= kGalleryPages; ++page) {
    const std::string grey = *folder_ / "other.png";
    EXPECT_EQ(
        RunCommand("mutool draw -q -r 48 -o " + grey + " " + Gallery() + " " + std::to_string(page)).status,
        0);
    EXPECT_LE(Difference(ReadPicture(grey), ReadPicture(KeptPicture(page)), 48), 0.03) << page;
  }
}

}  // namespace
}  // namespace tarvane::pdf
