#include "desktop/window_drawing.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <QPicture>
#include <cmath>
#include <functional>
#include <limits>
#include <vector>

#include "curtain_wizard/wizard.h"
#include "desktop/shop_test.h"

namespace tarvane::desktop {
namespace {

using Sketch = curtain_wizard::WindowSketch;

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
  const Sketch usual{100, 80, 54, 2, 4, 90, 9, 10, {true, true, true, true, 5}, 2, true, true};
  ASSERT_GT(DrawnBytes({.sketch = usual}), 2000);
  double Sketch::*const kMeasures[] = {&Sketch::track,    &Sketch::drop,          &Sketch::fabric_width,
                                       &Sketch::fullness, &Sketch::widths,        &Sketch::cut_length,
                                       &Sketch::hem,      &Sketch::pattern_repeat};
  constexpr Heading kHeadings[] = {Heading::kGathered, Heading::kGoblet, Heading::kBoxPleat, Heading::kFlat};
  for (const double value : {0.0, 1e-300, 0.001, 1.0, 54.0, 1e6, 1e300}) {
    Sketch all = usual;
    all.trim.depth = value;
    for (double Sketch::*measure : kMeasures) {
      all.*measure = value;
      Sketch sketch = usual;
      sketch.*measure = value;
      for (const Heading heading : kHeadings) {
        EXPECT_LT(DrawnBytes({.sketch = sketch, .heading = heading}), 400'000) << value;
      }
    }
    EXPECT_LT(DrawnBytes({.sketch = all}), 400'000) << value;
  }
}

// Seen, and said to those who don't see it.
TEST(WindowDrawingTest, ShowsWhatGoesWithTheCurtain) {
  const std::pair<std::function<void(Sketch&)>, const char*> cases[] = {
      {[](Sketch& s) { s.trim = {.top = true, .depth = 5}; }, "5 in border at top"},
      {[](Sketch& s) { s.trim = {.bottom = true}; }, "trim at bottom"},
      {[](Sketch& s) { s.trim = {.sides = true}; }, "trim at sides"},
      {[](Sketch& s) { s.trim = {.sides = true, .middle = true}; }, "trim at four sides"},
      {[](Sketch& s) { s.tie_backs = 1; }, "1 tie back"},
      {[](Sketch& s) { s.tie_backs = 2; }, "tie backs"},
      {[](Sketch& s) { s.lined = true; }, "lined"},
      {[](Sketch& s) { s.interlined = true; }, "interlined"},
      {[](Sketch& s) { s.outdated = true; }, "From other measurements: calculate again"},
  };
  const Sketch plain{
      .track = 100, .drop = 80, .fabric_width = 54, .fullness = 2, .widths = 4, .cut_length = 90};
  // Without the notes below.
  const auto picture = [](WindowDrawing& drawing) {
    const int notes = static_cast<int>(drawing.fontMetrics().height() * 4.4);
    return drawing.grab(QRect(0, 0, drawing.width(), drawing.height() - notes)).toImage();
  };
  WindowDrawing drawing;
  drawing.resize(700, 500);
  std::vector<QImage> seen;
  for (const auto& [add, said] : cases) {
    drawing.Show({.sketch = plain});
    const QString before = drawing.accessibleDescription();
    if (seen.empty()) seen.push_back(picture(drawing));
    Sketch sketch = plain;
    add(sketch);
    drawing.Show({.sketch = sketch});
    EXPECT_EQ(drawing.accessibleDescription(), before + ", " + said);
    seen.push_back(picture(drawing));
    for (std::size_t i = 0; i + 1 < seen.size(); ++i) EXPECT_NE(seen[i], seen.back()) << said << " " << i;
  }
}

TEST(WindowDrawingTest, ReadsCentimetresAsTheyAreTyped) {
  TrialHost host;
  Shop shop("no-such-folder");
  job::JobScreen job(host, shop);
  curtain_wizard::MainCWizard wizard(host, shop, job);
  wizard.TrackWidthIns.SetEnabled(false);
  wizard.TrackWidthIns.SetText("98.43");
  // The worker's figure, not the rounded inches nor those that follow later; the last one is in millimetres.
  for (const auto& [typed, cm] : {std::pair("250", 250), {"300", 300}, {"", 0}, {"2500", 250}}) {
    wizard.TrackWidthCm.UserType(typed);
    EXPECT_NEAR(ReadWindow(wizard).sketch.track * 2.54, cm, 1e-9) << typed;
  }
  EXPECT_EQ(ReadWindow(wizard).unit, LengthUnit::kCentimetres);
  wizard.FinishedLengthIns.SetText("80");
  wizard.FabricWidthIns.SetText("54");
  wizard.CmdCalculate.Press();
  EXPECT_FALSE(ReadWindow(wizard).sketch.outdated);
  wizard.TrackWidthCm.UserType("310");
  EXPECT_TRUE(ReadWindow(wizard).sketch.outdated) << "before the inches follow";
  wizard.TrackWidthCm.UserType("");
  EXPECT_FALSE(ReadWindow(wizard).sketch.outdated) << "nothing is said of a window without a track";
  wizard.InputInInches.Set(true);
  EXPECT_EQ(ReadWindow(wizard).unit, LengthUnit::kInches);
  wizard.CboCurtainStyle.SetText("Goblet Pleat");
  EXPECT_EQ(ReadWindow(wizard).heading, Heading::kGoblet);
}

}  // namespace
}  // namespace tarvane::desktop
