// The panel of blind details and costing. Nobody gets to see it; what it works out gives way to the totals of
// the element lines.
#include <algorithm>

#include "blinds/item_wizard.h"

namespace tarvane::blinds {

namespace {

const std::vector<std::string> kStyles = {"15mm Venetian Blind",
                                          "25mm Venetian Blind",
                                          "35mm Venetian Blind",
                                          "50mm Venetian Blind",
                                          "89mm Venetian Blind",
                                          "127mm Venetian Blind",
                                          "Roller Blind",
                                          "Roman Blinds",
                                          "Honeycomb Blinds",
                                          "20mm Pleated Blinds",
                                          "20mm Pleated Standard freehang Blinds",
                                          "20mm Pleated tab and cord Blinds",
                                          "20mm Pleated Rectangular Roof Blinds",
                                          "20mm Shaped Roof  Blinds",
                                          "25mm Pleated Blinds",
                                          "25mm Pleated Standard Blinds",
                                          "25mm Pleated Rectangular Roof Blinds",
                                          "25mm Shaped Roof  Blinds",
                                          "Special Effects Venetian Blind",
                                          "Wooden Venetian Blind",
                                          "Woodweave Blinds"};
const std::vector<std::string> kMaterials = {"Adhesive buckram", "Buckram", "MDF Board", "Ply Wood",
                                             "Pelform"};
constexpr int kHighestPrice = 100;
constexpr std::size_t kMaterialLabel = 3;

std::vector<std::string> WholePrices() {
  std::vector<std::string> prices;
  prices.reserve(kHighestPrice + 1);
  for (int price = 0; price <= kHighestPrice; ++price) prices.push_back(FormatNumber(price, Mask::k0_00));
  return prices;
}

}  // namespace

void WizardNewBlinds::HookCosting() {
  for (TextField* factor : std::initializer_list<TextField*>{&QtyNeeded, &PricePerMetre}) {
    factor->OnChanged([this] { PriceBlind(); });
  }
  PricePerMetre.OnPicked([this] { PriceBlind(); });
  PricePerMetre.OnEnterKey([this] { PriceBlind(); });
  for (TextField* amount : {&BlindPriceIncVat, &TxtNoOfTieBacks}) amount->OnChanged([this] { cal(); });
  for (TextField* amount : {&TxtDeliveryCosting, &TxtLabour, &TxtOtherCosting}) {
    amount->OnLeft([this] { cal(); });
  }
  nsdProduct.OnChanged([this] { TakeProduct(); });
  CboTieBacks.OnChanged([this] {
    const std::string& material = CboTieBacks.text();
    if (material == "Buckram" || material == "Wood") {
      CostingLabel[kMaterialLabel].SetCaption("Costing for " + material + ":");
    }
  });
}

void WizardNewBlinds::FillCostingLists() {
  static const std::vector<std::string> kPrices = WholePrices();
  QtyNeeded.SetText("1");
  PricePerMetre.SetEntries(kPrices);
  PricePerMetre.SetText("0.00");
  BlindInfo.SetEntries(kStyles);
  BlindInfo.SetText("Select Blind Info");
  CboTieBacks.SetEntries(kMaterials);
  CboTieBacks.SetText("Select made from");
}

void WizardNewBlinds::PriceBlind() {
  BlindPriceIncVat.SetNumber(PricePerMetre.Number() * QtyNeeded.Number(), Mask::k0_00);
}

void WizardNewBlinds::SetProducts(std::vector<Product> products) {
  products_ = std::move(products);
  std::vector<std::string> names;
  names.reserve(products_.size());
  for (const Product& product : products_) names.push_back(product.columns[0]);
  nsdProduct.SetEntries(std::move(names));
}

void WizardNewBlinds::TakeProduct() {
  const auto found = std::ranges::find(products_, nsdProduct.text(),
                                       [](const Product& product) { return product.columns[0]; });
  if (found == products_.end()) return;
  PricePerMetre.SetText(found->price);
  std::string text = found->columns[0];
  for (const std::string& column : {found->columns[1], found->columns[2]}) {
    if (!column.empty()) text += "," + column;
  }
  FabricText.SetText(text);
}

void WizardNewBlinds::cal() {
  const std::array<TextField*, 4> amounts = {&BlindPriceIncVat, &TxtDeliveryCosting, &TxtLabour,
                                             &HPtxtFields[kFitting]};
  double sum = 0;
  for (TextField* amount : amounts) amount->SetText(Format2(amount->text()));
  for (const TextField* amount : amounts) sum += amount->Number();
  for (TextField* total : {&TxtSubTotal, &Elements.TxtGrandTotal}) {
    total->SetNumber(sum);
    total->SetText(Format2(total->text()));
  }
}

}  // namespace tarvane::blinds
