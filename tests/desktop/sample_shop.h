#pragma once

#include <stdlib.h>

#include <filesystem>
#include <string>

#include "setup/setup.h"

namespace tarvane {

// The sample shop in a folder of its own, gone with it.
class SampleShop {
 public:
  SampleShop() {
    std::string name = (std::filesystem::temp_directory_path() / "tarvane-shop-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) throw Fault("no temporary folder");
    base_ = name;
    SetUpFolder({folder(), TARVANE_DATA_DIR, true}, [](std::string_view, SetupResult) {});
  }
  ~SampleShop() {
    std::error_code ignored;
    std::filesystem::remove_all(base_, ignored);
  }
  SampleShop(const SampleShop&) = delete;
  SampleShop& operator=(const SampleShop&) = delete;

  std::filesystem::path folder() const { return base_ / "shop"; }

 private:
  std::filesystem::path base_;
};

}  // namespace tarvane
