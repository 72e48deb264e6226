// How the window manager has stacked the program's windows, which it may do anew at every click.
#pragma once

#include <QAbstractNativeEventFilter>
#include <QWidget>

namespace tarvik::screen {

/// Tells whenever the windows on the screen are stacked anew, where the window system lets one know.
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
  QList<QWidget*> windows_;     // as they were stacked last
  unsigned long stacking_ = 0;  // the root window's property that has the stack
};

}  // namespace tarvik::screen
