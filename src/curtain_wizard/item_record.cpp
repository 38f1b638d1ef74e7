#include "curtain_wizard/item_record.h"

#include <algorithm>

#include "curtain_wizard/wizard.h"

namespace tarvane::curtain_wizard {
namespace {

constexpr std::size_t kMostSplitFields = 100;

}  // namespace

void StoredControl::AppendTo(std::string& out) const {
  switch (form) {
    case Form::kText:
      out += text->text();
      break;
    case Form::kTick:
      out += box->on() ? "1" : "0";
      break;
    case Form::kRound:
      out += box->on() ? "True" : "False";
      break;
  }
}

void StoredControl::Restore(std::string_view value) const {
  switch (form) {
    case Form::kText:
      text->SetText(value);
      break;
    case Form::kTick:
      box->Set(RoundToWhole(value) != 0);
      break;
    case Form::kRound:
      box->Set(value == "True");
      break;
  }
}

std::array<StoredControl, kItemRecordFields> ItemRecordFields(MainCWizard& w) {
  return {
      w.TxtRoom,
      w.CboCurtainStyle,
      w.TxtDescription,
      w.TrackWidthIns,
      w.FinishedLengthIns,
      w.FabricWidthIns,
      w.Fullness,
      w.PatternRepeatIns,
      w.PatternsPerDrop,
      w.NumberOfDrops,
      w.TotalInches,
      w.HemAllowanceIns,
      w.TrackWidthCm,
      w.FabricWidthCm,
      w.FinishedLengthCm,
      w.PatternRepeatCm,
      w.FabricName,
      w.HemAllowanceCm,
      w.FullnessMirror,
      w.CutLengthIns,
      w.CutLengthCm,
      w.InputInInches,
      w.LiningByWidths,
      w.AllSides,
      w.PlaceTop,
      w.PlaceBottom,
      w.PlaceTwoSides,
      w.PlaceFourSides,
      w.LiningNeeded,
      w.InterliningNeeded,
      w.FabricPrice,
      w.TapePrice,
      w.LabourPrice,
      w.TrimPrice,
      w.TieBackStyle,
      w.TrimKind,
      w.NoTieBacks,
      w.TieBacksNeeded,
      w.CboTieBacks,
      w.TxtNoOfTieBacks,
      w.TxtTieBacksUnitPrice,
      w.CboTrims,
      w.TrimName,
      w.MetresRequired,
      w.TxtAutoTrack,
      w.AutoMeasureGoblet,
      w.AutoMeasureBoxPleat,
      w.OptionCancel,
      w.TxtBorderCutSize,
      w.TrimMetres,
      w.TxtAmountInches,
      w.TxtAmountMetres,
      w.TrimCost,
      w.TieBackLabour,
      w.ExtraLabourText,
      w.ExtraLabour,
      w.UnitCms,
      w.UnitMm,
      w.AutoRoundup,
      w.LiningPrice,
      w.InterliningPrice,
      w.TxtVatRate,
      w.ItemNumber,
      w.TxtInterliningName,
      w.TxtLiningName,
  };
}

std::string ItemRecord(MainCWizard& wizard) {
  std::string record;
  record.reserve(512);
  for (const StoredControl& field : ItemRecordFields(wizard)) {
    field.AppendTo(record);
    record += '~';
  }
  return record;
}

std::vector<std::string> SplitItemRecord(std::string_view record) {
  std::vector<std::string> fields;
  std::string field;
  for (const char c : record) {
    if (c == '~') {
      fields.push_back(field);
      field.clear();
      if (fields.size() == kMostSplitFields) break;
    } else if (c != '\r' && c != '\n') {
      field += c;
    }
  }
  return fields;
}

void MainCWizard::CompileTxtInfo() {
  std::string record;
  const auto fields = ItemRecordFields(*this);
  for (std::size_t i = 0; i < fields.size(); ++i) {
    if (i == kItemNumberPlace) continue;
    fields[i].AppendTo(record);
    record += '~';
  }
  Txtinfo.SetText(record);
}

void MainCWizard::LoadItemRecord() {
  std::vector<std::string> values = SplitItemRecord(Txtinfo.text());
  values.resize(std::max(values.size(), kItemRecordFields));
  const auto fields = ItemRecordFields(*this);
  for (std::size_t i = 0; i < fields.size(); ++i) {
    if (i == kUnitCmsPlace || i == kUnitMmPlace || i == kAutoRoundupPlace) continue;
    fields[i].Restore(values[i]);
  }
  const std::string& cms = values[kUnitCmsPlace];
  if (cms == "True" || cms.empty()) {
    UnitCms.Set(true);
  } else {
    UnitMm.Set(false);
  }
  if (values[kUnitMmPlace] == "True") UnitMm.Set(true);
  if (values[kAutoRoundupPlace] == "1") AutoRoundup.Set(true);
  // The record has no place for this tick; without it a trim would drop out of the item as it is edited.
  AddTrims.Set(TrimCost.Number() > 0);
  // So that the box of the trim's VAT, ticked and cleared, leads back to the price of the item.
  TxtPriceTarget2.SetText(TrimPrice.text());
  ApplyTrims();
  ApplyRestored();
}

// What the click actions would have set, without the calculations and messages that they run.
void MainCWizard::ApplyRestored() {
  SetUnitLabels(UnitMm.on() ? "mm" : "Cms");
  ApplyInputUnit();
  ApplyLiningNeeded();
  LiningByWidths.SetCaption(LiningByWidths.on() ? "Metres" : "Widths");
  ApplyTieBacks();
  ApplyPlacements();
}

}  // namespace tarvane::curtain_wizard
