#include <fmt/format.h>

#include <algorithm>

#include "script/interpreter.h"
#include "script/show.h"

namespace tarvane::script {

void Interpreter::Fail(std::string_view expected, std::string_view got) {
  ++failures_;
  err_ << fmt::format("line {}: expected {}, got {}", lines_.line(), expected, got) << std::endl;
}

void Interpreter::Show(Arguments arguments) {
  for (const Argument& address : arguments) {
    const Control& control = Any(address);
    Try([&] { TellControl(address.source, control, [this](std::string_view line) { host_.Tell(line); }); });
  }
}

void Interpreter::ShowPrinted(Arguments) {
  for (const ScriptHost::NumberedPage& page : host_.TakePrinted()) {
    host_.Tell(fmt::format("page {}", page.number));
    for (const std::string& line : page.lines) host_.Tell("| " + line);
  }
}

void Interpreter::Expect(Arguments arguments) {
  if (arguments.size() == 4) return ExpectCell(arguments);
  if (arguments.size() == 3) throw ScriptError("expect wants CONTROL TEXT or GRID ROW COLUMN TEXT");
  const Control& control = Any(arguments[0]);
  if (As<Grid>(control) != nullptr) {
    throw ScriptError(Place(arguments[0], control) + " is a grid: expect GRID ROW COLUMN TEXT");
  }
  const std::string value = ValueOf(control);
  if (value == arguments[1].text) return;
  const bool on_or_off = As<TickBox>(control) != nullptr;
  const std::string wanted = on_or_off ? arguments[1].text : InQuotes(arguments[1].text);
  Fail(fmt::format("{} = {}", Place(arguments[0], control), wanted), PrintedValueOf(control));
}

void Interpreter::ExpectCell(Arguments arguments) {
  const Grid& grid = FindKind<Grid>(arguments[0], host_.open_screens(), "a grid");
  const std::int64_t row = WholeNumber(arguments[1]);
  const std::int64_t column = WholeNumber(arguments[2]);
  const std::string expected = fmt::format("{} row {} column {} = {}", Place(arguments[0], grid), row, column,
                                           InQuotes(arguments[3].text));
  if (row > grid.RowCount() || column >= grid.ColumnCount()) {
    Fail(expected, fmt::format("{} rows of {} columns", grid.RowCount(), grid.ColumnCount()));
    return;
  }
  const std::string cell = grid.Cell(row, static_cast<int>(column));
  if (cell != arguments[3].text) Fail(expected, InQuotes(cell));
}

void Interpreter::ExpectRows(Arguments arguments) {
  const Grid& grid = FindKind<Grid>(arguments[0], host_.open_screens(), "a grid");
  const std::int64_t wanted = WholeNumber(arguments[1]);
  if (grid.RowCount() == wanted) return;
  Fail(fmt::format("{} with {} rows", Place(arguments[0], grid), wanted), fmt::format("{}", grid.RowCount()));
}

void Interpreter::ExpectEntries(Arguments arguments) {
  const Control& control = Any(arguments[0]);
  const std::size_t entries = VisitKind(
      control, [](const DropDownList& list) { return list.entries().size(); },
      [](const ListBox& list) { return static_cast<std::size_t>(list.EntryCount()); },
      [&](const Control& other) -> std::size_t {
        throw ScriptError(fmt::format("{} is {}, not a list", Place(arguments[0], other), KindOf(other)));
      });
  const std::int64_t wanted = WholeNumber(arguments[1]);
  if (static_cast<std::int64_t>(entries) == wanted) return;
  Fail(fmt::format("{} with {} entries", Place(arguments[0], control), wanted), fmt::format("{}", entries));
}

void Interpreter::ExpectScreen(Arguments arguments) {
  if (top().name() != arguments[0].text) Fail("screen " + arguments[0].text, top().name());
}

void Interpreter::ExpectTitle(Arguments arguments) {
  if (top().title() == arguments[0].text) return;
  Fail(fmt::format("{} titled {}", top().name(), InQuotes(arguments[0].text)), InQuotes(top().title()));
}

void Interpreter::ExpectHolds(std::string_view what, const std::string& text, const Argument& wanted) {
  if (text.find(wanted.text) != std::string::npos) return;
  Fail(fmt::format("{} with {}", what, InQuotes(wanted.text)), InQuotes(text));
}

void Interpreter::ExpectSaid(Arguments arguments) {
  if (host_.said()) return ExpectHolds("a message", *host_.said(), arguments[0]);
  Fail("a message with " + InQuotes(arguments[0].text), "none so far");
}

void Interpreter::ExpectState(const Argument& address, bool as_expected, std::string_view expected,
                              std::string_view got) {
  if (!as_expected) Fail(fmt::format("{} {}", Place(address, Any(address)), expected), got);
}

void Interpreter::ExpectOn(Arguments arguments) {
  ExpectState(arguments[0], Any(arguments[0]).enabled(), "enabled", "disabled");
}

void Interpreter::ExpectOff(Arguments arguments) {
  ExpectState(arguments[0], !Any(arguments[0]).enabled(), "disabled", "enabled");
}

void Interpreter::ExpectShown(Arguments arguments) {
  const Control& control = Any(arguments[0]);
  ExpectState(arguments[0], control.shown() && !control.never_shown(), "visible", "hidden");
}

void Interpreter::ExpectHidden(Arguments arguments) {
  const Control& control = Any(arguments[0]);
  ExpectState(arguments[0], !control.shown() || control.never_shown(), "hidden", "visible");
}

void Interpreter::ExpectPrinted(Arguments arguments) {
  for (const ScriptHost::NumberedPage& page : host_.printed()) {
    for (const std::string& line : page.lines) {
      if (line.find(arguments[0].text) != std::string::npos) return;
    }
  }
  Fail("a printed line with " + InQuotes(arguments[0].text),
       fmt::format("{} pages without", host_.printed().size()));
}

void Interpreter::ExpectClipboard(Arguments arguments) {
  ExpectHolds("a clipboard", host_.ClipboardText(), arguments[0]);
}

void Interpreter::ExpectLaunched(Arguments arguments) {
  if (!host_.launched().empty()) return ExpectHolds("a hand-over", host_.launched(), arguments[0]);
  Fail("a hand-over with " + InQuotes(arguments[0].text), "none so far");
}

}  // namespace tarvane::script
