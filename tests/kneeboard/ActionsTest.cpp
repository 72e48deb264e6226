// What a control does, layer by layer.
#include <gtest/gtest.h>

#include "kneeboard/Actions.h"
#include "support/IndexedPair.h"

namespace tarvik::kneeboard {
namespace {

std::vector<Action> ActionsIn(const std::string& joystick, const std::string& macros = {}) {
  const model::IndexedPair pair(joystick, macros);
  const Deeds deeds(pair.pair, pair.names);
  const auto& button = std::get<model::Button>(pair.pair.joystick[0].body);
  const model::Mention mention{model::FileKind::Joystick, 0, {0, joystick.size()}};
  return ActionsOf(deeds, joystick, button.sends, mention);
}

TEST(KneeboardActions, WhatLayersShareIsOneAction) {
  const auto actions = ActionsIn("BTN S1 /U /I a /O a /M a /D a");
  ASSERT_EQ(actions.size(), 1u);
  EXPECT_EQ(actions[0].layer, Layer());
  EXPECT_EQ(actions[0].deed.keys, "a");
}

TEST(KneeboardActions, TurnsAreCountedAndNothingIsNoAction) {
  const auto actions = ActionsIn("BTN S1 /U /T a /T b /D ^");
  ASSERT_EQ(actions.size(), 2u);
  EXPECT_EQ(actions[1].turn, 2);
  EXPECT_EQ(actions[1].layer.dogfight, Dogfight::Up);
}

TEST(KneeboardActions, MacrosGiveTheirWordsAndKeys) {
  const auto actions =
      ActionsIn("BTN S1 /P Gear_Toggle /R Other", "Gear_Toggle = CTL g\nOther = Other F3 Rem all F\n");
  ASSERT_EQ(actions.size(), 2u);
  EXPECT_EQ(actions[0].deed.words, "Gear toggle");
  EXPECT_EQ(actions[0].deed.keys, "CTL g");
  EXPECT_EQ(actions[0].moment, Moment::Press);
  EXPECT_EQ(actions[1].deed.words, "all F");
  EXPECT_EQ(actions[1].deed.keys, "F3");
}

TEST(KneeboardActions, CodesAreTheKeysThatTheyPress) {
  const auto actions = ActionsIn("BTN S1 RAW (#12 #5A #F0 #5A #F0 #12)");
  ASSERT_EQ(actions.size(), 1u);
  EXPECT_EQ(actions[0].deed.keys, "SHF ENT");
}

}  // namespace
}  // namespace tarvik::kneeboard
