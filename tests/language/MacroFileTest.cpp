#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "language/MacroFile.h"
#include "support/ModelPrinter.h"
#include "support/ModelPrinters.h"

namespace tarvik::model {
namespace {

std::string MacroTree(std::string_view text) { return Printed(MacroFile(text), text); }

/// The definition that a text of one line is, of which the ranges are.
MacroDefinition Only(std::string_view text) {
  const MacroFile file(text);
  EXPECT_EQ(file.size(), 1u);
  return std::get<MacroDefinition>(file[0].body);
}

TEST(MacroFile, TheNameIsAllBeforeTheEqualsWithoutTheBlanksAround) {
  EXPECT_EQ(Only("Fire_Gun   = SPC").name, (Range{0, 8}));
  EXPECT_EQ(Only("Fire_Gun=SPC").name, (Range{0, 8}));
  EXPECT_EQ(Only("Two words = SPC").name, (Range{0, 9}));
  EXPECT_EQ(Only("= SPC").name.length, 0u);
}

TEST(MacroFile, ASecondEqualsIsAKey) { EXPECT_EQ(MacroTree("Zoom = ="), "1:\n    macro Zoom\n    key =\n"); }

TEST(MacroFile, ADefinitionHoldsAllThatAButtonSends) {
  EXPECT_EQ(MacroTree("Look = /P RAW (#0C) DLY(60) Other /R SHF F1"),
            "1:\n"
            "    macro Look\n"
            "    /P\n"
            "      raw RAW (#0C) codes 1\n"
            "      delay DLY(60) 60\n"
            "      name Other\n"
            "    /R\n"
            "      with SHF\n"
            "      key F1\n");
}

TEST(MacroFile, AnAxisStandsBehindItsName) {
  const MacroDefinition definition = Only("@digitalthrottle = THR 1 12 4 KP+ KP- TAB TAB = -");
  const auto* axis = std::get_if<Axis>(&definition.sends);
  ASSERT_NE(axis, nullptr);
  EXPECT_EQ(axis->shape->word, "THR");
  EXPECT_EQ(axis->type.value, 1u);
  ASSERT_EQ(axis->steps.size(), 2u);
  EXPECT_EQ(axis->steps[1].value, 4u);
  EXPECT_EQ(axis->keys.items.size(), 6u);
}

TEST(MacroFile, ALineThatIsSetInGoesOnUnlessItDefinesAMacro) {
  const std::string text = "Gun = SPC\r\n      DLY(60) SPC\r\n  Flare = f\r\n\r\n  stray\r\n";
  const MacroFile file(text);
  ASSERT_EQ(file.size(), 4u);
  EXPECT_EQ(file.LinesOf(0, text), "Gun = SPC\r\n      DLY(60) SPC\r\n");
  EXPECT_EQ(file.LinesOf(1, text), "  Flare = f\r\n");
  EXPECT_TRUE(std::holds_alternative<Blank>(file[2].body));
  EXPECT_TRUE(std::holds_alternative<Unknown>(file[3].body));
}

TEST(MacroFile, CommentsAreKept) {
  const std::string text = "Gun = SPC  Rem the trigger\r\n~ alone\r\n";
  const MacroFile file(text);
  ASSERT_EQ(file[0].comments.size(), 1u);
  EXPECT_EQ(In(file.LinesOf(0, text), file[0].comments[0]), "Rem the trigger");
  EXPECT_EQ(In(file.LinesOf(1, text), std::get<Remark>(file[1].body).comment), "~ alone");
}

TEST(MacroFile, AMacroStandsUnderTheNearestHeadingAbove) {
  const std::string text =
      "Above = a\r\nRem ------\r\nRem  GUNS\r\nRem ------\r\nGun = SPC\r\nRem no heading\r\nBurst = SPC\r\n";
  const MacroFile file(text);
  EXPECT_EQ(HeadingOver(file, text, 0), "");
  EXPECT_EQ(HeadingOver(file, text, 4), "Guns");
  EXPECT_EQ(HeadingOver(file, text, 6), "Guns");
  EXPECT_EQ(HeadingOver(file, text, 99), "Guns");
}

TEST(MacroFile, AnEditReadsAgainWhatItTouches) {
  std::string text = "Gun = SPC\r\nFlare = f\r\n";
  MacroFile file(text);
  text.insert(11, "  ");
  file.Edit(text, {11, 0}, 2);
  EXPECT_EQ(file, MacroFile(text));
  text.replace(13, 5, "DLY(60)");
  file.Edit(text, {13, 5}, 7);
  EXPECT_EQ(file, MacroFile(text));
}

TEST(MacroFile, WithoutTextThereIsNoStatement) {
  EXPECT_EQ(MacroFile("").size(), 0u);
  EXPECT_EQ(HeadingOver(MacroFile(""), "", 0), "");
}

}  // namespace
}  // namespace tarvik::model
