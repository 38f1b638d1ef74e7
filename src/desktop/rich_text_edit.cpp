#include "desktop/rich_text_edit.h"

#include <QAbstractTextDocumentLayout>
#include <QPainter>
#include <QPointer>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTextFrame>
#include <QTextTable>
#include <QUrl>
#include <algorithm>

#include "desktop/builders.h"
#include "desktop/make.h"
#include "desktop/text.h"
#include "screen/kinds.h"

namespace tarvane::desktop {

using rich_text::CharStyle;
using rich_text::Document;
using rich_text::Range;

namespace {

constexpr int kSheetMargin = 40;  // pixels

// Units of UTF-16 in a text of UTF-8.
int UnitsIn(std::string_view text) {
  int units = 0;
  for (const char byte : text) {
    const auto value = static_cast<unsigned char>(byte);
    units += (value & 0xC0) == 0x80 ? 0 : value >= 0xF0 ? 2 : 1;
  }
  return units;
}

// Bytes of the characters that make up so many units.
std::size_t BytesOf(std::string_view text, int units) {
  std::size_t at = 0;
  while (at < text.size() && units > 0) {
    units -= static_cast<unsigned char>(text[at]) >= 0xF0 ? 2 : 1;
    do ++at;
    while (at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0) == 0x80);
  }
  return at;
}

bool InTable(const QTextBlock& block) {
  return qobject_cast<QTextTable*>(block.document()->frameAt(block.position())) != nullptr;
}

// Undoing puts the caret back to where the block of edits began, unless the first of them is made just there.
void BeginEdits(QTextCursor& cursor, int end) {
  cursor.beginEditBlock();
  cursor.setPosition(end);
  cursor.insertText(" ");
}

}  // namespace

RichTextEdit::RichTextEdit(Form& form, RichTextBox& box)
    : form_(form), box_(box), formats_(QWidget::logicalDpiX()) {
  // A sheet is white in dark windows, too.
  QPalette ink = palette();
  ink.setColor(QPalette::Text, Qt::black);
  setPalette(ink);
  // The frame is no part of the sheet: it is drawn like those of other fields.
  QPalette sheet = viewport()->palette();
  sheet.setColor(QPalette::Base, Qt::white);
  viewport()->setPalette(sheet);
  setAcceptRichText(true);
  document()->setDocumentMargin(kSheetMargin);
  document()->setDefaultFont(QFont("Arial", 10));
  setTabStopDistance(formats_.Pixels(rich_text::kTwipsPerInch / 2.0));
  setMinimumSize(160, 120);
  // Only pictures that come into sight are decoded: a work sheet has hundreds.
  document()->setResourceProvider([this](const QUrl& name) {
    const rich_text::Picture* picture = pictures_.Find(name.toString());
    return picture == nullptr ? QVariant() : QVariant(ImageOf(*picture, formats_));
  });
  connect(document(), &QTextDocument::contentsChange, this,
          [this](int position, int, int added) { TakeChange(position, added); });
  connect(this, &QTextEdit::cursorPositionChanged, this, &RichTextEdit::TakeSelection);
  connect(this, &QTextEdit::selectionChanged, this, &RichTextEdit::TakeSelection);
}

// ---- From the model ----

void RichTextEdit::Draw(Aspect aspect) {
  if (aspect == Aspect::kText && (drawn_ != box_.whole_texts() || draws_later_)) DrawWhole();
  if (aspect == Aspect::kState) {
    if (isReadOnly() != box_.read_only()) {
      setReadOnly(box_.read_only());
      setTextInteractionFlags(box_.read_only() ? Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard
                                               : Qt::TextEditorInteraction);
    }
    DrawTypingStyle();
  }
  if (aspect == Aspect::kSelection) {
    DrawSelection();
    DrawTypingStyle();
  }
}

void RichTextEdit::DrawWhole() {
  const QScopedValueRollback drawing(drawing_, true);
  drawn_ = box_.whole_texts();
  draws_later_ = false;
  const Document& text = box_.document();
  setUndoRedoEnabled(false);
  {
    const QSignalBlocker quiet(this);
    document()->clear();
  }
  QTextCursor cursor(document());
  cursor.beginEditBlock();
  RichTextWriter(formats_, pictures_, text).Write(cursor, 0, text.paragraphs.size());
  cursor.endEditBlock();
  setUndoRedoEnabled(true);
  CountExtraBlocks();
  DrawSelection();
}

void RichTextEdit::CountExtraBlocks() {
  const Document& text = box_.document();
  blocks_before_ = text.paragraphs.front().row >= 0 ? 1 : 0;
  blocks_behind_ = text.paragraphs.back().row >= 0 ? 1 : 0;
}

// The whole text in a way that can be undone.
void RichTextEdit::DrawAnew(RichTextWriter& writer, QTextCursor& cursor) {
  BeginEdits(cursor, document()->characterCount() - 1);
  cursor.select(QTextCursor::Document);
  cursor.removeSelectedText();
  writer.Write(cursor, 0, box_.document().paragraphs.size());
  cursor.endEditBlock();
  CountExtraBlocks();
  DrawSelection();
}

void RichTextEdit::DrawWholeLater() {
  draws_later_ = true;
  form_.ActLater(box_, [](Control&) {});
}

void RichTextEdit::DrawEdit(const RichTextBox::Edit& edit) {
  // In the middle of a change of Qt's own nothing may be changed.
  if (taking_) return DrawWholeLater();
  if (drawn_ != box_.whole_texts()) return;
  const QScopedValueRollback drawing(drawing_, true);
  const Document& text = box_.document();
  const std::size_t end = edit.before.begin + edit.length;
  const std::size_t first = text.ParagraphAt(edit.before.begin);
  const QTextBlock block = document()->findBlockByNumber(static_cast<int>(first) + blocks_before_);
  RichTextWriter writer(formats_, pictures_, text);
  QTextCursor cursor = textCursor();
  if (edit.looks_only) {
    cursor.beginEditBlock();
    writer.Style(block, edit.before.begin, end);
    cursor.endEditBlock();
    return;
  }
  const std::size_t last = text.ParagraphAt(end);
  const int old_last = static_cast<int>(last) + ParagraphCount() - static_cast<int>(text.paragraphs.size());
  const QTextBlock last_block = document()->findBlockByNumber(old_last + blocks_before_);
  if (!last_block.isValid() || !IsPlain(block, last_block, first, last + 1)) {
    return DrawAnew(writer, cursor);
  }
  BeginEdits(cursor, last_block.position() + last_block.length() - 1);
  cursor.setPosition(block.position());
  cursor.setPosition(last_block.position() + last_block.length() - 1, QTextCursor::KeepAnchor);
  cursor.removeSelectedText();
  writer.Write(cursor, first, last + 1);
  cursor.endEditBlock();
  DrawSelection();
}

void RichTextEdit::DrawSelection() {
  if (drawn_ != box_.whole_texts()) return;
  const QTextCursor shown = textCursor();
  const Range selection = box_.selection();
  const int begin = PositionOf(selection.begin);
  const int end = selection.empty() ? begin : PositionOf(selection.end);
  if (shown.selectionStart() == begin && shown.selectionEnd() == end) return;
  const QScopedValueRollback drawing(drawing_, true);
  QTextCursor cursor(document());
  cursor.setPosition(begin);
  cursor.setPosition(end, QTextCursor::KeepAnchor);
  setTextCursor(cursor);
  ensureCursorVisible();
}

// What is typed next looks as the model says.
void RichTextEdit::DrawTypingStyle() {
  if (!box_.selection().empty() || drawn_ != box_.whole_texts()) return;
  const CharStyle wanted = box_.CurrentStyle();
  Document fonts;
  fonts.fonts = box_.document().fonts;
  if (formats_.FromQt(currentCharFormat(), {}, fonts) == wanted) return;
  const QScopedValueRollback drawing(drawing_, true);
  setCurrentCharFormat(formats_.ToQt(box_.document(), wanted));
}

// ---- To the model ----

UsualStyle RichTextEdit::Usual() const {
  const CharStyle style = box_.CurrentStyle();
  return {style, box_.document().fonts[style.font]};
}

int RichTextEdit::ParagraphCount() const {
  return document()->blockCount() - blocks_before_ - blocks_behind_;
}

// Whether neither the blocks nor the model's paragraphs from `begin` to before `end` touch a table.
bool RichTextEdit::IsPlain(const QTextBlock& first, const QTextBlock& last, std::size_t begin,
                           std::size_t end) const {
  const Document& text = box_.document();
  if (text.rows.empty() && document()->rootFrame()->childFrames().isEmpty()) return true;
  for (QTextBlock block = first; block.isValid(); block = block.next()) {
    if (InTable(block)) return false;
    if (block == last) break;
  }
  if (first.blockNumber() < blocks_before_ ||
      last.blockNumber() >= document()->blockCount() - blocks_behind_) {
    return false;
  }
  const auto paragraph = [&](std::size_t at) {
    return text.paragraphs.begin() + static_cast<std::ptrdiff_t>(at);
  };
  return std::all_of(paragraph(begin), paragraph(end), [](const auto& each) { return each.row < 0; });
}

void RichTextEdit::TakeChange(int position, int added) {
  if (drawing_ || taking_) return;
  // Undoing may end a selection without telling.
  QMetaObject::invokeMethod(this, &RichTextEdit::TakeSelection, Qt::QueuedConnection);
  if (box_.read_only()) return DrawWholeLater();
  const QScopedValueRollback taking(taking_, true);
  const Document& text = box_.document();
  const QTextBlock first = document()->findBlock(position);
  const QTextBlock last = document()->findBlock(std::min(position + added, document()->characterCount() - 1));
  const int begin = first.blockNumber() - blocks_before_;
  const int more = ParagraphCount() - static_cast<int>(text.paragraphs.size());
  const int end = last.blockNumber() - blocks_before_ + 1 - more;
  if (begin < 0 || end <= begin || end > static_cast<int>(text.paragraphs.size())) return TakeAll();
  const auto from = static_cast<std::size_t>(begin);
  const auto to = static_cast<std::size_t>(end);
  const bool in_a_cell = more == 0 && first == last && text.paragraphs[from].row >= 0 && InTable(first);
  if (!in_a_cell && !IsPlain(first, last, from, to)) return TakeAll();
  RichTextReader reader(formats_, pictures_, Usual());
  const Document piece = reader.Read(first, last, false);
  if (reader.left_out()) DrawWholeLater();
  const Range range{text.paragraphs[from].begin, text.ParagraphEnd(to - 1)};
  if (to - from == piece.paragraphs.size() && SameContent(Slice(text, range), piece)) return;
  form_.Act(box_, [&](Control&) {
    box_.UserReplaceParagraphs(from, to, piece);
    box_.UserSelect({PlaceOf(textCursor().selectionStart()), PlaceOf(textCursor().selectionEnd())});
  });
}

// Where tables change, the whole text is read.
void RichTextEdit::TakeAll() {
  QTextBlock first = document()->begin();
  QTextBlock last = document()->lastBlock();
  const auto is_extra = [](const QTextBlock& block, const QTextBlock& beside) {
    return block.length() == 1 && beside.isValid() && !InTable(block) && InTable(beside);
  };
  const bool before = blocks_before_ > 0 && is_extra(first, first.next());
  const bool behind = blocks_behind_ > 0 && is_extra(last, last.previous());
  if (before) first = first.next();
  if (behind) last = last.previous();
  RichTextReader reader(formats_, pictures_, Usual());
  const Document piece = reader.Read(first, last, true);
  if (reader.left_out()) DrawWholeLater();
  blocks_before_ = before ? 1 : 0;
  blocks_behind_ = behind ? 1 : 0;
  form_.Act(box_, [&](Control&) {
    box_.UserReplaceParagraphs(0, box_.document().paragraphs.size(), piece);
    box_.UserSelect({PlaceOf(textCursor().selectionStart()), PlaceOf(textCursor().selectionEnd())});
  });
}

void RichTextEdit::TakeSelection() {
  if (drawing_ || taking_ || drawn_ != box_.whole_texts()) return;
  QTextCursor cursor = textCursor();
  if (!cursor.hasSelection() && cursor.blockNumber() < blocks_before_) {
    // No paragraph of the text's: the caret goes on into the first cell.
    cursor.movePosition(QTextCursor::NextBlock);
    return setTextCursor(cursor);
  }
  const Range range{PlaceOf(cursor.selectionStart()), PlaceOf(cursor.selectionEnd())};
  if (range == box_.selection()) return;
  form_.Act(box_, [&](Control&) { box_.UserSelect(range); });
}

std::size_t RichTextEdit::PlaceOf(int position) const {
  const Document& text = box_.document();
  const QTextBlock block = document()->findBlock(position);
  const int paragraph = block.blockNumber() - blocks_before_;
  if (paragraph < 0) return 0;
  if (paragraph >= static_cast<int>(text.paragraphs.size())) return text.text.size();
  const std::size_t begin = text.paragraphs[static_cast<std::size_t>(paragraph)].begin;
  const std::size_t end = text.ParagraphEnd(static_cast<std::size_t>(paragraph));
  return begin + BytesOf(std::string_view(text.text).substr(begin, end - begin), position - block.position());
}

int RichTextEdit::PositionOf(std::size_t place) const {
  const Document& text = box_.document();
  const std::size_t paragraph = text.ParagraphAt(place);
  const std::size_t begin = text.paragraphs[paragraph].begin;
  const QTextBlock block = document()->findBlockByNumber(static_cast<int>(paragraph) + blocks_before_);
  const int units = UnitsIn(std::string_view(text.text).substr(begin, place - begin));
  return block.position() + std::clamp(units, 0, block.length() - 1);
}

// ---- The worker's hands ----

bool RichTextEdit::event(QEvent* event) {
  // Some platforms let this key go to the end of the line; here it is for the window.
  const bool is_center = event->type() == QEvent::ShortcutOverride &&
                         static_cast<QKeyEvent*>(event)->keyCombination() == (Qt::CTRL | Qt::Key_E);
  if (!is_center) return QTextEdit::event(event);
  event->ignore();
  return true;
}

void RichTextEdit::keyPressEvent(QKeyEvent* event) {
  const bool is_enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  const bool is_tab = event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab;
  if (is_tab && (event->key() == Qt::Key_Backtab || event->modifiers().testFlag(Qt::ControlModifier))) {
    // The Tab key alone belongs to the text; that of QTextEdit wouldn't let the focus go.
    // NOLINTNEXTLINE(bugprone-parent-virtual-call): the text edit itself would keep the focus
    QAbstractScrollArea::focusNextPrevChild(event->key() == Qt::Key_Tab);
    return;
  }
  // With Alt a key is meant for the window, even where nothing there has it.
  const auto held = event->modifiers() & (Qt::AltModifier | Qt::ControlModifier | Qt::MetaModifier);
  if (held == Qt::AltModifier && event->key() < Qt::Key_Escape && event->key() != 0) return event->ignore();
  if (!is_enter || isReadOnly() || event->modifiers().testFlag(Qt::ShiftModifier)) {
    return QTextEdit::keyPressEvent(event);
  }
  // The new paragraph doesn't begin a page because the one before does; Ctrl+Enter begins one.
  QTextCursor cursor = textCursor();
  cursor.beginEditBlock();
  cursor.removeSelectedText();
  QTextBlockFormat format = cursor.blockFormat();
  format.setPageBreakPolicy(event->modifiers().testFlag(Qt::ControlModifier)
                                ? QTextFormat::PageBreak_AlwaysBefore
                                : QTextFormat::PageBreak_Auto);
  cursor.insertBlock(format, currentCharFormat());
  cursor.endEditBlock();
  setTextCursor(cursor);
  ensureCursorVisible();
}

// ---- The sheet ----

void RichTextEdit::resizeEvent(QResizeEvent* event) {
  const int sheet = static_cast<int>(formats_.Pixels(kSheetTextWidth)) + 2 * kSheetMargin;
  const int frame = 2 * frameWidth();
  const int side = std::max(0, (width() - frame - verticalScrollBar()->sizeHint().width() - sheet) / 2);
  if (viewportMargins().left() != side) setViewportMargins(side, 0, side, 0);
  QTextEdit::resizeEvent(event);
}

void RichTextEdit::paintEvent(QPaintEvent* event) {
  QTextEdit::paintEvent(event);
  // A line where a page begins.
  QPainter painter(viewport());
  painter.setPen(QPen(Qt::gray, 1, Qt::DashLine));
  const QAbstractTextDocumentLayout* layout = document()->documentLayout();
  const int scrolled = verticalScrollBar()->value();
  for (QTextBlock block = cursorForPosition({0, 0}).block(); block.isValid(); block = block.next()) {
    const double top = layout->blockBoundingRect(block).top() - scrolled;
    if (top > viewport()->height()) return;
    if (!block.blockFormat().pageBreakPolicy().testFlag(QTextFormat::PageBreak_AlwaysBefore)) continue;
    painter.drawLine(QPointF(0, top), QPointF(viewport()->width(), top));
  }
}

Piece Builder::Rich(RichTextBox& box) {
  auto* made = Make<RichTextEdit>(*form_, box);
  form_->Bind(box, made, [made](Aspect aspect) { made->Draw(aspect); });
  // The window may be gone before the screen.
  box.SetEditWatcher([edit = QPointer<RichTextEdit>(made)](const RichTextBox::Edit& change) {
    if (edit) edit->DrawEdit(change);
  });
  return {made, nullptr, 1};
}

}  // namespace tarvane::desktop
