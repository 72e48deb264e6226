// What the windows paint and scroll while a stick is followed.
#include <gtest/gtest.h>

#include <QScrollBar>
#include <algorithm>

#include "app/Editor.h"
#include "screen/EditorPane.h"
#include "screen/ProgramOnScreen.h"
#include "screen/widgets/DeviceView.h"
#include "tools/composer/InsertOptions.h"
#include "tools/printing/KneeboardForm.h"

namespace tarvik::screen {
namespace {

class FollowStickViewTest : public testing::Test, public ProgramOnScreen {
 protected:
  FollowStickViewTest() {
    std::string text = "BTN S1 a\r\n";
    for (int i = 0; i < 200; ++i) text.append("Rem\r\n");
    pane.SelText = text.append("BTN S2 b\r\n");
    pane.Select({0, 0});
    stick_ = outside.sticks.Plug({0, "0300", "Stick", "port", 0, 2, 0});
    play::StickMap map;
    map.Set({"0300", "Stick", "port"}, play::InputIn("button 1").value(), "S1");
    map.Set({"0300", "Stick", "port"}, play::InputIn("button 2").value(), "S2");
    application.workbench.sticks.Use(map);
    application.workbench.settings.FollowStick = 1;
    view.setFocus();
    QApplication::processEvents();
  }

  void Button(int number, bool down) {
    outside.sticks.Move(stick_, StickChangeKind::Button, number - 1, down ? 1 : 0);
    QApplication::processEvents();
  }
  [[nodiscard]] int Top() const { return view.verticalScrollBar()->value(); }
  /// In the line of a position, just above its letters.
  [[nodiscard]] QColor ColourIn(std::string_view words) const {
    const QRect caret = view.CaretAt(pane.Characters().find(words) + 1);
    return view.viewport()->grab().toImage().pixelColor(caret.center().x(), caret.top() + 1);
  }

  Pane& pane = application.workbench.documents.joystickText;
  EditorPane& view = Find<EditorPane>(pane);

 private:
  int stick_ = 0;
};

TEST_F(FollowStickViewTest, ThePaneScrollsToTheStatementAndTheCaretStays) {
  const QWidget* const focus = QApplication::focusWidget();
  ASSERT_EQ(Top(), 0);
  Button(2, true);
  EXPECT_GT(Top(), 100);
  EXPECT_EQ(pane.Selection(), (Range{0, 0}));
  EXPECT_EQ(QApplication::focusWidget(), focus);
  Button(1, true);
  EXPECT_EQ(Top(), 0);
}

TEST_F(FollowStickViewTest, ThePaneStaysWhereItIsWhileTheUserTypes) {
  pane.SelText = std::string("R");
  QApplication::processEvents();
  Button(2, true);
  EXPECT_EQ(Top(), 0);
}

TEST_F(FollowStickViewTest, TheStatementGlowsAsLongAsItIsFollowed) {
  const QColor before = ColourIn("BTN S1");
  Button(1, true);
  EXPECT_NE(ColourIn("BTN S1"), before);
  application.workbench.settings.FollowStick = 0;
  QApplication::processEvents();
  EXPECT_EQ(ColourIn("BTN S1"), before);
}

TEST_F(FollowStickViewTest, WithTheMacroFileInFrontTheMacroGlows) {
  Pane& macros = application.workbench.documents.macroText;
  std::string text;
  for (int i = 0; i < 200; ++i) text.append("Rem\r\n");
  pane.SetContent(RichText("BTN S1 Fire\r\nBTN S2 a\r\n"));
  macros.SelText = text.append("Fire = SPC\r\n");
  macros.Select({0, 0});
  application.editor().TabStrip1.Select(2);
  QApplication::processEvents();
  application.workbench.follow.typing.timer.Elapsed();
  auto& lower = Find<EditorPane>(macros);
  Button(1, true);
  EXPECT_GT(lower.verticalScrollBar()->value(), 100);
  EXPECT_EQ(macros.Selection(), (Range{0, 0}));
  const auto colour = [&] {
    const QRect caret = lower.CaretAt(macros.Characters().find("Fire") + 1);
    return lower.viewport()->grab().toImage().pixelColor(caret.center().x(), caret.top() + 1);
  };
  const QColor lit = colour();
  Button(2, true);
  EXPECT_NE(colour(), lit);
}

TEST_F(FollowStickViewTest, WhatIsPressedLightsInTheComposer) {
  auto& composer = Show<InsertOptions>();
  pane.Select({pane.Characters().find("Rem"), 0});
  const auto frame = [&](const char* name) {
    auto& label = Find<DeviceLabel>(composer.hardware(name));
    QWidget& drawing = *label.parentWidget();
    QApplication::processEvents();
    return drawing.grab().toImage().pixelColor(label.geometry().topLeft() - QPoint(3, -label.height() / 2));
  };
  const QColor dark = frame("BTN(1)");
  Button(2, true);
  EXPECT_NE(frame("BTN(1)"), dark);
  EXPECT_EQ(frame("BTN(0)"), dark);
  Button(2, false);
  EXPECT_EQ(frame("BTN(1)"), dark);
  // The caret on a statement lights its control.
  pane.Select({0, 0});
  EXPECT_NE(frame("BTN(0)"), dark);
}

TEST_F(FollowStickViewTest, TheKneeboardKnowsWhatGlows) {
  auto& form = Show<KneeboardForm>();
  const auto glowing = [&form] {
    return std::ranges::count_if(form.Sheet().targets,
                                 [&form](const auto& each) { return form.Glows(each); });
  };
  EXPECT_EQ(glowing(), 0);
  Button(2, true);
  EXPECT_GT(glowing(), 0);
  EXPECT_LT(glowing(), static_cast<long>(form.Sheet().targets.size()));
}

}  // namespace
}  // namespace tarvik::screen
