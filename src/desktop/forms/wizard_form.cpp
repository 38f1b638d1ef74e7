#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QStackedLayout>
#include <QTimer>
#include <array>

#include "curtain_wizard/costing.h"
#include "curtain_wizard/wizard.h"
#include "desktop/builders.h"
#include "desktop/forms/forms.h"
#include "desktop/forms/wizard_steps.h"
#include "desktop/step_bar.h"
#include "desktop/text.h"
#include "desktop/theme.h"
#include "desktop/window_drawing.h"
#include "desktop/windows.h"

namespace tarvane {
namespace {

using PageMaker = Piece (*)(Builder& build, MainCWizard& wizard);

struct StepPage {
  const char* name;
  PageMaker make;
};

constexpr std::array<StepPage, MainCWizard::kSteps> kPages = {{
    {"Measurements", MeasurePage},
    {"Fabric", FabricPage},
    {"Tape and Tie Backs", TapePage},
    {"Lining", LiningPage},
    {"Trims", TrimsPage},
    {"Labour", LabourPage},
    {"Print or Save", TotalsPage},
}};
constexpr int kLastStep = MainCWizard::kSteps - 1;
constexpr int kStripMargin = 2;  // quarters

void PutOnStrip(const Piece& piece) {
  piece.widget->setAutoFillBackground(true);
  piece.widget->setBackgroundRole(QPalette::ToolTipBase);
}

// The total once it has been worked out, what the parts come to before that.
bool TotalIsKnown(const MainCWizard& wizard) {
  return wizard.step() == kLastStep && !wizard.CmdGetInfo.enabled();
}

Piece CostTag(Builder& build, MainCWizard& wizard) {
  auto* amount = std::make_unique<QLabel>().release();
  amount->setTextFormat(Qt::PlainText);
  amount->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  amount->setAccessibleName("Cost of the item");
  build.form().AddSizer([amount] {
    QFont font;
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * 1.6);
    amount->setFont(font);
    amount->setMinimumWidth(Digits(14));
  });
  build.form().Follow([amount, &wizard] {
    const QString text = ToQt(TotalIsKnown(wizard) ? wizard.GrandTotal.text() : CostSoFar(wizard));
    if (amount->text() != text) amount->setText(text);
  });
  const Piece caption = FollowingText(build, [&wizard] {
    return TotalIsKnown(wizard) ? std::string("Total Inc Vat/Tax") : std::string("So far Exc Vat/Tax");
  });
  qobject_cast<QLabel*>(caption.widget)->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  return build.Column({caption, {amount}}, 0);
}

Piece Captioned(Builder& build, const char* caption, const Piece& field) {
  return build.Column({build.Text(caption, true), field}, 0).Grow(field.stretch);
}

Piece Header(Builder& build, MainCWizard& wizard) {
  const Piece strip = build.Margin(
      build.Row(
          {
              Captioned(build, "Room Ref", build.Field(wizard.TxtRoom, {.width = 16})),
              Captioned(build, "Description", build.Field(wizard.TxtDescription).Grow()),
              Captioned(build, "Item No", build.Field(wizard.ItemNumber, {.width = 9, .number = true})),
              Builder::Gap(4),
              CostTag(build, wizard),
          },
          3),
      2);
  PutOnStrip(strip);
  return strip;
}

Piece Steps(Builder& build, MainCWizard& wizard, QStackedLayout* stack) {
  std::vector<QString> names;
  for (const StepPage& page : kPages) names.emplace_back(page.name);
  auto* bar = std::make_unique<StepBar>(std::move(names)).release();
  Form& form = build.form();
  bar->pressed = [&form, &tabs = wizard.StepTabs](int step) {
    form.ActLater(tabs, [&tabs, step](Control&) { tabs.UserSelect(step); });
  };
  form.Bind(wizard.StepTabs, bar, [bar, stack, &wizard](Aspect aspect) {
    if (aspect != Aspect::kSelection) return;
    bar->SetStep(wizard.StepTabs.selected());
    stack->setCurrentIndex(wizard.StepTabs.selected());
  });
  return {bar};
}

// All pages at once: the window is as large as the largest of them from the start.
void FillPages(Builder& build, MainCWizard& wizard, QStackedLayout* stack) {
  for (int step = 0; step < MainCWizard::kSteps; ++step) {
    const auto at = static_cast<std::size_t>(step);
    const Piece page = build.Scroll(kPages[at].make(build, wizard));
    stack->addWidget(page.widget);
    build.form().Bind(wizard.StepPanel[step], page.widget, nullptr);
  }
}

// The page beside the drawing. The page keeps its width: where there is no room for both, the drawing goes.
class PageAndDrawing : public QWidget {
 public:
  PageAndDrawing(QWidget* pages, WindowDrawing* drawing) : pages_(pages), drawing_(drawing) {
    auto row = std::make_unique<QHBoxLayout>(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(pages);
    row->addWidget(drawing, 1);
    row.release();  // NOLINT: the widget owns it
  }

  void SetWanted(bool wanted) {
    wanted_ = wanted;
    ShowOrHide();
  }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QWidget::resizeEvent(event);
    ShowOrHide();
  }

 private:
  void ShowOrHide() {
    const int needed = pages_->sizeHint().width() + drawing_->minimumSizeHint().width();
    drawing_->setVisible(wanted_ && width() >= needed);
  }

  QWidget* pages_;
  WindowDrawing* drawing_;
  bool wanted_ = true;
};

// The help line with the tools beside it, or below where the window is narrow.
class HelpRow : public QWidget {
 public:
  HelpRow(const Piece& help, const Piece& tools) : tools_(tools.layout) {
    auto box = std::make_unique<QBoxLayout>(QBoxLayout::LeftToRight, this);
    box->setContentsMargins(0, 0, 0, 0);
    box->addWidget(help.widget, 1);
    box->addLayout(tools.layout);
    box_ = box.release();
  }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QWidget::resizeEvent(event);
    const bool beside = tools_->sizeHint().width() + Digits(kHelpWidth) <= width();
    box_->setDirection(beside ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
  }

 private:
  static constexpr int kHelpWidth = 50;  // digits

  QLayout* tools_;
  QBoxLayout* box_;
};

Piece PagesArea(Builder& build, MainCWizard& wizard, QWidget* pages) {
  auto* drawing = std::make_unique<WindowDrawing>().release();
  auto* area = std::make_unique<PageAndDrawing>(pages, drawing).release();
  build.form().Follow([drawing, area, &wizard] {
    area->SetWanted(wizard.step() != kLastStep);
    drawing->Show(ReadWindow(wizard));
  });
  return {area, nullptr, 1};
}

Piece Help(Builder& build, MainCWizard& wizard) {
  const Piece help = build.Text(wizard.HelpLine);
  qobject_cast<QLabel*>(help.widget)->setWordWrap(true);
  const Piece tools = build.Row({
      build.Press(wizard.CmdSelect),
      build.Press(wizard.CmdCurOptions),
      build.Press(wizard.CmdListOptions),
      build.Press(wizard.CmdConverter),
      build.Press(wizard.CmdCalculator),
      Builder::Spring(),
  });
  return {std::make_unique<HelpRow>(help, tools).release()};
}

Piece StepsArea(Builder& build, MainCWizard& wizard) {
  auto* area = std::make_unique<QWidget>().release();
  auto* pages = std::make_unique<QWidget>().release();
  auto* stack = std::make_unique<QStackedLayout>(pages).release();
  FillPages(build, wizard, stack);
  const Piece bar =
      build.Margin(build.Column({Steps(build, wizard, stack), Help(build, wizard)}, 1), kStripMargin);
  area->setLayout(build.Column({bar, build.Rule(), PagesArea(build, wizard, pages)}, 0).layout);
  area->layout()->setContentsMargins(0, 0, 0, 0);
  build.form().Bind(wizard.StepsPanel, area, nullptr);
  return {area, nullptr, 1};
}

Piece ListsArea(Builder& build, MainCWizard& wizard) {
  const Piece area = build.Margin(WizardListsPage(build, wizard).Grow()).Grow();
  build.form().Bind(wizard.ListPanel, area.widget, nullptr);
  area.widget->setVisible(wizard.ListPanel.shown());
  return area;
}

// While the trims are in view, their button of the same access key has it; Escape closes at any time.
void ShareAccessKey(Form& form, MainCWizard& wizard) {
  auto* close = qobject_cast<QPushButton*>(form.WidgetOf(wizard.CmdClose));
  form.Follow([close, &wizard] {
    const std::string& caption = wizard.CmdClose.caption();
    const QString text = wizard.CalculateTrims.shown() ? PlainCaption(caption) : ToQt(caption);
    if (close->text() != text) close->setText(text);
  });
}

Piece Footer(Builder& build, MainCWizard& wizard) {
  const Piece footer = build.Margin(build.Row({
                                        build.Press(wizard.CmdBack),
                                        build.Press(wizard.CmdNext, true),
                                        Builder::Spring(),
                                        build.Press(wizard.CmdUpdateAndClose, true),
                                        build.Press(wizard.CmdFinishTwo, true),
                                        Builder::Gap(2),
                                        build.Press(wizard.CmdClose),
                                    }),
                                    2);
  PutOnStrip(footer);
  ShareAccessKey(build.form(), wizard);
  return footer;
}

// The last field of a page leads on, not back; the tools come last.
void OrderFoot(Form& form, MainCWizard& wizard) {
  QWidget* last = nullptr;
  for (const Control* control : std::initializer_list<const Control*>{
           &wizard.CmdNext, &wizard.CmdBack, &wizard.CmdUpdateAndClose, &wizard.CmdFinishTwo,
           &wizard.CmdClose, &wizard.CmdSelect, &wizard.CmdCurOptions, &wizard.CmdListOptions,
           &wizard.CmdConverter, &wizard.CmdCalculator}) {
    auto* widget = qobject_cast<QWidget*>(form.WidgetOf(*control));
    if (last != nullptr) QWidget::setTabOrder(last, widget);
    last = widget;
  }
}

// The worker types as soon as the window is there. Where she comes back to the first step, Next has the
// focus.
void StartAtDescription(Form& form, MainCWizard& wizard) {
  auto* description = qobject_cast<QWidget*>(form.WidgetOf(wizard.TxtDescription));
  QTimer::singleShot(0, description, [description] { description->setFocus(Qt::TabFocusReason); });
}

// A new step starts at its first field.
void StartAtFirstField(Form& form, MainCWizard& wizard) {
  form.Follow([&form, &wizard, seen = 0]() mutable {
    if (std::exchange(seen, wizard.step()) == wizard.step() || wizard.step() == 0) return;
    auto* page = qobject_cast<QWidget*>(form.WidgetOf(wizard.StepPanel[wizard.step()]));
    for (QWidget* widget = page->nextInFocusChain(); page->isAncestorOf(widget);
         widget = widget->nextInFocusChain()) {
      if (!widget->isEnabled() || widget->isHidden() || (widget->focusPolicy() & Qt::TabFocus) == 0) continue;
      // After the button that led here has had its focus.
      QTimer::singleShot(0, widget, [widget] { widget->setFocus(Qt::TabFocusReason); });
      return;
    }
  });
}

}  // namespace

Piece Lines(Builder& build, int digits, const std::vector<FieldLine>& lines) {
  const Piece piece = build.Fields(lines);
  auto* grid = static_cast<QGridLayout*>(piece.layout);
  build.form().AddSizer([grid, digits] { grid->setColumnMinimumWidth(0, Digits(digits)); });
  return piece;
}

Piece Results(Builder& build, const Pieces& pieces) {
  const Piece box = build.Margin(build.Column(pieces, 1), kStripMargin);
  PutOnStrip(box);
  return box;
}

Piece Results(Builder& build, int digits, const std::vector<FieldLine>& lines) {
  const Piece fields = build.Fields(lines);
  auto* grid = static_cast<QGridLayout*>(fields.layout);
  build.form().AddSizer(
      [grid, digits] { grid->setColumnMinimumWidth(0, Digits(digits) - Quarters(kStripMargin)); });
  return Results(build, {fields});
}

Piece FollowingText(Builder& build, std::function<std::string()> text) {
  const Piece piece = build.Text("", true);
  auto* label = qobject_cast<QLabel*>(piece.widget);
  build.form().Follow([label, text = std::move(text)] {
    const QString now = ToQt(text());
    if (label->text() != now) label->setText(now);
  });
  return piece;
}

Piece Advice(Builder& build, std::string_view text) {
  const Piece piece = build.Text(text, true);
  qobject_cast<QLabel*>(piece.widget)->setWordWrap(true);
  return piece;
}

void BuildWizardForm(Form& form) {
  auto& wizard = static_cast<MainCWizard&>(form.screen());
  Builder build(form);
  auto* window = static_cast<DialogWindow*>(form.window());
  // Only the step scrolls: the head and the foot stay in view.
  window->setLayout(build
                        .Column({Header(build, wizard), StepsArea(build, wizard).Grow(),
                                 ListsArea(build, wizard).Grow(), Footer(build, wizard)},
                                0)
                        .layout);
  window->layout()->setContentsMargins(0, 0, 0, 0);
  window->resize(Digits(160), Quarters(152));
  window->escaped = [&form, &wizard] {
    form.Act(wizard.CmdClose, [&wizard](Control&) { wizard.CmdClose.UserPress(); });
  };
  OrderFoot(form, wizard);
  StartAtDescription(form, wizard);
  StartAtFirstField(form, wizard);
}

}  // namespace tarvane
