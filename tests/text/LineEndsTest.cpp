#include <gtest/gtest.h>

#include <random>

#include "text/LineEnds.h"
#include "text/RichText.h"

namespace tarvik {
namespace {

std::string Saved(const std::string& bytes) { return LineEnds(bytes).PutBackInto(WithPaneLineBreaks(bytes)); }

TEST(LineEnds, WhatNobodyTouchedComesBackByteForByte) {
  for (const char* const bytes :
       {"", "a", "a\r\n", "a\nb\n", "a\rb", "\r", "\n", "\n\r", "\r\r\n\n", "a\r\nb\nc\rd\n\ne\r"}) {
    EXPECT_EQ(Saved(bytes), bytes);
  }
  const std::string nul("\0\ra\nb\r\n\0\n\n\r\r\0", 14);
  EXPECT_EQ(Saved(nul), nul);
}

TEST(LineEnds, NewLinesEndAsMostOfTheFileDo) {
  EXPECT_EQ(LineEnds("a\nb\n").PutBackInto("a\r\nnew\r\nb\r\n"), "a\nnew\nb\n");
  EXPECT_EQ(LineEnds("a\rb\r").PutBackInto("a\r\nb\r\nc\r\n"), "a\rb\rc\r");
  EXPECT_EQ(LineEnds("a\nb\r\nc\r\n").PutBackInto("a\r\nb\r\nnew\r\nc\r\n"), "a\nb\r\nnew\r\nc\r\n");
  EXPECT_EQ(LineEnds("a").PutBackInto("a\r\nb"), "a\r\nb");
  EXPECT_EQ(LineEnds().PutBackInto("a\r\nb"), "a\r\nb");
}

TEST(LineEnds, LinesKeepTheirOwnWhereOthersGoOrChange) {
  const LineEnds ends("one\ntwo\r\nthree\rfour\n");
  EXPECT_EQ(ends.PutBackInto("one\r\nthree\r\nfour\r\n"), "one\nthree\rfour\n");
  EXPECT_EQ(ends.PutBackInto("one\r\ntwo\r\n3\r\nfour\r\n"), "one\ntwo\r\n3\rfour\n");
  EXPECT_EQ(ends.PutBackInto(""), "");
}

TEST(LineEnds, NoTwoEndsBecomeOne) {
  // The line between a lone CR and a lone LF has lost its text.
  EXPECT_EQ(LineEnds("a\rb\nc").PutBackInto("a\r\n\r\nc"), "a\r\r\nc");
}

TEST(LineEnds, WhatIsWrittenIsReadAsTheSameText) {
  std::mt19937 random(7);
  const auto text = [&](std::string_view letters) {
    std::string made;
    for (auto length = random() % 12; length > 0; --length) made += letters[random() % letters.size()];
    return made;
  };
  for (int i = 0; i < 1000; ++i) {
    const std::string bytes = text("ab\r\n");
    EXPECT_EQ(Saved(bytes), bytes);
    const std::string now = WithPaneLineBreaks(text("ab\n"));
    EXPECT_EQ(WithPaneLineBreaks(LineEnds(bytes).PutBackInto(now)), now);
    // A pane whose line break was cut in two holds a lone half.
    const std::string cut = text("ab\r\n");
    EXPECT_EQ(WithPaneLineBreaks(LineEnds(bytes).PutBackInto(cut)), WithPaneLineBreaks(cut));
  }
}

}  // namespace
}  // namespace tarvik
