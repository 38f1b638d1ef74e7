#include <QGridLayout>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QToolButton>

#include "app/main_screen.h"
#include "desktop/forms/main_form.h"
#include "desktop/icons.h"
#include "desktop/text.h"
#include "desktop/theme.h"

namespace tarvane {
namespace {

Piece StepButton(Form& form, MainScreen& screen, const char* command_name, const char* icon,
                 const char* tip) {
  auto* button = std::make_unique<QToolButton>().release();
  Button& command = screen.CommandButton(command_name);
  button->setIcon(MakeIcon(icon));
  button->setAutoRaise(true);
  button->setToolTip(tip);
  button->setAccessibleName(tip);
  button->setFocusPolicy(Qt::NoFocus);
  QObject::connect(button, &QToolButton::clicked, &form,
                   [&form, &command] { form.Act(command, [&command](Control&) { command.UserPress(); }); });
  form.Follow([button, &command] { button->setEnabled(command.enabled()); });
  return {button};
}

// The job that is open, whatever page is in view.
Piece Title(Builder& build, MainScreen& screen) {
  auto* name = std::make_unique<QLabel>().release();
  name->setTextFormat(Qt::PlainText);
  name->setMinimumWidth(Quarters(20));
  build.form().AddSizer([name] {
    QFont font;
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * 1.3);
    name->setFont(font);
  });
  build.form().Follow([name, &screen] {
    const QString customer = ToQt(screen.Name.text());
    const QString text = customer.isEmpty() ? QString("Job without a name") : customer;
    if (name->text() != text) name->setText(text);
  });
  Form& form = build.form();
  return build.Row({
      {name, nullptr, 1},
      StepButton(form, screen, "MnuPrevRec", "Previous", "Previous Record"),
      build.Text(screen.RecordBar),
      StepButton(form, screen, "MuuNextRec", "Next", "Next Record"),
      Builder::Gap(2),
      build.Press(screen.CommandButton("Command3")),
      build.Press(screen.CommandButton("CmdSize")),
  });
}

// The strip keeps its height, and scrolls sideways where the window is too narrow for it.
class StripArea : public QScrollArea {
 public:
  explicit StripArea(QWidget* strip) {
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWidget(strip);
    setFocusPolicy(Qt::NoFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  }
  QSize sizeHint() const override { return {widget()->sizeHint().width(), Height()}; }
  QSize minimumSizeHint() const override { return {Quarters(40), Height()}; }

 protected:
  void resizeEvent(QResizeEvent* event) override {
    QScrollArea::resizeEvent(event);
    if (height() != Height()) updateGeometry();
  }
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::LayoutRequest) updateGeometry();
    return QScrollArea::eventFilter(watched, event);
  }

 private:
  int Height() const {
    const bool narrow = width() < widget()->minimumSizeHint().width();
    return widget()->sizeHint().height() + (narrow ? horizontalScrollBar()->sizeHint().height() : 0);
  }
};

// Fields in a row, each under its caption.
class Strip {
 public:
  explicit Strip(Builder& build) : build_(build), grid_(std::make_unique<QGridLayout>().release()) {
    grid_->setHorizontalSpacing(Quarters(2));
    grid_->setVerticalSpacing(0);
  }
  void Add(const char* caption, const Piece& field) {
    grid_->addWidget(build_.Text(caption, true).widget, 0, column_, Qt::AlignBottom);
    if (field.widget != nullptr) {
      grid_->addWidget(field.widget, 1, column_, Qt::AlignLeft | Qt::AlignVCenter);
    } else {
      grid_->addLayout(field.layout, 1, column_, Qt::AlignLeft | Qt::AlignVCenter);
    }
    ++column_;
  }
  void Spring() { grid_->setColumnStretch(column_++, 1); }
  Piece piece() const { return {nullptr, grid_}; }

 private:
  Builder& build_;
  QGridLayout* grid_;
  int column_ = 0;
};

}  // namespace

Piece TotalsStrip(Builder& build, MainScreen& screen) {
  const Look amount{.width = 9, .number = true};
  const Look percent{.width = 5, .number = true, .unit = "%"};
  const Look strong{.width = 9, .number = true, .strong = true};
  Strip strip(build);
  strip.Add("Sub Total Inc Vat/Tax", build.Field(screen.GTotal, amount));
  strip.Spring();
  strip.Add("Vat/Tax",
            build.Row({build.Field(screen.cboVAT, percent), build.Field(screen.TxtTotalVat, amount)}, 1));
  strip.Spring();
  strip.Add("Dis %", build.Field(screen.DiscountPercent, percent));
  strip.Add("Discount", build.Field(screen.TxtTotalDiscount, amount));
  strip.Spring();
  strip.Add("Total", build.Field(screen.Total, strong));
  strip.Spring();
  strip.Add("Deposit % to pay", build.Field(screen.DepositPercent, percent));
  strip.Add("Deposit to pay", build.Field(screen.DepositPaid, amount));
  strip.Spring();
  strip.Add("Pre Paid", build.Field(screen.PrePaid, amount));
  strip.Add("Bal", build.Field(screen.Balance, strong));
  const Piece box = build.Margin(strip.piece(), 2);
  box.widget->setAutoFillBackground(true);
  box.widget->setBackgroundRole(QPalette::ToolTipBase);
  const int edge = Quarters(3);
  box.widget->layout()->setContentsMargins(edge, Quarters(1), edge, Quarters(2));
  return {std::make_unique<StripArea>(box.widget).release()};
}

namespace {

// Keys for what has no access key of its own.
void AddKeys(Form& form, MainScreen& screen) {
  const auto add = [&form](const char* keys, std::function<void()> action) {
    auto* shortcut = std::make_unique<QShortcut>(QKeySequence(keys), form.window()).release();
    QObject::connect(shortcut, &QShortcut::activated, &form, std::move(action));
  };
  Button& close = screen.CommandButton("CmdSize");
  add("Ctrl+W", [&form, &close] {
    if (close.shown()) form.Act(close, [&close](Control&) { close.UserPress(); });
  });
  TabStrip& pages = screen.SSTab2;
  for (const int step : {1, -1}) {
    add(step > 0 ? "Ctrl+PgDown" : "Ctrl+PgUp", [&form, &pages, &screen, step] {
      if (!screen.in_job_mode()) return;
      form.Act(pages, [&pages, step](Control&) { pages.UserSelect(pages.selected() + step); });
    });
  }
}

}  // namespace

Piece JobPanel(Builder& build, MainScreen& screen) {
  AddKeys(build.form(), screen);
  const Piece title = Title(build, screen);
  const Piece pages =
      build.Pages(screen.SSTab2, {
                                     [build, &screen]() mutable { return CustomerPage(build, screen); },
                                     [build, &screen]() mutable { return SinglesPage(build, screen); },
                                     [build, &screen]() mutable { return RoomsPage(build, screen); },
                                     [build, &screen]() mutable { return HistoryPage(build, screen); },
                                 });
  const Piece top = build.Margin(title);
  return build.Column({top, pages, TotalsStrip(build, screen)}, 0);
}

}  // namespace tarvane
