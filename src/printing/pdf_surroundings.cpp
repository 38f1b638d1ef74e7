#include "printing/pdf_surroundings.h"

namespace tarvane::printing {

pdf::Surroundings PdfSurroundings::For() {
  return {.messages = this,
          .now = [this] { return host_.Now(); },
          .view = [this](const std::string& path) { host_.Launch(path); },
          .program_folder = folder_.string()};
}

void PdfSurroundings::Show(const pdf::Message& message) {
  host_.Message(message.title, message.text,
                message.icon == pdf::Icon::kStop ? Icon::kError : Icon::kInformation);
}

}  // namespace tarvane::printing
