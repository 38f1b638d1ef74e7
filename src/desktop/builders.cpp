#include "desktop/builders.h"

#include <QApplication>
#include <QBoxLayout>
#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QTableView>
#include <algorithm>
#include <charconv>

#include "desktop/fields.h"
#include "desktop/flow.h"
#include "desktop/line_typing.h"
#include "desktop/list_views.h"
#include "desktop/make.h"
#include "desktop/readers.h"
#include "desktop/text.h"
#include "desktop/theme.h"
#include "screen/kinds.h"

namespace tarvane::desktop {
namespace {

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
  return VisitKind(
      control, [&](TextField& field) { return Field(field, look); }, [&](TickBox& box) { return Tick(box); },
      [&](Button& button) { return Press(button, look.strong); }, [&](Label& label) { return Text(label); },
      [&](ListBox& list) { return List(list); }, [&](Grid& grid) { return Table(grid); },
      [&](Calendar& calendar) { return Month(calendar); }, [&](RichTextBox& box) { return Rich(box); },
      [&](PageView& view) { return Page(view); }, [&](Slider& slider) { return Slide(slider); },
      [&](TabStrip& tabs) { return Tabs(tabs, [](int) {}); },
      [&](Panel& panel) -> Piece {
        throw Fault("A panel is shown by its group, not by a widget: " + panel.name() + ".");
      });
}

Piece Builder::Field(TextField& field, const Look& look) {
  const auto* list = As<DropDownList>(field);
  const Piece piece = field.kind() == TextField::Kind::kMemo ? Memo(field, look)
                      : list != nullptr                      ? DropDown(*As<DropDownList>(field), look)
                                                             : Line(field, look);
  Name(field, look.name);
  return piece;
}

void Builder::Name(const Control& control, std::string_view name) {
  if (auto* widget = qobject_cast<QWidget*>(form_->WidgetOf(control))) SetReaderName(widget, PlainText(name));
}

Piece Builder::Line(TextField& field, const Look& look) {
  QLineEdit* edit = MakeLineEdit(*form_, field, look.mirror);
  if (look.number) edit->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  if (look.number && !look.words && !field.read_only()) AskForNumber(edit, edit);
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
  if (look.number && combo->lineEdit() != nullptr) {
    combo->lineEdit()->setAlignment(Qt::AlignRight);
    if (!look.words) AskForNumber(combo, combo->lineEdit());
  }
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
  SetReaderUnit(piece.widget, ToQt(look.unit));
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

Piece Builder::Month(Calendar& calendar) { return {MakeCalendar(*form_, calendar)}; }

Piece Builder::List(ListBox& list) { return {MakeListBox(*form_, list), nullptr, 1}; }

Piece Builder::Table(Grid& grid, const TableLook& look) {
  QTableView* table = MakeTable(*form_, grid, look);
  SetReaderName(table, ToQt(look.name));
  return {table, nullptr, 1};
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
  NameByTexts(pieces);
  for (const Piece& piece : pieces) AddTo(row, piece);
  return {nullptr, row};
}

Piece Builder::Flow(const Pieces& pieces, int quarters) {
  auto* flow = Make<FlowLayout>(Quarters(quarters), Quarters(1));
  NameByTexts(pieces);
  for (const Piece& piece : pieces) {
    if (piece.widget != nullptr) {
      flow->Add(piece.widget, piece.stretch);
    } else if (piece.layout != nullptr) {
      flow->Add(piece.layout, piece.stretch);
    } else if (piece.gap > 0) {
      flow->AddGap(Quarters(piece.gap));
    } else {
      flow->AddSpring(std::max(1, piece.stretch));
    }
  }
  return {nullptr, flow};
}

Piece Builder::Column(const Pieces& pieces, int quarters) {
  auto* column = Make<QVBoxLayout>();
  column->setSpacing(Quarters(quarters));
  NameByTexts(pieces);
  for (const Piece& piece : pieces) AddTo(column, piece);
  return {nullptr, column};
}

Piece Builder::Group(std::string_view heading, const Pieces& pieces) {
  Pieces all;
  if (!heading.empty()) {
    const Piece text = Heading(heading);
    const Piece rule = Rule();
    for (const Piece& piece : pieces) NameAll(piece, PlainText(heading));
    ShowUnlessAllIsToCome({text.widget, rule.widget}, pieces);
    all = {Column({text, rule}, 1)};
  }
  all.insert(all.end(), pieces.begin(), pieces.end());
  return Column(all, 2);
}

// A heading over what is still to come alone goes with it.
void Builder::ShowUnlessAllIsToCome(const std::vector<QWidget*>& headings, const Pieces& pieces) {
  std::vector<const Control*> controls;
  for (const Piece& piece : pieces) {
    for (const QWidget* widget : WidgetsIn(piece)) {
      const Control* control = form_->ControlOf(*widget);
      if (control != nullptr && control->to_come()) {
        controls.push_back(control);
        continue;
      }
      // Frames without anything in them are texts and rules, others only hold what is looked at as well.
      const bool alone = widget->findChild<QWidget*>() == nullptr;
      if (control != nullptr || (alone && qobject_cast<const QFrame*>(widget) == nullptr)) return;
    }
  }
  if (controls.empty()) return;
  for (QWidget* heading : headings) form_->ShowWith(heading, controls);
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
  for (const Piece& piece : pieces) NameAll(piece, PlainText(panel.caption()));
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

}  // namespace tarvane::desktop
