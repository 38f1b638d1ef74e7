#include "screen/screen.h"

#include <gtest/gtest.h>

#include "support/fake_host.h"

namespace tarvane {
namespace {

class Child : public Screen {
 public:
  explicit Child(Host& host) : Screen(host, "Child") {
    Done.OnClicked([this] { Close(); });
  }
  Button Done{this, "Done", "&Done"};
  bool fault_in_load = false;
  bool may_close = true;

 protected:
  void Load() override {
    if (fault_in_load) throw Fault("no file");
  }
  bool MayClose() override { return may_close; }
};

class Parent : public Screen {
 public:
  explicit Parent(Host& host) : Screen(host, "Parent") {
    Inches.OnChanged([this] { trace.push_back("changed"); });
    Inches.OnEntered([this] { trace.push_back("entered"); });
    Inches.OnLeft([this] { trace.push_back("left"); });
    Inches.OnTyped([this] { trace.push_back("typed"); });
    Inches.OnEnterKey([this] { trace.push_back("enter"); });
    Open.OnClicked([this] {
      trace.push_back("open");
      ShowModal(child);
      trace.push_back("after");
    });
    Fail.OnClicked([this] {
      Inches.SetText("half");
      throw Fault("it went wrong");
    });
    Lined.OnClicked([this] { trace.push_back("lined"); });
  }
  std::vector<std::string> trace;
  Child child{host()};
  Panel Step{this, "Step"};
  TextField Inches{&Step, "Inches"};
  TextField Other{this, "Other"};
  Button Open{this, "Open", "&Open"};
  Button Fail{this, "Fail", "Fail"};
  TickBox Lined{this, "Lined", "Lined"};
  OptionButton None{this, "None", "None", 1};
  OptionButton Some{this, "Some", "Some", 1};
  OptionButton Apart{this, "Apart", "Apart", 2};
  DropDownList Style{this, "Style"};
  TabStrip Tabs{this, "Tabs", {"One", "Two", "Three"}};
  HeldGrid Rows0{this, "Rows", {"Line", "Price"}, 0};
  HeldGrid Rows1{this, "Rows", {"Line", "Price"}, 1};
  int current = 1;

 protected:
  void Activate() override { trace.push_back("activate"); }
  int CurrentMember(std::string_view name) const override { return name == "Rows" ? current : -1; }
};

using Trace = std::vector<std::string>;

TEST(Screen, TypingMovesTheFocusAndRunsTheRulesOnce) {
  FakeHost host;
  Parent screen(host);
  screen.Inches.UserType("54");
  screen.Inches.UserType("54");
  screen.Inches.UserEnterKey();
  screen.Open.SetEnabled(false);
  screen.Open.UserPress();
  EXPECT_EQ(screen.trace, (Trace{"entered", "changed", "typed", "typed", "enter", "left"}));
  screen.trace.clear();
  screen.Inches.SetText("54");
  EXPECT_TRUE(screen.trace.empty());
  screen.Inches.SetText("55");
  EXPECT_EQ(screen.trace, Trace{"changed"});
}

TEST(Screen, AParentIsActivatedAfterItsChildClosedAndBeforeTheCallerGoesOn) {
  FakeHost host;
  Parent screen(host);
  host.OnShow<Parent>([](Parent& parent) { parent.Open.UserPress(); });
  host.OnShow<Child>([](Child& child) { child.Done.UserPress(); });
  screen.RunAsMain();
  EXPECT_EQ(host.shown, (Trace{"Parent", "Child"}));
  EXPECT_EQ(screen.trace, (Trace{"activate", "open", "activate", "after"}));
}

TEST(Screen, AFaultEndsTheActionIsToldAndLeavesTheScreen) {
  FakeHost host;
  Parent screen(host);
  screen.Fail.UserPress();
  EXPECT_EQ(host.messages, Trace{"it went wrong"});
  EXPECT_EQ(screen.Inches.text(), "half");

  host.messages.clear();
  screen.child.fault_in_load = true;
  screen.Open.UserPress();
  EXPECT_EQ(host.messages, Trace{"no file"});
  EXPECT_FALSE(screen.child.is_shown());
}

TEST(Screen, TheCloseButtonAsksFirst) {
  FakeHost host;
  Child child(host);
  child.may_close = false;
  child.UserClose();
  EXPECT_FALSE(child.is_closed());
  child.may_close = true;
  child.UserClose();
  EXPECT_TRUE(child.is_closed());
}

TEST(Screen, FindsControlsByNameAliasAndIndex) {
  FakeHost host;
  Parent screen(host);
  screen.Inches.AddAlias("Text9");
  EXPECT_EQ(screen.Find("Text9"), &screen.Inches);
  EXPECT_EQ(screen.Find("Rows", 0), &screen.Rows0);
  EXPECT_EQ(screen.Find("Rows"), &screen.Rows1);
  screen.current = 0;
  EXPECT_EQ(screen.Find("Rows"), &screen.Rows0);
  EXPECT_EQ(screen.Find("Rows", 7), nullptr);
  EXPECT_EQ(screen.Find("inches"), nullptr);
}

TEST(Controls, TicksAndOptions) {
  FakeHost host;
  Parent screen(host);
  screen.Lined.Set(true);
  EXPECT_TRUE(screen.trace.empty());
  screen.Lined.UserSet(true);
  EXPECT_TRUE(screen.trace.empty()) << "no change of state, no click action";
  screen.Lined.UserSet(false);
  EXPECT_EQ(screen.trace, Trace{"lined"});
  screen.Apart.Set(true);
  screen.None.Set(true);
  screen.Some.Set(true);
  EXPECT_FALSE(screen.None.on());
  EXPECT_TRUE(screen.Some.on());
  EXPECT_TRUE(screen.Apart.on()) << "another group";
}

TEST(Controls, AControlInAHiddenPanelIsNotShown) {
  FakeHost host;
  Parent screen(host);
  screen.Step.SetVisible(false);
  EXPECT_FALSE(screen.Inches.shown());
  EXPECT_TRUE(screen.Inches.visible());
}

TEST(Controls, TabsMayBeGated) {
  FakeHost host;
  Parent screen(host);
  screen.Tabs.SetGate([](int tab) { return tab != 2; });
  screen.Tabs.UserSelect(2);
  EXPECT_EQ(screen.Tabs.selected(), 0);
  screen.Tabs.UserSelect(1);
  EXPECT_EQ(screen.Tabs.selected(), 1);
  screen.Tabs.Select(9);
  EXPECT_EQ(screen.Tabs.selected(), 1);
}

TEST(Controls, AClickOnTheSelectedTabIsToldApart) {
  FakeHost host;
  Parent screen(host);
  std::string told;
  screen.Tabs.OnSelected([&] { told += 'm'; });
  screen.Tabs.OnSelectedAgain([&] { told += 'a'; });
  screen.Tabs.UserSelect(0);
  screen.Tabs.UserSelect(1);
  screen.Tabs.UserSelect(1);
  screen.Tabs.Select(1);
  EXPECT_EQ(told, "ama");
}

TEST(HeldGrid, TheCursorStaysOnARowWhileThereIsOne) {
  FakeHost host;
  Parent screen(host);
  HeldGrid& grid = screen.Rows0;
  EXPECT_EQ(grid.selected_row(), 0);
  EXPECT_EQ(grid.Text(0, 1), "Price");
  grid.SetRows({{"1", "5.00"}, {"2"}});
  EXPECT_EQ(grid.selected_row(), 1);
  EXPECT_EQ(grid.Text(2, 1), "") << "a short row";
  EXPECT_EQ(grid.Text(3, 0), "");
  grid.UserSelectRow(2);
  grid.RemoveLastRow();
  EXPECT_EQ(grid.selected_row(), 1);
  grid.Clear();
  EXPECT_EQ(grid.selected_row(), 0);
  EXPECT_THROW(grid.SetText(1, 0, "x"), Fault);
}

}  // namespace
}  // namespace tarvane
