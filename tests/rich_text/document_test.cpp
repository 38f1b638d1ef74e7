#include "rich_text/document.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

#include "dump.h"
#include "rich_text/picture.h"
#include "rich_text/rtf.h"

namespace tarvane::rich_text {
namespace {

using namespace std::string_literals;

TEST(PlainText, BecomesADocumentAndBack) {
  struct Case {
    std::string given;
    std::string text;
    std::string plain;
  };
  const Case cases[] = {
      {"", "", ""},
      {"a\r\nb\rc\nd\n", "a\nb\nc\nd\n", "a\r\nb\r\nc\r\nd\r\n"},
      {"a\xC3\xA9\t\x01\0\x7F"s, "aé\t\x7F", "aé\t\x7F"},
      {"a\xE9"
       "b\xE2\x82",
       "a\xEF\xBF\xBD"
       "b\xEF\xBF\xBD\xEF\xBF\xBD",
       "a\xEF\xBF\xBD"
       "b\xEF\xBF\xBD\xEF\xBF\xBD"},
      {"\xED\xA0\x80", "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD", "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD"},
      {"\xEF\xBF\xBC", "\xEF\xBF\xBD", "\xEF\xBF\xBD"},
      {"a\xE2\x80\xA8"
       "b€",
       "a\xE2\x80\xA8"
       "b€",
       "a\r\nb€"},
  };
  for (const Case& each : cases) {
    const Document document = FromPlainText(each.given);
    EXPECT_TRUE(IsSound(document)) << each.given;
    EXPECT_EQ(document.text, each.text);
    EXPECT_EQ(PlainText(document), each.plain);
  }
}

TEST(PlainText, FormFeedBeginsAPage) {
  EXPECT_EQ(Dump(FromPlainText("a\fb\nc\f", {.half_points = 24, .color = {}, .bold = true}, "F")),
            "[] {F 12 bold}a\n[ page] b\n[] c\n[ page] \n");
}

TEST(PlainText, HasTabsBetweenCellsAndNoPictures) {
  const Document document = ReadRtf(
      "{\\rtf1\\trowd\\cellx1\\cellx2\\intbl a\\par b\\cell{\\pict\\pngblip 00}c\\cell\\row d\\cell "
      "e\\cell\\row\\pard f}");
  EXPECT_EQ(PlainText(document), "a\r\nb\tc\r\nd\te\r\nf");
}

TEST(Sound, TellsWhatIsBroken) {
  const std::string rtf =
      "{\\rtf1{\\pict\\pngblip 00}\\b a\\par\\trowd\\cellx5\\cellx9\\intbl b\\cell "
      "c\\cell\\row\\pard\\tx5\\tx9 d}";
  ASSERT_TRUE(IsSound(ReadRtf(rtf)));
  const std::function<void(Document&)> breaks[] = {
      [](Document& broken) { broken.text += '\0'; },
      [](Document& broken) { broken.text += '\xFF'; },
      [](Document& broken) { broken.text += '\n'; },
      [](Document& broken) { broken.text += kPictureSign; },
      [](Document& broken) { broken.runs.clear(); },
      [](Document& broken) { broken.runs.front().begin = 1; },
      [](Document& broken) { broken.runs.back().style.font = 9; },
      [](Document& broken) { broken.runs.back().style.half_points = 0; },
      [](Document& broken) {
        broken.runs.push_back({5, broken.runs.back().style});
      },
      [](Document& broken) {
        broken.runs.push_back({99, {}});
      },
      [](Document& broken) { broken.paragraphs.pop_back(); },
      [](Document& broken) { broken.paragraphs.back().style = 99; },
      [](Document& broken) { broken.paragraphs.back().begin += 1; },
      [](Document& broken) { broken.paragraphs.back().row = 1; },
      [](Document& broken) { broken.paragraphs[2].cell = 0; },
      [](Document& broken) { broken.rows.pop_back(); },
      [](Document& broken) { broken.rows[0].cells[1].right = 4; },
      [](Document& broken) {
        broken.rows[0].cells.pop_back();
        broken.paragraphs[2].cell = 2;
      },
      [](Document& broken) { broken.fonts.clear(); },
      [](Document& broken) { broken.pictures[0].width = 0; },
      [](Document& broken) { broken.pictures[0].bytes.clear(); },
      [](Document& broken) { broken.paragraph_styles.back().tabs[0].at = 9; },
      [](Document& broken) { broken.paragraph_styles.back().before = -1; },
      [](Document& broken) { broken.paragraph_styles.back().left = kLongest + 1; },
  };
  for (std::size_t at = 0; at < std::size(breaks); ++at) {
    Document broken = ReadRtf(rtf);
    breaks[at](broken);
    EXPECT_FALSE(IsSound(broken)) << "number " << at;
  }
}

TEST(Pictures, TellTheirSize) {
  const std::string png = "\x89PNG\r\n\x1A\n\0\0\0\rIHDR\0\0\1\0\0\0\0\2"s;
  const std::string jpeg = "\xFF\xD8\xFF\xE0\0\4ab\xFF\xFF\xD0\xFF\xC4\0\2\xFF\xC2\0\x0B\x08\0\7\1\2"s;
  const auto made = MakePicture(png);
  ASSERT_TRUE(made);
  EXPECT_EQ(*made, (Picture{Picture::Format::kPng, png, 256 * 15, 30}));
  EXPECT_EQ(PictureSize({Picture::Format::kPng, jpeg}), (PixelSize{258, 7}));
  for (const std::string& whole : {png, jpeg}) {
    for (std::size_t size = 0; size < whole.size(); ++size) EXPECT_FALSE(MakePicture(whole.substr(0, size)));
  }
  EXPECT_FALSE(MakePicture("GIF89a"));
}

TEST(Writing, KeepsTokensInOnePieceAndIsAscii) {
  Document document = FromPlainText("Dear #Name#, 5 €\tпривет 😀 {\\}\xC2\xA0\xC2\xAD", {}, "Ärial");
  const std::string rtf = WriteRtf(document);
  EXPECT_THAT(rtf, testing::HasSubstr("Dear #Name#, 5 \\u8364\\'80\\tab "));
  EXPECT_THAT(rtf, testing::HasSubstr("\\u-10179?\\u-8704? \\{\\\\\\}\\~\\-"));
  EXPECT_TRUE(std::all_of(rtf.begin(), rtf.end(), [](unsigned char byte) { return byte < 0x7F; }));
  EXPECT_TRUE(SameContent(ReadRtf(rtf), document));
}

TEST(Writing, LooksOfEmptyTextsAndMarksAreKept) {
  Document document = FromPlainText("a\n\nb", {.half_points = 50, .color = {1, 2, 3}, .bold = true});
  document.runs.push_back({1, {.half_points = 20, .color = {}, .italic = true}});
  document.runs.push_back({2, {.half_points = 20, .color = {}, .underline = true, .strike = true}});
  document.runs.push_back({3, {}});
  for (const Document& each : {document, FromPlainText("", document.runs[0].style), Document{}}) {
    EXPECT_TRUE(SameContent(ReadRtf(WriteRtf(each)), each)) << WriteRtf(each);
  }
}

TEST(Escaping, ValuesStandAmidRtf) {
  const std::string value = "{A}\\ b\r\nc\nd\te \xC3\xA9 \xE2\x82\xAC \xF0\x9F\x98\x80\xFF\x01";
  const std::string rtf = EscapeForRtf(value);
  EXPECT_EQ(
      rtf, "{\\uc1 \\{A\\}\\\\ b\\line c\\line d\\tab e \\u233\\'e9 \\u8364\\'80 \\u-10179?\\u-8704?\\u-3?}");
  EXPECT_EQ(ReadRtf("{\\rtf1\\uc0 <" + rtf + ">}").text,
            "<{A}\\ b\xE2\x80\xA8"
            "c\xE2\x80\xA8"
            "d\te é € 😀\xEF\xBF\xBD>");
  // Right behind a control word.
  for (const std::string plain : {"Anna", "5", " x", "-1", ""}) {
    EXPECT_EQ(ReadRtf("{\\rtf1\\fs20" + EscapeForRtf(plain) + " y}").text, plain + " y");
  }
}

}  // namespace
}  // namespace tarvane::rich_text
