#include "printing/pdf_surroundings.h"

namespace tarvane {

pdf::Surroundings PdfSurroundings::For() {
  return {.messages = this,
          .now =
              [this] {
                const DateTime now = host_.Now();
                return pdf::CalendarTime{now.year, now.month, now.day, now.hour, now.minute, now.second};
              },
          .view = [this](const std::string& path) { host_.Launch(path); },
          .program_folder = folder_.string()};
}

void PdfSurroundings::Show(const pdf::Message& message) {
  host_.Message(message.title, message.text,
                message.icon == pdf::Icon::kStop ? Icon::kError : Icon::kInformation);
}

}  // namespace tarvane
