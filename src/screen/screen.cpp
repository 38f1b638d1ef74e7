#include "screen/screen.h"

#include <algorithm>

namespace tarvane {

Screen::Screen(Host& host, std::string name) : host_(&host), name_(std::move(name)) {}

Screen::~Screen() = default;

void Screen::SetTitle(std::string_view title) {
  if (title_ == title) return;
  title_ = title;
  if (watcher_.title_changed) watcher_.title_changed();
}

Control* Screen::Find(std::string_view name, int index) const {
  const auto named = [name](const Control* control) {
    return control->name() == name || std::ranges::find(control->aliases(), name) != control->aliases().end();
  };
  Control* current = nullptr;
  for (Control* control : controls_) {
    if (!named(control)) continue;
    if (control->index() == index) return control;
    if (index < 0 && control->index() == CurrentMember(control->name())) current = control;
  }
  return current;
}

void Screen::RunAsMain() {
  closed_ = false;
  Load();
  Activate();
  shown_ = true;
  host_->RunModal(*this);
  shown_ = false;
}

void Screen::ShowModal(Screen& child) {
  child.closed_ = false;
  child.focus_ = nullptr;
  child.Load();
  if (!child.closed_) {
    child.Activate();
    child.shown_ = true;
    if (!child.closed_) host_->RunModal(child);
    child.shown_ = false;
  }
  if (shown_) Activate();
}

void Screen::Close() {
  if (closed_) return;
  closed_ = true;
  if (watcher_.closed) watcher_.closed();
}

void Screen::UserClose() {
  Guard([this] {
    if (MayClose()) Close();
  });
}

void Screen::SetFocus(Control& control) {
  if (focus_ == &control) return;
  LeaveFocus();
  focus_ = &control;
  if (watcher_.focus_moved) watcher_.focus_moved(focus_);
  Control::Run(control.entered_);
}

void Screen::LeaveFocus() {
  Control* former = std::exchange(focus_, nullptr);
  if (former != nullptr) Control::Run(former->left_);
}

void Screen::Guard(const std::function<void()>& action) {
  try {
    action();
  } catch (const Fault& fault) {
    Message(fault.what(), kProgramTitle, Icon::kWarning);
  } catch (const std::exception& error) {
    // Nothing of the program's own: out of memory, for instance. The worker goes on with what stands.
    Message(std::string("This could not be done: ") + error.what() + ".", kProgramTitle, Icon::kError);
  }
}

void Screen::RunEach(std::initializer_list<std::function<void()>> steps) {
  std::vector<std::string> told;
  for (const std::function<void()>& step : steps) {
    try {
      step();
    } catch (const Fault& fault) {
      if (std::ranges::find(told, fault.what()) == told.end()) told.emplace_back(fault.what());
    }
  }
  for (const std::string& text : told) Message(text, kProgramTitle, Icon::kWarning);
}

void Screen::Message(std::string_view text, std::string_view title, Icon icon) {
  host_->Message(title, text, icon);
}

bool Screen::AskYesNo(std::string_view title, std::string_view text, Answer preset, Icon icon) {
  return host_->Ask({std::string(title), std::string(text), {Answer::kYes, Answer::kNo}, preset, icon}) ==
         Answer::kYes;
}

}  // namespace tarvane
