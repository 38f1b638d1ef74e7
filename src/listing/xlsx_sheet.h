#pragma once

#include <xlsxwriter.h>

#include <array>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tarvane::listing {

// A workbook of one sheet that is written row by row and holds one row at a time. What it gathers lies in
// unnamed files of the folder for temporary files until Finish packs it.
//
// Faults name `file` and the cause; where there is no room for what is gathered, that folder too.
class XlsxSheet {
 public:
  // The most rows beneath the heading.
  static constexpr std::int64_t kMostRows = LXW_ROW_MAX - 1;

  // Writes to `path`; `file` is what it is called in faults. A column whose heading names things holds texts
  // only.
  XlsxSheet(const std::filesystem::path& path, std::filesystem::path file, std::vector<std::string> headings,
            std::vector<bool> names_things);
  ~XlsxSheet();
  XlsxSheet(const XlsxSheet&) = delete;
  XlsxSheet& operator=(const XlsxSheet&) = delete;

  void AddRow(std::span<const std::string> cells);
  // Faults where the rows so far found no room.
  void CheckRoom();
  // Nothing can be added afterwards.
  void Finish();

 private:
  void WriteText(int column, const std::string& text, lxw_format* format);
  void Widen(int column, std::string_view text);
  void SetWidths();
  void ReserveRoom(std::int64_t bytes) const;
  void CheckPacked(std::int64_t rows_size) const;

  std::filesystem::path path_;
  std::filesystem::path file_;
  std::string temporary_;  // the folder
  std::vector<std::string> headings_;
  std::vector<bool> names_things_;
  std::vector<std::size_t> widths_;  // in characters
  lxw_workbook* book_ = nullptr;
  lxw_worksheet* sheet_ = nullptr;
  std::array<lxw_format*, 4> formats_ = {};  // by decimals; null for none
  lxw_row_t row_ = 0;
  std::string changed_;
};

}  // namespace tarvane::listing
