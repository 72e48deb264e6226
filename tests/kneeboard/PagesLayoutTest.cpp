// What stands on the pages of a kneeboard.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>

#include "support/HandMade.h"

namespace tarvik::kneeboard {
namespace {

using testing::AllOf;
using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

std::vector<std::string> WordsOn(const Sheet& sheet) {
  std::vector<std::string> all;
  for (const Words& words : sheet.words) all.push_back(words.text);
  return all;
}

std::vector<std::string> WordsOn(const std::vector<Sheet>& sheets) {
  std::vector<std::string> all;
  for (const Sheet& sheet : sheets) std::ranges::copy(WordsOn(sheet), std::back_inserter(all));
  return all;
}

Options DevicesAlone() {
  Options options;
  options.hasKeyboard = false;
  options.hasList = false;
  return options;
}

/// A stick with these controls alone.
Contents StickWith(std::vector<Control> controls) {
  Contents contents;
  contents.devices = {{"F-16 FLCS", "stick-flcs", std::move(controls), {}}};
  return contents;
}

Action Does(const char* words, Layer layer = {}, const char* keys = "") {
  Action action;
  action.layer = layer;
  action.deed = {words, keys, ""};
  return action;
}

Control Button(const char* name, const char* label, std::vector<Action> actions) {
  return {name, "side of head", label, 0, std::move(actions)};
}

TEST(PagesLayout, ALeaderEndsAtTheControlOfItsBox) {
  const auto sheets = Laid(StickWith({Button("S1", "BTN-0", {Does("Trim reset")})}), DevicesAlone());
  const Sheet& sheet = sheets.front();
  const auto leader = std::ranges::find(sheet.lines, LineKind::Leader, &Line::kind);
  ASSERT_NE(leader, sheet.lines.end());
  ASSERT_EQ(sheet.drawings.size(), 1U);
  const Drawing& drawing = sheet.drawings.front();
  const double scale = drawing.area.width / drawing.part.width;
  EXPECT_NEAR((leader->corners.back().x - drawing.area.x) / scale + drawing.part.x, 336.1, 0.1);
  EXPECT_NEAR((leader->corners.back().y - drawing.area.y) / scale + drawing.part.y, 247.1, 0.1);
  // It begins at the box, and level.
  const auto box = std::ranges::find(sheet.targets, "BTN-0", &Target::label);
  ASSERT_NE(box, sheet.targets.end());
  EXPECT_EQ(leader->corners[0].y, leader->corners[1].y);
  EXPECT_GT(leader->corners[0].x, box->area.x);
}

TEST(PagesLayout, WhatTheDeviceDoesNotHaveIsHiddenOnTheDrawing) {
  const auto sheets = Laid(StickWith({Button("S1", "BTN-0", {Does("Trim reset")})}), DevicesAlone());
  EXPECT_THAT(sheets.front().drawings.front().hidden, AllOf(Contains("ROTARY-3"), Not(Contains("BTN-0"))));
}

TEST(PagesLayout, PositionsOfAHatShareABox) {
  Control up = {"H1U", "trim hat up", "HAT-0", 'U', {Does("Trim nose up")}};
  Control down = {"H1D", "trim hat down", "HAT-0", 'D', {Does("Trim nose down")}};
  const auto words = WordsOn(Laid(StickWith({up, down}), DevicesAlone()));
  EXPECT_EQ(std::ranges::count(words, "H1"), 1);
  EXPECT_EQ(std::ranges::count(words, "trim hat"), 1);
  EXPECT_THAT(words, AllOf(Contains("Trim nose up"), Contains("Trim nose down"), Not(Contains("H1U"))));
}

TEST(PagesLayout, OnPagesOfLayersNothingIsRepeated) {
  Options options = DevicesAlone();
  options.layers = Layers::PageEach;
  std::vector<Control> controls = {Button("S1", "BTN-0", {Does("Common"), Does("Inside", {{}, Shift::In})}),
                                   Button("S4", "BTN-3", {Does("High", {Dogfight::Up, Shift::In})})};
  for (const char* loose : {"S5", "S6", "S7"}) {
    controls.push_back(Button(loose, "", {Does("Common"), Does("Inside", {{}, Shift::In})}));
    controls.push_back(Button(loose, "", {Does("High", {Dogfight::Up, Shift::In})}));
  }
  const Contents contents = StickWith(controls);
  const auto sheets = Laid(contents, options);
  ASSERT_EQ(sheets.size(), 3U);
  EXPECT_THAT(WordsOn(sheets[0]), AllOf(Contains("All layers"), Contains("Common"), Not(Contains("Inside")),
                                        Not(Contains("S4"))));
  EXPECT_THAT(WordsOn(sheets[1]), AllOf(Contains("S3 held in"), Contains("Inside"), Not(Contains("Common"))));
  EXPECT_THAT(WordsOn(sheets[2]), AllOf(Contains("S3 held in, dogfight switch up"), Contains("High")));
}

TEST(PagesLayout, LayersOfFewBoxesShareAPage) {
  Options options = DevicesAlone();
  options.layers = Layers::PageEach;
  const Contents contents =
      StickWith({Button("S1", "BTN-0", {Does("Common"), Does("Inside", {{}, Shift::In})}),
                 Button("S4", "BTN-3", {Does("High", {Dogfight::Up, Shift::In})})});
  const auto sheets = Laid(contents, options);
  ASSERT_EQ(sheets.size(), 1U);
  EXPECT_THAT(WordsOn(sheets[0]),
              AllOf(Contains("All layers; S3 held in; S3 held in, dogfight switch up"), Contains("Common"),
                    Contains("Inside"), Contains("High"), Contains("dogfight up")));
}

TEST(PagesLayout, TheLegendTellsTheSignsThatThereAre) {
  const auto words =
      WordsOn(Laid(StickWith({Button("S1", "BTN-0", {Does("Inside", {{}, Shift::In})})}), DevicesAlone()));
  EXPECT_THAT(words, AllOf(Contains("S3 held in"), Not(Contains("S3 out")), Not(Contains("pressed"))));
}

TEST(PagesLayout, TheLegendTellsOnlyWhatStandsOnItsPage) {
  Contents contents = StickWith({Button("S1", "BTN-0", {Does("Inside", {{}, Shift::In})})});
  contents.devices.push_back(contents.devices.front());
  contents.devices.back().controls = {Button("S1", "BTN-0", {Does("Outside", {{}, Shift::Out})})};
  const std::vector<Sheet> sheets = Laid(contents, DevicesAlone());
  ASSERT_EQ(sheets.size(), 2u);
  EXPECT_THAT(WordsOn({sheets[0]}), AllOf(Contains("S3 held in"), Not(Contains("S3 out"))));
  EXPECT_THAT(WordsOn({sheets[1]}), AllOf(Contains("S3 out"), Not(Contains("S3 held in"))));
}

TEST(PagesLayout, KeysAreShownWhereTheyAreWanted) {
  const Contents contents = StickWith({Button("S1", "BTN-0", {Does("Gear toggle", {}, "CTL g")})});
  Options options = DevicesAlone();
  EXPECT_THAT(WordsOn(Laid(contents, options)), Contains("CTL g"));
  options.hasKeys = false;
  EXPECT_THAT(WordsOn(Laid(contents, options)), AllOf(Contains("Gear toggle"), Not(Contains("CTL g"))));
}

TEST(PagesLayout, KeysStandForWordsThatThereAreNot) {
  EXPECT_THAT(WordsOn(Laid(StickWith({Button("S1", "BTN-0", {Does("", {}, "CTL g")})}), DevicesAlone())),
              Contains("CTL g"));
}

TEST(PagesLayout, WordsWithAccentsStayWhole) {
  Contents contents = StickWith({Button("S1", "BTN-0", {Does("Höhe halten", {}, "ä")})});
  contents.title.title = "Übung";
  EXPECT_THAT(WordsOn(Laid(contents)), AllOf(Contains("Höhe halten"), Contains("ä"), Contains("Übung")));
}

TEST(PagesLayout, WordsThatNoBoxCanHoldAreANoteAtTheFoot) {
  std::string all;
  for (int i = 0; i < 60; ++i) all.append("word").append(std::to_string(i)).append(" ");
  const auto sheets = Laid(StickWith({Button("S1", "BTN-0", {Does(all.c_str())})}), DevicesAlone());
  ASSERT_EQ(sheets.size(), 1U);
  const auto words = WordsOn(sheets);
  EXPECT_THAT(words,
              AllOf(Contains("see note 1"), Contains("Notes"), Contains(StartsWith("S1: word0 word1"))));
  EXPECT_THAT(words, Contains(HasSubstr("word59")));
}

/// That many words, each with its number.
std::string ManyWords(int count) {
  std::string all;
  for (int i = 0; i < count; ++i) all.append("word").append(std::to_string(i)).append(" ");
  return all;
}

/// Numbers of notes that a sheet refers to, and those that it tells, must be the same.
std::string WrongNotesOf(const Sheet& sheet) {
  std::set<std::string> wanted;
  std::set<std::string> told;
  const auto notes = std::ranges::find(sheet.words, "Notes", &Words::text);
  for (auto each = sheet.words.begin(); each != sheet.words.end(); ++each) {
    const bool isNumber = std::ranges::all_of(each->text, [](char c) { return c >= '0' && c <= '9'; });
    if (each->text.starts_with("see note ")) wanted.insert(each->text.substr(9));
    if (each > notes && isNumber && each->bold) told.insert(each->text);
  }
  return wanted == told ? "" : std::to_string(wanted.size()) + " wanted, " + std::to_string(told.size());
}

TEST(PagesLayout, ANoteStandsOnThePageOfItsNumber) {
  for (int controls = 1; controls <= 12; ++controls) {
    std::vector<Control> made;
    for (int i = 0; i < controls; ++i) {
      const std::string number = std::to_string(i % 4);
      const std::string words = ManyWords(20 + 30 * (i % 3));
      made.push_back(Button(("S" + number).c_str(), ("BTN-" + number).c_str(), {Does(words.c_str())}));
    }
    for (const Paper paper : {Paper::A4, Paper::A5}) {
      Options options = DevicesAlone();
      options.paper = paper;
      const std::vector<Sheet> sheets = Laid(StickWith(made), options);
      for (const Sheet& sheet : sheets) EXPECT_EQ(WrongNotesOf(sheet), "") << controls << " controls";
      EXPECT_THAT(WordsOn(sheets), Contains(HasSubstr("word19")));
    }
  }
}

TEST(PagesLayout, EqualStepsOfAScaleAreOneStretch) {
  Contents contents = StickWith({});
  Scale scale = {"JSX", "roll", "ROTARY-3", {}, "", {}, {}};
  const Deed up = {"Throttle up", "KP+", ""};
  const Deed down = {"Throttle down", "KP-", ""};
  for (int i = 0; i < 4; ++i) scale.steps.push_back({i * 20.0, i * 20.0 + 20, up, down, false});
  scale.steps.push_back({80, 100, {"Burner on", "TAB", ""}, {}, true});
  contents.devices.front().scales = {scale};
  const auto sheets = Laid(contents, DevicesAlone());
  const auto words = WordsOn(sheets);
  EXPECT_EQ(std::ranges::count(words, "Throttle up"), 1);
  EXPECT_THAT(words, AllOf(Contains("0–80 % in 4 steps"), Contains("80–100 %"), Contains("Burner on")));
  // Its bar has all steps in their widths.
  std::vector<double> widths;
  for (const Frame& frame : sheets.front().frames) {
    if (frame.radius == 0) widths.push_back(frame.area.width);
  }
  ASSERT_EQ(widths.size(), 5U);
  for (const double width : widths) EXPECT_NEAR(width, widths.front(), 0.001);
}

TEST(PagesLayout, ControlsThatTheDrawingDoesNotShowAreToldToo) {
  EXPECT_THAT(WordsOn(Laid(StickWith({Button("MT", "", {Does("Throttle cut")})}), DevicesAlone())),
              AllOf(Contains("MT"), Contains("Throttle cut")));
}

TEST(PagesLayout, ADeviceWithoutADrawingIsAPageOfBoxes) {
  Contents contents = StickWith({Button("S1", "BTN-0", {Does("Trim reset")})});
  contents.devices.front().drawing = "no-such-drawing";
  const auto sheets = Laid(contents, DevicesAlone());
  EXPECT_THAT(sheets.front().drawings, IsEmpty());
  EXPECT_THAT(WordsOn(sheets), Contains("Trim reset"));
}

TEST(PagesLayout, EachPageHasTheTitleAndTheProblems) {
  Contents contents = MadeOf(Amount::Full, 9);
  contents.title = {"Night strike", "Strike 97", "Copper", "1997"};
  contents.problems = 2;
  for (const Sheet& sheet : Laid(contents)) {
    EXPECT_THAT(WordsOn(sheet), AllOf(Contains("Night strike"), Contains("Strike 97 · Copper · 1997"),
                                      Contains("2 problems in the files")));
  }
  contents.problems = 1;
  EXPECT_THAT(WordsOn(Laid(contents)), Contains("1 problem in the files"));
  contents.problems = 0;
  EXPECT_THAT(WordsOn(Laid(contents)), Not(Contains(HasSubstr("in the files"))));
}

TEST(PagesLayout, ThatThereAreNoMacrosIsToldBesideTheProblems) {
  Contents contents = StickWith({Button("S1", "BTN-0", {Does("Gear toggle")})});
  EXPECT_THAT(WordsOn(Laid(contents)), Not(Contains(HasSubstr("No keys"))));
  contents.lacksMacros = true;
  contents.problems = 2;
  EXPECT_THAT(WordsOn(Laid(contents)), Contains("2 problems in the files · No keys: there are no macros"));
}

TEST(PagesLayout, TheKindsOfPagesAreThoseThatAreWanted) {
  const Contents contents = MadeOf(Amount::Sparse, 9);
  Options options;
  options.hasDevices = false;
  options.hasList = false;
  EXPECT_THAT(WordsOn(Laid(contents, options)), AllOf(Contains("Keyboard"), Not(Contains("F-16 FLCS"))));
  options.hasKeyboard = false;
  options.hasList = true;
  EXPECT_THAT(WordsOn(Laid(contents, options)), AllOf(Contains("List"), Not(Contains("Keyboard"))));
  EXPECT_THAT(WordsOn(Laid({})), Contains("Nothing to show"));
}

TEST(PagesLayout, TheListIsByControlOrByHeading) {
  Contents contents = StickWith({Button("S1", "BTN-0", {Does("Trim reset"), Does("Fire")})});
  contents.headings = {"FLIGHT", "WEAPONS"};
  contents.devices[0].controls[0].actions[0].deed.heading = "WEAPONS";
  contents.devices[0].controls[0].actions[1].deed.heading = "FLIGHT";
  Options options;
  options.hasDevices = false;
  const auto placeOf = [&](const char* text) {
    const auto words = WordsOn(Laid(contents, options));
    return std::ranges::find(words, text) - words.begin();
  };
  EXPECT_LT(placeOf("Trim reset"), placeOf("Fire"));
  options.order = ListOrder::ByHeading;
  EXPECT_LT(placeOf("FLIGHT"), placeOf("Fire"));
  EXPECT_LT(placeOf("Fire"), placeOf("WEAPONS"));
  EXPECT_LT(placeOf("WEAPONS"), placeOf("Trim reset"));
}

TEST(PagesLayout, AKeyThatNoControlSendsIsToldByAStroke) {
  const auto strokesOn = [](std::vector<std::string> controls) {
    Contents contents;
    contents.keys = {{"g", {{"", "Gear toggle", "", std::move(controls)}}}};
    const Sheet sheet = Laid(contents).front();
    return std::ranges::count(sheet.lines, LineKind::Plain, &Line::kind);
  };
  EXPECT_EQ(strokesOn({}) - strokesOn({"S1"}), 3) << "on the key, in the table and in the legend";
}

TEST(PagesLayout, TwoPagesOnASheetAreHalfAsManySheets) {
  Options options;
  options.hasDevices = false;
  options.hasKeyboard = false;
  const Contents contents = MadeOf(Amount::Crowded, 30);
  options.twoOnASheet = true;
  const auto sheets = Laid(contents, options);
  ASSERT_GT(sheets.size(), 1U);
  const auto words = WordsOn(sheets[0]);
  EXPECT_EQ(std::ranges::count(words, "List"), 2);
  EXPECT_THAT(words, AllOf(Contains(StartsWith("1 / ")), Contains(StartsWith("2 / "))));
}

TEST(PagesLayout, RowsLeadToTheirStatements) {
  Contents contents = StickWith({Button("S1", "BTN-0", {Does("Trim reset")})});
  contents.devices[0].controls[0].actions[0].source = {model::FileKind::Joystick, 4, {10, 5}};
  const Sheet sheet = Laid(contents, DevicesAlone()).front();
  const auto row =
      std::ranges::find_if(sheet.targets, [](const Target& each) { return each.source.has_value(); });
  ASSERT_NE(row, sheet.targets.end());
  EXPECT_EQ(row->source->statement, 4U);
  EXPECT_EQ(row->label, "BTN-0");
}

}  // namespace
}  // namespace tarvik::kneeboard
