#include "tools/enter_sales_person.h"

#include "job/option_lists.h"

namespace tarvane {

FrmEnterSalesPerson::FrmEnterSalesPerson(Host& host, JobScreen& job)
    : Screen(host, "FrmEnterSalesPerson"), job_(job) {
  SetTitle("Enter Sales Person");
  Command1.OnClicked([this] {
    job_.SalesPerson.SetText(CboSalesPerson.text());
    Close();
  });
}

void FrmEnterSalesPerson::Load() {
  CboSalesPerson.SetEntries(LoadListFile(FindFile(job_.folder(), data_file::kSalesPersonsList)));
}

}  // namespace tarvane
