#include <gtest/gtest.h>

#include <random>

#include "text/Encoding.h"

namespace tarvik {
namespace {

using namespace std::string_literals;

std::string Little(std::u16string_view text) {
  std::string bytes;
  for (const char16_t c : text) bytes += {static_cast<char>(c & 0xFF), static_cast<char>(c >> 8)};
  return bytes;
}

std::string Big(std::u16string_view text) {
  std::string bytes;
  for (const char16_t c : text) bytes += {static_cast<char>(c >> 8), static_cast<char>(c & 0xFF)};
  return bytes;
}

std::string TextOf(const std::string& file) { return InCodePage(file, file, EncodingOf(file)).text; }

TEST(EncodingOf, AMarkTellsIt) {
  EXPECT_EQ(EncodingOf("\xEF\xBB\xBF"
                       "BTN"),
            Encoding::Utf8);
  EXPECT_EQ(EncodingOf(Little(u"\uFEFFBTN")), Encoding::Utf16Little);
  EXPECT_EQ(EncodingOf(Big(u"\uFEFF\u043A\u043E\u0434")), Encoding::Utf16Big);
  EXPECT_EQ(EncodingOf("\xFF\xFE"), Encoding::Utf16Little);
}

TEST(EncodingOf, EveryOtherByteTellsUtf16) {
  EXPECT_EQ(EncodingOf(Little(u"BTN S1 Fire\r\n")), Encoding::Utf16Little);
  EXPECT_EQ(EncodingOf(Big(u"BTN S1 Fire\r\n")), Encoding::Utf16Big);
  EXPECT_EQ(EncodingOf(Little(u"BTN S1 \u20AC Fire and more\r\n")), Encoding::Utf16Little);
  EXPECT_EQ(EncodingOf(Little(u"REM \u0442\u0435\u0441\u0442\r\n")), Encoding::Utf16Little);
  for (const std::string& other : {"B\0"s, "B\0T"s, "B\0T\0N"s, "\0\0\0\0"s, "BTN\0\0\0"s, "a\0\1\0"s})
    EXPECT_EQ(EncodingOf(other), Encoding::CodePage) << testing::PrintToString(other);
}

TEST(EncodingOf, CharactersBeyondAsciiTellUtf8) {
  EXPECT_EQ(EncodingOf("Fl\xC3\xBCge"), Encoding::Utf8);
  EXPECT_EQ(EncodingOf("\xF0\x9F\x98\x80"), Encoding::Utf8);
  EXPECT_EQ(EncodingOf("\xEF\xBF\xBD"), Encoding::Utf8);
  EXPECT_EQ(EncodingOf("\xC3\xA9\xC3\xA9\xE2\x82\xAC \xFF"), Encoding::Utf8) << "one byte is damaged";
}

TEST(IsStillIn, ATextThatWasConvertedIsNoMore) {
  const std::string utf16 = Little(u"\uFEFFB\u00E9\r\nC");
  EXPECT_TRUE(IsStillIn(Encoding::Utf16Little, utf16 + "x"));
  EXPECT_FALSE(IsStillIn(Encoding::Utf16Little, InCodePage(utf16, utf16, Encoding::Utf16Little).text));
  EXPECT_TRUE(IsStillIn(Encoding::Utf8, "\xC3\xA9\xC3\xA9 and \xE9"));
  EXPECT_FALSE(IsStillIn(Encoding::Utf8, "\xE9 and e"));
  EXPECT_FALSE(IsStillIn(Encoding::CodePage, utf16));
}

TEST(EncodingOf, FilesOfTheCodePageAreWhatTheyAre) {
  std::string everyByte;
  for (int c = 0; c < 256; ++c) everyByte += static_cast<char>(c);
  for (const std::string& file : {""s, "BTN S1 Fire"s, "Fl\xFCge"s, "\xC3\xBC and \xFC"s, "cut \xC3"s,
                                  "\x96 \x93x\x94"s, "\xC0\x80"s, "\xED\xA0"s, everyByte})
    EXPECT_EQ(EncodingOf(file), Encoding::CodePage) << testing::PrintToString(file);
}

TEST(InCodePage, TextComesOutOfEachEncoding) {
  EXPECT_EQ(TextOf(Little(u"\uFEFFBTN S1 \u20AC\r\nx\n")), "BTN S1 \x80\r\nx\n");
  EXPECT_EQ(TextOf(Big(u"BTN S1 Fire\r\n")), "BTN S1 Fire\r\n");
  EXPECT_EQ(TextOf("\xEF\xBB\xBF"
                   "Fl\xC3\xBCge"),
            "Fl\xFCge");
  EXPECT_EQ(TextOf("Fl\xC3\xBCge"), "Fl\xFCge");
  EXPECT_EQ(TextOf(Little(u"\uFEFFe\u0301")), "\xE9");
  EXPECT_EQ(TextOf("\xFF\xFE"), "");
  EXPECT_EQ(TextOf(Little(u"\uFEFFa\0b"s)), "a\0b"s);
}

TEST(InCodePage, WhatTheCodePageLacksIsCounted) {
  const std::string file = Little(u"\uFEFF\u043A a\xD83D\xDE00 \xDE00\xD83D");
  const Converted converted = InCodePage(file, file, Encoding::Utf16Little);
  EXPECT_EQ(converted.text, "? a? ??");
  EXPECT_EQ(converted.lost, 4U);
  EXPECT_EQ(InCodePage("\xD1\x82\xE9", "", Encoding::Utf8).lost, 1U);
}

TEST(InCodePage, HalfACharacterAtTheEndIsOne) {
  EXPECT_EQ(TextOf("\xFF\xFE"
                   "a\0b"s),
            "ab");
  EXPECT_EQ(TextOf("\xFE\xFF\0a\0"s), "a\0"s.substr(0, 1));
}

TEST(InCodePage, WhatWasTypedAmongTheBytesStays) {
  const std::string file = Little(u"\uFEFFone\r\ntwo\r\n\u20AC three\r\n");
  std::string now = file;
  now.insert(now.find('t'), "typed \xE9 ");
  now.insert(now.find('e', 12 + 8), "x");
  EXPECT_EQ(InCodePage(now, file, Encoding::Utf16Little).text, "one\r\ntyped \xE9 two\r\n\x80 thrxee\r\n");
  now.insert(now.find("h"), "twice ");
  EXPECT_EQ(InCodePage(now, file, Encoding::Utf16Little).text,
            "one\r\ntyped \xE9 two\r\n\x80 ttwice hrxee\r\n");
  std::string between = file;
  between.insert(between.find('n') + 1, "-");  // its other half is behind it now
  EXPECT_EQ(InCodePage(between, file, Encoding::Utf16Little).text, "on-e\r\ntwo\r\n\x80 three\r\n");
  EXPECT_EQ(InCodePage("Fl\xC3\xBCge \xFC\xC3", "", Encoding::Utf8).text, "Fl\xFCge \xFC\xC3");
}

TEST(InCodePage, ATextThatWasConvertedBeforeStays) {
  const std::string file = Little(u"\uFEFFBTN S1 Fire\r\nBTN S2 Gun\r\n");
  EXPECT_EQ(InCodePage("BTN S1 Fire\r\nBTN S2 Gun\r\n", file, Encoding::Utf16Little).text,
            "BTN S1 Fire\r\nBTN S2 Gun\r\n");
}

TEST(InCodePage, AnyBytesGiveSomething) {
  std::mt19937 random(11);
  const auto bytes = [&] {
    constexpr std::string_view kOften("\0\0\0\r\na\xC3\xBC\xD8\xDC\xFF\xFE\xEF\xBB\xBF", 15);
    std::string made;
    for (auto length = random() % 24; length > 0; --length)
      made += random() % 3 ? kOften[random() % kOften.size()] : static_cast<char>(random() % 256);
    return made;
  };
  for (int i = 0; i < 300; ++i) {
    const std::string file = bytes();
    (void)EncodingOf(file);
    for (const Encoding encoding : {Encoding::Utf8, Encoding::Utf16Little, Encoding::Utf16Big}) {
      (void)InCodePage(bytes(), file, encoding);
      const Converted same = InCodePage(file, file, encoding);
      EXPECT_LE(same.lost, same.text.size());
    }
  }
}

}  // namespace
}  // namespace tarvik
