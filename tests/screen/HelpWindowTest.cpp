// The help window, where only the toolkit can show it.
#include <gtest/gtest.h>

#include <QImage>
#include <QTemporaryDir>
#include <QTextDocument>

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

}  // namespace
}  // namespace tarvik::screen
