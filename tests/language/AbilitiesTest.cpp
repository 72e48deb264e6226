#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "language/Abilities.h"
#include "language/ComposerTables.h"
#include "language/Controllers.h"
#include "language/LogicLines.h"
#include "support/ModelPrinters.h"

namespace tarvik::model {
namespace {

constexpr AbilityKind kControl = AbilityKind::Control;
constexpr AbilityKind kAxis = AbilityKind::Axis;
constexpr AbilityKind kSlash = AbilityKind::Slash;
using enum Abilities::Place;

TEST(Abilities, AnF22ProHasWhatAPlainStickLacks) {
  const Abilities f22({kF22Pro});
  const Abilities topGun({kTopGun});
  for (const char* control : {"S1", "s4", "TG2", "H4UL", "H1M"}) {
    EXPECT_EQ(f22.Of(kControl, control), Here) << control;
    EXPECT_EQ(topGun.Of(kControl, control), Elsewhere) << control;
  }
  for (const char* control : {"UB", "TG", "HU", "1", "RKR MD"}) {
    EXPECT_EQ(f22.Of(kControl, control), Elsewhere) << control;
    EXPECT_EQ(topGun.Of(kControl, control), Here) << control;
  }
  for (const char* control : {"S5", "HUL", "TG3", "T15", "7", "", "RKR"}) {
    EXPECT_EQ(f22.Of(kControl, control), Nowhere) << control;
  }
}

TEST(Abilities, TheSlashesOfAnF22ProAreItsOwn) {
  EXPECT_TRUE(Abilities({kF22Pro}).Has(kSlash, "F"));
  EXPECT_TRUE(Abilities({kF22Pro}).Has(kSlash, "q"));
  EXPECT_FALSE(Abilities({kF22Pro}).Has(kSlash, "A"));
  for (const int other : {kFlcs, kPfcs, kTopGun, kFcs}) {
    EXPECT_FALSE(Abilities({other}).Has(kSlash, "F"));
    EXPECT_FALSE(Abilities({other}).Has(kSlash, "Q"));
    EXPECT_TRUE(Abilities({other}).Has(kSlash, "A"));
  }
  EXPECT_TRUE(Abilities({}).Has(kSlash, "F"));
  EXPECT_EQ(Abilities({}).Of(kSlash, "X"), Nowhere);
}

TEST(Abilities, AThrottleBringsItsButtonsAxesAndTheDogfightSwitch) {
  const Abilities tqs({kFlcs, kTqs});
  const Abilities wcs({kFlcs, kWcs});
  const Abilities none({kFlcs, kNoThrottle});
  EXPECT_TRUE(tqs.Has(kControl, "T14") && tqs.Has(kAxis, "RNG") && tqs.HasDogfightSwitch());
  EXPECT_TRUE(wcs.Has(kControl, "T8") && wcs.Has(kAxis, "THR") && wcs.HasDogfightSwitch());
  EXPECT_FALSE(wcs.Has(kControl, "T9") || wcs.Has(kAxis, "RNG"));
  EXPECT_FALSE(none.Has(kControl, "T1") || none.Has(kControl, "MT") || none.Has(kAxis, "THR"));
  EXPECT_FALSE(none.HasDogfightSwitch());
  EXPECT_TRUE(none.Has(kAxis, "JSX") && none.Has(kAxis, "RDDR"));
  EXPECT_FALSE(Abilities({kFlcs, kTqs, 0}).Has(kAxis, "RDDR"));
}

TEST(Abilities, PortsAreForAnF22Pro) {
  EXPECT_TRUE(Abilities({kF22Pro}).Has(AbilityKind::Statement, "PortB4"));
  EXPECT_EQ(Abilities({kFlcs}).Of(AbilityKind::Statement, "portb4"), Elsewhere);
  EXPECT_TRUE(Abilities({kFlcs}).Has(AbilityKind::Statement, "SWAPTG"));
  EXPECT_FALSE(Abilities({kFcs}).Has(AbilityKind::Statement, "SWAPTG"));
}

TEST(Abilities, EveryControlOfTheComposerIsKnown) {
  const auto expectKnown = [](std::string_view name) { EXPECT_NE(DevicesWith(kControl, name), 0u) << name; };
  for (const tables::HardwareRow& row : tables::kHardware) {
    if (row.array == "BTN" && !row.caption.empty()) expectKnown(row.caption);
  }
  for (const tables::WcsRow& row : tables::kWcsButtons) {
    expectKnown(row.plain);
    if (!row.numbered.empty()) expectKnown(row.numbered);
  }
  for (const std::string_view trigger : tables::kTriggers) expectKnown(trigger);
  for (const tables::MouseListRow& list : tables::kMouseLists) {
    for (const tables::MouseRow& row : list.types) {
      for (const std::string_view button : {row.left, row.middle, row.right}) {
        if (button != "n/a") expectKnown(button);
      }
    }
  }
}

TEST(Abilities, EveryAxisAndModifierOfTheLanguageIsSomebodys) {
  for (const AxisShape& axis : kAxisShapes) EXPECT_NE(DevicesWith(kAxis, axis.word), 0u) << axis.word;
  for (const SlashLetter& slash : kSlashLetters) {
    EXPECT_NE(DevicesWith(kSlash, {&slash.letter, 1}), 0u) << slash.letter;
  }
}

TEST(Abilities, RowsAreSortedAndEachIsThereOnce) {
  const std::span<const Ability> all = AllAbilities();
  for (std::size_t i = 1; i < all.size(); ++i) {
    EXPECT_LT(std::pair(all[i - 1].kind, all[i - 1].name), std::pair(all[i].kind, all[i].name));
  }
}

TEST(Abilities, DevicesAreToldInWords) {
  EXPECT_EQ(InWords(kNumberedSticks), "the F-22 Pro and the FLCS");
  EXPECT_EQ(InWords(kF22Stick), "the F-22 Pro");
  EXPECT_EQ(InWords(kTqsThrottle | kWcsBesideNumbered), "the TQS and the WCS beside an F-22 Pro or FLCS");
}

TEST(AttachedHardware, IsWhatUseSaysAndElseWhatIsKnown) {
  const auto attached = [](std::string_view text, Hardware known = {}) {
    return AttachedHardware(JoystickFile(text), text, known);
  };
  EXPECT_EQ(attached("USE TQS\nuse norddr\n"), (Hardware{{}, kTqs, 0}));
  EXPECT_EQ(attached("USE NOTHR\n", {kFlcs, kTqs, 1}), (Hardware{kFlcs, kNoThrottle, 1}));
  EXPECT_EQ(attached("", {kFlcs, kTqs, 1}), (Hardware{kFlcs, kTqs, 1}));
  EXPECT_EQ(attached("USE TQS\nUSE WCS\nUSE TQS\n"), (Hardware{}));
  EXPECT_EQ(attached("USE TQS\nUSE WCS\nUSE WCS\n", {{}, kWcs}), (Hardware{}));
}

}  // namespace
}  // namespace tarvik::model
