#include "catalogues/price_list/zip_parts.h"

#include <zlib.h>

#include <cstdint>

#include "catalogues/price_list/price_sheet.h"
#include "text/fault.h"

namespace tarvane::catalogues {

namespace {

constexpr std::string_view kLocalMark = "PK\x03\x04";
constexpr std::string_view kEntryMark = "PK\x01\x02";
constexpr std::string_view kEndMark = "PK\x05\x06";
constexpr std::size_t kLocalBytes = 30;
constexpr std::size_t kEntryBytes = 46;
constexpr std::size_t kEndBytes = 22;
constexpr std::size_t kMostParts = 2000;

[[noreturn]] void FailBroken() { throw Fault("the file is broken or not complete"); }

// Numbers are stored with the lowest byte first.
std::uint32_t Number(std::string_view bytes, std::size_t at, std::size_t width) {
  if (at > bytes.size() || width > bytes.size() - at) FailBroken();
  std::uint32_t number = 0;
  for (std::size_t i = width; i > 0; --i)
    number = number << 8U | static_cast<unsigned char>(bytes[at + i - 1]);
  return number;
}

std::string_view Slice(std::string_view bytes, std::size_t at, std::size_t size) {
  if (at > bytes.size() || size > bytes.size() - at) FailBroken();
  return bytes.substr(at, size);
}

void CheckMark(std::string_view bytes, std::size_t at, std::string_view mark) {
  if (Slice(bytes, at, mark.size()) != mark) FailBroken();
}

std::size_t FindEnd(std::string_view bytes) {
  const std::size_t end = bytes.rfind(kEndMark);
  if (end == std::string_view::npos || bytes.size() - end < kEndBytes) FailBroken();
  if (end + kEndBytes + Number(bytes, end + 20, 2) != bytes.size()) FailBroken();
  return end;
}

std::string Inflate(std::string_view packed, std::size_t size) {
  std::string text(size, '\0');
  z_stream stream{};
  if (inflateInit2(&stream, -MAX_WBITS) != Z_OK) throw Fault("there isn't enough memory for it");
  // The library writes nothing through this pointer.
  stream.next_in = const_cast<Bytef*>(reinterpret_cast<const Bytef*>(packed.data()));
  stream.avail_in = static_cast<uInt>(packed.size());
  stream.next_out = reinterpret_cast<Bytef*>(text.data());
  stream.avail_out = static_cast<uInt>(size);
  const int code = inflate(&stream, Z_FINISH);
  const bool whole = code == Z_STREAM_END && stream.avail_out == 0;
  inflateEnd(&stream);
  if (!whole) FailBroken();
  return text;
}

}  // namespace

bool ZipParts::IsZip(std::string_view bytes) { return bytes.starts_with(kLocalMark); }

ZipParts::ZipParts(std::string_view bytes) {
  const std::size_t end = FindEnd(bytes);
  const std::size_t count = Number(bytes, end + 10, 2);
  if (count > kMostParts) throw Fault("it holds more than a price list may");
  std::size_t at = Number(bytes, end + 16, 4);
  for (std::size_t i = 0; i < count; ++i) at += AddEntry(bytes, at);
  std::size_t unpacked = 0;
  for (const auto& [name, part] : parts_) unpacked += part.size;
  if (unpacked > price_limit::kUnpackedBytes) throw Fault("it unpacks to more than a price list may hold");
}

// The bytes of the directory's entry itself.
std::size_t ZipParts::AddEntry(std::string_view bytes, std::size_t at) {
  constexpr unsigned kProtected = 1;
  constexpr std::uint32_t kPlain = 0;
  constexpr std::uint32_t kDeflated = 8;
  CheckMark(bytes, at, kEntryMark);
  const std::uint32_t method = Number(bytes, at + 10, 2);
  const std::size_t packed = Number(bytes, at + 20, 4);
  const std::size_t unpacked = Number(bytes, at + 24, 4);
  const std::size_t name = Number(bytes, at + 28, 2);
  const std::size_t local = Number(bytes, at + 42, 4);
  if ((Number(bytes, at + 8, 2) & kProtected) != 0) throw Fault("it is protected by a password");
  if (method != kPlain && method != kDeflated) throw Fault("it is packed in a way that isn't known here");
  if (method == kPlain && packed != unpacked) FailBroken();
  CheckMark(bytes, local, kLocalMark);
  const std::size_t data = local + kLocalBytes + Number(bytes, local + 26, 2) + Number(bytes, local + 28, 2);
  parts_[std::string(Slice(bytes, at + kEntryBytes, name))] = {Slice(bytes, data, packed), unpacked,
                                                               method == kPlain};
  return kEntryBytes + name + Number(bytes, at + 30, 2) + Number(bytes, at + 32, 2);
}

std::string ZipParts::Read(std::string_view part) const {
  const auto found = parts_.find(part);
  if (found == parts_.end()) return "";
  const auto& [packed, size, plain] = found->second;
  if (plain) return std::string(packed);
  return Inflate(packed, size);
}

}  // namespace tarvane::catalogues
