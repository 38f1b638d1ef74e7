#include "curtain_wizard/item_line.h"
#include "curtain_wizard/item_record.h"
#include "curtain_wizard/wizard.h"
#include "job/job_screen.h"

namespace tarvane::curtain_wizard {
namespace {

const std::string kRule(58, '-');

// A new item is summed up on the tab that is in view, whichever room it belongs to.
TextField& ShownSummary(job::JobScreen& job) {
  return job.RoomSummary[static_cast<std::size_t>(job.SelectedRoom()) - 1];
}

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

// Letters in the paid amount stop the totals; they are told when the job is refreshed.
void WorkOutJob(job::JobScreen& job) {
  IgnoreFaults([&job] { job.LoadRoom(); });
  IgnoreFaults([&job] { job.cal(); });
}

// What follows the line number in the room's grid.
HeldGrid::Row ItemLine(MainCWizard& w, std::string description) {
  return {w.GrandTotal.text(), std::move(description), ItemRecord(w),
          "CurtainWizard",     w.ItemNumber.text(),    w.ItemTextRoom.text()};
}

}  // namespace

std::size_t RoomOf(const TextField& room_index) {
  const double index = room_index.Number();
  if (!(index >= 0 && index < static_cast<double>(job::kRoomCount))) {
    throw Fault("There is no room for this item: room index \"" + room_index.text() + "\".");
  }
  return static_cast<std::size_t>(index);
}

HeldGrid::Row UpdatedItemLine(MainCWizard& w) { return ItemLine(w, LongDescription(w)); }

void MainCWizard::HookSaving() {
  CmdFinishTwo.OnClicked([this] { FinishNew(); });
  CmdUpdateAndClose.OnClicked([this] { Update(); });
  CmdCopy.OnClicked([this] { CopyToClipboard(); });
}

void MainCWizard::FinishNew() {
  SaveInJob([this](std::size_t room, HeldGrid& grid) {
    HeldGrid::Row line = ItemLine(*this, Size(*this));
    line.insert(line.begin(), std::to_string(grid.selected_row()));
    grid.AddRow(std::move(line));
    job_->RewriteRoomText(room);

    GrandTotal.SetText(Format2(GrandTotal.text()));
    TextField& summary = ShownSummary(*job_);
    summary.SetText(summary.text() + "\r\n\r\n" + ItemTextPriced.text() + "\r\n" + kRule +
                    "\r\nPrice Includes Vat/Tax  " + GrandTotal.text() + "\r\n" + kRule);
  });
}

void MainCWizard::Update() {
  SaveInJob([this](std::size_t room, HeldGrid& grid) {
    const double row = TxtRow.Number();
    if (!(row >= 1 && row <= static_cast<double>(grid.RowCount()))) {
      throw Fault("The item's row " + TxtRow.text() + " is not in the room any more.");
    }
    const HeldGrid::Row line = UpdatedItemLine(*this);
    for (std::size_t i = 0; i < line.size(); ++i) {
      grid.SetText(static_cast<std::int64_t>(row), static_cast<int>(i) + 1, line[i]);
    }
    job_->RewriteRoomText(room);
  });
}

// Commits the job with `change` and closes. Where that faults the job is as it was, so that the worker may
// try again without a second item.
void MainCWizard::SaveInJob(const std::function<void(std::size_t, HeldGrid&)>& change) {
  const std::size_t room = RoomOf(RoomIndex);
  HeldGrid& grid = job_->RoomItemGrid[room];
  TextField& summary = ShownSummary(*job_);
  const auto rows = grid.rows();
  const std::int64_t selected = grid.selected_row();
  const std::string items = job_->RoomItems[room].text();
  const std::string summary_text = summary.text();
  try {
    change(room, grid);
    // The totals belong to the item: it is one commit.
    WorkOutJob(*job_);
    job_->Data1.Save();
  } catch (...) {
    grid.SetRows(rows);
    grid.Select(selected);
    job_->RoomItems[room].SetText(items);
    summary.SetText(summary_text);
    WorkOutJob(*job_);
    throw;
  }
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
