#include "pdf/messages.h"

#include <array>

namespace tarvane::pdf {
namespace {

struct SettingTexts {
  std::string_view title;
  std::string_view text;
  std::string_view fallback;
};

// In the order of SettingError; the spelling and the blanks are the system's own.
constexpr std::array<SettingTexts, 14> kSettingTexts = {{
    {"Zoom Mode - ", "Incorrect Zoom Mode : ", "Focus will be set to full-page zoom"},
    {"Layout Mode - ", "Layout incorrect : ", "Layout will be set to simple single page."},
    {"Error in measurement unit - ", "Incorrect Unit of Measure : ", "Using centimeter "},
    {"Error in orientation - ", "Orientation set incorrectly: ", "Orientation set to portrait."},
    {"Format Page - ", "Format page set incorrectly : ", "Format page set to A4"},
    {"Format Page - ", "Format page set incorrectly : ", "Format page set to A4."},
    {"Text Color ", "Invalid HTMl color set", "Set color to  black."},
    {"Line Color - ", "Invalid line color set ", "Setting line color to black."},
    {"Draw Color - ", "Invalid Draw Color set ", "Using black."},
    {"Object Rectangle - ", "Draw Mode set incorrectly : ", "Draw mode set to normal"},
    {"Line Style - ", "Line style set incorrectly : ", "Line style set to solid."},
    {"Font name - ", "Font name set incorrectly : ", "Font set to Times New Roman."},
    {"Alignment - ", "Invalid alignment set. : ", "Using left alignment."},
    {"Number - ", "Number out of range : ", "Using the nearest one that PDF readers take."},
}};

struct ImageTexts {
  std::string_view title;
  std::string_view text;
  std::string_view before_path;  // with `after_path`, frames the path where it is told
  std::string_view after_path;
};

// In the order of ImageError. Only the first tells the path.
constexpr std::array<ImageTexts, 6> kImageTexts = {{
    {"Image File - ", "Invalid filename specified.", "\n", " does not have an extension"},
    {"Image File - ", "Impossible to include image in PDF file.\nOnly JPEG images are supported.", "", ""},
    {"File Image - ", "Cannot add image to PDF file.\nFile Image is non JPEG", "", ""},
    {"File Image - ", "Cannot add iamge to PDF file.\nInvalid JPEG marker", "", ""},
    {"File Image - ",
     "Cannot add image to PDF file.\nInvalid image resolution\nValid resolution is: 0, 1, 2.", "", ""},
    {"File Image - ", "Cannot add image to PDF file.\nIts colours are of a kind that PDF readers don't show.",
     "", ""},
}};

std::string Joined(std::initializer_list<std::string_view> pieces) {
  std::string out;
  for (const std::string_view piece : pieces) out += piece;
  return out;
}

}  // namespace

Message SettingMessage(SettingError error, std::string_view value) {
  const SettingTexts& texts = kSettingTexts[static_cast<size_t>(error)];
  return {Joined({texts.title, kWriterName}), Joined({texts.text, value, ".\n", texts.fallback})};
}

Message ImageMessage(ImageError error, std::string_view path) {
  const ImageTexts& texts = kImageTexts[static_cast<size_t>(error)];
  Message message{Joined({kWriterName, texts.title}), std::string(texts.text), Icon::kStop};
  if (!texts.after_path.empty()) message.text += Joined({texts.before_path, path, texts.after_path});
  return message;
}

Message NotWrittenMessage(std::string_view path) {
  return {Joined({"PDF file - ", kWriterName}), Joined({"The PDF file couldn't be written: ", path}),
          Icon::kStop};
}

Message GeneratedMessage() { return {Joined({"Generated PDF file - ", kWriterName}), "PDF file generated."}; }

}  // namespace tarvane::pdf
