// What lies above a tool that is on top of all windows.
#include <gtest/gtest.h>

#include <QApplication>
#include <QColorDialog>
#include <QFileDialog>
#include <QMessageBox>
#include <QTimer>
#include <QWindow>
#include <stdexcept>

#include "app/Editor.h"
#include "screen/ProgramOnScreen.h"
#include "screen/services/FontDialog.h"
#include "screen/services/QtDesktop.h"
#include "screen/services/QtDialogs.h"
#include "tools/pimlet/RAWform.h"
#include "tools/viewers/ViewImage.h"

namespace tarvik::screen {
namespace {

class WindowOrderTest : public testing::Test, public ProgramOnScreen {
 protected:
  WindowOrderTest() { ShowPimlet(true); }

  void ShowPimlet(bool onTop) {
    auto& pimlet = application.Tool<RAWform>();
    pimlet.Check1.Value = onTop ? 1 : 0;
    pimlet.Show();
  }

  static bool IsOnTop(const QWidget& window) {
    return window.windowHandle()->flags() & Qt::WindowStaysOnTopHint;
  }

  /// Whether the dialog that `ask` shows is on top; it is cancelled.
  template <class D>
  static bool ComesUpOnTop(const std::function<void()>& ask) {
    bool onTop = false;
    QTimer::singleShot(0, [&onTop] {
      for (QWidget* const window : QApplication::topLevelWidgets()) {
        auto* const dialog = qobject_cast<QDialog*>(window);
        if (!dialog || !dialog->isVisible() || !dynamic_cast<D*>(dialog)) continue;
        onTop = IsOnTop(*dialog);
        dialog->reject();
      }
    });
    ask();
    return onTop;
  }

  QWidget& ShowHelp() {
    help.ShowContext("c:\\tarvik\\tarvik.hlp", 1);
    for (QWidget* const window : QApplication::topLevelWidgets()) {
      if (window->isVisible() && dynamic_cast<HelpWindow*>(window)) return *window;
    }
    throw std::logic_error("no help");
  }

  Drives drives{{}};
  QtDialogs dialogs{drives};
  QtHelp help{files()};
};

TEST_F(WindowOrderTest, EveryBoxAndDialogLiesAboveIt) {
  EXPECT_TRUE(ComesUpOnTop<QMessageBox>([&] { dialogs.Show({"a", "b"}); }));
  EXPECT_TRUE(ComesUpOnTop<QFileDialog>([&] { Ignore(dialogs.AskForFile({})); }));
  EXPECT_TRUE(ComesUpOnTop<QFileDialog>([&] { Ignore(dialogs.AskForFolder("a", "")); }));
  EXPECT_TRUE(ComesUpOnTop<QColorDialog>([&] { Ignore(dialogs.AskForColour(kBlack)); }));
  EXPECT_TRUE(ComesUpOnTop<FontDialog>([&] { Ignore(dialogs.AskForFont({"Arial", 9, false}, false)); }));
}

TEST_F(WindowOrderTest, AModalToolLiesAboveIt) {
  auto& pictures = application.Tool<SelectPictureForm>();
  pictures.Modal = true;
  pictures.Visible = true;
  EXPECT_TRUE(IsOnTop(WindowOf(pictures)));
}

TEST_F(WindowOrderTest, TheHelpLiesAboveItAsLongAsItIsOnTop) {
  const QWidget& window = ShowHelp();
  EXPECT_TRUE(IsOnTop(window));
  ShowPimlet(false);
  EXPECT_FALSE(IsOnTop(window));
  ShowPimlet(true);
  EXPECT_TRUE(IsOnTop(window));
  application.Tool<RAWform>().Visible = false;
  EXPECT_FALSE(IsOnTop(window));
}

TEST_F(WindowOrderTest, MinimisedHelpComesBack) {
  QWidget& window = ShowHelp();
  window.showMinimized();
  help.ShowKeyword("c:\\tarvik\\tarvik.hlp", "BTN");
  EXPECT_FALSE(window.isMinimized());
}

/// Then the window manager keeps it in front of every window of the program, whichever is clicked.
TEST_F(WindowOrderTest, ABoxBelongsToTheWholeProgram) {
  const QWindow* owner = WindowOf(application.mum()).windowHandle();
  QTimer::singleShot(0, [&owner] {
    auto* const box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    owner = box->windowHandle()->transientParent();
    box->reject();
  });
  dialogs.Show({"a", "b"});
  EXPECT_FALSE(owner);
}

TEST_F(WindowOrderTest, ABoxBelongsToTheModalWindowThatAsked) {
  auto& pictures = application.Tool<SelectPictureForm>();
  pictures.Modal = true;
  pictures.Visible = true;
  const QWidget& asking = WindowOf(pictures);
  EXPECT_FALSE(asking.windowHandle()->transientParent());
  QMessageBox box(&WindowOf(pictures));
  box.setModal(true);
  box.show();
  EXPECT_EQ(box.windowHandle()->transientParent(), asking.windowHandle());
}

TEST_F(WindowOrderTest, WhatAToolHasCoveredIsRaised) {
  QWidget& frame = WindowOf(application.mum());
  QWidget& pimlet = WindowOf(application.Tool<RAWform>());
  QWidget& read = ShowHelp();
  QMessageBox box;
  box.setModal(true);
  using Windows = QList<QWidget*>;
  EXPECT_EQ(WronglyCovered({&frame, &pimlet, &read, &box}), Windows());
  EXPECT_EQ(WronglyCovered({&frame, &read, &pimlet, &box}), Windows({&read}));
  EXPECT_EQ(WronglyCovered({&frame, &pimlet, &box, &read}), Windows({&box}));
  EXPECT_EQ(WronglyCovered({&pimlet, &box, &read, &frame}), Windows({&box}));
  EXPECT_EQ(WronglyCovered({&pimlet, &read, &frame, &box}), Windows());
  EXPECT_EQ(WronglyCovered({&box, &read, &pimlet}), Windows({&read, &box}));
}

TEST_F(WindowOrderTest, ABoxDoesNotStayMinimised) {
  QMessageBox box;
  box.setModal(true);
  box.show();
  box.showMinimized();
  QApplication::processEvents();
  EXPECT_FALSE(box.isMinimized());
  EXPECT_TRUE(box.isVisible());
}

TEST_F(WindowOrderTest, WithoutSuchAToolNothingIsOnTop) {
  ShowPimlet(false);
  EXPECT_FALSE(ComesUpOnTop<QMessageBox>([&] { dialogs.Show({"a", "b"}); }));
  EXPECT_FALSE(IsOnTop(WindowOf(application.Tool<RAWform>())));
}

}  // namespace
}  // namespace tarvik::screen
