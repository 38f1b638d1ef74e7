#pragma once

#include <string>
#include <string_view>

namespace tarvane::pdf {

inline constexpr std::string_view kWriterName = "tqrPDF 1.0";

enum class Icon { kInformation, kStop };

// A message box with one OK button. The text may have several lines, parted by "\n".
struct Message {
  std::string title;
  std::string text;
  Icon icon = Icon::kInformation;
};

// Where the writer's messages go.
class MessageSink {
 public:
  virtual ~MessageSink() = default;
  virtual void Show(const Message& message) = 0;
};

// The settings that are tested. Each has one message and one fallback.
enum class SettingError {
  kZoomMode,
  kLayoutMode,
  kUnit,
  kOrientation,
  kFormat,
  kFormatType,  // the format is no number at all
  kTextColor,
  kLineColor,
  kDrawColor,
  kDrawMode,
  kLineStyle,
  kFont,
  kAlignment,
  kNumber,  // a length, a place or an angle that no reader takes
};

// What is said of the bad `value` of a setting: the value, and the fallback that is taken.
Message SettingMessage(SettingError error, std::string_view value);

// The images that are refused; the last in strict mode only.
enum class ImageError {
  kNoExtension,
  kNotJpegName,
  kNotJpeg,
  kInvalidMarker,
  kInvalidResolution,
  kUnusualColors
};

// Why the image at `path` isn't in the document.
Message ImageMessage(ImageError error, std::string_view path);

// That the file is finished, and that the one at `path` couldn't be written.
Message GeneratedMessage();
Message NotWrittenMessage(std::string_view path);

}  // namespace tarvane::pdf
