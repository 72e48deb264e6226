#include <gtest/gtest.h>

#include <random>

#include "language/Painting.h"
#include "support/LiteralPasses.h"
#include "support/Printers.h"

namespace tarvik {
namespace {

enum class Kind { WordAndOperand, Modifier, Bracket, Followed, Plain, Port, Comment };

/// One pass as it is laid down: its text, its handling, the options of its search, the follow character and
/// the colour's letter.
struct Row {
  const char* text;
  Kind kind;
  int options;
  char follow;
  char colour;
};

constexpr Row kJoystickRows[] = {
    {"BTN", Kind::WordAndOperand, 2, 0, 'B'}, {"/", Kind::Modifier, 0, 0, 'S'},
    {"RAW (", Kind::Bracket, 0, 0, 'R'},      {"RAW(", Kind::Bracket, 0, 0, 'R'},
    {"DLY(", Kind::Bracket, 0, 0, 'R'},       {"RPT(", Kind::Bracket, 0, 0, 'R'},
    {"ANT", Kind::Followed, 2, ' ', 'M'},     {"RNG", Kind::Followed, 2, ' ', 'M'},
    {"USE", Kind::Followed, 2, ' ', 'M'},     {"MT", Kind::Followed, 2, ' ', 'M'},
    {"MDEF", Kind::Followed, 2, ' ', 'M'},    {"RATE", Kind::Followed, 2, ' ', 'M'},
    {"PortB", Kind::Port, 0, 0, 'M'},         {"JSX", Kind::Followed, 2, ' ', 'M'},
    {"JSY", Kind::Followed, 2, ' ', 'M'},     {"RDDR", Kind::Followed, 2, ' ', 'M'},
    {"THR", Kind::Followed, 2, ' ', 'M'},     {"SWAPTG", Kind::Followed, 2, ' ', 'M'},
    {"RKR UP", Kind::Followed, 2, ' ', 'M'},  {"RKR DN", Kind::Followed, 2, ' ', 'M'},
    {"AND", Kind::Followed, 6, ' ', 'M'},     {"NOT", Kind::Followed, 6, ' ', 'M'},
    {"OR", Kind::Followed, 6, ' ', 'M'},      {"DEF", Kind::WordAndOperand, 6, 0, 'B'},
    {"F22RST", Kind::Plain, 6, 0, 'M'},       {"CMPLT", Kind::Followed, 4, '(', 'M'},
    {"CMPGT", Kind::Followed, 4, '(', 'M'},   {"DELAY", Kind::Followed, 4, '(', 'R'},
    {"PULSE", Kind::Followed, 4, '(', 'R'},   {"GAME1", Kind::Followed, 2, ' ', 'M'},
    {"GAME2", Kind::Followed, 2, ' ', 'M'},   {"@digitalthrottle", Kind::Followed, 2, ' ', 'M'},
    {"Rem", Kind::Comment, 2, 0, 'C'},        {"~", Kind::Comment, 0, 0, 'C'},
};

constexpr Row kMacroRows[] = {
    {"BTN", Kind::WordAndOperand, 2, 0, 'B'},
    {"/", Kind::Modifier, 0, 0, 'S'},
    {"RAW (", Kind::Bracket, 0, 0, 'R'},
    {"RAW(", Kind::Bracket, 0, 0, 'R'},
    {"DLY(", Kind::Bracket, 0, 0, 'R'},
    {"RPT(", Kind::Bracket, 0, 0, 'R'},
    {"ANT", Kind::Followed, 6, ' ', 'M'},
    {"RNG", Kind::Followed, 6, ' ', 'M'},
    {"USE", Kind::Followed, 2, ' ', 'M'},
    {"MT", Kind::Followed, 2, ' ', 'M'},
    {"MDEF", Kind::Followed, 2, ' ', 'M'},
    {"RATE", Kind::Followed, 2, ' ', 'M'},
    {"JSX", Kind::Followed, 2, ' ', 'M'},
    {"JSY", Kind::Followed, 2, ' ', 'M'},
    {"RDDR", Kind::Followed, 2, ' ', 'M'},
    {"THR", Kind::Followed, 2, ' ', 'M'},
    {"SWAPTG", Kind::Followed, 2, ' ', 'M'},
    {"AND", Kind::Followed, 6, ' ', 'M'},
    {"NOT", Kind::Followed, 6, ' ', 'M'},
    {"OR", Kind::Followed, 6, ' ', 'M'},
    {"DEF", Kind::WordAndOperand, 6, 0, 'B'},
    {"F22RST", Kind::Plain, 6, 0, 'M'},
    {"CMPLT", Kind::Followed, 6, '(', 'M'},
    {"CMPGT", Kind::Followed, 6, '(', 'M'},
    {"DELAY", Kind::Followed, 4, '(', 'R'},
    {"PULSE", Kind::Followed, 4, '(', 'R'},
    {"GAME1", Kind::Followed, 2, ' ', 'M'},
    {"GAME2", Kind::Followed, 2, ' ', 'M'},
    {"@digitalthrottle", Kind::Followed, 2, ' ', 'M'},
    {"Rem", Kind::Comment, 2, 0, 'C'},
    {"~", Kind::Comment, 0, 0, 'C'},
};

constexpr std::string_view kLetters = ".BSRMC";  // in the order of ColourClass

std::string LettersOf(const ColourRuns& colours) {
  std::string letters;
  for (std::size_t i = 0; i < colours.size(); ++i) letters += kLetters[colours.At(i)];
  return letters;
}

std::string Paint(const std::string& text, std::span<const Pass> passes) {
  MemoryFiles files;
  Form form("Form");
  Pane pane(form, "Text", files);
  pane.Text = text;
  Painting painting(pane.Characters(), passes);
  painting.Run();
  constexpr std::array<Colour, kColourClasses> kColours = {0, 1, 2, 3, 4, 5};
  return LettersOf(painting.Colours(kColours));
}

std::string Joystick(const std::string& text) { return Paint(text, JoystickPasses()); }
std::string Macro(const std::string& text) { return Paint(text, MacroPasses()); }

void ExpectTable(std::span<const Pass> passes, std::span<const Row> rows) {
  constexpr PassKind kKinds[] = {PassKind::WordAndOperand, PassKind::Modifier,  PassKind::Bracket,
                                 PassKind::FollowedWord,   PassKind::PlainWord, PassKind::Port,
                                 PassKind::Comment};
  ASSERT_EQ(passes.size(), rows.size());
  for (std::size_t i = 0; i < rows.size(); ++i) {
    EXPECT_EQ(passes[i].text, rows[i].text);
    EXPECT_EQ(passes[i].kind, kKinds[static_cast<int>(rows[i].kind)]) << rows[i].text;
    EXPECT_EQ(passes[i].options, rows[i].options) << rows[i].text;
    EXPECT_EQ(passes[i].follow, rows[i].follow) << rows[i].text;
    EXPECT_EQ(kLetters[static_cast<std::size_t>(passes[i].colour)], rows[i].colour) << rows[i].text;
  }
}

TEST(PassesTest, TheTablesAreThoseOfTheTwoLanguages) {
  ExpectTable(JoystickPasses(), kJoystickRows);
  ExpectTable(MacroPasses(), kMacroRows);
}

struct Example {
  const char* text;
  const char* joystick;
  const char* macro;  ///< null: as in a joystick file
};

void ExpectColours(std::span<const Example> examples) {
  for (const Example& example : examples) {
    EXPECT_EQ(Joystick(example.text), example.joystick) << example.text;
    EXPECT_EQ(Macro(example.text), example.macro ? example.macro : example.joystick) << example.text;
  }
}

TEST(PassesTest, AButtonTakesItsOperandUpToTheNextBlank) {
  constexpr Example kExamples[] = {
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
  ExpectColours(kExamples);
}

TEST(PassesTest, AModifierStandsBehindABlankAndHasACharacter) {
  constexpr Example kExamples[] = {
      {"a /U Up", "..SS...", nullptr}, {"a /u", "..SS", nullptr},
      {"a / b", ".....", nullptr},     {"a /\r\nb", "......", nullptr},
      {"a /", "..S", nullptr},  // nothing behind it is neither a blank nor a line end
      {"a/U", "...", nullptr},         {"\r\n/U", "....", nullptr},
      {"/U a", "SS..", nullptr},  // nothing stands before the first character
      {"/ a", "SS.", nullptr},         {"a //U", "..SS.", nullptr},
  };
  ExpectColours(kExamples);
}

TEST(PassesTest, BracketsAreColouredAndWhatTheyHoldIsNot) {
  constexpr Example kExamples[] = {
      {"RAW (1 2)", "RRRRR...R", nullptr},       {"raw(1 2)", "RRRR...R", nullptr},
      {"DLY(60)", "RRRR..R", nullptr},           {"RPT(2) x", "RRRR.R..", nullptr},
      {"xRAW(1)", ".RRRR.R", nullptr},        // no whole word
      {"RAW(1\r\n2)", "RRRR....R", nullptr},  // over line ends
      {"RAW  (1)", "........", nullptr},         {"DLY (60)", "........", nullptr},
      {"DLY(DLY(1)2)", "RRRR.....R..", nullptr},  // what lies in brackets is not searched
  };
  ExpectColours(kExamples);
}

TEST(PassesTest, ABracketThatNothingClosesEndsItsPassAlone) {
  constexpr Example kExamples[] = {
      {"DLY(6 DLY(6 RPT(2", "RRRR........RRRR.", nullptr},
      {"RPT(2) RPT(3 USE x", "RRRR.R.RRRR..MMM..", nullptr},
      {"RAW (", "RRRRR", nullptr},
  };
  ExpectColours(kExamples);
}

TEST(PassesTest, CommandsAreColouredOnlyBeforeTheirFollowCharacter) {
  for (const char* word : {"USE", "MT", "MDEF", "RATE", "JSX", "JSY", "RDDR", "THR", "SWAPTG", "GAME1",
                           "GAME2", "@digitalthrottle", "ANT", "RNG", "AND", "NOT", "OR"}) {
    const std::string text = word;
    const std::string coloured(text.size(), 'M');
    const std::string black(text.size(), '.');
    for (const auto& paint : {Joystick, Macro}) {
      EXPECT_EQ(paint(text + " x"), coloured + "..") << word;
      EXPECT_EQ(paint(text), black) << word;
      EXPECT_EQ(paint(text + "\r\n"), black + "..") << word;
      EXPECT_EQ(paint("x" + text + " "), "." + black + ".") << word;
      EXPECT_EQ(paint(text + "x "), black + "..") << word;
    }
  }
}

TEST(PassesTest, WhichCommandsMatchCase) {
  for (const char* word : {"use", "mt", "mdef", "rate", "jsx", "jsy", "rddr", "thr", "swaptg", "game1",
                           "game2", "@DigitalThrottle"}) {
    const std::string wanted = std::string(std::string_view(word).size(), 'M') + ".";
    EXPECT_EQ(Joystick(word + std::string(" ")), wanted);
    EXPECT_EQ(Macro(word + std::string(" ")), wanted);
  }
  constexpr Example kExamples[] = {
      {"and ", "....", nullptr},     {"not ", "....", nullptr}, {"or ", "...", nullptr},
      {"f22rst", "......", nullptr}, {"ant ", "MMM.", "...."},  {"rng ", "MMM.", "...."},
  };
  ExpectColours(kExamples);
}

TEST(PassesTest, ComparisonsAndTimingStandBeforeABracket) {
  constexpr Example kExamples[] = {
      {"CMPLT(1)", "MMMMM...", nullptr},       {"CMPGT(1)", "MMMMM...", nullptr},
      {"CMPLT (1)", ".........", nullptr},     {"cmplt(1)", "........", nullptr},
      {"xCMPLT(1)", ".MMMMM...", "........."}, {"xCMPGT(1)", ".MMMMM...", "........."},
      {"DELAY(5)", "RRRRR...", nullptr},       {"PULSE(5)", "RRRRR...", nullptr},
      {"xDELAY(5)", ".RRRRR...", nullptr},     {"xPULSE(5)", ".RRRRR...", nullptr},
      {"delay(5)", "........", nullptr},       {"pulse(5)", "........", nullptr},
      {"PULSE (5)", ".........", nullptr},
  };
  ExpectColours(kExamples);
}

TEST(PassesTest, APlainWordNeedsNothingBehindIt) {
  constexpr Example kExamples[] = {
      {"F22RST", "MMMMMM", nullptr},
      {"a F22RST.", "..MMMMMM.", nullptr},
      {"F22RSTx", ".......", nullptr},
  };
  ExpectColours(kExamples);
}

TEST(PassesTest, APortRunsToTheFirstCapitalSAndTheRestOfItsLineIsItsButton) {
  constexpr Example kExamples[] = {
      {"PortB1 IS S2 x\r\nz", "MMMMMMMMMBBBBB...", "................."},
      {"portb1 iS S2", "MMMMMMMMMBBB", "............"},
      {"xPortB S", ".MMMMMMM", "........"},
      {"PortB is set", "MMMMMMMMMMMM", "............"},
      {"PortB S\r\nx", "MMMMMMM...", ".........."},
  };
  ExpectColours(kExamples);
}

TEST(PassesTest, RockersAreCommandsOfTheJoystickFileAloneAndTheMiddleOneIsNone) {
  constexpr Example kExamples[] = {
      {"RKR UP x", "MMMMMM..", "........"},
      {"rkr dn x", "MMMMMM..", "........"},
      {"RKR UP", "......", "......"},
      {"RKR MD x", "........", "........"},
  };
  ExpectColours(kExamples);
}

TEST(PassesTest, CommentsRunToTheEndOfTheLineAndOverrideWhatTheyHold) {
  constexpr Example kExamples[] = {
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
  ExpectColours(kExamples);
  // An operand may reach out of its comment's line, and stays coloured there.
  EXPECT_EQ(Joystick("Rem DEF\r\nx y"), "CCCCCCCBBB..");
}

TEST(PassesTest, TheLaterPassWins) {
  EXPECT_EQ(Joystick("BTN /U x"), "BBBBSS..");
  EXPECT_EQ(Joystick("BTN USE x"), "BBBBMMM..");
  EXPECT_EQ(Joystick("RAW(USE x)"), "RRRRMMM..R");
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

TEST(PassesTest, TheColoursAreThoseOfSearchingAndSelectingInAPane) {
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
