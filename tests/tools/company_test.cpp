#include "tools/company.h"

#include <gmock/gmock.h>

#include "support/fake_host.h"
#include "support/shop_folder.h"

namespace tarvane::tools {
namespace {

TEST(Company, ShowsTheRecordAndKeepsWhatIsTyped) {
  const ShopFolder folder;
  Shop shop(folder.path());
  FakeHost host;
  {
    frmtblCompany company(host, shop);
    company.Load();
    company.UserClose();
    const std::string told = "Data error event hit err:" + folder.jobs_file().string();
    EXPECT_THAT(host.messages, testing::ElementsAre(testing::StartsWith(told))) << "there is no table yet";
  }
  Database database(folder.jobs_file());
  CreateTable(database, FindTable(kCompanyTable));
  folder.AddRow(kCompanyTable,
                {{"Last Name", "Pennyfold"}, {"Company Name", "Weavers"}, {"Vat Number", "7"}});
  frmtblCompany company(host, shop);
  company.Load();
  EXPECT_EQ(company.TxtFields[0].text(), "Pennyfold");
  EXPECT_EQ(company.TxtFields[3].text(), "Weavers");
  EXPECT_EQ(company.TxtFields[11].text(), "7");
  company.TxtFields[5].UserType("Marlowick");
  company.UserClose();
  EXPECT_TRUE(company.is_closed());
  EXPECT_EQ(folder.Stored(kCompanyTable, 0, "Town"), "Marlowick");
  EXPECT_EQ(host.messages.size(), 1U);
}

}  // namespace
}  // namespace tarvane::tools
