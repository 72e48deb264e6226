#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>
#include <random>

#include "language/SyntaxColouring.h"
#include "support/LiteralPasses.h"
#include "text/CodePage.h"

namespace tarvik {
namespace {

std::string Lower(std::string text) {
  for (char& letter : text) letter = ToLower(letter);
  return text;
}

constexpr std::string_view kLetters = ".BSRMC";  // in the order of ColourClass
constexpr Colour kNumbered[kColourClasses] = {Colour{0}, Colour{1}, Colour{2},
                                              Colour{3}, Colour{4}, Colour{5}};

std::string LettersOf(const ColourRuns& colours) {
  std::string letters;
  for (std::size_t i = 0; i < colours.size(); ++i) letters += kLetters[NumberOf(colours.At(i))];
  return letters;
}

std::string Paint(const std::string& text, std::span<const Pass> passes) {
  SyntaxColouring colouring(text, passes);
  colouring.Run();
  return LettersOf(colouring.Colours(kNumbered));
}

std::string Joystick(const std::string& text) { return Paint(text, JoystickPasses()); }
std::string Macro(const std::string& text) { return Paint(text, MacroPasses()); }

struct Example {
  const char* text;
  const char* joystick;
  const char* macro;  ///< null: as in a joystick file
};

constexpr Example kButtons[] = {
    {"BTN S1 Fire", "BBBBBB.....", nullptr},
    {"btn s1 Fire", "BBBBBB.....", nullptr},
    {"DEF X1 Fire", "BBBBBB.....", nullptr},
    {"def X1 Fire", "...........", nullptr},
    {"BTNS S1", ".......", nullptr},
    {"XBTN S1", ".......", nullptr},
    {"BTN", "BBB", nullptr},
    {"BTN ", "BBBB", nullptr},
    {"BTN  S1", "BBBB...", nullptr},
    {"BTN\r\nUSE\r\nx y", "BBBBBBBBBBB..", nullptr},    // over line ends, up to the next blank
    {"BTN S1\r\nfoo bar", "BBBBBBBBBBB....", nullptr},  // likewise with an operand
    {"BTN BTN S1", "BBBBBBBBBB", nullptr},              // the operand is searched too
};

constexpr Example kModifiers[] = {
    {"a /U Up", "..SS...", nullptr}, {"a /u", "..SS", nullptr},
    {"a / b", ".....", nullptr},     {"a /\r\nb", "......", nullptr},
    {"a /", "..S", nullptr},  // nothing behind it is neither a blank nor a line end
    {"a/U", "...", nullptr},         {"\r\n/U", "....", nullptr},
    {"/U a", "SS..", nullptr},  // nothing stands before the first character
    {"/ a", "SS.", nullptr},         {"a //U", "..SS.", nullptr},
};

constexpr Example kBrackets[] = {
    {"RAW (1 2)", "RRRRR...R", nullptr},
    {"raw(1 2)", "RRRR...R", nullptr},
    {"raw (1)", "RRRRR.R", nullptr},
    {"dly(1)", "RRRR.R", nullptr},
    {"rpt(1)", "RRRR.R", nullptr},
    {"DLY(60)", "RRRR..R", nullptr},
    {"RPT(2) x", "RRRR.R..", nullptr},
    {"xRAW(1)", ".RRRR.R", nullptr},        // no whole word
    {"RAW(1\r\n2)", "RRRR....R", nullptr},  // over line ends
    {"RAW  (1)", "........", nullptr},
    {"DLY (60)", "........", nullptr},
    {"DLY(DLY(1)2)", "RRRR.....R..", nullptr},  // what lies in brackets is not searched
};

constexpr Example kOpenBrackets[] = {
    {"DLY(6 DLY(6 RPT(2", "RRRR........RRRR.", nullptr},
    {"RPT(2) RPT(3 USE x", "RRRR.R.RRRR..MMM..", nullptr},
    {"RAW (", "RRRRR", nullptr},
};

constexpr Example kCases[] = {
    {"and ", "....", nullptr},     {"not ", "....", nullptr}, {"or ", "...", nullptr},
    {"f22rst", "......", nullptr}, {"ant ", "MMM.", "...."},  {"rng ", "MMM.", "...."},
};

constexpr Example kComparisons[] = {
    {"CMPLT(1)", "MMMMM...", nullptr},       {"CMPGT(1)", "MMMMM...", nullptr},
    {"CMPLT (1)", ".........", nullptr},     {"cmplt(1)", "........", nullptr},
    {"cmpgt(1)", "........", nullptr},       {"xCMPLT(1)", ".MMMMM...", "........."},
    {"xCMPGT(1)", ".MMMMM...", "........."}, {"DELAY(5)", "RRRRR...", nullptr},
    {"PULSE(5)", "RRRRR...", nullptr},       {"xDELAY(5)", ".RRRRR...", nullptr},
    {"xPULSE(5)", ".RRRRR...", nullptr},     {"delay(5)", "........", nullptr},
    {"pulse(5)", "........", nullptr},       {"PULSE (5)", ".........", nullptr},
};

constexpr Example kPlainWords[] = {
    {"F22RST", "MMMMMM", nullptr},
    {"a F22RST.", "..MMMMMM.", nullptr},
    {"F22RSTx", ".......", nullptr},
};

constexpr Example kPorts[] = {
    {"PortB1 IS S2 x\r\nz", "MMMMMMMMMBBBBB...", "................."},
    {"portb1 iS S2", "MMMMMMMMMBBB", "............"},
    {"xPortB S", ".MMMMMMM", "........"},
    {"PortB is set", "MMMMMMMMMMMM", "............"},
    {"PortB S\r\nx", "MMMMMMM...", ".........."},
};

constexpr Example kRockers[] = {
    {"RKR UP x", "MMMMMM..", "........"}, {"rkr dn x", "MMMMMM..", "........"},
    {"rkr up x", "MMMMMM..", "........"}, {"xRKR UP x", ".........", nullptr},
    {"xRKR DN x", ".........", nullptr},  {"RKR UP", "......", "......"},
    {"RKR MD x", "........", "........"},
};

constexpr Example kComments[] = {
    {"Rem USE x\r\ny", "CCCCCCCCC...", nullptr},
    {"rem", "CCC", nullptr},
    {"a REM b", "..CCCCC", nullptr},
    {"remote = a", "..........", nullptr},
    {"Rem DEF x y\r\n", "CCCCCCCCCCC..", nullptr},
    {"~ x\r\ny", "CCC...", nullptr},
    {"a~b", ".CC", nullptr},
    {"a~", ".C", nullptr},
    {"~\xC9\xCD\xCD\r\n~\xBA x\xBA\r\n", "CCCC..CCCCC..", nullptr},
};

/// Where two passes meet, the later one wins: the order of the table in what it does.
constexpr Example kOverlaps[] = {
    {"BTN /U x", "BBBBSS..", nullptr},
    {"BTN USE x", "BBBBMMM..", nullptr},
    {"RAW(USE x)", "RRRRMMM..R", nullptr},
    {"USE DEF X1 a", "MMM.BBBBBB..", nullptr},
    {"DEF USE x", "BBBBBBB..", nullptr},
    {"DEF CMPLT(1) x", "BBBBMMMMMBBB..", nullptr},
    {"PortB S USE x", "MMMMMMMBBBBBB", "........MMM.."},
    {"BTN DELAY(5) x", "BBBBRRRRRBBB..", nullptr},
};

/// Those that a file's commands are told by: in any case, or as they stand.
constexpr const char* kAnyCase[] = {"USE",  "MT",  "MDEF",   "RATE",  "JSX",   "JSY",
                                    "RDDR", "THR", "SWAPTG", "GAME1", "GAME2", "@digitalthrottle"};
constexpr const char* kCommands[] = {"USE",  "MT",  "MDEF",   "RATE",  "JSX",   "JSY",
                                     "RDDR", "THR", "SWAPTG", "GAME1", "GAME2", "@digitalthrottle",
                                     "ANT",  "RNG", "AND",    "NOT",   "OR"};

void ExpectColours(std::span<const Example> examples) {
  for (const Example& example : examples) {
    EXPECT_EQ(Joystick(example.text), example.joystick) << example.text;
    EXPECT_EQ(Macro(example.text), example.macro ? example.macro : example.joystick) << example.text;
  }
}

TEST(PassesTest, AButtonTakesItsOperandUpToTheNextBlank) { ExpectColours(kButtons); }

TEST(PassesTest, AModifierStandsBehindABlankAndHasACharacter) { ExpectColours(kModifiers); }

TEST(PassesTest, BracketsAreColouredAndWhatTheyHoldIsNot) { ExpectColours(kBrackets); }

TEST(PassesTest, ABracketThatNothingClosesEndsItsPassAlone) { ExpectColours(kOpenBrackets); }

TEST(PassesTest, CommandsAreColouredOnlyBeforeTheirFollowCharacter) {
  for (const std::string text : kCommands) {
    const std::string coloured(text.size(), 'M');
    const std::string black(text.size(), '.');
    for (const auto& paint : {Joystick, Macro}) {
      EXPECT_EQ(paint(text + " x"), coloured + "..") << text;
      EXPECT_EQ(paint(text), black) << text;
      EXPECT_EQ(paint(text + "\r\n"), black + "..") << text;
      EXPECT_EQ(paint("x" + text + " "), "." + black + ".") << text;
      EXPECT_EQ(paint(text + "x "), black + "..") << text;
    }
  }
}

TEST(PassesTest, WhichCommandsMatchCase) {
  for (const std::string word : kAnyCase) {
    const std::string wanted = std::string(word.size(), 'M') + ".";
    EXPECT_EQ(Joystick(Lower(word) + " "), wanted) << word;
    EXPECT_EQ(Macro(Lower(word) + " "), wanted) << word;
  }
  ExpectColours(kCases);
}

TEST(PassesTest, ComparisonsAndTimingStandBeforeABracket) { ExpectColours(kComparisons); }

TEST(PassesTest, APlainWordNeedsNothingBehindIt) { ExpectColours(kPlainWords); }

TEST(PassesTest, APortRunsToTheFirstCapitalSAndTheRestOfItsLineIsItsButton) { ExpectColours(kPorts); }

TEST(PassesTest, RockersAreCommandsOfTheJoystickFileAloneAndTheMiddleOneIsNone) { ExpectColours(kRockers); }

TEST(PassesTest, CommentsRunToTheEndOfTheLineAndOverrideWhatTheyHold) {
  ExpectColours(kComments);
  // An operand may reach out of its comment's line, and stays coloured there.
  EXPECT_EQ(Joystick("Rem DEF\r\nx y"), "CCCCCCCBBB..");
}

TEST(PassesTest, TheLaterPassWins) { ExpectColours(kOverlaps); }

/// Every text that an example of this file colours.
std::vector<std::string> AllTexts() {
  std::vector<std::string> texts;
  const std::span<const Example> all[] = {kButtons, kModifiers,   kBrackets,   kOpenBrackets,
                                          kCases,   kComparisons, kPlainWords, kPorts,
                                          kRockers, kComments,    kOverlaps};
  for (const auto examples : all) {
    for (const Example& example : examples) texts.emplace_back(example.text);
  }
  for (const std::string word : kCommands) {
    for (const std::string& text : {word + " x", "x" + word + " "}) texts.push_back(text);
  }
  for (const std::string word : kAnyCase) texts.push_back(Lower(word) + " ");
  return texts;
}

/// The table with each thing that could be wrong in a row, by what it is.
std::map<std::string, std::vector<Pass>> WithOneMistake(std::span<const Pass> passes) {
  std::map<std::string, std::vector<Pass>> tables;
  const std::vector<Pass> right(passes.begin(), passes.end());
  for (std::size_t i = 0; i < right.size(); ++i) {
    const std::string name = std::to_string(i) + " " + std::string(right[i].text);
    const auto differing = [&](const char* what) -> Pass& { return (tables[name + what] = right)[i]; };
    differing(" without its colour").colour = ColourClass::Black;
    differing(" with another rule for whole words").options ^= find::kWholeWord;
    const bool hasLetters = Lower("A" + name) != "a" + name;
    if (hasLetters) differing(" with another rule for case").options ^= find::kMatchCase;
    if (right[i].follow) differing(" before another character").follow = '!';
  }
  return tables;
}

/// No row of the tables is without an example that shows what it says. A new row needs one too.
TEST(PassesTest, EveryRowShowsInAnExample) {
  for (const auto passes : {JoystickPasses(), MacroPasses()}) {
    for (const auto& [mistake, others] : WithOneMistake(passes)) {
      const auto& wrong = others;  // a binding cannot be captured
      const std::vector<std::string> texts = AllTexts();
      EXPECT_TRUE(
          std::any_of(texts.begin(), texts.end(),
                      [&](const std::string& text) { return Paint(text, passes) != Paint(text, wrong); }))
          << mistake
          << (passes.size() == JoystickPasses().size() ? " in a joystick file" : " in a macro file");
    }
  }
}

TEST(PassesTest, AnEmptyTextHasNoColours) { EXPECT_EQ(Joystick(""), ""); }

std::string AnyText(std::mt19937& random) {
  static const std::vector<std::string> kPieces = {
      "BTN",    "btn",    "/",      "/U",     "RAW (", "RAW(",  "DLY(",  "RPT(",   "rpt(",
      ")",      "ANT",    "ant",    "RNG",    "rng",   "USE",   "use",   "MT",     "MDEF",
      "RATE",   "PortB",  "PORTB",  "JSX",    "JSY",   "RDDR",  "THR",   "SWAPTG", "RKR UP",
      "RKR DN", "RKR MD", "AND",    "and",    "NOT",   "OR",    "DEF",   "def",    "F22RST",
      "f22rst", "CMPLT",  "CMPGT",  "cmplt(", "DELAY", "PULSE", "GAME1", "GAME2",  "@digitalthrottle",
      "Rem",    "rem",    "remote", "~",      "S1",    "s",     "S",     "x",      "1",
      "_",      "(",      "\xE9",   "=",      " ",     " ",     " ",     " ",      " ",
      "\r\n",   "\r\n",   "\r\n",
  };
  std::string text;
  for (std::size_t n = random() % 40; n > 0; --n) {
    text += kPieces[random() % kPieces.size()];
    if (random() % 2) text += ' ';
  }
  return text;
}

TEST(PassesTest, TheColoursAreThoseOfSearchingAndSelecting) {
  std::mt19937 random(7);
  LiteralPasses literal;
  for (int i = 0; i < 4000; ++i) {
    const std::string text = AnyText(random);
    ASSERT_EQ(Joystick(text), LettersOf(literal.Paint(text, JoystickPasses()))) << text;
    ASSERT_EQ(Macro(text), LettersOf(literal.Paint(text, MacroPasses()))) << text;
  }
}

}  // namespace
}  // namespace tarvik
