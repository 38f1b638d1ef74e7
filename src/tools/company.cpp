#include "tools/company.h"

#include <string>

namespace tarvane::tools {

namespace {

constexpr std::array<std::string_view, frmtblCompany::kFields> kColumns = {
    "Last Name", "First Name", "Title",   "Company Name", "Address", "Town",
    "County",    "Post Code",  "Country", "Telephone No", "Fax No",  "Vat Number"};

}  // namespace

frmtblCompany::frmtblCompany(Host& host, Shop& shop) : Screen(host, std::string(kName)), shop_(shop) {
  SetTitle("Your Details");
  Note.SetCaption("Enter in your company details here this information will be used within Tarvane");
  for (std::size_t i = 0; i < kFields; ++i) Data1.Bind(TxtFields[i], std::string(kColumns[i]));
}

template <typename Step>
void frmtblCompany::TellDataErrors(Step step) {
  try {
    step();
  } catch (const Fault& fault) {
    Message(std::string("Data error event hit err:") + fault.what());
  }
}

void frmtblCompany::Load() {
  TellDataErrors([this] { Data1.Open(shop_.database(), kCompanyTable); });
}

bool frmtblCompany::MayClose() {
  TellDataErrors([this] {
    if (Data1.HasRow()) Data1.Save();
  });
  return true;
}

}  // namespace tarvane::tools
