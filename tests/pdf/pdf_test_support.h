#pragma once

#include <filesystem>
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

// What `draw` puts on the first page of a document in points, between its stream's words, with the fonts
// loaded.
template <typename Draw>
std::string Drawn(Draw draw, MessageSink* messages = nullptr) {
  ScratchFolder folder;
  tqrPDF document(FixedSurroundings(messages));
  document.PDFSetUnit(kPoint);
  document.PDFFileName(folder / "drawn.pdf");
  document.PDFPathConfiguration(FontsFolder());
  document.PDFSetMargins(0, 0, 0, 0);
  document.PDFBeginDoc();
  draw(document);
  document.PDFEndDoc();
  const std::string bytes = FileBytes(folder / "drawn.pdf");
  const size_t begin = bytes.find("stream\r\n") + 8;
  return bytes.substr(begin, bytes.find("endstream") - begin);
}

// The lines of a text, each ended by CR LF.
std::string Lines(const std::vector<std::string>& lines);

}  // namespace tarvane::pdf
