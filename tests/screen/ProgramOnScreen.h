// A whole program on real widgets, for tests of what only the toolkit can show: over a disk in memory,
// started on an ordinary day. A fixture derives from it, or has it as a member.
#pragma once

#include <QApplication>

#include "app/Program.h"
#include "screen/Screen.h"

namespace tarvik::screen {

class ProgramOnScreen : public UnstartedProgram {
 public:
  explicit ProgramOnScreen(Clock clock = Clock::Scripted) : screen(application, clock) {
    Start();
    QApplication::processEvents();
  }

  Screen screen;

  /// The widget of a control.
  template <class Widget>
  [[nodiscard]] Widget& Find(const Component& component) const {
    return *dynamic_cast<Widget*>(screen.Find(component));
  }
  /// The window of a form.
  template <class Window = QWidget>
  [[nodiscard]] Window& WindowOf(const Form& form) const {
    return *dynamic_cast<Window*>(screen.ViewOf(form));
  }
  /// The tool, after its window has come up.
  template <class Tool>
  Tool& Show() {
    auto& tool = application.Tool<Tool>();
    tool.Visible = true;
    QApplication::processEvents();
    return tool;
  }
};

}  // namespace tarvik::screen
