#include <algorithm>
#include <array>
#include <utility>

#include "rich_text/rtf_reader.h"
#include "text/trim.h"
#include "text/utf8.h"

namespace tarvane::rich_text {

namespace {

constexpr std::string_view kFallbackFont = "Arial";
constexpr std::size_t kMostFonts = 4'096;
constexpr std::size_t kMostColors = 65'536;
constexpr std::size_t kLongestFontName = 256;

// Names of old systems for the part of a font that holds one script.
constexpr std::array<std::string_view, 8> kScripts = {" CE",     " Cyr",      " Greek",    " Tur",
                                                      " Baltic", " (Hebrew)", " (Arabic)", " (Vietnamese)"};

std::string_view WithoutScript(std::string_view name) {
  for (const std::string_view script : kScripts) {
    if (name.size() > script.size() && name.ends_with(script))
      return name.substr(0, name.size() - script.size());
  }
  return name;
}

}  // namespace

void RtfReader::BeginRow(const Argument&) {
  row_.left = 0;
  row_.cells.clear();
  cell_borders_ = 0;
  border_side_ = kNoSide;
}

void RtfReader::SetRowLeft(const Argument& argument) {
  const std::int32_t most = row_.cells.empty() ? kLongest : row_.cells.front().right;
  row_.left = std::min(argument.Length(), most);
}

void RtfReader::AddCell(const Argument& argument) {
  if (row_.cells.size() < kMostCells) {
    const std::int32_t left = row_.cells.empty() ? row_.left : row_.cells.back().right;
    row_.cells.push_back({std::max(left, argument.Length()), cell_borders_});
  }
  cell_borders_ = 0;
  border_side_ = kNoSide;
}

void RtfReader::SetBorder(const Argument& argument) {
  const int borders = argument.value != 0 ? cell_borders_ | border_side_ : cell_borders_ & ~border_side_;
  cell_borders_ = static_cast<std::uint8_t>(borders);
}

void RtfReader::EndOfCell(const Argument&) {
  if (InText()) EndParagraph(DocumentBuilder::Ending::kCell);
}

void RtfReader::EndOfRow(const Argument&) {
  if (!InText()) return;
  if (builder_.InParagraph()) EndParagraph(DocumentBuilder::Ending::kParagraph);
  builder_.EndRow(row_);
}

// A table in a cell becomes lines of that cell.
void RtfReader::EndOfNestedCell(const Argument&) {
  if (InText() && builder_.InParagraph()) PutCharacter('\t');
}

void RtfReader::EndOfNestedRow(const Argument&) {
  if (InText() && builder_.InParagraph()) EndParagraph(DocumentBuilder::Ending::kParagraph);
}

void RtfReader::SetFont(const Argument& argument) {
  if (state_.destination == Destination::kFontTable) {
    FinishFont();
    next_font_ = argument.number;
    state_.page = document_page_;
  } else {
    UseFont(argument.number);
  }
}

void RtfReader::UseFont(int number) {
  auto found = font_by_number_.find(number);
  if (found == font_by_number_.end()) found = font_by_number_.find(default_font_);
  if (fonts_.empty()) {
    state_.style.font = builder_.FontNumber(kFallbackFont);
    state_.page = document_page_;
    return;
  }
  FontEntry& font = found == font_by_number_.end() ? fonts_.front() : fonts_[found->second];
  if (font.document_font < 0) font.document_font = builder_.FontNumber(font.name);
  state_.style.font = static_cast<std::uint16_t>(font.document_font);
  state_.page = font.page != 0 ? font.page : document_page_;
}

void RtfReader::SetFontCharset(const Argument& argument) {
  if (state_.destination != Destination::kFontTable) return;
  const int page = PageOfCharset(argument.number);
  state_.page = page != 0 ? page : document_page_;
}

void RtfReader::SetFontPage(const Argument& argument) {
  if (state_.destination == Destination::kFontTable && argument.number > 0) state_.page = argument.number;
}

void RtfReader::PutFontName(std::string_view text) {
  next_font_page_ = state_.page;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find(';'), text.size());
    if (font_name_.size() < kLongestFontName) font_name_ += text.substr(0, end);
    if (end < text.size()) FinishFont();
    text.remove_prefix(std::min(end + 1, text.size()));
  }
}

void RtfReader::FinishFont() {
  std::string_view name = TrimSpaces(FirstBytes(TrimSpaces(font_name_), kLongestFontName));
  if (!name.empty() && fonts_.size() < kMostFonts) {
    int page = next_font_page_;
    if (page != document_page_) name = TrimSpaces(WithoutScript(name));
    if (page == kSymbolPage && name != "Symbol") page = kDingbatsPage;
    if (page == document_page_) page = 0;
    font_by_number_.try_emplace(next_font_, static_cast<std::uint16_t>(fonts_.size()));
    fonts_.push_back({std::string(name), page});
  }
  font_name_.clear();
}

void RtfReader::FinishColor() {
  if (colors_.size() < kMostColors) colors_.push_back(next_color_);
  next_color_ = Color{};
}

}  // namespace tarvane::rich_text
