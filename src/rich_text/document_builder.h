#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "rich_text/document.h"

namespace tarvane::rich_text {

// Puts a document together from text and looks as they come. Runs and paragraphs are kept as a few bytes each
// until the number of each is known, so that even a text that changes its look with every letter needs little
// more memory than the document it becomes.
class DocumentBuilder {
 public:
  // `expected`: about how many bytes of text will come.
  explicit DocumentBuilder(std::size_t expected);

  enum class Ending : std::uint8_t { kParagraph, kCell };

  // `text`: valid UTF-8 without line ends and picture signs.
  void Append(std::string_view text, const CharStyle& style);
  void Append(Picture picture, const CharStyle& style);
  // Ends the paragraph; `style` is what the mark behind its last character looks like.
  void EndParagraph(const ParagraphStyle& paragraph, bool in_row, Ending ending, const CharStyle& style);
  // Makes the paragraphs since the row began a row, as far as `shape` has cells for them: cells that have no
  // shape join the last one, and shapes without a cell are left out.
  void EndRow(const TableRow& shape);

  std::uint16_t FontNumber(std::string_view name);
  // Whether the paragraph that isn't ended yet has any text.
  bool InParagraph() const { return document_.text.size() > paragraph_begin_; }
  // The paragraph that isn't ended yet, if it is empty, is left out, for ends of paragraphs are written
  // behind the last one too.
  Document Finish(const ParagraphStyle& last, const CharStyle& style) &&;

 private:
  void LogStyle(const CharStyle& style);
  void LogParagraph(const ParagraphStyle& paragraph, bool in_row, Ending ending);
  std::uint32_t StyleNumber(const ParagraphStyle& style);
  void BuildRuns();
  void BuildParagraphs();
  void BuildRow(std::size_t shape, std::size_t first_paragraph);

  Document document_;
  std::size_t paragraph_begin_ = 0;
  std::size_t last_run_begin_ = 0;
  CharStyle last_style_;
  std::size_t run_count_ = 0;
  std::vector<std::uint8_t> run_log_;
  std::vector<std::uint8_t> paragraph_log_;
  std::uint32_t last_paragraph_style_ = 0;
  std::size_t style_bytes_left_;
  std::vector<std::uint32_t> style_by_hash_;
  std::size_t paragraph_count_ = 0;
  bool row_begun_ = false;
  std::size_t cells_in_row_ = 0;
  std::size_t row_count_ = 0;
  std::vector<TableRow> shapes_;
};

}  // namespace tarvane::rich_text
