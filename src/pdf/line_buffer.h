#pragma once

#include <charconv>
#include <string>
#include <string_view>

#include "text_number/text_number.h"

namespace tarvane::pdf {

// Appends `value` with the decimals of `mask`, as FormatNumber writes it but without its detours: a page
// holds hundreds of numbers.
void AppendFixed(std::string& out, double value, Mask mask);

// A number of a line that wants fixed decimals.
struct Fixed {
  double value;
  Mask mask = Mask::k0_00;
};

// Text gathered line by line, with "\r\n" behind each.
class LineBuffer {
 public:
  // One line, made of texts, whole numbers and Fixed numbers.
  template <typename... Pieces>
  LineBuffer& Line(const Pieces&... pieces) {
    (Append(pieces), ...);
    bytes_.append("\r\n", 2);
    return *this;
  }
  // What `other` holds, with no line end of its own.
  void Take(const LineBuffer& other) { bytes_ += other.bytes_; }

  void Clear() { bytes_.clear(); }
  bool empty() const { return bytes_.empty(); }
  size_t size() const { return bytes_.size(); }
  const std::string& bytes() const { return bytes_; }

 private:
  void Append(std::string_view text) { bytes_ += text; }
  void Append(const Fixed& number) { AppendFixed(bytes_, number.value, number.mask); }
  void Append(int number) { AppendWhole(number); }
  void Append(size_t number) { AppendWhole(number); }
  template <typename Number>
  void AppendWhole(Number number) {
    char digits[24];
    bytes_.append(digits, std::to_chars(digits, digits + sizeof digits, number).ptr);
  }

  std::string bytes_;
};

}  // namespace tarvane::pdf
