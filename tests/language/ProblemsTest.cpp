// What is wrong in whole pairs: the problems of those in tests/pairs/ stand beside them as NAME.problems.
// With TARVIK_PROMOTE=1 in the environment they are written anew, for someone to look at.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <random>

#include "support/Checks.h"
#include "support/ModelPrinters.h"
#include "support/Pairs.h"
#include "text/CodePage.h"
#include "text/Rtf.h"

namespace tarvik::model {
namespace {

namespace fs = std::filesystem;

JudgedPair Judged(const Pair& pair) {
  const std::string joystick = pair.path.filename();
  const std::string macros = pair.macroPath.filename();
  const bool isThere = fs::exists(pair.macroPath);
  return {pair.joystick,
          pair.macros,
          {JoystickOf(pair.path.extension().string().substr(1))},
          {joystick, isThere ? std::string_view(macros) : std::string_view{}, !isThere}};
}

/// A line for each problem as the command line tells it, and its advice below.
std::string Told(const Pair& pair, const JudgedPair& judged) {
  LinePositions joystick(judged.joystickText);
  LinePositions macros(judged.macroText);
  std::ostringstream out;
  for (const Problem& problem : judged.problems) {
    const bool inJoystick = problem.file == FileKind::Joystick;
    const LineAndColumn at = (inJoystick ? joystick : macros).Of(problem.range.start);
    out << (inJoystick ? pair.path : pair.macroPath).filename().string() << ':' << at.line << ':' << at.column
        << ": " << NameOf(problem.rule->severity) << ": " << ToUtf8(problem.text) << " [" << problem.rule->id
        << "]\n    " << ToUtf8(problem.advice) << '\n';
  }
  return out.str();
}

std::vector<std::string> ErrorsAndWarnings(const JudgedPair& judged) {
  std::vector<std::string> told;
  for (const Problem& problem : judged.problems) {
    if (problem.rule->severity != Severity::Hint) told.push_back(problem.text);
  }
  return told;
}

void ExpectInOrder(const JudgedPair& judged, const std::string& name) {
  const auto place = [](const Problem& problem) { return std::pair(problem.file, problem.range.start); };
  EXPECT_TRUE(std::ranges::is_sorted(judged.problems, {}, place)) << name;
  for (const Problem& problem : judged.problems) {
    const std::string& text = problem.file == FileKind::Joystick ? judged.joystickText : judged.macroText;
    EXPECT_TRUE(problem.range.length > 0 || text.empty()) << name << ": " << problem.rule->id;
    EXPECT_LE(problem.range.End(), text.size()) << name << ": " << problem.rule->id;
  }
}

TEST(Problems, OfThePairsAreTheGoldenOnes) {
  for (const Pair& pair : Pairs()) {
    fs::path golden = pair.path;
    golden.replace_extension(".problems");
    const std::string told = Told(pair, Judged(pair));
    if (std::getenv("TARVIK_PROMOTE") != nullptr) std::ofstream(golden, std::ios::binary) << told;
    EXPECT_TRUE(fs::exists(golden)) << golden;
    EXPECT_EQ(told, Read(golden)) << golden;
  }
}

TEST(Problems, AreSortedAndLieInTheText) {
  for (const Pair& pair : Pairs()) ExpectInOrder(Judged(pair), pair.path);
}

TEST(Problems, ARuleTellsOfAPlaceOnce) {
  for (const Pair& pair : Pairs()) {
    std::set<std::tuple<std::string_view, FileKind, std::size_t, std::size_t>> seen;
    for (const Problem& each : Judged(pair).problems) {
      EXPECT_TRUE(seen.emplace(each.rule->id, each.file, each.range.start, each.range.length).second)
          << pair.path << ": " << each.text;
    }
  }
}

TEST(Problems, TidyPairsHaveNoErrorsAndNoWarnings) {
  std::size_t tidy = 0;
  for (const Pair& pair : Pairs()) {
    if (!pair.IsTidy()) continue;
    ++tidy;
    EXPECT_THAT(ErrorsAndWarnings(Judged(pair)), testing::IsEmpty()) << pair.path;
  }
  EXPECT_GT(tidy, 10u);
}

TEST(Problems, TheSamplesHaveNoErrorsAndNoWarnings) {
  const std::vector<Pair> samples = PairsIn(TARVIK_DATA "/samples");
  EXPECT_EQ(samples.size(), 3u);
  for (const Pair& pair : samples)
    EXPECT_THAT(ErrorsAndWarnings(Judged(pair)), testing::IsEmpty()) << pair.path;
}

TEST(Problems, TheTemplatesHaveNoErrorsAndNoWarnings) {
  std::size_t templates = 0;
  for (const auto& entry : fs::directory_iterator(TARVIK_DATA "/Templates")) {
    ++templates;
    const std::string text = ReadRtf(Read(entry.path())).text;
    EXPECT_THAT(ErrorsAndWarnings(JudgedPair(text, "")), testing::IsEmpty()) << entry.path();
  }
  EXPECT_EQ(templates, 25u);
}

TEST(Problems, TheTemplatesOfASinglesStickHaveNoneForThatStick) {
  for (const JoystickRow& row : kJoysticks) {
    const std::string name(row.inComposer);
    const fs::path path = fs::path(TARVIK_DATA "/Templates") / (name + ".rtf");
    ASSERT_TRUE(fs::exists(path)) << path;
    const Hardware hardware{static_cast<int>(&row - kJoysticks)};
    const std::string text = ReadRtf(Read(path)).text;
    EXPECT_THAT(ErrorsAndWarnings(JudgedPair(text, "", hardware)), testing::IsEmpty()) << path;
  }
}

/// The examples of a kind in the help.
std::vector<std::string> HelpExamples(const std::string& kind) {
  const std::string content = Read(TARVIK_DATA "/tarvik.hlp");
  const std::string help = content.substr(0, content.find("<!-- group: What problems mean -->"));
  const std::string fence = "```" + kind;
  std::vector<std::string> examples;
  for (std::size_t at = help.find(fence); at != std::string::npos; at = help.find(fence, at)) {
    const std::size_t start = help.find('\n', at) + 1;
    at = help.find("```", start);
    examples.push_back(WithPaneLineBreaks(help.substr(start, at - start)));
  }
  return examples;
}

TEST(Problems, TheExamplesOfTheHelpHaveNoErrorsAndNoWarnings) {
  const std::vector<std::string> joystick = HelpExamples("joystick");
  const std::vector<std::string> macros = HelpExamples("macro");
  EXPECT_GT(joystick.size(), 20u);
  EXPECT_GT(macros.size(), 3u);
  for (const std::string& example : joystick) {
    // A flag's DEF may stand in another example, and an example may show several ways side by side.
    for (const Problem& problem : JudgedPair(example, "").problems) {
      const bool known =
          problem.rule->id == "control-assigned-twice" || problem.rule->severity == Severity::Hint;
      EXPECT_TRUE(known) << example << problem.text;
    }
  }
  for (const std::string& example : macros)
    EXPECT_THAT(ErrorsAndWarnings(JudgedPair("", example)), testing::IsEmpty());
}

TEST(Problems, StayInOrderAndInTheTextWhateverBecomesOfAPair) {
  constexpr const char* kPieces[] = {"\r\n", " ", "x",         "/P ",        "BTN S1 ", "(",
                                     ")",    "=", "RAW (#1C ", "DEF X1 X2 ", "\0"};
  std::mt19937 random(5);
  for (const Pair& pair : Pairs()) {
    std::string joystick = pair.joystick;
    std::string macros = pair.macros;
    for (int i = 0; i < 40; ++i) {
      std::string& text = random() % 2 == 0 ? joystick : macros;
      const std::size_t start = random() % (text.size() + 1);
      text.replace(start, std::min<std::size_t>(random() % 9, text.size() - start),
                   kPieces[random() % std::size(kPieces)]);
      ExpectInOrder(JudgedPair(joystick, macros), pair.path);
    }
  }
}

// What the examples of the rules do not show.

std::string FirstText(const std::string& joystick, const std::string& macros) {
  const JudgedPair pair(joystick, macros);
  return pair.problems.empty() ? std::string() : pair.problems.front().text;
}

TEST(Problems, AnUndefinedMacroGetsTheNearestNames) {
  EXPECT_EQ(FirstText("MDEF a\nBTN S1 Fire_Gnu Fire_Gun Fire_Guns", "Fire_Gun = a\nFire_Guns = b\n"),
            "No macro is called \"Fire_Gnu\". Did you mean \"Fire_Gun\" or \"Fire_Guns\"?");
  EXPECT_EQ(FirstText("MDEF a\nBTN S1 Landing_Gear Fire_Gun", "Fire_Gun = a\n"),
            "No macro is called \"Landing_Gear\".");
}

TEST(Problems, AWordThatIsLikeAKeysGetsTheKeysName) {
  EXPECT_EQ(FirstText("MDEF a\nBTN S1 CTRL Gun", "Gun = a\n"),
            "No macro is called \"CTRL\". Did you mean \"CTL\"?");
  EXPECT_EQ(FirstText("MDEF a\nBTN S1 SHIFT Gun", "Gun = a\n"),
            "No macro is called \"SHIFT\". Did you mean \"SHF\"?");
}

TEST(Problems, TwoBracketsAroundKeysAreLoose) {
  EXPECT_EQ(JudgedPair("MDEF a\nBTN S1 Gun (Gun a)\n", "Gun = SPC\n").Rules(), "loose-brackets");
  EXPECT_EQ(JudgedPair("BTN S1 ( a\nBTN S2 ) a (\nBTN S3 /P ( /R )\nBTN S4 ( )\n", "").Rules(), "");
}

TEST(Problems, AComparisonTellsWhatIsWrongInIt) {
  EXPECT_EQ(FirstText("DEF X1 CMPGT(THR 110)\nBTN X1 a\n", ""), "An axis goes up to 100, and never to 110.");
  EXPECT_EQ(FirstText("DEF X1 CMPLT(ABC 10)\nBTN X1 a\n", ""), "\"ABC\" is no axis.");
  EXPECT_EQ(FirstText("DEF X1 CMPLT(THR ten)\nBTN X1 a\n", ""),
            "\"CMPLT(THR ten)\" is not of the form CMPLT(THR 10).");
}

TEST(Problems, WithoutAnyMacroNothingIsKnownOfNames) {
  EXPECT_EQ(JudgedPair("BTN S1 Gun\n", "Rem nothing yet\n").Rules(), "");
  EXPECT_EQ(JudgedPair("BTN S1 Gun\n", "Launch = a\n").Rules(), "undefined-macro");
}

TEST(Problems, WhatIsNoKeyWantsAnMdefWhereThereIsNoMacroFile) {
  const FileNames alone{"strike.b50", "", true};
  const JudgedPair pair("BTN S1 SPC Gun\n", "", {}, alone);
  ASSERT_EQ(pair.Rules(), "no-mdef");
  EXPECT_EQ(pair.problems.front().text, "\"Gun\" is no key, and no MDEF says in which file it is a macro.");
  EXPECT_EQ(JudgedPair("BTN S1 ^ SPC GAME1\n", "", {}, alone).Rules(), "");
}

TEST(Problems, TheCaseOfAMacrosNameDoesNotMatter) {
  EXPECT_EQ(JudgedPair("MDEF a\nBTN S1 GUN\n", "Gun = SPC\n").Rules(), "");
}

TEST(Problems, TheSignForNoKeyIsNoMacro) {
  EXPECT_EQ(JudgedPair("MDEF a\nNULLCHR none\nBTN S1 None\nBTN S2 Gun\n", "Gun = SPC\n").Rules(), "");
}

TEST(Problems, WordsOfTheManualsAreNoMacros) {
  EXPECT_EQ(JudgedPair("MDEF a\nBTN S1 GAME1 Gun\n", "Gun = SPC\n").Rules(), "");
}

TEST(Problems, AKeyIsLetGoByAMacroBehindRelease) {
  const std::string macros = "Down = RAW (#29)\nUp = RAW (#F0 #29)\n";
  EXPECT_EQ(JudgedPair("MDEF a\nBTN S1 /P Down /R Up\n", macros).Rules(), "");
  EXPECT_EQ(JudgedPair("MDEF a\nBTN S1 /P Down\nBTN S2 Up\n", macros).Rules(), "key-stays-down");
  EXPECT_EQ(JudgedPair("MDEF a\nBTN S1 /T Down /T Up\n", macros).Rules(), "");
}

TEST(Problems, AMacroWhoseKeyNothingLetsGoIsToldOfOnce) {
  const JudgedPair pair("MDEF a\nBTN S1 Down\nBTN S2 /P Down\n", "Down = RAW (#29)\n");
  EXPECT_EQ(pair.Rules(), "make-without-break");
  EXPECT_EQ(pair.Words(pair.problems.front()), "#29");
}

TEST(Problems, ABreakCodeMustComeBehindTheMakeCode) {
  EXPECT_EQ(JudgedPair("BTN S1 RAW (#F0 #29 #29)\n", "").Rules(), "make-without-break");
  EXPECT_EQ(JudgedPair("BTN S1 RAW (#E0 #75 #F0 #75)\n", "").Rules(), "make-without-break");
  EXPECT_EQ(JudgedPair("BTN S1 RAW (#E0 #75 #E0 #F0 #75)\n", "").Rules(), "");
}

TEST(Problems, PauseIsPressedAndLetGoByItsOneCode) {
  EXPECT_EQ(JudgedPair("BTN S1 RAW (#E1 #14 #77 #E1 #F0 #14 #77)\n", "").Rules(), "");
}

TEST(Problems, BehindHoldTheStickLetsGo) { EXPECT_EQ(JudgedPair("BTN S1 /H RAW (#29)\n", "").Rules(), ""); }

TEST(Problems, WhatIsAttachedIsWhatUseSays) {
  EXPECT_EQ(JudgedPair("USE WCS\nBTN T9 a\n", "", {kFlcs}).Rules(), "control-not-here");
  EXPECT_EQ(JudgedPair("USE TQS\nBTN T9 a\n", "", {kFlcs, kWcs}).Rules(), "");
  EXPECT_EQ(JudgedPair("BTN T9 a\n", "", {kFlcs}).Rules(), "");
  EXPECT_EQ(JudgedPair("BTN T9 a\n", "", {kFlcs, kWcs}).Rules(), "control-not-here");
}

TEST(Problems, TheRockerIsOnTheWcsBesideAPlainStick) {
  EXPECT_EQ(JudgedPair("USE WCS\nRKR  UP a\n", "", {kPfcs}).Rules(), "");
  EXPECT_EQ(JudgedPair("USE WCS\nRKR UP a\n", "", {kFlcs}).Rules(), "control-not-here");
}

TEST(Problems, EachPortIsAssignedOnce) {
  EXPECT_EQ(JudgedPair("PortB1 IS S1\nPortB2 IS S2\nportb1 IS S4\n", "").Rules(), "setting-twice");
  EXPECT_EQ(JudgedPair("SWAPTG\nSWAPTG\n", "").Rules(), "setting-twice");
}

TEST(Problems, AConditionsControlsAreLookedAt) {
  EXPECT_EQ(JudgedPair("DEF X1 S1 AND S9\nBTN X1 a\n", "").Rules(), "unknown-control");
}

TEST(Problems, WhatIsWrongOnceIsToldOnce) {
  EXPECT_EQ(JudgedPair("DEF S1 OR\n", "").Rules(), "flag-missing");
  EXPECT_EQ(JudgedPair("DEF X1 S1 and S2\nBTN X1 a\n", "").Rules(), "logic-in-small-letters");
  EXPECT_EQ(JudgedPair("def X1 S1\n", "").Rules(), "logic-in-small-letters");
  EXPECT_EQ(JudgedPair("BTN S1 DLY(\n", "").Rules(), "unclosed-bracket");
}

TEST(Problems, AllFlagsOfACircleAreTold) {
  EXPECT_EQ(JudgedPair("DEF X1 X2\nDEF X2 X1\nDEF X3 X1\nBTN X3 a\n", "").Rules(),
            "flag-in-circle flag-in-circle");
}

TEST(Problems, AVeryLongChainOfMacrosIsFollowed) {
  std::string macros = "M0 = M1\n";
  for (int i = 1; i < 100'000; ++i) macros += "M" + std::to_string(i) + " = M" + std::to_string(i + 1) + "\n";
  macros += "M100000 = M0\n";
  EXPECT_EQ(JudgedPair("", macros).problems.size(), 100'001u);
}

TEST(Problems, LinesAndColumnsCountFromOne) {
  LinePositions positions("ab\r\ncd\n");
  EXPECT_EQ(positions.Of(0), (LineAndColumn{1, 1}));
  EXPECT_EQ(positions.Of(5), (LineAndColumn{2, 2}));
  EXPECT_EQ(positions.Of(1), (LineAndColumn{1, 2}));
  EXPECT_EQ(positions.Of(99), (LineAndColumn{3, 1}));
}

}  // namespace
}  // namespace tarvik::model
