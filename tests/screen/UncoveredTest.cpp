// A text below a tool that is kept on top: what the program goes to is where somebody can see it.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QFocusEvent>
#include <QPlainTextEdit>
#include <QScrollBar>

#include "app/Editor.h"
#include "screen/ProgramOnScreen.h"
#include "screen/windows/WindowOrder.h"

namespace tarvik::screen {
namespace {

constexpr int kLines = 300;

/// A tool that is kept on top.
class Tool : public QDialog, public CanBeOnTop {
 public:
  [[nodiscard]] bool IsOnTop() const override { return true; }
};

class Uncovered : public testing::TestWithParam<int>, public ProgramOnScreen {
 protected:
  Uncovered() {
    std::string text;
    for (int i = 0; i < kLines; ++i) text += "BTN S1 Fire\r\n";
    pane.Text = text;
    QApplication::processEvents();
    const QRect seen(view->viewport()->mapToGlobal(QPoint()), view->viewport()->size());
    tool.setGeometry(seen.adjusted(-20, -20, 0, -seen.height() / 2));
    tool.show();
    QApplication::processEvents();
  }

  /// The caret's line goes to the start of one of 13 characters each.
  void GoToLine(int line) {
    pane.SelStart = static_cast<std::size_t>(line) * 13;
    QApplication::processEvents();
  }

  [[nodiscard]] QRect Caret() const {
    const QRect caret = view->cursorRect();
    return {view->viewport()->mapToGlobal(caret.topLeft()), caret.size()};
  }
  [[nodiscard]] QRect Seen() const { return {view->mapToGlobal(QPoint()), view->size()}; }

  Pane& pane = editor().JoystickText;
  QPlainTextEdit* view = &Find<QPlainTextEdit>(pane);
  Tool tool;
};

TEST_P(Uncovered, TheLineOfTheCaretIsInSight) {
  GoToLine(kLines / 2);
  GoToLine(GetParam());
  EXPECT_FALSE(tool.frameGeometry().intersects(Caret())) << Caret().top();
  EXPECT_TRUE(Seen().contains(Caret())) << Caret().top();
}

TEST_P(Uncovered, AWrittenLineIsInSight) {
  pane.Select({static_cast<std::size_t>(GetParam()) * 13, 0});
  QApplication::processEvents();
  view->verticalScrollBar()->setValue(GetParam());
  pane.SelText = std::string("BTN S2 ");
  QApplication::processEvents();
  EXPECT_FALSE(tool.frameGeometry().intersects(Caret())) << Caret().top();
  EXPECT_TRUE(Seen().contains(Caret())) << Caret().top();
}

TEST_P(Uncovered, TheTextIsInItsPlaceWhenTheToolHasGone) {
  GoToLine(GetParam());
  tool.hide();
  GoToLine(kLines / 2);
  EXPECT_EQ(view->viewport()->y(), 0);
}

TEST_P(Uncovered, TheTextGoesBackWhenItGetsTheFocus) {
  GoToLine(GetParam());
  tool.hide();
  QFocusEvent focus(QEvent::FocusIn);
  QApplication::sendEvent(view, &focus);
  QApplication::processEvents();
  EXPECT_EQ(view->viewport()->y(), 0);
}

INSTANTIATE_TEST_SUITE_P(Lines, Uncovered, testing::Values(0, 1, 5, 20, 100, kLines - 1));

}  // namespace
}  // namespace tarvik::screen
