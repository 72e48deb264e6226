// The line above the macro lists.
#include <gmock/gmock.h>

#include <QContextMenuEvent>
#include <QTest>

#include "screen/ProgramOnScreen.h"
#include "screen/widgets/FilteredList.h"
#include "tools/composer/InsertOptions.h"

namespace tarvik::screen {
namespace {

class FilteredListTest : public testing::Test, public ProgramOnScreen {
 protected:
  FilteredListTest() {
    files().Put(
        "c:\\my\\a.m50",
        "Gear_Up = g\r\nGear_Down = h\r\nFlaps_Up = f\r\nrem ----\r\nrem Guns\r\nrem ----\r\nFire = SPC\r\n");
    application.editor().OpenPreviouslySavedFiles("c:\\my\\a.m50");
    application.editor().MnuFileMacroLoad_Click();
    QApplication::processEvents();
  }

  [[nodiscard]] std::vector<std::string> OnShow() const {
    std::vector<std::string> names;
    for (int row = 0; row < list.model()->rowCount(); ++row) {
      names.push_back(list.model()->index(row, 0).data().toString().toStdString());
    }
    return names;
  }
  [[nodiscard]] QString Count() const { return shown.findChild<QLabel*>()->text(); }

  Editor& editor = application.editor();
  ListStack& list = Find<ListStack>(editor.List1(0));
  FilteredList& shown = *dynamic_cast<FilteredList*>(list.parentWidget());
};

TEST_F(FilteredListTest, SaysWhatItIsAlsoOnADarkDesktopThatForgetsThatColour) {
  QPalette dark = shown.palette();
  dark.setColor(QPalette::Base, Qt::black);
  dark.setColor(QPalette::Text, Qt::white);
  dark.setColor(QPalette::PlaceholderText, Qt::black);
  shown.setPalette(dark);
  EXPECT_EQ(shown.line().palette().color(QPalette::PlaceholderText).lightness(), 255);
  EXPECT_EQ(shown.line().palette().color(QPalette::Base), QColor(Qt::black));
}

TEST_F(FilteredListTest, TypingNarrowsTheListAndEscapeClears) {
  ASSERT_THAT(OnShow(), testing::ElementsAre("Fire", "Flaps_Up", "Gear_Down", "Gear_Up"));
  EXPECT_EQ(Count(), "4");
  QTest::keyClicks(&shown.line(), "UP");
  EXPECT_THAT(OnShow(), testing::ElementsAre("Flaps_Up", "Gear_Up"));
  EXPECT_EQ(Count(), "2 of 4");
  QTest::keyClick(&shown.line(), Qt::Key_Escape);
  EXPECT_EQ(OnShow().size(), 4U);
  EXPECT_EQ(Count(), "4");
}

TEST_F(FilteredListTest, ArrowsAndEnterGoToTheListAndTakeTheMacroOfTheRow) {
  QTest::keyClicks(&shown.line(), "gear");
  QTest::keyClick(&shown.line(), Qt::Key_Down);
  EXPECT_TRUE(list.hasFocus());
  EXPECT_EQ(editor.List1(0).Current(), "Gear_Down");
  QTest::keyClick(&list, Qt::Key_Down);
  EXPECT_EQ(editor.List1(0).Current(), "Gear_Up");
  QTest::keyClick(&list, Qt::Key_Return);
  EXPECT_THAT(editor.JoystickText.Text.Get(), testing::HasSubstr("Gear_Up"));
}

TEST_F(FilteredListTest, TheItemInHandStaysInHandWhileItIsNotOnShow) {
  editor.List1(0).ListIndex = 3;
  QTest::keyClicks(&shown.line(), "fire");
  EXPECT_FALSE(list.currentIndex().isValid());
  EXPECT_EQ(editor.List1(0).Current(), "Gear_Up");
  shown.line().clear();
  EXPECT_EQ(list.currentIndex().row(), 3);
}

/// What is not on show can't be meant.
TEST_F(FilteredListTest, AnItemThatIsNotOnShowIsNotActedOn) {
  editor.List1(0).ListIndex = 3;
  QTest::keyClicks(&shown.line(), "fire");
  int downs = 0;
  editor.List1(0).MouseDown = [&downs](const Mouse&) { ++downs; };
  editor.List1(0).MouseMove = [&downs](const Mouse&) { ++downs; };
  const QPoint blank(20, list.viewport()->height() - 4);
  QTest::mouseClick(list.viewport(), Qt::RightButton, {}, blank);
  QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::ShiftModifier, blank);
  QTest::mouseMove(list.viewport(), blank - QPoint(1, 1));
  QContextMenuEvent key(QContextMenuEvent::Keyboard, blank, list.viewport()->mapToGlobal(blank));
  QApplication::sendEvent(&list, &key);
  EXPECT_EQ(downs, 0);
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualRect(list.model()->index(0, 0)).center());
  EXPECT_EQ(downs, 1);
  EXPECT_EQ(editor.List1(0).Current(), "Fire");
}

TEST_F(FilteredListTest, ComingToTheListShowsTheMacroThatIsTaken) {
  QTest::keyClicks(&shown.line(), "flaps");
  QTest::keyClick(&shown.line(), Qt::Key_Return);
  EXPECT_EQ(application.workbench.macros.Selected(), "Flaps_Up");
}

TEST_F(FilteredListTest, TicksStayWithTheirMacros) {
  editor.List1(0).Tick({false, false, false, true});
  QTest::keyClicks(&shown.line(), "gear");
  EXPECT_EQ(list.model()->index(0, 0).data(Qt::CheckStateRole).toInt(), Qt::Unchecked);
  EXPECT_EQ(list.model()->index(1, 0).data(Qt::CheckStateRole).toInt(), Qt::Checked);
}

TEST_F(FilteredListTest, WhatIsTypedCountsForTheNextListToo) {
  QTest::keyClicks(&shown.line(), "gear");
  editor.Combo1.Select(1);
  EXPECT_THAT(OnShow(), testing::IsEmpty());
  EXPECT_EQ(Count(), "0 of 1");
  QTest::keyClick(&shown.line(), Qt::Key_Down);  // to a list in which nothing is on show
  EXPECT_EQ(editor.List1(1).Current(), "Fire");
}

TEST_F(FilteredListTest, TheComposerHasOneToo) {
  auto& composer = Show<InsertOptions>();
  auto& other = Find<ListStack>(composer.List1(0));
  auto& line = dynamic_cast<FilteredList*>(other.parentWidget())->line();
  QTest::keyClicks(&line, "fire");
  EXPECT_EQ(other.model()->rowCount(), 1);
  EXPECT_EQ(list.model()->rowCount(), 4);
}

TEST_F(FilteredListTest, AClickOnTheSignOfAnOldListRenewsIt) {
  auto& sign = Find<QToolButton>(editor.RenewMacros);
  EXPECT_TRUE(sign.isHidden());
  editor.MacroText.SelText = std::string("New = n\r\n");
  EXPECT_FALSE(sign.isHidden());
  editor.mnuFileSaveBoth_Click();
  sign.click();
  EXPECT_TRUE(sign.isHidden());
  EXPECT_THAT(OnShow(), testing::Contains("New"));
}

}  // namespace
}  // namespace tarvik::screen
