// The trees of the pairs in tests/pairs/, each beside its files as NAME.tree. With TARVIK_PROMOTE=1 in the
// environment the trees are written anew, for someone to look at.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <set>

#include "language/Controllers.h"
#include "support/ModelPrinter.h"
#include "support/Pairs.h"

namespace tarvik::model {
namespace {

namespace fs = std::filesystem;

std::string TreeOf(const Pair& pair) {
  return "joystick file\n" + Printed(JoystickFile(pair.joystick), pair.joystick) + "macro file\n" +
         Printed(MacroFile(pair.macros), pair.macros);
}

template <class File>
void ExpectSameAfterEdits(const std::string& original, const std::string& name, unsigned seed) {
  constexpr const char* kPieces[] = {"\r\n", "\n", " ", "\t", "x", "/U ", "BTN S1 ", "(",     ")",
                                     "=",    "~",  "R", "a",  "",  "\r",  "Rem ",    "RAW (", "DEF X1 "};
  constexpr std::size_t kLongestRemoval = 12;
  std::mt19937 random(seed);
  std::string text = original;
  File file(text);
  for (int i = 0; i < 400; ++i) {
    const std::size_t start = random() % (text.size() + 1);
    const std::size_t removed = std::min<std::size_t>(random() % kLongestRemoval, text.size() - start);
    const std::string inserted = kPieces[random() % std::size(kPieces)];
    text.replace(start, removed, inserted);
    file.Edit(text, {start, removed}, inserted.size());
    ASSERT_TRUE(file == File(text)) << name << ", edit " << i << " at " << start;
  }
}

TEST(Pairs, ThereAreFortyOfAllControllers) {
  EXPECT_GE(Pairs().size(), 40u);
  std::set<fs::path> endings;
  for (const Pair& pair : Pairs()) endings.insert(pair.path.extension());
  EXPECT_EQ(endings.size(), std::size(kEndings));
}

TEST(Pairs, TreesAreTheGoldenOnes) {
  for (const Pair& pair : Pairs()) {
    fs::path golden = pair.path;
    golden.replace_extension(".tree");
    const std::string tree = TreeOf(pair);
    if (std::getenv("TARVIK_PROMOTE") != nullptr) std::ofstream(golden, std::ios::binary) << tree;
    EXPECT_EQ(tree, Read(golden)) << golden;
  }
}

TEST(Pairs, AreWrittenBackByteForByte) {
  for (const Pair& pair : Pairs()) {
    EXPECT_EQ(WrittenBack(JoystickFile(pair.joystick), pair.joystick), pair.joystick) << pair.path;
    EXPECT_EQ(WrittenBack(MacroFile(pair.macros), pair.macros), pair.macros) << pair.path;
  }
}

TEST(Pairs, AfterEveryEditAFileIsAsReadAnew) {
  unsigned seed = 1;
  for (const Pair& pair : Pairs()) {
    ExpectSameAfterEdits<JoystickFile>(pair.joystick, pair.path, seed++);
    ExpectSameAfterEdits<MacroFile>(pair.macros, pair.path, seed++);
  }
}

}  // namespace
}  // namespace tarvik::model
