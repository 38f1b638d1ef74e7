#include <QLabel>
#include <QWidget>

#include "desktop/forms/catalogue_form.h"
#include "desktop/forms/forms.h"
#include "desktop/theme.h"

namespace tarvane::desktop {
namespace {

using catalogues::FrmItemsDatabase;

const TableLook kColumns = {.columns = {{"ItemID", "ID", 4, true},
                                        {"ItemName", "Items Name", 24},
                                        {"SellingPrice", "Price", 9, true},
                                        {"SuppliersName", "Suppliers Name", 14}},
                            .wide = "ItemName",
                            .name = "Accessories",
                            .empty = "None found, or none yet. Add New begins one."};

// A text of the screen over several lines, gone while it is empty.
Piece Note(Builder& build, Label& label, QPalette::ColorRole role) {
  const Piece piece = build.Text(label);
  auto* text = qobject_cast<QLabel*>(piece.widget);
  text->setWordWrap(true);
  text->setForegroundRole(role);
  return piece;
}

Piece Record(Builder& build, FrmItemsDatabase& screen) {
  const Look wide{.width = 30};
  const Look money{.width = 10, .number = true};
  return build.Column({
      build.Fields({{"Record ID", {{screen.ItemID, {.width = 8, .number = true}}}},
                    {"Suppliers Name", {{screen.SuppliersName, wide}}},
                    {"Items Name", {{screen.ItemName, wide}}},
                    {"Item Code", {{screen.ItemCode, {.width = 18}}}},
                    {"Description", {{screen.Discription, wide}}},
                    {"Selling Price Inc Vat/Tax", {{screen.SellingPrice, money}}},
                    {"", {{screen.Check3}}},
                    {"Buy Price", {{screen.BuyPrice, money}}},
                    {"Mark Up %", {{screen.TxtMarkUp, money}}},
                    {"Remarks", {{screen.Remarks, {.width = 30, .lines = 4}}}}}),
      Note(build, screen.JobNote, QPalette::PlaceholderText),
      Note(build, screen.ItemsNote, QPalette::LinkVisited),
  });
}

}  // namespace

void BuildAccessoriesForm(Form& form, FrmItemsDatabase& screen) {
  FillCatalogue(
      form, screen,
      {.list = kColumns,
       .record = [&screen](Builder& build) { return Record(build, screen); },
       .use = {&screen.CmdUse, &screen.CmdUseItems, &screen.Command3},
       .below_list = [&screen](Builder& build) { return build.Column(QuickListPieces(build, screen.Quick)); },
       .usual_category = kColumns.wide});
}

}  // namespace tarvane::desktop
