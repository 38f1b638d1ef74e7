// Files that are damaged, or made to make the reader slow or greedy.
#include <gtest/gtest.h>

#include <functional>

#include "counted_memory.h"
#include "rich_text/rtf.h"

namespace tarvane::rich_text {
namespace {

const std::string kBegin = "{\\rtf1{\\fonttbl{\\f0 A;}{\\f1\\fcharset128 B;}}";
const std::string kRow = "\\trowd\\cellx9\\intbl ";

std::string Many(std::string_view begin, const std::function<std::string(int)>& piece) {
  constexpr std::size_t kSize = 1'000'000;
  std::string rtf(begin);
  for (int number = 0; rtf.size() < kSize; ++number) rtf += piece(number);
  return rtf;
}
std::string Many(std::string_view begin, const std::string& piece) {
  return Many(begin, [&](int) { return piece; });
}
std::string Number(int number) { return std::to_string(number); }

std::string ManyTabs() {
  std::string tabs;
  for (int at = 1; at < 100; ++at) tabs += "\\tx" + Number(at);
  return tabs;
}

TEST(Hostile, MemoryStaysWithinTenTimesTheFile) {
  const std::function<std::string()> files[] = {
      [] { return Many(kBegin, "{"); },
      [] { return Many(kBegin, "{\\b"); },
      [] { return Many(kBegin, "\\b a\\b0 a"); },
      [] { return Many(kBegin, "{\\b.}."); },
      [] { return Many(kBegin, "\\f1.\\f0."); },
      [] { return Many(kBegin, "\\fs1a\\fs2a"); },
      [] { return Many(kBegin, [](int n) { return "\\fs" + Number(n % 3000) + "a"; }); },
      [] { return Many(kBegin, "\\par"); },
      [] { return Many(kBegin, "\\\n"); },
      [] { return Many(kBegin, "{\\b\\\n}\\\n"); },
      [] { return Many(kBegin, "\\qc\\\n\\ql\\\n"); },
      [] { return Many(kBegin, [](int n) { return "\\li" + Number(n) + "\\par"; }); },
      [] { return Many(kBegin, [](int n) { return "\\tx" + Number(n) + "\\par"; }); },
      [] { return Many(kBegin, [](int n) { return "\\tx" + Number(n); }); },
      [] { return Many(kBegin + ManyTabs(), [](int n) { return "\\li" + Number(n) + "\\par"; }); },
      [] { return Many(kBegin, "\\'41"); },
      [] { return Many(kBegin, "\x80"); },
      [] { return Many("{\\rtf1{\\fonttbl\\f0\\fcharset128 A;}", "\x83J"); },
      [] { return Many(kBegin, "\\_"); },
      [] { return Many(kBegin, "\\u65?"); },
      [] { return Many(kBegin, "\\u-1"); },
      [] { return Many(kBegin, "\\cell\\row"); },
      [] { return Many(kRow, "\\cell\\row"); },
      [] { return Many(kRow, "\\cell"); },
      [] { return Many(kRow, "a\\row"); },
      [] { return Many(kBegin, "\\trowd\\cellx9\\cell\\row"); },
      [] { return Many(kRow, [](int n) { return "\\trleft" + Number(n) + "\\cell\\row"; }); },
      [] { return Many(kRow, "\\cellx9\\cell\\row"); },
      [] { return Many(kBegin, "\\cellx9"); },
      [] { return Many("{\\rtf1{\\fonttbl", [](int n) { return "\\f" + Number(n) + "F;"; }); },
      [] {
        return Many("{\\rtf1{\\fonttbl", [](int n) { return "\\f" + Number(n) + "F" + Number(n) + ";"; });
      },
      [] { return Many("{\\rtf1{\\fonttbl", "a"); },
      [] { return Many("{\\rtf1{\\colortbl", ";"); },
      [] { return Many(kBegin, "{\\pict\\pngblip00}"); },
      [] { return Many(kBegin + "{\\pict\\pngblip ", "00"); },
      [] { return Many(kBegin, "{\\*\\x"); },
      [] { return Many(kBegin, "\\page a"); },
      [] { return Many(kBegin, [](int n) { return n < 60'000 ? "a b c d" : "{\\b.}."; }); },
  };
  for (const auto& file : files) {
    const std::string rtf = file();
    ForgetPeak();
    const std::size_t before = MemoryInUse();
    const Document document = ReadRtf(rtf);
    constexpr std::size_t kGround = 300'000;
    EXPECT_LE(PeakMemory() - before, rtf.size() * 10 + kGround) << rtf.substr(0, 90);
    EXPECT_TRUE(IsSound(document)) << rtf.substr(0, 90);
  }
}

TEST(Hostile, DeepNestingKeepsItsText) {
  constexpr std::size_t kDepth = 100'000;
  std::string rtf = "{\\rtf1 ";
  for (std::size_t depth = 0; depth < kDepth; ++depth) rtf += "{\\b";
  rtf += " deep{\\*\\x skipped}" + std::string(kDepth, '}') + " behind}";
  EXPECT_EQ(ReadRtf(rtf).text, "deep behind");
}

TEST(Hostile, EveryBeginningOfAFileIsRead) {
  const std::string rtf =
      "{\\rtf1\\ansi{\\fonttbl{\\f0\\fswiss A;}}{\\colortbl;\\red1;}{\\*\\x y}\\pard\\qc "
      "a\\'e9\\u8364\\'80{\\b b}"
      "{\\pict\\pngblip\\picwgoal9 89504e47}{\\pict\\jpegblip\\bin3 abc}\\trowd\\cellx9\\intbl c\\cell\\row}";
  const std::string whole = ReadRtf(rtf).text;
  for (std::size_t size = 0; size < rtf.size(); ++size) {
    const Document document = ReadRtf(rtf.substr(0, size));
    EXPECT_TRUE(IsSound(document)) << size;
    EXPECT_LE(document.text.size(), whole.size()) << size;
  }
  EXPECT_EQ(ReadRtf(rtf.substr(0, rtf.find("{\\b"))).text, "aé€");
}

TEST(Hostile, NumbersOfAnySizeDoNoHarm) {
  const std::string words[] = {"f",    "fs",  "cf",  "li",       "fi",      "sb",       "sl",
                               "tx",   "u",   "uc",  "trleft",   "cellx",   "b",        "red",
                               "deff", "bin", "cpg", "fcharset", "ansicpg", "picwgoal", "slmult"};
  for (const std::string& word : words) {
    for (const char* number :
         {"-99999999999999999999", "-2147483648", "-1", "0", "65536", "2147483647", "9999999999"}) {
      const Document document =
          ReadRtf("{\\rtf1{\\fonttbl\\" + word + number + " F;}\\" + word + number + " a\\cell\\row b}");
      EXPECT_TRUE(IsSound(document)) << word << number;
    }
  }
}

}  // namespace
}  // namespace tarvane::rich_text
