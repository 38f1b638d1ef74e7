#include "tools/options.h"

#include <gmock/gmock.h>

#include "support/fake_host.h"
#include "support/shop_folder.h"
#include "tools/enter_sales_person.h"

namespace tarvane::tools {
namespace {

using ::testing::HasSubstr;

class OptionsTest : public testing::Test {
 protected:
  // Opens the job screen, with its jobs or without, and on it the settings with `step`.
  void Show(std::function<void(frmOptions&)> step, bool with_jobs = true) {
    job_.emplace(host_, shop_);
    if (with_jobs) job_->OpenData();
    host_.OnShow<job::JobScreen>([this](job::JobScreen& job) {
      frmOptions options(host_, shop_, job);
      job.Guard([&] { job.ShowModal(options); });
    });
    host_.OnShow<frmOptions>(std::move(step));
    job_->RunAsMain();
  }
  std::string Stored(int row, const char* column) const { return folder_.Stored(kAdminTable, row, column); }

  ShopFolder folder_;
  Shop shop_{folder_.path()};
  FakeHost host_;
  std::optional<job::JobScreen> job_;
};

TEST_F(OptionsTest, SavesTheSettingsAndTheMainScreenHasThem) {
  folder_.AddSettings();
  Show([this](frmOptions& options) {
    EXPECT_EQ(options.Records.Caption.caption(), "Record: 1 of 1");
    EXPECT_FALSE(options.cmdApply.enabled());
    options.TxtVat.UserType("17.5");
    EXPECT_TRUE(options.cmdApply.enabled());
    options.cmdApply.UserPress();
    options.TxtCompany[0].UserType("Curtain Corner");
    options.Text4.UserType("30");
    // One column has two boxes.
    EXPECT_EQ(options.TxtLastCrdNote.text(), "10");
    options.Text3.UserType("5");
    EXPECT_EQ(options.TxtLastCrdNote.text(), "5");
    options.TxtLastCrdNote.UserType("7");
    EXPECT_EQ(options.Text3.text(), "7");
    options.cmdOK.UserPress();
    EXPECT_TRUE(options.is_closed());
    EXPECT_EQ(job_->cboVAT.text(), "17.5");
  });
  EXPECT_EQ(job_->cboVAT.text(), "0") << "activation starts from no tax";
  EXPECT_EQ(job_->TxtP1.text(), "7");
  EXPECT_EQ(job_->TxtP2.text(), "30");
  EXPECT_EQ(Stored(0, "Ext1"), "7");
  EXPECT_EQ(Stored(0, "VatAmount"), "17.5");
  EXPECT_EQ(Stored(0, "CompanyName"), "Curtain Corner");
}

TEST_F(OptionsTest, MovesCommitAndClosingDoesNot) {
  folder_.AddSettings({{"CompanyName", "First"}});
  Show([](frmOptions& options) {
    options.TxtCompany[7].UserType("first.example");
    options.CmdNew.UserPress();
    options.TxtCompany[0].UserType("Second");
    options.Records.CmdFirst.UserPress();
    EXPECT_EQ(options.TxtCompany[0].text(), "First");
    EXPECT_EQ(options.Records.Caption.caption(), "Record: 1 of 2");
    options.Records.CmdPrevious.UserPress();
    options.Records.CmdNext.UserPress();
    options.Records.CmdNext.UserPress();
    EXPECT_EQ(options.TxtCompany[0].text(), "Second");
    options.TxtCompany[5].UserType("lost");
    options.cmdCancel.UserPress();
  });
  EXPECT_EQ(folder_.Count(kAdminTable), 2);
  EXPECT_EQ(Stored(0, "WebSite"), "first.example");
  EXPECT_EQ(Stored(1, "CompanyName"), "Second");
  EXPECT_EQ(Stored(1, "Telephone"), "");
}

TEST_F(OptionsTest, WithoutSettingsItTellsSoAndAddsThem) {
  Show([this](frmOptions& options) {
    options.TxtVat.UserType("5");
    EXPECT_EQ(options.TxtVat.text(), "");
    options.CmdNew.UserPress();
    options.TxtVat.UserType("5");
    options.TxtLastOrderNo.UserType("40");
    options.cmdOK.UserPress();
    EXPECT_EQ(job_->TxtLastOrderNo.text(), "40") << "the main screen has them at once";
  });
  EXPECT_EQ(job_->RaiseOrderNumber(), "41");
  EXPECT_EQ(Stored(0, "LastOrderNo"), "41");
  ASSERT_EQ(host_.messages.size(), 1u);
  EXPECT_THAT(host_.messages[0], HasSubstr("No record is open."));
  EXPECT_EQ(Stored(0, "VatAmount"), "5");
}

TEST_F(OptionsTest, WithoutTheDatabaseItDoesNotOpen) {
  std::filesystem::remove(folder_.jobs_file());
  Show([](frmOptions&) {}, false);
  EXPECT_EQ(host_.shown, std::vector<std::string>{"Form1"});
  ASSERT_EQ(host_.messages.size(), 1u);
  EXPECT_THAT(host_.messages[0], HasSubstr("Tarvane.mdb"));
}

TEST_F(OptionsTest, TheSalesPersonGoesIntoTheJob) {
  folder_.AddSettings();
  folder_.AddJob({{"Ext6", "Ann"}});
  folder_.Write("SalesPersonslist.Dat", "Ann\r\nBea\r\n");
  job_.emplace(host_, shop_);
  job_->OpenData();
  const auto show = [this](std::function<void(FrmEnterSalesPerson&)> step) {
    host_.OnShow(std::move(step));
    FrmEnterSalesPerson enter(host_, shop_, *job_);
    job_->ShowModal(enter);
    return job_->SalesPerson.text();
  };
  EXPECT_EQ(show([](FrmEnterSalesPerson&) {}), "Ann") << "closed by its window";
  EXPECT_EQ(show([](FrmEnterSalesPerson& enter) {
              enter.CboSalesPerson.UserPick(1);
              enter.Command1.UserPress();
              EXPECT_TRUE(enter.is_closed());
            }),
            "Bea");
}

}  // namespace
}  // namespace tarvane::tools
