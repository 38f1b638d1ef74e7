#pragma once

#include "catalogues/catalogue.h"

namespace tarvane::catalogues {

// The shop's suppliers, with addresses and terms. Nothing else reads them: products hold a supplier's name of
// their own. Any text fits into any field.
class frmSuppliers2 : public Catalogue {
 public:
  static constexpr std::string_view kName = "frmSuppliers2";

  frmSuppliers2(Host& host, Shop& shop);

  TextField SuppliersID{this, "SuppliersID"};
  TextField SuppliersName{this, "SuppliersName"};
  TextField Address{this, "Address", "", -1, TextField::Kind::kMemo};
  TextField Telephone{this, "Telephone"};
  TextField Fax{this, "Fax"};
  TextField ContactName{this, "ContactName"};
  TextField Email{this, "Email"};
  TextField Email2{this, "Email2"};
  TextField WebSite{this, "WebSite"};  // without scheme
  TextField CurrentBalance{this, "CurrentBalance"};
  TextField CreditLimit{this, "CreditLimit"};
  TextField NumberDueDays{this, "NumberDueDays"};
  TextField PurchaseDiscount{this, "PurchaseDiscount"};
  TextField PaymentDiscount{this, "PaymentDiscount"};
  TextField AccountNumber{this, "AccountNumber"};
  TextField History{this, "History", "", -1, TextField::Kind::kMemo};

  // Each writes or visits; blank: a beep and what is missing. Where no program can be started, nothing
  // happens.
  Button Command2{this, "Command2", "..."};  // Email
  Button Command5{this, "Command5", "..."};  // Email2
  Button Command3{this, "Command3", "..."};  // WebSite

 private:
  void HandOver(std::string_view scheme, const TextField& address, std::string_view missing);
};

}  // namespace tarvane::catalogues
