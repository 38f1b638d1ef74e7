#include "catalogues/suppliers.h"

#include "text/trim.h"

namespace tarvane::catalogues {

namespace {

const CatalogueLook kLook = {
    .name = frmSuppliers2::kName,
    .title = "Your Suppliers",
    .file = data_file::kSuppliers,
    .table = "Suppliers",
    .categories = {{"SuppliersID", ""}, {"SuppliersName", ""}, {"Telephone", ""}, {"AccountNumber", ""}},
    .record = "Supplier Record: ",
    .named_by = "SuppliersName",
    .adds_at_once = true,
};

}  // namespace

frmSuppliers2::frmSuppliers2(Host& host, Shop& shop) : Catalogue(host, shop, kLook) {
  BindColumns();
  SetFirstField(SuppliersName);
  Search.CboFabSearch.OnEnterKey([this] { Search.CmdSearch.Press(); });
  Command2.SetTip("Write to this address");
  Command5.SetTip("Write to this address");
  Command3.SetTip("Visit this site");
  Command2.OnClicked([this] { HandOver("mailto:", Email, "I Need an Email Address"); });
  Command5.OnClicked([this] { HandOver("mailto:", Email2, "I Need an Email Address"); });
  Command3.OnClicked([this] { HandOver("https://", WebSite, "I Need the Web Site Address"); });
}

void frmSuppliers2::HandOver(std::string_view scheme, const TextField& address, std::string_view missing) {
  if (TrimSpaces(address.text()).empty()) {
    host().Beep();
    Message(missing);
    return;
  }
  IgnoreFaults([&] { host().Launch(std::string(scheme) + address.text()); });
}

}  // namespace tarvane::catalogues
