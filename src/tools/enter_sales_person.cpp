#include "tools/enter_sales_person.h"

#include "shop/option_lists.h"

namespace tarvane::tools {

FrmEnterSalesPerson::FrmEnterSalesPerson(Host& host, Shop& shop, job::JobScreen& job)
    : Screen(host, std::string(kName)), shop_(shop), job_(job) {
  SetTitle("Enter Sales Person");
  Command1.OnClicked([this] {
    job_.SalesPerson.SetText(CboSalesPerson.text());
    Close();
  });
}

// The new job goes on without names where they can't be read.
void FrmEnterSalesPerson::Load() {
  Guard([this] { CboSalesPerson.SetEntries(shop_.ReadList(data_file::kSalesPersonsList)); });
}

}  // namespace tarvane::tools
