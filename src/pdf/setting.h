#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "text_number/text_number.h"

namespace tarvane::pdf {

// A number as messages name it: in plain decimals, and in short where those would be hundreds, or where it is
// no number at all.
std::string ShortText(double number);

// The value of a setting as a caller gives it: a number or a text. Which of them a setting takes, and what
// becomes of the others, is told where it is set.
class Setting {
 public:
  // NOLINTBEGIN(google-explicit-constructor): callers write the bare value.
  Setting(int number) : value_(static_cast<double>(number)) {}
  Setting(double number) : value_(number) {}
  Setting(std::string text) : value_(std::move(text)) {}
  Setting(const char* text) : value_(std::string(text)) {}
  // NOLINTEND(google-explicit-constructor)

  bool IsNumber() const { return std::holds_alternative<double>(value_); }
  // The number; nothing for a text.
  std::optional<double> Number() const {
    return IsNumber() ? std::optional(std::get<double>(value_)) : std::nullopt;
  }
  // The text, or the number as text.
  std::string Text() const {
    return IsNumber() ? ShortText(std::get<double>(value_)) : std::get<std::string>(value_);
  }

 private:
  std::variant<double, std::string> value_;
};

// Red, green and blue, each 0 to 255.
using Rgb = std::array<double, 3>;

// A colour as a caller gives it: red, green and blue; a text of "#" and hexadecimal digits; or one number,
// red in its lowest eight bits, then green, then blue.
class Color {
 public:
  // NOLINTBEGIN(google-explicit-constructor): as with Setting.
  Color(Rgb rgb) : value_(rgb) {}
  Color(double red, double green, double blue) : value_(Rgb{red, green, blue}) {}
  Color(int number) : value_(static_cast<double>(number)) {}
  Color(double number) : value_(number) {}
  Color(std::string text) : value_(std::move(text)) {}
  Color(const char* text) : value_(std::string(text)) {}
  // NOLINTEND(google-explicit-constructor)

  // The colour, each part within 0 to 255; nothing for a text without "#". A short text is padded with zeros
  // on the left, of a long one the last six digits count; what is no hexadecimal digit ends its pair.
  std::optional<Rgb> Parts() const;
  // The text that it was given as; empty for the other forms.
  std::string Text() const;

 private:
  std::variant<Rgb, std::string, double> value_;
};

// The operator that sets `rgb`: three decimals each, and `suffix` ("rg" or "RG").
std::string ColorOperator(const Rgb& rgb, std::string_view suffix);

}  // namespace tarvane::pdf
