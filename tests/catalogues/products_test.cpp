#include "catalogues/products.h"

#include <gmock/gmock.h>

#include <functional>

#include "job/job_screen.h"
#include "support/fake_host.h"
#include "support/shop_folder.h"

namespace tarvane::catalogues {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ProductsTest : public testing::Test {
 protected:
  using Step = std::function<void(FrmFabricDatabase2&)>;

  ProductsTest() {
    folder_.AddSettings({{"LastEstimateNo", "40"}, {"VatAmount", "17.5"}});
    folder_.MakeFile("Products");
  }
  void AddProduct(const RowValues& values) { folder_.AddRow("Products", values); }
  void AddThree() {
    AddProduct({{"SuppliersName", "Harrow"},
                {"ProductName", "Tarn Check"},
                {"ItemCode", "TC1"},
                {"SellingPrice", "24"},
                {"VatRate", "5"}});
    AddProduct({{"ProductName", "Tarn Stripe"}, {"BarCode", "8765432112345"}, {"Category", "Fabric"}});
    AddProduct({{"ProductName", "Oak Pole"}, {"Category", "Poles"}});
  }
  void Show(const Step& step, const Step& before = nullptr) {
    FrmFabricDatabase2 screen(host_, shop_, job_);
    if (before) before(screen);
    host_.OnShow<FrmFabricDatabase2>([&](FrmFabricDatabase2& shown) {
      step(shown);
      if (!shown.is_closed()) shown.UserClose();
    });
    job_.ShowModal(screen);
  }
  std::string Stored(int position, std::string_view column) {
    return folder_.Stored("Products", position, column);
  }
  TakePicked Take() {
    return [this](std::string_view text, std::string_view price) {
      taken_.push_back(std::string(text) + "=" + std::string(price));
    };
  }

  ShopFolder folder_;
  FakeHost host_;
  Shop shop_{folder_.path()};
  job::JobScreen job_{host_, shop_};
  std::vector<std::string> taken_;
};

TEST_F(ProductsTest, ANewProductStartsWithTheShopsDefaults) {
  Show([](FrmFabricDatabase2& screen) {
    EXPECT_EQ(screen.TxtMarkUp.text(), "40");
    screen.Search.CboFabSearch.UserType("buyprice");
    EXPECT_TRUE(screen.Check3.on() && screen.BuyPrice.visible() && screen.TxtMarkUp.visible());
    screen.TxtMarkUp.UserType("7");
    screen.CmdFabAdd.UserPress();
    EXPECT_FALSE(screen.Check3.on() || screen.BuyPrice.visible() || screen.TxtMarkUp.visible());
    EXPECT_EQ(screen.TxtMarkUp.text(), "40");
    EXPECT_EQ(screen.Records.Caption.caption(), "Record: 1");
    EXPECT_EQ(screen.focus(), &screen.Category);
    screen.ProductName.UserType("Voile");
    screen.SellingPrice.UserType("12.345");
  });
  const std::pair<const char*, const char*> stored[] = {
      {"ProductName", "Voile"},    {"VatRate", "17.5"},       {"BuyPrice", "0.00"},
      {"PriceWithOutVat", "0.00"}, {"AmountInStock", "0"},    {"StockLowLevelAmount", "0"},
      {"StockOnOrder", "0"},       {"SellingPrice", "12.35"}, {"AmountOfStockToOrder", "0"}};
  for (const auto& [column, value] : stored) EXPECT_EQ(Stored(0, column), value) << column;
}

TEST_F(ProductsTest, LookingAtAProductChangesNothingInIt) {
  AddThree();
  Show([](FrmFabricDatabase2& screen) {
    for (int i = 0; i < 3; ++i) screen.Records.CmdNext.UserPress();
    screen.Search.CmdReset.UserPress();
    EXPECT_FALSE(screen.Data1.rows().IsEditing());
  });
  EXPECT_EQ(Stored(0, "VatRate"), "5");
  EXPECT_EQ(Stored(0, "SellingPrice"), "24");
  EXPECT_EQ(Stored(1, "VatRate"), "");
}

TEST_F(ProductsTest, BarcodesHaveThirteenDigitsFromOneToEight) {
  AddThree();
  Show([](FrmFabricDatabase2& screen) { screen.CmdGenBarCode.UserPress(); });
  EXPECT_EQ(Stored(0, "BarCode"), "8526374185263") << "the dice show 7 4 1 8 5 2 9 6 3 0...";
}

TEST_F(ProductsTest, APictureIsClearedAfterAQuestion) {
  AddProduct({{"image", "check.jpg"}, {"imagepath", "pictures/check.jpg"}});
  Show([this](FrmFabricDatabase2& screen) {
    host_.answers = {Answer::kNo, Answer::kYes};
    screen.CmdClearImage.Press();
    EXPECT_EQ(screen.image.text(), "check.jpg");
    screen.CmdClearImage.Press();
  });
  EXPECT_EQ(Stored(0, "image") + Stored(0, "imagepath"), "");
}

TEST_F(ProductsTest, HandsTheWizardThePriceAsItStandsAfterAnEditIsStored) {
  AddThree();
  Show(
      [](FrmFabricDatabase2& screen) {
        EXPECT_TRUE(screen.CmdUseInCW.visible());
        EXPECT_FALSE(screen.CmdSingleItems.visible());
        screen.ItemCode.UserType("TC9");
        screen.CmdUseInCW.UserPress();
        EXPECT_TRUE(screen.is_closed());
      },
      [this](FrmFabricDatabase2& screen) { screen.ForCurtainWizard(Take()); });
  EXPECT_THAT(taken_, ElementsAre("Harrow Tarn Check TC9=24"));
  EXPECT_EQ(Stored(0, "ItemCode"), "TC9");
}

TEST_F(ProductsTest, HandsTheSingleItemsThePriceWithoutTheJobsTax) {
  AddThree();
  const std::pair<const char*, const char*> cases[] = {{"20", "20.00"}, {"0", "24.00"}, {"5", "160.00"}};
  for (const auto& each : cases) {
    const char* const rate = each.first;
    taken_.clear();
    // The row of the list that is opened, as Enter does.
    Show(
        [&](FrmFabricDatabase2& screen) {
          job_.cboVAT.SetText(rate);
          screen.MSFlexGrid1.UserOpenRow(1);
          EXPECT_TRUE(screen.is_closed());
        },
        [this](FrmFabricDatabase2& screen) { screen.ForSingleItems(Take()); });
    EXPECT_THAT(taken_, ElementsAre(std::string("Harrow Tarn Check TC1=") + each.second)) << rate;
  }
}

TEST_F(ProductsTest, WithoutAProductNothingIsHandedOver) {
  const auto opened = [this](FrmFabricDatabase2& screen) { screen.ForCurtainWizard(Take()); };
  Show(
      [](FrmFabricDatabase2& screen) {
        EXPECT_FALSE(screen.CmdUseInCW.enabled());
        screen.CmdFabAdd.UserPress();
        screen.CmdUseInCW.UserPress();
        EXPECT_FALSE(screen.is_closed()) << "nothing was put into the new row";
        EXPECT_FALSE(screen.CmdUseInCW.enabled());
      },
      opened);
  AddThree();
  Show(
      [](FrmFabricDatabase2& screen) {
        screen.CmdFabAdd.UserPress();
        screen.CmdUseInCW.UserPress();
        EXPECT_FALSE(screen.is_closed()) << "nor another row in its place";
        screen.Search.FabSText.UserType("none such");
        screen.Search.FabSText.UserEnterKey();
        EXPECT_FALSE(screen.CmdUseInCW.enabled());
        screen.Search.CboFabSearch.UserEnterKey();
        screen.Search.CmdReset.UserPress();
        EXPECT_TRUE(screen.CmdUseInCW.enabled());
      },
      opened);
  EXPECT_THAT(taken_, IsEmpty());
}

}  // namespace
}  // namespace tarvane::catalogues
