#pragma once

#include <array>

#include "screen/control_family.h"
#include "screen/data_source.h"
#include "screen/screen.h"
#include "shop/shop.h"

namespace tarvane::tools {

// The company record: who the shop is, for the heads of what is printed. No command opens it: whoever prints
// makes one, calls Load and takes the texts, the company's name from the fourth box.
class frmtblCompany : public Screen {
 public:
  static constexpr std::string_view kName = "frmtblCompany";
  static constexpr std::size_t kFields = 12;

  frmtblCompany(Host& host, Shop& shop);

  std::array<TextField, kFields> TxtFields =
      MakeFamily<kFields>([this](int i) { return TextField(this, "TxtFields", "", i); });
  Label Note{this, "Label1"};

  DataSource Data1;

  // Fills the boxes from the first record; a fault of the data is told, and leaves them blank.
  void Load() override;

 protected:
  // What was changed is saved; where it can't be, that is told and the screen closes all the same.
  bool MayClose() override;

 private:
  template <typename Step>
  void TellDataErrors(Step step);

  Shop& shop_;
};

}  // namespace tarvane::tools
