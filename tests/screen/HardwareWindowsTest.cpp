// What only the toolkit can show of the key test and the joystick analyser.
#include <gtest/gtest.h>

#include <QApplication>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTimer>
#include <QWindow>

#include "app/Editor.h"
#include "screen/ProgramOnScreen.h"
#include "screen/QtPrinters.h"
#include "screen/widgets/PlotView.h"
#include "tools/testing/JoyPlot.h"
#include "tools/testing/KeyTestForm.h"

namespace tarvik::screen {
namespace {

class HardwareWindows : public testing::Test, public ProgramOnScreen {
 protected:
  explicit HardwareWindows(Clock clock = Clock::Scripted) : ProgramOnScreen(clock) {
    outside.joystick.isThere = true;
  }

  static void Send(QWidget& widget, QEvent::Type type, int key, const QString& text = {},
                   bool repeated = false) {
    QKeyEvent event(type, key, Qt::NoModifier, text, repeated);
    if (type == QEvent::ShortcutOverride) event.ignore();
    QApplication::sendEvent(&widget, &event);
  }
};

class KeyTestWindow : public HardwareWindows {
 protected:
  KeyTestWindow() {
    application.editor().mnuSendToKeyTest_Click();
    QApplication::processEvents();
  }

  KeyTestForm& form = application.Tool<KeyTestForm>();
  QWidget& log = Find<QWidget>(form.RTFKeysText);
};

TEST_F(KeyTestWindow, AKeyThatIsHeldRepeatsItsPressAlone) {
  Send(log, QEvent::KeyPress, Qt::Key_A, QStringLiteral("a"));
  for (int i = 0; i < 2; ++i) {
    Send(log, QEvent::KeyRelease, Qt::Key_A, QStringLiteral("a"), true);
    Send(log, QEvent::KeyPress, Qt::Key_A, QStringLiteral("a"), true);
  }
  EXPECT_EQ(form.RTFKeysUpText.Text.Get(), "");
  Send(log, QEvent::KeyRelease, Qt::Key_A, QStringLiteral("a"));
  EXPECT_EQ(form.RTFKeysText.Text.Get(), " a\r\n a\r\n a\r\n");
  EXPECT_EQ(form.RTFKeysUpText.Text.Get(), "Keycode: 65\r\n");
}

TEST_F(KeyTestWindow, WhatIsLeftOfAKeyThatClosedABoxIsNoKeyOfTheTest) {
  QWidget box;
  QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
  QApplication::sendEvent(&box, &press);
  Send(log, QEvent::KeyPress, Qt::Key_Return, QStringLiteral("\r"), true);
  Send(log, QEvent::KeyRelease, Qt::Key_Return);
  EXPECT_EQ(form.RTFKeysText.Text.Get(), "");
  EXPECT_EQ(form.RTFKeysUpText.Text.Get(), "");
  Send(log, QEvent::KeyPress, Qt::Key_Return, QStringLiteral("\r"));
  Send(log, QEvent::KeyRelease, Qt::Key_Return);
  EXPECT_EQ(form.RTFKeysText.Text.Get(), " Enter\r\n");
  EXPECT_EQ(form.RTFKeysUpText.Text.Get(), "Keycode: 13\r\n");
}

TEST_F(KeyTestWindow, AltDoesNotLeadToTheMenuBar) {
  for (const auto type : {QEvent::ShortcutOverride, QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent alt(type, Qt::Key_Alt, type == QEvent::KeyPress ? Qt::NoModifier : Qt::AltModifier);
    QApplication::sendEvent(&log, &alt);
  }
  EXPECT_EQ(log.window()->findChild<QMenuBar*>()->activeAction(), nullptr);
  EXPECT_TRUE(log.hasFocus());
  EXPECT_EQ(form.RTFKeysUpText.Text.Get(), "Keycode: 18\r\n");
}

TEST_F(KeyTestWindow, NoInputMethodKeepsKeysToItself) {
  QInputMethodQueryEvent query(Qt::ImEnabled);
  QApplication::sendEvent(&log, &query);
  EXPECT_FALSE(query.value(Qt::ImEnabled).toBool());
}

TEST_F(KeyTestWindow, OddKeysAreLoggedAndDoNoHarm) {
  Send(log, QEvent::KeyPress, 0);
  Send(log, QEvent::KeyPress, Qt::Key_unknown, QString(QChar(0)));
  Send(log, QEvent::KeyPress, Qt::Key_Dead_Acute);
  Send(log, QEvent::KeyPress, 0x0424, QStringLiteral("\u0444"));       // not in the code page
  Send(log, QEvent::KeyPress, 0x1F600, QStringLiteral("\U0001F600"));  // two units
  Send(log, QEvent::KeyRelease, Qt::Key_Shift);                        // pressed elsewhere
  EXPECT_EQ(form.RTFKeysText.Text.Get(), " ?\r\n ?\r\n ?\r\n");
  EXPECT_EQ(form.RTFKeysUpText.Text.Get(), "Keycode: 16\r\n");
  EXPECT_TRUE(form.Visible);
}

TEST_F(KeyTestWindow, LogsShowTheirEnds) {
  for (int i = 0; i < 100; ++i) {
    Send(log, QEvent::KeyPress, Qt::Key_A, QStringLiteral("a"));
    Send(log, QEvent::KeyRelease, Qt::Key_A);
  }
  QApplication::processEvents();
  for (const Pane* const each : {&form.RTFKeysText, &form.RTFKeysDownText, &form.RTFKeysUpText}) {
    const QScrollBar* const bar = Find<QPlainTextEdit>(*each).verticalScrollBar();
    EXPECT_GT(bar->maximum(), 0);
    EXPECT_EQ(bar->value(), bar->maximum()) << each->Name();
  }
}

/// Counts how often a widget is painted.
class Paints : public QObject {
 public:
  explicit Paints(QWidget& widget) { widget.installEventFilter(this); }
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++count;
    return false;
  }
  int count = 0;
};

class AnalyserWindow : public HardwareWindows {
 protected:
  AnalyserWindow() {
    application.Show(ToolId::JoystickAnalyser);
    QApplication::processEvents();
  }

  void Read(int x, int y) {
    outside.joystick.info.x = x;
    outside.joystick.info.y = y;
    form.JoyTimer.Elapsed();
    QApplication::processEvents();  // what is to be painted is known
    QApplication::processEvents();  // and painted
  }

  static constexpr Colour kBlue{0xFF0000};
  JoyPlot& form = application.Tool<JoyPlot>();
  PlotView& plot = Find<PlotView>(form.PicJoy);
};

TEST_F(AnalyserWindow, OnlyWhatComesOutDifferentlyIsPainted) {
  Read(20000, 20000);
  Paints paints(plot);
  for (int i = 0; i < 10; ++i) Read(20000, 20000);
  EXPECT_EQ(paints.count, 0);
  Read(20001, 20000);  // less than a pixel
  EXPECT_EQ(paints.count, 0);
  Read(30000, 20000);
  EXPECT_EQ(paints.count, 1);
}

TEST_F(AnalyserWindow, TheTraceStaysWhenTheWindowWasHidden) {
  Read(20000, 20000);
  Read(50000, 50000);
  plot.window()->hide();
  QApplication::processEvents();
  plot.window()->show();
  QApplication::processEvents();
  EXPECT_EQ(plot.ColourAt(20000, 20000), kBlue);
  EXPECT_EQ(plot.grab().toImage().pixelColor(plot.width() * 20000 / 65535, plot.height() * 20000 / 65535),
            QColor(Qt::blue));
}

TEST_F(AnalyserWindow, TheToolbarIsBackWithTheEditor) {
  const Toolbar& toolbar = application.mum().Toolbar1;
  const auto goTo = [](QWidget& window) {
    window.activateWindow();
    QApplication::processEvents();
  };
  EXPECT_FALSE(toolbar.Visible);
  Q_EMIT qApp->focusWindowChanged(nullptr);  // another program
  EXPECT_FALSE(toolbar.Visible);
  auto& frame = Find<QWidget>(application.mum());
  goTo(frame);
  EXPECT_TRUE(toolbar.Visible);
  goTo(*plot.window());
  EXPECT_FALSE(toolbar.Visible);
  application.Unload(form);
  goTo(frame);
  EXPECT_TRUE(toolbar.Visible);
}

class RunningAnalyser : public HardwareWindows {
 protected:
  RunningAnalyser() : HardwareWindows(Clock::Real) {}
};

TEST_F(RunningAnalyser, PlotsAtThePaceOfTheScreen) {
  const auto& form = application.Tool<JoyPlot>();
  const auto& timer = Find<QTimer>(form.JoyTimer);
  EXPECT_TRUE(timer.isActive());
  EXPECT_EQ(form.JoyTimer.Interval, 1);
  EXPECT_EQ(timer.interval(), 17);
}

}  // namespace
}  // namespace tarvik::screen
