#include <QTextDocument>
#include <QTextList>
#include <QTextTable>
#include <algorithm>

#include "desktop/rich_text_formats.h"
#include "desktop/text.h"

namespace tarvane::desktop {

using rich_text::CharStyle;
using rich_text::Document;
using rich_text::Paragraph;

namespace {

// The outermost table around the block; null outside tables. Tables within its cells are read as their texts.
const QTextTable* TableOf(const QTextBlock& block) {
  const QTextTable* table = nullptr;
  for (QTextFrame* frame = block.document()->frameAt(block.position()); frame != nullptr;
       frame = frame->parentFrame()) {
    if (const auto* found = qobject_cast<const QTextTable*>(frame)) table = found;
  }
  return table;
}

int Told(const QTextFormat& format, int property, int otherwise) {
  return format.hasProperty(property) ? format.intProperty(property) : otherwise;
}

constexpr int kUsualCell = 2 * rich_text::kTwipsPerInch;
constexpr int kAllSides = 15;

}  // namespace

Document RichTextReader::Read(const QTextBlock& first, const QTextBlock& last, bool with_tables) {
  document_ = {};
  document_.fonts.clear();
  document_.paragraphs.clear();
  document_.paragraph_styles.clear();
  document_.runs.clear();
  table_ = nullptr;
  for (QTextBlock block = first; block.isValid(); block = block.next()) {
    Paragraph paragraph;
    paragraph.begin = static_cast<std::uint32_t>(document_.text.size());
    const rich_text::ParagraphStyle style = formats_.FromQt(block.blockFormat());
    const auto known = std::ranges::find(document_.paragraph_styles, style);
    paragraph.style = static_cast<std::uint32_t>(known - document_.paragraph_styles.begin());
    if (known == document_.paragraph_styles.end()) document_.paragraph_styles.push_back(style);
    if (with_tables) PutInTable(block, paragraph);
    document_.paragraphs.push_back(paragraph);
    ReadText(block);
    if (block == last) break;
    BeginRun(formats_.FromQt(block.charFormat(), usual_, document_));
    document_.text += '\n';
  }
  if (document_.text.empty()) {
    document_.runs = {{0, formats_.FromQt(first.charFormat(), usual_, document_)}};
  }
  return std::move(document_);
}

void RichTextReader::BeginRun(const CharStyle& style) {
  if (!document_.runs.empty() && document_.runs.back().style == style) return;
  document_.runs.push_back({static_cast<std::uint32_t>(document_.text.size()), style});
}

void RichTextReader::ReadText(const QTextBlock& block) {
  // What counts a list is no part of the text that Qt keeps.
  QString lead;
  if (const QTextList* list = block.textList()) {
    const bool is_counted = list->format().style() <= QTextListFormat::ListDecimal;
    lead = (is_counted ? list->itemText(block) : QString(QChar(0x2022))) + '\t';
  }
  for (auto at = block.begin(); !at.atEnd(); ++at) {
    const QTextFragment fragment = at.fragment();
    const QTextCharFormat format = fragment.charFormat();
    const QString text = std::exchange(lead, {}) + fragment.text();
    const rich_text::Picture* picture =
        format.isImageFormat() ? pictures_.Find(format.toImageFormat().name()) : nullptr;
    QString kept;
    kept.reserve(text.size());
    int pictures = 0;
    for (const QChar unit : text) {
      const bool is_picture = unit == QChar::ObjectReplacementCharacter;
      if (is_picture ? picture == nullptr : unit < u' ' && unit != u'\t') {
        left_out_ = true;
        continue;
      }
      kept += unit;
      if (is_picture) ++pictures;
    }
    if (kept.isEmpty()) continue;
    BeginRun(formats_.FromQt(format, usual_, document_));
    document_.text += FromQt(kept);
    for (int i = 0; i < pictures; ++i) document_.pictures.push_back(*picture);
  }
}

void RichTextReader::PutInTable(const QTextBlock& block, Paragraph& paragraph) {
  const QTextTable* table = TableOf(block);
  const QTextTable* former = std::exchange(table_, table);
  if (table == nullptr) return;
  const QTextTableCell cell = table->cellAt(block.position());
  const bool begins_row = table != former || cell.row() != row_;
  const bool begins_cell = begins_row || cell.column() != column_;
  row_ = cell.row();
  column_ = cell.column();
  const QTextCharFormat format = cell.format();
  if (begins_row) document_.rows.push_back({Told(format, kRowLeft, 0), {}});
  rich_text::TableRow& row = document_.rows.back();
  if (begins_cell) {
    const int left = row.cells.empty() ? row.left : row.cells.back().right;
    row.cells.push_back({Told(format, kCellRight, left + kUsualCell * cell.columnSpan()),
                         static_cast<std::uint8_t>(Told(format, kCellBorders, kAllSides))});
  }
  paragraph.row = static_cast<std::int32_t>(document_.rows.size()) - 1;
  paragraph.cell = static_cast<std::uint32_t>(row.cells.size()) - 1;
}

}  // namespace tarvane::desktop
