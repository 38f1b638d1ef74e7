#pragma once

#include "job/job_screen.h"
#include "support/shop_folder.h"
#include "support/silent_host.h"

namespace tarvane {

// A shop with settings and one open job, for programs that only count time or look for crashes.
class SilentShop {
 public:
  SilentShop() {
    folder_.AddSettings();
    folder_.AddJob({});
    job.OpenData();
  }

 private:
  ShopFolder folder_;

 public:
  SilentHost host;
  Shop shop{folder_.path()};
  job::JobScreen job{host, shop};
};

}  // namespace tarvane
