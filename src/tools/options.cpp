#include "tools/options.h"

#include "store/data_files.h"

namespace tarvane {

namespace {

constexpr std::array<std::string_view, frmOptions::kCompanyFields> kCompanyColumns = {
    "CompanyName", "CompanyAddress", "CompanyAddress1", "CompanyAddress2", "CompanyPostCode", "Telephone",
    "Fax",         "WebSite",        "email",           "VatNumber",       "AdminID"};
constexpr std::size_t kCompanyId = 10;

}  // namespace

frmOptions::frmOptions(Host& host, JobScreen& job) : Screen(host, "frmOptions"), job_(job) {
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
    if (auto* field = dynamic_cast<TextField*>(control)) {
      field->OnTyped([this] { cmdApply.SetEnabled(true); });
    }
  }
  CmdFirst.OnClicked([this] { Data1.rows().MoveFirst(); });
  CmdLast.OnClicked([this] { Data1.rows().MoveLast(); });
  CmdPrevious.OnClicked([this] {
    if (Data1.rows().AbsolutePosition() > 0) Data1.rows().MovePrevious();
  });
  CmdNext.OnClicked([this] {
    // A new row becomes the last one.
    if (Data1.rows().IsAdding()) Data1.rows().Update();
    if (Data1.rows().AbsolutePosition() + 1 < Data1.rows().RecordCount()) Data1.rows().MoveNext();
  });
  CmdNew.OnClicked([this] {
    Data1.rows().AddNew();
    SetFocus(TxtCompany[0]);
  });
  cmdOK.OnClicked([this] { Save(); });
  cmdCancel.OnClicked([this] { Close(); });
  RecordBar.AddAlias("Data1");
  Data1.OnReposition([this] { ShowPosition(); });
}

void frmOptions::Load() {
  database_.emplace(FindFile(job_.folder(), data_file::kJobs));
  Data1.Open(*database_, kAdminTable);
}

void frmOptions::ShowPosition() {
  if (!Data1.HasRow() || Data1.rows().IsAdding()) {
    RecordBar.SetCaption("");
    return;
  }
  RecordBar.SetCaption("Record: " + std::to_string(Data1.rows().AbsolutePosition() + 1) + " of " +
                       std::to_string(Data1.rows().RecordCount()));
}

void frmOptions::Save() {
  // The row that was committed stays the current one.
  Data1.rows().Update();
  job_.cboVAT.SetText(TxtVat.text());
  Close();
}

}  // namespace tarvane
