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

constexpr std::array<OwnKey, 5> kOwnKeys = {{
    {&MainCWizard::CmdSelect, "Alt+D"},
    {&MainCWizard::CmdGobletWizard, "Alt+W"},
    {&MainCWizard::CmdGetFabricFromDatabase, "Alt+F"},
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

// What the worker leads to from here; with the fabric comes its own price.
struct WayOut {
  Button MainCWizard::*button;
  const char* where;
  bool brings_fabric = false;
};

constexpr std::array<WayOut, 6> kWaysOut = {{
    {&MainCWizard::CmdCurOptions, "preferences"},
    {&MainCWizard::CmdSelect, "price list"},
    {&MainCWizard::CmdGobletWizard, "pleats"},
    {&MainCWizard::CmdGetFabricFromDatabase, "products", true},
    {&MainCWizard::CmdPrint, "printed text"},
    {&MainCWizard::Cmdprintwithoutprices, "printed text"},
}};

// The prices that lose the tax once more when the wizard comes back to the front.
QStringList PricesAtRisk(const MainCWizard& wizard, bool brings_fabric) {
  QStringList prices;
  if (wizard.cboVAT.Number() <= 0) return prices;
  if (!brings_fabric && WouldBeDivided(wizard.FabricPrice)) prices += "the fabric price";
  if (wizard.TrimPriceExVat.on() && WouldBeDivided(wizard.TrimPrice)) prices += "the trim price";
  return prices;
}

// Whether the worker presses the first of the two buttons.
bool Agrees(const QString& text, const char* yes, const char* no, bool yes_is_safe, QWidget* window) {
  QMessageBox box(QMessageBox::Question, QString::fromStdString(std::string(kProgramTitle)), text,
                  QMessageBox::NoButton, window);
  box.setTextFormat(Qt::PlainText);
  QPushButton* go_on = box.addButton(yes, QMessageBox::AcceptRole);
  QPushButton* stay = box.addButton(no, QMessageBox::RejectRole);
  box.setDefaultButton(yes_is_safe ? go_on : stay);
  box.setEscapeButton(stay);
  box.exec();
  return box.clickedButton() == go_on;
}

void Press(Form& form, Button& button) {
  form.Act(button, [&button](Control&) { button.UserPress(); });
}

// What the button is to do in place of being pressed at once. The window's affair alone: by script it is
// pressed without a word.
void OnPressed(Form& form, const Button& button, const std::function<void()>& action) {
  auto* widget = WidgetOf<QPushButton>(form, button);
  QObject::disconnect(widget, &QPushButton::clicked, &form, nullptr);
  QObject::connect(widget, &QPushButton::clicked, &form, action);
}

void AskBeforeLeaving(Form& form, MainCWizard& wizard, const WayOut& way) {
  // The rule of the field that was left may have changed its price.
  form.Flush();
  const QStringList prices = PricesAtRisk(wizard, way.brings_fabric);
  const QString text = QString("Going to the %1 divides ").arg(way.where) + prices.join(" and ") +
                       " by the tax once more when you come back.";
  if (prices.isEmpty() || Agrees(text, "&Continue", "&Stay", false, form.window())) {
    Press(form, wizard.*way.button);
  }
}

void TypeInto(Form& form, TextField& field, const std::string& text) {
  form.Act(field, [&field, &text](Control&) { field.UserType(text); });
}

// The products were closed without a pick, which takes away what was typed here.
void OfferFormerFabric(Form& form, MainCWizard& wizard, const std::string& name, const std::string& price) {
  const bool same = wizard.FabricName.text() == name && wizard.FabricPrice.text() == price;
  const bool nothing = (name.empty() || name == MainCWizard::kNoFabric) && ParseLeading(price) == 0;
  if (wizard.fabric_picked() || same || nothing) return;
  const QString text = "No fabric was picked. Put back " + ToQt(name) + " at " + ToQt(price) + "?";
  if (!Agrees(text, "&Put back", "&Leave", true, form.window())) return;
  TypeInto(form, wizard.FabricName, name);
  TypeInto(form, wizard.FabricPrice, price);
}

void AskOnTheWaysOut(Form& form, MainCWizard& wizard) {
  for (const WayOut& way : kWaysOut) {
    OnPressed(form, wizard.*way.button, [&form, &wizard, &way] {
      const std::string name = wizard.FabricName.text();
      const std::string price = wizard.FabricPrice.text();
      AskBeforeLeaving(form, wizard, way);
      if (way.brings_fabric) OfferFormerFabric(form, wizard, name, price);
    });
  }
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
  AskOnTheWaysOut(form, wizard);
  KeepUnit(form, wizard);
}

}  // namespace tarvane::desktop
