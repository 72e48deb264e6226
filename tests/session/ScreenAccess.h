// A user's hands and eyes on real widgets, for session tests: mouse and keys go to the widget that shows a
// component, and what it shows is read back.
#pragma once

#include <QKeyEvent>
#include <string>
#include <string_view>

#include "controls/PlotBox.h"
#include "panes/Pane.h"
#include "screen/Screen.h"
#include "session/WidgetReader.h"

namespace tarvik::screen {

/// Each act returns when all that follows from it has happened. On what is hidden or disabled it does
/// nothing.
class ScreenAccess {
 public:
  explicit ScreenAccess(Screen& screen) : screen_(screen) {}

  /// With the left button; menu entries are chosen.
  void Click(Component& component);
  void DoubleClick(Component& component);
  void RightClick(Component& component);
  /// The pointer comes to it and rests there.
  bool Point(Component& component);
  /// Gives the focus.
  void Focus(Component& component);
  /// An item of a list, drop-down list or tab strip, from 0. False when it is not there.
  bool Pick(Component& component, int index);
  /// Key by key.
  void Type(Control& control, std::string_view text);
  /// "Ctrl+Z", "F8", "Return".
  void PressKey(Component& component, std::string_view chord);
  /// Its way down alone, or up alone; also of a modifier: "Shift", "Ctrl+Alt".
  void KeyDown(Component& component, std::string_view chord);
  void KeyUp(Component& component, std::string_view chord);
  /// A press, a move or a release of the mouse at a place of the control, in twips.
  void Mouse(QEvent::Type act, const Control& control, const tarvik::Mouse& mouse);
  /// Drags the list's current item as text to a position in a pane.
  void Drop(ListBox& from, Pane& to, std::size_t position);
  [[nodiscard]] bool HasFocus(const Control& control) const;
  /// False for a control on a page or in a window that is not shown.
  [[nodiscard]] bool IsOnShow(const Component& component) const;
  /// Lets what is pending happen.
  void Settle();
  /// Gives a window another size inside, in twips.
  void Resize(const Form& form, float width, float height);
  /// The window's close box.
  void Close(const Form& form);

  /// What is drawn at a place of a picture, in its units.
  [[nodiscard]] Colour ColourAt(const PlotBox& picture, float x, float y) const;
  /// What is on show of a property, or what it holds where the screen does not tell.
  [[nodiscard]] std::string Read(const Component& component, const PropertyBase& property) const {
    return ReadOff(screen_, component, property.Name()).value_or(property.ToText());
  }

 private:
  [[nodiscard]] QWidget* WidgetOf(const Component& component) const;
  /// The user goes to the window that the component is in.
  void GoTo(const Component& component);
  void ClickAt(Component& component, Qt::MouseButton button, bool twice);
  void Press(QWidget& widget, QKeyCombination key, const QString& text);

  Screen& screen_;
};

}  // namespace tarvik::screen
