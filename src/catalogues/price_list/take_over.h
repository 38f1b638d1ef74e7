#pragma once

#include <string_view>

#include "catalogues/price_list/price_plan.h"
#include "store/database.h"

namespace tarvane::catalogues {

// Puts what is new and what changes into the products, in one commit; wrong lines are left out. `vat_rate`:
// of new products. False where it was stopped; then, as behind a fault, the products are as they were. Faults
// where they can't be written, and where a product has changed since the plan was made.
bool TakeOver(const PricePlan& plan, Database& database, std::string_view vat_rate,
              const KeepGoing& keep_going);

}  // namespace tarvane::catalogues
