#include <array>
#include <cmath>

#include "curtain_wizard/wizard.h"

namespace tarvane::curtain_wizard {
namespace {

using Wizard = MainCWizard;

enum class In { kAllTexts, kPricedTextOnly };
enum class Total { kAdded, kLeftOut };

// One row of the costing.
struct ItemRow {
  std::string_view item;
  bool (*applies)(const Wizard&);
  std::string (*description)(const Wizard&);
  std::string (*price)(const Wizard&);
  In in = In::kAllTexts;
  Total total = Total::kAdded;
};

// The pieces one after another; fields and labels by what they show.
std::string_view Piece(std::string_view text) { return text; }
std::string_view Piece(const TextField& field) { return field.text(); }
std::string_view Piece(const TickBox& box) { return box.caption(); }
std::string_view Piece(const Label& label) { return label.caption(); }

template <typename... Pieces>
std::string Join(const Pieces&... pieces) {
  std::string text;
  text.reserve((Piece(pieces).size() + ...));
  (text.append(Piece(pieces)), ...);
  return text;
}

bool Always(const Wizard&) { return true; }
bool WithoutTieBacks(const Wizard& w) { return w.NoTieBacks.on(); }
bool WithTieBacks(const Wizard& w) { return w.TieBacksNeeded.on(); }
bool Lined(const Wizard& w) { return w.LiningNeeded.on(); }
bool Unlined(const Wizard& w) { return !w.LiningNeeded.on(); }
bool Interlined(const Wizard& w) { return w.InterliningNeeded.on(); }
bool NotInterlined(const Wizard& w) { return !w.InterliningNeeded.on(); }
bool Trimmed(const Wizard& w) { return w.AddTrims.on() && w.TrimCost.text() != "0.00"; }
bool Untrimmed(const Wizard& w) { return w.AddTrims.on() && w.TrimCost.text() == "0.00"; }
bool Bordered(const Wizard& w) { return Trimmed(w) && w.TxtBorderCutSize.text() != "0"; }

std::string Free(const Wizard&) { return "0.00"; }
std::string TieBackPrice(const Wizard& w) {
  return FormatNumber(w.TxtTieBacksUnitPrice.Number() * w.TxtNoOfTieBacks.Number(), Mask::k0_00);
}
template <TextField Wizard::*field>
std::string TextOf(const Wizard& w) {
  return (w.*field).text();
}

const std::array kItemRows = {
    ItemRow{"Room & Ref No: ", Always,
            [](const Wizard& w) { return Join(w.TxtRoom, " -  Item No: ", w.ItemNumber); }, Free},
    ItemRow{"Style:", Always, [](const Wizard& w) { return w.CboCurtainStyle.text(); }, Free},
    ItemRow{"Size:", Always,
            [](const Wizard& w) {
              return Join("Track(Width) ", w.TrackWidthCm, w.UnitLabel[0], " (", w.TrackWidthIns, "in)");
            },
            Free},
    ItemRow{"Size:", Always,
            [](const Wizard& w) {
              return Join("Drop ", w.FinishedLengthCm, w.UnitLabel[0], " (", w.FinishedLengthIns, "in)");
            },
            Free},
    ItemRow{"Size:", Always,
            [](const Wizard& w) {
              return Join("Fullness = ", w.Fullness, " : PR ", w.PatternRepeatCm, w.UnitLabel[0], " (",
                          w.PatternRepeatIns, "in)");
            },
            Free},
    ItemRow{"Size:", Always, [](const Wizard& w) { return Join("Patterns per Drop: ", w.PatternsPerDrop); },
            Free},
    ItemRow{"Size:", Always,
            [](const Wizard& w) { return Join("Number of Drops (Widths) = ", w.NumberOfDrops); }, Free},
    ItemRow{"Size:", Always,
            [](const Wizard& w) {
              return Join("Cuts: ", w.CutLengthIns, " Ins ", w.CutLengthCm, " ", w.UnitLabel[0]);
            },
            Free},
    ItemRow{"Fabric:", Always, [](const Wizard& w) { return Join("Fabric Name: ", w.FabricName); }, Free},
    ItemRow{"Fabric:", Always,
            [](const Wizard& w) { return Join("Fabric Required ", w.MetresRequired, " Metre's"); }, Free},
    ItemRow{"Fabric:", Always, [](const Wizard& w) { return Join("Price Per Metre: ", w.FabricPrice); },
            TextOf<&Wizard::FabricCost>, In::kPricedTextOnly},
    ItemRow{"Tape:", Always,
            [](const Wizard& w) {
              return w.TapeCost.Number() > 0 ? Join("Tape Needed: ", w.TxtTape, " Metre's")
                                             : std::string("No Tape Needed.");
            },
            TextOf<&Wizard::TapeCost>},
    ItemRow{"Tie Backs: ", WithoutTieBacks,
            [](const Wizard&) { return std::string("No Tie Backs Needed in same Fabric"); }, Free,
            In::kAllTexts, Total::kLeftOut},
    ItemRow{"Tie Backs:", WithTieBacks, [](const Wizard& w) { return Join("Size: ", w.CboTieBacks); }, Free},
    ItemRow{"Tie Backs: ", WithTieBacks, [](const Wizard& w) { return Join("Style: ", w.TieBackStyle); },
            Free},
    ItemRow{"Tie Backs: ", WithTieBacks,
            [](const Wizard& w) {
              return Join("Qty: ", w.TxtNoOfTieBacks, " at ", w.TxtTieBacksUnitPrice, " each =");
            },
            TieBackPrice, In::kPricedTextOnly},
    ItemRow{"Lining: ", Lined,
            [](const Wizard& w) {
              return Join("Lining Needed ", w.LiningAmount, " ", w.LiningByWidths,
                          " - Lining Name: ", w.TxtLiningName);
            },
            TextOf<&Wizard::LiningCost>},
    ItemRow{"Lining: ", Unlined, [](const Wizard&) { return std::string("No Lining Needed "); }, Free},
    ItemRow{"Interlining: ", Interlined,
            [](const Wizard& w) {
              return Join("Interlining Needed ", w.InterliningAmount, " ", w.LiningByWidths,
                          " Interlining Name: ", w.TxtInterliningName);
            },
            TextOf<&Wizard::InterliningCost>},
    ItemRow{"Interlining: ", NotInterlined,
            [](const Wizard&) { return std::string("No Interlining Needed "); }, Free},
    ItemRow{"Trimmings", Untrimmed, [](const Wizard&) { return std::string("No Trimmings needed"); }, Free},
    ItemRow{"Trimmings", Trimmed,
            [](const Wizard& w) { return Join("Style: ", w.TrimKind, " - ", w.CboTrims); }, Free},
    ItemRow{
        "Trimmings", Trimmed,
        [](const Wizard& w) { return Join("Trim/Fabric: ", w.TrimName, " Mts Needed ", w.TxtAmountMetres); },
        Free},
    ItemRow{"Trimmings", Bordered,
            [](const Wizard& w) { return Join("Boarder Size: ", w.TxtBorderCutSize, " Inches"); }, Free},
    ItemRow{"Trimmings", Trimmed,
            [](const Wizard& w) {
              return Join("Costing: Mts ", w.TrimMetres, " @ ", w.TrimPrice, " Per Mtr = ");
            },
            TextOf<&Wizard::TrimCost>, In::kPricedTextOnly},
    ItemRow{"Labour: ", Always,
            [](const Wizard& w) {
              return Join("Costing - Widths ", w.LabourWidths, " @ ", w.LabourPrice, " each = ");
            },
            TextOf<&Wizard::LabourCost>, In::kPricedTextOnly},
    ItemRow{"Labour: ", Always, [](const Wizard&) { return std::string("Tie Backs Labour Costing = "); },
            TextOf<&Wizard::TieBackLabour>, In::kPricedTextOnly},
    ItemRow{"Labour: ", Always,
            [](const Wizard& w) { return Join("Extra Labour Costing ( ", w.ExtraLabourText, " ) = "); },
            TextOf<&Wizard::ExtraLabour>, In::kPricedTextOnly},
};

// The texts and the sum while rows are added.
struct Gathered {
  std::string priced;
  std::string plain;
  std::string room;
  std::string total;
};

void AddToTexts(const ItemRow& row, const HeldGrid::Row& cells, Gathered& to) {
  const std::string line = Join(cells[0], " - ", cells[1], " ", cells[2]);
  to.priced.append(line).append(" -  ").append(cells[3]).append("\r\n");
  if (row.in == In::kPricedTextOnly) return;
  to.plain.append(line).append("\r\n");
  if (cells[0] == "1") to.room += "~";
  to.room.append(line).append("~");
}

// False where the sum gets too large.
bool AddToTotal(const std::string& price, std::string& total) {
  const double sum = ParseLeading(total) + ParseLeading(price);
  if (!std::isfinite(sum)) return false;
  total = NumberText(sum);
  return true;
}

// The rows that apply, into grid rows and texts; false where the sum gets too large, which ends it.
bool Gather(const Wizard& wizard, std::vector<HeldGrid::Row>& rows, Gathered& to) {
  rows.reserve(kItemRows.size());
  for (const ItemRow& row : kItemRows) {
    if (!row.applies(wizard)) continue;
    const HeldGrid::Row& cells = rows.emplace_back(HeldGrid::Row{
        std::to_string(rows.size() + 1), std::string(row.item), row.description(wizard), row.price(wizard)});
    AddToTexts(row, cells, to);
    if (row.total == Total::kAdded && !AddToTotal(cells[3], to.total)) return false;
  }
  return true;
}

}  // namespace

void MainCWizard::GetInfo() {
  CmdGetInfo.SetEnabled(false);
  EnablePrinting(true);
  CmdFinishTwo.SetEnabled(true);
  CmdUpdateAndClose.SetEnabled(true);

  Gathered texts{ItemTextPriced.text(), ItemTextPlain.text(), ItemTextRoom.text(), totalCostingWiz.text()};
  std::vector<HeldGrid::Row> rows;
  const bool complete = Gather(*this, rows, texts);
  CostingGrid.SetRows(std::move(rows));
  CostingGrid.Select(CostingGrid.RowCount());
  ItemTextPriced.SetText(texts.priced);
  ItemTextPlain.SetText(texts.plain);
  totalCostingWiz.SetText(texts.total);
  if (!complete) {
    ItemTextRoom.SetText(texts.room);
    return;
  }
  totalCostingWiz.SetText(Format2(totalCostingWiz.text()));
  AddVat();
  const std::string rule(58, '-');
  ItemTextRoom.SetText(Join(texts.room, "~", rule, "~Price Includes Vat/Tax ", GrandTotal, "~", rule, "~"));
}

}  // namespace tarvane::curtain_wizard
