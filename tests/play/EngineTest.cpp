#include <gmock/gmock.h>

#include "support/Played.h"

namespace tarvik::play {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

TEST(Engine, HoldsAKeyAsLongAsItsButton) {
  EXPECT_THAT(Played("BTN S1 a\n").Outputs("S1 down\n200ms\nS1 up\n"),
              ElementsAre("0.000 S1 a down joystick:1", "0.200 S1 a up joystick:1"));
}

TEST(Engine, HoldsAKeyForATimeWhereTheButtonIsFaster) {
  EXPECT_THAT(Played("BTN S1 a\n").Outputs("S1 down\nS1 up\n"),
              ElementsAre("0.000 S1 a down joystick:1", "0.030 S1 a up joystick:1"));
}

TEST(Engine, AReleaseBelongsToThePressWhateverTheLayerIs) {
  EXPECT_THAT(Played("BTN S1 /I a\n       /O b\n").Outputs("S3 down\nS1 down\n100ms\nS3 up\nS1 up\n"),
              ElementsAre("0.000 S1 /I a down joystick:1", "0.100 S1 /I a up joystick:1"));
}

TEST(Engine, KeysCountTheirHolders) {
  EXPECT_THAT(Played("BTN S1 a\nBTN S2 a\n").Outputs("S1 down\n50ms\nS2 down\n50ms\nS1 up\n50ms\nS2 up\n"),
              ElementsAre("0.000 S1 a down joystick:1", "0.150 S2 a up joystick:2"));
}

TEST(Engine, TakesTurns) {
  EXPECT_THAT(
      Played("BTN S4 /T /P a\n       /T /P b\n").Outputs("S4 down\n1s\nS4 up\nS4 down\n1s\nS4 up\nS4 down\n"),
      ElementsAre("0.000 S4 /T /P a down joystick:1", "0.030 S4 /T /P a up joystick:1",
                  "1.000 S4 /T /P b down joystick:2", "1.030 S4 /T /P b up joystick:2",
                  "2.000 S4 /T /P a down joystick:1", "2.030 S4 /T /P a up joystick:1"));
}

TEST(Engine, KeepsDelaysExactly) {
  EXPECT_THAT(Played("BTN T6 CTL g DLY(60) ENT\n").Outputs("T6 down\n1s\nT6 up\n"),
              ElementsAre("0.000 T6 LCTL down joystick:1", "0.002 T6 g down joystick:1",
                          "0.032 T6 g up joystick:1", "0.034 T6 LCTL up joystick:1",
                          "0.094 T6 ENT down joystick:1", "1.000 T6 ENT up joystick:1"));
}

TEST(Engine, CutsAMacroThatContainsItself) {
  const Played played("BTN S1 Round\n", "Round = a Round\n");
  EXPECT_THAT(played.program.cuts, SizeIs(1));
  EXPECT_THAT(played.Outputs("S1 down\n1s\nS1 up\n"),
              ElementsAre("0.000 S1 a down macros:1", "0.030 S1 a up macros:1"));
}

TEST(Engine, CutsMillionsOfRepetitions) {
  const Played played("BTN S1 /P RPT(3000000) RPT(3000000) f\n");
  EXPECT_THAT(played.program.cuts, testing::Not(IsEmpty()));
}

TEST(Engine, CutsMacrosThatDoubleEachOther) {
  std::string macros = "M0 = ^\n";
  for (int i = 1; i < 60; ++i) {
    const std::string below = "M" + std::to_string(i - 1);
    macros.append("M")
        .append(std::to_string(i))
        .append(" = ")
        .append(below)
        .append(" ")
        .append(below)
        .append("\n");
  }
  const Played played("BTN S1 M30\nBTN S2 /P RPT(9) RPT(9) RPT(9) RPT(9) RPT(9) RPT(9) RPT(9) a\n", macros);
  EXPECT_THAT(played.program.cuts, testing::Not(IsEmpty()));
}

TEST(Engine, LetsGoOfCodesWithTheirButton) {
  EXPECT_THAT(Played("BTN S1 RAW (#1C)\n").Outputs("S1 down\n100ms\nS1 up\n"),
              ElementsAre("0.000 S1 a down joystick:1", "0.100 S1 a up joystick:1"));
}

TEST(Engine, StopsAtOnce) {
  EXPECT_THAT(Played("BTN S1 a\n").Outputs("S1 down\n100ms\nstop\n1s\nS1 up\n"),
              ElementsAre("0.000 S1 a down joystick:1", "0.100 a up"));
}

}  // namespace
}  // namespace tarvik::play
