// The problems of the two files while somebody types.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

#include "language/Controllers.h"
#include "support/BareWorkbench.h"
#include "workbench/Problems.h"

namespace tarvik {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ProblemsTest : public testing::Test {
 protected:
  /// Has something typed at a place, in the place of `taken` letters.
  static void Type(Document& document, std::size_t position, const std::string& text, std::size_t taken = 0) {
    document.text.Select({position, taken});
    document.text.SelText = text;
  }
  [[nodiscard]] std::vector<std::string> Words(const Document& document) const {
    std::vector<std::string> words;
    for (const model::Problem& problem : problems.Of(document)) {
      words.emplace_back(document.text.Characters().substr(problem.range.start, problem.range.length));
    }
    return words;
  }

  BareWorkbench bare;
  Document& joystick = bare.joystick;
  Document& macro = bare.macro;
  Settings& settings = bare.workbench.settings;
  Problems& problems = bare.workbench.problems;
};

TEST_F(ProblemsTest, AreFoundWhenTheTimerHasElapsedAndNotBefore) {
  Type(macro, 0, "Gear = g");
  Type(joystick, 0, "BTN S1 Gaer");
  EXPECT_THAT(Words(joystick), IsEmpty());
  EXPECT_TRUE(problems.pause.timer.Enabled);
  problems.pause.timer.Elapsed();
  EXPECT_THAT(Words(joystick), ElementsAre("Gaer"));
  EXPECT_FALSE(problems.pause.timer.Enabled);
}

TEST_F(ProblemsTest, MoveWithTheTextUntilTheyAreLookedForAgain) {
  Type(macro, 0, "Gear = g");
  Type(joystick, 0, "BTN S1 Gaer\r\nBTN S2 Geer");
  problems.Renew();
  Type(joystick, 0, "Rem\r\n");
  EXPECT_THAT(Words(joystick), ElementsAre("Gaer", "Geer"));
  Type(joystick, joystick.text.Characters().find("aer"), "x");  // within
  EXPECT_THAT(Words(joystick), ElementsAre("Gxaer", "Geer"));
  Type(joystick, joystick.text.Characters().find("Gxaer") + 5, "y");  // at the end
  EXPECT_THAT(Words(joystick), ElementsAre("Gxaery", "Geer"));
  const std::size_t torn = joystick.text.Characters().find("ery");
  Type(joystick, torn, "", 10);  // across its end
  EXPECT_THAT(Words(joystick), ElementsAre("Geer"));
}

TEST_F(ProblemsTest, AreToldToBeGoneWhenTheirTextIs) {
  Type(joystick, 0, "BTN S99 a");
  problems.Renew();
  int told = 0;
  const Connection changed = problems.Changed.Connect([&told] { ++told; });
  Type(joystick, 0, "", joystick.text.Characters().size());
  problems.pause.timer.Elapsed();
  EXPECT_EQ(told, 1);
  problems.Renew();
  EXPECT_EQ(told, 1);
}

TEST_F(ProblemsTest, OfAPlaceAreTheGravest) {
  Type(joystick, 0, "BTN S1 /P a /P b /U c\r\n");
  Type(macro, 0, "Gear = g");
  problems.Renew();
  const std::size_t again = joystick.text.Characters().rfind("/P");
  ASSERT_TRUE(problems.At(joystick, again));
  EXPECT_FALSE(problems.At(joystick, 0));
  EXPECT_FALSE(problems.At(joystick, 10'000));
}

TEST_F(ProblemsTest, AreThoseOfTheHardwareThatIsChosen) {
  settings.JoyName = kFlcs;
  Type(joystick, 0, "BTN S1 /A a");
  problems.Renew();
  EXPECT_THAT(Words(joystick), IsEmpty());
  settings.JoyName = kF22Pro;
  EXPECT_TRUE(problems.pause.timer.Enabled);
  problems.pause.timer.Elapsed();
  EXPECT_THAT(Words(joystick), ElementsAre("/A"));
}

TEST_F(ProblemsTest, AreNotLookedForWhereNobodyWantsToSeeThem) {
  settings.MarkProblems = 0;
  Type(joystick, 0, "BTN S99 a");
  EXPECT_FALSE(problems.pause.timer.Enabled);
  settings.ProblemsPanel = 1;
  EXPECT_TRUE(problems.pause.timer.Enabled);
  problems.pause.timer.Elapsed();
  EXPECT_THAT(Words(joystick), ElementsAre("S99"));
  settings.ProblemsPanel = 0;
  EXPECT_THAT(Words(joystick), IsEmpty());
}

/// An hour's work: after each of 5,000 edits the models are those of the texts as a whole.
TEST_F(ProblemsTest, StandOnModelsThatFollowEveryEdit) {
  const std::vector<std::string> pieces = {
      "BTN S1 ", "Fire",    "\r\n",   " /I ",    "/O x", "RAW (#1C", ")",
      "DEF X1 ", "S1 AND ", "Fire =", " DLY(6)", "Rem ", "   ",      "\r\n\r\n"};
  std::mt19937 random(20261123);
  for (int i = 0; i < 5'000; ++i) {
    Document& document = random() % 2 == 0 ? joystick : macro;
    const std::size_t size = document.text.Characters().size();
    const std::size_t position = size == 0 ? 0 : random() % size;
    const std::size_t taken = random() % 3 == 0 ? std::min<std::size_t>(random() % 40, size - position) : 0;
    Type(document, position, pieces[random() % pieces.size()], taken);
    if (i % 500 == 0) document.Undo.Clear();
    const model::FilePair pair = bare.workbench.models.Pair();
    ASSERT_EQ(pair.joystick, model::JoystickFile(joystick.text.Characters())) << i;
    ASSERT_EQ(pair.macros, model::MacroFile(macro.text.Characters())) << i;
  }
}

}  // namespace
}  // namespace tarvik
