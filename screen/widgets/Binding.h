// How each kind of control is shown: both directions of its properties, its events, its name and tool tip,
// written once per kind. Every view holds one `Bindings` for its form.
#pragma once

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QSlider>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>
#include <QToolButton>
#include <QWidget>
#include <functional>
#include <map>

#include "controls/Controls.h"

namespace tarvik::screen {

/// Whether timers run by the clock, or only when a script says so.
enum class Clock { Real, Scripted };

/// What a form measures the places of its controls in.
enum class Unit { Pixel, Twip };

/// The nearest whole one.
[[nodiscard]] int ToPixels(float value, Unit unit = Unit::Pixel);
[[nodiscard]] inline int ToPixels(Twips value) { return ToPixels(InPixels(value).count); }
[[nodiscard]] int ShiftState(Qt::KeyboardModifiers modifiers);
/// The event as a control hears of it. While moving, the buttons that are down.
[[nodiscard]] Mouse ToMouse(const QMouseEvent& event);

/// The dynamic property of a widget whose mnemonic is not in its control's caption: the letter.
inline constexpr const char* kMnemonic = "mnemonic";
/// The dynamic property of a widget that is to have no mnemonic.
inline constexpr const char* kNoMnemonic = "noMnemonic";
/// The caption with the widget's own mnemonic marked.
[[nodiscard]] QString WithMnemonic(QString caption, const QWidget& widget);

class Bindings {
 public:
  Bindings() = default;
  Bindings(const Bindings&) = delete;
  Bindings& operator=(const Bindings&) = delete;

  /// `show` runs now and after every change of the property.
  void Bind(PropertyBase& property, std::function<void()> show);
  void Keep(Connection connection) { connections_.push_back(std::move(connection)); }
  /// The widget or action that shows the component, which gets the component's name.
  void Shows(const Component& component, QObject& shown);
  /// For a component that goes before its view.
  void Forget(const Component& component);
  /// For a form that goes before its view.
  void Release();
  /// For widgets that hear of controls by themselves, which they must do no more.
  Signal<> Released;

  [[nodiscard]] QObject* Find(const Component& component) const;

  /// What all controls have: visibility, tool tip, pointer, focus.
  void BindControl(Control& control, QWidget& widget);
  /// The mouse events, for widgets that have no say in them themselves.
  void BindMouse(Control& control, QWidget& widget);
  /// Where the control stands in its parent.
  void Place(Control& control, QWidget& widget, Unit unit);

  void Bind(MenuItem& item, QAction& action);
  void Bind(CommandButton& button, QAbstractButton& widget);
  void Bind(ToolbarButton& button, QToolButton& widget);
  void Bind(Label& label, QLabel& widget);
  void Bind(ToggleLabel& label, QAbstractButton& widget);
  /// A label that is pressed; with a border it stays pressed.
  void Bind(Label& label, QAbstractButton& widget);
  void Bind(ComboBox& combo, QComboBox& widget);
  void Bind(TextBox& box, QLineEdit& widget);
  void Bind(EntryBox& box, QComboBox& widget);
  void Bind(CheckBox& box, QAbstractButton& widget);
  void Bind(OptionButton& button, QAbstractButton& widget);
  void Bind(TabPages& pages, QTabWidget& widget);
  void Bind(TabStrip& strip, QTabBar& widget);
  void Bind(ProgressBar& bar, QProgressBar& widget);
  void Bind(Slider& slider, QSlider& widget);
  void Bind(Timer& timer, QTimer& clock);

 private:
  void BindText(TextBox& box, QLineEdit& line);
  void BindBackColour(Label& label, QWidget& widget);
  template <class Captioned, class Widget>
  void BindCaption(Captioned& control, Widget& widget);
  void BindTab(Tab& tab, QTabBar& widget, int index);

  std::map<const Component*, QObject*> shown_;
  std::vector<Connection> connections_;
  bool takingFocus_ = false;  // from the user
};

}  // namespace tarvik::screen
