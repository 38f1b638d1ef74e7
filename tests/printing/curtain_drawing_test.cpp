#include "printing/curtain_drawing.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

#include "printing/grey_canvas.h"

namespace tarvane::printing {
namespace {

// The saved state of an item of 254 by 203 cm, but for `changed`.
std::string Record(const std::map<int, std::string>& changed, int fields = 65) {
  std::map<int, std::string> values = {{2, "Bay"}, {3, "100"},   {4, "80"},    {6, "2.5"},
                                       {11, "8"},  {12, "254"},  {13, "137"},  {14, "203.2"},
                                       {21, "0"},  {56, "True"}, {57, "False"}};
  for (const auto& [place, value] : changed) values[place] = value;
  std::string record;
  for (int place = 0; place < fields; ++place) record += values[place] + "~";
  return record;
}

TEST(MeasuresIn, AreTheItemsOwnInItsUnit) {
  const struct {
    std::map<int, std::string> changed;
    std::string in_words;
    double track;
    double drop;
  } cases[] = {
      {{}, "Track 254 cm, drop 203.2 cm", 2540, 2032},
      {{{21, "1"}}, "Track 100 ins, drop 80 ins", 2540, 2032},
      {{{56, "False"}, {57, "True"}, {12, "2540"}, {14, "2032"}}, "Track 2540 mm, drop 2032 mm", 2540, 2032},
  };
  for (const auto& each : cases) {
    const auto measures = MeasuresIn(Record(each.changed));
    ASSERT_TRUE(measures) << each.in_words;
    EXPECT_EQ(measures->in_words, each.in_words);
    EXPECT_NEAR(measures->track, each.track, 0.01);
    EXPECT_NEAR(measures->drop, each.drop, 0.01);
    EXPECT_NEAR(measures->hem, 101.6, 0.01);
    EXPECT_EQ(measures->fullness, 2.5);
    EXPECT_EQ(measures->description, "Bay");
  }
  EXPECT_EQ(MeasuresIn(Record({{11, "90"}}))->hem, 0);
  EXPECT_EQ(MeasuresIn(Record({{6, "plenty"}}))->fullness, 2);
  EXPECT_EQ(MeasuresIn(Record({{6, "1e9"}}))->fullness, 10);
}

TEST(MeasuresIn, OfWhatIsNoMeasureThereAreNone) {
  for (const std::string bad : {"", "0", "-5", "wide", "254cm", "nan", "inf", "1e300", "1e400", "99999"}) {
    EXPECT_FALSE(MeasuresIn(Record({{12, bad}}))) << bad;
    EXPECT_FALSE(MeasuresIn(Record({{14, bad}}))) << bad;
  }
  for (const std::string& record : {std::string(), std::string("~~~"), Record({}, 57)}) {
    EXPECT_FALSE(MeasuresIn(record)) << record;
  }
  // Its fields stand one place off, and look like measures there too.
  EXPECT_FALSE(MeasuresIn(Record({{2, "Bay~left"}})));
}

TEST(DrawCurtain, IsToScaleAndFitsBetweenTheMargins) {
  const double measures[][2] = {{2540, 2032}, {1, 1}, {1100, 800}, {6000, 3000}, {60, 64000}, {110000, 10}};
  for (const auto& [track, drop] : measures) {
    const CurtainDrawing drawing = DrawCurtain({"", track, drop, drop / 10, 2, ""});
    constexpr double kTwips = rich_text::kTwipsPerInch / 25.4;
    // What stands around the curtains is as large in all drawings.
    EXPECT_NEAR(drawing.picture.width / kTwips - track / drawing.scale, 14, 0.2) << track;
    EXPECT_NEAR(drawing.picture.height / kTwips - drop / drawing.scale, 15, 0.2) << drop;
    EXPECT_LT(drawing.picture.width, 9000) << track;
    EXPECT_LT(drawing.picture.height, 9000) << drop;
    EXPECT_TRUE(drawing.picture.bytes.starts_with("\x89PNG\r\n\x1A\n"));
  }
}

TEST(GreyCanvas, WhatLiesOutsideIsCutOffAndDarkStaysDark) {
  GreyCanvas canvas(10, 10);
  canvas.DrawLine(-1e9, 5, 1e9, 5, 2, 0);
  canvas.FillBox(-5, 4, 25, 6, 200);
  canvas.FillStripes(8, -3, 99, {100, 100, 100, 100});
  for (int x = 0; x < 10; ++x) EXPECT_EQ(canvas.Row(5)[x], 0) << x;
  EXPECT_EQ(canvas.Row(0)[7], 255);
  EXPECT_EQ(canvas.Row(9)[9], 100);
  // Half of a pixel's width.
  canvas.FillBox(2, 0, 3.5, 1, 55);
  EXPECT_EQ(canvas.Row(0)[2], 55);
  EXPECT_EQ(canvas.Row(0)[3], 155);
}

}  // namespace
}  // namespace tarvane::printing
