#include <gtest/gtest.h>

#include <random>

#include "text/Differences.h"

namespace tarvik {
namespace {

std::string In(const std::string& text, Range range) { return text.substr(range.start, range.length); }

/// Makes the later text out of the earlier one by nothing but the differences.
std::string Applied(const std::string& before, const std::string& after,
                    const std::vector<Difference>& differences) {
  std::string made;
  std::size_t from = 0;
  for (const Difference& difference : differences) {
    made += before.substr(from, difference.before.start - from) + In(after, difference.after);
    from = difference.before.End();
  }
  return made + before.substr(from);
}

TEST(Differences, EqualTextsHaveNone) {
  EXPECT_TRUE(DifferencesOf("", "").empty());
  EXPECT_TRUE(DifferencesOf("BTN S1\r\nBTN S2", "BTN S1\r\nBTN S2").empty());
}

TEST(Differences, AChangedLineIsAPlaceOnBothSides) {
  const std::string before = "a\r\nb\r\nc\r\n";
  const std::string after = "a\r\nB\r\nc\r\n";
  const auto found = DifferencesOf(before, after);
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(In(before, found[0].before), "b\r\n");
  EXPECT_EQ(In(after, found[0].after), "B\r\n");
  EXPECT_EQ(LinesOf(found), 1U);
}

TEST(Differences, WhatOnlyOneSideHasStandsAtItsPlaceInTheOther) {
  const std::string before = "a\r\nc";
  const std::string after = "a\r\nb1\r\nb2\r\nc";
  const auto found = DifferencesOf(before, after);
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found[0].before, (Range{3, 0}));
  EXPECT_EQ(In(after, found[0].after), "b1\r\nb2\r\n");
  EXPECT_EQ(LinesOf(found), 2U);
  EXPECT_EQ(LinesOf(DifferencesOf(after, before)), 2U);
}

TEST(Differences, AgainstNothingAllLinesDiffer) {
  EXPECT_EQ(LinesOf(DifferencesOf("", "a\r\nb")), 2U);
  EXPECT_EQ(LinesOf(DifferencesOf("a\r\nb", "")), 2U);
}

TEST(Differences, AnyTextComesOutOfAnyOtherByThem) {
  std::mt19937 random(7);
  const auto text = [&random] {
    std::string made;
    for (auto lines = random() % 12; lines > 0; --lines) {
      made += static_cast<char>('a' + random() % 4);
      made += random() % 9 == 0 ? "" : "\r\n";
    }
    return made;
  };
  for (int i = 0; i < 2000; ++i) {
    const std::string before = text();
    const std::string after = text();
    EXPECT_EQ(Applied(before, after, DifferencesOf(before, after)), after) << before << "\n->\n" << after;
  }
}

TEST(Differences, LongTextsWithNothingInCommonDifferAsAWholeAtOnce) {
  std::string before;
  std::string after;
  for (int i = 0; i < 40000; ++i) {
    before += "a" + std::to_string(i) + "\r\n";
    after += "b" + std::to_string(i) + "\r\n";
  }
  const auto found = DifferencesOf(before, after);
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found[0].lines, 40000U);
}

}  // namespace
}  // namespace tarvik
