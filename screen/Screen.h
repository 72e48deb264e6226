// Shows the forms of a program: makes a view when a form is loaded, takes it away when the form is unloaded.
// The program and the tests on real widgets each have one.
#pragma once

#include <QObject>
#include <memory>

#include "app/Application.h"
#include "screen/FlightSign.h"
#include "screen/FormView.h"
#include "screen/widgets/FileDrop.h"
#include "screen/windows/WindowOrder.h"

class QWindow;

namespace tarvik::screen {

class MumWindow;

/// Made before the program starts; it must go before the application does.
class Screen {
 public:
  Screen(Application& application, Clock clock);
  ~Screen();
  Screen(const Screen&) = delete;
  Screen& operator=(const Screen&) = delete;

  /// The view of a loaded form, or null.
  [[nodiscard]] FormView* ViewOf(const Form& form) const;
  /// The widget or action that shows a component, or null.
  [[nodiscard]] QObject* Find(const Component& component) const;

 private:
  void Show(Form& form);
  void Unload(const Form& form);
  void TellActive(const QWindow* window);

  Application& application_;
  Clock clock_;
  MumWindow* frame_ = nullptr;
  std::vector<FormView*> views_;  // each ends itself when it retires
  std::vector<Connection> connections_;
  WindowOrder order_;
  DropGuard dropGuard_;
  FlightSign flightSign_;
  QObject context_;
};

}  // namespace tarvik::screen
