#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "paper/page_picture.h"
#include "paper/surface.h"
#include "text/day.h"

namespace tarvane {

class Screen;

enum class Answer { kYes, kNo, kOk, kCancel };
enum class Icon { kNone, kInformation, kQuestion, kWarning, kError };

struct Question {
  std::string title;
  std::string text;
  std::vector<Answer> answers;   // the buttons, in order; the last one is what closing the box gives
  Answer preset = Answer::kYes;  // the button that Enter presses
  Icon icon = Icon::kQuestion;
};

enum class FileChoice { kOpen, kSave };

struct PrintOrder {
  std::string title;  // of the job in the printer's queue
  int copies = 1;
  bool ask = true;  // the worker chooses printer, pages and copies first
};

// What screens need from outside. Texts are UTF-8; line ends in messages are "\n" or "\r\n".
class Host {
 public:
  virtual ~Host() = default;

  // Shows the screen on top of the others and serves the worker until it is closed.
  virtual void RunModal(Screen& screen) = 0;

  virtual void Message(std::string_view title, std::string_view text, Icon icon) = 0;
  // A message that tells the same each time. `about` names what it is about (a job, for instance): a face may
  // pass over one that the worker has seen about that.
  virtual void Hint(std::string_view title, std::string_view text, std::string_view about) {
    static_cast<void>(about);
    Message(title, text, Icon::kNone);
  }
  virtual Answer Ask(const Question& question) = 0;
  // Nothing where the worker cancels.
  virtual std::optional<std::string> Input(std::string_view title, std::string_view prompt,
                                           std::string_view initial) = 0;
  // `filter`: "Name (*.ext)|*.ext", further kinds behind another |; may be empty. `suggested`: a file name to
  // begin with, in the worker's documents; may be empty. Nothing where the worker cancels. Before a file that
  // is there is chosen to be written over, the worker has been asked.
  virtual std::optional<std::filesystem::path> ChooseFile(FileChoice kind, std::string_view title,
                                                          std::string_view filter,
                                                          std::string_view suggested) = 0;
  virtual void Beep() = 0;
  virtual void SetBusy(bool busy) = 0;
  // How far something has come that takes long (Progress in busy.h). A face shows it once it has taken more
  // than a second. False where the worker wants it to stop.
  virtual bool ShowProgress(std::string_view what, std::int64_t done, std::int64_t total) {
    static_cast<void>(what), static_cast<void>(done), static_cast<void>(total);
    return true;
  }
  virtual void EndProgress() {}

  virtual DateTime Now() = 0;
  virtual int RandomDigit() = 0;  // 0 to 9

  virtual std::string ClipboardText() = 0;
  virtual void SetClipboardText(std::string_view text) = 0;
  // Hands a file, an address or a program ("calc") to the platform. Faults where it can't.
  virtual void Launch(std::string_view target) = 0;

  // How large texts are on paper, on the screen and in PDF files.
  virtual paper::Measure& TextMeasure() = 0;
  // The sheet that the printer is set up for; A4 without a printer.
  virtual paper::Paper PrinterPaper() = 0;
  // False where the worker cancels; nothing was printed then. Faults where it can't be printed.
  virtual bool Print(const paper::Pages& pages, const PrintOrder& order) = 0;
  virtual void SetUpPrinter() = 0;
  // The font of plain texts, for as long as the program runs.
  const paper::Font& printer_font() const { return printer_font_; }
  void SetPrinterFont(paper::Font font) { printer_font_ = std::move(font); }
  // Nothing where the worker cancels.
  virtual std::optional<paper::Font> ChooseFont(const paper::Font& font) = 0;
  // Writes a PDF file, whole or not at all; faults where it can't be written. Gives the characters that
  // couldn't be shown in it.
  virtual std::string SavePdf(const paper::Pages& pages, const std::filesystem::path& file,
                              std::string_view title) = 0;
  // A blank sheet to draw on at the screen's resolution.
  virtual std::unique_ptr<paper::PagePicture> MakePagePicture(const paper::Paper& paper) = 0;
  // Opens a new mail with the file attached in the platform's mail program. Faults where there is none.
  virtual void SendMail(std::string_view address, std::string_view subject,
                        const std::filesystem::path& attachment) = 0;

  // Ends the process at once; nothing that waits is saved.
  [[noreturn]] virtual void EndProcess() = 0;

 private:
  paper::Font printer_font_;
};

}  // namespace tarvane
