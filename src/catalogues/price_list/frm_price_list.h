#pragma once

#include <array>
#include <filesystem>
#include <optional>
#include <string>

#include "catalogues/price_list/list_columns.h"
#include "catalogues/price_list/plan_grid.h"
#include "catalogues/price_list/price_plan.h"
#include "catalogues/price_list/price_sheet.h"
#include "screen/control_family.h"
#include "screen/screen.h"
#include "shop/shop.h"

namespace tarvane::catalogues {

// A supplier's price list is read, compared with the products, looked over, and taken over as a whole.
// Nothing is written before that, and where it fails nothing has been written.
class FrmPriceList : public Screen {
 public:
  static constexpr std::string_view kName = "FrmPriceList";
  static constexpr std::string_view kNotInList = "(not in the list)";

  FrmPriceList(Host& host, Shop& shop);

  Button CmdOpen{this, "CmdOpen", "&Open File..."};
  Label FileName{this, "FileName"};  // which file, how many lines
  TextField TxtSupplier{this, "TxtSupplier"};
  // One for each of kListColumns: the heading that fills it.
  std::array<DropDownList, kListColumnCount> CboColumn =
      MakeFamily<kListColumnCount>([this](int i) { return DropDownList(this, "CboColumn", kNotInList, i); });
  PlanGrid Lines{this, "Lines"};
  Label Counts{this, "Counts"};
  TickBox ChkOnlyChanges{this, "ChkOnlyChanges", "Show only changes and &faults"};
  TickBox ChkLeaveOut{this, "ChkLeaveOut", "&Leave out the wrong lines"};
  Label Messages{this, "Messages"};  // what was done last
  Button CmdTakeOver{this, "CmdTakeOver", "&Take Over"};
  Button CmdClose{this, "CmdClose", "&Close"};

  // Reads a file and compares it. Faults where it can't be read; what was open before stays.
  void Open(const std::filesystem::path& file);

 protected:
  void Load() override;

 private:
  void ChooseFile();
  void ShowColumns();
  void ReadColumns();
  // Compares again; where that is stopped or fails nothing is shown that could be taken over.
  void Compare();
  void SupplierLeft();
  void ShowPlan();
  void EnableTakeOver();
  void TakeOverAll();
  std::string WhatIsDone(std::string_view added, std::string_view changed) const;

  Shop& shop_;
  std::optional<PriceSheet> sheet_;
  ColumnMatch match_;
  std::string compared_supplier_;
  std::optional<PricePlan> plan_;
};

}  // namespace tarvane::catalogues
