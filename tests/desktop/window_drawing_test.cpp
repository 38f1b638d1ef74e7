#include "desktop/window_drawing.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <QPicture>
#include <cmath>
#include <limits>

#include "curtain_wizard/wizard.h"
#include "desktop/trial_host.h"
#include "job/job_screen.h"

namespace tarvane {
namespace {

TEST(WindowDrawingTest, TheCurtainStandsToScaleWithinItsRoom) {
  struct Case {
    double track, drop;
    bool to_scale;
  };
  constexpr double kHuge = std::numeric_limits<double>::max();
  constexpr Case kCases[] = {
      {100, 80, true}, {30, 90, true},  {0, 80, false},         {100, 0, false},        {0, 0, false},
      {1e9, 1, false}, {1, 1e9, false}, {kHuge, 1e-300, false}, {1e-300, kHuge, false}, {kHuge, kHuge, true}};
  const QRectF room(20, 30, 400, 300);
  for (const Case& c : kCases) {
    const CurtainPlace place = PlaceCurtain({.track = c.track, .drop = c.drop}, room);
    EXPECT_EQ(place.to_scale, c.to_scale) << c.track << " x " << c.drop;
    EXPECT_TRUE(room.adjusted(-0.01, -0.01, 0.01, 0.01).contains(place.curtain))
        << c.track << " x " << c.drop;
    if (!c.to_scale) continue;
    EXPECT_NEAR(place.curtain.width() / place.curtain.height(), c.track / c.drop, 1e-6);
    EXPECT_NEAR(place.scale * c.drop, place.curtain.height(), 1e-6);
  }
}

TEST(WindowDrawingTest, LengthsReadInTheWorkersUnit) {
  EXPECT_EQ(LengthText(100, LengthUnit::kInches), "100 in");
  EXPECT_EQ(LengthText(100, LengthUnit::kCentimetres), "254 cm");
  EXPECT_EQ(LengthText(100, LengthUnit::kMillimetres), "2540 mm");
  EXPECT_EQ(LengthText(47.244, LengthUnit::kInches), "47.2 in");
  EXPECT_EQ(LengthText(1e300, LengthUnit::kInches), "1e+300 in");
}

// What is drawn, in bytes of drawing commands, at the size of a window.
int DrawnBytes(const DrawnWindow& window) {
  WindowDrawing drawing;
  drawing.resize(700, 500);
  drawing.Show(window);
  QPicture picture;
  QPainter painter(&picture);
  drawing.render(&painter);
  painter.end();
  return static_cast<int>(picture.size());
}

TEST(WindowDrawingTest, DrawsABoundedNumberOfLinesWhateverTheMeasuresAre) {
  constexpr double kValues[] = {0, 1e-300, 0.001, 1, 54, 1e6, 1e300};
  const WindowSketch usual{.track = 100,
                           .drop = 80,
                           .fabric_width = 54,
                           .fullness = 2,
                           .widths = 4,
                           .cut_length = 90,
                           .hem = 9,
                           .pattern_repeat = 10};
  ASSERT_GT(DrawnBytes({.sketch = usual}), 2000);
  for (double WindowSketch::*measure :
       {&WindowSketch::track, &WindowSketch::drop, &WindowSketch::fabric_width, &WindowSketch::fullness,
        &WindowSketch::widths, &WindowSketch::cut_length, &WindowSketch::hem,
        &WindowSketch::pattern_repeat}) {
    for (const double value : kValues) {
      for (const Heading heading :
           {Heading::kGathered, Heading::kGoblet, Heading::kBoxPleat, Heading::kFlat}) {
        WindowSketch sketch = usual;
        sketch.*measure = value;
        EXPECT_LT(DrawnBytes({.sketch = sketch, .heading = heading}), 400'000) << value;
      }
    }
  }
  for (const double value : kValues) {
    EXPECT_LT(DrawnBytes({.sketch = {value, value, value, value, value, value, value, value}}), 400'000)
        << value;
  }
}

TEST(WindowDrawingTest, ReadsCentimetresAsTheyAreTyped) {
  TrialHost host;
  JobScreen job(host, "no-such-folder");
  MainCWizard wizard(host, job);
  wizard.TrackWidthIns.SetEnabled(false);
  wizard.TrackWidthIns.SetText("98.43");
  wizard.TrackWidthCm.SetText("250");
  EXPECT_NEAR(ReadWindow(wizard).sketch.track * 2.54, 250, 1e-9)
      << "the worker's figure, not the rounded inches";
  wizard.TrackWidthCm.UserType("300");
  EXPECT_NEAR(ReadWindow(wizard).sketch.track * 2.54, 300, 1e-9) << "before the inches follow";
  wizard.TrackWidthCm.UserType("");
  EXPECT_EQ(ReadWindow(wizard).sketch.track, 0);
  wizard.TrackWidthCm.SetText("2500");
  EXPECT_NEAR(ReadWindow(wizard).sketch.track * 2.54, 250, 1e-9) << "millimetres";
  EXPECT_EQ(ReadWindow(wizard).unit, LengthUnit::kCentimetres);
  wizard.InputInInches.Set(true);
  EXPECT_EQ(ReadWindow(wizard).unit, LengthUnit::kInches);
  wizard.CboCurtainStyle.SetText("Goblet Pleat");
  EXPECT_EQ(ReadWindow(wizard).heading, Heading::kGoblet);
}

}  // namespace
}  // namespace tarvane
