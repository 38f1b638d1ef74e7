#include <QApplication>
#include <QLabel>
#include <QLayout>
#include <QPainter>
#include <QShortcut>

#include "app/main_screen.h"
#include "desktop/folding.h"
#include "desktop/forms/main_form.h"
#include "desktop/make.h"
#include "desktop/text.h"
#include "desktop/theme.h"

namespace tarvane::desktop {
namespace {

// Says that something waits to be saved: a word, in a colour that stands out on light and dark ground.
class WaitingMark : public QLabel {
 public:
  WaitingMark() : QLabel(QString::fromUtf8("\u25CF Not saved")) {
    setToolTip("Save Records keeps what you changed (Ctrl+S); Discard changes in the File menu drops it.");
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    const bool dark = palette().color(QPalette::Window).lightness() < 128;
    painter.setPen(QColor(dark ? 0xffe0a83c : 0xff8a5a00));
    painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter, text());
  }
};

// The job that is open, whatever page is in view.
Piece Title(Builder& build, app::MainScreen& screen) {
  auto* name = Make<ElidedLabel>();
  build.form().AddSizer([name] {
    QFont font;
    font.setBold(true);
    font.setPointSizeF(QApplication::font().pointSizeF() * 1.3);
    name->setFont(font);
  });
  auto* mark = Make<WaitingMark>();
  build.form().Follow([name, mark, &screen] {
    const QString customer = ToQt(screen.Name.text());
    const QString text = customer.isEmpty() ? QString("Job without a name") : customer;
    if (name->text() != text) name->setText(text);
    mark->setVisible(screen.Data1.rows().IsOpen() && screen.Data1.rows().IsEditing());
  });
  return build.Row({
      {name, nullptr, 1},
      {mark},
      build.Records(screen.Records),
      Builder::Gap(1),
      build.Press(screen.CommandButton("Command3")),
      build.Press(screen.CommandButton("CmdSize")),
  });
}

// A field under its caption.
Piece Cell(Builder& build, const char* caption, const Piece& field) {
  const Piece line = build.Row({field, Builder::Spring()});
  return build.Margin(build.Column({build.Text(caption, true), line}, 0), 0);
}

}  // namespace

Piece TotalsStrip(Builder& build, app::MainScreen& screen) {
  const auto amount = [](const char* name) { return Look{.width = 10, .number = true, .name = name}; };
  const auto strong = [](const char* name) {
    return Look{.width = 10, .number = true, .strong = true, .name = name};
  };
  const auto percent = [](const char* name) {
    return Look{.width = 5, .number = true, .unit = "%", .name = name};
  };
  const auto cell = [&build](const char* caption, TextField& field, const Look& look) {
    return Cell(build, caption, build.Field(field, look));
  };
  const auto pair = [&](const char* caption, TextField& part, const char* name, TextField& whole,
                        const char* whole_name) {
    return Cell(build, caption,
                build.Row({build.Field(part, percent(name)), build.Field(whole, amount(whole_name))}, 1));
  };
  const Piece strip = build.Flow({
      cell("Sub Total Inc Vat/Tax", screen.GTotal, amount("Sub Total Inc Vat/Tax")),
      Builder::Spring(),
      pair("Vat/Tax", screen.cboVAT, "Vat/Tax %", screen.TxtTotalVat, "Vat/Tax"),
      Builder::Spring(),
      cell("Dis %", screen.DiscountPercent, percent("Dis %")),
      cell("Discount", screen.TxtTotalDiscount, amount("Discount")),
      Builder::Spring(),
      cell("Total", screen.Total, strong("Total")),
      Builder::Spring(),
      pair("Deposit % to pay", screen.DepositPercent, "Deposit % to pay", screen.DepositPaid,
           "Deposit to pay"),
      Builder::Spring(),
      cell("Pre Paid", screen.PrePaid, amount("Pre Paid")),
      cell("Bal", screen.Balance, strong("Bal")),
  });
  const Piece box = build.Margin(strip, 2);
  box.widget->setAutoFillBackground(true);
  box.widget->setBackgroundRole(QPalette::ToolTipBase);
  const int edge = Quarters(3);
  box.widget->layout()->setContentsMargins(edge, Quarters(1), edge, Quarters(2));
  return {box.widget};
}

namespace {

// Keys for what has no access key of its own.
void AddKeys(Form& form, app::MainScreen& screen) {
  const auto add = [&form](const char* keys, std::function<void()> action) {
    auto* shortcut = Make<QShortcut>(QKeySequence(keys), form.window());
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

Piece JobPanel(Builder& build, app::MainScreen& screen) {
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
  top.widget->layout()->setContentsMargins(Quarters(3), Quarters(1), Quarters(3), Quarters(1));
  return build.Column({top, pages, TotalsStrip(build, screen)}, 0);
}

}  // namespace tarvane::desktop
