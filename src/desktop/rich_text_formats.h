#pragma once

#include <QImage>
#include <QString>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextFormat>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "rich_text/document.h"

class QTextDocument;
class QTextTable;

namespace tarvane::desktop {

// The pictures of an editor, by the names that Qt's text has for them. Names are never used twice, so that an
// undone picture comes back, and one that is pasted from elsewhere isn't taken for another.
class PictureNames {
 public:
  PictureNames();
  QString Add(const rich_text::Picture& picture);
  const rich_text::Picture* Find(const QString& name) const;  // null: none of these

 private:
  QString prefix_;
  std::map<QString, rich_text::Picture> pictures_;
};

// What the cells of Qt's tables keep of the model's, in twips and sides.
enum CellProperty { kCellRight = QTextFormat::UserProperty + 1, kCellBorders, kRowLeft };

// What Qt's text says where a look isn't told.
struct UsualStyle {
  rich_text::CharStyle style;
  std::string font = "Arial";
};

// Looks of characters and paragraphs, and the texts that have them, in Qt's terms and back. Qt's lengths are
// pixels of the screen.
class RichTextFormats {
 public:
  explicit RichTextFormats(int pixels_per_inch) : pixels_per_twip_(pixels_per_inch / 1440.0) {}

  double Pixels(double twips) const { return twips * pixels_per_twip_; }
  QTextCharFormat ToQt(const rich_text::Document& document, const rich_text::CharStyle& style) const;
  QTextBlockFormat ToQt(const rich_text::ParagraphStyle& style) const;
  rich_text::CharStyle FromQt(const QTextCharFormat& format, const UsualStyle& usual,
                              rich_text::Document& fonts) const;
  rich_text::ParagraphStyle FromQt(const QTextBlockFormat& format) const;

 private:
  int Twips(double pixels) const;

  double pixels_per_twip_;
};

// As large as it is shown; a grey box for one that can't be read.
QImage ImageOf(const rich_text::Picture& picture, const RichTextFormats& formats);

// Writes paragraphs into Qt's text at a cursor. Pictures stand there by their names alone.
class RichTextWriter {
 public:
  RichTextWriter(const RichTextFormats& formats, PictureNames& pictures, const rich_text::Document& document)
      : formats_(formats), pictures_(pictures), document_(document) {}

  // The paragraphs from `first` to before `end`, the first one in the cursor's block, which is empty. Tables
  // too; a block stands in front of a table that begins the text, and behind one that ends it.
  void Write(QTextCursor& cursor, std::size_t first, std::size_t end);
  // The looks of what stands there already, from `begin` to `end` in the model's text; `block` is that of the
  // paragraph in which it begins.
  void Style(QTextBlock block, std::size_t begin, std::size_t end);

 private:
  const QTextCharFormat& FormatOf(const rich_text::CharStyle& style);
  void WriteBlock(QTextCursor& cursor, std::size_t paragraph);
  void WriteText(QTextCursor& cursor, std::string_view text, const QTextCharFormat& format);
  void WritePicture(QTextCursor& cursor, const QTextCharFormat& format);
  std::size_t WriteTable(QTextCursor& cursor, std::size_t first, std::size_t end);
  QTextTable* MakeTable(QTextCursor& cursor, int first_row, int end_row, std::vector<int>& edges) const;
  std::size_t NextPicture(std::size_t place);

  const RichTextFormats& formats_;
  PictureNames& pictures_;
  const rich_text::Document& document_;
  std::vector<std::pair<rich_text::CharStyle, QTextCharFormat>> known_;
  std::size_t place_ = 0;              // what was written up to
  std::size_t pictures_to_place_ = 0;  // that many pictures are before it
};

// Reads blocks of Qt's text.
class RichTextReader {
 public:
  RichTextReader(const RichTextFormats& formats, const PictureNames& pictures, UsualStyle usual)
      : formats_(formats), pictures_(pictures), usual_(std::move(usual)) {}

  // From `first` to `last`, with their tables where `with_tables`.
  rich_text::Document Read(const QTextBlock& first, const QTextBlock& last, bool with_tables);
  // Whether something was left out that the model doesn't hold.
  bool left_out() const { return left_out_; }

 private:
  void ReadText(const QTextBlock& block);
  void PutInTable(const QTextBlock& block, rich_text::Paragraph& paragraph);
  void BeginRun(const rich_text::CharStyle& style);

  const RichTextFormats& formats_;
  const PictureNames& pictures_;
  UsualStyle usual_;
  rich_text::Document document_;
  const QTextTable* table_ = nullptr;  // what the latest paragraph stands in
  int row_ = -1;
  int column_ = -1;
  bool left_out_ = false;
};

}  // namespace tarvane::desktop
