#pragma once

#include <array>

#include "job/job_screen.h"

namespace tarvane::tools {

// The settings and company details: the rows of Admin. A row is committed when it is left and by Save; Close
// loses what waits.
class frmOptions : public Screen {
 public:
  static constexpr std::string_view kName = "frmOptions";
  static constexpr std::size_t kCompanyFields = 11;

  // `job` must outlive the screen.
  frmOptions(Host& host, Shop& shop, job::JobScreen& job);

  TextField TxtLastOrderNo{this, "TxtLastOrderNo"};
  TextField Text3{this, "Text3"};                          // discount percentage of new jobs, and...
  TextField Text4{this, "Text4"};                          // deposit percentage
  TextField TxtLastEstimateNo{this, "TxtLastEstimateNo"};  // the mark up percentage
  TextField TxtVat{this, "TxtVat"};
  TextField TxtLastInvoiceNo{this, "TxtLastInvoiceNo"};
  TextField TxtLastCrdNote{this, "TxtLastCrdNote"};  // ...the same column once more, as a counter
  TextField TxtLastProFormaNo{this, "TxtLastProFormaNo"};
  TextField TxtCurrencySymbol{this, "TxtCurrencySymbol"};
  std::array<TextField, kCompanyFields> TxtCompany =
      MakeFamily<kCompanyFields>([this](int i) { return TextField(this, "TxtCompany", "", i); });
  TextField TxtNotes{this, "TxtNotes", "", -1, TextField::Kind::kMemo};

  Button CmdNew{this, "CmdNew", "&New Company"};
  Button cmdOK{this, "cmdOK", "&Save"};
  Button cmdCancel{this, "cmdCancel", "&Close"};
  Button cmdApply{this, "cmdApply", "Apply"};

  DataSource Data1;
  RecordBar Records{this, Data1};

 protected:
  void Load() override;

 private:
  void BindFields();
  void Bind(TextField& field, std::string_view column);
  void SetRules();
  void TellFirstSettings();
  void Save();

  Shop& shop_;
  job::JobScreen& job_;
};

}  // namespace tarvane::tools
