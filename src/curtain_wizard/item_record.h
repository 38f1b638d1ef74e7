#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "screen/control.h"
#include "screen/field.h"

// The saved state of a curtain item: its fields in an order that never changes, a "~" behind each. A box is
// written as "1" or "0", an option as "True" or "False", a text unaltered: one that holds a "~" counts as two
// when it is read, and every later field comes out one place off.
namespace tarvane::curtain_wizard {

class MainCWizard;

// A control whose state goes into a record or a link file.
struct StoredControl {
  enum class Form { kText, kTick, kRound };

  StoredControl(TextField& field) : text(&field), form(Form::kText) {}     // NOLINT: tables of them
  StoredControl(TickBox& tick) : box(&tick), form(Form::kTick) {}          // NOLINT
  StoredControl(OptionButton& round) : box(&round), form(Form::kRound) {}  // NOLINT

  void AppendTo(std::string& out) const;
  // Ticks by their leading number, options on by "True" alone; no click action runs.
  void Restore(std::string_view value) const;

  TextField* text = nullptr;
  TickBox* box = nullptr;
  Form form;
};

inline constexpr std::size_t kItemRecordFields = 65;
// Places that are read back in a way of their own, and the one that CompileTxtInfo leaves out.
inline constexpr std::size_t kUnitCmsPlace = 56;
inline constexpr std::size_t kUnitMmPlace = 57;
inline constexpr std::size_t kAutoRoundupPlace = 58;
inline constexpr std::size_t kItemNumberPlace = 62;

std::array<StoredControl, kItemRecordFields> ItemRecordFields(MainCWizard& wizard);

std::string ItemRecord(MainCWizard& wizard);

// The fields of a record: cut at each "~", CR and LF dropped, what stands behind the last "~" too; 100 at
// most.
std::vector<std::string> SplitItemRecord(std::string_view record);

}  // namespace tarvane::curtain_wizard
