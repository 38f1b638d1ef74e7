#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "script/workshop.h"

namespace tarvane::script {
namespace {

const std::string kOpened = "screen Form1 \"Workshop \\\"A\\\"\"\n";

// The transcript of a script in which all holds, without the line of the main screen.
std::string Transcript(const std::string& script, const ScriptSettings& settings = {}) {
  const Played played = Play(script, settings);
  EXPECT_EQ(played.status, 0) << script;
  EXPECT_EQ(played.err, "") << script;
  EXPECT_TRUE(played.out.starts_with(kOpened)) << played.out;
  return played.out.substr(std::min(kOpened.size(), played.out.size()));
}

struct Case {
  std::string script;
  std::string transcript;
};

TEST(Commands, DoWhatAWorkerDoes) {
  const Case cases[] = {
      {"type Measure 12\nshow Measure Log", "Measure = \"12\"\nLog = \"in;typed;\"\n"},
      {"type Measure abcdefgh\nshow 1T(4)", "1T(4) = \"abcde\"\n"},
      {"type Measure ££££££\nexpect Measure £££££", ""},
      {"enter Measure\nfocus Name\nshow Log", "Log = \"in;enter;out;\"\n"},
      {"focus Measure\nleave Measure\nleave Name\nshow Log", "Log = \"in;out;\"\n"},
      {"press CmdSave\nshow Log", "Log = \"save;\"\n"},
      {"press \"Save\"\nshow Log", "Log = \"save;\"\n"},
      {"press \"  &Save\"\nshow Log", "Log = \"save;\"\n"},
      {"press \"Name\"\npress MunName\nshow Log", "Log = \"menu;menu;\"\n"},
      {"press Label10[0]\nshow Log", "Log = \"label;\"\n"},
      {"tick AutoRoundup\ntick \"Round Up\"\nshow AutoRoundup Log\nuntick AutoRoundup\nshow AutoRoundup Log",
       "AutoRoundup = on\nLog = \"round;\"\nAutoRoundup = off\nLog = \"round;round;\"\n"},
      {"tick Inches\ntick Cms\nshow UnitIns UnitCms\nuntick UnitCms\nshow UnitCms",
       "UnitIns = off\nUnitCms = on\nUnitCms = off\n"},
      {"choose Kinds Roller\nchoose Styles \"Pinch \\\"Pleat\\\"\"\nshow Kinds Styles",
       "Kinds = \"Roller\"\nStyles = \"Pinch \\\"Pleat\\\"\"\n"},
      {"choose Styles \"Pinch \\\"Pleat\\\"\"\nchoose Styles \"\"\nexpect Styles \"\"\ntype Styles free", ""},
      {"choose Tabs \"Rooms\"\nshow Tabs\nchoose Tabs \"Customer\"\nshow Tabs",
       "Tabs = \"Rooms \"\nTabs = \" Customer\"\n"},
      {"choose Day 2028-02-29\nshow Day", "Day = \"2028-02-29\"\n"},
      {"choose Rooms Hall\nselect Rooms 1\nopen Rooms 2\nopen Rooms 0\nopen Rooms 9\nexpect Rooms \"\"\n"
       "show Log",
       "Log = \"room 1;room 0;open 1;open -1;open -1;\"\n"},
      {"select Rooms 2\nshow Rooms", "Rooms = \"Hall\"\nRooms[1] = \"Lounge\"\nRooms[2] = \"Hall\"\n"},
      {"select Items 2\nopen Items 1\nselect Items 0\nshow Log", "Log = \"row 2;row 1;opened;row 1;\"\n"},
      {"show Items",
       "Items[0] = \"Line\" \"Price\" \"Text\"\nItems[1] = \"1\" \"12.50\" \"a\\tb\"\n"
       "Items[2] = \"2\" \"3.00\" \"back\\\\slash\"\n"},
      {"show \"Save\" Label8[0] Secret Frame",
       "\"Save\" = \" &Save \"\nLabel8[0] = \"Messages\"\nSecret = \"hidden value\"\nFrame = \"\"\n"},
      {"show Text[11] 1T[4]", "Text[11] = \"eleven\"\n1T[4] = \"10\"\n"},
      {"  # a comment\n\n \t\ntype Log \"# none\"\r\nshow Log\r\n", "Log = \"# none\"\n"},
      {"\xEF\xBB\xBF# with a mark\nshow Name", "Name = \"Smith\"\n"},
  };
  for (const Case& one : cases) EXPECT_EQ(Transcript(one.script), one.transcript) << one.script;
}

TEST(Commands, TextsSurviveTheWayInAndOut) {
  const std::string text = R"("q\"b\\s\r\n\t|~ éß  ")";
  EXPECT_EQ(Transcript("type Log " + text + "\nshow Log\nexpect Log " + text), "Log = " + text + "\n");
  EXPECT_EQ(Transcript(R"(type Log a\b"c)"
                       "\nshow Log"),
            R"(Log = "a\\b\"c")"
            "\n");
  EXPECT_EQ(Transcript("type Log \"\"\nshow Log"), "Log = \"\"\n");
}

TEST(Commands, NestedScreens) {
  EXPECT_EQ(
      Transcript(
          "press Command1[0]\nexpect-screen FrmAnnexe\nexpect-title Annexe\nshow Note Form1:Name Text1 "
          "Text1[0]\nexpect Form1:Name Smith\nexpect FrmAnnexe:Note first\npress \"Done\"\n"
          "expect-screen Form1\npress Command1[0]\ntype Note x\nclose\npress Command1[0]\nexpect Note first"),
      "screen FrmAnnexe \"Annexe\"\nNote = \"first\"\nForm1:Name = \"Smith\"\nText1 = \"one\"\nText1[0] = "
      "\"zero\"\nclosed FrmAnnexe\nscreen FrmAnnexe \"Annexe\"\nclosed FrmAnnexe\nscreen FrmAnnexe "
      "\"Annexe\"\n");
  EXPECT_EQ(Transcript("close"), "closed Form1\n");
  EXPECT_EQ(Transcript("type Measure end\npress Command1[1]"), "");
}

// What the button "Add more" does is told by the field.
TEST(Commands, MessagesAndAnswers) {
  const std::string question = R"(question "Sure?" "Line one\r\nLine \"two\"" )";
  const std::string act = "\npress Command1[1]\n";
  const Case cases[] = {
      {"ask\nanswer yes\nanswer no" + act + act + "expect Log \"was no\"\nexpect-said \"Line \\\"two\"",
       question + "yes\n" + question + "no\n"},
      {"note" + act, "message \"Note\" \"Only one way\"\n"},
      {"input\nanswer \"a b\"" + act + "expect Log \"a b\"\ncancel" + act +
           "expect Log none\nexpect-said \"List Entry:\"",
       "input \"User Input\" \"List Entry:\" \"a b\"\ninput \"User Input\" \"List Entry:\" cancelled\n"},
      {"file\nanswer /tmp/x.tvs" + act + "expect Log /tmp/x.tvs\ncancel" + act,
       "file \"Open Link\" \"/tmp/x.tvs\"\nfile \"Open Link\" cancelled\n"},
      {"clip" + act + "expect-clipboard \"ied te\"\nexpect-launched a@b",
       "launched \"mailto:a@b.c\"\nbeep\n"},
      {"jump" + act + "expect-said \"can't jump\"", "message \"Tarvane\" \"The workshop can't jump.\"\n"}};
  for (const Case& one : cases)
    EXPECT_EQ(Transcript("type Measure " + one.script), one.transcript) << one.script;
}

TEST(Commands, PrintedPagesAreNumberedFromTheStart) {
  EXPECT_EQ(
      Transcript("printed\ntype Measure print\npress Command1[1]\nexpect-printed \"ab   c late\"\n"
                 "expect-printed \" \xC2\xA3 x\"\nprinted\nprinted\npress Command1[1]\nprinted"),
      "page 1\n| ab   c late\n| \npage 2\n|  \xC2\xA3 x\npage 3\n| ab   c late\n| \npage 4\n|  \xC2\xA3 x\n");
}

TEST(Commands, ClockAndDiceAreFixed) {
  const ScriptSettings settings = {DateTime{MakeDay(2026, 5, 4), 9, 30, 7}, 1, {}};
  EXPECT_EQ(Transcript("type Measure clock\npress Command1[1]\nshow Log", settings),
            "Log = \"04/05/2026 9:7\"\n");
  const std::string dice = "type Measure dice\npress Command1[1]\nshow Log";
  const std::string rolled = Transcript(dice, settings);
  EXPECT_EQ(rolled, Transcript(dice, settings));
  EXPECT_NE(rolled, Transcript(dice, {std::nullopt, 2, {}}));
  EXPECT_NE(rolled.find_first_of("13579"), std::string::npos);
}

}  // namespace
}  // namespace tarvane::script
