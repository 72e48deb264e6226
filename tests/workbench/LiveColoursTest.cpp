// The colours that are shown while somebody types, beside those that colouring the file gives.
#include <gtest/gtest.h>

#include <random>

#include "support/BareWorkbench.h"

namespace tarvik {
namespace {

constexpr const char* kFile =
    "BTN S1 /I Gear /O DLY(60)\r\nRem a BTN\r\nBTN\r\nTG1 RAW (#1C\r\n#2D) x\r\nRATE 20\r\nUSE RCS\r\n";

class LiveColoursTest : public testing::Test {
 protected:
  LiveColoursTest() {
    settings.GetOptions();
    settings.ColoursSortOut();
    joystick.text.SetContent(RichText(kFile));
    settings.ColourAsYouType = 1;
    changed_ = live.Changed.Connect([this](const Document& document) { changed += document.IsJoystick(); });
  }

  void Type(std::size_t position, const std::string& text) {
    joystick.text.Select({position, 0});
    joystick.text.SelText = text;
  }
  [[nodiscard]] std::size_t Find(std::string_view text) const {
    return joystick.text.Characters().find(text);
  }
  /// What Ctrl+B would give.
  [[nodiscard]] ColourRuns Coloured(Document& document) {
    document.Dirty = saved::kModified;
    bare.workbench.highlighter.Apply(document);
    const ColourRuns colours = document.text.Content().colours;
    bare.workbench.highlighter.Remove(document);
    return colours;
  }

  BareWorkbench bare;
  Document& joystick = bare.joystick;
  Settings& settings = bare.workbench.settings;
  LiveColours& live = bare.workbench.liveColours;
  int changed = 0;

 private:
  Connection changed_;
};

TEST_F(LiveColoursTest, AreThoseOfColouringTheFileAndLeaveItAsItIs) {
  ASSERT_NE(live.Of(joystick), nullptr);
  EXPECT_EQ(joystick.text.Content().colours, ColourRuns(joystick.text.Characters().size(), kBlack));
  const ColourRuns shown = *live.Of(joystick);
  EXPECT_EQ(shown, Coloured(joystick));
  bare.macro.text.SetContent(RichText("x = BTN ~ y\r\n"));
  live.pause.timer.Elapsed();
  const ColourRuns shownOfMacro = *live.Of(bare.macro);
  EXPECT_EQ(shownOfMacro, Coloured(bare.macro));
}

TEST_F(LiveColoursTest, AreThereWithTheKeyInItsLine) {
  Type(Find("RATE"), "Rem ");
  const std::size_t line = Find("Rem RATE");
  EXPECT_EQ(live.Of(joystick)->At(line), settings.RemStatements.Get());
  EXPECT_EQ(live.Of(joystick)->At(line + 8), settings.RemStatements.Get());
  EXPECT_EQ(live.Of(joystick)->At(Find("USE")), Coloured(joystick).At(Find("USE")));
  EXPECT_TRUE(live.pause.timer.Enabled);
  EXPECT_EQ(changed, 0);
}

TEST_F(LiveColoursTest, OfOtherLinesFollowAfterAPause) {
  joystick.text.Select({Find("RAW"), 5});
  joystick.text.SelText = "";
  EXPECT_NE(*live.Of(joystick), Coloured(joystick));
  live.pause.timer.Elapsed();
  EXPECT_FALSE(live.pause.timer.Enabled);
  EXPECT_EQ(changed, 1);
  const ColourRuns shown = *live.Of(joystick);
  EXPECT_EQ(shown, Coloured(joystick));
}

TEST_F(LiveColoursTest, KeepTheirPlacesUnderAnyEdits) {
  std::mt19937 random(20261122);
  const std::string words[] = {
      "BTN ", "Rem ", "RAW (", ")", " /U ", "\r\n", "MDEF ", "x", "\r\n\r\nBTN S2\r\n"};
  for (int i = 0; i < 400; ++i) {
    const std::size_t size = joystick.text.Characters().size();
    const std::size_t at = random() % (size + 1);
    joystick.text.Select({at, std::min<std::size_t>(random() % 12, size - at)});
    joystick.text.SelText = words[random() % std::size(words)];
    ASSERT_EQ(live.Of(joystick)->size(), joystick.text.Characters().size());
    if (i % 8 != 0) continue;
    live.pause.timer.Elapsed();
    const ColourRuns shown = *live.Of(joystick);
    ASSERT_EQ(shown, Coloured(joystick)) << joystick.text.Characters();
  }
}

TEST_F(LiveColoursTest, OfAVeryLongLineWaitForThePause) {
  joystick.text.SetContent(RichText("Rem " + std::string(100'000, 'x')));
  live.pause.timer.Elapsed();
  Type(50'000, "abc");
  EXPECT_EQ(live.Of(joystick)->At(50'001), kBlack);
  EXPECT_EQ(live.Of(joystick)->At(49'999), settings.RemStatements.Get());
  live.pause.timer.Elapsed();
  EXPECT_EQ(live.Of(joystick)->At(50'001), settings.RemStatements.Get());
}

TEST_F(LiveColoursTest, AreThoseOfTheSettingsAndNoneWhereTheyAreOff) {
  settings.RemStatements = Rgb(1, 2, 3);
  EXPECT_EQ(live.Of(joystick)->At(Find("Rem")), Rgb(1, 2, 3));
  settings.ColourAsYouType = 0;
  EXPECT_EQ(live.Of(joystick), nullptr);
  Type(0, "Rem ");
  EXPECT_FALSE(live.pause.timer.Enabled);
  settings.ColourAsYouType = 1;
  EXPECT_EQ(live.Of(joystick)->At(0), Rgb(1, 2, 3));
}

}  // namespace
}  // namespace tarvik
