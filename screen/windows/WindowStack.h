// How the window manager has stacked the program's windows, which it may do anew at every click.
#pragma once

#include <QAbstractNativeEventFilter>
#include <QTimer>
#include <QWidget>

namespace tarvik::screen {

/// Tells how the windows on the screen lie once they were stacked anew, where the window system lets one
/// know.
class WindowStack : public QAbstractNativeEventFilter {
 public:
  /// The program's own windows, from the back to the front.
  using Restacked = void (*)(const QList<QWidget*>& windows);

  explicit WindowStack(Restacked restacked);
  ~WindowStack() override;
  WindowStack(const WindowStack&) = delete;
  WindowStack& operator=(const WindowStack&) = delete;

  bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

 private:
  void Look();

  Restacked restacked_;
  QTimer settling_;             // runs while the window manager may be stacking on
  QList<QWidget*> windows_;     // as they were stacked last
  int told_ = 0;                // how often in a row they lay so
  unsigned long stacking_ = 0;  // the root window's property that has the stack
};

}  // namespace tarvik::screen
