#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "language/Names.h"
#include "support/ModelPrinters.h"

namespace tarvik::model {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// An index with the texts that it is of.
struct Indexed {
  Indexed(std::string joystick, std::string macros)
      : joystickText(std::move(joystick)),
        macroText(std::move(macros)),
        index(JoystickFile(joystickText), joystickText, MacroFile(macroText), macroText) {}

  /// The words at each of the places.
  [[nodiscard]] std::vector<std::string> At(const std::vector<Mention>& mentions) const {
    std::vector<std::string> words;
    for (const Mention& mention : mentions) {
      const bool inJoystick = mention.file == FileKind::Joystick;
      words.push_back((inJoystick ? "j" : "m") + std::to_string(mention.statement) + ": " +
                      std::string(In(inJoystick ? joystickText : macroText, mention.range)));
    }
    return words;
  }

  std::string joystickText;
  std::string macroText;
  NameIndex index;
};

TEST(NameIndex, AMacroIsFoundInBothFilesInAnyCase) {
  const Indexed pair("BTN S1 /P Gun /R GUN\r\n", "Rem first\r\nGun = SPC\r\nBoth = gun DLY(20) gun\r\n");
  const MacroNames* gun = pair.index.FindMacro("gUN");
  ASSERT_NE(gun, nullptr);
  EXPECT_EQ(gun->name, "Gun");
  EXPECT_THAT(pair.At(gun->definitions), ElementsAre("m1: Gun"));
  EXPECT_THAT(pair.At(gun->uses), ElementsAre("j0: Gun", "j0: GUN", "m2: gun", "m2: gun"));
  EXPECT_TRUE(pair.index.Defines("GUN"));
}

TEST(NameIndex, ANameThatIsNotDefinedHasItsUsesAlone) {
  const Indexed pair("BTN S1 Gun\r\n", "Launch = SPC\r\n");
  EXPECT_THAT(pair.At(pair.index.FindMacro("Gun")->uses), ElementsAre("j0: Gun"));
  EXPECT_FALSE(pair.index.Defines("Gun"));
  EXPECT_EQ(pair.index.FindMacro("Flare"), nullptr);
}

TEST(NameIndex, MacrosOfTheMacroFileComeFirst) {
  const Indexed pair("BTN S1 C B\r\n", "B1 = a\r\nA1 = b\r\n");
  std::vector<std::string> names;
  for (const MacroNames& macro : pair.index.Macros()) names.push_back(macro.name);
  EXPECT_THAT(names, ElementsAre("B1", "A1"));  // C and B are keys
}

TEST(NameIndex, TheDigitalThrottleIsAUseOfItsMacroAndAnAssignmentOfTheAxis) {
  const Indexed pair("@digitalthrottle\r\n", "@digitalthrottle = THR 1 2 3 More Less a b c d\r\n");
  EXPECT_THAT(pair.At(pair.index.FindMacro("@digitalthrottle")->uses), ElementsAre("j0: @digitalthrottle"));
  EXPECT_THAT(pair.At(pair.index.FindMacro("More")->uses), ElementsAre("m0: More"));
  EXPECT_THAT(pair.At(pair.index.FindControl("THR")->assignments), ElementsAre("j0: @digitalthrottle"));
}

TEST(NameIndex, AFlagIsFoundByItsNumber) {
  const Indexed pair("DEF X1 S1 AND NOT x2\r\nBTN X1 a\r\nDEF X2 S3\r\nPortB1 IS X1\r\n", "");
  const FlagNames* one = pair.index.FindFlag(1);
  ASSERT_NE(one, nullptr);
  EXPECT_THAT(pair.At(one->definitions), ElementsAre("j0: X1"));
  EXPECT_THAT(pair.At(one->buttons), ElementsAre("j1: X1"));
  EXPECT_THAT(pair.At(one->uses), ElementsAre("j3: X1"));
  EXPECT_THAT(pair.At(pair.index.FindFlag(2)->uses), ElementsAre("j0: x2"));
  EXPECT_EQ(pair.index.FindFlag(3), nullptr);
  EXPECT_EQ(pair.index.FindControl("X1"), nullptr);
}

TEST(NameIndex, AControlIsFoundWhateverItsBlanksAndLetters) {
  const Indexed pair("RKR \t up a\r\nBTN s1 b\r\nDEF X1 S1\r\n", "");
  EXPECT_THAT(pair.At(pair.index.FindControl("RKR UP")->assignments), ElementsAre("j0: RKR \t up"));
  EXPECT_THAT(pair.At(pair.index.FindControl("S1")->assignments), ElementsAre("j1: s1"));
  EXPECT_THAT(pair.At(pair.index.FindControl("S1")->uses), ElementsAre("j2: S1"));
}

TEST(NameIndex, AnAxisIsAssignedByItsStatementAndUsedByAComparison) {
  const Indexed pair("THR 1 2 3 a b c d e f\r\nDEF X1 CMPGT(thr 90)\r\n", "");
  const ControlNames* throttle = pair.index.FindControl("THR");
  ASSERT_NE(throttle, nullptr);
  EXPECT_TRUE(throttle->isAxis);
  EXPECT_THAT(pair.At(throttle->assignments), ElementsAre("j0: THR"));
  EXPECT_THAT(pair.At(throttle->uses), ElementsAre("j1: thr"));
}

TEST(NameIndex, RangesAreInTheWholeText) {
  const Indexed pair("Rem one\r\n\r\nBTN S1 /U a\r\n       /D Gun\r\n", "");
  EXPECT_EQ(pair.index.FindMacro("Gun")->uses[0].range, (Range{pair.joystickText.find("Gun"), 3}));
}

TEST(NameIndex, IsTheSameForTheSameTexts) {
  EXPECT_EQ(Indexed("BTN S1 Gun\n", "Gun = a\n").index, Indexed("BTN S1 Gun\n", "Gun = a\n").index);
  EXPECT_FALSE(Indexed("BTN S1 Gun\n", "Gun = a\n").index == Indexed("BTN S2 Gun\n", "Gun = a\n").index);
}

std::vector<std::string> Nearest(const std::string& macros, std::string_view name) {
  return NearestNames(Indexed("", macros).index).To(name);
}

TEST(NearestNames, FindsWhatDiffersInALetterOrTwo) {
  const std::string macros = "Fire_Gun = a\nFire_Missile = b\nGear_Up = c\nGear_Down = d\n";
  EXPECT_THAT(Nearest(macros, "Fire_Gnu"), ElementsAre("Fire_Gun"));
  EXPECT_THAT(Nearest(macros, "ire_Gun"), ElementsAre("Fire_Gun"));
  EXPECT_THAT(Nearest(macros, "FIREGUN"), ElementsAre("Fire_Gun"));
  EXPECT_THAT(Nearest(macros, "Gaer_Dwon"), ElementsAre("Gear_Down"));
  EXPECT_THAT(Nearest(macros, "Chaff"), IsEmpty());
  EXPECT_THAT(Nearest(macros, "Up"), IsEmpty());
  EXPECT_THAT(Nearest("", "Up"), IsEmpty());
}

TEST(NearestNames, TheNearestOfManyComesFirst) {
  std::string macros;
  for (int i = 0; i < 5'000; ++i) macros += "Macro_" + std::to_string(10'000 + i * 7) + "_Key = a\n";
  EXPECT_EQ(Nearest(macros, "Marco_10007_Key").at(0), "Macro_10007_Key");
  EXPECT_EQ(Nearest(macros, "Macro_10007_Kye").at(0), "Macro_10007_Key");
  EXPECT_LE(Nearest(macros, "Macro_10007_Kye").size(), 3u);
}

TEST(NearestNames, DefinitionsAloneAreOffered) {
  EXPECT_THAT(NearestNames(Indexed("BTN S1 Fire_Gnu\n", "Fire_Gun = a\n").index).To("Fire_Gnu"),
              ElementsAre("Fire_Gun"));
}

TEST(EditDistance, CountsChangesAndExchanges) {
  EXPECT_EQ(EditDistance("gun", "GUN", 3), 0u);
  EXPECT_EQ(EditDistance("gun", "gnu", 3), 1u);
  EXPECT_EQ(EditDistance("gun", "guns", 3), 1u);
  EXPECT_EQ(EditDistance("", "gun", 3), 3u);
  EXPECT_EQ(EditDistance("abcdef", "uvwxyz", 3), 4u);
  EXPECT_EQ(EditDistance("abc", "cba", 3), 2u);
}

}  // namespace
}  // namespace tarvik::model
