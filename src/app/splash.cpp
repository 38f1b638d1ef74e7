#include "app/splash.h"

#include <fmt/format.h>

#include "app/version.h"

namespace tarvane::app {

frmSplash::frmSplash(Host& host) : Screen(host, std::string(kName)) {
  SetTitle(kProgramTitle);
  lblProductName.SetCaption(kProgramTitle);
  lblVersion.SetCaption(fmt::format("{}.{}.{}", kVersionMajor, kVersionMinor, kVersionRevision));
  Command1.OnClicked([this] { Close(); });
}

}  // namespace tarvane::app
