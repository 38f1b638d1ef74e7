#pragma once

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "desktop/builders.h"
#include "desktop/qt_host.h"
#include "desktop/windows.h"
#include "desktop/worker.h"
#include "screen/control_family.h"
#include "support/fake_host.h"

namespace tarvane::desktop {

// A screen with one control of each kind, and a log of the rules that ran.
class TrialScreen : public Screen {
 public:
  explicit TrialScreen(Host& host) : Screen(host, "Trial") {
    for (Control* control : controls()) {
      control->OnEntered([this, control] { log.push_back("enter " + control->name()); });
      control->OnLeft([this, control] { log.push_back("leave " + control->name()); });
    }
    Width.OnTyped([this] { log.push_back("typed " + Width.text()); });
    Width.OnEnterKey([this] { log.push_back("enter key"); });
    Style.OnTyped([this] { log.push_back("typed " + Style.text()); });
    Style.OnPicked([this] { log.push_back("picked " + Style.text()); });
    Save.OnClicked([this] { log.push_back("saved"); });
    Lined.OnClicked([this] { log.push_back("lined"); });
    Rows.OnRowSelected([this] { log.push_back("row " + std::to_string(Rows.selected_row())); });
    Rows.OnRowOpened([this] { log.push_back("open " + std::to_string(Rows.selected_row())); });
    for (Label& name : Names) {
      name.OnClicked([this, &name] { log.push_back("name " + std::to_string(name.index())); });
    }
    List.OnPicked([this] { log.push_back("list " + std::to_string(List.selected())); });
  }

  Panel Frame{this, "Frame"};
  TextField Width{this, "Width"};
  TextField Length{&Frame, "Length"};
  TextField Notes{this, "Notes", "", -1, TextField::Kind::kMemo};
  DropDownList Style{this, "Style"};
  TickBox Lined{this, "Lined", "&Lined"};
  OptionButton Inches{this, "Inches", "Inches", 1};
  OptionButton Metric{this, "Metric", "Metric", 1};
  Button Save{this, "Save", "&Save F2"};
  Button Later{this, "Later", "Later", kNotBuilt};
  Button Never{this, "Never", "Never", kNotBuilt};
  std::array<Label, 3> Names = MakeFamily<3>([this](int i) { return Label(this, "Names", i, "Name"); });
  Label Hint{this, "Hint", -1, "Measure twice"};
  ListBox List{this, "List"};
  HeldGrid Rows{this, "Rows", {"Line", "Price"}};
  TabStrip Steps{this, "Steps", {"One", "Two"}};

  std::vector<std::string> log;
};

// A form over a screen, in a window that is shown.
class ShownForm {
 public:
  explicit ShownForm(Screen& screen) : window(nullptr), form(screen, &window), build(form) {}

  void Show(const Pieces& pieces) {
    window.setLayout(build.Column(pieces).layout);
    window.show();
    ToFront(&window);
  }
  template <typename Widget = QWidget>
  Widget* WidgetOf(const Control& control) const {
    return qobject_cast<Widget*>(form.WidgetOf(control));
  }

  DialogWindow window;
  Form form;
  Builder build;
};

class TrialTest : public testing::Test {
 protected:
  void Show(const Pieces& pieces) { shown_.Show(pieces); }
  template <typename Widget = QWidget>
  Widget* Of(const Control& control) const {
    return shown_.WidgetOf<Widget>(control);
  }
  // Takes the keyboard there; the log begins afterwards.
  void StartAt(const Control& control) {
    Focus(Of(control));
    screen_.log.clear();
  }
  bool IsAt(const Control& control) const { return QApplication::focusWidget() == Of(control); }

  FakeHost host_;
  TrialScreen screen_{host_};
  ShownForm shown_{screen_};
  Builder& build_ = shown_.build;
};

}  // namespace tarvane::desktop
