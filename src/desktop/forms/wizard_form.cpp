#include "desktop/forms/wizard_form.h"

#include <QBoxLayout>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QStackedLayout>
#include <QStyle>
#include <algorithm>
#include <array>
#include <utility>

#include "curtain_wizard/wizard.h"
#include "desktop/flow_row.h"
#include "desktop/forms/forms.h"
#include "desktop/forms/wizard_steps.h"
#include "desktop/make.h"
#include "desktop/step_bar.h"
#include "desktop/text.h"
#include "desktop/theme.h"
#include "desktop/window_drawing.h"
#include "desktop/windows.h"

namespace tarvane::desktop {
namespace {

using curtain_wizard::MainCWizard;
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
constexpr int kStripMargin = 2;        // quarters
constexpr int kHelpWidth = 50;         // digits
constexpr int kHeightWithHelp = 115;   // quarters; a lower window has its lines for the step
constexpr int kLeastMiddle = 20;       // quarters
constexpr int kLeastPage = 50;         // quarters, that scroll below the head
constexpr int kHeightOfDrawing = 36;   // quarters, at least
constexpr int kLeastDescription = 14;  // digits

void PutOnStrip(const Piece& piece) {
  piece.widget->setAutoFillBackground(true);
  piece.widget->setBackgroundRole(QPalette::ToolTipBase);
}

Piece Captioned(Builder& build, const char* caption, TextField& field, const Look& look) {
  const Piece box = Named(build, field, look, caption);
  return build.Column({build.Text(caption, true), box}, 0).Grow(box.stretch);
}

Piece Header(Builder& build, MainCWizard& wizard) {
  const Piece room = Captioned(build, "Room Ref", wizard.TxtRoom, {.width = 16});
  const Piece description = Captioned(build, "Description", wizard.TxtDescription, {});
  const Piece number = Captioned(build, "Item No", wizard.ItemNumber, {.width = 9, .number = true});
  const Piece strip = build.Margin(
      FlowRow({room, {description, kLeastDescription}, number, CostTag(build, wizard)}, 2), kStripMargin);
  PutOnStrip(strip);
  return strip;
}

Piece Steps(Builder& build, MainCWizard& wizard, QStackedLayout* stack) {
  std::vector<QString> names;
  names.reserve(std::size(kPages));
  for (const StepPage& page : kPages) names.emplace_back(page.name);
  auto* bar = Make<StepBar>(std::move(names));
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

// With room for the bar of a page that scrolls, so that none needs another line for it.
class PagesWidget : public QWidget {
 public:
  QSize sizeHint() const override {
    return QWidget::sizeHint() + QSize(style()->pixelMetric(QStyle::PM_ScrollBarExtent), 0);
  }
};

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
    drawing_->setVisible(wanted_ && width() >= needed && height() >= Quarters(kHeightOfDrawing));
  }

  QWidget* pages_;
  WindowDrawing* drawing_;
  bool wanted_ = true;
};

Piece PagesArea(Builder& build, MainCWizard& wizard, QWidget* pages) {
  auto* drawing = Make<WindowDrawing>();
  // As high as the view leaves, not as they would like to be: where that is too low, StepsWidget says so.
  pages->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Ignored);
  drawing->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
  auto* area = Make<PageAndDrawing>(pages, drawing);
  build.form().Follow([drawing, area, &wizard] {
    area->SetWanted(wizard.step() != kLastStep);
    drawing->Show(ReadWindow(wizard));
  });
  return {area, nullptr, 1};
}

// The steps with their head. Where the window is low, the line that says what a step is for goes, and head
// and page scroll as one; else the page alone scrolls.
class StepsWidget : public QWidget {
 public:
  StepsWidget(QWidget* help, QWidget* head, QStackedLayout* stack)
      : help_(help), head_(head), stack_(stack) {}

  void ScrollIn(QScrollArea* area) {
    area_ = area;
    // The page's width, and so its height, settles after that of the view.
    for (QWidget* widget : {area->viewport(), stack_->parentWidget()}) widget->installEventFilter(this);
  }
  void ShowStep(int step) {
    if (std::exchange(step_, step) != step) area_->verticalScrollBar()->setValue(0);
    Fit();
  }

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Resize) Fit();
    return false;
  }

 private:
  void Fit() {
    help_->setVisible(window()->height() >= Quarters(kHeightWithHelp));
    QWidget* pages = stack_->parentWidget();
    const int room = area_->viewport()->height() - head_->layout()->totalHeightForWidth(width());
    const bool low = room < Quarters(kLeastPage);
    auto* page = static_cast<QScrollArea*>(stack_->currentWidget());
    // A bar that has come up keeps the page narrow, and so too high to do without it.
    page->setVerticalScrollBarPolicy(low ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
    const int all = page->widget()->layout()->totalHeightForWidth(pages->width());
    const int height = low ? std::max(all, page->widget()->minimumSizeHint().height()) : 0;
    if (pages->minimumHeight() != height) pages->setMinimumHeight(height);
  }

  QWidget* help_;
  QWidget* head_;
  QStackedLayout* stack_;
  QScrollArea* area_ = nullptr;
  int step_ = 0;
};

Piece Tools(Builder& build, MainCWizard& wizard) {
  return FlowRow({build.Press(wizard.CmdSelect), build.Press(wizard.CmdCurOptions),
                  build.Press(wizard.CmdListOptions), build.Press(wizard.CmdConverter),
                  build.Press(wizard.CmdCalculator)});
}

Piece StepsArea(Builder& build, MainCWizard& wizard) {
  auto* pages = Make<PagesWidget>();
  auto* stack = Make<QStackedLayout>(pages);
  FillPages(build, wizard, stack);
  const Piece line = build.Text(wizard.HelpLine);
  qobject_cast<QLabel*>(line.widget)->setWordWrap(true);
  const Piece help = build.Margin(line, 0).Grow();
  const Piece tools = FlowRow({{help, kHelpWidth}, Tools(build, wizard)});
  const Piece head = build.Margin(build.Column({Steps(build, wizard, stack), tools}, 1), kStripMargin);
  auto* steps = Make<StepsWidget>(help.widget, head.widget, stack);
  steps->setLayout(build.Column({head, build.Rule(), PagesArea(build, wizard, pages)}, 0).layout);
  steps->layout()->setContentsMargins(0, 0, 0, 0);
  const Piece area = build.Scroll({steps}, 0);
  steps->ScrollIn(qobject_cast<QScrollArea*>(area.widget));
  build.form().Bind(wizard.StepsPanel, area.widget, nullptr);
  build.form().Follow([steps, &wizard] { steps->ShowStep(wizard.step()); });
  return area;
}

// Scrolls, so that the window needs no more room for it than for the steps.
Piece ListsArea(Builder& build, MainCWizard& wizard) {
  const Piece area = build.Scroll(WizardListsPage(build, wizard).Grow());
  build.form().Bind(wizard.ListPanel, area.widget, nullptr);
  area.widget->setVisible(wizard.ListPanel.shown());
  return area;
}

Piece Footer(Builder& build, MainCWizard& wizard) {
  const Piece moves = build.Row({build.Press(wizard.CmdBack), build.Press(wizard.CmdNext, true)});
  const Piece ends = build.Row({
      Builder::Spring(),
      build.Press(wizard.CmdUpdateAndClose, true),
      build.Press(wizard.CmdFinishTwo, true),
      Builder::Gap(1),
      build.Press(wizard.CmdClose),
  });
  const Piece footer = build.Margin(FlowRow({moves, ends.Grow()}), kStripMargin);
  PutOnStrip(footer);
  return footer;
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

Piece Named(Builder& build, TextField& field, const Look& look, std::string_view name) {
  const Piece piece = build.Field(field, look);
  qobject_cast<QWidget*>(build.form().WidgetOf(field))->setAccessibleName(ToQt(name));
  return piece;
}

Piece Advice(Builder& build, std::string_view text) {
  const Piece piece = build.Text(text, true);
  qobject_cast<QLabel*>(piece.widget)->setWordWrap(true);
  return piece;
}

void BuildWizardForm(Form& form, MainCWizard& wizard) {
  Builder build(form);
  auto* window = static_cast<DialogWindow*>(form.window());
  // Only what is between them scrolls: the head and the foot stay in view. While steps and lists take turns,
  // both are there for a moment, for which the window must not grow.
  const Piece middle =
      build.Margin(build.Column({StepsArea(build, wizard).Grow(), ListsArea(build, wizard).Grow()}, 0), 0)
          .Grow();
  form.AddSizer([middle] { middle.widget->setMinimumHeight(Quarters(kLeastMiddle)); });
  const Piece head = Header(build, wizard);
  window->setLayout(build.Column({head, middle, Footer(build, wizard)}, 0).layout);
  window->layout()->setContentsMargins(0, 0, 0, 0);
  window->resize(Digits(160), Quarters(152));
  window->escaped = [&form, &wizard] {
    form.Act(wizard.CmdClose, [&wizard](Control&) { wizard.CmdClose.UserPress(); });
  };
  AddWizardHabits(form, wizard);
}

}  // namespace tarvane::desktop
