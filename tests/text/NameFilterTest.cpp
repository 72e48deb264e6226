#include <gmock/gmock.h>

#include "text/NameFilter.h"

namespace tarvik {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const NameFilter kFilter({"Gear_Up", "Gear_Down", "", "Flaps_Up", "gear"});

TEST(NameFilter, KeepsTheNamesThatContainWhatIsTyped) {
  EXPECT_THAT(kFilter.Matching("gear"), ElementsAre(0, 1, 4));
  EXPECT_THAT(kFilter.Matching("_UP"), ElementsAre(0, 3));
  EXPECT_THAT(kFilter.Matching("x"), IsEmpty());
}

TEST(NameFilter, KeepsAllWhereNothingIsTyped) {
  EXPECT_THAT(kFilter.Matching(""), ElementsAre(0, 1, 2, 3, 4));
  EXPECT_THAT(kFilter.Matching("  "), ElementsAre(0, 1, 2, 3, 4));
  EXPECT_THAT(NameFilter().Matching("a"), IsEmpty());
}

TEST(NameFilter, WantsEveryWordInAnyOrder) {
  EXPECT_THAT(kFilter.Matching("up gear"), ElementsAre(0));
  EXPECT_THAT(kFilter.Matching(" down  up "), IsEmpty());
}

TEST(NameFilter, FindsAtMostOneHitInANameAndNoneAcrossTwo) {
  EXPECT_THAT(NameFilter({"aaaa", "b", "a"}).Matching("a"), ElementsAre(0, 2));
  EXPECT_THAT(NameFilter({"ab", "cd"}).Matching("bc"), IsEmpty());
}

}  // namespace
}  // namespace tarvik
