#include <array>

#include "curtain_wizard/item_record.h"
#include "curtain_wizard/wizard.h"
#include "job/room_text.h"
#include "store/data_files.h"
#include "text/trim.h"

namespace tarvane::curtain_wizard {
namespace {

constexpr std::string_view kFilter = "Tarvane Files (*.tvs)|*.tvs";
constexpr std::size_t kLinkLines = 40;

// Line 14 holds an option of the list editor where one would look for the goblet option, which is thereby
// lost; the files in use have it so. Lines 39 and 40 are the same.
std::array<StoredControl, kLinkLines> LinkFields(MainCWizard& w) {
  return {
      w.TrackWidthIns,
      w.FabricWidthIns,
      w.Fullness,
      w.FinishedLengthIns,
      w.PatternRepeatIns,
      w.PatternsPerDrop,
      w.NumberOfDrops,
      w.TotalInches,
      w.HemAllowanceIns,
      w.MetresRequired,
      w.CutLengthIns,
      w.CutLengthCm,
      w.AutoMeasureBoxPleat,
      w.Lists.Options[0],
      w.OptionCancel,
      w.TxtAutoTrack,
      w.FabricName,
      w.FabricPrice,
      w.TapePrice,
      w.NoTieBacks,
      w.TieBacksNeeded,
      w.CboTieBacks,
      w.TxtNoOfTieBacks,
      w.TxtTieBacksUnitPrice,
      w.TieBackStyle,
      w.LiningNeeded,
      w.InterliningNeeded,
      w.LiningPrice,
      w.InterliningPrice,
      w.TrimKind,
      w.CboTrims,
      w.AllSides,
      w.PlaceTop,
      w.PlaceBottom,
      w.PlaceTwoSides,
      w.PlaceFourSides,
      w.TrimName,
      w.TxtBorderCutSize,
      w.LabourPrice,
      w.LabourPrice,
  };
}

std::string LinkText(MainCWizard& wizard) {
  std::string text = wizard.TrackWidthIns.empty() ? "0" : "";
  for (const StoredControl& field : LinkFields(wizard)) {
    field.AppendTo(text);
    text += "\r\n";
  }
  return text;
}

}  // namespace

void MainCWizard::MarkLinkSaved() { saved_link_ = LinkText(*this); }

void MainCWizard::OpenLink() {
  if (LinkText(*this) != saved_link_) {
    if (!AskYesNo("Save Data.", "This job has changed, Do you want to save?")) return;
    SaveLink();
  }
  const auto file = host().ChooseFile(FileChoice::kOpen, "Open Link...", kFilter, "");
  if (!file) return;
  ReadLink(*file);
  link_file_ = *file;
  MarkLinkSaved();
}

void MainCWizard::SaveLink() {
  if (link_file_.empty()) {
    SaveLinkAs();
  } else {
    WriteLink(link_file_);
  }
}

void MainCWizard::SaveLinkAs() {
  const auto file = host().ChooseFile(FileChoice::kSave, "Save As...", kFilter, "");
  if (!file) return;
  WriteLink(*file);
  link_file_ = *file;
}

void MainCWizard::WriteLink(const std::filesystem::path& file) {
  ReplaceFile(file, LinkText(*this));
  MarkLinkSaved();
}

// All or nothing: a file that ends early leaves the fields as they are.
void MainCWizard::ReadLink(const std::filesystem::path& file) {
  const auto text = ReadFile(file);
  if (!text) throw Fault("Cannot read " + file.string() + ".");
  const std::vector<std::string> lines = SplitLines(*text);
  if (lines.size() < kLinkLines) {
    throw Fault(file.string() + " is not a link file: it ends after " + std::to_string(lines.size()) +
                " of " + std::to_string(kLinkLines) + " lines.");
  }
  const auto fields = LinkFields(*this);
  for (std::size_t i = 0; i < fields.size(); ++i) fields[i].Restore(TrimSpaces(lines[i]));
  ApplyRestored();
}

}  // namespace tarvane::curtain_wizard
