// What the rich text editor copies and pastes.
#include <QBuffer>
#include <QMimeData>
#include <QTextDocument>
#include <algorithm>

#include "desktop/rich_text_edit.h"
#include "desktop/text.h"
#include "rich_text/rtf.h"

namespace tarvane::desktop {

using rich_text::Document;

namespace {

constexpr const char* kRtfKinds[] = {"text/rtf", "application/rtf", "text/richtext"};

}  // namespace

QMimeData* RichTextEdit::createMimeDataFromSelection() const {
  QMimeData* made = QTextEdit::createMimeDataFromSelection();
  const std::string rtf = WriteRtf(Slice(box_.document(), box_.selection()));
  made->setData("text/rtf", QByteArray::fromStdString(rtf));
  return made;
}

bool RichTextEdit::canInsertFromMimeData(const QMimeData* source) const {
  const auto has = [source](const char* kind) { return source->hasFormat(kind); };
  return std::ranges::any_of(kRtfKinds, has) || source->hasHtml() || source->hasText() || source->hasImage();
}

// By way of the model: so it holds nothing that the model doesn't.
void RichTextEdit::insertFromMimeData(const QMimeData* source) {
  if (isReadOnly()) return;
  TakeSelection();
  for (const char* kind : kRtfKinds) {
    const QByteArray bytes = source->data(kind);
    const std::string_view rtf(bytes.data(), static_cast<std::size_t>(bytes.size()));
    if (!rich_text::LooksLikeRtf(rtf)) continue;
    return form_.Act(box_, [&](Control&) { box_.UserInsert(rich_text::ReadRtf(rtf)); });
  }
  if (source->hasHtml()) {
    QTextDocument pasted;
    pasted.setHtml(source->html());
    const Document piece =
        RichTextReader(formats_, pictures_, Usual()).Read(pasted.begin(), pasted.lastBlock(), true);
    if (!piece.text.empty()) return form_.Act(box_, [&](Control&) { box_.UserInsert(piece); });
  }
  if (source->hasText()) {
    const std::string text = FromQt(source->text());
    return form_.Act(box_, [&](Control&) { box_.UserInsert(text); });
  }
  if (source->hasImage()) InsertPicture(qvariant_cast<QImage>(source->imageData()));
}

void RichTextEdit::InsertPicture(const QImage& image) {
  if (image.isNull()) return;
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, "PNG");
  const double twips = std::min(1 / formats_.Pixels(1), static_cast<double>(kSheetTextWidth) / image.width());
  Document piece;
  piece.text = rich_text::kPictureSign;
  piece.pictures.push_back({rich_text::Picture::Format::kPng, bytes.toStdString(),
                            std::max(1, static_cast<int>(image.width() * twips)),
                            std::max(1, static_cast<int>(image.height() * twips))});
  form_.Act(box_, [&](Control&) { box_.UserInsert(piece); });
}

}  // namespace tarvane::desktop
