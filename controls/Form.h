// A window of the program, as the logic knows it: controls by name, one of which has the focus. It does not
// know what shows it.
#pragma once

#include "controls/Component.h"
#include "controls/Input.h"

namespace tarvik {

class Control;
class Menus;

/// The states of a form's window.
namespace window {
inline constexpr int kNormal = 0;
inline constexpr int kMinimised = 1;
inline constexpr int kMaximised = 2;
}  // namespace window

class Form : public Component {
 public:
  using Component::Component;

  Property<std::string> Caption{*this, "Caption"};
  /// The name of the file on show, for the title of its window, and whether that one holds unsaved work.
  Property<std::string> FileOnShow{*this, "FileOnShow"};
  Property<bool> Unsaved{*this, "Unsaved", false};
  /// Showing it, also once more, brings it back from being minimised.
  Attribute<bool> Visible{*this, "Visible", [this] { return visible_; },
                          [this](bool visible) { SetVisible(visible); }};
  /// Where the window stands on the screen.
  Property<Twips> Left{*this, "Left"};
  Property<Twips> Top{*this, "Top"};
  Property<Twips> Width{*this, "Width"};
  Property<Twips> Height{*this, "Height"};
  /// The inside, in the unit the form lays its controls out in.
  Property<float> ScaleWidth{*this, "ScaleWidth"};
  Property<float> ScaleHeight{*this, "ScaleHeight"};
  Property<int> WindowState{*this, "WindowState", window::kNormal};
  /// While it is true the window stays above all others.
  Property<bool> Topmost{*this, "Topmost", false};
  /// While it is true, and the form is shown, no other window takes input.
  Property<bool> Modal{*this, "Modal", false};
  /// Every key is the form's own: none is a shortcut, a mnemonic or the way to another control.
  Property<bool> OwnsKeys{*this, "OwnsKeys", false};
  Property<int> MousePointer{*this, "MousePointer", pointer::kDefault};

  Event<> Load{*this, "Load"};
  Event<> Unload{*this, "Unload"};
  Event<> Resize{*this, "Resize"};
  /// It became the one form of the program that the user is at, or was shown anew.
  Event<> Activate{*this, "Activate"};
  /// The user has gone on from it to the main window.
  Event<> Deactivate{*this, "Deactivate"};
  /// A key in any of the form's controls, before the control hears of it.
  Event<Key&> KeyDown{*this, "KeyDown"};
  /// A character that the key types, also of a key that was swallowed. A handler that sets it to 0 drops it.
  Event<int&> KeyPress{*this, "KeyPress"};
  Event<Key&> KeyUp{*this, "KeyUp"};

  /// Asks about unsaved work before the form goes. False: the user keeps it.
  virtual bool Form_QueryUnload() { return true; }

  /// The path of the file that it has in hand and will save, or nothing.
  [[nodiscard]] virtual std::string OpenPath() const { return {}; }

  /// The menus of the form's window, or null. Those whose entry is hidden only pop up.
  [[nodiscard]] virtual const Menus* MenuBar() const { return nullptr; }
  /// Asks whatever shows the form for a pop-up menu at the pointer or the caret; PopUpClosed is its answer
  /// when the menu has closed.
  Signal<std::string_view> PopUp;
  virtual void PopUpClosed(std::string_view /*name*/) {}

  /// Puts the form's window there.
  void MoveTo(Twips left, Twips top) {
    Left = left;
    Top = top;
    Moved();
  }
  Signal<> Moved;

  /// Shows the form, whole and in front of the others.
  void Show() {
    Visible = true;
    Raise();
  }
  /// Brings the form in front of the others.
  void Raise() {
    BringBack();
    Raised();
  }
  Signal<> Raised;

  /// The control with the focus, or null.
  [[nodiscard]] Control* ActiveControl() const { return active_; }
  /// Moves the focus: the old control hears of the loss before the new one of the gain. The form comes back
  /// from being minimised.
  void Focus(Control& control);
  /// Tells also that the control with the focus is to get it once more: on screen the focus may be elsewhere.
  Signal<> ActiveControlChanged;

 private:
  void SetVisible(bool visible);
  void BringBack();

  Control* active_ = nullptr;
  bool visible_ = false;
};

}  // namespace tarvik
