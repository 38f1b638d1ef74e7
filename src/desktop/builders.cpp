#include "desktop/builders.h"

#include <QApplication>
#include <QBoxLayout>
#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QTableView>
#include <algorithm>
#include <charconv>

#include "desktop/fields.h"
#include "desktop/list_views.h"
#include "desktop/text.h"
#include "desktop/theme.h"

namespace tarvane {
namespace {

template <typename Widget, typename... Arguments>
Widget* Make(Arguments&&... arguments) {
  return std::make_unique<Widget>(std::forward<Arguments>(arguments)...).release();
}

void ScaleFont(QWidget* widget, bool strong) {
  if (!strong) return;
  QFont font;
  font.setBold(true);
  font.setPointSizeF(QApplication::font().pointSizeF() * 1.2);
  widget->setFont(font);
}

}  // namespace

int FunctionKeyOf(std::string_view caption) {
  const std::size_t at = caption.rfind(" F");
  if (at == std::string_view::npos) return 0;
  int key = 0;
  const char* end = caption.data() + caption.size();
  const auto [stop, error] = std::from_chars(caption.data() + at + 2, end, key);
  return error == std::errc() && stop == end && key >= 1 && key <= 12 ? key : 0;
}

Piece Builder::Put(Control& control, const Look& look) {
  if (auto* field = dynamic_cast<TextField*>(&control)) return Field(*field, look);
  if (auto* box = dynamic_cast<TickBox*>(&control)) return Tick(*box);
  if (auto* button = dynamic_cast<Button*>(&control)) return Press(*button, look.strong);
  if (auto* label = dynamic_cast<Label*>(&control)) return Text(*label);
  if (auto* list = dynamic_cast<ListBox*>(&control)) return List(*list);
  if (auto* grid = dynamic_cast<Grid*>(&control)) return Table(*grid);
  throw Fault("No widget shows the control " + control.name() + ".");
}

Piece Builder::Field(TextField& field, const Look& look) {
  if (field.kind() == TextField::Kind::kMemo) return Memo(field, look);
  if (auto* list = dynamic_cast<DropDownList*>(&field)) return DropDown(*list, look);
  QLineEdit* edit = MakeLineEdit(*form_, field);
  if (look.number) edit->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  Measure(edit, look);
  return WithUnit({edit, nullptr, look.width == 0 ? 1 : 0}, field, look);
}

Piece Builder::Memo(TextField& field, const Look& look) {
  QPlainTextEdit* edit = MakeMemo(*form_, field, look.line_mark);
  if (look.lines > 0) {
    form_->AddSizer([edit, lines = look.lines] { edit->setFixedHeight(Quarters(4 * lines + 2)); });
  } else {
    form_->AddSizer([edit] { edit->setMinimumHeight(Quarters(12)); });
  }
  return {edit, nullptr, 1};
}

Piece Builder::DropDown(DropDownList& list, const Look& look) {
  QComboBox* combo = MakeDropDown(*form_, list);
  if (look.number && combo->lineEdit() != nullptr) combo->lineEdit()->setAlignment(Qt::AlignRight);
  Measure(combo, look);
  return WithUnit({combo, nullptr, look.width == 0 ? 1 : 0}, list, look);
}

// A field is as wide as what it holds, or takes the room that there is.
void Builder::Measure(QWidget* widget, const Look& look) {
  form_->AddSizer([widget, look] {
    ScaleFont(widget, look.strong);
    const int arrow = qobject_cast<QComboBox*>(widget) != nullptr ? Quarters(5) : 0;
    if (look.width > 0) {
      widget->setFixedWidth(Digits(look.width) * (look.strong ? 12 : 10) / 10 + Quarters(2) + arrow);
    } else {
      widget->setMinimumWidth(Digits(8) + arrow);
    }
  });
}

Piece Builder::WithUnit(const Piece& piece, const Control& control, const Look& look) {
  if (look.unit.empty()) return piece;
  auto* unit = Make<QLabel>(ToQt(look.unit));
  WriteQuietly(unit);
  form_->ShowWith(unit, {&control});
  return Row({piece, {unit}}, 1).Grow(piece.stretch);
}

Piece Builder::Tick(TickBox& box) { return {MakeTickBox(*form_, box)}; }

Piece Builder::Press(Button& button, bool strong) { return {MakeButton(*form_, button, strong)}; }

Piece Builder::Text(Label& label, bool quiet) {
  QWidget* made = MakeLabel(*form_, label);
  if (quiet) WriteQuietly(made);
  return {made};
}

Piece Builder::Text(std::string_view text, bool quiet) {
  auto* label = Make<QLabel>(ToQt(text));
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(quiet && text.size() > 40);
  if (quiet) WriteQuietly(label);
  return {label};
}

Piece Builder::Heading(std::string_view text) {
  auto* label = Make<QLabel>(ToQt(text));
  label->setTextFormat(Qt::PlainText);
  QFont font;
  font.setBold(true);
  label->setFont(font);
  return {label};
}

Piece Builder::Rule() {
  auto* line = Make<QFrame>();
  line->setFixedHeight(1);
  line->setAutoFillBackground(true);
  line->setBackgroundRole(QPalette::Mid);
  return {line};
}

Piece Builder::List(ListBox& list) { return {MakeListBox(*form_, list), nullptr, 1}; }

Piece Builder::Table(Grid& grid, const TableLook& look) {
  return {MakeTable(*form_, grid, look), nullptr, 1};
}

void Builder::AddTo(QBoxLayout* layout, const Piece& piece) {
  if (piece.widget != nullptr) {
    layout->addWidget(piece.widget, piece.stretch);
  } else if (piece.layout != nullptr) {
    layout->addLayout(piece.layout, piece.stretch);
  } else if (piece.gap > 0) {
    layout->addSpacing(Quarters(piece.gap));
  } else {
    layout->addStretch(std::max(1, piece.stretch));
  }
}

Piece Builder::Row(const Pieces& pieces, int quarters) {
  auto* row = Make<QHBoxLayout>();
  row->setSpacing(Quarters(quarters));
  for (const Piece& piece : pieces) AddTo(row, piece);
  return {nullptr, row};
}

Piece Builder::Column(const Pieces& pieces, int quarters) {
  auto* column = Make<QVBoxLayout>();
  column->setSpacing(Quarters(quarters));
  for (const Piece& piece : pieces) AddTo(column, piece);
  return {nullptr, column};
}

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

// What a page says when it is read aloud: the field's caption.
void NameForReaders(QWidget* widget, const Caption& caption) {
  if (widget == nullptr || widget->accessibleName().size() > 0) return;
  widget->setAccessibleName(PlainCaption(caption.label != nullptr ? caption.label->caption() : caption.text));
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
    NameForReaders(first, line.caption);
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

Piece Builder::Group(std::string_view heading, const Pieces& pieces) {
  Pieces all;
  if (!heading.empty()) all = {Column({Heading(heading), Rule()}, 1)};
  all.insert(all.end(), pieces.begin(), pieces.end());
  return Column(all, 2);
}

Piece Builder::Group(Panel& panel, const Pieces& pieces) {
  auto* box = Make<QWidget>();
  QLabel* heading = Make<QLabel>();
  QFont font;
  font.setBold(true);
  heading->setFont(font);
  QWidget* rule = Rule().widget;
  Pieces all = {Column({{heading}, {rule}}, 1)};
  all.insert(all.end(), pieces.begin(), pieces.end());
  box->setLayout(Column(all, 2).layout);
  box->layout()->setContentsMargins(0, 0, 0, 0);
  form_->Bind(panel, box, [heading, rule, &panel](Aspect aspect) {
    if (aspect != Aspect::kCaption) return;
    heading->setText(ToQt(panel.caption()));
    heading->setHidden(panel.caption().empty());
    rule->setHidden(panel.caption().empty());
  });
  return {box};
}

namespace {

// As large as what it holds, where there is room for it.
class FittingScroll : public QScrollArea {
 public:
  QSize sizeHint() const override { return widget()->sizeHint(); }
  QSize minimumSizeHint() const override { return {Quarters(40), Quarters(20)}; }
};

}  // namespace

Piece Builder::Scroll(const Piece& piece, int quarters) {
  auto* area = Make<FittingScroll>();
  auto* inside = Make<QWidget>();
  inside->setLayout(Column({piece.Grow()}).layout);
  const int edge = Quarters(quarters);
  inside->layout()->setContentsMargins(edge, edge, edge, edge);
  area->setFrameShape(QFrame::NoFrame);
  area->setFocusPolicy(Qt::NoFocus);
  area->setWidgetResizable(true);
  area->setWidget(inside);
  return {area, nullptr, 1};
}

Piece Builder::Margin(const Piece& piece, int quarters) {
  auto* box = Make<QWidget>();
  box->setLayout(Column({piece.Grow()}).layout);
  const int edge = Quarters(quarters);
  box->layout()->setContentsMargins(edge, edge, edge, edge);
  return {box, nullptr, piece.stretch};
}

}  // namespace tarvane
