#pragma once

#include <array>
#include <optional>

#include "job/job_screen.h"

namespace tarvane {

// The settings and company details: the rows of Admin. It has its own connection and commits on a move to
// another row and on Save; Close loses what waits.
class frmOptions : public Screen {
 public:
  static constexpr std::size_t kCompanyFields = 11;

  // `job` must outlive the screen.
  frmOptions(Host& host, JobScreen& job);

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

  Label RecordBar{this, "RecordBar"};
  Button CmdFirst{this, "CmdFirst", "|<"};
  Button CmdPrevious{this, "CmdPrevious", "<"};
  Button CmdNext{this, "CmdNext", ">"};
  Button CmdLast{this, "CmdLast", ">|"};
  Button CmdNew{this, "CmdNew", "&New Company"};
  Button cmdOK{this, "cmdOK", "&Save"};
  Button cmdCancel{this, "cmdCancel", "&Close"};
  Button cmdApply{this, "cmdApply", "Apply"};

  DataSource Data1;

 protected:
  void Load() override;

 private:
  void BindFields();
  void Bind(TextField& field, std::string_view column);
  void SetRules();
  void Save();
  void ShowPosition();

  JobScreen& job_;
  std::optional<Database> database_;
};

}  // namespace tarvane
