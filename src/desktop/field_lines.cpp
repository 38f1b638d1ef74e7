#include <QGridLayout>
#include <QLabel>
#include <QPlainTextEdit>

#include "desktop/builders.h"
#include "desktop/fields.h"
#include "desktop/make.h"
#include "desktop/readers.h"
#include "desktop/text.h"
#include "desktop/theme.h"

namespace tarvane::desktop {

QLabel* Builder::MakeCaption(const Caption& caption, const std::vector<Entry>& entries, QWidget* buddy) {
  QLabel* label = nullptr;
  if (caption.label != nullptr) {
    label = qobject_cast<QLabel*>(MakeLabel(*form_, *caption.label));
  } else {
    label = Make<QLabel>(ToQt(caption.text));
    std::vector<const Control*> controls;
    for (const Entry& entry : entries) {
      if (entry.control != nullptr) controls.push_back(entry.control);
    }
    if (!controls.empty()) form_->ShowWith(label, std::move(controls));
  }
  if (label == nullptr) return nullptr;
  if (buddy != nullptr) label->setBuddy(buddy);
  return label;
}

namespace {

// A fixed text between the fields of a line names the one after it; the others go by the line's caption.
void NameForReaders(const Pieces& pieces, const Caption& caption) {
  NameByTexts(pieces);
  const QString text = PlainText(caption.label != nullptr ? caption.label->caption() : caption.text);
  for (const Piece& piece : pieces) {
    for (QWidget* widget : WidgetsIn(piece)) {
      if (NeedsName(*widget)) SetReaderName(widget, text);
    }
  }
}

}  // namespace

Piece Builder::Fields(const std::vector<FieldLine>& lines, int columns) {
  auto* grid = Make<QGridLayout>();
  grid->setHorizontalSpacing(Quarters(2));
  grid->setVerticalSpacing(Quarters(1));
  const int count = static_cast<int>(lines.size());
  const int height = (count + columns - 1) / columns;
  for (int at = 0; at < count; ++at) {
    const FieldLine& line = lines[static_cast<std::size_t>(at)];
    const int row = at % height;
    const int column = at / height * 3;  // the third one is the distance to the next captions
    Pieces pieces;
    bool grows = false;
    for (const Entry& entry : line.entries) {
      pieces.push_back(entry.control != nullptr ? Put(*entry.control, entry.look) : entry.piece);
      grows = grows || pieces.back().stretch > 0;
    }
    QWidget* first = nullptr;
    if (!line.entries.empty() && line.entries.front().control != nullptr) {
      first = qobject_cast<QWidget*>(form_->WidgetOf(*line.entries.front().control));
    }
    QLabel* label = MakeCaption(line.caption, line.entries, first);
    NameForReaders(pieces, line.caption);
    if (line.entries.empty()) {
      if (line.caption.text.empty() && line.caption.label == nullptr) {
        grid->setRowMinimumHeight(row, Quarters(2));
        label->deleteLater();
      } else {
        grid->addWidget(label, row, column, 1, 2);
      }
      continue;
    }
    const bool tall = pieces.size() == 1 && qobject_cast<QPlainTextEdit*>(pieces.front().widget) != nullptr;
    if (label != nullptr) grid->addWidget(label, row, column, tall ? Qt::AlignTop : Qt::AlignVCenter);
    if (!grows) pieces.push_back(Spring());
    if (pieces.size() == 1 && pieces.front().widget != nullptr) {
      grid->addWidget(pieces.front().widget, row, column + 1);
    } else {
      grid->addLayout(Row(pieces).layout, row, column + 1);
    }
    grid->setColumnStretch(column + 1, 1);
    if (column > 0) grid->setColumnMinimumWidth(column - 1, Quarters(3));
  }
  return {nullptr, grid};
}

}  // namespace tarvane::desktop
