#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "dump.h"
#include "rich_text/rtf.h"

namespace tarvane::rich_text {
namespace {

struct Snippet {
  std::string body;  // behind "{\rtf1" and tables of two fonts and two colours
  std::string dump;
};

void PrintTo(const Snippet& snippet, std::ostream* out) { *out << testing::PrintToString(snippet.body); }

class Snippets : public testing::TestWithParam<Snippet> {};

TEST_P(Snippets, AreRead) {
  const std::string rtf =
      "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0 F;}{\\f1\\fcharset204 Cyr;}{\\f2\\fcharset2 Symbol;}"
      "{\\f3\\fcharset128 Kana;}{\\f4\\fcharset77 Mac;}}{\\colortbl;\\red255\\green0\\blue10;}\\pard " +
      GetParam().body + "}";
  const Document document = ReadRtf(rtf);
  EXPECT_TRUE(IsSound(document));
  EXPECT_EQ(Dump(document), GetParam().dump);
  EXPECT_TRUE(SameContent(ReadRtf(WriteRtf(document)), document)) << WriteRtf(document);
}

std::string Plain(const std::string& text) { return "[] {F 12}" + text + "\n"; }

// A PNG's head in hex: one pixel wide, two high.
const std::string kPngHead = "89504e470d0a1a0a0000000d494844520000000100000002";

const Snippet kCharacters[] = {
    {"a b", Plain("a b")},
    {"\\{\\}\\\\ \r\nx", Plain("{}\\ x")},
    {"a\\tab b\\line c\\emdash\\endash\\lquote\\rquote\\ldblquote\\rdblquote\\bullet",
     Plain("a<tab>b<line>c—–‘’“”•")},
    {"a\\~b\\-c\\_d", Plain("a\xC2\xA0"
                            "b\xC2\xAD"
                            "c\xE2\x80\x91"
                            "d")},
    {"\\'e9\\'80\x80", Plain("é€€")},
    {"\\u233?\\u-3913 ?\\u8364\\'80x", Plain("é\xEF\x82\xB7€x")},
    {"\\uc0 \\u233 x{\\uc3\\u233 abcd}\\u234 y", Plain("éxédêy")},
    {"\\u233\\b x", "[] {F 12}é{F 12 bold}x\n"},
    {"\\u-10179?\\u-8704?.", Plain("😀.")},
    {"\\u-10179?x", Plain("\xEF\xBF\xBDx")},
    {"\\f1 \\'cf\\'f0", "[] {Cyr 12}Пр\n"},
    {"\\f2 ab\\'b7\\u-3913?", "[] {Symbol 12}αβ••\n"},
    {"\\f3 \\'83\\'4a\\'83J\\'b1\\'83\\b x", "[] {Kana 12}カカｱ\xEF\xBF\xBD{Kana 12 bold}x\n"},
    {"\\f4 \\'8e", "[] {Mac 12}é\n"},
    {"{\\upr{ansi}{\\*\\ud{uni}}}x", Plain("unix")},
    {"a{\\v hid}{\\deleted gone}b", Plain("ab")},
    {"a\\'0", Plain("a")},
    {"\\u65532?\\u1?\\u0?", Plain("\xEF\xBF\xBD")},
};

const Snippet kLooks[] = {
    {"\\b a\\b0 b{\\i c}d\\ul e\\ulnone\\strike f\\plain g",
     "[] {F 12 bold}a{F 12}b{F 12 italic}c{F 12}d{F 12 underline}e{F 12 strike}f{F 12}g\n"},
    {"\\fs21\\cf1 a\\cf0 b\\cf9 c", "[] {F 10.5 rgb 255 0 10}a{F 10.5}bc\n"},
    {"\\f9 a", Plain("a")},
    {"\\fs0\\fs-5 a\\fs99999 b", "[] {F 12}a{F 1638}b\n"},
    {"\\qc a\\par b\\par\\pard\\qr c\\par", "[ center] {F 12}a\n[ center] b\n[ right] c\n"},
    {"\\li720\\ri10\\fi-360\\sb120\\sa60\\sl-300\\slmult0 a",
     "[ left=720 right=10 first=-360 before=120 after=60 line=-300] {F 12}a\n"},
    {"\\sl360\\slmult1 a", "[ line=414] {F 12}a\n"},
    {"\\sl240\\slmult1\\sb-5 a", Plain("a")},
    {"\\li99999999999\\ri-99999999999 a", "[ left=1000000 right=-1000000] {F 12}a\n"},
    {"\\tqr\\tx900\\tx300\\tqdec\\tx600\\tx300 a", "[ tab=300 tab=decimal 600 tab=right 900] {F 12}a\n"},
    {"a\\page b\\par\\page\\par c", "[] {F 12}a\n[ page] b\n[] \n[ page] c\n"},
    {"a\\par\\sect\\sectd b\\sect\\sectd\\sbknone c", "[] {F 12}a\n[ page] b\n[] c\n"},
    {"a\\par\\pagebb b", "[] {F 12}a\n[ page] b\n"},
    {"\\b\\par", "[] {F 12 bold}\n"},
    {"a\\par\\par", "[] {F 12}a\n[] \n"},
};

const Snippet kGroups[] = {
    {"{\\*\\unknown x{y}\\bin3 }}}z}a", Plain("a")},
    {"{\\header x}{\\footnote y}{\\info{\\title t}}{\\stylesheet{\\s0 S;}}a", Plain("a")},
    {"{\\field{\\*\\fldinst LINK}{\\fldrslt shown}}", Plain("shown")},
    {"{\\listtext 1.\\tab}{\\pntext 2.\\tab}x", Plain("1.<tab>2.<tab>x")},
    {"{\\shp{\\*\\shpinst\\shpleft1{\\sp{\\sn n}{\\sv v}}{\\shptxt boxed\\par}}{\\shprslt old}}a",
     Plain("boxed") + "[] a\n"},
    {"a\\header b\\*\\foo c", Plain("abc")},
    {"a}ignored", Plain("a")},
    {"{{{a", Plain("a")},
    {"a\\bin99999 b\\bin-3 c", Plain("abc")},
};

const Snippet kTables[] = {
    {"\\trowd\\trleft-50\\clbrdrt\\brdrs\\clbrdrl\\brdrnone\\clbrdrr\\brdrw10\\brdrdb\\cellx900\\cellx500"
     "\\pard\\intbl a\\par b\\cell c\\cell\\row\\pard d",
     "row from -50: 900/9 900/0\n[cell 0] {F 12}a\n[cell 0] b\n[cell 1] c\n[] d\n"},
    {"\\trowd\\cellx1\\intbl a\\cell b\\cell c\\row",
     "row from 0: 1/0\n[cell 0] {F 12}a\n[cell 0] b\n[cell 0] c\n"},
    {"\\trowd\\cellx1\\cellx2\\cellx3\\intbl a\\cell\\row", "row from 0: 1/0\n[cell 0] {F 12}a\n"},
    {"\\intbl a\\cell b\\cell\\row\\trowd\\cellx5 c\\cell\\row",
     "[] {F 12}a\n[] b\nrow from 0: 5/0\n[cell 0] c\n"},
    {"\\trowd\\cellx1\\intbl a\\cell\\pard b\\par\\intbl c\\cell\\row",
     "[] {F 12}a\n[] b\nrow from 0: 1/0\n[cell 0] c\n"},
    {"\\trowd\\cellx1\\intbl a\\par\\itap2 n\\nestcell m\\nestcell\\nestrow{\\nonesttables\\par}\\cell\\row",
     "row from 0: 1/0\n[cell 0] {F 12}a\n[cell 0] n<tab>m<tab>\n[cell 0] \n"},
    {"\\trowd\\cellx1\\intbl unfinished", Plain("unfinished")},
};

const Snippet kPictures[] = {
    {"{\\pict\\pngblip " + kPngHead + "}", "[] {F 12}<png 24 15x30>\n"},
    {"{\\*\\shppict{\\pict{\\*\\blipuid 00}\\picscalex50\\picwgoal400\\pichgoal500\\pngblip\n" + kPngHead +
         "}}{\\nonshppict{\\pict\\wmetafile8 00}}a",
     "[] {F 12}<png 24 200x500>a\n"},
    {"{\\pict\\jpegblip " + kPngHead + "}", "[] {F 12}<png 24 15x30>\n"},
    {"{\\pict\\pngblip\\bin4 }}{{}a", "[] {F 12}<png 4 1x1>a\n"},
    {"{\\pict\\wmetafile8 0102}{\\pict\\jpegblip}a", Plain("a")},
    {"{\\pict\\jpegblip\\picwgoal9\\pichgoal2147483647\\picscaley2147483647 FfD",
     "[] {F 12}<jpeg 1 9x1000000>\n"},
};

INSTANTIATE_TEST_SUITE_P(Characters, Snippets, testing::ValuesIn(kCharacters));
INSTANTIATE_TEST_SUITE_P(Looks, Snippets, testing::ValuesIn(kLooks));
INSTANTIATE_TEST_SUITE_P(Groups, Snippets, testing::ValuesIn(kGroups));
INSTANTIATE_TEST_SUITE_P(Tables, Snippets, testing::ValuesIn(kTables));
INSTANTIATE_TEST_SUITE_P(Pictures, Snippets, testing::ValuesIn(kPictures));

struct Coded {
  std::string rtf;
  std::string text;
};

TEST(CodePages, AreTheDocumentsOrTheFonts) {
  const Coded coded[] = {
      {"{\\rtf1\\ansi\\ansicpg1250 \\'9a\\'f8}", "šř"},
      {"{\\rtf1\\mac \\'8e}", "é"},
      {"{\\rtf1\\pc \\'82\\'e1}", "éß"},
      {"{\\rtf1\\pca \\'82\\'d5}", "éı"},
      {"{\\rtf1\\ansi\\ansicpg65001 \\'e2\\'82\\'ac\xC3\xA9\xF0\x9F\x98\x80}", "€é😀"},
      {"{\\rtf1\\ansi{\\fonttbl\\f0 A;\\f1\\fcharset161 B;\\f2\\cpg437 C;}\\f1\\'e1\\f2\\'e1\\f0\\'e1}",
       "αßá"},
      {"{\\rtf1{\\fonttbl{\\f0\\fcharset134 S;}{\\f1\\fcharset129 H;}{\\f2\\fcharset136 B;}}"
       "\\'c4\\'e3\\f1\\'b0\\'a1\\f2\\'a4\\'a4}",
       "你가中"},
      {"{\\rtf1{\\fonttbl{\\f0\\fcharset177 H;}{\\f1\\fcharset178 A;}{\\f2\\fcharset186 "
       "B;}{\\f3\\fcharset162 T;}}"
       "\\'e0\\f1\\'c7\\f2\\'e0\\f3\\'fe}",
       "אاąş"},
  };
  for (const Coded& each : coded) EXPECT_EQ(ReadRtf(each.rtf).text, each.text) << each.rtf;
}

TEST(CodePages, LettersBehindHalfACharacterStay) {
  EXPECT_EQ(ReadRtf("{\\rtf1{\\fonttbl\\f0\\fcharset128 K;}\\'83!x}").text, "\xEF\xBF\xBD!x");
}

TEST(ColorTable, PartsBeyondTheirRangeStayAtItsEnd) {
  const Document document = ReadRtf("{\\rtf1{\\colortbl\\red300\\green-1\\blue7;}\\cf0 a}");
  EXPECT_EQ(document.runs.front().style.color, (Color{255, 0, 7}));
}

TEST(FontTable, NamesAreCleanedOfScriptsAndAlternatives) {
  const Document document = ReadRtf(
      "{\\rtf1{\\fonttbl{\\f0\\fcharset238{\\*\\panose 0}Arial CE{\\*\\falt Other};}{\\f7\\u233? "
      "\\'e9;}}a\\f7 b}");
  EXPECT_THAT(document.fonts, testing::ElementsAre("Arial", "é é"));
}

}  // namespace
}  // namespace tarvane::rich_text
