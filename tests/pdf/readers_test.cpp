// The gallery and the golden file, opened by readers that have nothing to do with the writer.
#include <gmock/gmock.h>

#include <cmath>
#include <memory>
#include <regex>
#include <sstream>

#include "gallery.h"
#include "pdf/pdf_test_support.h"

namespace tarvane::pdf {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

// The gallery as it is by default and in strict mode.
class Readers : public testing::TestWithParam<bool> {
 protected:
  static void SetUpTestSuite() {
    folder_ = std::make_unique<ScratchFolder>();
    for (const bool strict : {false, true}) {
      SeenMessages messages;
      WriteGallery({GalleryFile(strict), FontsFolder(), TARVANE_TEST_DATA "/images", strict}, messages);
      EXPECT_TRUE(messages.list.empty()) << messages.list[0].title << messages.list[0].text;
    }
  }
  static void TearDownTestSuite() { folder_.reset(); }
  static std::string GalleryFile(bool strict) { return *folder_ / (strict ? "strict.pdf" : "gallery.pdf"); }
  static std::string Gallery() { return GalleryFile(GetParam()); }

  static std::unique_ptr<ScratchFolder> folder_;
};
std::unique_ptr<ScratchFolder> Readers::folder_;
INSTANTIATE_TEST_SUITE_P(Modes, Readers, testing::Bool(),
                         [](const auto& mode) { return mode.param ? "Strict" : "Default"; });

// The groups of each match, with blanks between.
std::vector<std::string> Matches(const std::string& text, const std::string& pattern) {
  const std::regex regex(pattern);
  std::vector<std::string> found;
  for (std::sregex_iterator at(text.begin(), text.end(), regex), end; at != end; ++at) {
    found.push_back((*at)[1]);
    for (size_t group = 2; group < at->size(); ++group) found.back().append(1, ' ').append((*at)[group]);
  }
  return found;
}

// By default qpdf may complain of the table, whose offsets fall short, and of the stream lengths of the five
// pages that another follows, and of nothing else; of a strict file nobody complains.
TEST_P(Readers, ComplainOnlyOfWhatIsKeptOnPurpose) {
  if (GetParam()) return ExpectSound(Gallery());
  const std::regex meant(
      R"(WARNING: .*(file is damaged|xref not found|Attempting to reconstruct cross-reference table)|)"
      R"(WARNING: .*(expected endstream|attempting to recover stream length|recovered stream length: \d+)|)"
      R"(checking .*|PDF Version: 1\.3|File is not (encrypted|linearized)|qpdf: operation succeeded with warnings)");
  const RunResult result = RunCommand("qpdf --check " + Gallery());
  EXPECT_EQ(result.status, 3) << result.output;
  std::istringstream lines(result.output);
  for (std::string line; std::getline(lines, line);) EXPECT_TRUE(std::regex_match(line, meant)) << line;
  EXPECT_THAT(Matches(result.output, R"(object (\d+) 0, offset \d+\): expected endstream)"),
              ElementsAre("3", "5", "7", "9", "11"));
}

// Every sign that WinAnsi has, from another reader: what it shows of a title, and how wide it sets each
// letter.
TEST(Reader, ShowsSignsAndSetsWidthsAsStrictFilesMeanThem) {
  ScratchFolder folder;
  const std::string file = folder / "signs.pdf";
  const std::string title = "“Schöner” ‘wohnen’ – ab 10 € … ™ •†‡—ƒ⁄‹›−‰„‚ŁŒŠŸŽıłœšž ˘ˇˆ˙˝˛˚˜";
  std::string signs = "€‚ƒ„…†‡ˆ‰Š‹ŒŽ‘’“”•–—˜™š›œžŸ";
  for (int character = ' '; character <= 0xFF; character = character == '~' ? 0xA0 : character + 1)
    signs += character < 0x80 ? std::string(1, static_cast<char>(character))
                              : std::string{static_cast<char>(0xC0 | character >> 6),
                                            static_cast<char>(0x80 | (character & 0x3F))};
  std::vector<double> measured;
  const Steps set = [&](tqrPDF& document) {
    document.PDFStrict(true), document.PDFUseOutlines(true), document.PDFTitle(title),
        document.PDFPathConfiguration(FontsFolder());
  };
  WriteBytes(file, Written(set, [&](tqrPDF& document) {
               document.PDFSetBookmark(title);
               for (int font = kArial; font <= kTimes; ++font) {
                 for (int style = kNormal; style <= kBoldItalic; ++style) {
                   document.PDFSetFont(font, 10, style);
                   document.PDFTextOut(signs, 1, 20);
                   measured.push_back(document.PDFGetStringWidth(signs, "", 1));
                 }
               }
             }));
  EXPECT_THAT(RunCommand("pdfinfo " + file).output, HasSubstr("Title:           " + title + "\n"));
  EXPECT_THAT(RunCommand("mutool show " + file + " outline").output, HasSubstr("\"" + title + "\""));
  std::vector<double> set_by_reader;
  std::istringstream trace(RunCommand("mutool draw -q -F trace " + file).output);
  for (std::string line; std::getline(trace, line);) {
    if (line.find("<span") != std::string::npos) set_by_reader.push_back(0);
    for (const std::string& width : Matches(line, "adv=\"([0-9.]+)\""))
      set_by_reader.back() += std::stod(width);
  }
  EXPECT_THAT(set_by_reader, testing::Pointwise(testing::DoubleNear(0.0005), measured));
}

// What others find in the files: the command, and the parts of each line that match. Of some words where
// they begin and end in their line.
TEST_P(Readers, FindPagesFontsImagesLinksAndOutline) {
  static constexpr char kWord[] =
      R"re(<word xMin="([0-9.-]+)" .* xMax="([0-9.-]+)" .*>(Fonts|by|“quotes”|\\+|side\.|two)</word>)re";
  const std::pair<std::string, std::string> questions[] = {
      {"pdfinfo -l 9 FILE", R"(((?:Title|Keywords|Pages|Page +\d size): .*))"},
      {"mutool show FILE trailer/Info/CreationDate", R"(\((.*)\))"},
      {"pdffonts FILE", R"(\n(\S+ +Type 1 +\S+ +no  no  no))"},
      {"pdfimages -list FILE", R"((image +48 +32 +\w+ +\d +8 +jpeg))"},
      {"pdfinfo -url FILE", R"((\d +Annotation +\S+))"},
      {"pdftotext -f 1 -l 1 -bbox FILE -", kWord},
      {"pdftotext -f 4 -l 4 -bbox FILE -", kWord},
      {"mutool show FILE outline", R"((\t+".*"\t#page=\d))"}};
  std::string found;
  for (const auto& [command, pattern] : questions) {
    const std::string answer = RunCommand(std::regex_replace(command, std::regex("FILE"), Gallery())).output;
    std::vector<std::string> lines = Matches(answer, pattern);
    if (pattern == kWord) std::sort(lines.begin(), lines.end());
    for (const std::string& line : lines) found += line + "\n";
  }
  ExpectGolden(GetParam() ? "readers-strict.txt" : "readers.txt", found);
}

// A picture in grey.
struct Picture {
  int width = 0;
  int height = 0;
  std::string pixels;
};

// What `command` writes to its OUT.pgm.
Picture PictureOf(const std::string& command) {
  const ScratchFolder folder;
  const RunResult result = RunCommand(std::regex_replace(command, std::regex("OUT"), folder / "picture"));
  EXPECT_EQ(result.status, 0) << result.output;
  std::istringstream bytes(FileBytes(folder / "picture.pgm"));
  Picture picture;
  std::string kind;
  int most = 0;
  bytes >> kind >> picture.width >> picture.height >> most;
  bytes.get();
  picture.pixels.assign(std::istreambuf_iterator<char>(bytes), {});
  EXPECT_EQ(picture.pixels.size(), static_cast<size_t>(picture.width * picture.height));
  return picture;
}

// The share of blocks of 4 by 4 pixels whose mean differs by more than `tolerance` greys.
double Difference(const Picture& left, const Picture& right, double tolerance) {
  static constexpr int kBlock = 4;
  EXPECT_LE(std::max(std::abs(left.width - right.width), std::abs(left.height - right.height)), 1);
  const int columns = std::min(left.width, right.width) / kBlock;
  const int rows = std::min(left.height, right.height) / kBlock;
  std::vector<double> sums(static_cast<size_t>(columns * rows));
  for (int y = 0; y < rows * kBlock; ++y) {
    for (int x = 0; x < columns * kBlock; ++x) {
      const auto grey = [&](const Picture& picture) {
        return static_cast<unsigned char>(picture.pixels[static_cast<size_t>(y * picture.width + x)]);
      };
      sums[static_cast<size_t>(y / kBlock * columns + x / kBlock)] += grey(left) - grey(right);
    }
  }
  const auto differs = [&](double sum) { return std::abs(sum) > tolerance * kBlock * kBlock; };
  return static_cast<double>(std::count_if(sums.begin(), sums.end(), differs)) /
         static_cast<double>(sums.size());
}

// A person has looked at the kept pictures. The second renderer is of another family: it knows the symbol
// fonts in the default encoding, which the first leaves blank, and sets colours and letters a little
// differently.
TEST_P(Readers, PagesLookAsTheyDid) {
  std::vector<Picture> kept, first;
  for (int page = 1; page <= kGalleryPages; ++page) {
    const std::string number = std::to_string(page);
    kept.push_back(PictureOf(
        "mutool draw -q -o OUT.pgm " TARVANE_DATA_DIR "/../docs/screenshots/pdf-gallery-" + number + ".png"));
    first.push_back(PictureOf("pdftoppm -r 48 -gray -singlefile -f " + number + " " + Gallery() + " OUT"));
    const Picture second = PictureOf("mutool draw -q -r 48 -o OUT.pgm " + Gallery() + " " + number);
    EXPECT_LE(Difference(first.back(), kept.back(), 24), 0.01) << page;
    EXPECT_LE(Difference(second, kept.back(), 48), 0.03) << page;
  }
  EXPECT_GT(Difference(first[0], kept[1], 24), 0.05) << "the measure sees a page that isn't the one meant";
}

}  // namespace
}  // namespace tarvane::pdf
