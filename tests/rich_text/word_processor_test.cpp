// Files that word processors wrote. letter.html and sheet.fodt are what they were given: "writer" files are
// LibreOffice 7.4's, made with `soffice --convert-to rtf` from the source or from a DOCX of it; "abiword"
// files are AbiWord 3.0's, made with `abiword --to=rtf`. The .dump files have been compared with the sources
// by eye.
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "dump.h"
#include "rich_text/rtf.h"

namespace tarvane::rich_text {
namespace {

std::string FileText(const std::string& name) {
  std::ifstream file(TARVANE_TEST_DATA "/word_processor/" + name, std::ios::binary);
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}

class WordProcessor : public testing::TestWithParam<const char*> {};

TEST_P(WordProcessor, FileIsReadAndKept) {
  const std::string name = GetParam();
  const std::string rtf = FileText(name + ".rtf");
  ASSERT_TRUE(LooksLikeRtf(rtf));
  const Document document = ReadRtf(rtf);
  EXPECT_TRUE(IsSound(document));
  EXPECT_EQ(Dump(document), FileText(name + ".dump"));
  EXPECT_TRUE(SameContent(ReadRtf(WriteRtf(document)), document));
}

INSTANTIATE_TEST_SUITE_P(Files, WordProcessor,
                         testing::Values("writer_letter", "writer_sheet", "writer_sheet_docx",
                                         "abiword_letter", "abiword_sheet"),
                         [](const auto& tested) { return std::string(tested.param); });

}  // namespace
}  // namespace tarvane::rich_text
