#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "setup/command_line.h"
#include "store/data_files.h"

namespace tarvane::setup {

// A temporary folder to lay program folders down in, and tarvane-setup run on them.
class SetupTest : public testing::Test {
 protected:
  void SetUp() override {
    std::string name = (std::filesystem::temp_directory_path() / "setup-XXXXXX").string();
    ASSERT_NE(mkdtemp(name.data()), nullptr);
    root_ = name;
    shop_ = root_ / "shop";
  }
  void TearDown() override { std::filesystem::remove_all(root_); }

  // The exit status; what it told is in out_ and err_.
  int Run(std::vector<std::string> options = {}) {
    options.insert(options.begin(), shop_.string());
    options.insert(options.end(), {"--data", TARVANE_DATA_DIR});
    return RunBare(options);
  }
  int RunBare(const std::vector<std::string>& arguments) {
    std::ostringstream out;
    std::ostringstream err;
    const int status = RunSetup(arguments, out, err);
    out_ = out.str();
    err_ = err.str();
    return status;
  }

  // Every file below the folder with its content.
  static std::map<std::string, std::string> Contents(const std::filesystem::path& folder) {
    std::map<std::string, std::string> contents;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
      if (!entry.is_regular_file()) continue;
      contents[std::filesystem::relative(entry.path(), folder).string()] =
          ReadFile(entry.path()).value_or("");
    }
    return contents;
  }

  std::filesystem::path root_;
  std::filesystem::path shop_;
  std::string out_;
  std::string err_;
};

}  // namespace tarvane::setup
