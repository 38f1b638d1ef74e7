#include "desktop/forms/catalogue_form.h"
#include "desktop/forms/forms.h"

namespace tarvane::desktop {
namespace {

const TableLook kColumns = {.columns = {{"SuppliersID", "ID", 5, true},
                                        {"SuppliersName", "Suppliers Name", 24},
                                        {"Telephone", "Telephone No", 15},
                                        {"ContactName", "Contact", 14}},
                            .wide = "SuppliersName",
                            .name = "Suppliers",
                            .empty = "None found, or none yet. Add New begins one."};

Piece Record(Builder& build, catalogues::frmSuppliers2& screen) {
  const Look wide{.width = 30};
  const Look money{.width = 10, .number = true};
  return build.Column({
      build.Fields({{"Record ID", {{screen.SuppliersID, {.width = 8, .number = true}}}},
                    {"Suppliers Name", {{screen.SuppliersName, wide}}},
                    {"Address", {{screen.Address, {.width = 30, .lines = 4}}}},
                    {"Contact Name:", {{screen.ContactName, wide}}},
                    {"Telephone No", {{screen.Telephone, {.width = 18}}}},
                    {"Fax No", {{screen.Fax, {.width = 18}}}},
                    {"Email:", {{screen.Email, wide}, {screen.Command2}}},
                    {"Email 2:", {{screen.Email2, wide}, {screen.Command5}}},
                    {"Web Site: http://", {{screen.WebSite, wide}, {screen.Command3}}}}),
      build.Fields({{"Account Number", {{screen.AccountNumber, {.width = 14}}}},
                    {"Current Balance", {{screen.CurrentBalance, money}}},
                    {"Credit Limit", {{screen.CreditLimit, money}}},
                    {"Number of due Days", {{screen.NumberDueDays, money}}},
                    {"Purchase Discount", {{screen.PurchaseDiscount, money}}},
                    {"Payment Discount", {{screen.PaymentDiscount, money}}}},
                   2),
      build.Fields({{"Notes:", {{screen.History, {.width = 30, .lines = 4}}}}}),
  });
}

}  // namespace

void BuildSuppliersForm(Form& form, catalogues::frmSuppliers2& screen) {
  FillCatalogue(form, screen,
                {.list = kColumns,
                 .record = [&screen](Builder& build) { return Record(build, screen); },
                 .usual_category = kColumns.wide});
}

}  // namespace tarvane::desktop
