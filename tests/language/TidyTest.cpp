#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "language/Tidy.h"
#include "support/IndexedPair.h"
#include "support/Pairs.h"

namespace tarvik::model {
namespace {

std::string Tidied(const std::string& text, FileKind file, std::optional<Range> lines = {}) {
  const bool inJoystick = file == kJoystick;
  const IndexedPair pair(inJoystick ? text : "", inJoystick ? "" : text);
  std::string tidied = text;
  const auto edits = Tidy(pair.pair, file, lines.value_or(Range{0, text.size()}));
  for (std::size_t i = edits.size(); i-- > 0;) {
    EXPECT_EQ(text.substr(edits[i].range.start, edits[i].range.length).find_first_not_of(" "),
              std::string::npos);
    tidied.replace(edits[i].range.start, edits[i].range.length, edits[i].text);
  }
  return tidied;
}

/// What is left of a text without the blanks between its tokens.
std::string Shown(const std::string& text, FirstEquals equals) {
  std::string shown;
  for (const Token& token : TokensOf(text, equals)) {
    if (token.kind == TokenKind::Blank) continue;
    shown.append(std::to_string(static_cast<int>(token.kind))).append(":");
    shown.append(In(text, token.range)).append("|");
  }
  return shown;
}

std::string Statements(const std::string& text, FileKind kind) {
  std::string shown;
  const auto add = [&](const auto& file) {
    for (std::size_t i = 0; i < file.size(); ++i) {
      shown.append(std::to_string(file[i].body.index())).append(" ");
      const auto equals = kind == kJoystick ? FirstEquals::IsKey : FirstEquals::EndsName;
      shown.append(Shown(std::string(file.LinesOf(i, text)), equals)).append("\n");
    }
  };
  if (kind == kJoystick) {
    add(JoystickFile(text));
  } else {
    add(MacroFile(text));
  }
  return shown;
}

TEST(Tidy, PutsModifiersBelowThoseOfTheirMatter) {
  EXPECT_EQ(Tidied("BTN S1    /U /I a\r\n /O b\r\n  /M c\r\n   /D /T d\r\n /T e\r\n", kJoystick),
            "BTN S1    /U /I a\r\n             /O b\r\n          /M c\r\n          /D /T d\r\n             "
            "/T e\r\n");
}

TEST(Tidy, PutsAModifierBelowTheLastOfItsMatter) {
  EXPECT_EQ(Tidied("BTN S1 /U /I a /M long /I b\n /O c\n", kJoystick),
            "BTN S1 /U /I a /M long /I b\n                       /O c\n");
}

TEST(Tidy, LinesUpRemarksOnLinesOnEnd) {
  EXPECT_EQ(Tidied("BTN S1 a  Rem one\nBTN S2 abcdefgh ~ two\t x\n\nBTN S3 a   Rem three\n", kJoystick),
            "BTN S1 a        Rem one\nBTN S2 abcdefgh ~ two\t x\n\nBTN S3 a   Rem three\n");
  EXPECT_EQ(Tidied("BTN S1 a    Rem one\nBTN S2 b~two\n", kJoystick),
            "BTN S1 a    Rem one\nBTN S2 b    ~two\n");
}

TEST(Tidy, LinesUpTheEqualsOfMacros) {
  EXPECT_EQ(Tidied("A1      = a\nLong= b\n\nX_Y   = /P a\n  /R b\n", kMacros),
            "A1      = a\nLong    = b\n\nX_Y   = /P a\n        /R b\n");
  EXPECT_EQ(Tidied("A1 = a\nLonger=/P b\n", kMacros), "A1     = a\nLonger =/P b\n");
}

TEST(Tidy, MovesTheLinesBelowWithTheEquals) {
  EXPECT_EQ(Tidied("Longest  = a\nB1 = /U a\n     /D b  Rem x\n", kMacros),
            "Longest  = a\nB1       = /U a\n           /D b  Rem x\n");
}

TEST(Tidy, LeavesLinesWithTabsAndTheFirstModifier) {
  const std::string text = "BTN S1\t/U a\r\n /D b\r\nBTN S2 /U a\r\n\t/D b\r\n";
  EXPECT_EQ(Tidied(text, kJoystick), text);
}

TEST(Tidy, TouchesTheStatementsOfTheSelectionAlone) {
  EXPECT_EQ(Tidied("BTN S1 /U a\n /D b\nBTN S2 /U a\n /D b\n", kJoystick, Range{20, 1}),
            "BTN S1 /U a\n /D b\nBTN S2 /U a\n       /D b\n");
  EXPECT_EQ(Tidied("", kJoystick), "");
}

TEST(Tidy, ChangesNothingButBlanksInThePairsAndIsDoneAtOnce) {
  for (const Pair& pair : Pairs()) {
    for (const FileKind kind : {kJoystick, kMacros}) {
      const std::string& text = kind == kJoystick ? pair.joystick : pair.macros;
      const std::string once = Tidied(text, kind);
      EXPECT_EQ(Statements(once, kind), Statements(text, kind)) << pair.path;
      EXPECT_EQ(Tidied(once, kind), once) << pair.path;
    }
  }
}

TEST(Tidy, LeavesTheSamplesAsTheyAre) {
  for (const Pair& pair : PairsIn(TARVIK_DATA "/samples")) {
    EXPECT_EQ(Tidied(pair.joystick, kJoystick), pair.joystick) << pair.path;
    EXPECT_EQ(Tidied(pair.macros, kMacros), pair.macros) << pair.path;
  }
}

}  // namespace
}  // namespace tarvik::model
