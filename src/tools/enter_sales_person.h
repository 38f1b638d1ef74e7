#pragma once

#include "job/job_screen.h"

namespace tarvane::tools {

// Asks for the sales person of a new job and puts the answer into the main screen's list field. Closed by its
// window it leaves that as it is.
class FrmEnterSalesPerson : public Screen {
 public:
  static constexpr std::string_view kName = "FrmEnterSalesPerson";

  // `job` must outlive the screen.
  FrmEnterSalesPerson(Host& host, Shop& shop, job::JobScreen& job);

  DropDownList CboSalesPerson{this, "CboSalesPerson"};
  Button Command1{this, "Command1", "&OK"};

 protected:
  void Load() override;

 private:
  Shop& shop_;
  job::JobScreen& job_;
};

}  // namespace tarvane::tools
