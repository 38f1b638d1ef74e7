#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "screen/control.h"
#include "screen/field.h"
#include "screen/grid.h"
#include "screen/host.h"
#include "text/fault.h"

namespace tarvane {

inline constexpr std::string_view kProgramTitle = "Tarvane";

// Runs `step`; a fault in it is ignored. For the steps that the system runs under an ignore-errors rule.
template <typename Step>
void IgnoreFaults(Step&& step) {
  try {
    step();
  } catch (const Fault&) {
  }
}

// A screen: its controls by name, and what happens on their events. It knows no window system.
//
// One showing: Load, Activate, then Activate again each time a screen that it opened has closed, until Close.
class Screen {
 public:
  Screen(Host& host, std::string name);
  virtual ~Screen();
  Screen(const Screen&) = delete;
  Screen& operator=(const Screen&) = delete;

  Host& host() const { return *host_; }
  const std::string& name() const { return name_; }
  const std::string& title() const { return title_; }
  void SetTitle(std::string_view title);

  // In the order of declaration.
  const std::vector<Control*>& controls() const { return controls_; }
  // By name or alias; nullptr where there is none. `index` -1: the one that stands alone, or, for an array,
  // the member that CurrentMember names.
  Control* Find(std::string_view name, int index = -1) const;

  // As the process's first screen; returns after it is closed.
  void RunAsMain();
  // Shows `child` on top of this screen until it is closed; then this screen, if it is shown itself, is
  // activated. The one place where that happens. A fault of the child's Load leaves it unshown.
  void ShowModal(Screen& child);
  // Ends the showing, without a question.
  void Close();
  bool is_shown() const { return shown_; }
  bool is_closed() const { return closed_; }
  // The window's close button: asks MayClose, then closes.
  void UserClose();

  Control* focus() const { return focus_; }
  // Runs the leave rules of the control that had the focus and the entry rules of `control`.
  void SetFocus(Control& control);
  // The control with the focus loses it to none.
  void LeaveFocus();

  // Runs what the worker did; a fault that no rule covers, or any other exception of the library, is told in
  // a message and leaves the screen as it is.
  void Guard(const std::function<void()>& action);

  // Runs all of `steps`, each whatever becomes of the others; what faulted is told, each text once.
  void RunEach(std::initializer_list<std::function<void()>> steps);

  // Messages and questions under this screen's host.
  void Message(std::string_view text, std::string_view title = kProgramTitle, Icon icon = Icon::kNone);
  bool AskYesNo(std::string_view title, std::string_view text, Answer preset = Answer::kYes,
                Icon icon = Icon::kQuestion);

  // Faces: title changes, closing, focus moved by a procedure.
  struct Watcher {
    std::function<void()> title_changed;
    std::function<void()> closed;
    std::function<void(Control*)> focus_moved;
  };
  void SetWatcher(Watcher watcher) { watcher_ = std::move(watcher); }

 protected:
  virtual void Load() {}
  virtual void Activate() {}
  // False keeps the screen open on the window's close button.
  virtual bool MayClose() { return true; }
  // The member that a control array's bare name stands for; -1 for none.
  virtual int CurrentMember(std::string_view) const { return -1; }

 private:
  friend class Control;
  void Register(Control* control) { controls_.push_back(control); }

  Host* host_;
  std::string name_;
  std::string title_;
  std::vector<Control*> controls_;
  Control* focus_ = nullptr;
  bool shown_ = false;
  bool closed_ = false;
  Watcher watcher_;
};

}  // namespace tarvane
