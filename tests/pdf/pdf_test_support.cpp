#include "pdf/pdf_test_support.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
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
  return {messages, [] { return DateTime{MakeDay(2024, 2, 29), 13, 5, 9}; }, {}, ""};
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

// What some builds of mupdf say of themselves, whatever the file.
constexpr char kBuildRemark[] = "warning: ICC support is not available\n";

void ExpectSound(const std::string& path) {
  const RunResult check = RunCommand("qpdf --check " + path);
  EXPECT_EQ(check.status, 0) << check.output;
  EXPECT_EQ(check.output.find("WARNING"), std::string::npos) << check.output;
  // Of these two only complaints reach the output.
  for (const std::string& reader :
       {"pdftotext " + path + " /dev/null", "mutool draw -q -F trace " + path + " >/dev/null"}) {
    const RunResult result = RunCommand("{ " + reader + "; }");
    EXPECT_EQ(result.status, 0);
    EXPECT_TRUE(result.output.empty() || result.output == kBuildRemark) << reader << result.output;
  }
}

void ExpectGolden(const std::string& name, const std::string& bytes) {
  const std::string kept = FileBytes(TARVANE_TEST_DATA "/golden/" + name);
  if (bytes == kept) return;
  const auto differs = std::mismatch(kept.begin(), kept.end(), bytes.begin(), bytes.end()).first;
  const auto at = static_cast<size_t>(differs - kept.begin());
  const size_t begin = at == 0 ? 0 : kept.rfind('\n', at - 1) + 1;
  const auto line = [begin](const std::string& text) {
    return text.substr(begin, text.find('\n', begin) - begin);
  };
  const std::string now = testing::TempDir() + name;
  WriteBytes(now, bytes);
  ADD_FAILURE() << "golden/" << name << " differs in line " << 1 + std::count(kept.begin(), differs, '\n')
                << "\n  kept: " << line(kept) << "\n  now:  " << line(bytes)
                << "\n  the whole of it: " << now;
}

std::string Written(const Steps& set, const Steps& draw) {
  ScratchFolder folder;
  tqrPDF document(FixedSurroundings());
  document.PDFSetUnit(kPoint);
  document.PDFFileName(folder / "written.pdf");
  set(document);
  document.PDFBeginDoc();
  draw(document);
  document.PDFEndDoc();
  EXPECT_TRUE(document.PDFWritten());
  return FileBytes(folder / "written.pdf");
}

}  // namespace tarvane::pdf
