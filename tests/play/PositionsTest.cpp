// Every key has its place for the system, and no two keys have the same.
#include <gtest/gtest.h>

#include <map>

#include "play/Keys.h"
#include "play/Positions.h"

namespace tarvik::play {
namespace {

TEST(Positions, EveryKeyOfTheFilesHasOneOfItsOwn) {
  std::map<Position, std::string_view> seen;
  for (const KeyRow& row : kKeys) {
    const auto position = PositionOf(KeyOf(row));
    ASSERT_TRUE(position) << row.name;
    const auto [other, isNew] = seen.emplace(*position, row.make);
    EXPECT_TRUE(isNew || other->second == row.make) << row.name << " and " << other->second;
  }
}

TEST(Positions, AreThoseOfTheSystem) {
  EXPECT_EQ(PositionOf(Key{0x1C}), 30);                            // A
  EXPECT_EQ(PositionOf(Key{0x83}), 65);                            // F7
  EXPECT_EQ(PositionOf(static_cast<Key>(kExtended + 0x75)), 103);  // up
  EXPECT_EQ(PositionOf(static_cast<Key>(kExtended + 0x7C)), 99);   // print screen
  EXPECT_EQ(PositionOf(static_cast<Key>(kExtended + 0x4A)), 98);   // divided by
  EXPECT_EQ(PositionOf(kPause), 119);
}

TEST(Positions, TheShiftsThatAKeyboardMakesUpHaveNone) {
  EXPECT_FALSE(PositionOf(static_cast<Key>(kExtended + 0x12)));
  EXPECT_FALSE(PositionOf(static_cast<Key>(kExtended + 0x59)));
  EXPECT_FALSE(PositionOf(Key{0}));
}

TEST(Positions, ButtonsOfTheMouseHaveThemAndPortsDoNot) {
  Output output;
  output.number = 1;
  output.kind = OutputKind::Mouse;
  EXPECT_EQ(PositionOf(output), 0x110);
  output.number = 2;
  EXPECT_EQ(NameAt(PositionOf(output).value_or(0)), "mouse middle");
  output.number = 3;
  EXPECT_EQ(PositionOf(output), 0x111);
  EXPECT_EQ(NameAt(PositionOf(output).value_or(0)), "mouse right");
  output.number = 4;
  EXPECT_FALSE(PositionOf(output));
  output.kind = OutputKind::Port;
  output.number = 1;
  EXPECT_FALSE(PositionOf(output));
}

TEST(Positions, HaveTheNamesOfTheirKeys) {
  EXPECT_EQ(NameAt(30), "a");
  EXPECT_EQ(NameAt(42), NameOf(kShift));
  EXPECT_EQ(NameAt(0x111), "mouse right");
  EXPECT_EQ(NameAt(0), "");
}

TEST(Positions, TellModifiers) {
  for (const Key key : {kShift, kControl, kAlt, Key{0x59}}) EXPECT_TRUE(IsModifier(*PositionOf(key)));
  EXPECT_FALSE(IsModifier(*PositionOf(Key{0x1C})));
}

}  // namespace
}  // namespace tarvik::play
