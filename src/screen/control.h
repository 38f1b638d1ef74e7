#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace tarvane {

class Screen;
class DataSource;

// Every kind of control. Whoever treats kinds differently does so by VisitKind or As (kinds.h), so that the
// compiler finds the places where a new kind is missing.
class Panel;
class Label;
class Button;
class TickBox;
class OptionButton;
class TabStrip;
class TextField;
class DropDownList;
class ListBox;
class Grid;
class HeldGrid;
class TableGrid;
class Calendar;
class RichTextBox;
class PageView;
class Slider;
using ControlKind =
    std::variant<Panel*, Label*, Button*, TickBox*, OptionButton*, TabStrip*, TextField*, DropDownList*,
                 ListBox*, Grid*, HeldGrid*, TableGrid*, Calendar*, RichTextBox*, PageView*, Slider*>;

// Where a control stands: on its screen, or on a panel of it.
struct Home {
  Home(Screen* screen_in) : screen(screen_in) {}  // NOLINT(google-explicit-constructor)
  Home(Panel* panel_in);                          // NOLINT(google-explicit-constructor)
  Screen* screen = nullptr;
  const Panel* panel = nullptr;
};

// Says of a control that what it opens or does is still to come: it is there, and disabled whatever
// procedures set. The screen that is built later takes the word away.
struct NotBuilt {};
inline constexpr NotBuilt kNotBuilt;

// What a screen does on an event of one of its controls.
using Rule = std::function<void()>;

// What of a control a face has to draw anew.
enum class Aspect { kText, kState, kCaption, kEnabled, kVisible, kEntries, kRows, kSelection };

// A named part of a screen. It registers itself with its screen as it is declared:
//   TextField TrackWidthIns{this, "TrackWidthIns"};
// Members of an array have the same name and an index from 0; -1 stands alone. One that stands on a panel
// names the panel in place of its screen: `TextField FabricCost{&FabricStep, "FabricCost"};`.
//
// Set... is what procedures call; User... is what a face calls for something the worker did: it moves the
// focus as a person would, runs the rules, and tells a fault that no rule covers in a message.
class Control {
 public:
  Control(Home home, std::string name, int index = -1);
  virtual ~Control();
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  virtual ControlKind kind_of() = 0;

  Screen& screen() const { return *screen_; }
  const std::string& name() const { return name_; }
  int index() const { return index_; }
  // Other names by which scripts may call it.
  const std::vector<std::string>& aliases() const { return aliases_; }
  void AddAlias(std::string name) { aliases_.push_back(std::move(name)); }

  bool enabled() const { return enabled_ && !to_come_; }
  void SetEnabled(bool enabled);
  // Its own switch; shown() also asks the panels that it stands in.
  bool visible() const { return visible_; }
  void SetVisible(bool visible);
  bool shown() const;
  // Still to come (kNotBuilt).
  bool to_come() const { return to_come_; }

  // The text on buttons, labels, tick boxes and panels, with & before its access key. Fields have none.
  const std::string& caption() const { return caption_; }
  void SetCaption(std::string_view caption);
  // A short hint shown over the control; may be empty.
  const std::string& tip() const { return tip_; }
  void SetTip(std::string tip) { tip_ = std::move(tip); }

  // A control that no face shows: hand-over fields and working values.
  bool never_shown() const { return never_shown_; }
  void SetNeverShown() { never_shown_ = true; }

  void OnEntered(Rule rule) { entered_.push_back(std::move(rule)); }
  void OnLeft(Rule rule) { left_.push_back(std::move(rule)); }

  void UserFocus();
  void UserLeave();

  // Faces watch; the returned number ends it again.
  int Watch(std::function<void(Aspect)> watcher);
  void Unwatch(int watch);

 protected:
  using Rules = std::vector<Rule>;
  static void Run(const Rules& rules);
  void Notify(Aspect aspect) const;
  void SetToCome() { to_come_ = true; }

 private:
  friend class Screen;
  friend class DataSource;

  Screen* screen_;
  std::string name_;
  int index_;
  std::vector<std::string> aliases_;
  std::string caption_;
  std::string tip_;
  const Panel* panel_;
  bool enabled_ = true;
  bool visible_ = true;
  bool never_shown_ = false;
  bool to_come_ = false;
  Rules entered_;
  Rules left_;
  std::vector<std::pair<int, std::function<void(Aspect)>>> watchers_;
  int last_watch_ = 0;
};

// A part of a screen whose switch shows and hides the controls that stand in it.
class Panel : public Control {
 public:
  Panel(Home home, std::string name, int index = -1) : Control(home, std::move(name), index) {}
  ControlKind kind_of() override { return this; }
};

// A text that only a procedure changes (SetCaption). May be clicked where a rule says so.
class Label : public Control {
 public:
  Label(Home home, std::string name, int index = -1) : Control(home, std::move(name), index) {}
  Label(Home home, std::string name, int index, std::string_view caption)
      : Control(home, std::move(name), index) {
    SetCaption(caption);
  }
  ControlKind kind_of() override { return this; }
  void OnClicked(Rule rule) { clicked_.push_back(std::move(rule)); }
  bool clickable() const { return !clicked_.empty(); }
  void UserClick();

 private:
  Rules clicked_;
};

// A button, a menu, a menu entry or a toolbar button.
class Button : public Control {
 public:
  enum class Kind { kButton, kMenu, kMenuEntry, kToolButton };

  Button(Home home, std::string name, std::string_view caption, int index = -1, Kind kind = Kind::kButton)
      : Control(home, std::move(name), index), kind_(kind) {
    SetCaption(caption);
  }
  Button(Home home, std::string name, std::string_view caption, NotBuilt, int index = -1,
         Kind kind = Kind::kButton)
      : Button(home, std::move(name), caption, index, kind) {
    SetToCome();
  }
  ControlKind kind_of() override { return this; }
  Kind kind() const { return kind_; }
  void OnClicked(Rule rule) { clicked_.push_back(std::move(rule)); }
  // Runs the rules, as a procedure that presses it does. Nothing while it is disabled.
  void Press();
  // Buttons take the focus; menu entries and toolbar buttons leave it where it is.
  void UserPress();

 private:
  Kind kind_;
  Rules clicked_;
};

// A box that is on or off, with its caption.
class TickBox : public Control {
 public:
  TickBox(Home home, std::string name, std::string_view caption = "", int index = -1)
      : Control(home, std::move(name), index) {
    SetCaption(caption);
  }
  ControlKind kind_of() override { return this; }
  bool on() const { return on_; }
  // By a procedure: the click action does not run.
  virtual void Set(bool on);
  void OnClicked(Rule rule) { clicked_.push_back(std::move(rule)); }
  // Runs the click action as it stands, without a change of state.
  void RunClick() { Run(clicked_); }
  // The worker's click that leads to `on`; nothing where it is so already.
  void UserSet(bool on);

 private:
  friend class DataSource;
  bool on_ = false;
  Rules clicked_;
  std::function<void(bool)> sink_;
};

// One of several round options: setting it on sets the others of its group off. A click on the one that is on
// runs its action once more.
class OptionButton : public TickBox {
 public:
  // Options with the same group number on a screen belong together.
  OptionButton(Home home, std::string name, std::string_view caption, int group, int index = -1)
      : TickBox(home, std::move(name), caption, index), group_(group) {}
  ControlKind kind_of() override { return this; }
  int group() const { return group_; }
  void Set(bool on) override;
  void UserClick();

 private:
  int group_;
};

// Tabs, one of which is selected, counted from 0.
class TabStrip : public Control {
 public:
  TabStrip(Home home, std::string name, std::vector<std::string> captions)
      : Control(home, std::move(name)), captions_(std::move(captions)) {}
  ControlKind kind_of() override { return this; }
  const std::vector<std::string>& captions() const { return captions_; }
  void SetCaptions(std::vector<std::string> captions);  // the first one is selected, without rules
  // Short hints over the tabs, as many as captions; none, or an empty one: no hint.
  const std::vector<std::string>& tips() const { return tips_; }
  void SetTips(std::vector<std::string> tips) { tips_ = std::move(tips); }
  int selected() const { return selected_; }
  // Runs the rules where another tab becomes the selected one.
  void Select(int tab);
  void OnSelected(Rule rule) { selected_rules_.push_back(std::move(rule)); }
  // The worker clicked the tab that is selected already.
  void OnSelectedAgain(Rule rule) { again_rules_.push_back(std::move(rule)); }
  // Asked before the worker's click moves the tab; false keeps it where it is. Procedures aren't asked.
  void SetGate(std::function<bool(int tab)> gate) { gate_ = std::move(gate); }
  void UserSelect(int tab);

 private:
  std::vector<std::string> captions_;
  std::vector<std::string> tips_;
  int selected_ = 0;
  Rules selected_rules_;
  Rules again_rules_;
  std::function<bool(int)> gate_;
};

}  // namespace tarvane
