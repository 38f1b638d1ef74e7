#pragma once

#include "screen/screen.h"

namespace tarvane::app {

// Name and version, at the start and from the help menu.
class frmSplash : public Screen {
 public:
  static constexpr std::string_view kName = "frmSplash";

  explicit frmSplash(Host& host);

  Label lblProductName{this, "lblProductName"};
  Label lblVersion{this, "lblVersion"};
  Button Command1{this, "Command1", "&OK"};
};

}  // namespace tarvane::app
