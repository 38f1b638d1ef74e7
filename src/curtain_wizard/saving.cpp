#include "curtain_wizard/item_line.h"
#include "curtain_wizard/item_record.h"
#include "curtain_wizard/wizard.h"
#include "job/item_saving.h"
#include "job/job_screen.h"

namespace tarvane::curtain_wizard {
namespace {

const std::string kRule(58, '-');

std::string Size(const MainCWizard& w) {
  const std::string& unit = w.UnitLabel[0].caption();
  return w.CboCurtainStyle.text() + " - " + w.TxtRoom.text() + " - " + w.TxtDescription.text() +
         " Track Width = " + w.TrackWidthCm.text() + unit + " (" + w.TrackWidthIns.text() +
         "ins) X Drop = " + w.FinishedLengthCm.text() + unit + " (" + w.FinishedLengthIns.text() + "ins)";
}

std::string Tags(const MainCWizard& w) {
  std::string tags;
  if (w.TieBacksNeeded.on()) tags += " # Tie backs Needed.";
  if (w.LiningNeeded.on()) tags += " # Lined.";
  if (w.InterliningNeeded.on()) tags += " # Interlined";
  if (!w.TrimName.empty()) tags += " # " + w.TrimKind.text() + " Required ";
  return tags;
}

// Only an update tells the fabric and what else is wanted.
std::string LongDescription(const MainCWizard& w) {
  return Size(w) + " # Fabric = " + w.FabricName.text() + " Qty = " + w.MetresRequired.text() + " Mts # " +
         Tags(w);
}

// What follows the line number in the room's grid.
HeldGrid::Row ItemLine(MainCWizard& w, std::string description) {
  return {w.GrandTotal.text(), std::move(description), ItemRecord(w),
          "CurtainWizard",     w.ItemNumber.text(),    w.ItemTextRoom.text()};
}

}  // namespace

HeldGrid::Row UpdatedItemLine(MainCWizard& w) { return ItemLine(w, LongDescription(w)); }

void MainCWizard::HookSaving() {
  CmdFinishTwo.OnClicked([this] { FinishNew(); });
  CmdUpdateAndClose.OnClicked([this] { Update(); });
  CmdCopy.OnClicked([this] { CopyToClipboard(); });
}

void MainCWizard::FinishNew() {
  job::AddItem(
      *job_, job::RoomOf(RoomIndex), [this] { return ItemLine(*this, Size(*this)); },
      [this] {
        GrandTotal.SetText(Format2(GrandTotal.text()));
        TextField& summary = job::ShownSummary(*job_);
        summary.SetText(summary.text() + "\r\n\r\n" + ItemTextPriced.text() + "\r\n" + kRule +
                        "\r\nPrice Includes Vat/Tax  " + GrandTotal.text() + "\r\n" + kRule);
      });
  CloseSaved();
}

void MainCWizard::Update() {
  job::ReplaceItem(*job_, job::RoomOf(RoomIndex), TxtRow.text(), [this] { return UpdatedItemLine(*this); });
  CloseSaved();
}

void MainCWizard::CloseSaved() {
  item_saved_ = true;
  Close();
}

void MainCWizard::CopyToClipboard() {
  if (ItemTextPriced.empty()) {
    Message("Nothing to copy");
    return;
  }
  static constexpr std::string_view kDoubleRule = "=====================\r\n";
  std::string text = ItemTextPriced.text() + "\r\n";
  text.append(kDoubleRule);
  text += "Costing: " + totalCostingWiz.text() + "\r\nVat/Tax: " + TotalCostingVat.text() +
          "\r\nGrand Total: " + GrandTotal.text() + "\r\n";
  text.append(kDoubleRule);
  host().SetClipboardText(text);
  Message("This Information has been copied to the clipboard. Use a text editor to print it out.");
}

void MainCWizard::CopyForTextEditor() {
  host().SetClipboardText(ItemTextPriced.text());
  if (AskYesNo(kProgramTitle, " Run NOTE PAD for printing? (Press Ctrl + V to copy info)")) {
    host().Launch("notepad");
  }
}

}  // namespace tarvane::curtain_wizard
