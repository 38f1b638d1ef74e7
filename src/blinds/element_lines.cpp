#include "blinds/element_lines.h"

#include <string>

#include "screen/control_family.h"

namespace tarvane::blinds {

namespace {

constexpr std::string_view kNothing = "0.00";

auto MakeColumn(Home home, const char* name) {
  return MakeFamily<ElementLines::kCount>([&](int i) { return TextField(home, name, "", i); });
}

void FormatAll(std::array<TextField, ElementLines::kCount>& fields, Mask mask) {
  for (TextField& field : fields) {
    const bool done = field.empty() || (mask == Mask::k0_00 && field.text() == kNothing);
    if (!done) field.SetText(Format(field.text(), mask));
  }
}

}  // namespace

ElementLines::ElementLines(Home home)
    : txtItems(MakeColumn(home, "txtItems")),
      TxtItemQty(MakeColumn(home, "TxtItemQty")),
      TxtSubTotalForItem(MakeColumn(home, "TxtSubTotalForItem")),
      TxtItemTotal(MakeColumn(home, "TxtItemTotal")),
      TxtGrandTotal(home, "TxtGrandTotal", "0.00") {
  for (auto* typed : {&txtItems, &TxtItemQty, &TxtSubTotalForItem}) {
    for (TextField& field : *typed) field.SetSelectAllOnFocus();
  }
  for (TextField& total : TxtItemTotal) total.SetEnabled(false);
  TxtGrandTotal.SetReadOnly(true);
}

// The order of the steps is what the shop's totals rest on: the sum is that of the lines before they are
// rounded. Most lines are empty: they come to 0.00 at once, and add nothing.
void ElementLines::Cal2() {
  TxtGrandTotal.SetText(kNothing);
  for (std::size_t i = 0; i < kCount; ++i) {
    if (TxtItemQty[i].empty() && TxtSubTotalForItem[i].empty()) {
      TxtItemTotal[i].SetText(kNothing);
    } else {
      TxtItemTotal[i].SetNumber(TxtSubTotalForItem[i].Number() * TxtItemQty[i].Number());
    }
  }
  for (const TextField& total : TxtItemTotal) {
    if (total.text() == kNothing) continue;
    TxtGrandTotal.SetNumber(TxtGrandTotal.Number() + total.Number());
  }
  TxtGrandTotal.SetText(Format2(TxtGrandTotal.text()));
  FormatAll(TxtItemQty, Mask::k0);
  FormatAll(TxtSubTotalForItem, Mask::k0_00);
  FormatAll(TxtItemTotal, Mask::k0_00);
}

}  // namespace tarvane::blinds
