// Where the list of suggestions stands, and who has the focus meanwhile.
#include <gtest/gtest.h>

#include <QTest>

#include "screen/EditorPane.h"
#include "screen/ProgramOnScreen.h"
#include "screen/SuggestionView.h"

namespace tarvik::screen {
namespace {

std::string EmptyLines(int count) {
  std::string lines;
  for (int i = 0; i < count; ++i) lines += "\r\n";
  return lines;
}

class SuggestionViewTest : public testing::Test, public ProgramOnScreen {
 protected:
  SuggestionViewTest() {
    pane.SetContent(RichText("BTN S1 " + EmptyLines(200)));
    view.setFocus();
  }
  void OpenAt(std::size_t position) {
    pane.Select({position, 0});
    QApplication::processEvents();
    application.workbench.documents.FocusActiveText();
    editor().suggestions.Open();
    QApplication::processEvents();
  }
  /// Of the caret, in what the list stands in.
  [[nodiscard]] QRect Caret() const {
    const QRect caret = view.CaretAt(pane.SelStart);
    return {view.viewport()->mapTo(list.parentWidget(), caret.topLeft()), caret.size()};
  }

  Pane& pane = application.workbench.documents.joystickText;
  EditorPane& view = Find<EditorPane>(pane);
  SuggestionView& list = *view.parentWidget()->findChild<SuggestionView*>();
};

TEST_F(SuggestionViewTest, ItStandsBelowTheWordAndTheTextKeepsTheFocus) {
  OpenAt(7);
  ASSERT_TRUE(list.isVisible());
  EXPECT_GE(list.geometry().top(), Caret().bottom());
  EXPECT_LE(list.geometry().top(), Caret().bottom() + 4);
  EXPECT_EQ(list.geometry().left(), Caret().left());
  EXPECT_TRUE(view.hasFocus());
  EXPECT_LE(list.height(), 8 * list.sizeHintForRow(0) + 2 * list.frameWidth());
}

TEST_F(SuggestionViewTest, AtTheLowerEdgeItStandsAboveTheWord) {
  OpenAt(pane.Characters().size());
  ASSERT_TRUE(list.isVisible());
  EXPECT_LE(list.geometry().bottom(), Caret().top());
  EXPECT_TRUE(list.parentWidget()->rect().contains(list.geometry()));
}

TEST_F(SuggestionViewTest, AClickTakesAndTheTextKeepsTheFocus) {
  OpenAt(7);
  const QString shown = list.model()->index(1, 0).data().toString();
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(list.model()->index(1, 0)).center());
  EXPECT_FALSE(list.isVisible());
  EXPECT_TRUE(view.hasFocus());
  const std::string taken(pane.Characters().substr(7, pane.SelStart - 7));
  EXPECT_FALSE(taken.empty());
  EXPECT_TRUE(shown.startsWith(QString::fromStdString(taken)));
}

}  // namespace
}  // namespace tarvik::screen
