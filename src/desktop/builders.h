#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "desktop/form.h"
#include "screen/finder.h"
#include "screen/record_bar.h"

class QBoxLayout;
class QLabel;
class QLayout;
class QWidget;

namespace tarvane::desktop {

// A widget or a layout, and the share of spare room that it takes in the row or column that it stands in.
struct Piece {
  QWidget* widget = nullptr;
  QLayout* layout = nullptr;
  int stretch = 0;
  int gap = 0;  // an empty distance in quarters of a line

  Piece Grow(int share = 1) const { return {widget, layout, share, gap}; }
};
using Pieces = std::vector<Piece>;

// What a field looks like beyond what its control tells.
struct Look {
  int width = 0;          // in digits; 0: the room that there is
  bool number = false;    // right-aligned
  std::string unit = {};  // stands beside the field
  int lines = 0;          // height of a memo; 0: the room that there is
  bool strong = false;    // large and bold, for what is read at a distance
  char line_mark = 0;     // a read-only memo shows its lines where the text has this mark; 0: as they are
  bool mirror = false;    // another field leads where the screen disables this one: then it is only read
  bool words = false;     // a number that the screen may replace by words
  std::string name = {};  // for readers, where no caption stands beside it
};

// Lines are written down as what they are: "Name", {{screen.Name}}.
// NOLINTBEGIN(google-explicit-constructor)

// One of the fields (also a tick box, button, label, list) of a line.
struct Entry {
  Entry(Control& control_in, Look look_in = {}) : control(&control_in), look(std::move(look_in)) {}
  Entry(Piece piece_in) : piece(piece_in) {}
  Control* control = nullptr;
  Piece piece;
  Look look;
};

// The caption of a line: fixed, or a label of the screen. & stands before the access key of the line's first
// field.
struct Caption {
  Caption(const char* text_in) : text(text_in) {}
  Caption(std::string text_in) : text(std::move(text_in)) {}
  Caption(Label& label_in) : label(&label_in) {}
  std::string text;
  Label* label = nullptr;
};

// A caption with its fields beside it. No entries: a smaller distance, or with a caption a heading.
struct FieldLine {
  FieldLine(Caption caption_in = "", std::vector<Entry> entries_in = {})
      : caption(std::move(caption_in)), entries(std::move(entries_in)) {}
  Caption caption;
  std::vector<Entry> entries;
};
// NOLINTEND(google-explicit-constructor)

// A column of a table, by its heading in the grid.
struct TableColumn {
  std::string_view heading;
  std::string_view shown_as = {};  // "": the heading
  int width = 0;                   // in digits; 0: the grid's own, or as wide as its heading
  bool number = false;             // right-aligned
};

// Which columns a table shows, in this order; none named: all of them. The worker brings the others back at
// the heading.
struct TableLook {
  std::vector<TableColumn> columns;
  std::string_view wide = {};   // the column that takes the spare room; "": the last one
  std::string_view name = {};   // for readers, where no heading stands over it
  std::string_view empty = {};  // what stands there while there are no rows
  Button* insert = nullptr;     // what the keys Insert and Delete press in the table; they do it as a toolbar
  Button* remove = nullptr;     // button does, so that the focus stays; null: nothing
};

// The buttons that lead from page to page and to another zoom; null: none.
struct PageSteps {
  Button* first = nullptr;
  Button* previous = nullptr;
  Button* next = nullptr;
  Button* last = nullptr;
  Button* zoom_in = nullptr;
  Button* zoom_out = nullptr;
};

// Makes the widgets of a form out of the controls of its screen, and arranges them. Widgets get the focus in
// the order in which they are arranged, so arrange as a person reads.
class Builder {
 public:
  explicit Builder(Form& form) : form_(&form) {}
  Form& form() const { return *form_; }

  // By the kind of the control; faults for a panel, which a group shows.
  Piece Put(Control& control, const Look& look = {});

  Piece Field(TextField& field, const Look& look = {});
  Piece Tick(TickBox& box);
  Piece Press(Button& button, bool strong = false);
  Piece Text(Label& label, bool quiet = false);
  Piece List(ListBox& list);
  Piece Month(Calendar& calendar);
  Piece Rich(RichTextBox& box);
  // Keys and the wheel press what `steps` names, where it is given.
  Piece Page(PageView& view, const PageSteps& steps = {});
  // The pages' tabs as a list, drawn as it is looked at.
  Piece PageStrip(TabStrip& tabs);
  Piece Slide(Slider& slider);
  // The position in a table, between the buttons that move there; Alt+Left and Alt+Right step as well.
  Piece Records(RecordBar& bar);
  // Category, text and buttons in a row, or in two where there is no room for that.
  Piece Find(Finder& finder);
  // The Down key leads from a field that was put into a list.
  void LeadDown(const Control& from, const Piece& list);
  Piece Table(Grid& grid, const TableLook& look = {});

  // A text that never changes.
  Piece Text(std::string_view text, bool quiet = false);
  Piece Heading(std::string_view text);
  Piece Rule();
  static Piece Gap(int quarters) { return {nullptr, nullptr, 0, quarters}; }
  static Piece Spring() { return {nullptr, nullptr, 1, 0}; }

  Piece Row(const Pieces& pieces, int quarters = 2);
  Piece Column(const Pieces& pieces, int quarters = 2);
  // In a row that goes on in the next one where the width is used up; its height follows.
  Piece Flow(const Pieces& pieces, int quarters = 2);
  // Lines with their captions and fields each in one column, going down and then to the next of `columns`.
  Piece Fields(const std::vector<FieldLine>& lines, int columns = 1);
  // A heading over its pieces. The second shows and hides with its panel, whose caption is the heading.
  Piece Group(std::string_view heading, const Pieces& pieces);
  Piece Group(Panel& panel, const Pieces& pieces);
  // Pages under their tabs; a page is built when it is first shown. Ctrl+1, Ctrl+2... show the pages of the
  // first tabs that a window gets.
  using PageBuilder = std::function<Piece()>;
  // `beside` stands at the right of all of them.
  Piece Pages(TabStrip& tabs, std::vector<PageBuilder> pages, const Piece& beside = {});
  // The tabs alone: `show` tells the one to show, at first and after each change.
  Piece Tabs(TabStrip& tabs, std::function<void(int tab)> show);
  // Scrolls where the window is too small.
  Piece Scroll(const Piece& piece, int quarters = 3);
  Piece Margin(const Piece& piece, int quarters = 3);

  // Makes one Tab stop of controls that were put already (labels to click on, buttons): arrow keys, Home and
  // End walk along them. Tab arrives at the one that `preferred` tells, an index, or else at the one where
  // the worker was last.
  void OneTabStop(const std::vector<Control*>& controls, std::function<int()> preferred = {});

  // What readers say of a field that was put, where neither a caption nor a heading tells it.
  void Name(const Control& control, std::string_view name);

 private:
  void AddTo(QBoxLayout* layout, const Piece& piece);
  Piece Line(TextField& field, const Look& look);
  Piece Memo(TextField& field, const Look& look);
  Piece DropDown(DropDownList& list, const Look& look);
  Piece WithUnit(const Piece& piece, const Control& control, const Look& look);
  void Measure(QWidget* widget, const Look& look);
  void ShowUnlessAllIsToCome(const std::vector<QWidget*>& headings, const Pieces& pieces);
  QLabel* MakeCaption(const Caption& caption, const std::vector<Entry>& entries, QWidget* buddy);

  Form* form_;
};

// The F-key that a caption names at its end ("&Payment F2"): 2; 0 for none.
int FunctionKeyOf(std::string_view caption);

}  // namespace tarvane::desktop
