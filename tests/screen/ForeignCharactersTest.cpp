// Characters of the whole world on their way into a pane: typed, committed by an input method, pasted,
// dropped.
#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>

#include "screen/ProgramOnScreen.h"
#include "screen/services/QtDesktop.h"
#include "screen/widgets/PaneView.h"

namespace tarvik::screen {
namespace {

const char* const kTwoLost = "2 characters are not in the code page of the files, and became \"?\"";

class ForeignCharacters : public testing::Test, public ProgramOnScreen {
 protected:
  [[nodiscard]] std::string Said() const {
    return application.workbench.documents.status.Panels(panel::kSaid).Text;
  }
  Pane& pane = application.workbench.documents.joystickText;
  PaneView& view = Find<PaneView>(pane);
};

TEST_F(ForeignCharacters, WhatAnInputMethodCommitsIsComposedAndCounted) {
  QInputMethodEvent commit;
  commit.setCommitString(QStringLiteral("e\u0301 \u0444\u0444"));
  QApplication::sendEvent(&view, &commit);
  EXPECT_EQ(pane.Characters(), "\xE9 ??");
  EXPECT_EQ(Said(), kTwoLost);
}

TEST_F(ForeignCharacters, ATypedOneIsCounted) {
  QKeyEvent key(QEvent::KeyPress, 0, Qt::NoModifier, QStringLiteral("\u0444"));
  QApplication::sendEvent(&view, &key);
  EXPECT_EQ(pane.Characters(), "?");
  EXPECT_EQ(Said(), "1 character is not in the code page of the files, and became \"?\"");
}

TEST_F(ForeignCharacters, DroppedTextIsComposedAndCounted) {
  QMimeData data;
  data.setText(QStringLiteral("u\u0308 \U0001F600\u0444"));
  QDragEnterEvent enter(QPoint(2, 2), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(view.viewport(), &enter);
  QDropEvent drop(QPointF(2, 2), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(view.viewport(), &drop);
  EXPECT_EQ(pane.Characters(), "\xFC ??");
  EXPECT_EQ(Said(), kTwoLost);
}

TEST_F(ForeignCharacters, AProtectedFileLosesNone) {
  const std::string before = Said();
  pane.Locked = true;
  QKeyEvent key(QEvent::KeyPress, 0, Qt::NoModifier, QStringLiteral("\u0444"));
  QApplication::sendEvent(&view, &key);
  EXPECT_EQ(pane.Characters(), "");
  EXPECT_EQ(Said(), before);
}

TEST_F(ForeignCharacters, TheClipboardsAreComposedAndCounted) {
  QtClipboard clipboard;
  QGuiApplication::clipboard()->setText(QStringLiteral("o\u0302\n\U0001F600 ?\u0444"));
  const Converted text = clipboard.Text();
  EXPECT_EQ(text.text, "\xF4\r\n? ??");
  EXPECT_EQ(text.lost, 2U);
}

TEST_F(ForeignCharacters, PastingTellsHowManyTheClipboardLost) {
  outside.clipboard.PutFromOutside("a??", {});
  outside.clipboard.lost = 2;
  application.workbench.edit.Paste();
  EXPECT_EQ(Said(), kTwoLost);
}

}  // namespace
}  // namespace tarvik::screen
