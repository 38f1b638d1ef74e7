#pragma once

#include <cstdint>
#include <functional>
#include <limits>
#include <ostream>
#include <span>
#include <string>
#include <string_view>

#include "script/address.h"
#include "script/script_host.h"
#include "script/script_line.h"

namespace tarvane::script {

// Runs the commands of a script on the screens that its host shows. docs/script-language.md tells the
// language.
class Interpreter {
 public:
  // Becomes the host's server. All must outlive the interpreter; failed expectations go to `err`.
  Interpreter(ScriptHost& host, LineReader& lines, std::ostream& err);

  // How many expectations failed.
  int failures() const { return failures_; }

  // ScriptError where a command is left for a program that has ended.
  void RequireNothingLeft();

 private:
  using Arguments = std::span<const Argument>;  // behind the command's name
  static constexpr std::size_t kAnyNumber = std::numeric_limits<std::size_t>::max();
  struct Command {
    std::string_view name;
    std::size_t least;  // arguments
    std::size_t most;
    std::string_view usage;
    void (Interpreter::*run)(Arguments);
  };
  static std::span<const Command> Commands();

  // Until the screen is closed; ProcessEnd at the end of the script.
  void Serve(const Screen& screen);
  void RunCommand(const std::vector<Argument>& words);
  // Runs a step of a command. False where the program failed in it: that is told as the program tells a
  // fault.
  bool Try(const std::function<void()>& step);

  // What the worker does: acting.cpp.
  void Type(Arguments arguments);
  void Enter(Arguments arguments);
  void Focus(Arguments arguments);
  void Leave(Arguments arguments);
  void Press(Arguments arguments);
  void Tick(Arguments arguments);
  void Untick(Arguments arguments);
  void Choose(Arguments arguments);
  void Select(Arguments arguments);
  void Open(Arguments arguments);
  void Close(Arguments arguments);
  void AnswerNext(Arguments arguments);
  void CancelNext(Arguments arguments);

  // What is read and expected: expecting.cpp.
  void Show(Arguments arguments);
  void ShowPrinted(Arguments arguments);
  void Expect(Arguments arguments);
  void ExpectCell(Arguments arguments);
  void ExpectRows(Arguments arguments);
  void ExpectEntries(Arguments arguments);
  void ExpectScreen(Arguments arguments);
  void ExpectTitle(Arguments arguments);
  void ExpectSaid(Arguments arguments);
  void ExpectOn(Arguments arguments);
  void ExpectOff(Arguments arguments);
  void ExpectShown(Arguments arguments);
  void ExpectHidden(Arguments arguments);
  void ExpectPrinted(Arguments arguments);
  void ExpectClipboard(Arguments arguments);
  void ExpectLaunched(Arguments arguments);

  Screen& top() const { return *host_.open_screens().back(); }
  // ScriptError unless the worker can use the control now.
  void RequireUsable(const Argument& address, const Control& control) const;
  template <typename Kind>
  Kind& Usable(const Argument& address, std::string_view wanted) const {
    Kind& control = FindKind<Kind>(address, host_.open_screens(), wanted);
    RequireUsable(address, control);
    return control;
  }
  const Control& Any(const Argument& address) const {
    return *FindControls(address, host_.open_screens()).front();
  }
  void ChooseEntry(const Argument& address, Control& control, const std::string& text) const;
  void SetBox(const Argument& address, bool on);

  void Fail(std::string_view expected, std::string_view got);
  void ExpectHolds(std::string_view what, const std::string& text, const Argument& wanted);
  void ExpectState(const Argument& address, bool as_expected, std::string_view expected,
                   std::string_view got);

  ScriptHost& host_;
  LineReader& lines_;
  std::ostream& err_;
  int failures_ = 0;
};

// A row, a column or a count; ScriptError where the word isn't a whole number from 0.
std::int64_t WholeNumber(const Argument& word);

}  // namespace tarvane::script
