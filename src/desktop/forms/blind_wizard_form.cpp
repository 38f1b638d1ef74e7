#include <QCalendarWidget>
#include <QLayout>
#include <QMenu>
#include <QToolButton>
#include <QWidgetAction>

#include "desktop/forms/element_table.h"
#include "desktop/forms/form_window.h"
#include "desktop/forms/forms.h"
#include "desktop/make.h"
#include "desktop/theme.h"
#include "desktop/windows.h"

namespace tarvane::desktop {
namespace {

using blinds::WizardNewBlinds;

constexpr std::string_view kAdvice =
    "This wizard can be used for adding any item you wish to the room, this could be a Note about the job, "
    "Blinds, Cushions, Swags and Tails, Wallpaper etc.";

constexpr int kWidth = 90;    // digits
constexpr int kHeight = 122;  // quarters

// A day that is chosen closes the calendar before the screen asks whether it may replace the one that stands.
void ChooseAndClose(Form& form, Calendar& calendar, QMenu* menu, QCalendarWidget* month) {
  const auto chosen = [&form, &calendar, menu](QDate date) {
    if (!menu->isVisible()) return;
    menu->close();
    form.ActLater(calendar, [&calendar, date](Control&) {
      calendar.UserClick(MakeDay(date.year(), date.month(), date.day()));
    });
  };
  for (const auto signal : {&QCalendarWidget::clicked, &QCalendarWidget::activated}) {
    QObject::disconnect(month, signal, &form, nullptr);
    QObject::connect(month, signal, &form, chosen);
  }
}

// The month folds out of a small button.
Piece DateButton(Builder& build, Calendar& calendar) {
  auto* button = Make<QToolButton>();
  button->setText("...");
  button->setToolTip("Choose a date");
  button->setAccessibleName("Date for Line 1");
  button->setFocusPolicy(Qt::StrongFocus);
  button->setPopupMode(QToolButton::InstantPopup);
  auto* menu = Make<QMenu>(button);
  auto* holder = Make<QWidgetAction>(menu);
  auto* month = qobject_cast<QCalendarWidget*>(build.Month(calendar).widget);
  month->setAccessibleName("Date for Line 1");
  holder->setDefaultWidget(month);
  menu->addAction(holder);
  button->setMenu(menu);
  QObject::connect(menu, &QMenu::aboutToShow, month, [month] { month->setFocus(); });
  ChooseAndClose(build.form(), calendar, menu, month);
  return {button};
}

Piece LinesPage(Builder& build, WizardNewBlinds& wizard) {
  auto& fields = wizard.HPtxtFields;
  const Piece advice = build.Text(kAdvice, true);
  std::vector<FieldLine> lines = {{"ItemNo:", {{fields[0], {.width = 12}}}},
                                  {"Room:", {{fields[1], {}}}},
                                  {"Description:", {{fields[2], {}}}},
                                  {"Line 1 Info", {{fields[3], {}}, {DateButton(build, wizard.dtpDate)}}}};
  for (std::size_t i = 4; i < blinds::kTextLines; ++i) {
    lines.push_back({"Line " + std::to_string(i - 2) + " Info", {{fields[i], {}}}});
  }
  return build.Column({Builder::Gap(1), advice, build.Fields(lines), Builder::Spring()});
}

Piece ElementsPage(Builder& build, WizardNewBlinds& wizard) {
  return build.Column({Builder::Gap(1), build.Heading("Element Information for this item."),
                       ElementTable(build, wizard.Elements, "", "Grand Total Price:"), Builder::Spring()});
}

// What Compile puts together isn't shown, and the saves do it by themselves: the window has no place for it.
void LeaveOutCompile(Form& form, WizardNewBlinds& wizard) {
  form.Bind(wizard.Command3, Make<QAction>(form.window()), nullptr);
}

}  // namespace

void BuildBlindWizardForm(Form& form, WizardNewBlinds& wizard) {
  Builder build(form);
  const Piece pages =
      build.Pages(wizard.SSTab1, {[build, &wizard]() mutable { return LinesPage(build, wizard); },
                                  [build, &wizard]() mutable { return ElementsPage(build, wizard); }});
  // Only the pages scroll: what saves stays in view.
  const Piece foot = build.Margin(build.Flow(
      {build.Press(wizard.Command4), Builder::Spring(), build.Press(wizard.CmdUpdateAndClose, true),
       build.Press(wizard.CmdFinishTwo, true), build.Press(wizard.Command1)}));
  auto* window = static_cast<DialogWindow*>(form.window());
  window->setLayout(build.Column({build.Scroll(pages), build.Rule(), foot}, 0).layout);
  window->layout()->setContentsMargins(0, 0, 0, 0);
  window->resize(Digits(kWidth), Quarters(kHeight));
  LeaveOutCompile(form, wizard);
  // Whichever way the worker leaves, what isn't saved is asked for. After a template was copied in there is
  // no cancelling; the window's own button is the way out.
  ClosesWindow(form, wizard.Command1);
  SayWhyOff(form, wizard.Command1, "A template was copied in: save the item, or close the window.");
  window->escaped = [window] { window->close(); };
}

}  // namespace tarvane::desktop
