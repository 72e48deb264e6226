// What other programs find on the clipboard, and what the program makes of theirs.
#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include "screen/QtPrinters.h"
#include "screen/services/QtDesktop.h"

namespace tarvik::screen {
namespace {

QMimeData* Carrying(const char* type, const QByteArray& bytes) {
  auto* const data = new QMimeData;
  data->setData(QLatin1String(type), bytes);
  return data;
}

class QtClipboardTest : public testing::Test {
 protected:
  QtClipboardTest() { desktop.clear(); }

  QClipboard& desktop = *QGuiApplication::clipboard();
  QtClipboard clipboard;
};

TEST_F(QtClipboardTest, OtherProgramsGetTextAndRtfUnderTheirOwnTypes) {
  clipboard.Put("BTN S1\r\n\xC9t\xE9 \x80", "{\\rtf1 x}");
  const QMimeData& data = *desktop.mimeData();
  EXPECT_EQ(data.text(), QString::fromUtf8("BTN S1\nÉté €"));
  EXPECT_TRUE(data.hasFormat(QStringLiteral("text/plain")));
  EXPECT_EQ(data.data(QStringLiteral("text/rtf")), "{\\rtf1 x}");
  EXPECT_EQ(data.data(QStringLiteral("application/rtf")), "{\\rtf1 x}");
  EXPECT_TRUE(clipboard.HasText());
  EXPECT_EQ(clipboard.Text().text, "BTN S1\r\n\xC9t\xE9 \x80");
  EXPECT_EQ(clipboard.Rtf(), "{\\rtf1 x}");
}

TEST_F(QtClipboardTest, ControlCharactersGoOutAsThemselves) {
  clipboard.Put(std::string("a\x01\x7F\tb"), "");
  EXPECT_EQ(desktop.text(), QStringLiteral("a\x01\x7F\tb"));
}

TEST_F(QtClipboardTest, TextFromOutsideComesInTheCodePageWithItsLineBreaks) {
  desktop.setText(QString::fromUtf8("one\ntwo\r\nthree\rфour 😀 –"));
  EXPECT_TRUE(clipboard.HasText());
  EXPECT_EQ(clipboard.Text().text, "one\r\ntwo\r\nthree\r\n?our ? \x96");
  EXPECT_EQ(clipboard.Rtf(), "");
}

TEST_F(QtClipboardTest, RtfFromOutsideIsTakenUnderAnyOfItsTypes) {
  for (const char* const type : {"text/rtf", "application/rtf", "text/richtext"}) {
    desktop.setMimeData(Carrying(type, "{\\rtf1 y}"));
    EXPECT_TRUE(clipboard.HasText()) << type;
    EXPECT_EQ(clipboard.Rtf(), "{\\rtf1 y}") << type;
  }
}

TEST_F(QtClipboardTest, WhatIsNoTextIsNothingToPaste) {
  desktop.setMimeData(Carrying("image/png", "\x89PNG"));
  EXPECT_FALSE(clipboard.HasText());
  EXPECT_EQ(clipboard.Text().text, "");
  EXPECT_EQ(clipboard.Rtf(), "");
}

TEST_F(QtClipboardTest, AChangeByAnotherProgramIsTold) {
  int changes = 0;
  clipboard.changed = [&changes] { ++changes; };
  desktop.setText(QStringLiteral("x"));
  EXPECT_EQ(changes, 1);
  desktop.clear();
  EXPECT_EQ(changes, 2);
  EXPECT_FALSE(clipboard.HasText());
}

}  // namespace
}  // namespace tarvik::screen
