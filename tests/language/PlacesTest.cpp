#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "language/Places.h"
#include "support/IndexedPair.h"
#include "support/ModelPrinters.h"

namespace tarvik::model {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

TEST(NameAt, IsTheWordUnderAPositionAndJustBehindIt) {
  const IndexedPair pair("BTN S1 Gun /R x\r\n", "Gun = SPC\r\n");
  for (const std::size_t position : {7U, 9U, 10U}) {
    const auto here = NameAt(pair.names, kJoystick, position);
    ASSERT_TRUE(here) << position;
    EXPECT_EQ(here->name, "Gun");
    EXPECT_EQ(here->kind, NameKind::Macro);
    EXPECT_FALSE(here->isDefinition);
    EXPECT_EQ(here->mention, (Mention{kJoystick, 0, {7, 3}}));
  }
  EXPECT_FALSE(NameAt(pair.names, kJoystick, 11));
  EXPECT_TRUE(NameAt(pair.names, kMacros, 0)->isDefinition);
}

TEST(NameAt, KnowsFlagsAndControls) {
  const IndexedPair pair("DEF x2 S3\r\nRKR UP a\r\n");
  EXPECT_EQ(NameAt(pair.names, kJoystick, 4)->name, "X2");
  EXPECT_EQ(NameAt(pair.names, kJoystick, 4)->kind, NameKind::Flag);
  EXPECT_EQ(NameAt(pair.names, kJoystick, 7)->name, "S3");
  EXPECT_EQ(NameAt(pair.names, kJoystick, 12)->name, "RKR UP");
  EXPECT_EQ(NameAt(pair.names, kJoystick, 12)->kind, NameKind::Control);
}

TEST(Places, GoFromAUseToTheMacroAndBack) {
  const IndexedPair pair("BTN S1 gun\r\n", "Gun = SPC\r\nBoth = GUN a\r\nGun = x\r\n");
  const std::size_t use = pair.At(kJoystick, "gun");
  EXPECT_THAT(pair.Words(DefinitionsOf(pair.names, kJoystick, use)), ElementsAre("m0: Gun", "m2: Gun"));
  EXPECT_THAT(pair.Words(UsesOf(pair.names, kMacros, 0)), ElementsAre("j0: gun", "m1: GUN"));
  EXPECT_THAT(UsesOf(pair.names, kMacros, 5), IsEmpty());
}

TEST(Places, GoFromAFlagToItsDef) {
  const IndexedPair pair("BTN X1 a\r\nDEF X1 S1\r\nDEF X2 x1\r\n");
  EXPECT_THAT(pair.Words(DefinitionsOf(pair.names, kJoystick, pair.At(kJoystick, "x1"))),
              ElementsAre("j1: X1"));
  EXPECT_THAT(pair.Words(UsesOf(pair.names, kJoystick, 4)), ElementsAre("j0: X1", "j2: x1"));
}

TEST(Places, GoFromAControlInAConditionToItsStatement) {
  const IndexedPair pair("DEF X1 S1\r\nBTN S1 a\r\n");
  EXPECT_THAT(pair.Words(DefinitionsOf(pair.names, kJoystick, 7)), ElementsAre("j1: S1"));
  EXPECT_THAT(pair.Words(UsesOf(pair.names, kJoystick, 15)), ElementsAre("j0: S1"));
}

TEST(RenamePlaces, AreThoseOfTheModelInBothFiles) {
  const IndexedPair pair("Rem Gun\r\nBTN S1 /P gun /R Gun_Off Rem the gun, not Gun_Off\r\n",
                         "Gun = SPC\r\nTwo = Gun Gun\r\n");
  EXPECT_THAT(pair.Words(RenamePlaces(pair.pair, pair.names, "GUN", InComments::No)),
              ElementsAre("j1: gun", "m0: Gun", "m1: Gun", "m1: Gun"));
  EXPECT_THAT(pair.Words(RenamePlaces(pair.pair, pair.names, "GUN", InComments::Yes)),
              ElementsAre("j0: Gun", "j1: gun", "j1: gun", "m0: Gun", "m1: Gun", "m1: Gun"));
  EXPECT_THAT(RenamePlaces(pair.pair, pair.names, "Missile", InComments::Yes), IsEmpty());
}

TEST(RenamePlaces, OfAFlagAreAllItsNumbersAndNoOther) {
  const IndexedPair pair("DEF X1 S1 AND x1\r\nBTN X1 a\r\nDEF X12 S2\r\nPortB1 IS X1\r\n");
  EXPECT_THAT(pair.Words(RenamePlaces(pair.pair, pair.names, "X1", InComments::No)),
              ElementsAre("j0: X1", "j0: x1", "j1: X1", "j3: X1"));
}

TEST(WhyNoName, TellsWhatIsWrongWithAMacrosName) {
  const IndexedPair pair("BTN S1 Gun Lost\r\n", "Gun = SPC\r\nFlare = f\r\n");
  const auto why = [&](std::string_view name) {
    return WhyNoName(pair.names, NameKind::Macro, "Gun", name).value_or("");
  };
  EXPECT_EQ(why("Cannon"), "");
  EXPECT_EQ(why("GUN"), "");
  EXPECT_EQ(why("Lost"), "");  // used, and not defined
  EXPECT_EQ(why(""), "There is no name.");
  EXPECT_THAT(why("Big Gun"), HasSubstr("blanks"));
  EXPECT_THAT(why("a=b"), HasSubstr("\"=\""));
  EXPECT_THAT(why("enT"), HasSubstr("key"));
  EXPECT_THAT(why("AUXHOME"), HasSubstr("key"));
  EXPECT_THAT(why("/"), HasSubstr("key"));
  EXPECT_THAT(why("btn"), HasSubstr("means"));
  EXPECT_THAT(why("RAW"), HasSubstr("means"));
  EXPECT_THAT(why("not"), HasSubstr("means"));
  EXPECT_THAT(why("def"), HasSubstr("means"));
  EXPECT_THAT(why("X3"), HasSubstr("flag"));
  EXPECT_THAT(why("Gun(2)"), HasSubstr("brackets"));
  EXPECT_THAT(why("Rem-Gun"), HasSubstr("remark"));
  EXPECT_THAT(why("a~b"), HasSubstr("remark"));
  EXPECT_THAT(why("/Gun"), HasSubstr("one word"));
  EXPECT_THAT(why("#12"), HasSubstr("one word"));
  EXPECT_THAT(why("123"), HasSubstr("one word"));
  EXPECT_EQ(why("FLARE"), "There is a macro \"Flare\" already.");
}

TEST(WhyNoName, KeepsFlagsToTheirNumbers) {
  const IndexedPair pair("DEF X1 S1\r\nBTN X2 a\r\n");
  const auto why = [&](std::string_view name) {
    return WhyNoName(pair.names, NameKind::Flag, "X1", name).value_or("");
  };
  EXPECT_EQ(why("X48"), "");
  EXPECT_EQ(why("x1"), "");
  EXPECT_EQ(why("X2"), "There is a flag X2 already.");
  for (const char* name : {"X49", "X0", "Y1", "X"}) EXPECT_EQ(why(name), "A flag is called X1 to X48.");
}

}  // namespace
}  // namespace tarvik::model
