// How the editor shows what is wrong in the text.
#include <gmock/gmock.h>

#include <QHelpEvent>
#include <QTest>
#include <QToolTip>

#include "screen/EditorPane.h"
#include "screen/ProgramOnScreen.h"

namespace tarvik::screen {
namespace {

class ProblemMarksTest : public testing::Test, public ProgramOnScreen {
 protected:
  ProblemMarksTest() {
    pane.SetContent(RichText("BTN S1 a\r\nBTN S99 b\r\nBTN S2 c\r\n"));
    application.workbench.problems.Renew();
    QApplication::processEvents();
  }

  [[nodiscard]] std::size_t Find(std::string_view text) const { return pane.Characters().find(text); }
  /// Whether something as red as an error is painted there.
  [[nodiscard]] bool HasRed(const QRect& place) const {
    const QImage image = view.grab(place).toImage();
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        const QColor colour = image.pixelColor(x, y);
        if (colour.red() - colour.green() > 60) return true;
      }
    }
    return false;
  }
  [[nodiscard]] QRect LetterAt(std::size_t position) const {
    const QRect caret = view.CaretAt(position);
    return {view.viewport()->mapTo(&view, caret.topLeft()), QSize(6, caret.height())};
  }
  /// In the margin beside the line of the position.
  [[nodiscard]] QRect BesideLineOf(std::size_t position) const {
    const QRect letter = LetterAt(position);
    return {0, letter.top(), 8, letter.height()};
  }
  void RestOn(const QPoint& place) const {
    QHelpEvent rests(QEvent::ToolTip, place, view.viewport()->mapToGlobal(place));
    QApplication::sendEvent(view.viewport(), &rests);
  }

  Settings& settings = application.workbench.settings;
  Pane& pane = application.workbench.documents.joystickText;
  EditorPane& view = ProgramOnScreen::Find<EditorPane>(pane);
};

TEST_F(ProblemMarksTest, AWaveStandsBelowTheWordAndADotBesideItsLine) {
  EXPECT_TRUE(HasRed(LetterAt(Find("S99") + 1)));
  EXPECT_FALSE(HasRed(LetterAt(Find("S2"))));
  EXPECT_TRUE(HasRed(BesideLineOf(Find("S99"))));
  EXPECT_FALSE(HasRed(BesideLineOf(Find("S2"))));
}

TEST_F(ProblemMarksTest, NothingOfThemIsInTheTextAndTheyCanBeSwitchedOff) {
  EXPECT_EQ(pane.Content(), RichText(std::string(pane.Characters())));
  settings.MarkProblems = 0;
  QApplication::processEvents();
  EXPECT_FALSE(HasRed(LetterAt(Find("S99") + 1)));
  EXPECT_FALSE(HasRed(BesideLineOf(Find("S99"))));
}

TEST_F(ProblemMarksTest, ThePointerIsToldWhatIsWrongAndWhatToDoOnTheWordAlone) {
  RestOn(view.CaretAt(Find("S99") + 1).center());
  EXPECT_THAT(QToolTip::text().toStdString(), testing::HasSubstr("No controller has &quot;S99&quot;."));
  EXPECT_THAT(QToolTip::text().toStdString(), testing::HasSubstr("picture in the Composer"));
  RestOn(QPoint(view.viewport()->width() - 20, view.CaretAt(Find("S99")).center().y()));
  EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
}

TEST_F(ProblemMarksTest, ThePointerIsToldWhatAWordMeans) {
  application.workbench.documents.macroText.SetContent(RichText("Gear = CTL g Rem up or down\r\n"));
  pane.SetContent(RichText("BTN S1 Gear\r\n"));
  RestOn(view.CaretAt(Find("Gear") + 1).center());
  EXPECT_THAT(QToolTip::text().toStdString(), testing::HasSubstr("Ctrl+G"));
  EXPECT_THAT(QToolTip::text().toStdString(), testing::HasSubstr("<br/>up or down"));
  RestOn(view.CaretAt(Find("S1") + 1).center());
  EXPECT_THAT(QToolTip::text().toStdString(), testing::HasSubstr("S1 sends Gear"));
}

}  // namespace
}  // namespace tarvik::screen
