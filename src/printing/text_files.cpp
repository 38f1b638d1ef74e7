#include "printing/text_files.h"

#include <algorithm>
#include <string>
#include <system_error>

#include "rich_text/code_pages.h"
#include "rich_text/rtf.h"
#include "store/data_files.h"
#include "text/fault.h"
#include "text/fold.h"
#include "text/utf8.h"

namespace tarvane::printing {
namespace {

constexpr std::uintmax_t kMostBytes = 50'000'000;

bool IsUtf8(std::string_view bytes) {
  for (std::size_t at = 0; at < bytes.size();) {
    const DecodedCharacter next = DecodeCharacter(bytes, at);
    if (next.character >= kBadByte) return false;
    at += next.length;
  }
  return true;
}

// Older programs write texts in Western Europe's code page.
std::string FromWestern(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size() + bytes.size() / 8);
  for (const char byte : bytes) {
    rich_text::AppendUtf8(text,
                          rich_text::DecodeByte(rich_text::kWesternPage, static_cast<unsigned char>(byte)));
  }
  return text;
}

}  // namespace

rich_text::Document OpenTextFile(const std::filesystem::path& file, const rich_text::CharStyle& style,
                                 std::string_view font) {
  const std::string name = file.string();
  std::error_code error;
  const std::uintmax_t size = std::filesystem::file_size(file, error);
  if (!error && size > kMostBytes) throw Fault("This file is larger than 50 MB and isn't opened: " + name);
  const std::optional<std::string> bytes = ReadFile(file);
  if (!bytes) throw Fault("This file isn't there: " + name);
  if (rich_text::LooksLikeRtf(*bytes)) return rich_text::ReadRtf(*bytes);
  if (bytes->find('\0') != std::string::npos) throw Fault("This file holds no text: " + name);
  const std::string_view text = WithoutByteOrderMark(*bytes);
  return rich_text::FromPlainText(IsUtf8(text) ? std::string(text) : FromWestern(text), style, font);
}

}  // namespace tarvane::printing
