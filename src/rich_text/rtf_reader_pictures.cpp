#include <algorithm>
#include <array>
#include <utility>

#include "rich_text/picture.h"
#include "rich_text/rtf_reader.h"

namespace tarvane::rich_text {

namespace {

constexpr std::uint8_t kNoDigit = 0xFF;

constexpr std::array<std::uint8_t, 256> kHexDigits = [] {
  std::array<std::uint8_t, 256> digits{};
  digits.fill(kNoDigit);
  for (std::uint8_t digit = 0; digit < 10; ++digit) digits['0' + digit] = digit;
  for (std::uint8_t digit = 10; digit < 16; ++digit) {
    digits['a' + digit - 10] = digit;
    digits['A' + digit - 10] = digit;
  }
  return digits;
}();

// One side on paper: what the file wants, or the pixels where it tells nothing.
std::int32_t SideOnPaper(int goal, int scale, int pixels) {
  constexpr int kWhole = 100;
  if (scale <= 0) scale = kWhole;
  const std::int64_t natural = goal > 0 ? goal : std::int64_t{pixels} * kTwipsPerPixel;
  // A first bound, so that the product can't overflow.
  const std::int64_t bounded = std::min<std::int64_t>(natural, std::int64_t{kLongest} * kWhole);
  return static_cast<std::int32_t>(std::clamp<std::int64_t>(bounded * scale / kWhole, 1, kLongest));
}

}  // namespace

// A drawn shape is a list of named properties; most are of no use here.
void RtfReader::EnterShapeProperty(const Argument& argument) {
  shape_property_.clear();
  EnterDestination(argument);
}

void RtfReader::EnterPicture(const Argument&) {
  const bool of_shape = state_.destination == Destination::kNowhere && shape_property_ == kShapePicture;
  if (!InText() && !of_shape) return;
  // Within the outermost group, or too deep, its end couldn't be told.
  if (depth_ < 2 || depth_ > saved_.size()) return;
  state_.destination = Destination::kPicture;
  picture_known_ = false;
  picture_ = Picture{};
  hex_digit_ = kNoDigit;
  goal_width_ = of_shape ? shape_right_ - shape_left_ : 0;
  goal_height_ = of_shape ? shape_bottom_ - shape_top_ : 0;
  scale_x_ = scale_y_ = 0;
}

void RtfReader::SetPictureFormat(const Argument& argument) {
  picture_known_ = true;
  picture_.format = static_cast<Picture::Format>(argument.value);
}

void RtfReader::PutHex(std::string_view digits) {
  if (!picture_known_) return;
  for (const char character : digits) {
    const std::uint8_t digit = kHexDigits[static_cast<unsigned char>(character)];
    if (digit == kNoDigit) continue;
    if (hex_digit_ == kNoDigit) {
      hex_digit_ = digit;
    } else {
      picture_.bytes += static_cast<char>(std::exchange(hex_digit_, kNoDigit) << 4 | digit);
    }
  }
}

void RtfReader::PutPictureBytes(std::string_view bytes) {
  if (picture_known_) picture_.bytes += bytes;
}

void RtfReader::FinishPicture() {
  if (std::exchange(picture_known_, false) && !picture_.bytes.empty() && state_.hidden == 0) {
    picture_.format = PictureFormat(picture_.bytes).value_or(picture_.format);
    const PixelSize pixels = PictureSize(picture_).value_or(PixelSize{});
    picture_.width = SideOnPaper(goal_width_, scale_x_, pixels.width);
    picture_.height = SideOnPaper(goal_height_, scale_y_, pixels.height);
    picture_.bytes.shrink_to_fit();
    if (break_pending_) BreakPage();
    builder_.Append(std::move(picture_), state_.style);
  }
  picture_ = Picture{};
}

}  // namespace tarvane::rich_text
