// What statements mean in sentences. Those of the pairs in tests/pairs/ stand beside them as NAME.words; with
// TARVIK_PROMOTE=1 in the environment they are written anew, for someone to look at.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "language/Explain.h"
#include "language/JoystickFile.h"
#include "language/Spoken.h"
#include "support/IndexedPair.h"
#include "support/Pairs.h"

namespace tarvik::model {
namespace {

using testing::HasSubstr;

constexpr std::string_view kSpokenMacros =
    "Chaff_Single = c\r\n"
    "Jammer_On = j\r\n"
    "Jammer_Off = SHF j\r\n"
    "Gun = /P RAW (#29) /R RAW (#F0 #29)   Rem the space bar\r\n"
    "Burst = RPT(3) SPC\r\n"
    "Start = CTL 1 DLY(800) CTL ALT 2\r\n"
    "lower = g\r\n";

std::string Explained(std::string_view joystick) {
  const IndexedPair pair{std::string(joystick), std::string(kSpokenMacros)};
  return Explain(pair.pair, pair.names, FileKind::Joystick, 0);
}

std::string ExplainedMacro(std::string_view macros) {
  const IndexedPair pair{"", std::string(macros)};
  return Explain(pair.pair, pair.names, FileKind::Macros, 0);
}

std::string HoveredOver(std::string_view joystick, std::string_view word) {
  const IndexedPair pair{std::string(joystick), std::string(kSpokenMacros)};
  return Hover(pair.pair, pair.names, FileKind::Joystick, pair.At(FileKind::Joystick, word));
}

TEST(Explain, TellsTheLayersOfAHat) {
  EXPECT_EQ(Explained("BTN H3U /I /T Jammer_On\r\n /T Jammer_Off\r\n /O Chaff_Single\r\n"),
            "With S3 held, H3 up sends Jammer_On (J) and Jammer_Off (Shift+J) in turns; otherwise "
            "Chaff_Single (C).");
  EXPECT_EQ(Explained("BTN S1 /U /I a /O b /M c /D ^\r\n"),
            "With the dogfight switch up and S3 held, S1 sends A; with the dogfight switch up and S3 out, B; "
            "with the dogfight switch in the middle, C; with the dogfight switch down, nothing.");
}

TEST(Explain, TellsThePressAndTheRelease) {
  EXPECT_EQ(Explained("BTN S2 /P a DLY(60) b /R lower\r\n"),
            "When pressed, S2 sends A, waits 60 ms and sends B; when released, lower (G).");
  EXPECT_EQ(Explained("BTN S2 /P a /R DLY(60) b\r\n"),
            "When pressed, S2 sends A; when released, it waits 60 ms and sends B.");
  EXPECT_EQ(Explained("BTN X1 /P a /R b\r\n"), "When it comes on, flag X1 sends A; when it goes off, B.");
}

TEST(Explain, DoesNotSayOtherwiseOfMoreThanOnePart) {
  EXPECT_EQ(Explained("BTN S1 /I /P a /R b /O /H c\r\n"),
            "With S3 held, when pressed, S1 sends A; when released, B; with S3 out, C, held down as long as "
            "it is.");
}

TEST(Explain, TellsTheMannerOfSending) {
  EXPECT_EQ(Explained("BTN S1 /N a\r\n"), "S1 sends A, once.");
  EXPECT_EQ(Explained("BTN S1 /N /F a\r\n"), "S1 sends A, once, again and again, whole.");
  EXPECT_EQ(Explained("BTN H1U /A a\r\n"), "H1 up sends A, as analogue.");
  EXPECT_EQ(Explained("BTN S1 /Q a\r\n"), "S1 sends A, repeating at once.");
}

TEST(Explain, TellsTurnsOfSeveralKeys) {
  EXPECT_EQ(Explained("BTN S1 /T a DLY(5) b /T c\r\n"),
            "S1 in turns: first sends A, waits 5 ms and sends B, then sends C.");
  EXPECT_EQ(Explained("BTN S1 /T /P a /R b /T c\r\n"),
            "In turn 1, when pressed, S1 sends A; in turn 1, when released, B; in turn 2, C.");
}

TEST(Explain, SaysKeysAsTheyAreOnAKeyboard) {
  EXPECT_EQ(Explained("BTN TG CTL SHF c KP+ UAROW AUXHOME f5 !\r\n"),
            "The trigger sends Ctrl+Shift+C, keypad +, Up, Home, F5 and !.");
  EXPECT_EQ(Explained("RKR UP A\r\n"), "The rocker up sends Shift+A.");
  EXPECT_EQ(Explained("BTN S1 RPT(3) a\r\n"), "S1 sends A 3 times.");
  EXPECT_EQ(Explained("BTN S1 RPT(3) a DLY(9) b\r\n"),
            "S1 does 3 times what follows, sends A, waits 9 ms and sends B.");
}

TEST(Explain, TellsRawCodesAsKeys) {
  EXPECT_EQ(Explained("BTN S1 RAW (#12 #1C #F0 #1C #F0 #12)\r\n"),
            "S1 sends left Shift down, A and left Shift up.");
  EXPECT_EQ(Explained("BTN S1 RAW (#E0 #75 #E0 #F0 #75 #3A)\r\n"), "S1 sends Up and M down.");
  EXPECT_EQ(Explained("BTN S1 RAW (#F0 #EE #1 #1C #F0)\r\n"),
            "S1 sends \"#F0 #EE\", \"#1\", A down and \"#F0\".");
}

TEST(Explain, LeavesWhatIsUnknownAsItStands) {
  EXPECT_EQ(Explained("BTN Q9 Lost DLY(x) /X a\r\n"),
            "\"Q9\" sends \"Lost\" and \"DLY(x)\"; behind \"/X\", A.");
  EXPECT_EQ(Explained("Hello there\r\n"), "\"Hello there\" begins with no word of a statement.");
  EXPECT_EQ(Explained("SWAPTG now\r\n"),
            "The two stages of the trigger, TG1 and TG2, are exchanged. What makes no sense in it is "
            "\"now\".");
  EXPECT_EQ(ExplainedMacro("Hello there\r\n"), "\"Hello there\" is neither a macro nor a remark.");
  EXPECT_EQ(Explained("BTN S1 CTL\r\n"), "S1 sends \"CTL\".");
  EXPECT_EQ(Explained("BTN S1 \x01\r\n"), "S1 sends \" \".");
  EXPECT_EQ(ExplainedMacro("G\x01n = a\r\n"), "\"G n\" sends A.");
}

TEST(Explain, TakesNamesAsTheyAreWithoutAMacroFile) {
  const IndexedPair pair("BTN S1 Jammer_On\r\n");
  EXPECT_EQ(Explain(pair.pair, pair.names, FileKind::Joystick, 3), "S1 sends Jammer_On.");
}

TEST(Explain, KnowsTheSignForNoKey) {
  EXPECT_EQ(Explained("BTN S1 ^\r\n"), "S1 sends nothing.");
  EXPECT_EQ(Explained("BTN S1\r\nNULLCHR *\r\n"), "S1 sends nothing.");
  EXPECT_EQ(Explained("BTN S1 ^ *\r\nNULLCHR *\r\n"), "S1 sends ^ and nothing.");
}

TEST(Explain, TellsMacrosAndKeepsTheirNames) {
  EXPECT_EQ(ExplainedMacro("lower = g\r\n"), "lower sends G.");
  EXPECT_EQ(ExplainedMacro("Start = CTL 1 DLY(800) CTL ALT 2\r\n"),
            "Start sends Ctrl+1, waits 800 ms and sends Ctrl+Alt+2.");
  EXPECT_EQ(ExplainedMacro("@digitalthrottle = THR 1 2 3 a b c d e f\r\n"),
            "@digitalthrottle is this: The throttle sends keys in 2 steps and 3 in the afterburner: A for a "
            "step up, B for a step down, C on entering the afterburner, D on leaving it, E for a step up in "
            "it and F for a step down in it.");
}

TEST(Explain, TellsAxes) {
  EXPECT_EQ(Explained("JSX 3 a ^ SHF b\r\n"),
            "The stick's X axis sends keys: A on one side, nothing in the centre and Shift+B on the other "
            "side.");
  EXPECT_EQ(Explained("ANT 2 8 a b\r\n"),
            "The antenna rotary sends keys in 8 steps, from the upper end to the lower one: A and B.");
  EXPECT_EQ(Explained("RNG 1 x a b c\r\n"), "The range rotary sends keys in \"x\" steps: A, B and C.");
  EXPECT_EQ(Explained("RNG\r\n"), "The range rotary sends keys, but its type is missing.");
  EXPECT_EQ(Explained("RNG 1\r\n"), "The range rotary in a missing number of steps sends nothing.");
  EXPECT_THAT(Explained("RNG 7 1 a b\r\n"), HasSubstr("which is no type"));
}

TEST(Explain, TellsConditions) {
  EXPECT_EQ(Explained("DEF X2 (T1 OR T2) AND NOT X1\r\n"),
            "Flag X2 is on while (T1 is pressed or T2 is pressed) and flag X1 is off.");
  EXPECT_EQ(Explained("DEF X2 S1 AND NOT (S2 AND S3)\r\n"),
            "Flag X2 is on while S1 is pressed and not (S2 is pressed and S3 is pressed).");
  EXPECT_EQ(Explained("DEF X1 PULSE(500 250) OR DELAY(1000)\r\n"),
            "Flag X1 is on while a pulse of 500 ms on and 250 ms off is on or 1000 ms have passed.");
  EXPECT_EQ(Explained("DEF X1 CMPGT(THR 90)\r\n"),
            "Flag X1 is on while the throttle stands above 90 per cent.");
  EXPECT_EQ(Explained("DEF X1 CMPGT(THR)\r\n"), "Flag X1 is on while \"CMPGT(THR)\".");
  EXPECT_EQ(Explained("DEF X1 S1 AND\r\n"),
            "Flag X1 is on while S1 is pressed and something that is missing.");
  EXPECT_EQ(Explained("BTN X1 a\r\nDEF X1 S1\r\n"), "Flag X1 sends A. It is on while S1 is pressed.");
}

TEST(Explain, TellsSettingsAndPorts) {
  EXPECT_EQ(Explained("USE MTYPE A3\r\n"), "The throttle's mouse is of type A3.");
  EXPECT_EQ(Explained("use nothr\r\n"), "No throttle is attached.");
  EXPECT_EQ(Explained("USE FOO\r\n"), "Nobody knows here what \"FOO\" is.");
  EXPECT_EQ(Explained("MDEF strike\r\n"), "The macros stand in the macro file strike.");
  EXPECT_EQ(Explained("RATE 30\r\n"), "Keys are sent at the pace 30.");
  EXPECT_EQ(Explained("RATE x\r\n"), "The pace of the keys is \"x\", which is no number.");
  EXPECT_EQ(Explained("NULLCHR ^\r\n"), "\"^\" stands for no key.");
  EXPECT_EQ(Explained("PortB4 IS X12\r\n"), "Flag X12 presses button 4 of the game port.");
  EXPECT_EQ(Explained("RATE\r\n"), "Nothing stands behind RATE.");
}

TEST(Explain, SaysNothingOfBlankLinesAndRemarks) {
  EXPECT_EQ(Explained(""), "");
  EXPECT_EQ(Explained("\r\n"), "");
  EXPECT_EQ(Explained("Rem BTN S1 a\r\n"), "");
}

TEST(Hover, OfAMacroIsItsLineItsKeysAndItsRemark) {
  EXPECT_EQ(HoveredOver("BTN S1 gun\r\n", "gun"),
            "Gun = /P RAW (#29) /R RAW (#F0 #29)\nWhen pressed, Gun sends Space down; when released, Space "
            "up.\nthe space bar");
  EXPECT_EQ(HoveredOver("BTN S1 Lost\r\n", "Lost"), "No macro \"Lost\" is defined.");
}

TEST(Hover, OfAControlIsWhatItDoes) {
  EXPECT_EQ(HoveredOver("BTN S1 /I a /O b\r\n", "S1"), "With S3 held, S1 sends A; otherwise B.");
  EXPECT_EQ(HoveredOver("DEF X1 H1U\r\n", "H1U"), "H1 up has no statement that says what it sends.");
}

TEST(Hover, OfAFlagIsItsConditionAndWhatItSends) {
  EXPECT_EQ(HoveredOver("DEF X1 S1\r\nBTN X1 a\r\n", "X1"),
            "Flag X1 is on while S1 is pressed.\nFlag X1 sends A.");
  EXPECT_EQ(HoveredOver("DEF X2 X1\r\n", "X1"), "No DEF says when flag X1 is on.");
}

TEST(Hover, OfAWordOfTheLanguageIsItsHelp) {
  EXPECT_EQ(HoveredOver("BTN S1 /P a\r\n", "/P"),
            "/P: what follows is sent once when the control is pressed.");
  EXPECT_EQ(HoveredOver("RNG 1 2 a b\r\n", "RNG"), HelpOf("RNG"));
  EXPECT_EQ(HoveredOver("@digitalthrottle\r\n", "@"), HelpOf("@digitalthrottle"));
  EXPECT_EQ(HoveredOver("BTN S1 KPENT\r\n", "KPENT"), "The key keypad Enter.");
  EXPECT_EQ(HoveredOver("BTN S1 a Rem USE\r\n", "USE"), "");
  EXPECT_EQ(HoveredOver("USE  TQS\r\n", "  TQS"), HelpOf("USE"));
}

TEST(HelpOf, KnowsEveryWordOfAStatementAndEveryModifier) {
  for (const StatementWord& row : kStatementWords) EXPECT_NE(HelpOf(row.word), "") << row.word;
  for (const SlashLetter& row : kSlashLetters) EXPECT_NE(HelpOf(std::string("/") + row.letter), "");
  EXPECT_EQ(HelpOf("Gun"), "");
}

template <class File>
void AppendWords(std::string& all, const IndexedPair& pair, const File& file, FileKind kind) {
  for (std::size_t i = 0; i < file.size(); ++i) {
    const std::string said = Explain(pair.pair, pair.names, kind, file.RangeOf(i).start);
    if (!said.empty()) all.append(said).append("\n");
  }
}

TEST(Explain, PairsInWordsAreTheGoldenOnes) {
  for (const Pair& each : Pairs()) {
    const IndexedPair pair(each.joystick, each.macros);
    std::string words = "joystick file\n";
    AppendWords(words, pair, pair.pair.joystick, FileKind::Joystick);
    words.append("macro file\n");
    AppendWords(words, pair, pair.pair.macros, FileKind::Macros);
    std::filesystem::path golden = each.path;
    golden.replace_extension(".words");
    if (std::getenv("TARVIK_PROMOTE") != nullptr) std::ofstream(golden, std::ios::binary) << words;
    EXPECT_EQ(words, Read(golden)) << golden;
  }
}

}  // namespace
}  // namespace tarvik::model
