#include <QBuffer>
#include <QImageReader>
#include <QTextDocument>
#include <QTextTable>
#include <algorithm>
#include <cmath>
#include <set>

#include "desktop/rich_text_formats.h"
#include "desktop/text.h"

namespace tarvane::desktop {

using rich_text::CharStyle;
using rich_text::Picture;
using rich_text::TableRow;

namespace {

// Qt would begin a block at these, each one unit long.
QString WithoutBlockEnds(QString text) {
  for (QChar& unit : text) {
    if (unit == QChar::ParagraphSeparator) unit = QChar::LineSeparator;
    if (unit == u'\r' || unit == QChar(0xFDD0) || unit == QChar(0xFDD1)) unit = QChar::ReplacementCharacter;
  }
  return text;
}

QSize SizeOf(const Picture& picture, const RichTextFormats& formats) {
  constexpr int kMostPixels = 4000;
  const auto side = [&](int twips) {
    return std::clamp(static_cast<int>(std::lround(formats.Pixels(twips))), 1, kMostPixels);
  };
  return {side(picture.width), side(picture.height)};
}

constexpr int kCellPadding = 108;  // twips beside a cell's text, as on paper

int Column(const std::vector<int>& edges, int edge) {
  return static_cast<int>(std::ranges::lower_bound(edges, edge) - edges.begin());
}

}  // namespace

QImage ImageOf(const Picture& picture, const RichTextFormats& formats) {
  const QSize size = SizeOf(picture, formats);
  QByteArray bytes =
      QByteArray::fromRawData(picture.bytes.data(), static_cast<qsizetype>(picture.bytes.size()));
  QBuffer buffer(&bytes);
  QImageReader reader(&buffer, picture.format == Picture::Format::kPng ? "png" : "jpeg");
  const QSize own = reader.size();
  if (own.isValid() && own.width() > size.width()) reader.setScaledSize(size);
  QImage image = reader.read();
  if (!image.isNull()) return image;
  image = QImage(size, QImage::Format_RGB32);
  image.fill(Qt::lightGray);
  return image;
}

const QTextCharFormat& RichTextWriter::FormatOf(const CharStyle& style) {
  constexpr std::size_t kMostKnown = 32;
  const auto found =
      std::ranges::find(known_, style, [](const auto& pair) -> const CharStyle& { return pair.first; });
  if (found != known_.end()) return found->second;
  if (known_.size() == kMostKnown) known_.clear();
  return known_.emplace_back(style, formats_.ToQt(document_, style)).second;
}

// The number of the picture at `place`; places come in order.
std::size_t RichTextWriter::NextPicture(std::size_t place) {
  for (std::size_t at = document_.text.find(rich_text::kPictureSign, place_); at < place;
       at = document_.text.find(rich_text::kPictureSign, at + 1)) {
    ++pictures_to_place_;
  }
  place_ = place;
  return pictures_to_place_;
}

void RichTextWriter::WritePicture(QTextCursor& cursor, const QTextCharFormat& format) {
  const Picture& picture = document_.pictures[pictures_to_place_];
  const QSize size = SizeOf(picture, formats_);
  QTextImageFormat image;
  image.merge(format);
  image.setName(pictures_.Add(picture));
  image.setWidth(size.width());
  image.setHeight(size.height());
  cursor.insertText(QString(QChar::ObjectReplacementCharacter), image);
}

void RichTextWriter::WriteText(QTextCursor& cursor, std::string_view text, const QTextCharFormat& format) {
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t picture = std::min(text.find(rich_text::kPictureSign, at), text.size());
    if (picture > at) cursor.insertText(WithoutBlockEnds(ToQt(text.substr(at, picture - at))), format);
    if (picture == text.size()) return;
    NextPicture(static_cast<std::size_t>(text.data() - document_.text.data()) + picture);
    WritePicture(cursor, format);
    at = picture + rich_text::kPictureSign.size();
  }
}

void RichTextWriter::WriteBlock(QTextCursor& cursor, std::size_t paragraph) {
  const std::size_t end = document_.ParagraphEnd(paragraph);
  std::size_t at = document_.paragraphs[paragraph].begin;
  for (std::size_t run = document_.RunAt(at); at < end; ++run) {
    const std::size_t run_end =
        run + 1 < document_.runs.size() ? std::min<std::size_t>(end, document_.runs[run + 1].begin) : end;
    WriteText(cursor, std::string_view(document_.text).substr(at, run_end - at),
              FormatOf(document_.runs[run].style));
    at = run_end;
  }
}

void RichTextWriter::Write(QTextCursor& cursor, std::size_t first, std::size_t end) {
  bool in_block = true;
  for (std::size_t i = first; i < end;) {
    if (document_.paragraphs[i].row >= 0) {
      i = WriteTable(cursor, i, end);
      // Where no paragraph follows, one that is typed there looks like the last cell.
      cursor.setBlockCharFormat(FormatOf(document_.StyleAt(document_.ParagraphEnd(i - 1))));
      in_block = true;  // the one behind the table
      continue;
    }
    const QTextBlockFormat block = formats_.ToQt(document_.StyleOf(document_.paragraphs[i]));
    const QTextCharFormat format = FormatOf(document_.StyleAt(document_.ParagraphEnd(i)));
    if (in_block) {
      cursor.setBlockFormat(block);
      cursor.setBlockCharFormat(format);
    } else {
      cursor.insertBlock(block, format);
    }
    WriteBlock(cursor, i);
    in_block = false;
    ++i;
  }
}

// One column between any two edges of cells.
QTextTable* RichTextWriter::MakeTable(QTextCursor& cursor, int first_row, int end_row,
                                      std::vector<int>& edges) const {
  std::set<int> rights;
  int left = document_.rows[static_cast<std::size_t>(first_row)].left;
  for (int row = first_row; row < end_row; ++row) {
    const TableRow& each = document_.rows[static_cast<std::size_t>(row)];
    left = std::min(left, each.left);
    int right = each.left;
    for (const rich_text::TableCell& cell : each.cells) {
      right = std::max(right + 1, cell.right);
      rights.insert(right);
    }
  }
  edges.assign(rights.begin(), rights.end());
  QTextTableFormat format;
  format.setBorderCollapse(true);
  format.setBorder(0);
  format.setCellSpacing(0);
  format.setCellPadding(formats_.Pixels(60));  // above and below
  format.setLeftMargin(formats_.Pixels(left));
  QList<QTextLength> widths;
  for (int before = left; const int edge : edges) {
    widths.append(QTextLength(QTextLength::FixedLength, formats_.Pixels(edge - std::exchange(before, edge))));
  }
  format.setColumnWidthConstraints(widths);
  return cursor.insertTable(end_row - first_row, static_cast<int>(edges.size()), format);
}

namespace {

QTextTableCellFormat FormatOfCell(const TableRow& row, std::size_t cell) {
  constexpr std::pair<rich_text::Side, int> kSides[] = {
      {rich_text::kTopSide, QTextFormat::TableCellTopBorder},
      {rich_text::kLeftSide, QTextFormat::TableCellLeftBorder},
      {rich_text::kBottomSide, QTextFormat::TableCellBottomBorder},
      {rich_text::kRightSide, QTextFormat::TableCellRightBorder}};
  constexpr int kStyleBehindWidth = QTextFormat::TableCellTopBorderStyle - QTextFormat::TableCellTopBorder;
  QTextTableCellFormat format;
  for (const auto& [side, property] : kSides) {
    if ((row.cells[cell].borders & side) == 0) continue;
    format.setProperty(property, 1.0);
    format.setProperty(property + kStyleBehindWidth, static_cast<int>(QTextFrameFormat::BorderStyle_Solid));
  }
  format.setProperty(kCellRight, row.cells[cell].right);
  format.setProperty(kCellBorders, row.cells[cell].borders);
  format.setProperty(kRowLeft, row.left);
  return format;
}

}  // namespace

std::size_t RichTextWriter::WriteTable(QTextCursor& cursor, std::size_t first, std::size_t end) {
  const auto& paragraphs = document_.paragraphs;
  std::size_t behind = first;
  while (behind < end && paragraphs[behind].row >= 0) ++behind;
  const int first_row = paragraphs[first].row;
  std::vector<int> edges;
  QTextTable* table = MakeTable(cursor, first_row, paragraphs[behind - 1].row + 1, edges);
  for (std::size_t i = first; i < behind;) {
    const TableRow& row = document_.rows[static_cast<std::size_t>(paragraphs[i].row)];
    const int at_row = paragraphs[i].row - first_row;
    int column = 0;
    int right = row.left;
    for (std::size_t cell = 0; cell < row.cells.size(); ++cell) {
      right = std::max(right + 1, row.cells[cell].right);
      const bool is_last = cell + 1 == row.cells.size();
      const int next = is_last ? static_cast<int>(edges.size()) : Column(edges, right) + 1;
      if (next > column + 1) table->mergeCells(at_row, column, 1, next - column);
      QTextTableCell made = table->cellAt(at_row, column);
      const std::size_t begin = i;
      // The format of a cell is that of its first block as well.
      QTextCharFormat look = FormatOf(document_.StyleAt(document_.ParagraphEnd(i)));
      QTextTableCellFormat frame = FormatOfCell(row, cell);
      frame.setLeftPadding(formats_.Pixels(kCellPadding));
      frame.setRightPadding(formats_.Pixels(kCellPadding));
      look.merge(frame);
      made.setFormat(look);
      while (i < behind && paragraphs[i].row == paragraphs[begin].row && paragraphs[i].cell == cell) ++i;
      QTextCursor inside = made.firstCursorPosition();
      for (std::size_t paragraph = begin; paragraph < i; ++paragraph) {
        const QTextBlockFormat block = formats_.ToQt(document_.StyleOf(paragraphs[paragraph]));
        const QTextCharFormat format = FormatOf(document_.StyleAt(document_.ParagraphEnd(paragraph)));
        if (paragraph > begin) {
          inside.insertBlock(block, format);
        } else {
          inside.setBlockFormat(block);
        }
        WriteBlock(inside, paragraph);
      }
      column = next;
    }
  }
  cursor = table->lastCursorPosition();
  cursor.movePosition(QTextCursor::NextBlock);
  return behind;
}

// Within one block: its text is the same, so that places count alike.
void RichTextWriter::Style(QTextBlock block, std::size_t begin, std::size_t end) {
  QTextCursor cursor(block);
  for (std::size_t i = document_.ParagraphAt(begin); i < document_.paragraphs.size() && block.isValid();
       ++i, block = block.next()) {
    const std::size_t paragraph_begin = document_.paragraphs[i].begin;
    const std::size_t paragraph_end = document_.ParagraphEnd(i);
    if (paragraph_begin > end) return;
    cursor.setPosition(block.position());
    const QTextBlockFormat format = formats_.ToQt(document_.StyleOf(document_.paragraphs[i]));
    if (format.alignment() != block.blockFormat().alignment()) cursor.setBlockFormat(format);
    if (begin <= paragraph_end && (paragraph_end < end || end == document_.text.size())) {
      cursor.mergeBlockCharFormat(FormatOf(document_.StyleAt(paragraph_end)));
    }
    std::size_t at = paragraph_begin;
    for (std::size_t run = document_.RunAt(at); at < std::min(paragraph_end, end); ++run) {
      const std::size_t run_end = run + 1 < document_.runs.size()
                                      ? std::min<std::size_t>(paragraph_end, document_.runs[run + 1].begin)
                                      : paragraph_end;
      const QString text = ToQt(std::string_view(document_.text).substr(at, run_end - at));
      cursor.setPosition(cursor.position() + static_cast<int>(text.size()), QTextCursor::KeepAnchor);
      // A picture keeps what it is.
      if (run_end > begin) cursor.mergeCharFormat(FormatOf(document_.runs[run].style));
      cursor.setPosition(cursor.position());
      at = run_end;
    }
  }
}

}  // namespace tarvane::desktop
