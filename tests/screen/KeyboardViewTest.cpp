// Pimlet's keyboard for somebody who works by keyboard, has the screen read out, or makes the window larger.
#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QWindow>
#include <set>

#include "app/Editor.h"
#include "screen/ProgramOnScreen.h"
#include "screen/pages/KeyboardView.h"
#include "tools/blocks/TextBlocks.h"

namespace tarvik::screen {
namespace {

class Keyboard : public testing::Test, public ProgramOnScreen {
 protected:
  Keyboard() {
    editor().mnuInsertRAW_Click();
    QApplication::processEvents();
  }

  KeyCap& Cap(int key) { return Find<KeyCap>(Form().Command1(key)); }
  RAWform& Form() { return application.Tool<RAWform>(); }
  std::string NameOf(int key) { return Cap(key).accessibleName().toStdString(); }

  static void Press(int key) {
    QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier);
    QKeyEvent up(QEvent::KeyRelease, key, Qt::NoModifier);
    QWidget* const focused = QApplication::focusWidget();
    QApplication::sendEvent(focused, &down);
    QApplication::sendEvent(focused, &up);
  }

  /// The keys that the Tab key stops at.
  std::vector<int> Stops() {
    std::vector<int> stops;
    for (const KeyRow& row : kKeys) {
      if (Cap(row.key).isEnabled() && (Cap(row.key).focusPolicy() & Qt::TabFocus)) stops.push_back(row.key);
    }
    return stops;
  }
};

TEST_F(Keyboard, IsOneStopThatTheArrowKeysMove) {
  EXPECT_EQ(Stops().size(), 1U);
  Cap(38).setFocus();  // "s"
  EXPECT_EQ(Stops(), std::vector{38});
  const std::pair<int, int> steps[] = {{Qt::Key_Right, 23}, {Qt::Key_Down, 43}, {Qt::Key_Left, 45},
                                       {Qt::Key_Up, 38},    {Qt::Key_Left, 20}, {Qt::Key_Left, 91},
                                       {Qt::Key_Left, 91}};
  for (const auto& [arrow, key] : steps) {
    Press(arrow);
    EXPECT_EQ(Stops(), std::vector{key});
    EXPECT_TRUE(Cap(key).hasFocus());
  }
}

TEST_F(Keyboard, CanBeReachedAllOverByTheArrowKeys) {
  std::vector<int> open = {83};
  std::set<int> seen = {83};
  while (!open.empty()) {
    const int from = open.back();
    open.pop_back();
    for (const int arrow : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down}) {
      Cap(from).setFocus();
      Press(arrow);
      if (seen.insert(Stops().front()).second) open.push_back(Stops().front());
    }
  }
  EXPECT_EQ(seen.size(), kKeys.size());
}

TEST_F(Keyboard, IsPressedBySpaceAndEnter) {
  Cap(20).setFocus();
  Press(Qt::Key_Space);
  EXPECT_EQ(Form().SyntaxText.Text.Get(), "a");
  Cap(21).setFocus();
  Press(Qt::Key_Return);
  EXPECT_EQ(Form().SyntaxText.Text.Get(), "b");
  EXPECT_TRUE(Form().Visible);
}

TEST_F(Keyboard, StaysAStopWhenItsKeyIsHeld) {
  Cap(58).setFocus();
  Form().ToggleButton1_Click();
  EXPECT_EQ(Stops().size(), 1U);
  EXPECT_NE(Stops().front(), 58);
}

TEST_F(Keyboard, SaysWhatItsKeysAre) {
  EXPECT_EQ(NameOf(1), "1");
  EXPECT_EQ(NameOf(15), "Keypad 5");
  EXPECT_EQ(NameOf(94), "Up arrow");
  EXPECT_EQ(NameOf(58), "Left Shift");
  EXPECT_EQ(NameOf(47), "Minus");
  Form().ToggleButton1_Click();
  EXPECT_EQ(NameOf(1), "Exclamation mark");
  EXPECT_EQ(NameOf(7), "Ampersand");
  EXPECT_EQ(NameOf(20), "A");
  EXPECT_EQ(NameOf(94), "Up arrow");
  Form().ToggleButton1_Click();
  EXPECT_EQ(NameOf(47), "Point");
  std::set<std::string> names;
  for (const KeyRow& row : kKeys) {
    const bool fresh = names.insert(NameOf(row.key)).second;
    EXPECT_TRUE(fresh || row.key == 47 || row.key == 56) << NameOf(row.key);  // both show a point now
  }
}

TEST_F(Keyboard, KeepsItsProportionsAtAnySize) {
  auto& keyboard = *static_cast<KeyboardView*>(Cap(0).parentWidget());
  for (const QSize size : {QSize(729, 193), QSize(1458, 386), QSize(1458, 900), QSize(3000, 386)}) {
    keyboard.setMinimumSize(1, 1);
    keyboard.resize(size);
    QRect all;
    for (const KeyRow& row : kKeys) all |= Cap(row.key).geometry();
    EXPECT_TRUE(keyboard.rect().contains(all));
    EXPECT_NEAR(all.width() / static_cast<double>(all.height()), 10935 / 2895.0, 0.05);
    EXPECT_NEAR(all.center().x(), keyboard.rect().center().x(), 2);
    EXPECT_TRUE(all.width() >= size.width() - 2 || all.height() >= size.height() - 2);
    EXPECT_NEAR(Cap(92).width() / static_cast<double>(Cap(20).width()), 4755 / 435.0, 0.4);
    EXPECT_NEAR(Cap(64).height() / static_cast<double>(Cap(20).height()), 915 / 435.0, 0.1);
  }
}

/// The window that Pimlet waits for is kept in front of all the program's, whatever is clicked, and he is
/// minimised alone.
TEST_F(Keyboard, HasTheWindowForARemarkAboveItAndIsAboveNone) {
  auto& remark = application.Tool<SingleTextForm>();
  remark.Modal = true;
  remark.Visible = true;
  const auto windowOf = [this](class Form& form) {
    return qobject_cast<QWidget*>(screen.Find(form))->windowHandle();
  };
  EXPECT_FALSE(windowOf(remark)->transientParent());
  EXPECT_FALSE(windowOf(Form())->transientParent());
}

}  // namespace
}  // namespace tarvik::screen
