#pragma once

#include <QObject>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "desktop/form.h"
#include "desktop/progress_window.h"
#include "screen/host.h"

class QWidget;

namespace tarvane::desktop {

class PagePrinter;
struct PaperTools;

// Shows screens as windows, each by its form, and gives them what they need of the platform.
class QtHost : public Host {
 public:
  QtHost();
  ~QtHost() override;

  // Windows come up where they were left, and their places are kept in the worker's own settings.
  void RememberPlaces() { remembers_ = true; }
  // Runs when a form's window is up and drawn.
  void OnShown(std::function<void(Form&)> action) { on_shown_ = std::move(action); }

  void RunModal(Screen& screen) override;
  void Message(std::string_view title, std::string_view text, Icon icon) override;
  // Once about each thing, as long as it is the same one.
  void Hint(std::string_view title, std::string_view text, std::string_view about) override;
  Answer Ask(const Question& question) override;
  std::optional<std::string> Input(std::string_view title, std::string_view prompt,
                                   std::string_view initial) override;
  std::optional<std::filesystem::path> ChooseFile(FileChoice kind, std::string_view title,
                                                  std::string_view filter,
                                                  std::string_view suggested) override;
  void Beep() override;
  void SetBusy(bool busy) override;
  bool ShowProgress(std::string_view what, std::int64_t done, std::int64_t total) override;
  void EndProgress() override;
  DateTime Now() override;
  int RandomDigit() override;
  std::string ClipboardText() override;
  void SetClipboardText(std::string_view text) override;
  void Launch(std::string_view target) override;
  paper::Measure& TextMeasure() override;
  paper::Paper PrinterPaper() override;
  bool Print(const paper::Pages& pages, const PrintOrder& order) override;
  void SetUpPrinter() override;
  std::optional<paper::Font> ChooseFont(const paper::Font& font) override;
  std::string SavePdf(const paper::Pages& pages, const std::filesystem::path& file,
                      std::string_view title) override;
  std::unique_ptr<paper::PagePicture> MakePagePicture(const paper::Paper& paper) override;
  void SendMail(std::string_view address, std::string_view subject,
                const std::filesystem::path& attachment) override;
  [[noreturn]] void EndProcess() override;

  enum class Keep { kSave, kDrop, kCancel };
  // Whether `what`, which isn't stored yet, is to be saved before its window closes.
  virtual Keep AskToKeep(const std::string& what);
  // Asks for whatever waits in the open windows, the top one first, and saves what is to be saved. False
  // where the worker would rather go on, or where it can't be saved.
  bool MayEnd();

  // The window on top; null while none is shown.
  QWidget* TopWindow() const;
  const std::vector<Form*>& forms() const { return forms_; }

 private:
  std::unique_ptr<QWidget> MakeWindow(Screen& screen);
  bool MayLeave(const Form& form);
  bool MayReplace(const QString& file);
  void FollowLogOut();
  void Place(const Form& form) const;
  void KeepPlace(const Form& form) const;
  void AddTextSizeKeys(QWidget* window);
  void ChangeTextSize(int points);
  PaperTools& Tools();
  PagePrinter& Printer();

  std::vector<Form*> forms_;
  std::function<void(Form&)> on_shown_;
  std::shared_ptr<PaperTools> tools_;  // null until they are needed
  std::unique_ptr<PagePrinter> printer_;
  std::unique_ptr<ProgressWindow> progress_;  // null while nothing long runs
  QObject log_out_;                           // ends the watch for a log-out with the host
  bool remembers_ = false;
  std::map<std::string, std::string> hints_;  // by text: what it was shown about last
};

// Within its screen, frame and all, and no larger than that.
void KeepOnScreen(QWidget& window);

// The size of the text in all open windows and in those to come.
void SetTextSize(const std::vector<Form*>& forms, int points);

}  // namespace tarvane::desktop
