// The bar of the search below the text, as it is used.
#include <gtest/gtest.h>

#include <QLineEdit>
#include <QTest>

#include "screen/EditorPane.h"
#include "screen/FindView.h"
#include "screen/ProgramOnScreen.h"

namespace tarvik::screen {
namespace {

class FindViewTest : public testing::Test, public ProgramOnScreen {
 protected:
  FindViewTest() {
    editor.JoystickText.SetContent(RichText("BTN S1 Fire\r\nBTN S2 Gun\r\nBTN S3 Fire\r\n"));
    editor.JoystickText.SelStart = 14;
    editor.mnuEditFindAsYouType_Click();
    QApplication::processEvents();
  }

  Editor& editor = application.editor();
  FindView& bar = Find<FindView>(editor.find.frame);
  QLineEdit& line = Find<QLineEdit>(editor.find.text);
  EditorPane& view = Find<EditorPane>(editor.JoystickText);
};

TEST_F(FindViewTest, StandsBelowTheTextWithTheKeysOnItsLine) {
  EXPECT_TRUE(bar.isVisible());
  EXPECT_TRUE(line.hasFocus());
  EXPECT_LE(view.geometry().bottom(), bar.geometry().top());
  EXPECT_LE(bar.geometry().bottom(), bar.parentWidget()->height());
  const int height = view.height();
  editor.find.Close();
  EXPECT_EQ(view.height(), height + bar.height());
}

TEST_F(FindViewTest, EnterGoesOnAndBackAndEscapeToWhereOneWas) {
  QTest::keyClicks(&line, "fire");
  EXPECT_EQ(editor.JoystickText.SelStart, 32U);
  QTest::keyClick(&line, Qt::Key_Return);
  EXPECT_EQ(editor.JoystickText.SelStart, 7U);
  QTest::keyClick(&line, Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_EQ(editor.JoystickText.SelStart, 32U);
  EXPECT_TRUE(line.hasFocus());
  QTest::keyClick(&line, Qt::Key_Escape);
  EXPECT_FALSE(bar.isVisible());
  EXPECT_EQ(editor.JoystickText.SelStart, 14U);
  EXPECT_TRUE(view.hasFocus());
}

TEST_F(FindViewTest, OpeningItOnceMoreKeepsWhereOneWas) {
  QTest::keyClicks(&line, "fire");
  editor.mnuEditFindAsYouType_Click();
  QTest::keyClick(&line, Qt::Key_Escape);
  EXPECT_EQ(editor.JoystickText.SelStart, 14U);
}

TEST_F(FindViewTest, TypingGoesOnWhereTheHitIsInTheOtherFile) {
  editor.MacroText.SetContent(RichText("Flaps = f"));
  QTest::keyClicks(&line, "flaps");
  EXPECT_EQ(editor.TabStrip1.SelectedIndex(), 2);
  EXPECT_EQ(line.text(), QStringLiteral("flaps"));
  EXPECT_EQ(editor.MacroText.SelText.Get(), "Flaps");
}

TEST_F(FindViewTest, AllHitsAreMarked) {
  application.workbench.settings.OtherPlaces = 0;
  const auto above = [this](std::size_t position) {
    const QRect caret = view.CaretAt(position + 1);
    return view.grab().toImage().pixelColor(
        view.viewport()->mapTo(&view, QPoint(caret.center().x() + 1, caret.top() + 1)));
  };
  const QColor bare = above(32);
  QTest::keyClicks(&line, "gun");
  QTest::keyClick(&line, Qt::Key_Backspace);
  QTest::keyClick(&line, Qt::Key_Backspace);
  QTest::keyClick(&line, Qt::Key_Backspace);
  QTest::keyClicks(&line, "fire");
  EXPECT_NE(above(7), bare);  // the other one is selected
  editor.find.Close();
  EXPECT_EQ(above(7), bare);
}

}  // namespace
}  // namespace tarvik::screen
