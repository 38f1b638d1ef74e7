#include <QLabel>
#include <algorithm>

#include "curtain_wizard/costing.h"
#include "curtain_wizard/wizard.h"
#include "desktop/forms/wizard_form.h"
#include "desktop/forms/wizard_steps.h"
#include "desktop/make.h"
#include "desktop/text.h"
#include "desktop/theme.h"
#include "job/job_screen.h"

namespace tarvane::desktop {
namespace {

using curtain_wizard::MainCWizard;

constexpr int kLastStep = MainCWizard::kSteps - 1;
constexpr int kLabourStep = kLastStep - 1;  // from here on all costs of a restored item are worked out

struct Shown {
  std::string caption;
  std::string amount;
};

// Which price stands in view.
class PriceInView {
 public:
  explicit PriceInView(const MainCWizard& wizard) : wizard_(wizard), saved_(SavedPrice(wizard)) {}

  Shown Now() {
    furthest_ = std::max(furthest_, wizard_.step());
    if (TotalIsKnown(wizard_)) return {"Total Inc Vat/Tax", wizard_.GrandTotal.text()};
    if (!saved_.empty() && furthest_ < kLabourStep) return {"Saved price Inc Vat/Tax", saved_};
    return {"So far Exc Vat/Tax", curtain_wizard::CostSoFar(wizard_)};
  }

 private:
  const MainCWizard& wizard_;
  std::string saved_;
  int furthest_ = 0;
};

void SetText(QLabel* label, const std::string& text) {
  const QString now = ToQt(text);
  if (label->text() != now) label->setText(now);
}

}  // namespace

std::string SavedPrice(const MainCWizard& wizard) {
  const double room = wizard.RoomIndex.Number();
  if (wizard.Txtinfo.empty() || !(room >= 0 && room < static_cast<double>(job::kRoomCount))) return {};
  const HeldGrid& grid = wizard.job().RoomItemGrid[static_cast<std::size_t>(room)];
  const double row = wizard.TxtRow.Number();
  if (!(row >= 1 && row <= static_cast<double>(grid.RowCount()))) return {};
  const std::string& price = grid.Text(static_cast<std::int64_t>(row), job::kPriceColumn);
  return price.empty() ? std::string() : Format2(price);
}

bool TotalIsKnown(const MainCWizard& wizard) {
  return wizard.step() == kLastStep && !wizard.CmdGetInfo.enabled();
}

Piece CostTag(Builder& build, MainCWizard& wizard) {
  auto* amount = Make<QLabel>();
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
  const auto price = std::make_shared<PriceInView>(wizard);
  build.form().Follow([amount, price] { SetText(amount, price->Now().amount); });
  const Piece caption = FollowingText(build, [price] { return price->Now().caption; });
  qobject_cast<QLabel*>(caption.widget)->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  return build.Column({caption, {amount}}, 0);
}

Piece PriceChange(Builder& build, MainCWizard& wizard) {
  const Piece piece = build.Heading("");
  auto* label = qobject_cast<QLabel*>(piece.widget);
  label->setAlignment(Qt::AlignRight);
  build.form().Follow([label, &wizard, saved = SavedPrice(wizard)] {
    const std::string now = Format2(wizard.GrandTotal.text());
    const bool differs = TotalIsKnown(wizard) && !saved.empty() && saved != now;
    if (differs) SetText(label, "was " + saved + ", now " + now);
    label->setHidden(!differs);
  });
  return piece;
}

}  // namespace tarvane::desktop
