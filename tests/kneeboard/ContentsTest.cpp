// What a kneeboard says of a pair of files.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>

#include "kneeboard/Contents.h"
#include "kneeboard/Deeds.h"
#include "support/IndexedPair.h"
#include "support/Pairs.h"
#include "text/CodePage.h"

namespace tarvik::kneeboard {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;

Contents Told(const std::string& joystick, const std::string& macros = {}) {
  const model::IndexedPair pair(joystick, macros);
  return ContentsOf(pair.pair, pair.names);
}

const Control& ControlOf(const Contents& contents, std::string_view name) {
  static const Control kNone;
  for (const DevicePage& device : contents.devices) {
    for (const Control& control : device.controls) {
      if (control.name == name) return control;
    }
  }
  return kNone;
}

std::vector<Action> ActionsOfS1(const std::string& sends, const std::string& macros = {}) {
  return ControlOf(Told("BTN S1 " + sends, macros), "S1").actions;
}

TEST(KneeboardContents, NamesReadAsWords) {
  EXPECT_EQ(ReadableName("Gear_Toggle"), "Gear toggle");
  EXPECT_EQ(ReadableName("GearToggle"), "Gear toggle");
  EXPECT_EQ(ReadableName("GEAR_UP"), "Gear up");
  EXPECT_EQ(ReadableName("F16Flaps"), "F16Flaps");
  EXPECT_EQ(ReadableName("MFD_Left"), "MFD left");
  EXPECT_EQ(ReadableName("__"), "");
  EXPECT_EQ(ReadableName(""), "");
}

TEST(KneeboardContents, WhatAllLayersShareIsToldOnce) {
  const auto actions = ActionsOfS1("/U /I a /O a /M a /D a");
  ASSERT_EQ(actions.size(), 1u);
  EXPECT_EQ(actions[0].layer, Layer());
  EXPECT_EQ(actions[0].deed.words, "A");
  const auto others = ActionsOfS1("/U a /M b /D a");
  EXPECT_EQ(others.size(), 3u);
}

TEST(KneeboardContents, TurnsAreCountedAndNothingIsNoAction) {
  const auto actions = ActionsOfS1("/U /T a /T b /D ^");
  ASSERT_EQ(actions.size(), 2u);
  EXPECT_EQ(actions[0].turn, 1);
  EXPECT_EQ(actions[1].turn, 2);
  EXPECT_EQ(actions[1].layer.dogfight, Dogfight::Up);
}

TEST(KneeboardContents, PressReleaseAndMannerStandByTheAction) {
  const auto actions = ActionsOfS1("/P /H /N a /R b");
  ASSERT_EQ(actions.size(), 2u);
  EXPECT_EQ(actions[0].moment, Moment::Press);
  EXPECT_EQ(actions[0].manner, "HN");
  EXPECT_EQ(actions[1].moment, Moment::Release);
}

TEST(KneeboardContents, MacrosGiveTheirRemarkOrTheirNameAndAllTheirKeys) {
  const auto actions = ActionsOfS1(
      "/P Gear_Toggle /R Both",
      "Gear_Toggle = CTL g\nLights = SHF l ~ landing lights\nBoth = Gear_Toggle DLY(60) Lights\n");
  ASSERT_EQ(actions.size(), 2u);
  EXPECT_EQ(actions[0].deed.words, "Gear toggle");
  EXPECT_EQ(actions[0].deed.keys, "CTL g");
  EXPECT_EQ(actions[1].deed.words, "Both");
  EXPECT_EQ(actions[1].deed.keys, "CTL g SHF l");
  EXPECT_EQ(ActionsOfS1("Lights", "Lights = l ~ landing lights\n").at(0).deed.words, "landing lights");
}

TEST(KneeboardContents, KeysByThemselvesAreTheirOwnWords) {
  EXPECT_EQ(ActionsOfS1("CTL g F3").at(0).deed.words, "Ctrl+G, F3");
  EXPECT_EQ(ActionsOfS1("CTL g F3").at(0).deed.keys, "");
  EXPECT_EQ(ActionsOfS1("RAW (#1C #F0 #1C)").at(0).deed.words, "A");
}

TEST(KneeboardContents, ARepetitionStandsBeforeWhatIsRepeated) {
  EXPECT_EQ(ActionsOfS1("a RPT(3) b DLY(20)").at(0).deed.words, "A, 3x B");
}

TEST(KneeboardContents, KeysTellHowOftenTheyArePressed) {
  EXPECT_EQ(ActionsOfS1("One", "One = a RPT(3) b\n").at(0).deed.keys, "a 3x b");
  EXPECT_EQ(ActionsOfS1("RPT(2) One", "One = a b\n").at(0).deed.keys, "2x (a b)");
  EXPECT_EQ(ActionsOfS1("One", "One = RPT(2) Two c\nTwo = b\n").at(0).deed.keys, "2x b c");
}

TEST(KneeboardContents, ManyKeysAreAllTold) {
  const std::string keys = "a b c d e f g h i j k l m n o p q r s t u v w x y z";
  EXPECT_EQ(ActionsOfS1("One", "One = " + keys + "\n").at(0).deed.keys, keys);
}

/// Each macro is the one before twice.
std::string Doubled(const std::string& first) {
  std::string macros = "M0 = " + first + "\n";
  for (int i = 1; i < 40; ++i) {
    const std::string before = "M" + std::to_string(i - 1);
    macros.append("M" + std::to_string(i) + " = " + before + " " + before + "\n");
  }
  return macros;
}

TEST(KneeboardContents, MacrosThatMultiplyAreToldAsFarAsAnybodyReads) {
  const std::string told = ActionsOfS1("M39", Doubled("a b")).at(0).deed.keys;
  EXPECT_EQ(ActionsOfS1("M39", Doubled("DLY(5)")).at(0).deed.keys, "and more than can be told");
  EXPECT_TRUE(told.starts_with("a b a b")) << told;
  EXPECT_TRUE(told.ends_with("and more than can be told")) << told;
}

TEST(KneeboardContents, MacrosInCirclesEnd) {
  const auto actions = ActionsOfS1("One", "One = a Two\nTwo = b One\n");
  ASSERT_EQ(actions.size(), 1u);
  EXPECT_EQ(actions[0].deed.keys, "a b");
}

TEST(KneeboardContents, AFileWithoutItsMacrosIsKnown) {
  EXPECT_TRUE(Told("BTN S1 Gear_Toggle\n").lacksMacros);
  EXPECT_FALSE(Told("BTN S1 Gear_Toggle\nBTN S2 Flaps\n", "Flaps = f\n").lacksMacros);
  EXPECT_FALSE(Told("BTN S1 g\n").lacksMacros);
}

TEST(KneeboardContents, EachDeviceHasItsPage) {
  const Contents contents = Told("USE TQS\nBTN T1 a\nBTN H1U b\nBTN H1UL c\n");
  ASSERT_EQ(contents.devices.size(), 2u);
  EXPECT_EQ(contents.devices[0].drawing, "stick-flcs");
  EXPECT_EQ(contents.devices[1].drawing, "throttle-tqs");
  EXPECT_EQ(ControlOf(contents, "T1").label, "BTN-32");
  EXPECT_EQ(ControlOf(contents, "H1U").label, "HAT-0");
  EXPECT_EQ(ControlOf(contents, "H1U").position, 'U');
  EXPECT_EQ(ControlOf(contents, "H1UL").actions.size(), 1u);  // and no corner that nobody uses
  EXPECT_EQ(ControlOf(contents, "H1UR").name, "");
}

TEST(KneeboardContents, AThrottleIsAScale) {
  const Contents contents = Told("USE TQS\nTHR 1 10 5 a b c d e f\nRNG 2 3 u ^ l\n");
  const std::vector<Scale>& scales = contents.devices.at(1).scales;
  ASSERT_EQ(scales.size(), 2u);
  EXPECT_EQ(scales[0].name, "RNG");  // by the labels of the drawing
  ASSERT_EQ(scales[0].steps.size(), 2u);
  EXPECT_EQ(scales[0].steps[0].up.words, "L");  // from the lower end up, and nothing for no key
  EXPECT_EQ(scales[0].steps[0].from, 0);
  ASSERT_EQ(scales[1].steps.size(), 3u);
  EXPECT_EQ(scales[1].kind, "10 steps below the afterburner, 5 in it");
  EXPECT_EQ(scales[1].steps[1].up.words, "C");
  EXPECT_TRUE(scales[1].steps[2].isAfterburner);
  EXPECT_NEAR(scales[1].steps[0].to, 66.7, 0.1);
}

TEST(KneeboardContents, TheMacroFileMayHaveTheThrottle) {
  const Contents contents =
      Told("USE TQS\n@digitalthrottle\n", "@digitalthrottle = THR 1 12 4 KP+ KP- TAB TAB = -\n");
  ASSERT_EQ(contents.devices.at(1).scales.size(), 1u);
  EXPECT_EQ(contents.devices[1].scales[0].steps[0].up.words, "keypad +");
  EXPECT_EQ(contents.devices[1].scales[0].source.file, model::FileKind::Macros);
}

TEST(KneeboardContents, FlagsPortsAndTheMouseAreInWords) {
  const Contents contents = Told("USE MTYPE A3\nPortB1 IS TG1\nSWAPTG\nDEF X1 S2\nBTN X1 /P a /R b\n");
  ASSERT_EQ(contents.flags.size(), 1u);
  EXPECT_EQ(contents.flags[0].condition, "S2 is pressed");
  ASSERT_EQ(contents.flags[0].sends.size(), 2u);
  EXPECT_EQ(contents.flags[0].sends[0].moment, Moment::Press);
  EXPECT_EQ(contents.flags[0].sends[1].moment, Moment::Release);
  EXPECT_THAT(ListAsText(contents, ListOrder::ByControl), testing::HasSubstr("press: A, release: B"));
  EXPECT_THAT(contents.facts, ElementsAre(Fact{"Mouse", "type A3"}, Fact{"Game port 1", "TG1"},
                                          Fact{"Trigger", "both stages exchanged"}));
}

TEST(KneeboardContents, KeysTellWhatPressesThem) {
  const Contents contents =
      Told("BTN S1 Lock\nBTN S2 g\nBTN S4 Outer\n", "Lock = CTL g\nOuter = Lock\nIdle = a\n");
  ASSERT_EQ(contents.keys.size(), 2u);
  EXPECT_EQ(contents.keys[0].key, "a");
  EXPECT_TRUE(contents.keys[0].presses.at(0).controls.empty());
  ASSERT_EQ(contents.keys[1].presses.size(), 2u);
  EXPECT_EQ(contents.keys[1].presses[0].controls, std::vector<std::string>{"S2"});
  EXPECT_EQ(contents.keys[1].presses[1].with, "CTL");
  EXPECT_THAT(contents.keys[1].presses[1].controls, ElementsAre("S1", "S4"));
}

TEST(KneeboardContents, TheTitleIsReadFromTheFirstRemarks) {
  const Contents contents = Told(
      "Rem ####\nRem\nRem   strike.b50 for Strike 97\nRem   by Copper\n"
      "Rem   last modified: 14 December 1997\nRem ####\n\nRem by Nobody\nBTN S1 a\n");
  EXPECT_EQ(contents.title, (TitleBlock{"strike.b50", "Strike 97", "Copper", "14 December 1997"}));
  EXPECT_EQ(Told("~ My own stick\nBTN S1 a\n").title.title, "My own stick");
  EXPECT_EQ(Told("BTN S1 a\nRem no title\n").title, TitleBlock());
  EXPECT_EQ(Told("Rem ----\nRem  Engine\nRem ----\nBTN S1 a\n").title, TitleBlock());
}

TEST(KneeboardContents, ErrorsAndWarningsAreCounted) {
  EXPECT_EQ(Told("MDEF a\nBTN S1 Gnu\n", "Gun = a\n").problems, 1u);  // and no hint
}

/// The list, and the keys behind it.
std::string Printed(const Contents& contents) {
  std::string text = ListAsText(contents, ListOrder::ByControl);
  text.append("\nKeys\n----\n");
  for (const KeyUse& key : contents.keys) {
    for (const KeyUse::Press& press : key.presses) {
      text.append(press.with)
          .append(press.with.empty() ? "" : " ")
          .append(key.key)
          .append(": ")
          .append(press.words);
      for (const std::string& control : press.controls) text.append(" <").append(control).append(">");
      text.append("\n");
    }
  }
  return text;
}

TEST(KneeboardContents, OfThePairsAreTheGoldenOnes) {
  for (const model::Pair& pair : model::Pairs()) {
    fs::path golden = pair.path;
    golden.replace_extension(".kneeboard");
    model::IndexedPair indexed(pair.joystick, pair.macros);
    indexed.pair.hardware.joystick = JoystickOf(pair.path.extension().string().substr(1));
    const std::string told = Printed(ContentsOf(indexed.pair, indexed.names));
    if (std::getenv("TARVIK_PROMOTE") != nullptr) std::ofstream(golden, std::ios::binary) << told;
    EXPECT_EQ(told, model::Read(golden)) << golden;
  }
}

TEST(KneeboardContents, AListByHeadingsHasEveryActionOnce) {
  for (const model::Pair& pair : model::Pairs()) {
    const Contents contents = Told(pair.joystick, pair.macros);
    const auto lines = [](const std::string& text) {
      std::multiset<std::string> all;
      for (std::size_t at = 0, end = 0; (end = text.find('\n', at)) != std::string::npos; at = end + 1) {
        std::string letters;
        for (const char byte : text.substr(at, end - at)) {
          if (byte != ' ' && byte != '-') letters.push_back(byte);
        }
        if (!letters.empty()) all.insert(letters);
      }
      return all;
    };
    const auto byControl = lines(ListAsText(contents, ListOrder::ByControl));
    const auto byHeading = lines(ListAsText(contents, ListOrder::ByHeading));
    for (const DevicePage& device : contents.devices) {
      for (const Control& control : device.controls) {
        for (const Action& action : control.actions) {
          EXPECT_FALSE(action.deed.words.empty()) << pair.path << control.name;
        }
      }
    }
    std::size_t missing = 0;
    for (const std::string& line : byControl) {
      const bool isHeading = std::ranges::any_of(contents.devices, [&](const DevicePage& device) {
        std::string title = device.title;
        std::erase_if(title, [](char byte) { return byte == ' ' || byte == '-'; });
        return line == title || line == "nothingisassigned";
      });
      if (!isHeading && byHeading.count(line) != byControl.count(line)) ++missing;
    }
    EXPECT_EQ(missing, 0u) << pair.path;
  }
}

}  // namespace
}  // namespace tarvik::kneeboard
