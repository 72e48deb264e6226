// What of the key test and the joystick analyser no key and no picture shows.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/Program.h"
#include "support/Printers.h"
#include "tools/testing/JoyPlot.h"
#include "tools/testing/KeyTestForm.h"

namespace tarvik {
namespace {

class KeyTest : public testing::Test {
 protected:
  Program program;
  KeyTestForm& form = program.application.Tool<KeyTestForm>();
};

TEST_F(KeyTest, DropsCharactersBelow19) {
  int character = 18;
  form.KeyPress(character);
  EXPECT_EQ(character, 0);
  EXPECT_EQ(form.RTFKeysText.Text.Get(), "");
  character = 19;
  form.KeyPress(character);
  EXPECT_EQ(character, 19);
  EXPECT_EQ(form.RTFKeysText.Text.Get(), " \x13\r\n");
}

TEST_F(KeyTest, ANameStandsForTheCharacterOfItsOwnKeyAlone) {
  form.SkipKeyPress = 1;
  int character = 'a';
  form.KeyPress(character);
  EXPECT_EQ(form.RTFKeysText.Text.Get(), "");
  form.KeyPress(character);
  EXPECT_EQ(form.RTFKeysText.Text.Get(), " a\r\n");
  form.SkipKeyPress = 1;
  Key key{'B', 0};
  form.KeyDown(key);
  EXPECT_EQ(form.SkipKeyPress, 0);
}

TEST_F(KeyTest, APressIsSwallowed) {
  Key key{'A', shift::kCtrl};
  form.KeyDown(key);
  EXPECT_EQ(key.code, 0);
  EXPECT_EQ(key.shift, 0);
}

TEST_F(KeyTest, AKeyWithoutANameIsTheCharacterOfItsCode) {
  EXPECT_EQ(form.WhichKey(219, shift::kCtrl), " Ctrl + \xFB");
  EXPECT_EQ(form.WhichKey('Z', shift::kAlt), " Alt + z");
  EXPECT_EQ(form.WhichKey('Z', shift::kShift), "");
  EXPECT_EQ(form.SkipKeyPress, 0);
  EXPECT_EQ(form.WhichKey(16, shift::kShift), "");
  EXPECT_EQ(form.SkipKeyPress, 0);
  EXPECT_EQ(form.WhichKey(16, shift::kShift | shift::kCtrl), "");
  EXPECT_EQ(form.SkipKeyPress, 1);
}

TEST(JoyPlotTest, ThePictureBeginsWithBlackLinesAcrossTheWholeRange) {
  Program program;
  std::vector<Stroke> strokes;
  Connection drawn;
  const Connection loaded = program.application.Loaded.Connect([&](Form& form) {
    drawn = dynamic_cast<JoyPlot&>(form).PicJoy.Drawn.Connect(
        [&strokes](const Stroke& stroke) { strokes.push_back(stroke); });
  });
  program.outside.joystick.isThere = true;
  const auto& form = program.application.Tool<JoyPlot>();
  EXPECT_TRUE(form.JoyTimer.Enabled);
  ASSERT_EQ(strokes.size(), 2U);
  EXPECT_THAT(strokes, testing::Each(testing::Field(&Stroke::colour, kBlack)));
  EXPECT_EQ(strokes[0].x1, 32768);
  EXPECT_EQ(strokes[0].y2, 65535);
  EXPECT_EQ(strokes[1].x1, 0);
  EXPECT_EQ(strokes[1].y1, 32768);
}

TEST(JoyPlotTest, ATickDrawsOverThePictureInAnOrderThatKeepsTheLinesOnTop) {
  Program program;
  program.outside.joystick.isThere = true;
  program.outside.joystick.info = {1000, 2000, 0, 0, 0};
  auto& form = program.application.Tool<JoyPlot>();
  std::vector<Stroke> strokes;
  const Connection drawn =
      form.PicJoy.Drawn.Connect([&strokes](const Stroke& stroke) { strokes.push_back(stroke); });
  form.JoyTimer.Elapsed();
  std::vector<Colour> colours;
  colours.reserve(strokes.size());
  for (const Stroke& stroke : strokes) colours.push_back(stroke.colour);
  constexpr Colour kBlue{0xFF0000};
  constexpr Colour kRed{255};
  std::vector<Colour> wanted(6, kWhite);  // the old marker goes
  wanted.insert(wanted.end(),
                {kBlue, kBlue, kBlack, kBlack, kBlack, kBlack, kBlue, kBlue});  // its trace, and the new one
  wanted.insert(wanted.end(), {kRed, kRed});
  wanted.insert(wanted.end(), 12, Colour{9928789});
  EXPECT_EQ(colours, wanted);
  for (std::size_t i = 0; i < strokes.size(); ++i) {
    EXPECT_EQ(strokes[i].style, i < 16 ? drawstyle::kSolid : drawstyle::kDots) << i;
  }
  EXPECT_EQ(form.PicJoy.DrawStyle, drawstyle::kSolid);
}

}  // namespace
}  // namespace tarvik
