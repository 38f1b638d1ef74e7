#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "pdf/file_access.h"

namespace tarvane::pdf {

// The widths of a font's characters by code, for a font size of 1000; 0 for a code without one.
// Entry 0 isn't a width: code 0 stands outside the table.
class WidthTable {
 public:
  WidthTable() { widths_[0] = kOutside; }

  void Set(int code, int width) { widths_[static_cast<size_t>(code)] = width; }
  int64_t At(int code) const { return widths_[static_cast<size_t>(code)]; }
  // The sum over WinAnsi codes. Faults for code 0.
  int64_t Sum(std::string_view codes) const;
  // The sum over a text in UTF-8, taken to WinAnsi first. Faults for code 0.
  int64_t SumOfText(std::string_view utf8) const;

 private:
  // The sum, and in `bits` all the bits that stand in any of the bytes.
  int64_t AddUp(std::string_view bytes, uint64_t& bits) const;

  // Larger than what thirty million characters add up to: tells that code 0 may be in a text.
  static constexpr int64_t kOutside = int64_t{1} << 40;

  std::array<int64_t, 256> widths_{};  // as wide as the sum: measuring is a load and an addition a character
};

// Reads the encoded characters of a metric file's text, up to "EndCharMetrics" or the first unencoded
// character. Lines that hold no code and width are passed over. Never faults.
WidthTable ReadWidths(std::string_view metric_file);
// The same file by the names of its characters: the widths that readers find for WinAnsi codes. A font with
// characters of its own has no such names and is read as above.
WidthTable ReadWidthsByName(std::string_view metric_file);

// A folder of metric files: the fonts of a document, and their widths.
//
// A file is read when its font is first measured and again when it has changed on disk. Looking whether it
// has costs more than measuring, and is done once in some tens of microseconds: a change is seen by every
// measurement that starts later than that after it.
class FontFolder {
 public:
  explicit FontFolder(std::string folder = "") : folder_(std::move(folder)) {}

  // Takes the metric files of `folder` for the fonts, in the order of their names. Without any, or without a
  // folder, everything stays as it was.
  void Load(const std::string& folder);

  // Whether widths go by the names of characters or, as at first, by the codes of the metric files.
  void MeasureByName(bool by_name);

  const std::string& folder() const { return folder_; }
  // What the metric files are called, ".afm" (or whatever the last four characters are) left out.
  const std::vector<std::string>& names() const { return names_; }
  // The place of `name` in names(): the name itself, or the one that differs by hyphens alone ("TimesItalic"
  // and "Times-Italic"); 0, the first, for any other.
  int NumberOf(std::string_view name) const;
  // The widths of the font, valid until the next call. Faults without a metric file for it.
  const WidthTable& Widths(std::string_view name);

 private:
  struct Font {
    std::string name;
    std::filesystem::path path;
    FileStamp stamp;
    bool settled = false;    // the stamp is old enough that another change would show in it
    uint64_t looked_at = 0;  // Ticks()
    WidthTable widths;
  };

  Font& FontOf(std::string_view name);
  int Find(std::string_view name) const;  // -1 for none
  void Refresh(Font& font);

  std::string folder_;
  bool by_name_ = false;
  std::vector<std::string> names_;
  std::vector<std::filesystem::path> paths_;  // beside names_
  std::vector<Font> read_;
  size_t last_ = 0;  // in read_: most measurements are of the font of the one before
};

}  // namespace tarvane::pdf
