#include <QLabel>

#include "desktop/builders.h"
#include "desktop/folding.h"
#include "desktop/forms/form_window.h"
#include "desktop/forms/forms.h"
#include "desktop/theme.h"

namespace tarvane::desktop {
namespace {

using catalogues::PlanGrid;

constexpr int kUsualWidth = 130;   // digits
constexpr int kUsualHeight = 150;  // quarters

std::string_view Heading(PlanGrid::Column column) {
  return PlanGrid::kHeadings[static_cast<std::size_t>(column)];
}

const TableLook& Table() {
  static const TableLook kTable = {.columns = {{Heading(PlanGrid::kLine), "", 5, true},
                                               {Heading(PlanGrid::kState), "", 7},
                                               {Heading(PlanGrid::kCode), "", 9},
                                               {Heading(PlanGrid::kName), "", 14},
                                               {Heading(PlanGrid::kChanges), "", 22},
                                               {Heading(PlanGrid::kWrong), "", 16}},
                                   .wide = Heading(PlanGrid::kWrong),
                                   .name = "Lines of the price list",
                                   .empty = "Nothing to show. Open File reads a supplier's price list."};
  return kTable;
}

// What fills the columns of the products from `first` to before `end`, below the supplier at the very first.
Piece Columns(Builder& build, catalogues::FrmPriceList& screen, std::size_t first, std::size_t end) {
  const Look look{.width = 12};
  std::vector<FieldLine> lines;
  lines.reserve(end - first + 1);
  if (first == 0) lines.push_back({"&Supplier", {{screen.TxtSupplier, look}}});
  for (std::size_t i = first; i < end; ++i) {
    lines.push_back({std::string(catalogues::kListColumns[i].caption), {{screen.CboColumn[i], look}}});
  }
  return build.Fields(lines);
}

}  // namespace

void BuildPriceListForm(Form& form, catalogues::FrmPriceList& screen) {
  constexpr std::size_t kLeftColumns = 7;
  Builder build(form);
  const Piece open = build.Press(screen.CmdOpen);
  const Piece file = build.Text(screen.FileName);
  qobject_cast<QLabel*>(file.widget)->setWordWrap(true);
  const Piece heading = build.Heading("Columns of the list");
  const Piece left = Columns(build, screen, 0, kLeftColumns);
  const Piece right = Columns(build, screen, kLeftColumns, catalogues::kListColumnCount);
  const Piece only = build.Tick(screen.ChkOnlyChanges);
  const Piece counts = build.Text(screen.Counts);
  const Piece table = build.Table(screen.Lines, Table());
  form.AddSizer([widget = table.widget] { widget->setMinimumSize(Digits(38), Quarters(22)); });
  const Piece leave_out = build.Tick(screen.ChkLeaveOut);
  const Piece messages = build.Text(screen.Messages, true);
  const Piece close = build.Press(screen.CmdClose);
  const Piece take = build.Press(screen.CmdTakeOver, true);

  FillDialog(form,
             {build.Row({open, file.Grow()}),
              {heading, Folding(build, {left.Grow(), right.Grow()}),
               build.Flow({only, Builder::Spring(), counts}), table.Grow()},
              {leave_out, Builder::Spring(), messages, Builder::Spring(), close, take}},
             &screen.CmdClose, {Digits(kUsualWidth), Quarters(kUsualHeight)});
  SayWhyOff(form, screen.CmdTakeOver,
            "There is nothing to take over, or some lines are wrong: tick that they are left out.");
}

}  // namespace tarvane::desktop
