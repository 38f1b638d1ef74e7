#include "paper/pdf_file.h"

#include <fcntl.h>
#include <unistd.h>

#include "paper/pdf_surface.h"
#include "pdf/font_metrics.h"
#include "pdf/tqr_pdf.h"
#include "text/fault.h"

namespace tarvane::paper {
namespace {

namespace fs = std::filesystem;

// A file beside another one, which it is to take the place of; gone where it doesn't.
class FileBeside {
 public:
  explicit FileBeside(const fs::path& target) : target_(target) {
    static constexpr int kMostTries = 100;
    for (int number = 0; number < kMostTries; ++number) {
      path_ = target;
      path_ += ".new" + std::to_string(number);
      const int handle = ::open(path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
      if (handle >= 0) {
        ::close(handle);
        return;
      }
      if (errno != EEXIST) break;
    }
    path_.clear();
    Fail();
  }
  ~FileBeside() {
    if (!path_.empty()) ::unlink(path_.c_str());
  }
  FileBeside(const FileBeside&) = delete;
  FileBeside& operator=(const FileBeside&) = delete;

  const fs::path& path() const { return path_; }
  [[noreturn]] void Fail() const { throw Fault("The file " + target_.string() + " can't be written."); }
  // On the disk first: what it replaces mustn't be lost to a power cut.
  void TakePlace() {
    const int handle = ::open(path_.c_str(), O_WRONLY | O_CLOEXEC);
    const bool synced = handle >= 0 && ::fsync(handle) == 0;
    if (handle >= 0) ::close(handle);
    if (!synced || ::rename(path_.c_str(), target_.c_str()) != 0) Fail();
    path_.clear();
  }

 private:
  fs::path target_;
  fs::path path_;
};

void CheckFonts(const fs::path& folder) {
  pdf::FontFolder fonts;
  fonts.Load(folder.string());
  if (fonts.names().empty()) throw Fault("There are no font files in " + folder.string() + ".");
}

}  // namespace

std::string WritePdf(const Pages& pages, const fs::path& file, const PdfInformation& information) {
  CheckFonts(information.fonts);
  FileBeside beside(file);
  pdf::Surroundings surroundings;
  surroundings.now = information.now;
  pdf::tqrPDF document(std::move(surroundings));
  document.PDFStrict(true);
  document.PDFSetUnit(pdf::kPoint);
  document.PDFSetMargins(0, 0, 0, 0);
  document.PDFPathConfiguration(information.fonts.string());
  document.PDFTitle(information.title);
  document.PDFFormatPage(pages.paper().size.width, pages.paper().size.height);
  document.PDFFileName(beside.path().string());
  document.PDFBeginDoc();
  PdfSurface surface(document, pages.paper(), information.fonts);
  for (int page = 0; page < pages.Count(); ++page) {
    if (page > 0) surface.NewPage();
    pages.Draw(page, surface);
  }
  document.PDFEndDoc();
  if (!document.PDFWritten()) beside.Fail();
  beside.TakePlace();
  return surface.lacking();
}

}  // namespace tarvane::paper
