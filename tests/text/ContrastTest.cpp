#include <gmock/gmock.h>

#include "text/Contrast.h"

namespace tarvik {
namespace {

constexpr Colour kUsual = Rgb(253, 250, 217);
constexpr Colour kNight = Rgb(30, 30, 30);

TEST(Contrast, GoesFromOneToTwentyOne) {
  EXPECT_NEAR(ContrastOf(kBlack, kBlack), 1, 0.001);
  EXPECT_NEAR(ContrastOf(kBlack, kWhite), 21, 0.001);
  EXPECT_NEAR(ContrastOf(kWhite, Rgb(0x77, 0x77, 0x77)), 4.48, 0.01);  // the best known grey that just fails
}

TEST(Contrast, AnInkThatCanBeReadStaysAsItIs) {
  EXPECT_EQ(WithContrast(Rgb(0, 0, 255), kWhite, kReadable), Rgb(0, 0, 255));
}

TEST(Contrast, AnInkIsLiftedNoFurtherThanItMust) {
  const Colour ink = WithContrast(Rgb(0, 0, 255), kNight, kReadable);
  EXPECT_GE(ContrastOf(ink, kNight), kReadable);
  EXPECT_LT(ContrastOf(ink, kNight), kReadable + 0.1);
  EXPECT_EQ(BlueOf(ink), 255U);  // and is blue as before
}

/// On the way to white an ink that is darker than its background passes it.
TEST(Contrast, AnInkThatIsDarkerThanADarkBackgroundIsLiftedBeyondIt) {
  const Colour ink = WithContrast(Rgb(0, 0, 40), Rgb(60, 60, 60), kReadable);
  EXPECT_GE(ContrastOf(ink, Rgb(60, 60, 60)), kReadable);
}

TEST(Contrast, ALightInkOnALightBackgroundIsDarkened) {
  const Colour ink = WithContrast(Rgb(255, 255, 0), kWhite, kReadable);
  EXPECT_GE(ContrastOf(ink, kWhite), kReadable);
  EXPECT_EQ(RedOf(ink), GreenOf(ink));
}

TEST(Contrast, EveryInkCanBeReadOnEveryBackground) {
  for (unsigned background = 0; background < 4096; background += 7) {
    const Colour behind = Rgb(background % 16 * 17, background / 16 % 16 * 17, background / 256 * 17);
    for (unsigned ink = 0; ink < 4096; ink += 61) {
      const Colour wanted = Rgb(ink % 16 * 17, ink / 16 % 16 * 17, ink / 256 * 17);
      EXPECT_GE(ContrastOf(WithContrast(wanted, behind, kReadable), behind), kReadable)
          << NumberOf(wanted) << " on " << NumberOf(behind);
    }
  }
}

TEST(LegibleInk, IsTheInkItselfOnTheBackgroundForWhichItWasChosen) {
  const Colour grey = Rgb(128, 128, 128);
  ASSERT_LT(ContrastOf(grey, kUsual), kReadable);
  EXPECT_EQ(LegibleInk(grey, kUsual, kUsual), grey);
  EXPECT_EQ(LegibleInk(kBlack, kUsual, kUsual), kBlack);
}

TEST(LegibleInk, IsAsLegibleAsItWasWhereThatWasNotMuch) {
  const Colour grey = Rgb(128, 128, 128);
  const double usual = ContrastOf(grey, kUsual);
  const Colour lifted = LegibleInk(grey, Rgb(100, 100, 100), kUsual);
  EXPECT_GE(ContrastOf(lifted, Rgb(100, 100, 100)), usual);
  EXPECT_LT(ContrastOf(lifted, Rgb(100, 100, 100)), usual + 0.1);
}

TEST(LegibleInk, BlackIsALightGreyInTheNight) {
  EXPECT_EQ(LegibleInk(kBlack, kNight, kUsual), Rgb(230, 230, 230));
}

}  // namespace
}  // namespace tarvik
