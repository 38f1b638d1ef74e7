#include "screen/control.h"

#include <algorithm>

#include "screen/kinds.h"
#include "screen/screen.h"

namespace tarvane {

Home::Home(Panel* panel_in) : screen(&panel_in->screen()), panel(panel_in) {}

Control::Control(Home home, std::string name, int index)
    : screen_(home.screen), name_(std::move(name)), index_(index), panel_(home.panel) {
  screen_->Register(this);
}

Control::~Control() = default;

void Control::SetEnabled(bool enabled) {
  if (enabled_ == enabled) return;
  enabled_ = enabled;
  Notify(Aspect::kEnabled);
}

void Control::SetVisible(bool visible) {
  if (visible_ == visible) return;
  visible_ = visible;
  Notify(Aspect::kVisible);
}

bool Control::shown() const { return visible_ && (panel_ == nullptr || panel_->shown()); }

void Control::SetCaption(std::string_view caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  Notify(Aspect::kCaption);
}

void Control::UserFocus() {
  screen_->Guard([this] { screen_->SetFocus(*this); });
}

void Control::UserLeave() {
  if (screen_->focus() == this) screen_->Guard([this] { screen_->LeaveFocus(); });
}

int Control::Watch(std::function<void(Aspect)> watcher) {
  watchers_.emplace_back(++last_watch_, std::move(watcher));
  return last_watch_;
}

void Control::Unwatch(int watch) {
  std::erase_if(watchers_, [watch](const auto& entry) { return entry.first == watch; });
}

void Control::Run(const Rules& rules) {
  for (const Rule& rule : rules) rule();
}

void Control::Notify(Aspect aspect) const {
  for (const auto& [number, watcher] : watchers_) watcher(aspect);
}

void Label::UserClick() {
  screen().Guard([this] { Run(clicked_); });
}

void Button::Press() {
  if (enabled()) Run(clicked_);
}

void Button::UserPress() {
  screen().Guard([this] {
    if (kind_ == Kind::kButton) screen().SetFocus(*this);
    Press();
  });
}

void TickBox::Set(bool on) {
  if (on_ == on) return;
  on_ = on;
  if (sink_) sink_(on);
  Notify(Aspect::kState);
}

void TickBox::UserSet(bool on) {
  screen().Guard([this, on] {
    screen().SetFocus(*this);
    if (on_ == on) return;
    Set(on);
    RunClick();
  });
}

void OptionButton::Set(bool on) {
  TickBox::Set(on);
  if (!on) return;
  for (Control* control : screen().controls()) {
    auto* other = As<OptionButton>(*control);
    if (other != nullptr && other != this && other->group_ == group_) other->TickBox::Set(false);
  }
}

void OptionButton::UserClick() {
  screen().Guard([this] {
    screen().SetFocus(*this);
    Set(true);
    RunClick();
  });
}

void TabStrip::SetCaptions(std::vector<std::string> captions) {
  captions_ = std::move(captions);
  selected_ = 0;
  Notify(Aspect::kEntries);
}

void TabStrip::Select(int tab) {
  if (tab == selected_ || tab < 0 || tab >= static_cast<int>(captions_.size())) return;
  selected_ = tab;
  Notify(Aspect::kSelection);
  Run(selected_rules_);
}

void TabStrip::UserSelect(int tab) {
  screen().Guard([this, tab] {
    if (gate_ && !gate_(tab)) {
      Notify(Aspect::kSelection);
      return;
    }
    if (tab == selected_) return Run(again_rules_);
    Select(tab);
  });
}

}  // namespace tarvane
