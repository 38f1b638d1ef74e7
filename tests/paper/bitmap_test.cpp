#include <gtest/gtest.h>

#include <functional>
#include <limits>

#include "paper/bitmap_page.h"
#include "paper/metric_measure.h"
#include "support/temporary_folder.h"

namespace tarvane::paper {
namespace {

constexpr Color kWhite{255, 255, 255};
constexpr Color kRed{200, 0, 0};
const Paper kSmall = {{75, 75}, {}};  // 100 pixels a side

class BitmapPageTest : public testing::Test {
 protected:
  MetricMeasure measure_{TARVANE_DATA_DIR "/Fonts"};
  BitmapPage page_{measure_, kSmall};
  TemporaryFolder folder_;
};

TEST_F(BitmapPageTest, WhatIsDrawnStandsWhereItBelongs) {
  struct Case {
    const char* what;
    std::function<void(Surface&)> draw;
    Point inside, outside;  // pixels
    Color color;
  };
  const Stroke thick{.width = 3, .color = kRed};
  const Font font{.points = 40};
  const Case cases[] = {
      {"line",
       [&](Surface& on) {
         on.DrawLine({7.5, 15}, {60, 15}, thick);
       },
       {50, 20},
       {5, 20},
       kRed},
      {"hairline",
       [](Surface& on) {
         on.DrawLine({15.4, 3}, {15.4, 70}, {.width = 0, .color = kRed});
       },
       {20, 50},
       {22, 50},
       kRed},
      {"filling",
       [](Surface& on) {
         on.DrawBox({15, 30, 45, 45}, nullptr, &kRed);
       },
       {58, 41},
       {58, 39},
       kRed},
      {"outline",
       [&](Surface& on) {
         on.DrawBox({15, 30, 45, 45}, &thick, nullptr);
       },
       {40, 40},
       {40, 50},
       kRed},
      {"disc",
       [](Surface& on) {
         on.DrawEllipse({15, 15, 60, 60}, nullptr, &kRed);
       },
       {50, 22},
       {23, 23},
       kRed},
      {"circle",
       [&](Surface& on) {
         on.DrawEllipse({15, 15, 60, 60}, &thick, nullptr);
       },
       {20, 50},
       {50, 50},
       kRed},
      {"picture",
       [](Surface& on) {
         on.DrawPicture({}, {15.3, 15.3, 60, 60});
       },
       {50, 20},
       {50, 50},
       {128, 128, 128}},
      {"word",
       [&](Surface& on) {
         on.DrawText({6, 45}, font, "nn", {});
       },
       {20, 50},
       {20, 30},
       {127, 127, 127}},
      {"second word",
       [&](Surface& on) {
         on.DrawText({0, 45}, font, "i i", {{}, 30});
       },
       {70, 50},
       {50, 50},
       {127, 127, 127}},
      {"text turned up",
       [&](Surface& on) {
         on.DrawText({45, 60}, font, "nn", {{}, 0, 90});
       },
       {50, 40},
       {70, 70},
       {127, 127, 127}},
  };
  for (const Case& each : cases) {
    SCOPED_TRACE(each.what);
    page_.NewPage();
    each.draw(page_);
    EXPECT_EQ(page_.At(static_cast<int>(each.inside.x), static_cast<int>(each.inside.y)), each.color);
    EXPECT_EQ(page_.At(static_cast<int>(each.outside.x), static_cast<int>(each.outside.y)), kWhite);
  }
}

TEST_F(BitmapPageTest, WhatLiesOutsideIsCutOff) {
  const double none = std::numeric_limits<double>::quiet_NaN();
  for (const double far : {-1e300, -50.0, 1e6, 1e300, std::numeric_limits<double>::infinity(), none}) {
    page_.DrawLine({far, 10}, {10, far}, {far, {}});
    page_.DrawBox({-10, -10, far, far}, nullptr, &kRed);
    page_.DrawText({far, 10}, {.points = far}, "far away", {{}, 0, far});
  }
  page_.Clear();
  page_.DrawBox({-1000, -1000, 1000, 1000}, nullptr, &kRed);
  EXPECT_EQ(page_.At(0, 0), kRed);
  EXPECT_EQ(page_.At(99, 99), kRed);
}

TEST_F(BitmapPageTest, TheFileHasTheSizeOfTheSheet) {
  struct Case {
    Size sheet;
    int width, height;
  };
  for (const auto& [sheet, width, height] : {Case{Paper{}.size, 794, 1123}, Case{{0, -5}, 1, 1},
                                             Case{{60'000, 30}, 8000, 4}, Case{{75, 1.5}, 100, 2}}) {
    const BitmapPage page(measure_, {sheet, {}});
    EXPECT_EQ(page.width(), width);
    EXPECT_EQ(page.height(), height);
    page.Save(folder_.path() / "page.bmp");
    const auto row = static_cast<std::uintmax_t>((width * 3 + 3) / 4 * 4);
    EXPECT_EQ(std::filesystem::file_size(folder_.path() / "page.bmp"),
              54 + row * static_cast<unsigned>(height));
  }
}

TEST_F(BitmapPageTest, AFileThatCannotBeWrittenFaultsWithItsName) {
  for (const char* file : {"/dev/full", "/no-such-folder/page.bmp"}) {
    try {
      page_.Save(file);
      ADD_FAILURE() << file;
    } catch (const Fault& fault) {
      EXPECT_NE(std::string(fault.what()).find(file), std::string::npos) << fault.what();
    }
  }
  EXPECT_TRUE(std::filesystem::exists("/dev/full"));
}

}  // namespace
}  // namespace tarvane::paper
