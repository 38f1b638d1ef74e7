#pragma once

#include <string>
#include <string_view>

#include "catalogues/barcode.h"
#include "catalogues/catalogue.h"
#include "catalogues/hand_over.h"

namespace tarvane {
namespace job {
class JobScreen;
}
}  // namespace tarvane

namespace tarvane::catalogues {

// The shop's fabrics, wallpapers and other goods. Prices are typed: the mark-up that is shown with the buying
// price changes none. Any text fits into any field. Opened from the curtain wizard or the single items, it
// hands the current product over and closes.
class FrmFabricDatabase2 : public Catalogue {
 public:
  static constexpr std::string_view kName = "FrmFabricDatabase2";

  // `job`: its tax rate is taken out of what goes to the single items. Must outlive the screen.
  FrmFabricDatabase2(Host& host, Shop& shop, job::JobScreen& job);

  TextField ProductID{this, "ProductID"};
  TextField Category{this, "Category"};
  TextField SuppliersName{this, "SuppliersName"};
  TextField ProductName{this, "ProductName"};
  TextField ItemCode{this, "ItemCode"};
  TextField Description{this, "Description"};
  TextField BatchNo{this, "BatchNo"};
  TextField SellingPrice{this, "SellingPrice"};  // including tax; two places once it is left
  TextField BuyPrice{this, "BuyPrice"};          // without tax; shown with Check3
  TextField AmountInStock{this, "AmountInStock"};
  TextField StockLowLevelAmount{this, "StockLowLevelAmount"};
  TextField StockOnOrder{this, "StockOnOrder"};
  TextField AmountOfStockToOrder{this, "AmountOfStockToOrder"};
  TextField BarCode{this, "BarCode"};
  Button CmdGenBarCode{this, "CmdGenBarCode", "&Gen Barcode"};
  TextField Remarks{this, "Remarks", "", -1, TextField::Kind::kMemo};

  // Prices out of a supplier's list.
  Button CmdPriceList{this, "CmdPriceList", "Read Price &List..."};

  // The mark-up of the shop, in percent. It isn't stored here, and no price follows it.
  TextField TxtMarkUp{this, "TxtMarkUp"};

  // Shown only where the screen was opened for it.
  Button CmdUseInCW{this, "CmdUseInCW", "Add  to Curtain Wizard."};
  Button CmdSingleItems{this, "CmdSingleItems", "Add to Single items"};

  TabStrip SSTab1{this, "SSTab1", {"FabricDatabase", "Product Database"}};

  // ---- Kept, and shown in no window.
  TickBox Check3{this, "Check3", "Buy Price"};  // on while BuyPrice and TxtMarkUp are shown
  TextField SuppliersShortCode{this, "SuppliersShortCode"};
  TextField VatRate{this, "VatRate"};
  TextField PriceWithOutVat{this, "PriceWithOutVat"};
  TextField TxtQty{this, "TxtQty"};
  TextField TxtIndex{this, "TxtIndex"};
  Panel FabricFrame{this, "FabricFrame"};
  TextField BookName{&FabricFrame, "BookName"};
  TextField Width{&FabricFrame, "Width"};  // with the next one: centimetres
  TextField PattrenRepeat{&FabricFrame, "PattrenRepeat"};
  Panel PictureFrame{this, "PictureFrame"};
  TextField image{&PictureFrame, "image"};
  TextField imagepath{&PictureFrame, "imagepath"};
  Button CmdPicView{&PictureFrame, "CmdPicView", "Get Image", kNotBuilt};
  Button CmdClearImage{&PictureFrame, "CmdClearImage", "Clear Image"};

  // Before it is shown: what takes the product's text and its selling price, as it stands.
  void ForCurtainWizard(TakePicked take);
  // The same with the price without the tax of the open job.
  void ForSingleItems(TakePicked take);

  // The bars of BarCode (barcode.h).
  std::string Bars() const { return BarcodeBars(tables_, BarCode.text()); }
  // Without tables no code has bars.
  bool HasBarcodeTables() const { return !tables_.empty(); }

 protected:
  void Load() override;
  void Activate() override;
  bool MayClose() override;
  void SetDefaults() override;
  void BeforeSave() override;
  void TellFound(std::int64_t count) override;

 private:
  void SetProductRules();
  void HideUnshown();
  void ShowBuyPrice(bool on);
  void FormatSellingPrice();
  void GenerateBarCode();
  void ClearImage();
  void ReadPriceList();
  void HandOver(bool without_tax);

  job::JobScreen& job_;
  TakePicked take_;
  BarcodeTables tables_;
  std::string mark_up_;  // of the shop, like the tax rate in percent
  std::string vat_rate_;
};

}  // namespace tarvane::catalogues
