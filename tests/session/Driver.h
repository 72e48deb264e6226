// How a session acts as a user and reads what a user sees: on the forms themselves, or on real widgets.
#pragma once

#include <memory>

#include "app/Application.h"
#include "controls/PlotBox.h"
#include "panes/Pane.h"

namespace tarvik::session {

/// What the pointer does.
enum class Pointer { Down, Move, Up };

class Driver {
 public:
  virtual ~Driver() = default;

  /// These fail (false) when the user could not do it: the control is disabled or hidden.
  virtual bool Click(Component& control) = 0;
  virtual bool DoubleClick(Component& control) = 0;
  virtual bool RightClick(Component& control) = 0;
  /// Comes to a menu entry or a button of the toolbar and waits for its tool tip.
  virtual bool Point(Component& control) = 0;
  virtual bool Pick(Component& control, int index) = 0;
  /// Into a pane or a text box.
  virtual bool Type(Control& control, std::string_view text) = 0;
  /// A key such as "Ctrl+Z", "Return", "Shift+Right", "F8".
  virtual bool PressKey(Component& control, std::string_view chord) = 0;
  /// The same key on its way down alone, or up alone; also a modifier, "Shift".
  virtual bool KeyDown(Component& control, std::string_view chord) = 0;
  virtual bool KeyUp(Component& control, std::string_view chord) = 0;
  /// Gives a window another size inside, in twips.
  virtual void Resize(Form& form, float width, float height) = 0;
  /// What is drawn at a place of a picture, in its units.
  virtual Colour ColourAt(PlotBox& picture, float x, float y) = 0;
  /// The close box of a window.
  virtual void Close(Form& form) = 0;
  /// At a place of a control, in twips; while it moves, `mouse` tells the buttons that are down.
  virtual void Mouse(Pointer act, Control& control, const tarvik::Mouse& mouse) = 0;
  /// Drags the current item of a list to a place in a pane.
  virtual void Drop(ListBox& from, Pane& pane, std::size_t position) = 0;
  /// Whether the control has its window's focus.
  virtual bool HasFocus(const Control& control) = 0;
  /// What is on show of the component's property, as its text.
  virtual std::string Read(const Component& component, const PropertyBase& property) = 0;
  /// Lets what is pending happen, before something is expected.
  virtual void Settle() {}
};

/// Acts on the forms, with no screen.
std::unique_ptr<Driver> MakeFormDriver(Application& application);
/// Acts on widgets; there must be a QApplication.
std::unique_ptr<Driver> MakeScreenDriver(Application& application);

}  // namespace tarvik::session
