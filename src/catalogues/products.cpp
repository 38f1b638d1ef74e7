#include "catalogues/products.h"

#include <utility>

#include "catalogues/net_price.h"
#include "catalogues/price_list/frm_price_list.h"
#include "job/job_screen.h"
#include "text/fold.h"
#include "text_number/text_number.h"

namespace tarvane::catalogues {

namespace {

constexpr std::string_view kBarCodeCategory = "BarCode";

const CatalogueLook kLook = {
    .name = FrmFabricDatabase2::kName,
    .title = "Your Product Database",
    .file = data_file::kProducts,
    .table = "Products",
    .categories = {{"ProductID", ""},
                   {"SuppliersName", ""},
                   {"ProductName", ""},
                   {"ItemCode", ""},
                   {kBarCodeCategory, ""},
                   {"Category", ""}},
    .finder = {.idle_category = kBarCodeCategory, .reset_category = kBarCodeCategory},
    .record = "Fabric Record: ",
    .add = "&Add New",
    .save = "Update",
    .named_by = "ProductName",
};

constexpr std::string_view kMarkUpWarning =
    "You can change this in Company details menu on the main dialog screen. Changing this amount will change "
    "all the selling prices throughout the database";
constexpr std::string_view kNoCategory =
    "Fill in Category before Action is Processed. (Fabric, Wallpaper Etc)";

constexpr int kBarCodeDigits = 13;
constexpr int kHighestDigit = 8;

// 1 to 8, each as likely as the others.
int BarCodeDigit(Host& host) {
  int digit = host.RandomDigit();
  while (digit >= kHighestDigit) digit = host.RandomDigit();
  return digit + 1;
}

}  // namespace

FrmFabricDatabase2::FrmFabricDatabase2(Host& host, Shop& shop, job::JobScreen& job)
    : Catalogue(host, shop, kLook), job_(job) {
  BindColumns();
  SetFirstField(Category);
  HideUnshown();
  SetProductRules();
}

void FrmFabricDatabase2::HideUnshown() {
  for (Control* control : std::initializer_list<Control*>{
           &Check3, &SuppliersShortCode, &VatRate, &PriceWithOutVat, &TxtQty, &TxtIndex, &BookName, &Width,
           &PattrenRepeat, &image, &imagepath, &CmdPicView, &CmdClearImage}) {
    control->SetNeverShown();
  }
  FabricFrame.SetVisible(false);
  PictureFrame.SetVisible(false);
  CmdUseInCW.SetVisible(false);
  CmdSingleItems.SetVisible(false);
  ShowBuyPrice(false);
}

void FrmFabricDatabase2::SetProductRules() {
  Search.CboFabSearch.OnChanged([this] {
    if (EqualNames(Search.CboFabSearch.text(), BuyPrice.name())) ShowBuyPrice(true);
  });
  SellingPrice.OnLeft([this] { FormatSellingPrice(); });
  TxtMarkUp.OnEntered([this] { host().Hint(kProgramTitle, kMarkUpWarning, ""); });
  CmdGenBarCode.OnClicked([this] { GenerateBarCode(); });
  CmdClearImage.OnClicked([this] { ClearImage(); });
  CmdPriceList.OnClicked([this] { ReadPriceList(); });
  CmdUseInCW.OnClicked([this] { HandOver(false); });
  CmdSingleItems.OnClicked([this] { HandOver(true); });
}

void FrmFabricDatabase2::ForCurtainWizard(TakePicked take) {
  take_ = std::move(take);
  OpenFor(CmdUseInCW);
}

void FrmFabricDatabase2::ForSingleItems(TakePicked take) {
  take_ = std::move(take);
  OpenFor(CmdSingleItems);
}

void FrmFabricDatabase2::Load() {
  mark_up_ = shop().Get(setting::kMarkUp);
  vat_rate_ = shop().Get(setting::kVat);
  TxtMarkUp.SetText(mark_up_);
  Catalogue::Load();
  tables_ = ReadBarcodeTables(shop());
}

void FrmFabricDatabase2::Activate() { SetFocus(Search.FabSText); }

bool FrmFabricDatabase2::MayClose() {
  if (focus() == &SellingPrice) FormatSellingPrice();
  return Catalogue::MayClose();
}

void FrmFabricDatabase2::SetDefaults() {
  ShowBuyPrice(false);
  TxtMarkUp.SetText(mark_up_);
  VatRate.SetText(vat_rate_);
  for (TextField* price : {&BuyPrice, &PriceWithOutVat}) price->SetText("0.00");
  for (TextField* stock : {&AmountInStock, &StockLowLevelAmount, &StockOnOrder, &AmountOfStockToOrder}) {
    stock->SetText("0");
  }
}

void FrmFabricDatabase2::BeforeSave() {
  if (Category.empty()) Message(kNoCategory);
}

void FrmFabricDatabase2::TellFound(std::int64_t count) {
  Messages.SetCaption(std::to_string(count) + " matches found. ID: " + ProductID.text());
  SetFocus(Search.CboFabSearch);
}

void FrmFabricDatabase2::ShowBuyPrice(bool on) {
  Check3.Set(on);
  BuyPrice.SetVisible(on);
  TxtMarkUp.SetVisible(on);
}

void FrmFabricDatabase2::FormatSellingPrice() { SellingPrice.SetText(Format2(SellingPrice.text())); }

void FrmFabricDatabase2::GenerateBarCode() {
  if (!Data1.HasRow()) return;
  const bool makes =
      BarCode.empty() || AskYesNo("Barcode!", "Do you want to change this barcode?", Answer::kNo);
  if (!makes) return;
  std::string digits;
  for (int i = 0; i < kBarCodeDigits; ++i) digits += std::to_string(BarCodeDigit(host()));
  BarCode.SetText(digits);
}

void FrmFabricDatabase2::ClearImage() {
  if (!Data1.HasRow() || !AskYesNo("Clear Image", "Clear Image Are you sure?")) return;
  image.SetText("");
  imagepath.SetText("");
}

void FrmFabricDatabase2::ReadPriceList() {
  Data1.Leave();
  FrmPriceList list(host(), shop());
  ShowModal(list);
  // The list may have written to the product that is shown, and beside it.
  Data1.rows().Resync();
}

void FrmFabricDatabase2::HandOver(bool without_tax) {
  if (!take_ || !LeaveForUse()) return;
  const std::string text = SuppliersName.text() + " " + ProductName.text() + " " + ItemCode.text();
  take_(text, without_tax ? NetPrice(SellingPrice.text(), job_.cboVAT.text()) : SellingPrice.text());
  Close();
}

}  // namespace tarvane::catalogues
