#include "tools/options.h"

#include "screen/kinds.h"

namespace tarvane::tools {

namespace {

constexpr std::array<std::string_view, frmOptions::kCompanyFields> kCompanyColumns = {
    "CompanyName", "CompanyAddress", "CompanyAddress1", "CompanyAddress2", "CompanyPostCode", "Telephone",
    "Fax",         "WebSite",        "email",           "VatNumber",       "AdminID"};
constexpr std::size_t kCompanyId = 10;

}  // namespace

frmOptions::frmOptions(Host& host, Shop& shop, job::JobScreen& job)
    : Screen(host, std::string(kName)), shop_(shop), job_(job) {
  SetTitle("Tarvane Preferences");
  BindFields();
  SetRules();
}

void frmOptions::BindFields() {
  Bind(TxtLastOrderNo, "LastOrderNo");
  Bind(Text3, "Ext1");
  Bind(TxtLastCrdNote, "Ext1");
  Bind(Text4, "Ext2");
  Bind(TxtLastEstimateNo, "LastEstimateNo");
  Bind(TxtVat, "VatAmount");
  Bind(TxtLastInvoiceNo, "LastInvoiceNo");
  Bind(TxtCurrencySymbol, "CurrencySymbol");
  Bind(TxtLastProFormaNo, "LastProFormaNo");
  for (std::size_t i = 0; i < kCompanyFields; ++i) Bind(TxtCompany[i], kCompanyColumns[i]);
  TxtCompany[kCompanyId].SetReadOnly(true);
  Data1.Bind(TxtNotes, "Memo1", 0);
  TxtNotes.AddAlias("Memo1");
}

void frmOptions::Bind(TextField& field, std::string_view column) {
  Data1.Bind(field, std::string(column));
  field.AddAlias(std::string(column));
}

void frmOptions::SetRules() {
  // Two boxes on one column.
  Text3.OnChanged([this] { TxtLastCrdNote.LoadText(Text3.text()); });
  TxtLastCrdNote.OnChanged([this] { Text3.LoadText(TxtLastCrdNote.text()); });

  cmdApply.SetEnabled(false);
  for (Control* control : controls()) {
    if (auto* field = As<TextField>(*control)) {
      field->OnTyped([this] { cmdApply.SetEnabled(true); });
    }
  }
  CmdNew.OnClicked([this] {
    Data1.rows().AddNew();
    SetFocus(TxtCompany[0]);
  });
  Data1.OnReposition([this] { TellFirstSettings(); });
  cmdOK.OnClicked([this] { Save(); });
  cmdCancel.OnClicked([this] { Close(); });
}

void frmOptions::Load() { Data1.Open(shop_.database(), kAdminTable); }

// The main screen opened the settings when there were none yet.
void frmOptions::TellFirstSettings() {
  if (!job_.Data2.HasRow()) job_.Data2.Open(shop_.database(), kAdminTable);
}

void frmOptions::Save() {
  // The row that was committed stays the current one.
  Data1.rows().Update();
  TellFirstSettings();
  job_.cboVAT.SetText(TxtVat.text());
  Close();
}

}  // namespace tarvane::tools
