#include <gtest/gtest.h>

#include <chrono>
#include <random>
#include <string>

#include "text/Rtf.h"

namespace tarvik {
namespace {

using namespace std::literals;

constexpr Colour kRed{0x0000FF};
constexpr Colour kGreen{0x00FF00};
constexpr Colour kBlue{0xFF0000};

std::string Repeat(std::size_t count, std::string_view piece) {
  std::string result;
  for (std::size_t i = 0; i < count; ++i) result += piece;
  return result;
}

RichText Join(std::initializer_list<std::pair<std::string, Colour>> pieces) {
  RichText joined;
  for (const auto& [text, colour] : pieces) {
    joined.text += text;
    joined.colours.Append(text.size(), colour);
  }
  return joined;
}

void ExpectRoundTrip(const RichText& content, const RtfLook& look = {}) {
  const std::string rtf = WriteRtf(content, look);
  const RichText read = ReadRtf(rtf);
  EXPECT_EQ(read.text, content.text) << rtf;
  EXPECT_TRUE(read.colours == content.colours) << rtf;
}

/// What must hold of anything that is read, however broken: every character has a colour, line breaks are CR
/// LF.
void ExpectSound(const RichText& read) {
  EXPECT_EQ(read.colours.size(), read.text.size());
  EXPECT_EQ(WithPaneLineBreaks(read.text), read.text);
  EXPECT_TRUE(ReadRtf(WriteRtf(read)) == read);
}

std::string TextOfBody(const std::string& body) { return ReadRtf("{\\rtf1\\ansi " + body + "}").text; }

TEST(WriteRtf, EmptyContentIsTheDesignDefaultInAnyFont) {
  const std::string expected =
      "{\\rtf1\\ansi\\deff0\\deftab720{\\fonttbl{\\f0\\fswiss MS Sans Serif;}{\\f1\\froman\\fcharset2 "
      "Symbol;}"
      "{\\f2\\fswiss MS Sans Serif;}{\\f3\\fmodern Fixedsys;}{\\f4\\fswiss Arial;}{\\f5\\fswiss Arial;}"
      "{\\f6\\fmodern Fixedsys;}}{\\colortbl\\red0\\green0\\blue0;}\\deflang2057\\pard\\plain\\f4\\fs17 "
      "\\par }";
  EXPECT_EQ(WriteRtf(RichText()), expected);
  EXPECT_EQ(WriteRtf(RichText(), {{"Fixedsys", 9, true}, 20}), expected);
  EXPECT_TRUE(ReadRtf(expected) == RichText());
}

TEST(WriteRtf, CarriesFontSizeBoldIndentAndColours) {
  const RichText content = Join({{"BTN S1", kBlue}, {" a", kBlack}, {"\r\nRAW", kRed}, {" b", kBlue}});
  EXPECT_EQ(WriteRtf(content, {{"Courier New", 10.5F, true}, 20}),
            "{\\rtf1\\ansi\\ansicpg1252\\deff0\\deftab720{\\fonttbl{\\f0\\fnil\\fcharset0 Courier New;}}"
            "{\\colortbl\\red0\\green0\\blue0;\\red0\\green0\\blue255;\\red255\\green0\\blue0;}"
            "\\deflang2057\\pard\\li300\\plain\\f0\\fs21\\b "
            "\\cf1 BTN S1\\cf0  a\\cf2 \\par\r\nRAW\\cf1  b}");
}

TEST(WriteRtf, AFontNameOfAnyCharactersLeavesTheTextAlone) {
  std::string name;
  for (int c = 0; c < 256; ++c) name += static_cast<char>(c);
  const RtfLook look = {{name, 8.5F, false}, 0};
  ExpectRoundTrip(RichText("text"), look);
  const std::string rtf = WriteRtf(RichText("text"), look);
  EXPECT_EQ(rtf.find(';'), rtf.find(";}}{\\colortbl"));
}

TEST(WriteRtf, IsAsciiThatLooksLikeRtf) {
  std::string every;
  for (int c = 0; c < 256; ++c) every += static_cast<char>(c);
  const std::string rtf = WriteRtf(RichText(every));
  EXPECT_TRUE(LooksLikeRtf(rtf));
  EXPECT_TRUE(LooksLikeRtf(kEmptyRtf));
  for (const char c : rtf) EXPECT_TRUE(c == '\r' || c == '\n' || (c >= ' ' && c < 0x7F));
}

TEST(RtfRoundTrip, EveryByteValueAloneBetweenLettersAndTwice) {
  for (int i = 0; i < 256; ++i) {
    const std::string c(1, static_cast<char>(i));
    if (c == "\r" || c == "\n") continue;
    for (const std::string& text : {c, "a" + c + "b", c + c, c + "0", "\r\n" + c + "\r\n"}) {
      ExpectRoundTrip(RichText(text));
      ExpectRoundTrip(RichText(text, kRed));
    }
  }
}

TEST(RtfRoundTrip, WithAndWithoutALineBreakAtEitherEnd) {
  for (const char* text : {"\r\n", "\r\n\r\n", "a", "a\r\n", "\r\na", "a\r\n\r\n", " ", " \r\n "}) {
    ExpectRoundTrip(RichText(text));
    ExpectRoundTrip(RichText(text, kGreen));
  }
}

TEST(RtfRoundTrip, EveryPartOfAColour) {
  for (unsigned part = 0; part < 256; ++part) {
    ExpectRoundTrip(Join({{"a", Rgb(part, 0, 0)},
                          {"b", Rgb(0, part, 0)},
                          {"c", Rgb(0, 0, part)},
                          {"d", Rgb(part, part, part)}}));
  }
}

TEST(RtfRoundTrip, BitsAboveAColourAreDropped) {
  const RichText content = Join({{"a", Colour{0xFF0000FF}}, {"b", kRed}, {"c", Colour{0x80000000}}});
  EXPECT_TRUE(ReadRtf(WriteRtf(content)) == Join({{"ab", kRed}, {"c", kBlack}}));
}

TEST(RtfRoundTrip, ALineBreakWhoseHalvesDifferInColour) {
  ExpectRoundTrip(Join({{"a\r", kRed}, {"\n", kBlue}}));
  ExpectRoundTrip(
      Join({{"\r", kRed}, {"\n\r", kBlue}, {"\n\r\n\r\n", kBlack}, {"\r", kGreen}, {"\nb", kBlack}}));
}

TEST(RtfRoundTrip, TenThousandColours) {
  RichText content;
  for (std::uint32_t c = 0; c < 10000; ++c) {
    content.text += static_cast<char>('0' + c % 10);
    content.colours.Append(1, Colour{c * 1663 & 0xFFFFFF});
  }
  ExpectRoundTrip(content);
}

RichText RandomContent(std::mt19937& random) {
  const auto below = [&random](unsigned n) { return static_cast<unsigned>(random() % n); };
  const Colour palette[] = {kBlack, kRed, kBlue, Colour{0x123456}, kWhite};
  RichText content;
  for (unsigned pieces = below(40); pieces > 0; --pieces) {
    std::string text;
    for (unsigned length = below(12); length > 0; --length) {
      const char c = below(3) == 0 ? static_cast<char>(below(256)) : static_cast<char>(' ' + below(95));
      const bool lineBreak = c == '\r' || c == '\n' || below(12) == 0;
      text += lineBreak ? "\r\n" : std::string(1, c);
    }
    content.text += text;
    content.colours.Append(text.size(), below(8) == 0 ? Colour{below(1 << 24)} : palette[below(5)]);
  }
  if (!content.text.empty() && below(4) == 0) {
    content.colours.Replace({below(static_cast<unsigned>(content.size())), 1}, ColourRuns(1, kGreen));
  }
  return content;
}

TEST(RtfRoundTrip, RandomTextsAndColours) {
  std::mt19937 random(20261);
  for (int i = 0; i < 3000 && !testing::Test::HasFailure(); ++i) {
    ExpectRoundTrip(RandomContent(random), {{"Fixedsys", 9, i % 2 == 0}, i % 40});
  }
}

TEST(ReadRtf, AWordProcessorsDocumentIsItsTextAndColours) {
  const RichText read = ReadRtf(
      "{\\rtf1\\adeflang1025\\ansi\\ansicpg1252\\uc1\\deff0\\deflang1033\r\n"
      "{\\fonttbl{\\f0\\froman\\fcharset0\\fprq2{\\*\\panose 02020603050405020304}Times New Roman;}}\r\n"
      "{\\colortbl;\\red0\\green0\\blue0;\\red0\\green0\\blue255;\\red255\\green0\\blue0\\ctint255;}\r\n"
      "{\\stylesheet{\\ql \\li0\\fs24 \\snext0 Normal;}{\\*\\cs10 \\additive Default Paragraph Font;}}\r\n"
      "{\\*\\rsidtbl \\rsid12}{\\*\\generator Some Word 11.0;}{\\info{\\title A title}{\\author "
      "\\{me\\}}}\r\n"
      "\\paperw12240{\\headerr \\pard top {\\b of} page\\par }{\\*\\pnseclvl1\\pnucrm{\\pntxta .}}\r\n"
      "\\pard\\plain \\ql \\fs24 {\\cf3\\b BTN}{\\b0  S1\r\n fire}\\par\r\n"
      "{\\field{\\*\\fldinst HYPERLINK x}{\\fldrslt{\\cf2 link}}}"
      "{\\*\\shppict{\\pict\\pngblip\\bin5 }}{{\\\\89504e}}{\\nonshppict{\\pict 0123}}\r\n"
      "\\line\\plain end\\par }\r\n\0"s);
  EXPECT_EQ(read.text, "BTN S1 fire\r\nlink\r\nend\r\n");
  EXPECT_TRUE(
      read.colours ==
      Join({{"BTN", kRed}, {" S1 fire\r\n", kBlack}, {"link", kBlue}, {"\r\nend\r\n", kBlack}}).colours);
}

TEST(ReadRtf, CharacterWordsAreTheirCharacters) {
  EXPECT_EQ(TextOfBody("\\emdash\\endash\\bullet\\lquote\\rquote\\ldblquote\\rdblquote x"),
            "\x97\x96\x95\x91\x92\x93\x94x");
  EXPECT_EQ(TextOfBody("a\\~b\\_c\\-d\\\\\\{\\}"), "a\xA0"s + "b-c\xAD" + "d\\{}");
  EXPECT_EQ(TextOfBody("a\\tab b\\cell c\\row d\\emspace e\tf\\\tg"), "a\tb\tc\r\nd e\tf\tg");
  EXPECT_EQ(TextOfBody("a\\line b\\par c\\\nd\\\r\ne\\sect\\page f"), "a\r\nb\r\nc\r\nd\r\ne\r\n\r\nf");
}

TEST(ReadRtf, HexBytesAreCodePageCharacters) {
  EXPECT_EQ(TextOfBody("\\'e9\\'E9\\'80\\'00\\'7d"), "\xE9\xE9\x80\0}"s);
  EXPECT_EQ(TextOfBody("\\'0d\\'0a\\'0d\\'0a\\'0a\\'0d"), "\r\n\r\n\r\n\r\n");
  EXPECT_EQ(TextOfBody("a\\'zzb\\'4zc"), "azzb4zc");
}

TEST(ReadRtf, RawLineEndsAndZerosAreNoText) { EXPECT_EQ(TextOfBody("a\r\nb\nc\0d\r"s), "abcd"); }

TEST(ReadRtf, TheFallbackOfAUnicodeCharacterIsSkipped) {
  EXPECT_EQ(TextOfBody("\\u233?\\u8364 \\'80\\u8211\\endash x"), "\xE9\x80\x96x");
  EXPECT_EQ(TextOfBody("\\u233xyz"), "\xE9yz");
  EXPECT_EQ(TextOfBody("\\uc0\\u233\\u233 x"), "\xE9\xE9x");
  EXPECT_EQ(TextOfBody("\\uc3\\u233 a\\'62\\cf0 c{\\uc2\\u233 abc}\\u233 abcd"),
            "\xE9"s + "c\xE9" + "c\xE9" + "d");
  EXPECT_EQ(TextOfBody("\\uc2\\u233\\bin3 }}}ab"), "\xE9"s + "b");
  EXPECT_EQ(TextOfBody("{\\uc9\\u233 a}b\\u233 {c}"), "\xE9"s + "b\xE9" + "c");
  EXPECT_EQ(TextOfBody("\\uc2\\u233 a\r\nbc"), "\xE9"s + "c");
}

TEST(ReadRtf, AUnicodeCharacterOutsideTheCodePageIsAQuestionMark) {
  EXPECT_EQ(TextOfBody("\\u322 l\\u-3913 x\\u-10179 ?\\u-8704 ?|"), "???|");
  EXPECT_EQ(TextOfBody("\\u128512 ?\\u99999999999 ?\\u-99999999999 ?\\u ?|"), "????|");
  EXPECT_EQ(TextOfBody("\\u13 ?\\u10 ?|"), "\r\n|");
}

TEST(ReadRtf, ColoursFollowGroupsAndPlain) {
  const RichText read = ReadRtf(
      "{\\rtf1{\\colortbl;\\red255\\green0\\blue0;\\blue255;}a\\cf1 b{c\\cf2 d{\\plain e}f}g\\cf0 "
      "h\\cf2\\plain i"
      "\\cf9 j\\cf-1 k\\cf2 l}");
  EXPECT_TRUE(read == Join({{"a", kBlack},
                            {"bc", kRed},
                            {"d", kBlue},
                            {"e", kBlack},
                            {"f", kBlue},
                            {"g", kRed},
                            {"hijk", kBlack},
                            {"l", kBlue}}));
}

TEST(ReadRtf, ABrokenColourTableGivesTheColoursItHas) {
  EXPECT_TRUE(ReadRtf("{\\rtf1{\\colortbl{\\red9;}\\';\\red999\\green-4;\\green255}\\cf0 a\\cf1 b\\cf2 c}") ==
              Join({{"a", kBlack}, {"b", kRed}, {"c", kGreen}}));
  EXPECT_EQ(ReadRtf("{\\rtf1{\\colortbl;\\red255").text, "");
  EXPECT_EQ(ReadRtf("{\\rtf1\\colortbl text}").text, "text");
}

TEST(ReadRtf, UnknownAndSkippedGroupsGiveNoText) {
  EXPECT_EQ(TextOfBody("a{\\*\\unknown b{c}\\}\\{{\\par d}}e{\\pict\\bin4 {{{{00}f{\\object{\\result g}}h"),
            "aefh");
  EXPECT_EQ(TextOfBody("a{\\*}b{\\*\\x\\bin99999 c}d"), "ab");
  EXPECT_EQ(TextOfBody("a{\\footnote b}{\\footerf c}{\\private d}{\\listtable{e}}f{\\unknown g}"), "afg");
}

TEST(ReadRtf, AStrayStarOrDestinationSwallowsNoText) { EXPECT_EQ(TextOfBody("a\\*\\pict b\\info c"), "abc"); }

TEST(ReadRtf, WhatIsNoRtfIsTakenAsText) {
  EXPECT_EQ(ReadRtf("").text, "");
  EXPECT_EQ(ReadRtf("plain text").text, "plain text");
  EXPECT_EQ(ReadRtf("}}a{b}c").text, "ab");
  EXPECT_EQ(ReadRtf("\\").text, "");
  EXPECT_EQ(ReadRtf("{\\rtf1 a{b{c").text, "abc");
  EXPECT_EQ(ReadRtf("{\\rtf1 a}b}c").text, "a");
}

TEST(ReadRtf, HugeNumbersAreTakenAsTheLargest) {
  const std::string nines(1000, '9');
  EXPECT_EQ(TextOfBody("a\\cf" + nines + " b\\li-" + nines + " c\\fs" + nines + "d"), "abcd");
  EXPECT_EQ(TextOfBody("a\\bin-" + nines + " b\\bin" + nines + " c"), "ab");
  EXPECT_EQ(TextOfBody("a\\uc" + nines + "\\u233 b{c}d"), "a\xE9"s + "cd");
  EXPECT_EQ(TextOfBody("a\\" + Repeat(1000, "word") + " b\\x--5 c"), "ab--5 c");
}

TEST(ReadRtf, AHundredThousandNestedBracesAreQuick) {
  constexpr std::size_t kDeep = 100000;
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(ReadRtf("{\\rtf1 a" + Repeat(kDeep, "{\\cf1") + "b" + Repeat(kDeep, "}") + "c}d").text, "abc");
  EXPECT_EQ(ReadRtf(Repeat(kDeep, "{") + "a").text, "a");
  EXPECT_EQ(ReadRtf(Repeat(kDeep, "}") + "a").text, "a");
  EXPECT_EQ(ReadRtf("{\\rtf1{\\info" + Repeat(kDeep, "{") + "a" + Repeat(kDeep, "}") + "}b}").text, "b");
  EXPECT_EQ(ReadRtf("{\\rtf1 a" + Repeat(kDeep, "{\\*\\x}{\\info}") + "b}").text, "ab");
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
}

TEST(ReadRtf, ADocumentCutOffAnywhereGivesTheTextBeforeTheCut) {
  std::mt19937 random(7);
  RichText content = RandomContent(random);
  while (content.text.size() < 100) content = RandomContent(random);
  const std::string rtf = WriteRtf(content);
  const std::size_t body = rtf.find("\\pard") + 5;
  for (std::size_t length = 0; length <= rtf.size(); ++length) {
    const RichText read = ReadRtf(std::string_view(rtf).substr(0, length));
    ExpectSound(read);
    if (length < body) continue;
    EXPECT_TRUE(content.text.starts_with(read.text)) << length;
  }
}

TEST(ReadRtf, AnyDamageLeavesASoundResult) {
  const std::string rtf =
      "{\\rtf1\\ansi{\\fonttbl{\\f0 A;}}{\\colortbl;\\red255\\green0\\blue0;\\blue9;}{\\*\\x y}{\\pict\\bin3 "
      "}}}}\\cf1 a"
      "\\'0d\\cf2\\'0a\\uc2\\u8364 ab{\\plain\\tab\\par}\\'e9\\~\\line b\\par }";
  std::mt19937 random(11);
  constexpr std::string_view kPieces = "\\{}'*\r\n\0 0-9;au"sv;
  for (int i = 0; i < 3000; ++i) {
    std::string damaged = rtf;
    for (unsigned hits = random() % 4; hits > 0; --hits) {
      const std::size_t at = random() % damaged.size();
      damaged.replace(at, random() % 3, 1, kPieces[random() % kPieces.size()]);
    }
    ExpectSound(ReadRtf(damaged));
  }
  for (std::size_t length = 0; length <= rtf.size(); ++length) {
    ExpectSound(ReadRtf(std::string_view(rtf).substr(0, length)));
  }
}

TEST(RtfInFile, IsADocumentFromTheFirstByteToTheLast) {
  for (const char* const rtf : {"{\\rtf1 a}", "{\\rtf1 a}\r\n \t\n", "{\\rtf1 {\\b a}\\}}"})
    EXPECT_TRUE(RtfInFile(rtf)) << rtf;
  EXPECT_TRUE(RtfInFile(std::string("{\\rtf1 a}\r\n\0", 12)));
  EXPECT_EQ(RtfInFile(kEmptyRtf), RichText());
  for (const char* const none :
       {"", "a", "{\\rtf1 a", "{\\rtf1 {a}", "{\\rtf1 a}b", "{\\rtf1 a\\}", "{\\rtf", "{\\rtf1 a}}"}) {
    EXPECT_FALSE(RtfInFile(none)) << none;
  }
  EXPECT_FALSE(RtfInFile(std::string(kEmptyRtf) + "BTN S1"));
}

TEST(ContentOfRtf, CountsWhatTheCodePageLacksAndJoinsAccents) {
  EXPECT_EQ(ContentOfRtf("{\\rtf1 e\\u769? \\u1092?\\u-10179?\\u-8704? ?}").text.text, "\xE9 ?? ?");
  EXPECT_EQ(ContentOfRtf("{\\rtf1 e\\u769? \\u1092?\\u-10179?\\u-8704? ?}").lost, 2U);
  EXPECT_EQ(ContentOfRtf("{\\rtf1 \\u769?k\\u769?}").text.text, "?k?");
  EXPECT_EQ(ContentOfRtf("{\\rtf1 \\'e9 \\u233?}").lost, 0U);
}

TEST(LooksLikeRtf, OnlyWhatBeginsAsRtfDoes) {
  EXPECT_TRUE(LooksLikeRtf("{\\rtf1 a}"));
  EXPECT_TRUE(LooksLikeRtf("{\\rtf"));
  for (const char* other : {"", "{", "{\\rt", " {\\rtf1}", "{\\RTF1}", "BTN S1 a"})
    EXPECT_FALSE(LooksLikeRtf(other));
}

}  // namespace
}  // namespace tarvik
