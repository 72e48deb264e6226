#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "language/Keystrings.h"

namespace tarvik {

/// For failures.
void PrintTo(const Keystrings& keys, std::ostream* out) {
  *out << keys.KeyText << "|" << keys.MakeCode << "|" << keys.BreakCode << "|" << keys.CombinedCode;
}

namespace {

constexpr const char* kGolden = TARVIK_DATA "/../tests/language/keystrings.txt";
constexpr HeldModifiers kNothing = {};
constexpr HeldModifiers kShift = {.shift = true};
constexpr HeldModifiers kAltShift = {.shift = true, .alt = true};
constexpr KeyNaming kFaces = {1, false};
constexpr KeyNaming kSpeltOut = {1, true};

std::string FaceOf(const KeyRow& row, const HeldModifiers& held) {
  return held.shift && *row.shiftCaption ? row.shiftCaption : row.caption;
}

Keystrings Of(int key, const HeldModifiers& held = kNothing, const KeyNaming& naming = kFaces) {
  const KeyRow& row = *FindKey(key);
  return GetKeystrings(row, FaceOf(row, held), held, naming);
}

Keystrings Made(const std::string& text, const std::string& make, const std::string& breaks) {
  return {text, make, breaks, make + " " + breaks};
}

// Every key with everything that bears on it.

/// Key, what is held, make, break and the names: on an F22 Pro spelt out and by the face, then on other
/// sticks. Where the second half of the names is the first again, it is left out.
std::string Line(const KeyRow& row, const HeldModifiers& held) {
  std::vector<std::string> names;
  Keystrings keys;
  for (const int joystick : {0, 1}) {
    for (const bool useSHF : {true, false}) {
      const Keystrings next = GetKeystrings(row, FaceOf(row, held), held, {joystick, useSHF});
      EXPECT_EQ(next.CombinedCode, next.MakeCode + " " + next.BreakCode);
      if (!names.empty()) {
        EXPECT_EQ(next.MakeCode, keys.MakeCode);
        EXPECT_EQ(next.BreakCode, keys.BreakCode);
      }
      keys = next;
      names.push_back(keys.KeyText);
    }
  }
  for (const std::size_t half : {2U, 1U}) {
    const auto middle = names.begin() + static_cast<std::ptrdiff_t>(half);
    if (names.size() == 2 * half && std::equal(names.begin(), middle, middle)) names.resize(half);
  }
  std::ostringstream line;
  line << row.key << '\t' << (held.shift ? 'S' : '-') << (held.ctrl ? 'C' : '-') << (held.alt ? 'A' : '-')
       << (held.numLock ? 'N' : '-') << '\t' << keys.MakeCode << '\t' << keys.BreakCode;
  for (const std::string& name : names) line << '\t' << name;
  return line.str();
}

/// A difference leaves the new lines beside the old ones, to be looked at and taken over.
TEST(Keystrings, AreThoseOfEveryKeyWithEverythingHeld) {
  std::ostringstream found;
  for (const KeyRow& row : kKeys) {
    for (int bits = 0; bits < 16; ++bits) {
      found << Line(row, {(bits & 1) != 0, (bits & 2) != 0, (bits & 4) != 0, (bits & 8) != 0}) << '\n';
    }
  }
  std::ifstream in(kGolden, std::ios::binary);
  const std::string wanted{std::istreambuf_iterator<char>(in), {}};
  if (found.str() == wanted) return;
  std::ofstream(std::string(kGolden) + ".new", std::ios::binary) << found.str();
  FAIL() << "see " << kGolden << ".new";
}

TEST(Keystrings, ThereIsEachKeyOnceButNone54) {
  int last = -1;
  for (const KeyRow& row : kKeys) {
    EXPECT_GT(row.key, last);
    last = row.key;
  }
  EXPECT_EQ(kKeys.size(), 101U);
  EXPECT_EQ(last, 101);
  EXPECT_FALSE(FindKey(54));
  EXPECT_FALSE(FindKey(-1));
}

TEST(Keystrings, NoKeyCoversMoreThanAnothersBorder) {
  constexpr int kBorder = 15;
  for (const KeyRow& one : kKeys) {
    for (const KeyRow& other : kKeys) {
      const Place& a = one.place;
      const Place& b = other.place;
      const bool beside = a.left + a.width - kBorder <= b.left || b.left + b.width - kBorder <= a.left;
      const bool apart = beside || a.top + a.height <= b.top || b.top + b.height <= a.top;
      EXPECT_TRUE(apart || one.key == other.key) << one.key << " and " << other.key;
    }
  }
}

// The odd ones.

TEST(Keystrings, MHasItsMakeAndBreakInEachOthersPlace) {
  EXPECT_EQ(Of(32), (Keystrings{"m", "#F0 #3A", "#3A", "#F0 #3A #3A"}));
  EXPECT_EQ(Of(32, kShift, kSpeltOut), Made("SHF m", "#12 #F0 #3A", "#3A #F0 #12"));
}

TEST(Keystrings, WSendsWhatVSends) {
  EXPECT_EQ(Of(42), Made("w", "#2A", "#F0 #2A"));
  EXPECT_EQ(Of(41), Made("v", "#2A", "#F0 #2A"));
}

TEST(Keystrings, TheKeypadsStarBreaksAsItsPlusDoes) {
  EXPECT_EQ(Of(69), Made("KP*", "#7C", "#F0 #79"));
  EXPECT_EQ(Of(67), Made("KP+", "#79", "#F0 #79"));
}

TEST(Keystrings, F2BreaksWithOneByteAndABlank) {
  EXPECT_EQ(Of(72), (Keystrings{"F2", "#06", "#F0 ", "#06 #F0 "}));
  EXPECT_EQ(Of(72, {.ctrl = true}), Made("CTL F2", "#14 #06", "#F0  #F0 #14"));
}

TEST(Keystrings, PauseAndPrintScreenAreNotSupportedWhateverIsHeld) {
  for (int bits = 0; bits < 16; ++bits) {
    const HeldModifiers held = {(bits & 1) != 0, (bits & 2) != 0, (bits & 4) != 0, (bits & 8) != 0};
    EXPECT_EQ(Of(99, held, kSpeltOut), Made("not supported", "#E1 #14 #77 #E1 #F0 #14 #77", ""));
    EXPECT_EQ(Of(100, held, {0, true}), Made("not supported", "#E0 #12 #E0 #7C", "#E0 #F0 #7C #E0 #F0 #12"));
  }
  EXPECT_EQ(Of(99).CombinedCode.back(), ' ');
}

TEST(Keystrings, SevenIsAnAmpersandUnlessShiftIsSpeltOut) {
  EXPECT_EQ(Of(7), Made("&", "#3D", "#F0 #3D"));
  EXPECT_EQ(Of(7, kShift), Made("&", "#12 #3D", "#F0 #3D #F0 #12"));
  EXPECT_EQ(Of(7, kNothing, kSpeltOut).KeyText, "7");
  EXPECT_EQ(Of(7, kShift, kSpeltOut).KeyText, "SHF 7");
}

TEST(Keystrings, SomeKeysAreNeverNamedByTheirFace) {
  for (const auto& [key, name] : {std::pair(0, "0"), {9, "9"}, {50, "["}, {51, "]"}}) {
    EXPECT_EQ(Of(key, kShift, kFaces).KeyText, std::string("SHF ") + name);
    EXPECT_EQ(Of(key, kShift, kSpeltOut).KeyText, std::string("SHF ") + name);
  }
}

TEST(Keystrings, TheFaceOnShowCountsNotThatOfTheTable) {
  EXPECT_EQ(GetKeystrings(*FindKey(47), ".", kNothing, kFaces).KeyText, ".");
  EXPECT_EQ(GetKeystrings(*FindKey(47), ".", kNothing, kSpeltOut).KeyText, "-");
}

TEST(Keystrings, ShiftIsToldByTheFaceOrSpeltOutAndAlwaysSent) {
  EXPECT_EQ(Of(20), (Keystrings{"a", "#1C", "#F0 #1C", "#1C #F0 #1C"}));
  EXPECT_EQ(Of(1, kShift, kFaces), Made("!", "#12 #16", "#F0 #16 #F0 #12"));
  EXPECT_EQ(Of(1, kShift, kSpeltOut),
            (Keystrings{"SHF 1", "#12 #16", "#F0 #16 #F0 #12", "#12 #16 #F0 #16 #F0 #12"}));
}

TEST(Keystrings, AltWithShiftAloneLacksItsBlankAndItsBytes) {
  EXPECT_EQ(Of(20, kAltShift, kSpeltOut), Made("ALT SHFa", "#1C", "#F0 #1C"));
  EXPECT_EQ(Of(20, kAltShift, kFaces), Made("ALT A", "#1C", "#F0 #1C"));
  EXPECT_EQ(Of(84, {.shift = true, .alt = true, .numLock = true}),
            Made("ALT SHFINS", "#E0 #12 #E0 #70", "#E0 #F0 #12 #E0 #F0 #70"));
}

TEST(Keystrings, ModifiersGoDownCtrlAltShiftAndComeUpInReverse) {
  const auto names = [](const HeldModifiers& held) { return GetModifier(held, ShiftInKeyText::No); };
  EXPECT_EQ(names({}), "");
  EXPECT_EQ(names({.shift = true}), "SHF ");
  EXPECT_EQ(names({.ctrl = true}), "CTL ");
  EXPECT_EQ(names({.shift = true, .ctrl = true}), "CTL SHF ");
  EXPECT_EQ(names({.alt = true}), "ALT ");
  EXPECT_EQ(names({.shift = true, .alt = true}), "ALT SHF");
  EXPECT_EQ(names({.ctrl = true, .alt = true}), "CTL ALT ");
  EXPECT_EQ(names({.shift = true, .ctrl = true, .alt = true}), "CTL ALT SHF ");
  EXPECT_EQ(GetModifier({.shift = true, .ctrl = true, .alt = true}, ShiftInKeyText::Yes), "CTL ALT ");
  EXPECT_EQ(Of(64, {.shift = true, .ctrl = true, .alt = true}),
            Made("CTL ALT SHF ENT", "#14 #11 #12 #5A", "#F0 #5A #F0 #12 #F0 #11 #F0 #14"));
}

TEST(Keystrings, KeysBesideTheKeypadUnshiftAndHeedNumLock) {
  EXPECT_EQ(Of(84, kShift), Made("SHF INS", "#E0 #F0 #12 #E0 #70", "#E0 #F0 #70 #E0 #12"));
  EXPECT_EQ(Of(84, {.numLock = true}), Made("INS", "#E0 #12 #E0 #70", "#E0 #F0 #12 #E0 #F0 #70"));
  EXPECT_EQ(Of(97, {.shift = true, .numLock = true}),
            Made("SHF RAROW", "#E0 #F0 #12 #E0 #12 #E0 #74", "#E0 #F0 #12 #E0 #F0 #74 #E0 #12"));
  EXPECT_EQ(Of(5, {.numLock = true}), Of(5));
}

TEST(Keystrings, TheKeypadsSlashUnshiftsButDoesNotHeedNumLock) {
  EXPECT_EQ(Of(70, {.shift = true, .numLock = true}),
            Made("SHF KP/", "#E0 #F0 #12 #E0 #4A", "#E0 #F0 #4A #E0 #12"));
}

TEST(Keystrings, OnAnF22ProTheKeysBesideTheKeypadAreAuxiliary) {
  constexpr const char* kNames[] = {"INS", "HOME", "PGUP", "DEL", "END", "PGDN"};
  for (int i = 0; i < 6; ++i) {
    EXPECT_EQ(Of(84 + i, kNothing, {0, false}).KeyText, std::string("AUX") + kNames[i]);
    EXPECT_EQ(Of(84 + i, kNothing, {1, false}).KeyText, kNames[i]);
    EXPECT_EQ(Of(84 + i, kNothing, {4, false}).KeyText, kNames[i]);
  }
  EXPECT_EQ(Of(94, kShift, {0, false}).KeyText, "SHF AUXUAROW");
  EXPECT_EQ(Of(70, kNothing, {0, false}).KeyText, "KP/");
}

}  // namespace
}  // namespace tarvik
