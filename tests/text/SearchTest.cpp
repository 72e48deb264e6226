#include <gmock/gmock.h>

#include <random>

#include "text/CodePage.h"
#include "text/Search.h"

namespace tarvik {
namespace {

constexpr int kAnyText = 0;
constexpr int kWordAndCase = find::kWholeWord | find::kMatchCase;

std::optional<std::size_t> FindIn(const std::string& text, std::string_view needle, int options = kAnyText,
                                  std::size_t start = 0, std::size_t end = std::string::npos) {
  const std::string folded = LowerCase(text);
  return FindText({text, folded}, needle, start, end, options);
}

/// The slow way: every place in turn, character by character.
std::optional<std::size_t> SlowFind(const std::string& text, std::string_view needle, int options,
                                    std::size_t start, std::size_t end) {
  end = std::min(end, text.size());
  if (needle.empty()) return {};
  for (std::size_t at = start; at + needle.size() <= end; ++at) {
    bool same = true;
    for (std::size_t i = 0; i < needle.size(); ++i) {
      const char a = text[at + i];
      same = same && (options & find::kMatchCase ? a == needle[i] : ToLower(a) == ToLower(needle[i]));
    }
    const std::size_t behind = at + needle.size();
    const bool joined =
        (at > 0 && IsWordCharacter(text[at - 1])) || (behind < text.size() && IsWordCharacter(text[behind]));
    if (same && !(joined && options & find::kWholeWord)) return at;
  }
  return {};
}

TEST(SearchTest, CaseIsIgnoredUnlessItIsToMatch) {
  EXPECT_EQ(FindIn("use USE", "USE"), 0U);
  EXPECT_EQ(FindIn("use USE", "USE", find::kMatchCase), 4U);
  EXPECT_EQ(FindIn("use", "USE", find::kMatchCase), std::nullopt);
  EXPECT_EQ(FindIn("STRASSE \xC4\xD6\xDC", "\xE4\xF6\xFC"), 8U) << "accented letters have case too";
}

TEST(SearchTest, AWholeWordHasNoLetterDigitOrUnderscoreBesideIt) {
  for (const char* joined : {"remote", "harem", "rem1", "_rem", "rem\xE9"}) {
    EXPECT_EQ(FindIn(joined, "rem", find::kWholeWord), std::nullopt) << joined;
  }
  for (const char* alone : {"rem", " rem ", "/rem/", "(rem)", "rem-1", "\r\nrem\r\n", "rem\xB4"}) {
    EXPECT_NE(FindIn(alone, "rem", find::kWholeWord), std::nullopt) << alone;
  }
  EXPECT_EQ(FindIn("remote rem", "rem", find::kWholeWord), 7U) << "it goes on behind what is no whole word";
}

TEST(SearchTest, AHitLiesWhollyBetweenStartAndEnd) {
  EXPECT_EQ(FindIn("BTN BTN", "BTN", kAnyText, 1), 4U);
  EXPECT_EQ(FindIn("BTN BTN", "BTN", kAnyText, 4), 4U);
  EXPECT_EQ(FindIn("BTN BTN", "BTN", kAnyText, 5), std::nullopt);
  EXPECT_EQ(FindIn("BTN BTN", "BTN", kAnyText, 0, 3), 0U);
  EXPECT_EQ(FindIn("BTN BTN", "BTN", kAnyText, 0, 2), std::nullopt);
  EXPECT_EQ(FindIn("BTN", "BTN", kAnyText, 3), std::nullopt) << "at the end of the text there is nothing";
  EXPECT_EQ(FindIn("BTN", "BTN", kAnyText, 2, 1), std::nullopt);
}

TEST(SearchTest, TheTextBehindTheEndStillDecidesWhatAWholeWordIs) {
  EXPECT_EQ(FindIn("USEFUL", "USE", find::kWholeWord, 0, 3), std::nullopt);
  EXPECT_EQ(FindIn("REUSE", "USE", find::kWholeWord, 2), std::nullopt);
}

TEST(SearchTest, NothingIsNeverFound) {
  EXPECT_EQ(FindIn("abc", ""), std::nullopt);
  EXPECT_EQ(FindIn("", ""), std::nullopt);
  EXPECT_EQ(FindIn("", "a"), std::nullopt);
}

TEST(SearchTest, ItFindsWhatALookAtEveryPlaceFinds) {
  std::mt19937 random(11);
  const auto below = [&random](std::size_t n) { return random() % n; };
  const std::string letters = "aAbB _1-\r\n\xE9\xC9";
  const auto text = [&](std::size_t longest) {
    std::string made;
    for (std::size_t n = below(longest + 1); n > 0; --n) made += letters[below(letters.size())];
    return made;
  };
  int hits = 0;
  for (int i = 0; i < 20000; ++i) {
    const std::string in = text(24);
    const std::string needle = text(3);
    const std::size_t start = below(in.size() + 2);
    const std::size_t end = below(in.size() + 2);
    for (const int options : {kAnyText, find::kWholeWord, find::kMatchCase, kWordAndCase}) {
      const auto wanted = SlowFind(in, needle, options, start, end);
      ASSERT_EQ(FindIn(in, needle, options, start, end), wanted)
          << '"' << needle << "\" in \"" << in << "\" " << start << ' ' << end << ' ' << options;
      hits += wanted.has_value();
    }
  }
  EXPECT_GT(hits, 1000);
}

TEST(FindAll, FindsHitsThatDoNotReachIntoEachOther) {
  EXPECT_THAT(FindAll({"aaaaa", "aaaaa"}, "aa", 0), testing::ElementsAre(0, 2));
  EXPECT_THAT(FindAll({"a", "a"}, "", 0), testing::IsEmpty());
}

}  // namespace
}  // namespace tarvik
