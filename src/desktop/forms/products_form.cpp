#include <QLayout>
#include <QLineEdit>
#include <algorithm>

#include "desktop/barcode_drawing.h"
#include "desktop/forms/catalogue_form.h"
#include "desktop/forms/form_window.h"
#include "desktop/forms/forms.h"
#include "desktop/make.h"

namespace tarvane::desktop {
namespace {

using catalogues::FrmFabricDatabase2;

const TableLook kColumns = {.columns = {{"ProductID", "ID", 5, true},
                                        {"ProductName", "Product Name", 24},
                                        {"SellingPrice", "Price", 8, true},
                                        {"AmountInStock", "In Stock", 7, true},
                                        {"SuppliersName", "Suppliers Name", 15},
                                        {"ItemCode", "Item Code", 10}},
                            .wide = "ProductName",
                            .name = "Products",
                            .empty = "None found, or none yet. Add New begins one."};

// The bars of the code, as it is typed.
Piece Bars(Form& form, FrmFabricDatabase2& screen) {
  auto* drawing = Make<BarcodeDrawing>();
  form.Follow([drawing, &screen, shown = std::string()]() mutable {
    if (shown == screen.BarCode.text()) return;
    shown = screen.BarCode.text();
    const std::string bars = screen.Bars();
    const bool lacks = bars.empty() && !shown.empty() && screen.HasBarcodeTables();
    drawing->Show(bars, lacks ? "no barcode for this text" : "");
  });
  return {drawing};
}

Piece Record(Builder& build, FrmFabricDatabase2& screen) {
  const Look number{.width = 10, .number = true};
  const Piece record = build.Column({
      build.Fields({{"Record ID", {{screen.ProductID, {.width = 8, .number = true}}}},
                    {"Category", {{screen.Category, {.width = 18}}}},
                    {"Suppliers Name", {{screen.SuppliersName, {}}}},
                    {"Product Name", {{screen.ProductName, {}}}},
                    {"Item Code", {{screen.ItemCode, {.width = 18}}}},
                    {"Description", {{screen.Description, {}}}},
                    {"Batch/Shelf Num", {{screen.BatchNo, {.width = 18}}}},
                    {"Bar Code", {{screen.BarCode, {.width = 18}}, {screen.CmdGenBarCode}}}}),
      Bars(build.form(), screen),
      build.Fields({{"Selling Price Includes Vat/Tax", {{screen.SellingPrice, number}}},
                    {"Buying Price Excludes Vat", {{screen.BuyPrice, number}}},
                    {"Mark Up %", {{screen.TxtMarkUp, number}}},
                    {},
                    {"Amount In Stock", {{screen.AmountInStock, number}}},
                    {"Stock Low Level Warning", {{screen.StockLowLevelAmount, number}}},
                    {"Stock On Order", {{screen.StockOnOrder, number}}},
                    {"Stock Amount to order when Low", {{screen.AmountOfStockToOrder, number}}}}),
      build.Fields({{"Remarks", {{screen.Remarks, {.width = 26, .lines = 3}}}}}),
  });
  // Both of its pages are in sight at once.
  build.form().Bind(screen.SSTab1, record.layout, nullptr);
  return record;
}

// A scanner types digits, a worker a name: where no category has been chosen, the first letter or digit tells
// which one is meant.
void ChooseCategory(Form& form, FrmFabricDatabase2& screen) {
  const auto* text = qobject_cast<QLineEdit*>(form.WidgetOf(screen.Search.FabSText));
  QObject::connect(text, &QLineEdit::textEdited, &form, [&form, &screen](const QString& typed) {
    const std::string& category = screen.Search.CboFabSearch.text();
    const bool chosen = category != screen.BarCode.name() && category != Finder::kPrompt;
    const auto first = std::ranges::find_if(typed, [](QChar c) { return c.isLetterOrNumber(); });
    if (chosen || first == typed.end()) return;
    const TextField& wanted = first->isLetter() ? screen.ProductName : screen.BarCode;
    form.Act(screen.Search.CboFabSearch,
             [&](Control&) { screen.Search.CboFabSearch.SetText(wanted.name()); });
  });
}

}  // namespace

void BuildProductsForm(Form& form, FrmFabricDatabase2& screen) {
  FillCatalogue(form, screen,
                {.list = kColumns,
                 .record = [&screen](Builder& build) { return Record(build, screen); },
                 .use = {&screen.CmdUseInCW, &screen.CmdSingleItems},
                 .more = {&screen.CmdPriceList}});
  ChooseCategory(form, screen);
  for (const Button* button : {&screen.CmdUseInCW, &screen.CmdSingleItems}) {
    SayWhyOff(form, *button, "No product was found.");
  }
}

}  // namespace tarvane::desktop
