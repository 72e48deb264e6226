// The bar above the text, as it is seen.
#include <gtest/gtest.h>

#include "app/Editor.h"
#include "screen/NoticeView.h"
#include "screen/ProgramOnScreen.h"
#include "screen/widgets/PaneView.h"

namespace tarvik::screen {
namespace {

class NoticeViewTest : public testing::Test, public ProgramOnScreen {
 protected:
  void Resize(int width) {
    WindowOf(application.mum()).resize(width, 600);
    QApplication::processEvents();
  }
};

/// At the start the window is narrow for a moment, and the words stand above the buttons.
TEST_F(NoticeViewTest, TheTextBeginsBelowItHoweverWideTheWindowBecomes) {
  Resize(640);
  const Document& joystick = application.workbench.documents.joystick;
  application.workbench.notices.Show(Matter::NotKept, &joystick,
                                     {"Something is to be told.", {{"Do it", [] {}}}});
  QApplication::processEvents();
  const auto& bar = Find<NoticeView>(application.editor().notice.frame);
  const auto& text = Find<PaneView>(joystick.text);
  for (const int width : {1200, 500, 1300, 640, 1100}) {
    Resize(width);
    EXPECT_EQ(bar.geometry().bottom() + 1, text.geometry().top()) << width;
  }
}

TEST_F(NoticeViewTest, AllOfItIsSeenAsSoonAsItComes) {
  Resize(1200);
  const Document& joystick = application.workbench.documents.joystick;
  application.workbench.notices.Show(Matter::NotKept, &joystick,
                                     {"Something is to be told.", {{"Do it", [] {}}}});
  QApplication::processEvents();
  const auto& bar = Find<NoticeView>(application.editor().notice.frame);
  EXPECT_EQ(bar.geometry().bottom() + 1, Find<PaneView>(joystick.text).geometry().top());
  EXPECT_GE(bar.height(), bar.minimumSizeHint().height());
}

}  // namespace
}  // namespace tarvik::screen
