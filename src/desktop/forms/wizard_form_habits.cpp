#include <QMessageBox>
#include <QPushButton>
#include <QScrollArea>
#include <QSettings>
#include <QTimer>
#include <array>

#include "curtain_wizard/wizard.h"
#include "desktop/forms/wizard_form.h"
#include "desktop/text.h"

namespace tarvane::desktop {
namespace {

using curtain_wizard::MainCWizard;

constexpr char kInches[] = "wizard/inches";

// Keys of the buttons whose captions name none.
struct OwnKey {
  Button MainCWizard::*button;
  const char* key;
};

constexpr std::array<OwnKey, 2> kOwnKeys = {{
    {&MainCWizard::CmdGetInfo, "Alt+G"},
    {&MainCWizard::CmdFinishTwo, "Alt+A"},
}};

template <typename Widget>
Widget* WidgetOf(const Form& form, const Control& control) {
  return qobject_cast<Widget*>(form.WidgetOf(control));
}

// After what led here has had the focus. Tab brings what it reaches into view by itself, this doesn't.
void FocusLater(QWidget* widget) {
  QTimer::singleShot(0, widget, [widget] {
    widget->setFocus(Qt::TabFocusReason);
    for (QWidget* at = widget->parentWidget(); at != nullptr; at = at->parentWidget()) {
      if (auto* area = qobject_cast<QScrollArea*>(at)) area->ensureWidgetVisible(widget);
    }
  });
}

// While the list editor is in view its own buttons have their keys.
void GiveOwnKeys(Form& form, MainCWizard& wizard) {
  form.Follow([&form, &wizard] {
    for (const OwnKey& own : kOwnKeys) {
      const Button& button = wizard.*own.button;
      auto* widget = WidgetOf<QPushButton>(form, button);
      if (!QKeySequence::mnemonic(ToQt(button.caption())).isEmpty()) continue;
      const QKeySequence key(wizard.StepsPanel.shown() ? QString(own.key) : QString());
      if (widget->shortcut() != key) widget->setShortcut(key);
      if (button.enabled() && widget->toolTip() != own.key) widget->setToolTip(own.key);
    }
  });
}

// While the trims are in view, their button of the same access key has it; Escape closes at any time.
void ShareAccessKey(Form& form, MainCWizard& wizard) {
  auto* close = WidgetOf<QPushButton>(form, wizard.CmdClose);
  form.Follow([close, &wizard] {
    const std::string& caption = wizard.CmdClose.caption();
    const QString text = wizard.CalculateTrims.shown() ? PlainText(caption) : ToQt(caption);
    if (close->text() != text) close->setText(text);
  });
}

// The last field of a page leads on, not back; the tools come last.
void OrderFoot(Form& form, MainCWizard& wizard) {
  QWidget* last = nullptr;
  for (const Control* control : std::initializer_list<const Control*>{
           &wizard.CmdNext, &wizard.CmdBack, &wizard.CmdUpdateAndClose, &wizard.CmdFinishTwo,
           &wizard.CmdClose, &wizard.CmdSelect, &wizard.CmdCurOptions, &wizard.CmdListOptions,
           &wizard.CmdConverter, &wizard.CmdCalculator}) {
    auto* widget = WidgetOf<QWidget>(form, *control);
    if (last != nullptr) QWidget::setTabOrder(last, widget);
    last = widget;
  }
}

// A new step starts at its first field.
void StartAtFirstField(Form& form, MainCWizard& wizard) {
  form.Follow([&form, &wizard, seen = 0]() mutable {
    if (std::exchange(seen, wizard.step()) == wizard.step() || wizard.step() == 0) return;
    auto* page = WidgetOf<QWidget>(form, wizard.StepPanel[wizard.step()]);
    for (QWidget* widget = page->nextInFocusChain(); page->isAncestorOf(widget);
         widget = widget->nextInFocusChain()) {
      if (!widget->isEnabled() || widget->isHidden() || (widget->focusPolicy() & Qt::TabFocus) == 0) continue;
      return FocusLater(widget);
    }
  });
}

// What is left to do with an item whose total is known.
void GoOnToSave(Form& form, MainCWizard& wizard) {
  form.Follow([&form, &wizard, known = TotalIsKnown(wizard)]() mutable {
    if (std::exchange(known, TotalIsKnown(wizard)) || !known) return;
    for (const Button* button : {&wizard.CmdUpdateAndClose, &wizard.CmdFinishTwo, &wizard.CmdCopy}) {
      if (button->shown() && button->enabled()) return FocusLater(WidgetOf<QWidget>(form, *button));
    }
  });
}

bool WouldBeDivided(const TextField& price) {
  bool divided = false;
  IgnoreFaults([&] { divided = ParseStrict(price.text()) != 0; });
  return divided;
}

// The prices that lose the tax once more when the wizard comes back to the front.
QStringList PricesAtRisk(const MainCWizard& wizard) {
  QStringList prices;
  if (wizard.cboVAT.Number() <= 0) return prices;
  if (WouldBeDivided(wizard.FabricPrice)) prices += "the fabric price";
  if (wizard.TrimPriceExVat.on() && WouldBeDivided(wizard.TrimPrice)) prices += "the trim price";
  return prices;
}

bool AgreesToDivide(const QStringList& prices, QWidget* window) {
  QMessageBox box(QMessageBox::Question, QString::fromStdString(std::string(kProgramTitle)),
                  "Going to the preferences divides " + prices.join(" and ") +
                      " by the tax once more when you come back.",
                  QMessageBox::NoButton, window);
  box.setTextFormat(Qt::PlainText);
  const QAbstractButton* go_on = box.addButton("&Continue", QMessageBox::AcceptRole);
  QPushButton* stay = box.addButton("&Stay", QMessageBox::RejectRole);
  box.setDefaultButton(stay);
  box.setEscapeButton(stay);
  box.exec();
  return box.clickedButton() == go_on;
}

// The window's affair alone: by script the preferences open without a word.
void AskBeforePreferences(Form& form, MainCWizard& wizard) {
  auto* button = WidgetOf<QPushButton>(form, wizard.CmdCurOptions);
  QObject::disconnect(button, &QPushButton::clicked, &form, nullptr);
  QObject::connect(button, &QPushButton::clicked, &form, [&form, &wizard] {
    // The rule of the field that was left may have changed its price.
    form.Flush();
    const QStringList prices = PricesAtRisk(wizard);
    if (!prices.isEmpty() && !AgreesToDivide(prices, form.window())) return;
    form.Act(wizard.CmdCurOptions, [&wizard](Control&) { wizard.CmdCurOptions.UserPress(); });
  });
}

// A worker who measures in inches wants them for the next item too. An item that is edited has its own unit.
void KeepUnit(Form& form, MainCWizard& wizard) {
  QObject::connect(WidgetOf<QAbstractButton>(form, wizard.InputInInches), &QAbstractButton::clicked, &form,
                   [](bool inches) { QSettings().setValue(kInches, inches); });
}

void TakeKeptUnit(Form& form, MainCWizard& wizard) {
  if (!wizard.Txtinfo.empty() || wizard.TxtViewOnly.text() == "1") return;
  const bool inches = QSettings().value(kInches, wizard.InputInInches.on()).toBool();
  if (inches == wizard.InputInInches.on()) return;
  form.Act(wizard.InputInInches, [&](Control&) { wizard.InputInInches.UserSet(inches); });
  form.Flush();
}

// The worker types as soon as the window is there. Where she comes back to the first step, Next has the
// focus.
void StartAtDescription(Form& form, MainCWizard& wizard) {
  auto* description = WidgetOf<QWidget>(form, wizard.TxtDescription);
  QTimer::singleShot(0, description, [&form, &wizard, description] {
    TakeKeptUnit(form, wizard);
    description->setFocus(Qt::TabFocusReason);
  });
}

}  // namespace

void AddWizardHabits(Form& form, MainCWizard& wizard) {
  OrderFoot(form, wizard);
  ShareAccessKey(form, wizard);
  GiveOwnKeys(form, wizard);
  StartAtDescription(form, wizard);
  StartAtFirstField(form, wizard);
  GoOnToSave(form, wizard);
  AskBeforePreferences(form, wizard);
  KeepUnit(form, wizard);
}

}  // namespace tarvane::desktop
