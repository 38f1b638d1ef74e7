#include "screen/windowless_host.h"

#include "paper/bitmap_page.h"
#include "paper/pdf_file.h"

namespace tarvane {

bool WindowlessHost::Print(const paper::Pages& pages, const PrintOrder& order) {
  for (int copy = 0; copy < order.copies; ++copy) {
    for (int page = 0; page < pages.Count(); ++page) {
      paper::Recorder recorder(measure_, pages.paper());
      pages.Draw(page, recorder);
      PagePrinted(recorder.pages().front(), pages.LeftOfText());
    }
  }
  return true;
}

std::string WindowlessHost::SavePdf(const paper::Pages& pages, const std::filesystem::path& file,
                                    std::string_view title) {
  return paper::WritePdf(pages, file, {std::string(title), fonts_, [this] { return Now(); }});
}

std::unique_ptr<paper::PagePicture> WindowlessHost::MakePagePicture(const paper::Paper& paper) {
  return std::make_unique<paper::BitmapPage>(measure_, paper);
}

void WindowlessHost::SendMail(std::string_view address, std::string_view subject,
                              const std::filesystem::path& attachment) {
  std::string target = "mailto:";
  target.append(address).append("?subject=").append(subject).append("&attach=").append(attachment.string());
  Launch(target);
}

}  // namespace tarvane
