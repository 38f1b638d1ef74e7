#include "catalogues/price_list/ods_reader.h"

#include <algorithm>
#include <string>

#include "catalogues/price_list/xml_walk.h"
#include "text/fault.h"
#include "text_number/text_number.h"

namespace tarvane::catalogues {

namespace {

// How often a cell or a row stands there.
std::int64_t Times(std::string_view repeated) {
  constexpr double kMost = 1e9;
  return static_cast<std::int64_t>(std::clamp(ParseLeading(repeated), 1.0, kMost));
}

class OdsContent : public XmlListener {
 public:
  explicit OdsContent(const KeepGoing& keep_going) : cells_(keep_going) {}
  SheetCells& cells() { return cells_; }

  void Begin(std::string_view element, const XmlAttributes& attributes) override {
    if (skipped_ > 0 || element == "annotation" || element == "tracked-changes") {
      ++skipped_;
    } else if (element == "table") {
      if (tables_++ == 0) row_ = 0;
    } else if (element == "table-row") {
      row_times_ = Times(attributes["number-rows-repeated"]);
      row_cells_ = cells_.size();
      column_ = 0;
    } else if (element == "table-cell" || element == "covered-table-cell") {
      BeginCell(attributes);
    } else if (element == "p" && in_cell_) {
      if (paragraphs_++ > 0) text_ += ' ';
    } else if (in_cell_ && (element == "s" || element == "tab" || element == "line-break")) {
      text_ += ' ';
    }
  }

  void End(std::string_view element) override {
    if (skipped_ > 0) {
      --skipped_;
    } else if (element == "table") {
      done_ = --tables_ == 0 && !cells_.empty();
    } else if (element == "table-row") {
      if (!done_) cells_.RepeatBelow(row_cells_, row_times_ - 1);
      row_ += row_times_;
    } else if (element == "table-cell" || element == "covered-table-cell") {
      EndCell();
    }
  }

  void Text(std::string_view text) override {
    if (in_cell_ && skipped_ == 0 && paragraphs_ > 0) text_ += text;
  }

 private:
  void BeginCell(const XmlAttributes& attributes) {
    in_cell_ = true;
    paragraphs_ = 0;
    text_.clear();
    type_ = attributes["value-type"];
    value_ = attributes[type_ == "date"      ? "date-value"
                        : type_ == "boolean" ? "boolean-value"
                        : type_ == "string"  ? "string-value"
                                             : "value"];
    formula_ = attributes["formula"];
    times_ = Times(attributes["number-columns-repeated"]);
  }

  void EndCell() {
    in_cell_ = false;
    const bool number =
        (type_ == "float" || type_ == "currency" || type_ == "percentage") && IsNumber(value_);
    const std::string text = number ? NumberText(ParseStrict(value_)) : CellText();
    if (!text.empty() && !done_) {
      for (std::int64_t i = 0; i < times_; ++i) cells_.Put(row_, column_ + i, text, number);
    }
    column_ += times_;
  }

  std::string CellText() const {
    if (type_ == "date") return value_.substr(0, value_.find('T'));
    if (type_ == "boolean") return value_ == "true" ? "TRUE" : "FALSE";
    if (type_ == "string" && text_.empty()) return value_;
    if (!text_.empty() || formula_.empty()) return text_;
    return std::string(1, '=').append(formula_, std::min(formula_.find('=') + 1, formula_.size()));
  }

  SheetCells cells_;
  int skipped_ = 0;  // depth within what isn't the sheet's own
  int tables_ = 0;
  bool done_ = false;
  std::int64_t row_ = 0;
  std::int64_t row_times_ = 1;
  std::size_t row_cells_ = 0;
  std::int64_t column_ = 0;
  bool in_cell_ = false;
  std::int64_t times_ = 1;
  int paragraphs_ = 0;
  std::string type_;
  std::string value_;
  std::string formula_;
  std::string text_;
};

}  // namespace

SheetCells ReadOds(const ZipParts& parts, const KeepGoing& keep_going) {
  OdsContent content(keep_going);
  WalkXml(parts.Read("content.xml"), content);
  return std::move(content.cells());
}

}  // namespace tarvane::catalogues
