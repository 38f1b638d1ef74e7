#pragma once

#include <sstream>
#include <string>
#include <string_view>

#include "paper/recorder.h"
#include "paper/text_rows.h"
#include "screen/field.h"
#include "screen/grid.h"
#include "screen/screen.h"
#include "script/run_script.h"

namespace tarvane::script {

// A second screen, with an array that has a current member.
class Annexe : public Screen {
 public:
  explicit Annexe(Host& host) : Screen(host, "FrmAnnexe") { SetTitle("Annexe"); }

  TextField Note{this, "Note", "first"};
  TextField Text1_0{this, "Text1", "zero", 0};
  TextField Text1_1{this, "Text1", "one", 1};
  Button CmdDone{this, "CmdDone", "&Done"};

 protected:
  void Load() override {
    CmdDone.OnClicked([this] { Close(); });
  }
  int CurrentMember(std::string_view) const override { return 1; }
};

// A grid whose second row can't be read.
class DamagedGrid : public HeldGrid {
 public:
  DamagedGrid(Home home, std::string name) : HeldGrid(home, std::move(name), {"Line", "Name"}) {
    SetRows({{"1", "Ann"}, {"2", ""}, {"3", "Cem"}});
  }
  std::string Cell(std::int64_t row, int column) const override {
    if (row == 2) throw Fault("The file is damaged.");
    return HeldGrid::Cell(row, column);
  }
};

// A main screen with a control of every kind.
class Workshop : public Screen {
 public:
  explicit Workshop(Host& host) : Screen(host, "Form1") {
    SetTitle("Workshop \"A\"");
    Hook();
    Measure.SetMaxLength(5);
    Measure.AddAlias("1T(4)");
    Fixed.SetReadOnly(true);
    Kinds.SetEntries({"Roman", "Roller"});
    Kinds.SetTypingAllowed(false);
    Styles.SetEntries({"Pinch \"Pleat\"", ""});
    Rooms.SetEntries({"Lounge", "Hall"});
    Items.AddRow({"1", "12.50", "a\tb"});
    Items.AddRow({"2", "3.00", "back\\slash"});
    Off.SetEnabled(false);
    SaveHidden.SetVisible(false);
    Secret.SetNeverShown();
    Frame.SetVisible(false);
    Day.Set(MakeDay(2026, 5, 4));
  }

  TextField Measure{this, "Measure", "10"};
  TextField Log{this, "Log"};
  TextField Fixed{this, "Fixed", "fixed"};
  TextField Secret{this, "Secret", "hidden value"};
  TextField Name{this, "Name", "Smith"};
  TextField Text11{this, "Text11", "eleven"};
  DropDownList Kinds{this, "Kinds"};
  DropDownList Styles{this, "Styles"};
  ListBox Rooms{this, "Rooms"};
  TabStrip Tabs{this, "Tabs", {" Customer", "Rooms "}};
  HeldGrid Items{this, "Items", {"Line", "Price", "Text"}};
  DamagedGrid Torn{this, "Torn"};
  Calendar Day{this, "Day"};
  TickBox Round{this, "AutoRoundup", "Round &Up"};
  OptionButton Inches{this, "UnitIns", "Inches", 1};
  OptionButton Cms{this, "UnitCms", "Cms", 1};
  Panel Frame{this, "Frame"};
  TextField Boxed{&Frame, "Boxed"};
  Label Plain{this, "Label8", 0, "Messages"};
  Label Clicked{this, "Label10", 0, "Room 1"};
  Button SaveHidden{this, "CmdSaveOld", "&Save"};
  Button Save{this, "CmdSave", " &Save "};
  Button Off{this, "CmdOff", "Off"};
  Button MenuName{this, "MunName", "Name", -1, Button::Kind::kMenuEntry};
  Button Add0{this, "Command1", "Add", 0};
  Button Add1{this, "Command1", "Add more", 1};

 private:
  void Hook() {
    const auto log = [this](std::string_view text) { Log.LoadText(Log.text() + std::string(text) + ";"); };
    Measure.OnEntered([=] { log("in"); });
    Measure.OnTyped([=] { log("typed"); });
    Measure.OnEnterKey([=] { log("enter"); });
    Measure.OnLeft([=] { log("out"); });
    Round.OnClicked([=] { log("round"); });
    Clicked.OnClicked([=] { log("label"); });
    Rooms.OnPicked([=, this] { log("room " + std::to_string(Rooms.selected())); });
    Rooms.OnOpened([=, this] { log("open " + std::to_string(Rooms.selected())); });
    Items.OnRowSelected([=, this] { log("row " + std::to_string(Items.selected_row())); });
    Items.OnRowOpened([=] { log("opened"); });
    Save.OnClicked([=] { log("save"); });
    MenuName.OnClicked([=] { log("menu"); });
    Add0.OnClicked([this] {
      Annexe annexe(host());
      ShowModal(annexe);
    });
    Add1.OnClicked([this] { Act(Measure.text()); });
  }

  // What the button "Add more" does is told by the field.
  void Act(const std::string& what);
  void PrintTwoPages();
};

inline void Workshop::PrintTwoPages() {
  const paper::Font font{.name = "Courier"};
  paper::Recorder recorder(host().TextMeasure(), host().PrinterPaper());
  const paper::Point corner{recorder.paper().unprintable.left, 30};
  paper::DrawRows(recorder, font, corner, {{{0, "ab"}, {5, "c"}, {3, "late"}}, {}});
  recorder.NewPage();
  paper::DrawRows(recorder, font, corner, {{{1, "\xC2\xA3"}, {3, "x"}}});
  host().Print(paper::RecordedPages(recorder.pages(), recorder.paper()), {});
}

inline void Workshop::Act(const std::string& what) {
  if (what == "ask") {
    Log.LoadText(AskYesNo("Sure?", "Line one\r\nLine \"two\"") ? "was yes" : "was no");
  } else if (what == "note") {
    host().Ask({"Note", "Only one way", {Answer::kOk}, Answer::kOk, Icon::kNone});
  } else if (what == "input") {
    Log.LoadText(host().Input("User Input", "List Entry:", "").value_or("none"));
  } else if (what == "file") {
    Log.LoadText(host().ChooseFile(FileChoice::kOpen, "Open Link", "", "").value_or("none").string());
  } else if (what == "print") {
    PrintTwoPages();
  } else if (what == "clip") {
    host().SetClipboardText("copied text");
    host().Launch("mailto:a@b.c");
    host().Beep();
  } else if (what == "clock") {
    const DateTime now = host().Now();
    Log.LoadText(LongDate(now.day) + " " + std::to_string(now.hour) + ":" + std::to_string(now.second));
  } else if (what == "dice") {
    std::string digits;
    for (int i = 0; i < 20; ++i) digits += std::to_string(host().RandomDigit());
    Log.LoadText(digits);
  } else if (what == "end") {
    host().EndProcess();
  } else {
    throw Fault("The workshop can't " + what + ".");
  }
}

struct Played {
  int status = -1;
  std::string out;
  std::string err;
};

inline Played Play(std::istream& script, const ScriptSettings& settings, bool to_the_end) {
  std::ostringstream out, err;
  const int status = RunScript(settings, script, to_the_end, out, err, [](Host& host) {
    Workshop workshop(host);
    workshop.RunAsMain();
  });
  return {status, out.str(), err.str()};
}

inline Played Play(const std::string& text, const ScriptSettings& settings = {}, bool to_the_end = true) {
  std::istringstream script(text);
  return Play(script, settings, to_the_end);
}

}  // namespace tarvane::script
