#include "desktop/form.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QWidget>
#include <algorithm>
#include <array>
#include <cstdlib>

#include "desktop/fields.h"
#include "screen/kinds.h"

namespace tarvane::desktop {
namespace {

constexpr std::array kAspects = {Aspect::kEntries, Aspect::kRows,    Aspect::kText,    Aspect::kState,
                                 Aspect::kCaption, Aspect::kEnabled, Aspect::kVisible, Aspect::kSelection};
constexpr unsigned kAll = (1U << kAspects.size()) - 1;

unsigned Bit(Aspect aspect) { return 1U << static_cast<unsigned>(aspect); }

constexpr char kShowsToCome[] = "shows_to_come";  // of the application
constexpr char kForm[] = "form";                  // of a window

// With its window, or back from a menu: the worker goes on where she was.
bool CameBack(const QEvent* event) {
  switch (static_cast<const QFocusEvent*>(event)->reason()) {
    case Qt::ActiveWindowFocusReason:
    case Qt::PopupFocusReason:
    case Qt::MenuBarFocusReason:
      return true;
    default:
      return false;
  }
}

}  // namespace

Binding::Binding(Form& form, Control& control, QObject* widget, Draw draw)
    : form_(&form), control_(&control), widget_(widget), draw_(std::move(draw)) {
  watch_ = control.Watch([this](Aspect aspect) { form_->Changed(*this, aspect); });
}

Binding::~Binding() { control_->Unwatch(watch_); }

void Binding::ShowOrHide() {
  const bool seen = Form::IsSeen(*control_);
  if (auto* widget = qobject_cast<QWidget*>(widget_)) {
    widget->setVisible(seen);
  } else if (auto* action = qobject_cast<QAction*>(widget_)) {
    action->setVisible(seen);
  }
}

void Binding::EnableOrDisable() {
  if (enable_) return enable_(control_->enabled());
  if (auto* widget = qobject_cast<QWidget*>(widget_)) widget->setEnabled(control_->enabled());
  if (auto* action = qobject_cast<QAction*>(widget_)) action->setEnabled(control_->enabled());
}

void Binding::OnEnabled(std::function<void(bool)> enable) {
  enable_ = std::move(enable);
  enable_(control_->enabled());
}

void Binding::SetTip() {
  QString tip = QString::fromStdString(control_->tip());
  if (control_->to_come()) {
    if (tip.isEmpty()) tip = widget_->property("toolTip").toString();
    tip += tip.isEmpty() ? "Still to come" : "\nStill to come";
  }
  if (!tip.isEmpty()) widget_->setProperty("toolTip", tip);
}

void Binding::Refresh() {
  const unsigned changed = std::exchange(changed_, 0);
  for (const Aspect aspect : kAspects) {
    if ((changed & Bit(aspect)) == 0) continue;
    if (aspect == Aspect::kVisible) {
      ShowOrHide();
    } else if (aspect == Aspect::kEnabled) {
      EnableOrDisable();
    } else if (draw_) {
      draw_(aspect);
    }
  }
}

Form::Form(Screen& screen, QWidget* window) : screen_(&screen), window_(window) {
  for (Control* control : screen.controls()) {
    if (As<Panel>(*control) == nullptr) continue;
    panel_watches_.emplace_back(control, control->Watch([this](Aspect) {
      panels_changed_ = true;
      Post();
    }));
  }
  window->setWindowTitle(QString::fromStdString(screen.title()));
  window->setProperty(kForm, QVariant::fromValue<QObject*>(this));
  screen.SetWatcher(
      {.title_changed = [this] { window_->setWindowTitle(QString::fromStdString(screen_->title())); },
       .closed =
           [this] {
             if (on_closed_) on_closed_();
           },
       .focus_moved =
           [this](Control* control) {
             wanted_focus_ = control;
             Post();
           }});
}

Form::~Form() { Detach(); }

void Form::Detach() {
  if (std::exchange(detached_, true)) return;
  window_->setProperty(kForm, {});
  screen_->SetWatcher({});
  for (const auto& [panel, watch] : panel_watches_) panel->Unwatch(watch);
  by_widget_.clear();
  by_control_.clear();
  changed_.clear();
  bindings_.clear();
}

bool Form::shows_to_come() { return QCoreApplication::instance()->property(kShowsToCome).toBool(); }

void Form::SetShowsToCome(bool shows) {
  QCoreApplication::instance()->setProperty(kShowsToCome, shows);
  for (const QWidget* window : QApplication::topLevelWidgets()) {
    if (auto* form = static_cast<Form*>(window->property(kForm).value<QObject*>())) form->ToComeSwitched();
  }
}

bool Form::IsSeen(const Control& control) {
  return control.shown() && (!control.to_come() || shows_to_come());
}

Binding& Form::Bind(Control& control, QObject* widget, Binding::Draw draw) {
  Binding& binding =
      *bindings_.emplace_back(std::make_unique<Binding>(*this, control, widget, std::move(draw)));
  by_widget_[widget] = &binding;
  by_control_[&control] = &binding;
  widget->installEventFilter(this);
  binding.SetTip();
  binding.changed_ = kAll;
  // A new widget that is meant to be seen must not be shown before it has its place: it would be a window.
  if (IsSeen(control)) binding.changed_ &= ~Bit(Aspect::kVisible);
  binding.Refresh();
  return binding;
}

QObject* Form::WidgetOf(const Control& control) const {
  const auto found = by_control_.find(&control);
  return found == by_control_.end() ? nullptr : found->second->widget();
}

const Control* Form::ControlOf(const QObject& widget) const {
  const auto found = by_widget_.find(&widget);
  return found == by_widget_.end() ? nullptr : &found->second->control();
}

void Form::ShowWith(QWidget* companion, std::vector<const Control*> controls) {
  companions_.push_back({companion, std::move(controls)});
  if (!companions_.back().IsSeen()) companion->hide();
}

void Form::BuildAll() {
  while (!later_.empty()) {
    const std::vector<std::function<void()>> builds = std::exchange(later_, {});
    for (const auto& build : builds) build();
  }
  Flush();
}

void Form::Act(Control& control, const std::function<void(Control&)>& action) {
  if (detached_) return;
  try {
    action(control);
  } catch (const std::exception& error) {
    screen_->host().Message(kProgramTitle, error.what(), Icon::kError);
  }
  if (detached_) return;
  if (const auto found = by_control_.find(&control); found != by_control_.end()) {
    Binding& binding = *found->second;
    for (const Aspect aspect : {Aspect::kText, Aspect::kState, Aspect::kSelection}) Changed(binding, aspect);
  }
}

void Form::ActLater(Control& control, std::function<void(Control&)> action) {
  actions_.emplace_back(&control, std::move(action));
  Post();
}

void Form::Changed(Binding& binding, Aspect aspect) {
  if (binding.changed_ == 0) changed_.push_back(&binding);
  binding.changed_ |= Bit(aspect);
  if (aspect == Aspect::kVisible) panels_changed_ = true;
  Post();
}

void Form::Post() {
  if (std::exchange(posted_, true)) return;
  QCoreApplication::postEvent(this, new QEvent(QEvent::User), Qt::HighEventPriority);
}

bool Form::event(QEvent* event) {
  if (event->type() != QEvent::User) return QObject::event(event);
  Flush();
  return true;
}

void Form::Flush() {
  posted_ = false;
  if (detached_) return;
  while (!actions_.empty()) {
    const auto actions = std::exchange(actions_, {});
    for (const auto& [control, action] : actions) Act(*control, action);
  }
  if (std::exchange(put_back_, false)) FollowFocusBack();
  if (std::exchange(focus_came_, false)) FollowQtFocus();
  while (!changed_.empty() && !detached_) {
    const std::vector<Binding*> changed = std::exchange(changed_, {});
    for (Binding* binding : changed) binding->Refresh();
  }
  if (std::exchange(panels_changed_, false)) ShowAndHide();
  // One may add another.
  for (std::size_t at = 0; at < followers_.size(); ++at) followers_[at]();  // NOLINT(modernize-loop-convert)
  FollowModelFocus();
}

void Form::Follow(std::function<void()> action) {
  action();
  followers_.push_back(std::move(action));
}

bool Form::Companion::IsSeen() const {
  return std::ranges::any_of(controls, [](const Control* control) { return Form::IsSeen(*control); });
}

// What follows the controls (menus, access keys) is drawn with the next flush.
void Form::ToComeSwitched() {
  ShowAndHide();
  Post();
}

void Form::ShowAndHide() {
  for (const auto& binding : bindings_) binding->ShowOrHide();
  for (const Companion& companion : companions_) {
    if (companion.widget) companion.widget->setVisible(companion.IsSeen());
  }
}

void Form::AddSizer(std::function<void()> apply) {
  apply();
  sizers_.push_back(std::move(apply));
}

void Form::Resize() {
  for (const auto& sizer : sizers_) sizer();
}

Binding* Form::BindingOf(QObject* object) const {
  for (; object != nullptr && object != window_; object = object->parent()) {
    const auto found = by_widget_.find(object);
    if (found != by_widget_.end()) return found->second;
  }
  return nullptr;
}

// Qt tells a new focus in the middle of a click or a key; the rules of leaving and entering, which may open
// windows, run when that is over. Every User... function sets the focus first, so none can be overtaken.
void Form::FollowQtFocus() {
  // A list that was closed has the keyboard again; where its pick has sent the focus, it goes there.
  if (!may_select_ && wanted_focus_ != nullptr) return;
  Binding* binding = BindingOf(QApplication::focusWidget());
  // Between the parts of a panel the screen's focus stays where it is.
  if (binding == nullptr || As<Panel>(binding->control()) != nullptr) return;
  Control& control = binding->control();
  if (!control.enabled()) {
    // It shows what another one leads, and can be read, no more.
    if (screen_->focus() != nullptr) screen_->focus()->UserLeave();
    return;
  }
  if (screen_->focus() != &control) control.UserFocus();
  if (detached_) return;
  if (screen_->focus() == &control) wanted_focus_ = nullptr;
  const auto* field = As<TextField>(control);
  if (field == nullptr || !field->select_all_on_focus() || !may_select_) return;
  if (auto* edit = qobject_cast<QLineEdit*>(QApplication::focusWidget())) edit->selectAll();
}

void Form::PutFocusBack() {
  put_back_ = true;
  Post();
}

void Form::FollowFocusBack() {
  if (screen_->focus() == nullptr || As<Button>(*screen_->focus()) == nullptr) return;
  // The focus may not have come to the button's widget yet.
  QWidget* former = focused_ == WidgetOf(*screen_->focus()) ? focused_before_ : focused_;
  if (former == nullptr || !former->isVisible() || !former->isEnabled()) return;
  wanted_focus_ = nullptr;
  former->setFocus(Qt::OtherFocusReason);
  focus_came_ = true;
  may_select_ = false;
}

void Form::FollowModelFocus() {
  const Control* wanted = std::exchange(wanted_focus_, nullptr);
  if (wanted == nullptr) return;
  auto* widget = qobject_cast<QWidget*>(WidgetOf(*wanted));
  // What the step has hidden meanwhile can't have the keyboard.
  if (widget == nullptr || !widget->isVisible()) return;
  if (BindingOf(QApplication::focusWidget()) == by_control_[wanted]) return;
  widget->setFocus(Qt::TabFocusReason);
}

void Form::TakeFirstFocus() {
  wanted_focus_ = screen_->focus();
  Flush();
  if (BindingOf(window_->focusWidget()) != nullptr) return;
  for (QWidget* widget = window_->nextInFocusChain(); widget != window_;
       widget = widget->nextInFocusChain()) {
    const Binding* binding = BindingOf(widget);
    if (binding == nullptr || !widget->isVisible() || !widget->isEnabled()) continue;
    if ((widget->focusPolicy() & Qt::TabFocus) == 0 || widget->focusProxy() != nullptr) continue;
    widget->setFocus(Qt::TabFocusReason);
    return;
  }
}

bool Form::eventFilter(QObject* watched, QEvent* event) {
  if (detached_) return false;
  switch (event->type()) {
    case QEvent::FocusIn:
      focus_came_ = true;
      may_select_ = !CameBack(event);
      if (focused_ != watched) focused_before_ = std::exchange(focused_, qobject_cast<QWidget*>(watched));
      Post();
      return false;
    case QEvent::FocusOut:
      // Now the text is drawn as a rule has put it.
      if (Binding* left = CameBack(event) ? nullptr : BindingOf(watched)) Changed(*left, Aspect::kText);
      return false;
    case QEvent::KeyPress: {
      const int key = static_cast<QKeyEvent*>(event)->key();
      Binding* binding = key == Qt::Key_Return || key == Qt::Key_Enter ? BindingOf(watched) : nullptr;
      return binding != nullptr && PressedEnter(*binding, qobject_cast<QWidget*>(watched));
    }
    default:
      return false;
  }
}

namespace {

void PressTab(QWidget* widget) {
  QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
  QCoreApplication::sendEvent(widget, &tab);
}

// A small button that stands beside a field: not what the window is there for.
bool IsBeside(const QWidget& field, const QWidget& other) {
  if (qobject_cast<const QPushButton*>(&other) == nullptr || other.property(kStrongButton).toBool())
    return false;
  const int apart =
      field.mapToGlobal(field.rect().center()).y() - other.mapToGlobal(other.rect().center()).y();
  return std::abs(apart) < field.height() / 2;
}

// To what comes next, past the buttons that stand beside the field that is left.
void GoOnFrom(QWidget* widget) {
  QWidget* next = widget;
  do {
    PressTab(next);
    next = QApplication::focusWidget();
  } while (next != nullptr && next != widget && IsBeside(*widget, *next));
}

}  // namespace

// Enter runs the field's rule; where that leaves the worker in the field, it goes on to the next one. Tick
// boxes have no such rule and let the worker pass.
bool Form::PressedEnter(Binding& binding, QWidget* widget) {
  if (widget == nullptr) return false;
  if (As<TickBox>(binding.control()) != nullptr) {
    GoOnFrom(widget);
    return true;
  }
  auto* field = As<TextField>(binding.control());
  if (field == nullptr || field->kind() == TextField::Kind::kMemo) return false;
  const QPointer<QWidget> edit = widget;
  Act(*field, [field](Control&) { field->UserEnterKey(); });
  Flush();
  if (detached_ || !edit || screen_->is_closed()) return true;
  if (screen_->focus() == field) GoOnFrom(edit);
  return true;
}

}  // namespace tarvane::desktop
