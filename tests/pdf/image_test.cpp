#include <gmock/gmock.h>

#include <random>

#include "pdf/jpeg.h"
#include "pdf/pdf_test_support.h"

namespace tarvane::pdf {
namespace {

constexpr char kCannot[] = "Cannot add image to PDF file.\nFile Image is non JPEG";
constexpr char kMarker[] = "Cannot add iamge to PDF file.\nInvalid JPEG marker";
constexpr char kResolution[] =
    "Cannot add image to PDF file.\nInvalid image resolution\nValid resolution is: 0, 1, 2.";

struct Sample {
  std::string name;
  std::string_view color_space;
  std::string_view unit;
};
const std::vector<Sample> kSamples = {
    {"turbo_rgb.jpg", "DeviceRGB", "Dots"},
    {"turbo_gray.jpg", "DeviceGray", "Dots"},
    {"turbo_progressive.jpg", "DeviceRGB", "Dots"},
    {"turbo_restart.jpg", "DeviceRGB", "Dots"},
    {"magick_cmyk.jpg", "DeviceCMYK", "Dots/inch (DPI)"},
    {"ffmpeg_rgb.jpg", "DeviceRGB", ""},
    {"guetzli_rgb.jpg", "DeviceRGB", "Dots"},
    {"stb_rgb.jpg", "DeviceRGB", "Dots"},
    {"jfxx_thumbnail.jpg", "DeviceRGB", "Dots"},
    {"exif_thumbnail.jpg", "DeviceRGB", ""},
};

TEST(Jpeg, FilesOfSeveralEncoders) {
  for (const Sample& sample : kSamples) {
    JpegInfo info;
    EXPECT_EQ(ParseJpeg(FileBytes(ImageFile(sample.name)), info), std::nullopt) << sample.name;
    EXPECT_EQ(info.width, 48) << sample.name;
    EXPECT_EQ(info.height, 32) << sample.name;
    EXPECT_EQ(info.color_space, sample.color_space) << sample.name;
    EXPECT_EQ(info.bits_per_component, 8) << sample.name;
    EXPECT_EQ(info.resolution_unit, sample.unit) << sample.name;
  }
}

// A file made of segments, filled up to the least size.
std::string Made(const std::string& segments) {
  std::string bytes = "\xFF\xD8" + segments;
  bytes.resize(std::max<size_t>(bytes.size(), 300), 'x');
  return bytes + "\xFF\xD9";
}

std::string Bytes(std::initializer_list<int> values) {
  std::string out;
  for (const int value : values) out += static_cast<char>(value);
  return out;
}

std::string Frame(int marker, int components) {
  return Bytes({0xFF, marker, 0, 17, 8, 0, 32, 0, 48, components}) + std::string(9, '\1');
}

std::string Application(int unit) {
  return Bytes({0xFF, 0xE0, 0, 16, 'J', 'F', 'I', 'F', 0, 1, 1, unit, 0, 1, 0, 1, 0, 0});
}

TEST(Jpeg, MadeFiles) {
  struct Case {
    std::string name;
    std::string bytes;
    std::optional<ImageError> error;
  };
  const auto marker = ImageError::kInvalidMarker;
  const auto resolution = ImageError::kInvalidResolution;
  const std::vector<Case> cases = {
      {"colour", Made(Frame(0xC0, 3)), std::nullopt},
      {"fill bytes", Made("\xFF\xFF\xFF" + Frame(0xC3, 1)), std::nullopt},
      {"two components", Made(Frame(0xC7, 2)), std::nullopt},
      {"no unit", Made(Application(0) + Frame(0xC6, 4)), std::nullopt},
      {"unknown unit", Made(Application(3) + Frame(0xC0, 4)), resolution},
      {"short application segment", Made(Bytes({0xFF, 0xE0, 0, 4, 'J', 'F'}) + Frame(0xC0, 3)), resolution},
      {"zero length", Made(Bytes({0xFF, 0xDB, 0, 0}) + Frame(0xC0, 3)), marker},
      {"length one", Made(Bytes({0xFF, 0xDB, 0, 1}) + Frame(0xC0, 3)), marker},
      {"length two", Made(Bytes({0xFF, 0xDB, 0, 2}) + Frame(0xC0, 3)), std::nullopt},
      {"beyond the end", Made(Bytes({0xFF, 0xDB, 0xFF, 0xFF}) + Frame(0xC0, 3)), marker},
      {"no marker", Made("abcd"), marker},
      {"no frame before the data", Made(Bytes({0xFF, 0xDA, 0, 2})), marker},
      {"arithmetic coding is no frame", Made(Frame(0xC9, 3)), marker},
      {"frame too short", Made(Bytes({0xFF, 0xC0, 0, 4, 8, 0})), marker},
      {"no height", Made(Bytes({0xFF, 0xC0, 0, 11, 8, 0, 0, 0, 9, 3, 0, 0, 0})), marker},
      {"largest", Made(Bytes({0xFF, 0xC0, 0, 11, 8, 0xFF, 0xFF, 0xFF, 0xFF, 3, 0, 0, 0})), std::nullopt},
      {"fill bytes to the end", Made(std::string(300, '\xFF')), marker},
      {"no end marker", Made(Frame(0xC0, 3)) + "\n", marker},
      {"no start marker", std::string("x") + Made(Frame(0xC0, 3)), marker},
      {"249 bytes", Made(Frame(0xC0, 3)).substr(0, 247) + "\xFF\xD9", ImageError::kNotJpeg},
      {"empty", "", ImageError::kNotJpeg},
  };
  for (const Case& c : cases) {
    JpegInfo info;
    EXPECT_EQ(ParseJpeg(c.bytes, info), c.error) << c.name;
  }
  for (const int frame : {0xC0, 0xC1, 0xC2, 0xC3, 0xC5, 0xC6, 0xC7}) {
    JpegInfo info;
    EXPECT_EQ(ParseJpeg(Made(Frame(frame, 3)), info), std::nullopt) << frame;
    EXPECT_EQ(info.width * 1000 + info.height, 48032);
  }
  const std::string_view units[] = {"Dots", "Dots/inch (DPI)", "Dots/cm"};
  JpegInfo info;
  for (int unit = 0; unit < 3; ++unit) {
    EXPECT_EQ(ParseJpeg(Made(Application(unit) + Frame(0xC0, 3)), info), std::nullopt);
    EXPECT_EQ(info.resolution_unit, units[unit]);
  }
  ParseJpeg(Made(Frame(0xC0, 2)), info);
  EXPECT_EQ(info.color_space, "");
  EXPECT_EQ(info.bits_per_component, 16) << "eight times the components";
}

TEST(Jpeg, CutAndChangedFilesEndInAnAnswer) {
  std::mt19937 random(7);
  for (const Sample& sample : kSamples) {
    const std::string whole = FileBytes(ImageFile(sample.name));
    JpegInfo info;
    for (size_t length = 0; length < whole.size(); ++length) {
      EXPECT_NE(ParseJpeg(whole.substr(0, length), info), std::nullopt) << sample.name << ' ' << length;
    }
    for (int round = 0; round < 2000; ++round) {
      std::string changed = whole;
      for (int change = 0; change < 4; ++change) changed[random() % 200] = static_cast<char>(random());
      if (!ParseJpeg(changed, info)) {
        EXPECT_GT(std::min(info.width, info.height), 0);
      }
    }
  }
}

TEST(Image, RefusedWithTheMessageThatFits) {
  ScratchFolder folder;
  WriteBytes(folder / "small.jpg", "tiny");
  WriteBytes(folder / "bad.jpg", Made("abcd"));
  WriteBytes(folder / "unit.jpeg", Made(Application(9) + Frame(0xC0, 3)));
  WriteBytes(folder / "CAPITALS.JPG", FileBytes(ImageFile("turbo_rgb.jpg")));
  struct Case {
    std::string path, title, text;
  };
  const std::vector<Case> cases = {
      {"picture", "tqrPDF 1.0Image File - ",
       "Invalid filename specified.\npicture does not have an extension"},
      {folder / "CAPITALS.JPG", "tqrPDF 1.0Image File - ",
       "Impossible to include image in PDF file.\nOnly JPEG images are supported."},
      {folder / "missing.jpg", "tqrPDF 1.0File Image - ", kCannot},
      {folder / "small.jpg", "tqrPDF 1.0File Image - ", kCannot},
      {folder / "bad.jpg", "tqrPDF 1.0File Image - ", kMarker},
      {folder / "unit.jpeg", "tqrPDF 1.0File Image - ", kResolution},
  };
  for (const Case& c : cases) {
    SeenMessages messages;
    const std::string page = Drawn(
        [&](tqrPDF& document) {
          double width = 5, height = 0;
          document.PDFImage(c.path, 1, 1, width, height);
          EXPECT_EQ(height, 0);
        },
        &messages);
    EXPECT_EQ(page, "") << c.path;
    ASSERT_EQ(messages.list.size(), 1u) << c.path;
    EXPECT_EQ(messages.list[0].title, c.title);
    EXPECT_EQ(messages.list[0].text, c.text);
    EXPECT_EQ(messages.list[0].icon, Icon::kStop);
  }
}

TEST(Image, SizesAndOperator) {
  struct Case {
    double width, height, new_width, new_height;
  };
  for (const Case& c :
       {Case{0, 0, 48, 32}, Case{10, 0, 10, 10 * 32 / 48.0}, Case{0, 64, 96, 64}, Case{7, 9, 7, 9}}) {
    double width = c.width, height = c.height;
    const std::string page = Drawn(
        [&](tqrPDF& document) { document.PDFImage(ImageFile("turbo_gray.jpg"), 20, 30, width, height); });
    EXPECT_DOUBLE_EQ(width, c.new_width);
    EXPECT_DOUBLE_EQ(height, c.new_height);
    std::string matrix;
    AppendFixed(matrix, c.new_width, Mask::k0_00);
    matrix += " 0 0 ";
    AppendFixed(matrix, c.new_height, Mask::k0_00);
    matrix += " 20.00 ";
    AppendFixed(matrix, 842 - 30 - c.new_height, Mask::k0_00);
    EXPECT_EQ(page, Lines({"%DEBUT_IMAGE/%", "q", matrix + " cm /ImgJPEG1 Do Q", "%FIN_IMAGE/%"}));
  }
  tqrPDF document;
  EXPECT_EQ(document.PDFImageWidth(ImageFile("stb_rgb.jpg")), 48);
  EXPECT_EQ(document.PDFImageHeight(ImageFile("stb_rgb.jpg")), 32);
  EXPECT_EQ(document.PDFImageWidth("missing.jpg"), 0);
}

TEST(Image, GoesIntoTheFileUnchanged) {
  ScratchFolder folder;
  tqrPDF document(FixedSurroundings());
  document.PDFFileName(folder / "images.pdf");
  document.PDFBeginDoc();
  for (const Sample& sample : kSamples) {
    double width = 2, height = 0;
    document.PDFImage(ImageFile(sample.name), 1, 1, width, height);
  }
  document.PDFEndDoc();
  const std::string pdf = FileBytes(folder / "images.pdf");
  int number = 0;
  for (const Sample& sample : kSamples) {
    const std::string bytes = FileBytes(ImageFile(sample.name));
    const std::string place = std::to_string(++number);
    const std::string object =
        Lines({std::to_string(number + 5) + " 0 obj", "<</Type /XObject", "/Subtype /Image",
               "/Filter [/DCTDecode ]", "/Width 48", "/Height 32",
               "/ColorSpace /" + std::string(sample.color_space), "/BitsPerComponent 8",
               "/Length " + std::to_string(bytes.size()), "/Name /ImgJPEG" + place + ">>", "stream", bytes,
               "endstream", "endobj"});
    EXPECT_NE(pdf.find("\n" + object), std::string::npos) << sample.name;
    EXPECT_NE(pdf.find("/ImgJPEG" + place + " " + std::to_string(number + 5) + " 0 R\r\n"),
              std::string::npos);
  }
}

}  // namespace
}  // namespace tarvane::pdf
