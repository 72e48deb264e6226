// The session runner tells what is wrong with a session instead of passing over it, and nothing in one makes
// it crash.
#include <gmock/gmock.h>

#include <algorithm>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>

#include "session/Runner.h"

namespace tarvik::session {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::SizeIs;
using ::testing::StartsWith;

std::vector<std::string> Failures(const std::string& script) {
  return Runner(MakeFormDriver, TARVIK_DATA).Run(script);
}

/// The program with a list of two macros.
constexpr const char* kStarted =
    "file c:\\my\\a.m50\n"
    "  Gear = g\n"
    "  Flaps = f\n"
    "start c:\\my\\a.m50\n";

TEST(Runner, PassesWhatHolds) {
  EXPECT_THAT(
      Failures(std::string(kStarted) + "pick Editor.List1(0) #1\nexpect Editor.List1(0).ListIndex 1\n"),
      IsEmpty());
}

class Mistake : public ::testing::TestWithParam<const char*> {};

/// A line that reads wrong fails with its number, and nothing of the session runs.
TEST_P(Mistake, IsToldBeforeAnythingRuns) {
  EXPECT_THAT(Failures(std::string(GetParam()) + "\nexpect file c:\\not\\there\n"),
              ElementsAre(StartsWith("1: ")));
}

INSTANTIATE_TEST_SUITE_P(
    Runner, Mistake,
    ::testing::Values("clik Editor.JoystickText", "click Editr.Command1(0)", "expect form Composer",
                      "expect no form Composer", "close Pimlet", "wait 9999999s",
                      "mouse down Editor.List1(0) 1 nan 5", "resize Mum inf 5",
                      "expect no list Editor.List1(0)", "expect file c:\\a open",
                      "key Editor.JoystickText Ctrl+Zap", "key Editor.JoystickText Retrun",
                      "key Editor.JoystickText F25", "key Editor.JoystickText Ctrl+A many",
                      "keydown Editor.JoystickText Ctrl+A 2", "pick Editor.List1(0)",
                      "pick Editor.List1(x) #0", "expect no bokks", "expect no box today", "expect ended now",
                      "expect Editor", "expect Editor.JoystickText.Text", "click Editor.JoystickText twice",
                      "wait long", "wait 5", "mouse jump Editor.List1(0) 1 2 3",
                      "mouse down Editor.List1(0) 1 2", "resize Editor wide 300", "answer Maybe", "choose",
                      "room much", "bytes c:\\a 4Z", "lock scroll 1", "joystick w 3", "joystick x",
                      "expect box \"one\" two three four", "expect colour Editor.JoystickText a 1 0",
                      "type Editor.JoystickText \"no end", "click Editor.JoystickText\n  a block",
                      "repeat c:\\a.b50 3", "expect printed", "set value InsertionText",
                      "call Editor.Form_Activate now", "call Editor.ExtractButtonDefinition S1 S2",
                      "without Colours", "click OK in Composer", "click OK on Editor",
                      "expect OK in Editor Enabled", "drag Editor.List1(0) Gear Editor.JoystickText end"));

class Impossible : public ::testing::TestWithParam<const char*> {};

/// What cannot be done or seen fails the session.
TEST_P(Impossible, IsToldWithoutACrash) {
  const auto failures = Failures(std::string(kStarted) + GetParam() + "\n");
  ASSERT_THAT(failures, SizeIs(1));
  EXPECT_THAT(failures[0], StartsWith("5: "));
}

INSTANTIATE_TEST_SUITE_P(
    Runner, Impossible,
    ::testing::Values(
        "pick Editor.List1(0) #9", "pick Editor.List1(0) #-1", "pick Editor.List1(0) Brakes",
        "pick Editor.TabStrip1 #2", "pick Editor.Combo1 #7", "click Editor.Command1(13)",
        "click Editor.Comand1", "expect no list mnuJFAray(3)", "expect Editor.TabStrip1.Colour 3",
        "expect value Joystick 3", "set Editor.JoystickText.SelStart here", "set value JoystickDirty yes",
        "call Editor.Explode", "key Editor.JoystickText a 9999999999", "expect focus Editor.MacroTxt",
        "drag Editor.List1(0) Gear Editor.List1(0) 0", "type Editor.Combo1 abc", "expect popup mnuRHMouse",
        "expect help anything", "click \"Push me\" in Editor", "click \"Save\" in Editor",
        "click OK in Preferences", "expect /U in Editor Colour 3", "call KeyTestForm.TurnOffCapsLOCK",
        "call Editor.ExtractButtonDefinition", "expect colour Editor.JoystickText 0 999999999 0"));

class Leftover : public ::testing::TestWithParam<const char*> {};

/// What is prepared and never comes fails the line that prepared it, not the last one.
TEST_P(Leftover, IsToldByItsOwnLine) {
  const auto failures =
      Failures(std::string(kStarted) + GetParam() + "\nexpect Editor.Visible True\nexpect running\n");
  ASSERT_THAT(failures, SizeIs(1));
  EXPECT_THAT(failures[0], StartsWith("5: "));
}

INSTANTIATE_TEST_SUITE_P(Runner, Leftover,
                         ::testing::Values("program runs", "program abandoned", "program fails 53",
                                           "choose later", "answer later", "choose c:\\my\\a.b50",
                                           "answer Yes"));

TEST(Runner, HoldsOneBoxAtATime) {
  EXPECT_THAT(Failures(std::string(kStarted) + "answer later\nanswer later\n"),
              ElementsAre(StartsWith("6: "), StartsWith("5: ")));
}

/// What is used up is not told.
TEST(Runner, KnowsWhichOfTwoAnswersIsLeft) {
  EXPECT_THAT(Failures(std::string(kStarted) + "answer OK\nanswer Yes\nclick Editor.mnuViewIdentify\n"
                                               "expect box \"You're kidding me...right?!\"\n"),
              ElementsAre(StartsWith("6: ")));
}

/// A caption as a user reads it, without its mnemonic, names a control; of several the one that is not
/// hidden.
TEST(Runner, FindsAControlByItsCaption) {
  EXPECT_THAT(Failures("click Editor.mnuInsertTitle\nexpect OK in Title Enabled True\n"
                       "click Cancel in Title\nexpect no form Title\n"),
              IsEmpty());
  EXPECT_THAT(Failures("set Editor.Command1(0).Caption Twice\nset Editor.Command1(1).Caption &Twice\n"
                       "set Editor.Command1(0).Visible False\nexpect Twice in Editor Caption &Twice\n"
                       "set Editor.Command1(1).Visible False\nexpect Twice in Editor Visible False\n"),
              ElementsAre(StartsWith("6: ")))
      << "of two hidden ones neither is meant";
}

TEST(Runner, TellsTheNamesOfControlsOfOneCaption) {
  EXPECT_THAT(Failures("click \"Tile vertically\" in Editor\n"),
              ElementsAre(HasSubstr("mnuViewTileVertically mnuWindowCascade(2)")));
}

TEST(Runner, TellsAnEmptySession) { EXPECT_THAT(Failures("# Nothing but a word.\n"), SizeIs(1)); }

/// The program starts by itself for the first line that needs it, once.
TEST(Runner, StartsWhereNothingDid) {
  EXPECT_THAT(Failures("expect running\nexpect no box\n"), IsEmpty());
  EXPECT_THAT(Failures("file c:\\a.b50\nchoose c:\\a.b50\nclick Editor.mnuFileJoystickLoad\n"
                       "expect value JoystickName a.b50\n"),
              IsEmpty());
  EXPECT_THAT(Failures("killed\nclick Editor.mnuFileOpen\n"), ElementsAre(HasSubstr("no program runs")));
}

/// A first start asks for the preferences, and the line that caused it works inside them.
TEST(Runner, BeginsWithAnOrdinaryDay) {
  EXPECT_THAT(Failures("expect ini FileLocations FirstTimeUsed 0\nexpect no form frmTip\n"), IsEmpty());
  EXPECT_THAT(Failures("without FirstTimeUsed\nexpect box \"Tarvik initialising ...\"\n"
                       "expect form Preferences\nclick Preferences.Command3\n"),
              IsEmpty());
}

TEST(Runner, TellsThatTheProgramHasEnded) {
  for (const char* const line :
       {"expect form Editor", "expect no form Editor", "expect no list mnuJFArray(1)",
        "expect value JoystickDirty 0", "click Editor.JoystickText", "close Mum", "call Editor.Form_Activate",
        "expect Editor.Visible True", "expect colour Editor.JoystickText 0 1 0", "set value JoystickDirty 1",
        "expect focus Editor.JoystickText"}) {
    const auto failures = Failures(std::string(kStarted) + "killed\n" + line + "\n");
    ASSERT_THAT(failures, SizeIs(1)) << line;
    EXPECT_THAT(failures[0], HasSubstr("no program runs")) << line;
  }
}

TEST(Runner, KillsNothingInTheMiddleOfAHandler) {
  for (const char* const open : {"click Editor.mnuHelpTips\n", "answer later\nclick Editor.mnuViewIdentify\n",
                                 "choose later\nclick Editor.mnuFileOpen\n"}) {
    EXPECT_THAT(Failures(std::string(kStarted) + open + "killed\n"), Not(IsEmpty())) << open;
  }
}

TEST(Runner, TellsABoxThatNobodyExpects) {
  const std::string box = std::string(kStarted) + "click Editor.mnuViewIdentify\n";
  EXPECT_THAT(Failures(box), SizeIs(1));
  EXPECT_THAT(Failures(box + "expect no box\nexpect box \"You're kidding me...right?!\"\n"), SizeIs(1));
}

using Words = std::set<std::string>;

/// The words of a text that the pattern finds.
Words WordsIn(const std::string& text, const char* pattern) {
  const std::regex word(pattern);
  Words found;
  for (std::sregex_iterator at(text.begin(), text.end(), word), end; at != end; ++at) found.insert((*at)[0]);
  return found;
}

/// Of each row of the tables in the instructions for those who write sessions: the words between backquotes.
std::vector<Words> RowsOfTheInstructions() {
  std::ifstream file(TARVIK_DATA "/../docs/CONTRIBUTING.md");
  std::vector<Words> rows;
  for (std::string line; std::getline(file, line);) {
    std::string code;
    if (!line.starts_with("| `")) continue;
    for (const std::string& span : WordsIn(line, "`[^`]+`")) code += span + ' ';
    rows.push_back(WordsIn(code, "[A-Za-z_.]+"));
  }
  return rows;
}

/// What a line of the shape may be made of, each with the words that all such lines have: a set for
/// "expect no file TEXT", and three for "program runs|ends|abandoned". Kinds of words stand in capitals.
std::vector<Words> WordsToTell(std::string_view shape) {
  Words always;
  std::vector<Words> choices;
  std::istringstream parts{std::string(shape)};
  for (std::string part; parts >> part;) {
    Words words;
    for (const std::string& word : WordsIn(part, "[A-Za-z_.]+")) {
      const bool isKind = std::all_of(word.begin(), word.end(), [](char c) { return c < 'a'; });
      if (!isKind || word == "OK") words.insert(word);
    }
    const bool isFixed = part.find_first_of("[|") == std::string::npos;
    (isFixed ? always : choices.emplace_back()).merge(words);
  }
  std::vector<Words> sets = {always};
  for (const Words& choice : choices) {
    for (const std::string& word : choice) {
      sets.push_back(always);
      sets.back().insert(word);
    }
  }
  return sets;
}

TEST(Instructions, TellEveryLineThatASessionMayHave) {
  const std::vector<Words> rows = RowsOfTheInstructions();
  ASSERT_GT(rows.size(), 40U);
  for (const std::string_view shape : Runner::Shapes()) {
    for (const Words& words : WordsToTell(shape)) {
      const auto hasAll = [&words](const Words& row) {
        return std::includes(row.begin(), row.end(), words.begin(), words.end());
      };
      EXPECT_TRUE(std::any_of(rows.begin(), rows.end(), hasAll))
          << shape << ": " << testing::PrintToString(words);
    }
  }
}

}  // namespace
}  // namespace tarvik::session
