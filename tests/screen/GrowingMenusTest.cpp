// Menus that are filled while the program runs: what stands in them is the user's own text.
#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QMenu>
#include <QScreen>

#include "app/Editor.h"
#include "screen/ProgramOnScreen.h"
#include "screen/QtPrinters.h"

namespace tarvik::screen {
namespace {

class GrowingMenus : public testing::Test, public ProgramOnScreen {
 protected:
  /// A favourite; 0 is the hidden first member.
  [[nodiscard]] QAction* Action(int index) const {
    return qobject_cast<QAction*>(screen.Find(Menu()("mnuFavArray", index)));
  }
  [[nodiscard]] QStringList Shown() const {
    QStringList texts;
    for (const QAction* const action : qobject_cast<QMenu*>(Action(0)->parent())->actions()) {
      if (action->isVisible() && !action->isSeparator()) texts += action->text();
    }
    return texts;
  }

  [[nodiscard]] Menus& Menu() const { return application.editor().menus; }
  void Fill(const std::vector<std::string>& captions) const { Menu().Fill("mnuFavArray", captions); }
};

TEST_F(GrowingMenus, GrowAndShrinkInTheirPlace) {
  Fill({"one", "two", "three"});
  EXPECT_EQ(Shown(), QStringList({"&Add current files ...", "one", "two", "three", "&Edit"}));
  Fill({"new"});
  EXPECT_EQ(Shown(), QStringList({"&Add current files ...", "new", "&Edit"}));
  Fill({});
  Fill({"again"});
  EXPECT_EQ(Shown(), QStringList({"&Add current files ...", "again", "&Edit"}));
}

TEST_F(GrowingMenus, ShowAUsersTextLetterByLetter) {
  Fill({"R&D", "-", "a\tb"});
  EXPECT_EQ(Action(1)->text(), QStringLiteral("R&&D"));
  EXPECT_FALSE(Action(2)->isSeparator());
  EXPECT_EQ(Action(2)->text(), QStringLiteral("-"));
  EXPECT_FALSE(Action(3)->text().contains(u'\t')) << "what follows a tab stands where shortcuts do";
}

TEST_F(GrowingMenus, FitTheScreenAndTellAllInTheTip) {
  const std::string path = "c:\\" + std::string(255, 'w') + "\\file.b50";
  Fill({path, "short"});
  auto* const menu = qobject_cast<QMenu*>(Action(0)->parent());
  EXPECT_LT(menu->sizeHint().width(), QGuiApplication::primaryScreen()->availableGeometry().width());
  EXPECT_TRUE(Action(1)->text().startsWith(QStringLiteral("c:\\ww")));
  EXPECT_TRUE(Action(1)->text().endsWith(QStringLiteral("file.b50")));
  EXPECT_EQ(Action(1)->toolTip().toStdString(), path);
  EXPECT_EQ(Menu()("mnuFavArray", 1).Caption.Get(), path);
  EXPECT_EQ(Action(2)->text(), QStringLiteral("short"));
}

TEST_F(GrowingMenus, RunTheMemberThatIsClicked) {
  application.workbench.lists.FavName = "First";
  application.workbench.lists.UpdateFavouritesMenu();
  application.workbench.lists.FavName = "Second";
  application.workbench.lists.UpdateFavouritesMenu();
  Action(2)->trigger();
  EXPECT_EQ(application.workbench.lists.FavName.Get(), "First");
}

}  // namespace
}  // namespace tarvik::screen
