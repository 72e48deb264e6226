#include <gtest/gtest.h>

#include "text/CodePage.h"

namespace tarvik {
namespace {

std::string EveryByte() {
  std::string bytes;
  for (int c = 0; c < 256; ++c) bytes += static_cast<char>(c);
  return bytes;
}

TEST(CodePage, EveryByteSurvivesUnicodeAndUtf8) {
  const std::string bytes = EveryByte();
  for (const char c : bytes) EXPECT_EQ(FromUnicode(ToUnicode(c)), c);
  EXPECT_EQ(FromUtf8(ToUtf8(bytes)), bytes);
}

TEST(CodePage, CharactersHaveTheirUnicodeNumbers) {
  EXPECT_EQ(ToUnicode('A'), U'A');
  EXPECT_EQ(ToUnicode('\xE9'), U'\u00E9');
  EXPECT_EQ(ToUnicode('\x80'), U'\u20AC');
  EXPECT_EQ(ToUnicode('\x9F'), U'\u0178');
  EXPECT_EQ(ToUnicode('\x81'), char32_t{0x81});
  EXPECT_EQ(ToUtf8("a\xE9\x80"), "a\xC3\xA9\xE2\x82\xAC");
}

TEST(CodePage, CharactersOutsideAreQuestionMarks) {
  for (const char32_t c :
       {U'\u0100', U'\u0142', U'\u4E2D', char32_t{0x80}, char32_t{0x1F600}, char32_t{0xFFFFFFFF}}) {
    EXPECT_EQ(FromUnicode(c), '?') << static_cast<std::uint32_t>(c);
  }
  EXPECT_EQ(FromUtf8("a\xC5\x82z\xF0\x9F\x98\x80."), "a?z?.");
}

TEST(CodePage, BytesThatAreNoUtf8AreQuestionMarks) {
  EXPECT_EQ(FromUtf8("a\xE9z"), "a?z");
  EXPECT_EQ(FromUtf8("\x80z\xC3"), "?z?");
  EXPECT_EQ(FromUtf8("\xC3\xA9\xC3"), "\xE9?");
}

TEST(Composed, ALetterAndItsAccentAreOneCharacter) {
  EXPECT_EQ(Composed("e\xCC\x81t\x65\xCC\x81"), "\xC3\xA9t\xC3\xA9");
  EXPECT_EQ(Composed("\xE2\x84\xAB"), "\xC3\x85");  // the sign of the unit
  EXPECT_EQ(FromUtf8("e\xCC\x81"), "\xE9");
}

TEST(Composed, WhatIsComposedOrHasNoAccentStays) {
  EXPECT_EQ(Composed(ToUtf8(EveryByte())), ToUtf8(EveryByte()));
  EXPECT_EQ(Composed(""), "");
  EXPECT_EQ(Composed("\xD1\x82\xF0\x9F\x98\x80"), "\xD1\x82\xF0\x9F\x98\x80");
}

TEST(Composed, BytesThatAreNoUtf8Stay) {
  for (const std::string_view broken :
       {"\xE9", "\xCC", "a\xFF\xFE", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\x80\xD1", "\xC0\x80"}) {
    EXPECT_EQ(Composed(broken), broken);
    EXPECT_EQ(Composed(std::string(broken) + "e\xCC\x81"), std::string(broken) + "\xC3\xA9");
    EXPECT_EQ(Composed("e\xCC\x81" + std::string(broken)), "\xC3\xA9" + std::string(broken));
  }
  EXPECT_EQ(Composed(std::string("\0e\xCC\x81\0", 5)), std::string("\0\xC3\xA9\0", 4));
}

TEST(Composed, AnyNumberOfAccentsTakesNoTime) {
  std::string marks = "e";
  for (int i = 0; i < 500000; ++i) marks += i % 2 ? "\xCC\xA3" : "\xCC\x81";  // each before the one before it
  EXPECT_GT(Composed(marks).size(), 900000U);
}

TEST(CodePage, CharactersThatAreLostAreCounted) {
  EXPECT_EQ(ConvertedFromUtf8("a?\xC3\xA9").lost, 0U);
  const Converted converted = ConvertedFromUtf8("a\xC5\x82?\xF0\x9F\x98\x80.\xFF");
  EXPECT_EQ(converted.text, "a???.?");
  EXPECT_EQ(converted.lost, 3U);
}

TEST(CodePage, AccentedLettersFoldTheirCase) {
  EXPECT_EQ(LowerCase("BTN \xC0\xC9\xD6\xDE"), "btn \xE0\xE9\xF6\xFE");
  EXPECT_EQ(LowerCase("\x8A\x8C\x8E\x9F"), "\x9A\x9C\x9E\xFF");
  EXPECT_EQ(ToUpper('\xE9'), '\xC9');
  EXPECT_EQ(ToUpper('\xFF'), '\x9F');
  EXPECT_EQ(ToUpper('\x9A'), '\x8A');
}

TEST(CodePage, SignsAndLettersOfOneCaseStayAsTheyAre) {
  for (const char c : {'\xD7', '\xF7', '\xDF', '\xB5', '\xAA', '\x83', '@', '[', '`', '{', '0', '\0'}) {
    EXPECT_EQ(ToLower(c), c);
    EXPECT_EQ(ToUpper(c), c);
  }
}

TEST(CodePage, FoldingTwiceIsFoldingOnce) {
  for (const char c : EveryByte()) {
    EXPECT_EQ(ToLower(ToLower(c)), ToLower(c));
    EXPECT_EQ(ToLower(ToUpper(c)), ToLower(c));
    EXPECT_EQ(ToUpper(ToLower(c)), ToUpper(c));
  }
}

TEST(CodePage, WordCharactersAreLettersDigitsAndTheUnderscore) {
  for (const char c : std::string_view("azAZ09_\xC0\xE9\xFF\xDF\x8A\x9F\x83\xB5"))
    EXPECT_TRUE(IsWordCharacter(c)) << c;
  for (const char c : std::string_view(" \t\r\n-/()*^.\xD7\xF7\x80\x96\xA0\0", 18))
    EXPECT_FALSE(IsWordCharacter(c));
  for (const char c : EveryByte()) EXPECT_EQ(IsWordCharacter(c), IsWordCharacter(ToLower(c)));
}

TEST(CodePage, SortingIgnoresCase) {
  EXPECT_TRUE(SortsBefore("alpha", "Beta"));
  EXPECT_TRUE(SortsBefore("Alpha", "beta"));
  EXPECT_FALSE(SortsBefore("Same", "sAME"));
  EXPECT_FALSE(SortsBefore("sAME", "Same"));
  EXPECT_TRUE(SortsBefore("a", "ab"));
  EXPECT_TRUE(SortsBefore("z", "\xC9"));
}

}  // namespace
}  // namespace tarvik
