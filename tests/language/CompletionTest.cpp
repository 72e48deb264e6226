#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "language/Completion.h"
#include "language/Controllers.h"
#include "support/IndexedPair.h"

namespace tarvik::model {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::IsSupersetOf;
using testing::Not;

constexpr Hardware kF22{kF22Pro, kTqs, 0};
constexpr Hardware kBare{kTopGun, kNoThrottle, 0};
constexpr std::string_view kKnownMacros =
    "Gear_Down = g   Rem the lever\r\nGun = SPC\r\nBig_Gun = SHF SPC\r\nFireGun = f\r\n";

/// The candidates at the bar in a joystick file.
std::vector<Candidate> At(std::string text, Hardware hardware = kF22) {
  const std::size_t bar = text.find('|');
  text.erase(bar, 1);
  const IndexedPair pair(text, std::string(kKnownMacros), hardware);
  return CandidatesAt(pair.pair, pair.names, Abilities(hardware), FileKind::Joystick, bar);
}

std::vector<std::string> TextsAt(std::string text, Hardware hardware = kF22) {
  std::vector<std::string> texts;
  for (const Candidate& each : At(std::move(text), hardware)) texts.push_back(each.text);
  return texts;
}

TEST(Candidates, AreMacrosByTheirBeginningAndByTheWordsInside) {
  EXPECT_THAT(TextsAt("BTN S1 gu|"), ElementsAre("Gun", "Big_Gun", "FireGun"));
  EXPECT_THAT(TextsAt("BTN S1 a GE|ar"), ElementsAre("Gear_Down"));
  EXPECT_THAT(TextsAt("BTN S1 un|"), IsEmpty());
}

TEST(Candidates, TellWhatTheyReplaceAndWhatAMacroSends) {
  const std::vector<Candidate> all = At("RATE 3\r\nBTN S1 ge|");
  ASSERT_EQ(all.size(), 1u);
  EXPECT_EQ(all[0], (Candidate{CandidateKind::Macro, {15, 2}, "Gear_Down", "G - the lever"}));
}

TEST(Candidates, AreWordsOfStatementsWhereALineBegins) {
  EXPECT_THAT(TextsAt("r|"), ElementsAre("RKR", "RNG", "RDDR", "RATE"));
  EXPECT_THAT(TextsAt("BTN S1 a\r\nsw|"), ElementsAre("SWAPTG"));
  EXPECT_THAT(TextsAt("|"), Contains("BTN"));
  EXPECT_THAT(TextsAt("BTN S1 a\r\n|"), IsSupersetOf({"BTN", "PortB1"}));
  EXPECT_THAT(TextsAt("|", kBare), Not(Contains("PortB1")));
}

TEST(Candidates, AreControlsThatAreHereAndHaveNoStatement) {
  EXPECT_THAT(TextsAt("BTN S1 a\r\nBTN s|"), ElementsAre("S2", "S3", "S4"));
  EXPECT_THAT(TextsAt("BTN |", kBare), IsSupersetOf({"TG", "HU", "UB"}));
  EXPECT_THAT(TextsAt("BTN |", kBare), Not(Contains("S1")));
  EXPECT_THAT(TextsAt("DEF X3 S1\r\nBTN x|"), ElementsAre("X3"));
  EXPECT_THAT(TextsAt("RKR UP a\r\nRKR |", Hardware{kTopGun, kWcs, 0}), ElementsAre("DN", "MD"));
}

TEST(Candidates, AreModifiersThatMayComeHere) {
  EXPECT_THAT(TextsAt("BTN S1 /|"),
              ElementsAre("/U", "/M", "/D", "/I", "/O", "/P", "/R", "/T", "/H", "/N", "/F", "/Q"));
  EXPECT_THAT(TextsAt("BTN S1 /U a\r\n /I b\r\n  /|", kF22),
              ElementsAre("/M", "/D", "/O", "/P", "/R", "/T", "/H", "/N", "/F", "/Q"));
  EXPECT_THAT(TextsAt("BTN S1 /U /I a /O b /M /|"), IsSupersetOf({"/D", "/I", "/O"}));
  EXPECT_THAT(TextsAt("BTN TG /|", kBare), ElementsAre("/I", "/O", "/P", "/R", "/T", "/H", "/N", "/A"));
}

TEST(Candidates, GoOnBelowAStatement) {
  EXPECT_THAT(TextsAt("BTN S1 /I a\r\n   |"), Contains("/O"));
  EXPECT_THAT(TextsAt("BTN S1 /I a\r\n   |"), Not(Contains("/I")));
  EXPECT_THAT(TextsAt("BTN S1 /I a\r\n   |\r\nBTN S2 a\r\n"), Contains("/O"));
}

TEST(Candidates, AreKeysAndWordsOfASequence) {
  EXPECT_THAT(TextsAt("BTN S1 kpe|"), ElementsAre("KPENT"));
  EXPECT_THAT(TextsAt("BTN S1 d|"), IsSupersetOf({"DEL", "DAROW", "DLY"}));
  EXPECT_THAT(TextsAt("BTN S1 f22|"), ElementsAre("F22RST"));
  EXPECT_THAT(TextsAt("BTN TG f22|", kBare), IsEmpty());
}

TEST(Candidates, AreWordsOfConditions) {
  EXPECT_THAT(TextsAt("DEF X1 S1 A|"), ElementsAre("AND"));
  EXPECT_THAT(TextsAt("DEF X1 CMPGT(R|"), ElementsAre("RNG", "RDDR"));
  EXPECT_THAT(TextsAt("DEF X1 S1\r\nDEF x|")[0], "X2");
  EXPECT_THAT(TextsAt("PortB1 |"), ElementsAre("IS"));
  EXPECT_THAT(TextsAt("PortB1 IS tg|"), ElementsAre("TG1", "TG2"));
  EXPECT_THAT(TextsAt("USE n|"), ElementsAre("NOTHR", "NORDDR", "NOMOUSE"));
}

TEST(Candidates, AreNoneInRemarksBracketsAndFreeWords) {
  EXPECT_THAT(TextsAt("BTN S1 a Rem gu|"), IsEmpty());
  EXPECT_THAT(TextsAt("BTN S1 RAW (gu|"), IsEmpty());
  EXPECT_THAT(TextsAt("MDEF gu|"), IsEmpty());
  EXPECT_THAT(TextsAt("Hello gu|"), IsEmpty());
}

TEST(Candidates, OfAMacroFileStandBehindTheEquals) {
  const std::string text = "Gun = SPC\r\nBoth = gu";
  const IndexedPair pair("", text);
  const auto at = [&](std::size_t position) {
    return CandidatesAt(pair.pair, pair.names, Abilities(kF22), FileKind::Macros, position);
  };
  ASSERT_EQ(at(text.size()).size(), 1u);
  EXPECT_EQ(at(text.size())[0].text, "Gun");
  EXPECT_THAT(at(2), IsEmpty());
  EXPECT_THAT(at(13), IsEmpty());
}

TEST(Candidates, AreNoMoreThanALot) {
  std::string macros;
  for (int i = 0; i < 3000; ++i) macros.append("Name_").append(std::to_string(i)).append(" = a\r\n");
  const IndexedPair pair("BTN S1 na", macros);
  const auto all = CandidatesAt(pair.pair, pair.names, Abilities(kF22), FileKind::Joystick, 9);
  EXPECT_EQ(all.size(), kMostCandidates);
}

}  // namespace
}  // namespace tarvik::model
