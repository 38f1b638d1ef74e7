#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "pdf/tqr_pdf.h"

namespace tarvane::pdf {

// A folder of its own for one test, gone after it.
class ScratchFolder {
 public:
  ScratchFolder();
  ~ScratchFolder();
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;
  std::string operator/(const std::string& name) const { return (path_ / name).string(); }

 private:
  std::filesystem::path path_;
};

// Keeps the messages.
class SeenMessages : public MessageSink {
 public:
  void Show(const Message& message) override { list.push_back(message); }
  std::vector<Message> list;
};

std::string FontsFolder();
std::string ImageFile(const std::string& name);
std::string FileBytes(const std::string& path);
void WriteBytes(const std::string& path, const std::string& bytes);

// The surroundings of a test: its messages, and 29 February 2024, 13:05:09.
Surroundings FixedSurroundings(MessageSink* messages = nullptr);

struct RunResult {
  int status = -1;
  std::string output;  // both streams
};
// Runs a command line. A program that isn't there fails the test.
RunResult RunCommand(const std::string& command);
// Fails where qpdf, poppler or mupdf has anything to say against the file.
void ExpectSound(const std::string& path);

// Compares with golden/NAME and tells the first line that differs.
void ExpectGolden(const std::string& name, const std::string& bytes);

// The bytes of a file in points, with the settings of `set` and the drawing of `draw`.
using Steps = std::function<void(tqrPDF&)>;
std::string Written(const Steps& set, const Steps& draw);

}  // namespace tarvane::pdf
