#pragma once

#include <QTextEdit>

#include "desktop/form.h"
#include "desktop/rich_text_formats.h"
#include "screen/rich_text_box.h"

namespace tarvane::desktop {

// Of a sheet of A4, as it is previewed; in twips.
inline constexpr int kSheetTextWidth = 9106;

// Shows a rich text box as a sheet. What the worker does in it goes to the model paragraph by paragraph; what
// the model changes comes back by Draw and its edit watcher. Blocks and paragraphs stand in the same order; a
// table that begins the text has one block more in front of it, and one that ends it has one more behind it.
class RichTextEdit : public QTextEdit {
 public:
  RichTextEdit(Form& form, RichTextBox& box);

  void Draw(Aspect aspect);
  void DrawEdit(const RichTextBox::Edit& edit);

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  QMimeData* createMimeDataFromSelection() const override;
  bool canInsertFromMimeData(const QMimeData* source) const override;
  void insertFromMimeData(const QMimeData* source) override;

 private:
  void DrawWhole();
  void DrawAnew(RichTextWriter& writer, QTextCursor& cursor);
  void CountExtraBlocks();
  void DrawSelection();
  void DrawTypingStyle();
  void DrawWholeLater();
  void TakeChange(int position, int added);
  void TakeAll();
  void TakeSelection();
  void InsertPicture(const QImage& image);

  bool IsPlain(const QTextBlock& first, const QTextBlock& last, std::size_t begin, std::size_t end) const;
  int ParagraphCount() const;
  std::size_t PlaceOf(int position) const;  // in the model's text
  int PositionOf(std::size_t place) const;
  UsualStyle Usual() const;

  Form& form_;
  RichTextBox& box_;
  RichTextFormats formats_;
  PictureNames pictures_;
  std::uint64_t drawn_ = ~std::uint64_t{0};  // of the model's whole texts
  int blocks_before_ = 0;                    // in front of a table that begins the text
  int blocks_behind_ = 0;                    // behind one that ends it
  bool drawing_ = false;                     // the change is the model's
  bool taking_ = false;                      // the change is on its way to the model
  bool draws_later_ = false;
};

}  // namespace tarvane::desktop
