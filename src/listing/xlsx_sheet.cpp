#include "listing/xlsx_sheet.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <utility>

#include "listing/cell_form.h"
#include "listing/fresh_file.h"
#include "text/fault.h"
#include "text/utf8.h"

namespace tarvane::listing {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kWidest = 60;  // characters; longer texts go on behind the edge
constexpr double kMargin = 1.5;
constexpr double kBold = 1.15;  // how much wider a bold heading is

std::string TemporaryFolder(const fs::path& file) {
  std::error_code error;
  const fs::path folder = fs::temp_directory_path(error);
  if (!error) return folder.string();
  return file.has_parent_path() ? file.parent_path().string() : ".";
}

std::size_t LongestLine(std::string_view text) {
  std::size_t longest = 0;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    longest = std::max(longest, CountCharacters(text.substr(0, end)));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return longest;
}

std::uint32_t Number(std::string_view bytes, std::size_t at, std::size_t size) {
  std::uint32_t number = 0;
  for (std::size_t i = size; i > 0; --i) number = number << 8 | static_cast<unsigned char>(bytes[at + i - 1]);
  return number;
}

struct PackedPart {
  std::string name;
  std::uint32_t size = 0;  // unpacked
};

// The contents of a packed file, as its end lists them; none where it has no such list.
std::vector<PackedPart> PackedParts(const fs::path& path) {
  constexpr std::size_t kMostTail = 65536;
  constexpr std::size_t kEnd = 22;
  constexpr std::size_t kEntry = 46;
  std::ifstream in(path, std::ios::binary | std::ios::ate);
  const auto size = static_cast<std::size_t>(std::max<std::streamoff>(in.tellg(), 0));
  std::string tail(std::min(size, kMostTail), '\0');
  in.seekg(static_cast<std::streamoff>(size - tail.size()));
  in.read(tail.data(), static_cast<std::streamsize>(tail.size()));
  if (!in || tail.size() < kEnd) return {};
  const std::size_t end = tail.size() - kEnd;
  const std::size_t length = Number(tail, end + 12, 4);
  if (!std::string_view(tail).substr(end).starts_with("PK\5\6") || length > end) return {};
  std::vector<PackedPart> parts;
  for (std::size_t at = end - length; at + kEntry <= end;) {
    const std::size_t name = Number(tail, at + 28, 2);
    parts.push_back({tail.substr(at + kEntry, name), Number(tail, at + 24, 4)});
    at += kEntry + name + Number(tail, at + 30, 2) + Number(tail, at + 32, 2);
  }
  return parts;
}

}  // namespace

XlsxSheet::XlsxSheet(const fs::path& path, fs::path file, std::vector<std::string> headings,
                     std::vector<bool> names_things)
    : path_(path),
      file_(std::move(file)),
      temporary_(TemporaryFolder(file_)),
      headings_(std::move(headings)),
      names_things_(std::move(names_things)),
      widths_(headings_.size()) {
  if (headings_.size() > LXW_COL_MAX) {
    throw Fault("A spreadsheet holds at most " + std::to_string(LXW_COL_MAX) + " columns.");
  }
  errno = 0;
  lxw_workbook_options options{};
  options.constant_memory = LXW_TRUE;
  options.tmpdir = temporary_.data();
  book_ = workbook_new_opt(path_.c_str(), &options);
  sheet_ = book_ == nullptr ? nullptr : workbook_add_worksheet(book_, nullptr);
  if (sheet_ == nullptr) {
    if (book_ != nullptr) lxw_workbook_free(book_);
    FreshFile::Fail(file_, errno, temporary_);
  }
  constexpr std::array<const char*, 4> kFormats = {nullptr, "0.0", "0.00", "0.000"};
  for (std::size_t decimals = 1; decimals < kFormats.size(); ++decimals) {
    formats_[decimals] = workbook_add_format(book_);
    format_set_num_format(formats_[decimals], kFormats[decimals]);
  }
  lxw_format* bold = workbook_add_format(book_);
  format_set_bold(bold);
  for (std::size_t column = 0; column < headings_.size(); ++column) {
    WriteText(static_cast<int>(column), headings_[column], bold);
    widths_[column] = static_cast<std::size_t>(static_cast<double>(widths_[column]) * kBold);
  }
  ++row_;
}

XlsxSheet::~XlsxSheet() {
  if (book_ == nullptr) return;
  // The library closes it only where the workbook is packed.
  if (sheet_->optimize_tmpfile != nullptr) std::fclose(std::exchange(sheet_->optimize_tmpfile, nullptr));
  lxw_workbook_free(book_);
}

void XlsxSheet::Widen(int column, std::string_view text) {
  std::size_t& width = widths_[static_cast<std::size_t>(column)];
  // Bytes are never fewer than characters.
  if (text.size() > width && width < kWidest) width = std::max(width, std::min(LongestLine(text), kWidest));
}

void XlsxSheet::WriteText(int column, const std::string& text, lxw_format* format) {
  const std::string& held = SheetText(text, changed_);
  Widen(column, held);
  const lxw_error error =
      worksheet_write_string(sheet_, row_, static_cast<lxw_col_t>(column), held.c_str(), format);
  if (error == LXW_NO_ERROR) return;
  if (error == LXW_ERROR_MAX_STRING_LENGTH_EXCEEDED) {
    throw Fault("Row " + std::to_string(row_) + " has a text under \"" +
                headings_[static_cast<std::size_t>(column)] +
                "\" that is too long for a spreadsheet (32,767 characters). Save the list as comma "
                "separated values (.csv) instead.");
  }
  throw Fault(file_.string() + " could not be written: " + lxw_strerror(error) + ".");
}

void XlsxSheet::AddRow(std::span<const std::string> cells) {
  for (std::size_t at = 0; at < cells.size(); ++at) {
    const std::string& text = cells[at];
    const int column = static_cast<int>(at);
    const SheetCell cell = CellOf(text, names_things_[at]);
    if (cell.kind == SheetCell::Kind::kText) WriteText(column, text, nullptr);
    if (cell.kind != SheetCell::Kind::kNumber) continue;
    Widen(column, text);
    const auto decimals = static_cast<std::size_t>(cell.decimals);
    lxw_format* format = decimals < formats_.size() ? formats_[decimals] : nullptr;
    worksheet_write_number(sheet_, row_, static_cast<lxw_col_t>(column), cell.number, format);
  }
  ++row_;
}

void XlsxSheet::CheckRoom() {
  if (std::ferror(sheet_->optimize_tmpfile) != 0) FreshFile::Fail(file_, ENOSPC, temporary_);
}

// Widths stand in front of the rows in the sheet, but the library puts the two together at the end.
void XlsxSheet::SetWidths() {
  for (std::size_t column = 0; column < widths_.size(); ++column) {
    const auto at = static_cast<lxw_col_t>(column);
    worksheet_set_column(sheet_, at, at, static_cast<double>(widths_[column]) + kMargin, nullptr);
  }
}

// The library copies the rows once more and doesn't look whether there was room for them.
void XlsxSheet::ReserveRoom(std::int64_t bytes) const {
  std::string name = (fs::path(temporary_) / "tarvane-XXXXXX").string();
  const int handle = ::mkostemp(name.data(), O_CLOEXEC);
  if (handle < 0) FreshFile::Fail(file_, errno, temporary_);
  ::unlink(name.c_str());
  const int error = ::fallocate(handle, 0, 0, bytes) == 0 ? 0 : errno;
  ::close(handle);
  if (error == ENOSPC || error == EDQUOT || error == EFBIG) FreshFile::Fail(file_, error, temporary_);
}

void XlsxSheet::CheckPacked(std::int64_t rows_size) const {
  constexpr std::string_view kSheet = "xl/worksheets/sheet1.xml";
  bool whole = false;
  for (const PackedPart& part : PackedParts(path_)) {
    if (part.size == 0) FreshFile::Fail(file_, 0, temporary_);
    whole = whole || (part.name == kSheet && part.size > rows_size);
  }
  if (!whole) FreshFile::Fail(file_, 0, temporary_);
}

void XlsxSheet::Finish() {
  constexpr std::int64_t kOtherParts = 65536;
  SetWidths();
  lxw_worksheet_write_single_row(sheet_);
  std::fflush(sheet_->optimize_tmpfile);
  CheckRoom();
  const std::int64_t rows_size = std::ftell(sheet_->optimize_tmpfile);
  ReserveRoom(rows_size + kOtherParts);
  errno = 0;
  const lxw_error error = workbook_close(std::exchange(book_, nullptr));
  if (error == LXW_NO_ERROR) return CheckPacked(rows_size);
  if (errno != 0) FreshFile::Fail(file_, errno);
  throw Fault(file_.string() + " could not be written: " + lxw_strerror(error) + ".");
}

}  // namespace tarvane::listing
