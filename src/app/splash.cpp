#include "app/splash.h"

#include <fmt/format.h>

#include "app/version.h"

namespace tarvane {

frmSplash::frmSplash(Host& host) : Screen(host, "frmSplash") {
  SetTitle(kProgramTitle);
  lblProductName.SetCaption(kProgramTitle);
  lblVersion.SetCaption(fmt::format("{}.{}.{}", kVersionMajor, kVersionMinor, kVersionRevision));
  Command1.OnClicked([this] { Close(); });
}

}  // namespace tarvane
