#include <gtest/gtest.h>

#include <random>

#include "pdf/jpeg.h"
#include "pdf/pdf_test_support.h"
#include "pdf/script.h"

namespace tarvane::pdf {
namespace {

const std::vector<std::string> kSamples = {
    "turbo_rgb.jpg",  "turbo_gray.jpg",  "turbo_progressive.jpg", "turbo_restart.jpg",  "magick_cmyk.jpg",
    "ffmpeg_rgb.jpg", "guetzli_rgb.jpg", "stb_rgb.jpg",           "jfxx_thumbnail.jpg", "exif_thumbnail.jpg"};

std::string Found(const std::string& bytes) {
  static constexpr const char* kErrors[] = {"no extension", "no JPEG name", "no JPEG", "invalid marker",
                                            "invalid resolution"};
  JpegInfo info;
  if (const auto error = ParseJpeg(bytes, info)) return kErrors[static_cast<int>(*error)];
  return std::to_string(info.width) + " x " + std::to_string(info.height) + " " +
         std::string(info.color_space) + " " + std::to_string(info.bits_per_component) + " " +
         std::string(info.resolution_unit);
}

// Files made of segments, in hexadecimal digits.
TEST(Jpeg, MadeFiles) {
  std::string all;
  for (const ScriptCase& made : ReadScript("jpegs.txt")) {
    const std::string& digits = made.calls.at(0);
    std::string bytes;
    for (size_t at = 0; at < digits.size(); at += 2)
      bytes += static_cast<char>(std::stoi(digits.substr(at, 2), nullptr, 16));
    all += "== " + made.name + "\r\n> " + digits + "\r\n" + Found(bytes) + "\r\n";
  }
  ExpectGolden("jpegs.txt", all);
}

TEST(Jpeg, CutAndChangedFilesEndInAnAnswer) {
  std::mt19937 random(7);
  for (const std::string& name : kSamples) {
    const std::string whole = FileBytes(ImageFile(name));
    JpegInfo info;
    for (size_t length = 0; length < whole.size(); ++length)
      EXPECT_NE(ParseJpeg(whole.substr(0, length), info), std::nullopt) << name << ' ' << length;
    for (int round = 0; round < 2000; ++round) {
      std::string changed = whole;
      for (int change = 0; change < 4; ++change) changed[random() % 200] = static_cast<char>(random());
      EXPECT_TRUE(ParseJpeg(changed, info) || (info.width > 0 && info.height > 0)) << name << ' ' << round;
    }
  }
}

TEST(Image, FilesOfSeveralEncodersGoInUnchanged) {
  const std::string pdf = Written([](tqrPDF&) {},
                                  [](tqrPDF& document) {
                                    for (const std::string& name : kSamples) {
                                      double width = 2, height = 0;
                                      document.PDFImage(ImageFile(name), 1, 1, width, height);
                                    }
                                    EXPECT_EQ(document.PDFImageWidth(ImageFile("stb_rgb.jpg")), 48);
                                    EXPECT_EQ(document.PDFImageHeight(ImageFile("stb_rgb.jpg")), 32);
                                    EXPECT_EQ(document.PDFImageWidth("missing.jpg"), 0);
                                  });
  std::string all;
  size_t end = 0;
  for (const std::string& name : kSamples) {
    const std::string bytes = FileBytes(ImageFile(name));
    const size_t head = pdf.find("<</Type /XObject", end);
    const size_t begin = pdf.find("stream\r\n", head) + 8;
    end = begin + bytes.size();
    EXPECT_EQ(pdf.substr(begin, bytes.size() + 13), bytes + "\r\nendstream\r\n") << name;
    all += name + ": " + Found(bytes) + "\r\n" + pdf.substr(head, begin - head);
  }
  ExpectGolden("images.txt", all);
}

}  // namespace
}  // namespace tarvane::pdf
