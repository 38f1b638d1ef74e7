#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "architecture/include_rules.h"

namespace tarvane {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(Includes, PointDownOnly) { EXPECT_THAT(FindWrongIncludes(TARVANE_SOURCE_DIR), IsEmpty()); }

class PlantedIncludes : public testing::Test {
 protected:
  void SetUp() override {
    std::string name = (fs::temp_directory_path() / "includes-XXXXXX").string();
    ASSERT_NE(mkdtemp(name.data()), nullptr);
    src_ = name;
    for (const char* file :
         {"text_number/text_number.h", "store/row_set.h", "pdf/document.h", "screen/field.h",
          "tools/list_admin.h", "curtain_wizard/wizard.h", "app/main_screen.h"}) {
      Write(file, "#pragma once\n");
    }
  }
  void TearDown() override { fs::remove_all(src_); }

  void Write(const std::string& file, const std::string& text) {
    fs::create_directories((src_ / file).parent_path());
    std::ofstream(src_ / file) << text;
  }

  fs::path src_;
};

TEST_F(PlantedIncludes, RightOnesPass) {
  Write("screen/field.cpp", "#include \"screen/field.h\"\n#include <vector>\n#include \"store/row_set.h\"\n");
  Write("desktop/window.cpp", "#include <QWidget>\n#include \"app/main_screen.h\"\n");
  Write("store/database.cpp",
        "#include <sqlite3.h>\n  #  include \"text_number/text_number.h\"  // numbers\n");
  Write("app/version.h.in", "");
  Write("desktop/about.cpp", "#include \"app/version.h\"\n");
  EXPECT_THAT(FindWrongIncludes(src_), IsEmpty());
}

TEST_F(PlantedIncludes, EachWrongOneIsTold) {
  struct Case {
    const char* file;
    const char* include;
    const char* complaint;
  };
  const Case cases[] = {
      {"screen/a.cpp", "\"app/main_screen.h\"", "screen/ includes app/, which stands above it"},
      {"text_number/a.h", "\"store/row_set.h\"", "text_number/ includes store/, which stands above it"},
      {"store/a.h", "\"pdf/document.h\"", "store/ includes its sibling pdf/"},
      {"blinds/a.cpp", "\"curtain_wizard/wizard.h\"", "blinds/ includes its sibling curtain_wizard/"},
      {"tools/a.cpp", "\"curtain_wizard/wizard.h\"",
       "tools/ includes curtain_wizard/, which stands above it"},
      {"screen/a.cpp", "\"field.h\"", "\"field.h\" is no file below src/"},
      {"screen/a.cpp", "\"screen/../app/main_screen.h\"", "screen/ includes app/, which stands above it"},
      {"screen/a.cpp", "<QString>", "<QString> is for desktop/ alone"},
      {"app/a.cpp", "<QtWidgets/QLabel>", "<QtWidgets/QLabel> is for desktop/ alone"},
      {"job/a.cpp", "<sqlite3.h>", "<sqlite3.h> is for store/ alone"},
  };
  for (const auto& [file, include, complaint] : cases) {
    Write(file, std::string("\n#include ") + include + "\n");
    EXPECT_THAT(FindWrongIncludes(src_), ElementsAre(std::string(file) + ":2: " + complaint));
    fs::remove(src_ / file);
  }
}

TEST_F(PlantedIncludes, AFolderOutsideTheLayersIsTold) {
  Write("helpers/a.cpp", "");
  EXPECT_THAT(FindWrongIncludes(src_), ElementsAre("helpers/a.cpp: helpers has no place in the layers"));
}

}  // namespace
}  // namespace tarvane
