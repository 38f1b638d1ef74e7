#include <gmock/gmock.h>

#include <QFile>
#include <QLabel>
#include <QScreen>
#include <QTemporaryDir>
#include <algorithm>
#include <cmath>
#include <fstream>
#include <iterator>

#include "desktop/form_table.h"
#include "desktop/program.h"
#include "desktop/readers.h"
#include "desktop/shop_check.h"
#include "desktop/shop_test.h"
#include "desktop/theme.h"
#include "screen/kinds.h"

namespace tarvane::desktop {
namespace {

TEST(HostTest, QuestionsHaveTheirPresetAndClosingGivesTheLastAnswer) {
  QtHost host;
  const Question question{
      "Delete Item...", "Are You Sure?\r\nYes?", {Answer::kYes, Answer::kNo}, Answer::kNo, Icon::kWarning};
  for (const bool yes : {true, false}) {
    const NextBox box(yes ? "Yes" : "");
    EXPECT_EQ(host.Ask(question), yes ? Answer::kYes : Answer::kNo);
    EXPECT_EQ(box.text, "Are You Sure?\nYes?");
    EXPECT_EQ(box.title, "Delete Item...");
    EXPECT_EQ(box.preset, "No");
  }
  const NextBox box("OK");
  host.Message("Tarvane", "<b>5 < 6</b>", Icon::kNone);
  EXPECT_EQ(box.text, "<b>5 < 6</b>") << "markup is text like any other";
}

TEST(HostTest, WhatNobodyCanShowOrOpenIsAFault) {
  QtHost host;
  Screen unknown(host, "FrmUnknown");
  EXPECT_THROW(host.RunModal(unknown), Fault);
  EXPECT_THROW(host.Launch("no such thing"), Fault);
  host.SetClipboardText("Brontë £5\r\n");
  EXPECT_EQ(host.ClipboardText(), "Brontë £5\r\n");
}

TEST(ProgramTest, ReadsItsCommandLine) {
  EXPECT_EQ(ParseOptions({}).folder, "");
  const ProgramOptions options = ParseOptions({"--theme", "dark", "/shop", "--text-size", "14"});
  EXPECT_EQ(options.folder, "/shop");
  EXPECT_EQ(options.scheme, ColourScheme::kDark);
  EXPECT_EQ(options.text_size, 14);
  EXPECT_TRUE(ParseOptions({"--benchmark-start"}).benchmark_start);
  EXPECT_EQ(ParseOptions({"--screenshots", "out"}).screenshots, "out");
  EXPECT_EQ(ParseOptions({"--text-size", "12", "--", "--double"}).folder, "--double");
  EXPECT_EQ(ParseOptions({"file:x"}).folder, "file:x");
  const std::vector<std::string> wrongs[] = {
      {"--theme"}, {"--theme", "blue"}, {"--text-size", "7"}, {"--text-size", "12x"},
      {"--what"},  {"a", "b"},          {"--", "a", "b"}};
  for (const auto& wrong : wrongs) EXPECT_THROW(ParseOptions(wrong), Fault) << testing::PrintToString(wrong);
}

// A folder, what is done to it first, and what is told of it; "" where it can be opened.
TEST(ShopCheckTest, TellsWhatIsWrongWithAFolder) {
  namespace fs = std::filesystem;
  const SampleShop sample;
  const fs::path base = sample.folder().parent_path();
  const auto copy = [&](const char* name) {
    fs::copy(sample.folder(), base / name, fs::copy_options::recursive);
    return base / name / "Dat" / "Tarvane.mdb";
  };
  std::ofstream(base / "file") << "no folder";
  fs::create_directory(base / "empty");
  std::ofstream(copy("text")) << std::string(5000, 'x');
  fs::resize_file(copy("short"), 100);
  const std::tuple<const char*, std::string_view, std::string_view> cases[] = {
      {"shop", "", ""},
      {"nowhere", "The shop's folder isn't there.", "There is no folder"},
      {"file", "This is no folder.", "is a file"},
      {"empty", "This folder is no shop.", "Dat/Tarvane.mdb"},
      {"text", "The shop's jobs can't be opened.", "it is not a database"},
      {"short", "The shop's jobs can't be opened.", "it is not a database"},
  };
  for (const auto& [folder, what, why] : cases) {
    Shop shop(base / folder);
    const auto trouble = FindTrouble(shop);
    EXPECT_EQ(trouble ? trouble->what : "", what) << folder;
    if (!trouble) continue;
    EXPECT_THAT(trouble->why, testing::HasSubstr(why)) << folder;
    EXPECT_FALSE(trouble->help.empty()) << folder;
  }
}

TEST(HostTest, WindowsStayOnTheScreen) {
  QWidget window;
  const QRect room = QApplication::primaryScreen()->availableGeometry();
  for (const QRect& wrong :
       {QRect(-500, -300, 400, 300), QRect(room.right() - 10, room.bottom() - 10, 300, 200),
        QRect(0, 0, 9000, 9000)}) {
    window.setGeometry(wrong);
    KeepOnScreen(window);
    EXPECT_TRUE(room.contains(window.frameGeometry())) << window.x() << " " << window.y();
  }
}

TEST(ThemeTest, ComesBackFromTheWorkersSettings) {
  SaveTheme({ColourScheme::kDark, 15});
  EXPECT_EQ(LoadTheme().scheme, ColourScheme::kDark);
  EXPECT_EQ(LoadTheme().text_size, 15);
  SaveTheme({});
  EXPECT_EQ(LoadTheme().scheme, ColourScheme::kSystem);
}

// Walks along the table of all forms, each as the worker comes to it.
class FormsTest : public ShopTest {
 protected:
  void VisitAll(const std::function<void(Form&)>& look) {
    std::vector<std::string> seen;
    Run([&](Form& form) {
      // The splash comes up by itself as well.
      if (std::ranges::find(seen, form.screen().name()) == seen.end()) {
        seen.push_back(form.screen().name());
        look(form);
      }
      if (&form.screen() != &main_) return;
      for (const FormEntry& entry : Forms()) {
        if (entry.show != nullptr) entry.show(main_);
      }
    });
    std::vector<std::string> all;
    for (const FormEntry& entry : Forms()) all.emplace_back(entry.name);
    EXPECT_THAT(seen, testing::UnorderedElementsAreArray(all));
  }
};

// What a person can see must also be reached by one without a mouse.
bool NeedsTab(const Control& control, const QWidget& widget) {
  if (As<Panel>(control) != nullptr || qobject_cast<const QLabel*>(&widget) != nullptr) return false;
  // What only shows another field's value, and names that arrow keys walk along.
  if (widget.isEnabled() && !control.enabled()) return false;
  if (As<Label>(control) != nullptr && widget.focusPolicy() == Qt::ClickFocus) return false;
  // The wizard's steps are walked with Back and Next.
  return control.name() != "StepTabs";
}

TEST_F(FormsTest, EveryControlHasAPlaceATabStopAndAName) {
  std::string to_come;
  VisitAll([&to_come](Form& form) {
    form.BuildAll();
    for (const Control* control : form.screen().controls()) {
      std::string called = form.screen().name() + " " + control->name();
      if (control->index() >= 0) called += "(" + std::to_string(control->index()) + ")";
      SCOPED_TRACE(called);
      if (control->to_come()) to_come += called + "\n";
      EXPECT_FALSE(control->to_come() && control->enabled());
      const QObject* made = form.WidgetOf(*control);
      // A panel is but a switch; what stands in it is seen.
      EXPECT_TRUE(made != nullptr || control->never_shown() || As<Panel>(*control) != nullptr);
      const auto* widget = qobject_cast<const QWidget*>(made);
      if (widget == nullptr) continue;
      EXPECT_TRUE(!NeedsTab(*control, *widget) || (widget->focusPolicy() & Qt::TabFocus)) << "no Tab stop";
      EXPECT_FALSE(NeedsName(*widget) && widget->accessibleName().isEmpty()) << "no name for readers";
    }
  });
  // A word for each that is still to come: a screen that is built takes its words out of this list.
  std::ifstream told(std::string(TARVANE_TEST_DATA) + "/to_come.txt");
  EXPECT_EQ(to_come, std::string(std::istreambuf_iterator<char>(told), {}));
}

// What stays of a screen of 640 by 480 holds every window, and every page of a job.
TEST_F(FormsTest, WindowsFitASmallScreenAndTheirAccessKeysAreDistinct) {
  VisitAll([this](Form& form) {
    const auto check = [&form](const std::string& page) {
      form.Flush();
      Settle();
      const QSize least = form.window()->minimumSizeHint();
      EXPECT_TRUE(Form::shows_to_come() || (least.width() <= 640 && least.height() <= 440))
          << form.screen().name() << " " << page << " " << least.width() << " x " << least.height();
      ExpectDistinctAccessKeys(*form.window(), form.screen().name() + " " + page);
    };
    check("");
    for (const bool to_come : {false, true}) {
      if (&form.screen() != &main_) break;
      Form::SetShowsToCome(to_come);
      check("start");
      main_.OpenRecord();
      for (int page = 0; page < 4; ++page) {
        main_.SSTab2.Select(page);
        check(std::to_string(page));
      }
      main_.CloseRecord();
    }
    Form::SetShowsToCome(false);
  });
}

double Luminance(const QColor& colour) {
  const auto part = [](double value) {
    return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) + 0.0722 * part(colour.blueF());
}

double Contrast(const QColor& one, const QColor& other) {
  const double a = Luminance(one);
  const double b = Luminance(other);
  return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

TEST(ThemeTest, TextsReadWellInLightAndDark) {
  using P = QPalette;
  std::vector<std::tuple<P::ColorGroup, P::ColorRole, P::ColorRole>> cases = {
      {P::Active, P::WindowText, P::Window},          {P::Active, P::Text, P::Base},
      {P::Active, P::Text, P::AlternateBase},         {P::Active, P::ButtonText, P::Button},
      {P::Active, P::PlaceholderText, P::Window},     {P::Active, P::PlaceholderText, P::ToolTipBase},
      {P::Active, P::HighlightedText, P::Highlight},  {P::Active, P::ToolTipText, P::ToolTipBase},
      {P::Inactive, P::HighlightedText, P::Highlight}};
  for (const auto text : {P::WindowText, P::Text, P::ButtonText}) {
    for (const auto ground : {P::Window, P::Base, P::Button}) cases.emplace_back(P::Disabled, text, ground);
  }
  const Theme before = CurrentTheme();
  for (const ColourScheme scheme : {ColourScheme::kLight, ColourScheme::kDark}) {
    ApplyTheme({scheme});
    const QPalette palette = QApplication::palette();
    for (const auto& [group, text, ground] : cases) {
      EXPECT_GE(Contrast(palette.color(group, text), palette.color(group, ground)), 4.5)
          << group << ": roles " << text << " on " << ground << ", scheme " << static_cast<int>(scheme);
    }
    // What is selected where the worker is, and elsewhere.
    const QColor here = palette.color(P::Highlight);
    for (const auto& [one, other] : {std::pair(here, palette.color(P::Inactive, P::Highlight)),
                                     {here, palette.color(P::Base)},
                                     {WrongColour(), palette.color(P::Base)}}) {
      EXPECT_GE(Contrast(one, other), 3);
    }
  }
  ApplyTheme(before);
}

}  // namespace
}  // namespace tarvane::desktop
