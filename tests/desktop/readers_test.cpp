#include <gmock/gmock.h>

#include <QAccessible>
#include <QLineEdit>
#include <QTabBar>

#include "desktop/shown_form.h"

namespace tarvane::desktop {
namespace {

using testing::ElementsAre;

using ReadersTest = TrialTest;

TEST_F(ReadersTest, CaptionsUnitsAndHeadingsNameTheFields) {
  const Piece track = build_.Fields(
      {{"&Track:", {{screen_.Width, {.unit = "in"}}, build_.Text("or"), {screen_.Length, {.unit = "cm"}}}},
       {"Style", {screen_.Style}}});
  Show(
      {build_.Group("Measures", {track, build_.Field(screen_.Notes)}),
       build_.Pages(
           screen_.Steps, {[this] {
             return build_.Row({build_.Text("Rooms"), build_.List(screen_.List), build_.Table(screen_.Rows)});
           }})});
  using Told = std::tuple<const Control&, const char*, const char*>;
  for (const auto& [control, name, description] :
       {Told(screen_.Width, "Track, in", "Measures"), Told(screen_.Length, "or, cm", "Measures"),
        Told(screen_.Style, "Style", "Measures"), Told(screen_.Notes, "Measures", ""),
        Told(screen_.List, "Rooms", "One"), Told(screen_.Rows, "One", "")}) {
    EXPECT_EQ(Of(control)->accessibleName(), name) << control.name();
    EXPECT_EQ(Of(control)->accessibleDescription(), description) << control.name();
  }
}

TEST_F(ReadersTest, APageIsBuiltOnceAndShownHoweverItIsAskedForIfTheScreenAllowsIt) {
  int built = 0;
  bool allowed = false;
  screen_.Steps.SetGate([&allowed](int) { return allowed; });
  const auto second = [this, &built] {
    ++built;
    return build_.Field(screen_.Length);
  };
  Show({build_.Pages(screen_.Steps, {[this] { return build_.Field(screen_.Width); }, second})});
  auto* bar = Of<QTabBar>(screen_.Steps);
  auto* read = QAccessible::queryAccessibleInterface(bar)->child(1)->actionInterface();
  const std::function<void()> asks[] = {
      [bar] { Click(bar, bar->tabRect(1).center()); },
      [] { Key(Qt::Key_2, Qt::ControlModifier); },
      [bar] { Focus(bar), Key(Qt::Key_Right); },
      [read] { read->doAction(QAccessibleActionInterface::pressAction()); },
  };
  for (const auto& ask : asks) {
    screen_.Steps.Select(0);
    Settle();
    for (const bool allows : {false, true}) {
      EXPECT_EQ(built, &ask == asks ? 0 : 1) << "a page that wasn't looked at costs nothing";
      allowed = allows;
      ask();
      Settle();
      EXPECT_EQ(screen_.Steps.selected(), allows ? 1 : 0);
      EXPECT_EQ(bar->currentIndex(), allows ? 1 : 0);
      EXPECT_EQ(Of(screen_.Width)->isVisible(), !allows);
    }
    EXPECT_TRUE(Of(screen_.Length)->isVisible());
  }
  EXPECT_EQ(built, 1);
}

TEST_F(ReadersTest, AClickOnTheTabThatIsShownIsTold) {
  int told = 0;
  screen_.Steps.OnSelectedAgain([&told] { ++told; });
  const auto page = [this] { return build_.Field(screen_.Width); };
  Show({build_.Pages(screen_.Steps, {page, [this] { return build_.Field(screen_.Length); }})});
  auto* bar = Of<QTabBar>(screen_.Steps);
  for (const int tab : {0, 1, 1}) {
    Click(bar, bar->tabRect(tab).center());
    Settle();
  }
  EXPECT_EQ(told, 2);
  EXPECT_EQ(screen_.Steps.selected(), 1);
}

TEST_F(ReadersTest, WhatIsToComeIsHiddenUntilItIsAskedFor) {
  screen_.Later.SetTip("Prints the job");
  const Piece later = build_.Group("Still to come", {build_.Press(screen_.Later)});
  Show({later, build_.Fields({{"Others", {screen_.Never}}, {"Width", {screen_.Width}}})});
  EXPECT_THAT(Seen(shown_.window), ElementsAre("Width"));
  Form::SetShowsToCome(true);
  EXPECT_THAT(Seen(shown_.window),
              testing::UnorderedElementsAre("Still to come", "Later", "Others", "Never", "Width"));
  EXPECT_EQ(Of(screen_.Later)->toolTip(), "Prints the job\nStill to come");
  EXPECT_FALSE(Of(screen_.Later)->isEnabled());
  screen_.Frame.SetVisible(false);
  Settle();
  EXPECT_TRUE(Of(screen_.Later)->isVisible());
  Form::SetShowsToCome(false);
  EXPECT_THAT(Seen(shown_.window), ElementsAre("Width"));
}

TEST_F(ReadersTest, ArrowsWalkAlongWhatIsOneTabStop) {
  auto& names = screen_.Names;
  Show({build_.Text(names[0]), build_.Text(names[1]), build_.Text(names[2]), build_.Field(screen_.Width)});
  build_.OneTabStop({&names[0], &names[1], &names[2]}, [] { return 1; });
  StartAt(screen_.Width);
  // The preferred one, no further than the first, and one Tab stop in both directions.
  const std::pair<Qt::Key, const Control*> steps[] = {
      {Qt::Key_Tab, &names[1]},   {Qt::Key_Up, &names[0]},           {Qt::Key_Up, &names[0]},
      {Qt::Key_End, &names[2]},   {Qt::Key_Backtab, &screen_.Width}, {Qt::Key_Tab, &names[1]},
      {Qt::Key_Return, &names[1]}};
  for (const auto& [key, there] : steps) {
    Key(key);
    EXPECT_TRUE(IsAt(*there)) << there->name() << " by " << key;
  }
  EXPECT_EQ(screen_.log.back(), "name 1");
  Key(Qt::Key_Tab);
  EXPECT_TRUE(IsAt(screen_.Width));
}

TEST_F(ReadersTest, AFlowGoesOnInTheNextRow) {
  Show({build_.Flow({build_.Field(screen_.Width, {.width = 20}), Builder::Spring(),
                     build_.Field(screen_.Length, {.width = 20}), build_.Press(screen_.Save)}),
        Builder::Spring()});
  const auto* first = Of(screen_.Width);
  const auto* second = Of(screen_.Length);
  const auto* third = Of(screen_.Save);
  const auto fit = [this](int width) {
    shown_.window.resize(width, 400);
    Settle();
  };
  fit(1000);
  EXPECT_EQ(first->geometry().center().y(), second->geometry().center().y());
  EXPECT_GT(second->x(), 1000 - 2 * second->width()) << "behind the spring";
  fit(first->width() + 60);
  EXPECT_GE(second->y(), first->y() + first->height());
  EXPECT_EQ(second->x(), first->x());
  EXPECT_GE(third->y(), second->y() + second->height());
  screen_.Frame.SetVisible(false);
  Settle();
  EXPECT_LT(third->y(), first->y() + 2 * first->height() + 20) << "what is hidden takes no room";
}

TEST(FindingTest, FindersFoldAndRecordBarsStepByKeys) {
  FakeHost host;
  Screen screen(host, "Catalogue");
  DataSource data;
  RecordBar bar(&screen, data);
  Finder finder(&screen, data, "Jobs", {{"Name", ""}, {"Town", ""}}, {});
  std::string steps;
  bar.CmdPrevious.OnClicked([&steps] { steps += "previous "; });
  bar.CmdNext.OnClicked([&steps] { steps += "next "; });
  ShownForm shown(screen);
  shown.Show({shown.build.Records(bar), shown.build.Find(finder), Builder::Spring()});
  const auto* category = shown.WidgetOf(finder.CboFabSearch);
  const auto* text = shown.WidgetOf<QLineEdit>(finder.FabSText);
  EXPECT_EQ(category->accessibleName(), "Find by");
  EXPECT_EQ(text->accessibleName(), "Search String");
  EXPECT_EQ(text->placeholderText(), "* and ? may be used");
  EXPECT_EQ(shown.WidgetOf(bar.CmdNext)->accessibleName(), "Next record");
  for (const int width : {1000, 600}) {
    shown.window.resize(width, 200);
    Settle();
    EXPECT_EQ(text->y() > category->geometry().bottom(), width == 600);
    EXPECT_EQ(category->geometry().center().y() == text->geometry().center().y(), width == 1000);
  }
  Key(Qt::Key_Left, Qt::AltModifier);
  Key(Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(steps, "previous next ");
}

}  // namespace
}  // namespace tarvane::desktop
