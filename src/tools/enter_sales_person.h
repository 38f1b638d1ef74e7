#pragma once

#include "job/job_screen.h"

namespace tarvane {

// Asks for the sales person of a new job and puts the answer into the main screen's list field. Closed by its
// window it leaves that as it is.
class FrmEnterSalesPerson : public Screen {
 public:
  // `job` must outlive the screen.
  FrmEnterSalesPerson(Host& host, JobScreen& job);

  DropDownList CboSalesPerson{this, "CboSalesPerson"};
  Button Command1{this, "Command1", "&OK"};

 protected:
  void Load() override;

 private:
  JobScreen& job_;
};

}  // namespace tarvane
