// The help window, where only the toolkit can show it.
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QImage>
#include <QScreen>
#include <QTemporaryDir>
#include <QTextDocument>
#include <QToolBar>

#include "screen/services/HelpWindow.h"

namespace tarvik::screen {
namespace {

TEST(HelpWindowPictures, OpensNoFileThatATopicNamesAsItsPicture) {
  const QTemporaryDir folder;
  const QString picture = folder.filePath(QStringLiteral("tall.png"));
  QImage tall(10, 5000, QImage::Format_RGB32);
  tall.fill(Qt::red);
  ASSERT_TRUE(tall.save(picture));
  HelpWindow window;
  window.Open(HelpFile("# One\n<!-- 1: -->\nBefore ![](" + picture.toStdString() + ") behind.\n"));
  window.ShowContext(1);
  const auto* const text = window.findChild<QTextBrowser*>();
  EXPECT_TRUE(text->toPlainText().contains(QStringLiteral("behind.")));
  const QVariant found = text->document()->resource(QTextDocument::ImageResource, QUrl(picture));
  EXPECT_EQ(found.value<QImage>().size(), QSize(1, 1));
}

/// The dialog gives way where it stands too far to the right.
TEST(HelpWindow, StandsBesideAModalWindowAndNotOverIt) {
  QDialog asking;
  asking.setModal(true);
  asking.resize(300, 200);
  asking.show();
  const QRect screen = asking.screen()->availableGeometry();
  asking.move(screen.right() - 300, 100);
  HelpWindow window;
  window.Open(HelpFile("# One\n<!-- 1: -->\nWords.\n"));
  window.ShowContext(1);
  EXPECT_TRUE(window.isVisible());
  EXPECT_GT(window.geometry().left(), asking.frameGeometry().right());
  EXPECT_LE(window.geometry().right(), screen.right());
  // Where the user has put it since it stays.
  window.move(40, 300);
  window.ShowContext(1);
  EXPECT_EQ(window.pos(), QPoint(40, 300));
}

TEST(HelpWindow, HasAllItsCommandsInSightWhereItIsNarrow) {
  HelpWindow window;
  window.Open(HelpFile("# One\n<!-- 1: -->\nWords.\n"));
  QFont large = window.font();
  large.setPixelSize(20);
  window.setFont(large);
  window.show();
  const auto& tools = *window.findChild<QToolBar*>();
  for (const int width : {900, 550, 320}) {  // the topics fold away before it can be so narrow
    window.resize(width, 400);
    QApplication::processEvents();
    for (QAction* const command : tools.actions()) {
      EXPECT_TRUE(tools.widgetForAction(command)->isVisible())
          << width << " " << command->text().toStdString();
    }
  }
}

}  // namespace
}  // namespace tarvik::screen
