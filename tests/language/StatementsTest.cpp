#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <set>

#include "language/Statements.h"
#include "support/LanguagePrinters.h"

namespace tarvik {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr StatementStyle kBlackStyle = {};
constexpr StatementStyle kColourStyle = {.withColour = true};
constexpr StatementStyle kBlackLine = {.addCr = true};
constexpr StatementStyle kColourLine = {.withColour = true, .addCr = true};

constexpr auto kBlack = ColourClass::Black;
constexpr auto kButton = ColourClass::Button;
constexpr auto kMiscellaneous = ColourClass::Miscellaneous;

MATCHER_P(IsOnePieceOf, text, "") { return arg.pieces == std::vector<Piece>{{text}}; }

/// The rows of the pictured hardware as "array(index)=caption".
std::vector<std::string> LabelsOf(tables::Picture picture) {
  std::vector<std::string> labels;
  for (const tables::HardwareRow& row : tables::kHardware) {
    if (row.picture != picture) continue;
    const std::string index = row.index < 0 ? "" : "(" + std::to_string(row.index) + ")";
    labels.push_back(std::string(row.array) + index + "=" + std::string(row.caption));
  }
  return labels;
}

TEST(ComposerHardware, EveryPictureHasItsLabels) {
  using testing::UnorderedElementsAre;
  EXPECT_THAT(LabelsOf(tables::Picture::Stick),
              UnorderedElementsAre("HAT(0)= H1", "HAT(1)= H2", "HAT(2)= H3", "HAT(3)= H4", "BTN(0)=S1",
                                   "BTN(1)=S2", "BTN(2)=S3", "BTN(3)=S4", "TRIG=TG1 TG2", "ROTARY(3)=JSX",
                                   "ROTARY(6)=JSY", "ROTARY(4)=SWAPTG", "ROTARY(7)=PORT"));
  EXPECT_THAT(LabelsOf(tables::Picture::PlainStick),
              UnorderedElementsAre("HAT(4)= H", "BTN(5)=UB", "BTN(6)=TG", "BTN(7)=MB", "BTN(8)=LB"));
  EXPECT_THAT(LabelsOf(tables::Picture::Tqs),
              UnorderedElementsAre("ROTARY(0)=RNG", "ROTARY(1)=ANT", "BTN(32)=T1", "BTN(24)=T2", "BTN(27)=T3",
                                   "BTN(26)=T4", "BTN(25)=T5", "BTN(11)=T6", "BTN(12)=T7", "BTN(13)=T8",
                                   "BTN(14)=T9", "BTN(15)=T10", "BTN(30)=T11", "BTN(29)=T12", "BTN(28)=T13",
                                   "BTN(31)=T14", "ROTARY(2)=Rudder", "ROTARY(5)=Throttle"));
  EXPECT_THAT(
      LabelsOf(tables::Picture::Wcs),
      UnorderedElementsAre("BTN(16)=", "BTN(4)=", "BTN(17)=", "BTN(18)=", "BTN(19)=", "BTN(20)=", "BTN(21)=",
                           "BTN(22)=", "BTN(23)=", "ROTARY(8)=Rudder", "ROTARY(9)=Throttle"));
}

TEST(ComposerHardware, NoControlStandsTwiceAndEachSaysWhatItDoes) {
  std::set<std::pair<std::string_view, int>> seen;
  std::map<std::string_view, int> tips;
  for (const tables::HardwareRow& row : tables::kHardware) {
    EXPECT_TRUE(seen.insert({row.array, row.index}).second) << row.array << row.index;
    ++tips[row.tip];
  }
  EXPECT_THAT(tips, testing::UnorderedElementsAre(
                        testing::Pair("Insert or find this button statement", 4 + 3 + 14 + 9),
                        testing::Pair("Insert or find this hat statement", 5),
                        testing::Pair("Insert or find a trigger statement", 1),
                        testing::Pair("Insert or find this trigger statement", 1),
                        testing::Pair("Insert or find the Range rotary", 1),
                        testing::Pair("Insert or find the Antenna rotary", 1),
                        testing::Pair("Setup for digital joystick x axis", 1),
                        testing::Pair("Setup for digital joystick y axis", 1),
                        testing::Pair("Swap the trigger positions around", 1),
                        testing::Pair("Assign a hat or button as an analogue switch", 1),
                        testing::Pair("Setup your rudders", 1), testing::Pair("Set up your rudders", 1),
                        testing::Pair("Set up for digital throttle use as opposed to normal analogue", 2)));
}

TEST(ComposerHardware, TheButtonsOfTheWcsHaveANameInEachLanguage) {
  std::map<int, std::pair<std::string_view, std::string_view>> names;
  for (const tables::WcsRow& row : tables::kWcsButtons) names[row.button] = {row.plain, row.numbered};
  const decltype(names) expected = {{23, {"1", "T1"}},      {22, {"2", "T2"}},      {21, {"3", "T3"}},
                                    {19, {"4", "T4"}},      {20, {"5", "T5"}},      {18, {"6", "T6"}},
                                    {16, {"RKR UP", "T7"}}, {17, {"RKR DN", "T8"}}, {4, {"RKR MD", ""}}};
  EXPECT_EQ(names, expected);
}

TEST(ComposerHardware, AHatHasPositionsAndTheCornersOfItsMenuGoDownEachSide) {
  for (int hat = 0; hat < 4; ++hat) {
    const std::string name = "H" + std::to_string(hat + 1);
    const HatTokens tokens = TokensOf(hat);
    EXPECT_THAT(tokens.positions, ElementsAre(name + "U", name + "D", name + "L", name + "R", name + "M"));
    EXPECT_THAT(tokens.corners, ElementsAre(name + "UL", name + "DL", name + "UR", name + "DR"));
  }
  EXPECT_THAT(TokensOf(4).positions, ElementsAre("HU", "HD", "HL", "HR", "HM"));
  EXPECT_THAT(TokensOf(4).corners, IsEmpty());
}

TEST(ComposerHardware, ARotaryIsLookedForOrOpensTheTabThatBuildsIt) {
  struct Row {
    int index;
    std::string_view search;
    int tab;
    std::string_view axis;
  };
  const Row rows[] = {{0, "RNG", 1, ""},      {1, "ANT", 2, ""}, {2, "RDDR", 4, "RDDR"}, {3, "JSX", 4, "JSX"},
                      {4, "SWAPTG ", 0, ""},  {5, "THR", 3, ""}, {6, "JSY", 4, "JSY"},   {7, "", 0, ""},
                      {8, "RDDR", 4, "RDDR"}, {9, "THR", 3, ""}};
  ASSERT_EQ(std::size(tables::kRotaries), std::size(rows));
  for (const Row& row : rows) {
    const tables::RotaryRow& rotary = tables::kRotaries[row.index];
    EXPECT_EQ(rotary.search, row.search) << row.index;
    EXPECT_EQ(rotary.tab, row.tab) << row.index;
    EXPECT_EQ(rotary.axis < 0 ? "" : tables::kAxes[rotary.axis].token, row.axis) << row.index;
  }
  EXPECT_EQ(tables::kAxes[0].caption, "Joystick X axis");
  EXPECT_EQ(tables::kAxes[1].caption, "Joystick Y axis");
  EXPECT_EQ(tables::kAxes[2].caption, "Rudder");
}

/// Every token that a button, a trigger or a position of a hat can bear, beside the button's index.
std::vector<std::pair<int, std::string>> Tokens() {
  std::vector<std::pair<int, std::string>> tokens;
  for (const tables::HardwareRow& row : tables::kHardware) {
    if (row.array == "BTN" && !row.caption.empty()) tokens.emplace_back(row.index, row.caption);
  }
  for (const tables::WcsRow& row : tables::kWcsButtons) {
    if (!row.plain.starts_with("RKR")) tokens.emplace_back(row.button, row.plain);
    if (!row.numbered.empty()) tokens.emplace_back(row.button, row.numbered);
  }
  return tokens;
}

class ButtonToken : public testing::TestWithParam<std::pair<int, std::string>> {};

TEST_P(ButtonToken, IsAStatementOnItsOwnLineThatIsLookedForFirst) {
  const auto& [button, token] = GetParam();
  const std::string text = "BTN " + token + " ";
  Statement expected{{{text, kButton}}};
  expected.ownLine = expected.releasesPort = true;
  expected.search = text;
  EXPECT_EQ(ButtonStatement(button, token, false, kColourLine), expected)
      << "the tabs' line end is not for it";
  expected.pieces = {{text, kBlack}};
  EXPECT_EQ(ButtonStatement(button, token, false, kBlackLine), expected);
}

TEST_P(ButtonToken, CompletesAPortAsABareTokenThatIsNotLookedFor) {
  const auto& [button, token] = GetParam();
  Statement expected{{{token + " ", kButton}}};
  expected.releasesPort = true;
  EXPECT_EQ(ButtonStatement(button, token, true, kColourLine), expected);
  expected.pieces = {{token + " ", kBlack}};
  EXPECT_EQ(ButtonStatement(button, token, true, kBlackLine), expected);
}

INSTANTIATE_TEST_SUITE_P(Composer, ButtonToken, testing::ValuesIn(Tokens()));

TEST(ComposerStatements, HatsAndTriggersAreWrittenAsButtonsAre) {
  EXPECT_THAT(tables::kTriggers, ElementsAre("TG1", "TG2"));
  std::vector<std::string> tokens(std::begin(tables::kTriggers), std::end(tables::kTriggers));
  for (int hat = 0; hat < 5; ++hat) {
    for (const std::string& token : TokensOf(hat).positions) tokens.push_back(token);
    for (const std::string& token : TokensOf(hat).corners) tokens.push_back(token);
  }
  EXPECT_EQ(tokens.size(), 2U + 4 * 9 + 5);
  for (const std::string& token : tokens) {
    for (const bool armed : {false, true}) {
      for (const StatementStyle style : {kBlackStyle, kColourStyle}) {
        EXPECT_EQ(ControlStatement(token, armed, style), ButtonStatement(0, token, armed, style)) << token;
      }
    }
  }
}

TEST(ComposerStatements, ARockerIsLookedForWithoutBtnAndLeavesThePortAsItIs) {
  for (const tables::WcsRow& row : tables::kWcsButtons) {
    if (!row.plain.starts_with("RKR")) continue;
    const std::string text = std::string(row.plain) + " ";
    for (const bool armed : {false, true}) {
      Statement expected{{{text, kButton}}};
      expected.search = text;
      EXPECT_EQ(ButtonStatement(row.button, row.plain, armed, kColourLine), expected);
      expected.pieces = {{text, kBlack}};
      EXPECT_EQ(ButtonStatement(row.button, row.plain, armed, kBlackLine), expected);
    }
  }
}

TEST(ComposerStatements, ThreeLabelsAreRockersUnlessTheyBearATNumber) {
  for (const int rocker : {4, 16, 17}) {
    EXPECT_TRUE(IsRocker(rocker, "RKR UP"));
    EXPECT_FALSE(IsRocker(rocker, "T7"));
  }
  for (const int button : {0, 5, 15, 18, 23, 32}) EXPECT_FALSE(IsRocker(button, "RKR UP"));
}

TEST(ComposerStatements, APortIsLookedForByItsNameAndWaitsForItsControl) {
  ASSERT_THAT(tables::kPorts, ElementsAre("PortB1 IS", "PortB2 IS", "PortB3 IS", "PortB4 IS"));
  for (int port = 0; port < 4; ++port) {
    const std::string name = "PortB" + std::to_string(port + 1);
    Statement expected{{{name + " IS ", kMiscellaneous}}};
    expected.ownLine = true;
    expected.search = name;
    expected.pastHit = 4;
    EXPECT_EQ(PortStatement(tables::kPorts[port], kColourLine), expected);
    expected.pieces = {{name + " IS ", kBlack}};
    EXPECT_EQ(PortStatement(tables::kPorts[port], kBlackLine), expected);
  }
}

TEST(ComposerStatements, SwappedTriggersAreALineWhateverTheTabsAddAndJoinOnlyInColour) {
  Statement expected{{{"SWAPTG ", kMiscellaneous, BlankBefore::Never}}};
  expected.ownLine = expected.endsLine = true;
  expected.search = "SWAPTG ";
  EXPECT_EQ(SwapTriggersStatement(kColourStyle), expected);
  expected.pieces = {{"SWAPTG ", kBlack}};
  EXPECT_EQ(SwapTriggersStatement(kBlackStyle), expected);
}

TEST(ComposerStatements, ASlashGoesOnTheLine) {
  std::vector<std::string_view> captions;
  for (const tables::SlashRow& row : tables::kSlashes) captions.push_back(row.caption);
  EXPECT_THAT(captions, ElementsAre("/U", "/M", "/D", "/I", "/O", "/T", "/P", "/R", "/H", "/N", "/A", "/Q"));
  EXPECT_EQ(captions[tables::kForceSlash], "/A");
  captions.push_back(tables::kFormatSlash.caption);
  EXPECT_EQ(captions.back(), "/F");
  for (const std::string_view caption : captions) {
    const std::string text = std::string(caption) + " ";
    EXPECT_EQ(SlashStatement(caption, kColourLine), (Statement{{{text, ColourClass::Slash}}}));
    EXPECT_EQ(SlashStatement(caption, kBlackLine), (Statement{{{text}}}));
  }
}

TEST(ComposerStatements, SlashesSayWhatTheyInsert) {
  const std::string_view tips[] = {
      "up",      "middle", "down",      "in (S3 is held in)", "out (S3 isn't held in)",     "toggle", "press",
      "release", "hold",   "no repeat", "force analogue",     "ignore initial repeat delay"};
  for (std::size_t i = 0; i < std::size(tips); ++i) {
    EXPECT_EQ(tables::kSlashes[i].tip, "Insert the " + std::string(tips[i]) + " slash modifier");
  }
  EXPECT_EQ(tables::kFormatSlash.tip, "Insert the format repeating slash modifier");
}

TEST(ComposerStatements, DelayAndRepeatHaveColouredBracketsAndABlackValue) {
  const std::pair<std::string_view, std::string_view> rows[] = {{"DLY(", "DLYText"}, {"RPT(", "TextRPT"}};
  for (std::size_t i = 0; i < std::size(rows); ++i) {
    const tables::BracketRow& row = tables::kBrackets[i];
    EXPECT_EQ(row.opening, rows[i].first);
    EXPECT_EQ(row.box, rows[i].second);
    const std::string opening(row.opening);
    for (const std::string value : {"60", "", "x y"}) {
      EXPECT_EQ(BracketStatement(row, value, kColourLine),
                (Statement{{{opening, ColourClass::Raw},
                            {value, kBlack, BlankBefore::Never},
                            {") ", ColourClass::Raw, BlankBefore::Never}}}));
      EXPECT_EQ(BracketStatement(row, value, kBlackLine), (Statement{{{opening + value + ") "}}}));
    }
  }
}

TEST(ComposerStatements, ANoteIsARemOnTheLine) {
  EXPECT_EQ(RemStatement("gear up", kColourLine), (Statement{{{"Rem gear up ", ColourClass::Comment}}}));
  EXPECT_EQ(RemStatement("", kBlackLine), (Statement{{{"Rem  "}}}));
}

/// A statement of the tabs: where its values come from, in order.
struct TabCase {
  std::string_view button;
  std::string start;  ///< with "?" for the lit axis
  std::vector<std::pair<std::string_view, std::string_view>> fields;
};

const TabCase kTabCases[] = {
    {"Command3",
     "RNG 1",
     {{"Text1(0)", "Number of steps"},
      {"RichTextBox1(0)", "Step up character"},
      {"RichTextBox1(1)", "Step down character"}}},
    {"Command4",
     "RNG 2",
     {{"Text2(0)", "Number of steps"},
      {"RichTextBox2(0)", "Full up character"},
      {"RichTextBox2(1)", "In between characters"},
      {"RichTextBox2(2)", "Full down character"}}},
    {"Command8(0)",
     "ANT 1",
     {{"Text1(1)", "Number of steps"},
      {"RichTextBox1(2)", "Step up character"},
      {"RichTextBox2(6)", "Step down character"},
      {"RichTextBox1(3)", "Centre character"}}},
    {"InsertANT",
     "ANT 2",
     {{"Text2(1)", "Number of steps"},
      {"RichTextBox2(3)", "Full up character"},
      {"RichTextBox2(5)", "Full up to centre"},
      {"RichTextBox2(7)", "Centre character"},
      {"RichTextBox2(4)", "Centre to full down"},
      {"RichTextBox2(8)", "Full down character"}}},
    {"Command8(1)",
     "? 1",
     {{"Text1(2)", "Number of steps"},
      {"RichTextBox1(4)", "Step up character"},
      {"RichTextBox2(9)", "Step down character"},
      {"RichTextBox1(5)", "Centre character"}}},
    {"Command8(2)",
     "? 2",
     {{"Text2(2)", "Number of steps"},
      {"RichTextBox2(10)", "Full up character"},
      {"RichTextBox2(11)", "Full up to centre"},
      {"RichTextBox2(12)", "Centre character"},
      {"RichTextBox2(13)", "Centre to full down"},
      {"RichTextBox2(14)", "Full down character"}}},
    {"Command8(3)",
     "? 3",
     {{"RichTextBox2(15)", "Left character"},
      {"RichTextBox2(16)", "Centre character"},
      {"RichTextBox2(17)", "Right character"}}},
    {"Command12(0)",
     "THR 1",
     {{"Text2(3)", "Throttle steps"},
      {"Text2(4)", "Afterburner steps"},
      {"RichTextBox1(6)", "Throttle up"},
      {"RichTextBox1(7)", "Throttle down"},
      {"RichTextBox1(8)", "AB Entry"},
      {"RichTextBox1(9)", "AB Exit"},
      {"RichTextBox1(10)", "AB up"},
      {"RichTextBox1(11)", "AB down"}}},
    {"Command12(1)",
     "THR 2",
     {{"Text2(11)", "Throttle steps"},
      {"Text2(12)", "Afterburner steps"},
      {"RichTextBox1(12)", "Throttle characters"},
      {"RichTextBox1(13)", "Afterburner characters"}}},
};

class TabPage : public testing::TestWithParam<std::size_t> {
 protected:
  const tables::TabRow& row = tables::kTabStatements[GetParam()];
  const TabCase& expected = kTabCases[GetParam()];
};

TEST_P(TabPage, HasItsFieldsUnderTheirLabels) {
  EXPECT_EQ(row.button, expected.button);
  std::vector<std::pair<std::string_view, std::string_view>> fields;
  for (const tables::FieldRow& field : row.fields) {
    if (!field.box.empty()) fields.emplace_back(field.box, field.label);
  }
  EXPECT_EQ(fields, expected.fields);
}

TEST_P(TabPage, JoinsItsFieldsBehindAColouredKeyword) {
  BoxTexts boxes = {{"Text1(2)", "steps of type 1"}};
  std::string values;
  for (const auto& [box, label] : expected.fields) {
    values.append(" <").append(box).append(">");
    boxes[std::string(box)] = std::string("<").append(box).append(">");
  }
  for (int axis = 0; axis < 3; ++axis) {
    std::string keyword = expected.start.substr(0, expected.start.find(' '));
    if (keyword == "?") keyword = axis == 0 ? "JSX" : axis == 1 ? "JSY" : "RDDR";
    const std::string rest = expected.start.substr(expected.start.find(' ') + 1) + values;
    Statement statement{{{keyword + " ", kMiscellaneous}, {rest, kBlack, BlankBefore::Never}}};
    statement.ownLine = true;
    EXPECT_EQ(TabStatement(row, boxes, axis, kColourStyle), statement);
    statement.endsLine = true;
    EXPECT_EQ(TabStatement(row, boxes, axis, kColourLine), statement);
    if (row.button == "Command8(2)") continue;
    statement.pieces = {{statement.Text()}};
    EXPECT_EQ(TabStatement(row, boxes, axis, kBlackLine), statement);
    statement.endsLine = false;
    EXPECT_EQ(TabStatement(row, boxes, axis, kBlackStyle), statement);
  }
}

TEST_P(TabPage, KeepsTheBlanksOfEmptyFields) {
  std::string text = expected.start[0] == '?' ? "RDDR" + expected.start.substr(1) : expected.start;
  text.append(expected.fields.size(), ' ');
  EXPECT_EQ(TabStatement(row, {}, 2, kBlackStyle).Text(), text);
}

INSTANTIATE_TEST_SUITE_P(Composer, TabPage, testing::Range(std::size_t{0}, std::size(kTabCases)));

TEST(ComposerStatements, EveryTabStatementIsTested) {
  EXPECT_EQ(std::size(tables::kTabStatements), std::size(kTabCases));
}

TEST(ComposerStatements, TheStepsOfAnAxisOfTypeTwoComeFromThePageOfTypeOneInBlack) {
  const tables::TabRow& row = tables::kTabStatements[5];
  BoxTexts boxes = {{"Text1(2)", "10"},        {"Text2(2)", "20"},        {"RichTextBox2(10)", "u"},
                    {"RichTextBox2(11)", "v"}, {"RichTextBox2(12)", "c"}, {"RichTextBox2(13)", "w"},
                    {"RichTextBox2(14)", "d"}};
  EXPECT_EQ(TabStatement(row, boxes, 0, kColourStyle).Text(), "JSX 2 20 u v c w d");
  EXPECT_THAT(TabStatement(row, boxes, 0, kBlackStyle), IsOnePieceOf("JSX 2 10 u v c w d"));
  boxes["Text1(2)"] = "";
  EXPECT_THAT(TabStatement(row, boxes, 0, kBlackStyle), IsOnePieceOf("JSX 2  u v c w d"));
}

TEST(ComposerStatements, UseIsColouredUpToItsSecondWord) {
  struct Row {
    std::string_view caption;
    std::vector<Piece> pieces;
  };
  const Row rows[] = {
      {"TQS", {{"USE ", kMiscellaneous}, {"TQS"}}},
      {"WCS", {{"USE ", kMiscellaneous}, {"WCS"}}},
      {"No Mouse", {{"USE ", kMiscellaneous}, {"NOMOUSE"}}},
      {"No Throttle", {{"USE ", kMiscellaneous}, {"NOTHR"}}},
      {"Frame clock", {{"USE ", kMiscellaneous}, {"FCLK"}}},
      {"@digitalthrottle", {{"@digitalthrottle ", kMiscellaneous}}},
      {"BTN MT", {{"BTN MT ", kMiscellaneous}}},
      {"RCS", {{"USE ", kMiscellaneous}, {"RCS"}}},
      {"No Rudders", {{"USE ", kMiscellaneous}, {"NORDDR"}}},
  };
  ASSERT_EQ(std::size(tables::kUses), std::size(rows));
  for (std::size_t i = 0; i < std::size(rows); ++i) {
    Statement expected{rows[i].pieces};
    expected.ownLine = true;
    EXPECT_EQ(tables::kUses[i].caption, rows[i].caption);
    EXPECT_EQ(UseStatement(tables::kUses[i], kColourStyle), expected) << "also BTN MT is not looked for";
    expected.pieces = {{expected.Text()}};
    EXPECT_EQ(UseStatement(tables::kUses[i], kBlackStyle), expected);
    expected.endsLine = true;
    EXPECT_EQ(UseStatement(tables::kUses[i], kBlackLine), expected);
  }
}

TEST(ComposerStatements, AValueFollowsItsKeywordAndAnEmptyOneLeavesTheKeywordAlone) {
  const tables::ValueRow rows[] = {{"Rate", "Text1(3)", "20", "RATE "},
                                   {"MDEF", "Text1(4)", "", "MDEF "},
                                   {"NULLCHR", "Text1(5)", "", "NULLCHR "}};
  ASSERT_EQ(std::size(tables::kValues), std::size(rows));
  for (std::size_t i = 0; i < std::size(rows); ++i) {
    const tables::ValueRow& row = tables::kValues[i];
    EXPECT_EQ(row.label, rows[i].label);
    EXPECT_EQ(row.box, rows[i].box);
    EXPECT_EQ(row.initial, rows[i].initial);
    const std::string keyword(rows[i].keyword);
    Statement expected{{{keyword, kMiscellaneous}, {"^ a"}}};
    expected.ownLine = true;
    EXPECT_EQ(ValueStatement(row, "^ a", kColourStyle), expected);
    expected.pieces.pop_back();
    EXPECT_EQ(ValueStatement(row, "", kColourStyle), expected);
    expected.pieces = {{keyword}};
    EXPECT_EQ(ValueStatement(row, "", kBlackStyle), expected);
    expected.pieces = {{keyword + "^ a"}};
    expected.endsLine = true;
    EXPECT_EQ(ValueStatement(row, "^ a", kBlackLine), expected);
  }
}

TEST(ComposerStatements, AMouseTypeIsBlackBehindItsKeyword) {
  Statement expected{{{"USE MTYPE ", kMiscellaneous}, {"B10"}}};
  expected.ownLine = true;
  EXPECT_EQ(MouseStatement("B10", kColourStyle), expected);
  expected.endsLine = true;
  expected.pieces = {{"USE MTYPE B10"}};
  EXPECT_EQ(MouseStatement("B10", kBlackLine), expected);
  EXPECT_THAT(MouseStatement("", kColourStyle).pieces, ElementsAre(Piece{"USE MTYPE ", kMiscellaneous}));
}

TEST(ComposerMice, EachListHasItsTypes) {
  ASSERT_EQ(std::size(tables::kMouseLists), 3U);
  EXPECT_EQ(tables::kMouseLists[0].option, "2 button");
  EXPECT_THAT(MouseTypes(tables::kMouseLists[0]), ElementsAre("A1", "A2", "A3", "A4", "A5"));
  EXPECT_EQ(tables::kMouseLists[1].option, "3 button");
  EXPECT_THAT(MouseTypes(tables::kMouseLists[1]),
              ElementsAre("B1", "B2", "B3", "B4", "B5", "B6", "B7", "B8", "B9", "B10"));
  EXPECT_EQ(tables::kMouseLists[2].option, "Logitech");
  EXPECT_THAT(MouseTypes(tables::kMouseLists[2]),
              ElementsAre("C1", "C2", "C3", "C4", "C5", "C6", "C7", "C8", "C9", "C10"));
}

/// "left middle right" of each type of a list.
std::vector<std::string> ButtonsOf(const tables::MouseListRow& list) {
  std::vector<std::string> buttons;
  for (const tables::MouseRow& row : list.types) {
    buttons.push_back(std::string(row.left) + " " + std::string(row.middle) + " " + std::string(row.right));
  }
  return buttons;
}

TEST(ComposerMice, EachTypeSaysWhichThrottleButtonIsWhichMouseButton) {
  EXPECT_THAT(ButtonsOf(tables::kMouseLists[0]),
              ElementsAre("T1 n/a T6", "T6 n/a T1", "T1 n/a n/a", "T6 n/a n/a", "n/a n/a n/a"));
  const auto three = ElementsAre("T1 T6 n/a", "T6 T1 n/a", "T1 n/a n/a", "T6 n/a n/a", "n/a n/a n/a",
                                 "T1 T6 T3", "T6 T1 T3", "T1 n/a T3", "T6 n/a T3", "n/a n/a T3");
  EXPECT_THAT(ButtonsOf(tables::kMouseLists[1]), three);
  EXPECT_THAT(ButtonsOf(tables::kMouseLists[2]), three);
}

}  // namespace
}  // namespace tarvik
