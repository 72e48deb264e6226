// Clicks that a random user found something wrong with.
#include <gtest/gtest.h>

#include <QApplication>
#include <QMenu>
#include <QTest>

#include "app/Editor.h"
#include "screen/ProgramOnScreen.h"
#include "screen/widgets/PaneView.h"
#include "tools/preferences/Preferences.h"
#include "tools/testing/KeyTestForm.h"

namespace tarvik::screen {
namespace {

class MouseTest : public testing::Test, public ProgramOnScreen {};

/// The text makes nothing of most of them; beside it, in the indent, they came back to it for ever.
TEST_F(MouseTest, ADoubleClickOfAnyButtonEndsInAnyPane) {
  application.Tool<KeyTestForm>().Visible = true;
  int panes = 0;
  for (QWidget* const window : QApplication::topLevelWidgets()) {
    for (auto* const pane : window->findChildren<QPlainTextEdit*>()) {
      ++panes;
      for (const auto button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
        for (QWidget* const at : {static_cast<QWidget*>(pane), pane->viewport()}) {
          QTest::mouseDClick(at, button);
        }
      }
    }
  }
  EXPECT_GE(panes, 5);
}

/// It ends when it closes, and must not do so under its own feet while what was chosen waits for its end.
/// Counts how often a widget is painted.
class Painted : public QObject {
 public:
  explicit Painted(QWidget& widget) { widget.installEventFilter(this); }
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++times;
    return false;
  }
  int times = 0;
};

/// By the menu, with the pointer elsewhere.
TEST_F(MouseTest, AToolbarButtonLooksReleasedAsSoonAsItsEntryIsOff) {
  MenuItem& tile = application.editor().menus("mnuViewTileVertically");
  constexpr int kTile = 30;
  auto& button = Find<QToolButton>(application.mum().Toolbar1.Buttons(kTile));
  tile.Click();
  QApplication::processEvents();
  EXPECT_TRUE(button.isChecked());
  Painted painted(button);
  tile.Click();
  QApplication::processEvents();
  EXPECT_FALSE(button.isChecked());
  EXPECT_GT(painted.times, 0);
}

TEST_F(MouseTest, TheMenuOfHiddenToolbarButtonsIsThroughBeforeWhatIsChosen) {
  QWidget* const frame = &WindowOf(application.mum());
  frame->resize(500, 400);
  QApplication::processEvents();
  QTest::mouseClick(frame->findChild<QWidget*>(QStringLiteral("MoreButtons")), Qt::LeftButton);
  auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  for (QAction* const action : menu->actions()) {
    if (!action->text().contains(QStringLiteral("references"))) continue;
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
    break;
  }
  EXPECT_EQ(application.LoadedTool<Preferences>(), nullptr);
  QApplication::processEvents();
  EXPECT_NE(application.LoadedTool<Preferences>(), nullptr);
}

}  // namespace
}  // namespace tarvik::screen
