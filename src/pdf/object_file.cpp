#include "pdf/object_file.h"

#include <charconv>

#include "pdf/file_access.h"
#include "pdf/line_buffer.h"

namespace tarvane::pdf {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

std::string TenDigits(int64_t offset) {
  std::string digits = std::to_string(offset);
  if (digits.size() < 10) digits.insert(0, 10 - digits.size(), '0');
  return digits;
}

}  // namespace

void ObjectFile::Open(const std::string& path) {
  Close();
  file_.clear();
  file_.rdbuf()->pubsetbuf(nullptr, 0);  // the pending bytes are buffer enough
  file_.open(ToPath(path), std::ios::binary | std::ios::trunc);
  put_ = 0;
  from_the_start_ = false;
  written_ = false;
}

void ObjectFile::Close() {
  Flush();
  file_.close();
}

void ObjectFile::Put(std::string_view bytes) {
  static constexpr size_t kEnough = size_t{64} * 1024;
  put_ += static_cast<int64_t>(bytes.size());
  if (pending_.size() + bytes.size() > kEnough) Flush();
  if (bytes.size() > kEnough) {
    file_.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  } else {
    pending_ += bytes;
  }
}

void ObjectFile::Flush() {
  file_.write(pending_.data(), static_cast<std::streamsize>(pending_.size()));
  pending_.clear();
}

void ObjectFile::Begin(bool strict) {
  strict_ = strict;
  from_the_start_ = file_.is_open() && put_ == 0;
  written_ = false;
  last_number_ = 0;
  running_offset_ = 0;
  offsets_.clear();
  Record({"%PDF-", "1.3", strict_ ? "\r\n%\xE2\xE3\xCF\xD3" : ""});
}

void ObjectFile::Write(std::initializer_list<std::string_view> pieces) { Record(pieces); }

void ObjectFile::Record(std::initializer_list<std::string_view> pieces) {
  for (const std::string_view piece : pieces) {
    Put(piece);
    running_offset_ += static_cast<int64_t>(piece.size());
  }
  Put(kLineEnd);
  if (strict_) running_offset_ += static_cast<int64_t>(kLineEnd.size());
  offsets_.push_back(running_offset_);
}

void ObjectFile::Finish(int catalog) {
  LineBuffer table;
  // One less than the entries that follow, but in a strict file.
  const int entries = last_number_ + (strict_ ? 1 : 0);
  table.Line("xref").Line("0 ", entries).Line("0000000000 65535 f");
  for (int number = 1; number <= last_number_ && number <= static_cast<int>(offsets_.size()); ++number) {
    table.Line(TenDigits(offsets_[number - 1]), " 00000 n");
  }
  table.Line("trailer").Line("<< /Size ", entries).Line("/Root ", catalog, " 0 R");
  table.Line("/Info 1 0 R").Line(">>").Line("startxref");
  table.Line(std::to_string(offsets_.empty() ? 0 : offsets_.back()));
  Record({table.bytes()});
  Put("%%EOF");
  Put(kLineEnd);
  Close();
  if (from_the_start_) written_ = file_.good();
  from_the_start_ = false;
}

}  // namespace tarvane::pdf
