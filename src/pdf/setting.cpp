#include "pdf/setting.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "pdf/line_buffer.h"

namespace tarvane::pdf {
namespace {

constexpr double kLargestPart = 255;

double HexPair(std::string_view pair) {
  int value = 0;
  std::from_chars(pair.data(), pair.data() + pair.size(), value, 16);
  return std::max(value, 0);
}

Rgb PartsOfText(std::string_view digits) {
  const std::string padded = "000000" + std::string(digits);
  const std::string_view last = std::string_view(padded).substr(padded.size() - 6);
  return {HexPair(last.substr(0, 2)), HexPair(last.substr(2, 2)), HexPair(last.substr(4, 2))};
}

Rgb PartsOfNumber(double number) {
  static constexpr double kLargestColor = 0xFFFFFF;
  const int bits = number > 0 ? static_cast<int>(std::min(number, kLargestColor)) : 0;
  return {static_cast<double>(bits & 255), static_cast<double>(bits >> 8 & 255),
          static_cast<double>(bits >> 16)};
}

double Within(double part) { return part > 0 ? std::min(part, kLargestPart) : 0; }

}  // namespace

std::string ShortText(double number) {
  static constexpr double kLargestPlain = 1e15;
  if (std::abs(number) < kLargestPlain) return NumberText(number);
  char text[32];
  return std::string(text, std::to_chars(text, text + sizeof text, number).ptr);
}

std::optional<Rgb> Color::Parts() const {
  if (const auto* rgb = std::get_if<Rgb>(&value_)) {
    return Rgb{Within((*rgb)[0]), Within((*rgb)[1]), Within((*rgb)[2])};
  }
  if (const auto* number = std::get_if<double>(&value_)) return PartsOfNumber(*number);
  const auto& text = std::get<std::string>(value_);
  if (!text.starts_with('#')) return std::nullopt;
  return PartsOfText(std::string_view(text).substr(1));
}

std::string Color::Text() const {
  const auto* text = std::get_if<std::string>(&value_);
  return text ? *text : "";
}

std::string ColorOperator(const Rgb& rgb, std::string_view suffix) {
  std::string out;
  for (const double part : rgb) {
    AppendFixed(out, part / kLargestPart, Mask::k0_000);
    out += ' ';
  }
  out += suffix;
  return out;
}

}  // namespace tarvane::pdf
