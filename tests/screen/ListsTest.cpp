// The lists of all windows: what their models answer, and what the keys and the mouse do in them.
#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QComboBox>
#include <QListView>
#include <QTest>

#include "app/Editor.h"
#include "screen/ProgramOnScreen.h"
#include "screen/QtPrinters.h"
#include "screen/widgets/ListStack.h"
#include "tools/composer/InsertOptions.h"
#include "tools/find/FindAndReplace.h"
#include "tools/pimlet/RAWform.h"
#include "tools/preferences/DrivesForm.h"
#include "tools/preferences/Preferences.h"
#include "tools/viewers/ViewImage.h"

namespace tarvik::screen {
namespace {

class Lists : public testing::Test, public ProgramOnScreen {
 protected:
  Lists() {
    files().Put("c:\\tarvik\\a.png", "");
    files().Put("c:\\tarvik\\b.png", "");
  }
  QListView* ViewOf(const ListBox& list) const { return qobject_cast<QListView*>(screen.Find(list)); }
};

/// What the toolkit complains of while it stands.
class Complaints {
 public:
  Complaints() : before_(qInstallMessageHandler(Take)) { taken.clear(); }
  ~Complaints() { qInstallMessageHandler(before_); }
  Complaints(const Complaints&) = delete;
  Complaints& operator=(const Complaints&) = delete;

  static inline QStringList taken;

 private:
  static void Take(QtMsgType /*kind*/, const QMessageLogContext& /*place*/, const QString& text) {
    taken += text;
  }
  QtMessageHandler before_;
};

TEST_F(Lists, HaveModelsThatAnswerEveryIndexWhileTheyChange) {
  auto& preferences = Show<Preferences>();
  Show<InsertOptions>();
  Show<RAWform>();
  Show<FindAndReplace>();
  Show<DrivesForm>();
  auto& picker = Show<SelectPictureForm>();
  const Complaints complaints;
  std::vector<std::unique_ptr<QAbstractItemModelTester>> testers;
  const auto watch = [&testers](QAbstractItemModel* model) {
    testers.push_back(std::make_unique<QAbstractItemModelTester>(
        model, QAbstractItemModelTester::FailureReportingMode::Warning));
  };
  for (QWidget* const window : QApplication::topLevelWidgets()) {
    for (const auto* const view : window->findChildren<QListView*>()) watch(view->model());
    for (const auto* const combo : window->findChildren<QComboBox*>()) watch(combo->model());
  }
  ASSERT_GE(testers.size(), 20U);
  preferences.SSTab1.Tab = page::kColours;
  picker.File1.Fill({"a", "b", "c"});
  picker.File1.ListIndex = 2;
  picker.File1.Clear();
  application.editor().List1(0).Fill({"one", "two"});
  application.editor().List1(0).Tick({true, false});
  application.editor().List1(0).Fill({"one"});
  EXPECT_EQ(Complaints::taken.join(u'\n').toStdString(), "");
}

TEST_F(Lists, AnswerForAnItemThatIsNotThere) {
  ListModel model(Ticks::Offered);
  model.SetItems({"one"}, {true});
  for (const int role : {Qt::DisplayRole, Qt::CheckStateRole, Qt::ToolTipRole}) {
    EXPECT_FALSE(model.data(QModelIndex(), role).isValid());
  }
  EXPECT_EQ(model.flags(QModelIndex()), Qt::NoItemFlags);
  const QModelIndex first = model.index(0);
  EXPECT_EQ(model.data(first, Qt::DisplayRole), QStringLiteral("one"));
  EXPECT_EQ(model.data(first, Qt::CheckStateRole), Qt::Checked);
  model.SetItems({}, {});
  EXPECT_FALSE(model.data(first, Qt::DisplayRole).isValid());
}

TEST_F(Lists, CopyNothingWithoutAnItemInHand) {
  auto& picker = Show<SelectPictureForm>();
  auto& preferences = Show<Preferences>();
  preferences.SSTab1.Tab = page::kColours;
  for (const ListBox* const list : {&picker.File1, &preferences.List1}) {
    QListView* const view = ViewOf(*list);
    ASSERT_FALSE(view->currentIndex().isValid());
    QTest::keyClick(view, Qt::Key_C, Qt::ControlModifier);
  }
}

class ColourList : public Lists {
 protected:
  ColourList() {
    preferences.SSTab1.Tab = page::kColours;
    view->setFocus();
  }

  Preferences& preferences = Show<Preferences>();
  QListView* view = ViewOf(preferences.List1);
  const Property<Colour>& background = application.workbench.settings.BackgroundColour;
  const Property<Colour>& rem = application.workbench.settings.RemStatements;
};

TEST_F(ColourList, IsWalkedByTheArrowKeysAndAsksForAColourByEnterSpaceAndClick) {
  outside.dialogs.choices = {"17", "18", "19", "20"};
  QTest::keyClick(view, Qt::Key_Down);
  QTest::keyClick(view, Qt::Key_Up);
  EXPECT_EQ(preferences.List1.ListIndex, 0);
  EXPECT_EQ(outside.dialogs.choices.size(), 4U) << "the arrow keys only select";
  QTest::keyClick(view, Qt::Key_Space);
  EXPECT_EQ(background, Colour{17});
  QTest::keyClick(view, Qt::Key_Return);
  EXPECT_EQ(background, Colour{18});
  QTest::keyClick(view, Qt::Key_Down);
  EXPECT_EQ(preferences.List1.ListIndex, 1);
  QTest::mouseClick(view->viewport(), Qt::LeftButton, {},
                    view->visualRect(view->model()->index(1, 0)).center());
  EXPECT_EQ(rem, Colour{19});
  const QPoint below(10, view->viewport()->height() - 3);
  ASSERT_FALSE(view->indexAt(below).isValid());
  QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, below);
  QTest::mouseClick(view->viewport(), Qt::RightButton, {},
                    view->visualRect(view->model()->index(1, 0)).center());
  EXPECT_EQ(rem, Colour{19});
}

TEST_F(ColourList, ShowsEachColourBesideItsName) {
  outside.dialogs.choices = {"255"};
  preferences.List1.ListIndex = 2;
  QTest::keyClick(view, Qt::Key_Space);
  const QRect row = view->visualRect(view->model()->index(2, 0));
  const QImage shown = view->viewport()->grab().toImage();
  int red = 0;
  for (int x = row.left(); x < row.left() + row.height() * 2; ++x) {
    red += shown.pixelColor(x, row.center().y()) == QColor(Qt::red) ? 1 : 0;
  }
  EXPECT_GE(red, 8) << "also in a row that is selected";
}

TEST_F(ColourList, ShowsItsFocusWithoutAnItemInHand) {
  const auto picture = [this] {
    QApplication::processEvents();
    return view->viewport()->grab().toImage();
  };
  view->window()->activateWindow();
  const QImage focused = picture();
  ASSERT_FALSE(view->currentIndex().isValid());
  ASSERT_TRUE(view->hasFocus());
  view->clearFocus();
  EXPECT_NE(picture(), focused);
}

TEST_F(Lists, PaintTheirSelectionPalerWithoutTheFocus) {
  auto& picker = Show<SelectPictureForm>();
  auto* const window = dynamic_cast<QWidget*>(screen.ViewOf(picker));
  QListView* const view = ViewOf(picker.Dir1);
  window->activateWindow();
  const auto selection = [view] {
    QApplication::processEvents();
    const QRect row = view->visualRect(view->currentIndex());
    return view->viewport()->grab().toImage().pixelColor(row.right() - 3, row.center().y());
  };
  view->setFocus();
  const QColor focused = selection();
  ViewOf(picker.File1)->setFocus();
  EXPECT_NE(selection(), focused);
  EXPECT_NE(selection(), view->palette().color(QPalette::Base));
}

}  // namespace
}  // namespace tarvik::screen
