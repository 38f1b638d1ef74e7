#pragma once

#include <QObject>
#include <QPointer>
#include <deque>
#include <functional>
#include <memory>
#include <unordered_map>
#include <vector>

#include "screen/screen.h"

class QWidget;

namespace tarvane::desktop {

class Form;

// A control of a screen and the widget (or menu action) that stands for it. `draw` puts one aspect of the
// control into the widget; it runs once for every aspect at first, and then after the control told a change.
class Binding {
 public:
  using Draw = std::function<void(Aspect)>;
  Binding(Form& form, Control& control, QObject* widget, Draw draw);
  ~Binding();
  Binding(const Binding&) = delete;
  Binding& operator=(const Binding&) = delete;

  Control& control() const { return *control_; }
  QObject* widget() const { return widget_; }

  // What shows that the control is off, in place of a disabled widget. Runs now and after each change.
  void OnEnabled(std::function<void(bool enabled)> enable);

 private:
  friend class Form;
  void Refresh();
  void ShowOrHide();
  void EnableOrDisable();
  void SetTip();

  Form* form_;
  Control* control_;
  QObject* widget_;
  Draw draw_;
  std::function<void(bool)> enable_;
  int watch_;
  unsigned changed_ = 0;  // aspects, a bit each
};

// The widgets of one screen. Model and widgets meet here: what the model changes is gathered and drawn once,
// when the present action is over; what the worker does goes to the controls' User... functions.
class Form : public QObject {
 public:
  Form(Screen& screen, QWidget* window);
  ~Form() override;

  Screen& screen() const { return *screen_; }
  QWidget* window() const { return window_; }

  // Whether what is still to come is seen at all; at first it isn't. Holds for the windows that are open and
  // for those to come.
  static void SetShowsToCome(bool shows);
  static bool shows_to_come();
  // Shown by its screen, and not hidden because it is still to come.
  static bool IsSeen(const Control& control);

  // `widget` is a QWidget or a QAction.
  Binding& Bind(Control& control, QObject* widget, Binding::Draw draw);
  QObject* WidgetOf(const Control& control) const;
  // Null where the widget stands for none.
  const Control* ControlOf(const QObject& widget) const;
  // Shown while one of the controls is seen: their caption, their unit.
  void ShowWith(QWidget* companion, std::vector<const Control*> controls);

  // Runs now, and again whenever what has changed is drawn.
  void Follow(std::function<void()> action);

  // Parts of the form that are built when they are first needed.
  void AddLater(std::function<void()> build) { later_.push_back(std::move(build)); }
  void BuildAll();

  // Runs what the worker did, and draws `control` anew afterwards, whatever became of it. Nothing is thrown.
  void Act(Control& control, const std::function<void(Control&)>& action);
  // The same after the present event: for what Qt tells in the middle of something.
  void ActLater(Control& control, std::function<void(Control&)> action);
  // Draws what has changed, at once.
  void Flush();

  // The focus of the screen, or the first field, gets the keyboard as the window comes up.
  void TakeFirstFocus();

  // The worker said no to what a button was to do: the focus goes back to where it was before the button.
  // Nothing where no button has it.
  void PutFocusBack();

  // Widths and heights that follow the size of the text; `apply` runs now and after each change of it.
  void AddSizer(std::function<void()> apply);
  void Resize();

  // Runs once, when the screen is closed.
  void OnClosed(std::function<void()> action) { on_closed_ = std::move(action); }
  // Ends the form's part in the showing; the screen is left alone from here on.
  void Detach();

 protected:
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  friend class Binding;
  void Changed(Binding& binding, Aspect aspect);
  void Post();
  void FollowQtFocus();
  void FollowFocusBack();
  void FollowModelFocus();
  bool PressedEnter(Binding& binding, QWidget* widget);
  Binding* BindingOf(QObject* object) const;
  void ToComeSwitched();
  void ShowAndHide();

  struct Companion {
    QPointer<QWidget> widget;
    std::vector<const Control*> controls;
    bool IsSeen() const;
  };

  Screen* screen_;
  QWidget* window_;
  std::vector<std::unique_ptr<Binding>> bindings_;
  std::unordered_map<const QObject*, Binding*> by_widget_;
  std::unordered_map<const Control*, Binding*> by_control_;
  std::vector<Companion> companions_;
  std::vector<std::pair<Control*, int>> panel_watches_;
  std::vector<std::function<void()>> later_;
  std::vector<std::function<void()>> sizers_;
  std::deque<std::function<void()>> followers_;  // one may add another
  std::vector<Binding*> changed_;
  std::vector<std::pair<Control*, std::function<void(Control&)>>> actions_;
  std::function<void()> on_closed_;
  Control* wanted_focus_ = nullptr;
  QPointer<QWidget> focused_;  // the latest two
  QPointer<QWidget> focused_before_;
  bool put_back_ = false;
  bool focus_came_ = false;
  bool may_select_ = false;  // the focus came by a key or a click, not with the window
  bool panels_changed_ = false;
  bool posted_ = false;
  bool detached_ = false;
};

}  // namespace tarvane::desktop
