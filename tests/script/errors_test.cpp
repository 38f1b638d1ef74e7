#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <iomanip>
#include <sstream>

#include "script/script_error.h"
#include "script/script_options.h"
#include "script/workshop.h"

namespace tarvane::script {
namespace {

using testing::HasSubstr;

struct Wrong {
  std::string line;
  std::string told;
};

// Every line is wrong as the second of a script, stops it, and is told with its number.
void ExpectWrong(std::span<const Wrong> cases) {
  for (const Wrong& one : cases) {
    const Played played = Play("show Name\n" + one.line + "\nshow Name");
    EXPECT_EQ(played.status, 2) << one.line;
    EXPECT_EQ(played.err, "line 2: " + one.told + "\n") << one.line;
    EXPECT_EQ(played.out.find("Name ="), played.out.rfind("Name =")) << one.line;
  }
}

TEST(Errors, OfALine) {
  const Wrong cases[] = {
      {"pres CmdSave", "unknown command pres; did you mean press?"},
      {"press", "press wants BUTTON"},
      {"press CmdSave now", "press wants BUTTON"},
      {"type Measure", "type wants FIELD TEXT"},
      {"close it", "close wants nothing"},
      {"expect Items 1 2", "expect wants CONTROL TEXT or GRID ROW COLUMN TEXT"},
      {"type Measure \"abc", "a double quote isn't closed"},
      {"type Measure \"abc\\", "a double quote isn't closed"},
      {"type Measure \"a\"b", "a blank is missing behind a closing quote"},
      {"type Measure \"a\\xb\"", R"(unknown escape \x (there are \" \\ \r \n \t))"},
      {"select Items one", "one isn't a whole number from 0"},
      {"select Items -1", "-1 isn't a whole number from 0"},
      {"expect-rows Items 1.0", "1.0 isn't a whole number from 0"},
  };
  ExpectWrong(cases);
}

TEST(Errors, OfAnAddress) {
  const Wrong cases[] = {
      {"type Mesure 1", "no control Mesure on Form1; did you mean Measure?"},
      {"press cmdsave", "no control cmdsave on Form1; did you mean CmdSave?"},
      {"press \"Ad mor\"", "no control \"Ad mor\" on Form1; did you mean Add more?"},
      {"press Command1", "Command1 names none of Command1[0] to Command1[1] on Form1"},
      {"press Command1[2]", "Command1[2] names none of Command1[0] to Command1[1] on Form1"},
      {"show Measure[0]", "no control Measure[0] on Form1; did you mean Measure?"},
      {"show FrmNone:Name",
       "FrmNone:Name: no screen FrmNone is open (Form1 is on top); no control FrmNone:Name on Form1; did you "
       "mean "
       "MunName?"},
      {"show Form1:Nane", "no control Form1:Nane on Form1; did you mean Name?"},
      {"show \"\"", "no control \"\" on Form1; did you mean Log?"},
  };
  ExpectWrong(cases);
}

TEST(Errors, OfAControlThatCantDoIt) {
  const Wrong cases[] = {
      {"press Measure", "Measure on Form1 is a field, not a button"},
      {"press Label8[0]", "Label8[0] on Form1 is a label, not a button"},
      {"press AutoRoundup", "AutoRoundup on Form1 is a tick box, not a button"},
      {"type CmdSave x", "CmdSave on Form1 is a button, not a field"},
      {"enter Rooms", "Rooms on Form1 is a list, not a field"},
      {"tick CmdSave", "CmdSave on Form1 is a button, not a tick box or a round option"},
      {"choose Measure 1", "Measure on Form1 is a field, not a list, tabs or a calendar"},
      {"select Measure 1", "Measure on Form1 is a field, not a grid or a list"},
      {"open Kinds 1", "Kinds on Form1 is a drop-down list, not a grid or a list"},
      {"expect Items x", "Items on Form1 is a grid: expect GRID ROW COLUMN TEXT"},
      {"expect Name 1 1 x", "Name on Form1 is a field, not a grid"},
      {"expect-rows Rooms 2", "Rooms on Form1 is a list, not a grid"},
      {"expect-entries Items 2", "Items on Form1 is a grid, not a list"},
      {"press CmdOff", "CmdOff on Form1 is disabled"},
      {"focus CmdOff", "CmdOff on Form1 is disabled"},
      {"press CmdSaveOld", "CmdSaveOld on Form1 is hidden"},
      {"type Secret x", "Secret on Form1 is never shown"},
      {"type Fixed x", "Fixed on Form1 is read-only"},
      {"type Kinds Roman", "Kinds on Form1 takes only its entries: choose one"},
      {"choose Kinds Romans", "Kinds on Form1 has no entry \"Romans\"; did you mean \"Roman\"?"},
      {"choose Kinds roman", "Kinds on Form1 has no entry \"roman\"; did you mean \"Roman\"?"},
      {"choose Rooms Attic", "Rooms on Form1 has no entry \"Attic\"; did you mean \"Hall\"?"},
      {"choose Tabs Room", "Tabs on Form1 has no entry \"Room\"; did you mean \"Rooms\"?"},
      {"choose Day 2026-02-29", "Day on Form1 takes a day such as 2026-12-24"},
      {"choose Day 24.12.2026", "Day on Form1 takes a day such as 2026-12-24"},
      {"choose Day 2026-12-2x", "Day on Form1 takes a day such as 2026-12-24"},
      {"select Items 3", "Items on Form1 has no row 3 (there are 2)"},
      {"open Items 3", "Items on Form1 has no row 3 (there are 2)"},
      {"select Rooms 0", "Rooms on Form1 has no row 0 (there are 2)"},
  };
  ExpectWrong(cases);
}

// Only a control's own switch keeps a worker's hands off it: what stands on another page can still be
// reached.
TEST(Errors, APageThatIsNotInFrontHidesNothingFromUse) {
  const Played played = Play("expect-hidden Boxed\nexpect-shown Frame\ntype Boxed x\nexpect Boxed x");
  EXPECT_EQ(played.status, 1);
  EXPECT_EQ(played.err, "line 2: expected Frame on Form1 visible, got hidden\n");
}

TEST(Errors, OfQuestions) {
  const std::string question = R"(question "Sure?" "Line one\r\nLine \"two\"")";
  const std::string none = "no answer is waiting for the ", cant = "the " + question + " can't be answered ";
  const std::array<std::string, 3> cases[] = {
      {"", "ask", none + question},
      {"answer ok", "ask", cant + "\"ok\" (it takes yes, no)"},
      {"cancel", "ask", cant + "\"cancel\" (it takes yes, no)"},
      {"", "input", none + "input box \"User Input\" \"List Entry:\""},
      {"", "file", none + "file choice \"Open Link\" \"Open Link\""}};
  for (const auto& [before, act, told] : cases) {
    const Played played = Play(before + "\ntype Measure " + act + "\npress Command1[1]\nshow Name");
    EXPECT_EQ(played.status, 2);
    EXPECT_EQ(played.err, "line 3: " + told + (told.starts_with(none) ? " on Form1\n" : "\n"));
  }
}

TEST(Errors, OfScreens) {
  const Played below = Play("press Command1[0]\nexpect Form1:Name Smith\npress Form1:CmdSave");
  EXPECT_EQ(below.status, 2);
  EXPECT_EQ(below.err, "line 3: Form1:CmdSave on Form1 can't be used: FrmAnnexe is on top\n");

  for (const std::string ending : {"close", "type Measure end\npress Command1[1]"}) {
    const Played after = Play(ending + "\n\n# nothing\nexpect Name x");
    EXPECT_EQ(after.status, 2);
    EXPECT_THAT(after.err, HasSubstr(": the program has ended before expect"));
    EXPECT_EQ(Play(ending + "\nexpect Name x", {}, false).status, 0);
  }
}

TEST(Expectations, FailAndGoOn) {
  const std::pair<std::string, std::string> cases[] = {
      {"expect Name Smyth", "Name on Form1 = \"Smyth\", got \"Smith\""},
      {"expect AutoRoundup on", "AutoRoundup on Form1 = on, got off"},
      {"expect Label8[0] x", "Label8[0] on Form1 = \"x\", got \"Messages\""},
      {"expect CmdSave Save", "CmdSave on Form1 = \"Save\", got \" &Save \""},
      {"expect Tabs Rooms", "Tabs on Form1 = \"Rooms\", got \" Customer\""},
      {"expect Rooms Hall", "Rooms on Form1 = \"Hall\", got \"\""},
      {"expect Items 1 1 12.5", "Items on Form1 row 1 column 1 = \"12.5\", got \"12.50\""},
      {"expect Items 3 0 \"\"", "Items on Form1 row 3 column 0 = \"\", got 2 rows of 3 columns"},
      {"expect Items 1 3 \"\"", "Items on Form1 row 1 column 3 = \"\", got 2 rows of 3 columns"},
      {"expect-rows Items 3", "Items on Form1 with 3 rows, got 2"},
      {"expect-entries Rooms 3", "Rooms on Form1 with 3 entries, got 2"},
      {"expect-entries Kinds 0", "Kinds on Form1 with 0 entries, got 2"},
      {"expect-screen Form2", "screen Form2, got Form1"},
      {"expect-title Workshop", "Form1 titled \"Workshop\", got \"Workshop \\\"A\\\"\""},
      {"expect-said x", "a message with \"x\", got none so far"},
      {"expect-on CmdOff", "CmdOff on Form1 enabled, got disabled"},
      {"expect-off CmdSave", "CmdSave on Form1 disabled, got enabled"},
      {"expect-shown Secret", "Secret on Form1 visible, got hidden"},
      {"expect-shown Boxed", "Boxed on Form1 visible, got hidden"},
      {"expect-hidden Name", "Name on Form1 hidden, got visible"},
      {"expect-printed x", "a printed line with \"x\", got 0 pages without"},
      {"expect-clipboard x", "a clipboard with \"x\", got \"\""},
      {"expect-launched x", "a hand-over with \"x\", got none so far"},
  };
  for (const auto& [line, told] : cases) {
    const Played played = Play(line + "\nshow Name");
    EXPECT_EQ(played.status, 1) << line;
    EXPECT_EQ(played.err, "line 1: expected " + told + "\n") << line;
    EXPECT_THAT(played.out, HasSubstr("Name = \"Smith\"\n")) << line;
  }
  EXPECT_EQ(Play("expect Name Smyth\npress Nothing").status, 2);
}

TEST(Expectations, Hold) {
  const Played played = Play(
      "expect Items 0 1 Price\nexpect-rows Items 2\nexpect-entries Rooms 2\nexpect-entries Kinds "
      "2\nexpect-on "
      "CmdSave\nexpect-off CmdOff\nexpect-shown Name\nexpect-hidden CmdSaveOld\nexpect-hidden Secret\nexpect "
      "AutoRoundup off\nexpect Day 2026-05-04\nexpect \"Off\" Off\nexpect Name Smith");
  EXPECT_EQ(played.status, 0);
  EXPECT_EQ(played.err, "");
}

// What can't be read is told as the program tells any fault; the script goes on.
TEST(Faults, AreMessagesAndFailedExpectations) {
  const Played played = Play(R"(expect Torn 1 1 Ann
expect Torn 2 1 "B b"
expect-said damaged
show Torn Name
expect-rows Torn 3
press Command1[0]
show Form1:Torn
expect Note first)");
  EXPECT_EQ(played.status, 1);
  EXPECT_EQ(played.err, "line 2: expected an answer to expect Torn 2 1 \"B b\", got a fault\n");
  const std::string fault = "message \"Tarvane\" \"The file is damaged.\"\n";
  const auto shown = [&fault](const std::string& name) {
    return name + "[0] = \"Line\" \"Name\"\n" + name + "[1] = \"1\" \"Ann\"\n" + fault;
  };
  EXPECT_EQ(played.out, "screen Form1 \"Workshop \\\"A\\\"\"\n" + fault + shown("Torn") +
                            "Name = \"Smith\"\nscreen FrmAnnexe \"Annexe\"\n" + shown("Form1:Torn"));
}

TEST(Faults, OfTheProgramItselfEndTheScript) {
  std::istringstream script("show Name");
  std::ostringstream out;
  std::ostringstream err;
  const auto fails = [](Host&) { throw std::runtime_error("out of something"); };
  EXPECT_EQ(RunScript({}, script, true, out, err, fails), kScriptWrong);
  EXPECT_EQ(err.str(), "line 0: the program failed: out of something\n");
}

// A script that breaks off for a fault of the disk isn't taken for a whole one.
TEST(Faults, OfReadingTheScript) {
  class Torn : public std::stringbuf {
   public:
    using std::stringbuf::stringbuf;
    int_type underflow() override { throw std::runtime_error("basic_filebuf::underflow"); }
  };
  Torn torn("show Name\n", std::ios::in);
  std::istream script(&torn);
  const Played played = Play(script, {}, true);
  EXPECT_EQ(played.status, kScriptWrong);
  EXPECT_EQ(played.err, "line 1: the script can't be read any further\n");
  EXPECT_THAT(played.out, testing::EndsWith("Name = \"Smith\"\n"));
}

// FOLDER is one that is there.
ScriptOptions Parsed(const std::string& line) {
  std::vector<std::string> words;
  std::istringstream rest(line);
  for (std::string word; rest >> std::quoted(word);) {
    words.push_back(word.starts_with("FOLDER") ? testing::TempDir() + word.substr(6) : word);
  }
  return ParseScriptOptions(words);
}

TEST(Options, ArriveAndAreChecked) {
  const ScriptOptions all = Parsed("--now 2026-05-04T09:30:59 --seed 4294967295 FOLDER a.story");
  const DateTime now = all.settings.now.value();
  EXPECT_EQ(LongDate(now.day), "04/05/2026");
  EXPECT_EQ(now.hour * 10000 + now.minute * 100 + now.second, 93059);
  EXPECT_EQ(all.settings.seed, 4294967295U);
  EXPECT_EQ(all.folder, testing::TempDir());
  EXPECT_EQ(all.script, "a.story");
  const ScriptOptions bare = Parsed("FOLDER");
  EXPECT_FALSE(bare.script || bare.settings.now || bare.settings.seed);
  const ScriptOptions ended = Parsed("--seed 1 -- FOLDER --now");
  EXPECT_EQ(ended.folder, testing::TempDir());
  EXPECT_EQ(ended.script, "--now");
  for (const char* wrong : {"", "FOLDER/none", "FOLDER a b", "--speed FOLDER", "FOLDER --now",
                            "--seed -1 FOLDER", "--seed 4294967296 FOLDER", "--seed \"\" FOLDER",
                            "--now 2026-02-29T09:30:00 FOLDER", "--now 2026-05-04T24:00:00 FOLDER",
                            "--now \"2026-05-04 09:30:00\" FOLDER", "--now 2026-05-04T09:30 FOLDER"}) {
    EXPECT_THROW(Parsed(wrong), ScriptError) << wrong;
  }
  EXPECT_THROW(Parsed(std::string(300, 'x')), ScriptError);
}

}  // namespace
}  // namespace tarvane::script
