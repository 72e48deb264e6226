#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

#include "language/MacroAnalysis.h"
#include "support/LanguagePrinters.h"
#include "text/CodePage.h"
#include "text/Search.h"

namespace tarvik {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

MacroAnalysis Analyse(std::vector<std::string> records) { return AnalyseMacros(records); }

std::vector<std::string> HeadingsIn(std::vector<std::string> records) {
  std::vector<std::string> headings;
  for (const MacroCategory& category : AnalyseMacros(records).categories)
    headings.push_back(category.heading);
  return headings;
}

/// What `lines` make, followed by three macros: a block needs records behind it to be one.
std::vector<std::string> WithMacrosBehind(std::vector<std::string> lines) {
  lines.insert(lines.end(), {"a = 1", "b = 2", "c = 3"});
  return lines;
}

TEST(MacroRecordsTest, ARecordIsAFieldAndNotALine) {
  EXPECT_THAT(ReadMacroRecords("Fire = a b, c\r\nGear = g\r\n"), ElementsAre("Fire = a b", "c", "Gear = g"));
}

TEST(MacroRecordsTest, LeadingBlanksGoAndTrailingOnesStay) {
  EXPECT_THAT(ReadMacroRecords("   Fire = a  \r\n  ,  b"), ElementsAre("Fire = a  ", "b"));
}

TEST(MacroRecordsTest, EmptyRecordsAndLoneTildesAreLeftOut) {
  EXPECT_THAT(ReadMacroRecords("\r\n~\r\n,,\r\n  \r\na = 1\r\n  ~\r\n~ \r\n"), ElementsAre("a = 1", "~ "));
}

TEST(MacroRecordsTest, AQuotedFieldMayHoldCommas) {
  EXPECT_THAT(ReadMacroRecords("\"Fire = a, b\", c\r\nx = 1"), ElementsAre("Fire = a, b", "c", "x = 1"));
  EXPECT_THAT(ReadMacroRecords("Fire = \"a, b\""), ElementsAre("Fire = \"a", "b\"")) << "only at its start";
}

TEST(MacroRecordsTest, AQuoteThatNothingClosesRunsToTheEnd) {
  EXPECT_THAT(ReadMacroRecords("a = 1\r\n\"b = 2, c\r\nd = 3"), ElementsAre("a = 1", "b = 2, c\r\nd = 3"));
  EXPECT_THAT(ReadMacroRecords("\""), IsEmpty());
}

TEST(MacroRecordsTest, TheLastLineNeedsNoLineEndAndAnyLineEndWillDo) {
  EXPECT_THAT(ReadMacroRecords("a = 1\nb = 2\rc = 3"), ElementsAre("a = 1", "b = 2", "c = 3"));
  EXPECT_THAT(ReadMacroRecords(""), IsEmpty());
}

TEST(MacroAnalysisTest, AMacroIsARecordWithAnEqualsSign) {
  const MacroAnalysis analysis = Analyse({"Fire = a", "no macro", "= x", "Land Gear=b = c"});
  EXPECT_THAT(analysis.macros, ElementsAre("Fire", "", "Land Gear"));
  EXPECT_THAT(analysis.categories, IsEmpty());
}

TEST(MacroAnalysisTest, ANameLosesTheBlanksAtItsEndsAndNothingElse) {
  EXPECT_EQ(MacroNameOf("  Fire  now  = a"), "Fire  now");
  EXPECT_EQ(MacroNameOf("Fire=a"), "Fire");
  EXPECT_EQ(MacroNameOf("\tFire\t= a"), "\tFire\t") << "a tab is no blank";
  EXPECT_EQ(MacroNameOf("   = a"), "");
}

TEST(MacroAnalysisTest, ARemCommentNeedsItsBlank) {
  EXPECT_THAT(Analyse({"remote = a", "rem ote = a", "REM x = b", "rem=c", "Remx = d"}).macros,
              ElementsAre("remote", "rem", "Remx"));
}

TEST(MacroAnalysisTest, ATildeCommentIsNeverAMacro) {
  EXPECT_THAT(Analyse({"~a = b", "~ = c", "x~ = d"}).macros, ElementsAre("x~"));
}

TEST(MacroAnalysisTest, ACommaInACommentCanBeginAMacro) {
  auto records = ReadMacroRecords("rem note, gear = up\r\n");
  EXPECT_THAT(AnalyseMacros(records).macros, ElementsAre("gear"));
}

TEST(MacroAnalysisTest, ARemHeadingStandsBetweenRules) {
  EXPECT_THAT(HeadingsIn(WithMacrosBehind({"rem ------", "rem  ENGINE CONTROLS  ", "REM --"})),
              ElementsAre("Engine controls"));
}

TEST(MacroAnalysisTest, ARuleIsRemABlankAndTwoDashes) {
  EXPECT_THAT(HeadingsIn(WithMacrosBehind({"rem -", "rem A", "rem --"})), IsEmpty());
  EXPECT_THAT(HeadingsIn(WithMacrosBehind({"rem --", "rem A", "rem -"})), IsEmpty());
  EXPECT_THAT(HeadingsIn(WithMacrosBehind({"rem  --", "rem A", "rem --"})), IsEmpty());
  EXPECT_THAT(HeadingsIn(WithMacrosBehind({"Rem --", "rem A", "rEM --"})), ElementsAre("A"));
}

TEST(MacroAnalysisTest, ABoxedHeadingStandsInItsFrame) {
  EXPECT_THAT(HeadingsIn(WithMacrosBehind(
                  {"~\xC9\xCD\xCD\xCD\xCD\xBB", "~\xBA  WEAPONS \xBA", "~\xC8\xCD\xCD\xCD\xCD\xBC"})),
              ElementsAre("Weapons"));
  EXPECT_THAT(HeadingsIn(WithMacrosBehind({"~\xE9\xED\xED\xED\xED",
                                           "~\xBA"
                                           "a",
                                           "~\xE8\xED\xED\xED\xED"})),
              ElementsAre("A"))
      << "the frame in lower case, and a line without a right side";
  EXPECT_THAT(HeadingsIn(WithMacrosBehind({"~\xC9\xCD\xCD\xCD",
                                           "~\xBA"
                                           "a\xBA",
                                           "~\xC8\xCD\xCD\xCD\xCD"})),
              IsEmpty());
  EXPECT_THAT(HeadingsIn(WithMacrosBehind({"~\xC8\xCD\xCD\xCD\xCD",
                                           "~\xBA"
                                           "a\xBA",
                                           "~\xC9\xCD\xCD\xCD\xCD"})),
              IsEmpty());
}

TEST(MacroAnalysisTest, OnlyOneSideOfTheFrameGoes) {
  EXPECT_THAT(HeadingsIn(WithMacrosBehind({"~\xC9\xCD\xCD\xCD\xCD",
                                           "~\xBA"
                                           "a\xBA\xBA",
                                           "~\xC8\xCD\xCD\xCD\xCD"})),
              ElementsAre("A\xBA"));
  EXPECT_THAT(HeadingsIn(WithMacrosBehind({"~\xC9\xCD\xCD\xCD\xCD",
                                           "~\xBA"
                                           "a\xBA ",
                                           "~\xC8\xCD\xCD\xCD\xCD"})),
              ElementsAre("A\xBA"))
      << "a side that blanks follow is not at the end";
}

TEST(MacroAnalysisTest, TheMiddleLineIsTakenWhateverItIs) {
  EXPECT_THAT(HeadingsIn(WithMacrosBehind({"rem --", "Gear = g", "rem --"})), ElementsAre("R = g"));
  EXPECT_THAT(HeadingsIn(WithMacrosBehind({"rem --", "rem", "rem --"})), ElementsAre(""));
  EXPECT_THAT(HeadingsIn(WithMacrosBehind({"rem --", "Ab", "rem --"})), ElementsAre("Ab"))
      << "too short for what is to go, it keeps all of it";
  EXPECT_THAT(HeadingsIn(WithMacrosBehind({"~\xC9\xCD\xCD\xCD\xCD", "x", "~\xC8\xCD\xCD\xCD\xCD"})),
              ElementsAre("X"));
}

TEST(MacroAnalysisTest, TheMiddleRecordIsCutDownToTheHeading) {
  std::vector<std::string> records = WithMacrosBehind({"rem --", "rem  ENGINE ", "rem --"});
  EXPECT_THAT(AnalyseMacros(records).categories, testing::SizeIs(1));
  EXPECT_EQ(records[1], "ENGINE");
}

TEST(MacroAnalysisTest, AHeadingHasACapitalAndThenSmallLetters) {
  EXPECT_THAT(HeadingsIn(WithMacrosBehind({"rem --",
                                           "rem \xE9"
                                           "COLE \xC9T\xC9",
                                           "rem --"})),
              ElementsAre("\xC9"
                          "cole \xE9t\xE9"));
}

TEST(MacroAnalysisTest, ABlockNeedsARecordBehindIt) {
  const std::vector<std::string> block = {"rem --", "rem A", "rem --"};
  std::vector<std::string> records = block;
  EXPECT_THAT(HeadingsIn(records), IsEmpty());
  records.push_back("a = 1");
  EXPECT_THAT(HeadingsIn(records), ElementsAre("A"));
}

TEST(MacroAnalysisTest, ABlockThatIsNoneIsPlainComments) {
  EXPECT_THAT(Analyse({"x = 0", "rem --", "rem A = b", "rem --"}).macros, ElementsAre("x"));
  EXPECT_THAT(Analyse({"rem --", "Gear = g", "rem --"}).macros, ElementsAre("Gear"))
      << "its middle line is read for itself";
}

TEST(MacroAnalysisTest, TheLastLineOfABlockIsNeverAMacro) {
  EXPECT_THAT(Analyse(WithMacrosBehind({"rem --", "rem A", "rem -- x = y"})).macros,
              ElementsAre("a", "b", "c"));
  EXPECT_THAT(Analyse(WithMacrosBehind({"rem --", "rem A", "rem --", "rem B", "rem --"})).categories,
              testing::SizeIs(1))
      << "a rule belongs to one block";
}

TEST(MacroAnalysisTest, BlankLinesInABlockDoNotMatter) {
  auto records = ReadMacroRecords("rem --\r\n\r\nrem A\r\n~\r\nrem --\r\na = 1\r\nb = 2\r\n");
  const MacroAnalysis analysis = AnalyseMacros(records);
  ASSERT_THAT(analysis.categories, testing::SizeIs(1));
  EXPECT_THAT(analysis.categories[0].macros, ElementsAre("a", "b"));
}

TEST(MacroAnalysisTest, AMacroBelongsToTheLatestHeadingAboveIt) {
  const MacroAnalysis analysis =
      Analyse({"x = 0", "rem --", "rem A", "rem --", "y = 1", "rem --", "rem A", "rem --", "z = 2", "w = 3"});
  EXPECT_THAT(analysis.macros, ElementsAre("x", "y", "z", "w"));
  ASSERT_THAT(analysis.categories, testing::SizeIs(2));
  EXPECT_THAT(analysis.categories[0].macros, ElementsAre("y"));
  EXPECT_THAT(analysis.categories[1].macros, ElementsAre("z", "w"));
}

TEST(MacroAnalysisTest, NoRecordsAreNoMacros) {
  const MacroAnalysis analysis = Analyse({});
  EXPECT_THAT(analysis.macros, IsEmpty());
  EXPECT_THAT(analysis.categories, IsEmpty());
}

TEST(NamesUsedTest, ANameCountsAsAWholeWordInEitherCase) {
  EXPECT_THAT(NamesUsed("BTN S1 fire\r\nrem Gear_Up", {"Fire", "Gear", "Gear_Up", "S", "rem gear_up", ""}),
              ElementsAre(true, false, true, false, true, false));
}

TEST(NamesUsedTest, NamesThatBeginWithNoLetterAreFoundToo) {
  EXPECT_THAT(NamesUsed("a -x+ (b)", {"-x", "-x+", "x+", "(b", "+ ", "- x"}),
              ElementsAre(true, true, true, true, false, false))
      << "a sign with a letter on one side of it stands in a longer word";
  EXPECT_THAT(NamesUsed("a-x", {"-x"}), ElementsAre(false));
}

TEST(NamesUsedTest, ANameThatIsThereSeveralTimesCountsEachTime) {
  EXPECT_THAT(NamesUsed("Gear Flaps Gear", {"Gear", "GEAR", "Gear Flaps", "gear", "Gear Up"}),
              ElementsAre(true, true, true, true, false));
}

// The fast search for all names at once finds what a search for each of them finds.
TEST(NamesUsedTest, ItTellsWhatASearchForEachNameTells) {
  std::mt19937 random(5);
  const std::string letters = "aAb1_ -(\r\n\xE9";
  const auto text = [&](std::size_t longest) {
    std::string made;
    for (std::size_t n = random() % (longest + 1); n > 0; --n) made += letters[random() % letters.size()];
    return made;
  };
  int used = 0;
  for (int i = 0; i < 5000; ++i) {
    const std::string in = text(40);
    const std::string folded = LowerCase(in);
    std::vector<std::string> names;
    for (int n = 0; n < 8; ++n) names.push_back(text(5));
    const std::vector<bool> found = NamesUsed(in, names);
    for (std::size_t n = 0; n < names.size(); ++n) {
      const bool wanted = FindText({in, folded}, names[n], 0, in.size(), find::kWholeWord).has_value();
      ASSERT_EQ(found[n], wanted) << '"' << names[n] << "\" in \"" << in << '"';
      used += wanted;
    }
  }
  EXPECT_GT(used, 1000);
}

}  // namespace
}  // namespace tarvik
