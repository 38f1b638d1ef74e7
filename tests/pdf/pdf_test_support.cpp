#include "pdf/pdf_test_support.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <cstdio>
#include <fstream>
#include <iterator>

namespace tarvane::pdf {

ScratchFolder::ScratchFolder() {
  static std::atomic<int> count = 0;
  path_ = std::filesystem::temp_directory_path() /
          ("tarvane_pdf_" + std::to_string(getpid()) + "_" + std::to_string(++count));
  std::filesystem::create_directories(path_);
}

ScratchFolder::~ScratchFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

std::string FontsFolder() { return TARVANE_DATA_DIR "/Fonts"; }

std::string ImageFile(const std::string& name) { return TARVANE_TEST_DATA "/images/" + name; }

std::string FileBytes(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  EXPECT_TRUE(file.is_open()) << path;
  return std::string(std::istreambuf_iterator<char>(file), {});
}

void WriteBytes(const std::string& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

Surroundings FixedSurroundings(MessageSink* messages) {
  return {messages, [] { return CalendarTime{2024, 2, 29, 13, 5, 9}; }, {}, ""};
}

RunResult RunCommand(const std::string& command) {
  RunResult result;
  FILE* const pipe = popen((command + " 2>&1").c_str(), "r");
  if (pipe == nullptr) {
    ADD_FAILURE() << "no shell";
    return result;
  }
  char part[4096];
  for (size_t length; (length = std::fread(part, 1, sizeof part, pipe)) > 0;)
    result.output.append(part, length);
  const int status = pclose(pipe);
  result.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  EXPECT_NE(result.status, 127) << "a program that the tests need isn't installed: " << command;
  return result;
}

std::string Lines(const std::vector<std::string>& lines) {
  std::string out;
  for (const std::string& line : lines) out += line + "\r\n";
  return out;
}

}  // namespace tarvane::pdf
