// The kinds of control that forms are made of. Each is a bundle of properties and events under the names that
// the forms' code uses; positions and sizes are in the unit of the form.
#pragma once

#include <algorithm>
#include <memory>

#include "controls/ControlArrays.h"
#include "controls/Form.h"
#include "controls/Input.h"
#include "controls/Require.h"

namespace tarvik {

/// The items as one text, each on a line of its own.
std::string Lines(const std::vector<std::string>& items);

class Control : public Component {
 public:
  Control(Component& parent, std::string_view name, std::optional<int> index = {})
      : Component(parent, name, index) {}

  Property<bool> Visible{*this, "Visible", true};
  Property<bool> Enabled{*this, "Enabled", true};
  Property<std::string> ToolTipText{*this, "ToolTipText"};
  Property<float> Left{*this, "Left"};
  Property<float> Top{*this, "Top"};
  Property<float> Width{*this, "Width"};
  Property<float> Height{*this, "Height"};
  Property<int> MousePointer{*this, "MousePointer", pointer::kDefault};

  Event<> GotFocus{*this, "GotFocus"};
  Event<> LostFocus{*this, "LostFocus"};
  Event<const Mouse&> MouseDown{*this, "MouseDown"};
  Event<const Mouse&> MouseMove{*this, "MouseMove"};
  Event<const Mouse&> MouseUp{*this, "MouseUp"};

  void Move(float left, float top, float width, float height);
  /// Gives the control the focus of its form.
  void SetFocus();
  /// Brings the control in front of its siblings.
  void ToFront() { Raised(); }
  Signal<> Raised;

  /// The form that it stands in, or null.
  [[nodiscard]] Form* OwnForm() const;
};

class MenuItem : public Component {
 public:
  using Component::Component;
  MenuItem(Component& parent, std::string_view name, std::string caption, std::string shortcut = {})
      : Component(parent, name) {
    Caption = std::move(caption);
    Shortcut = std::move(shortcut);
  }

  Property<std::string> Caption{*this, "Caption"};
  Property<std::string> Shortcut{*this, "Shortcut"};  ///< "Ctrl+S", "F8"
  Property<std::string> Image{*this, "Image"};        ///< an icon's name; empty for none
  Property<bool> Checked{*this, "Checked", false};
  Property<bool> Enabled{*this, "Enabled", true};
  Property<bool> Visible{*this, "Visible", true};
  Property<std::string> ToolTipText{*this, "ToolTipText"};
  Event<> Click{*this, "Click"};
  /// The user has come to it and has not chosen it yet: what its tool tip says can be brought up to date.
  Event<> Pointed{*this, "Pointed"};
  /// The caption is a user's own text: an "&" in it marks no letter, and a lone "-" is no divider.
  bool isUsersText = false;

  static constexpr std::string_view kDivider = "-";
};

class CommandButton : public Control {
 public:
  using Control::Control;
  CommandButton(Component& parent, std::string_view name, std::string caption) : Control(parent, name) {
    Caption = std::move(caption);
  }
  /// `click` is a function of its form.
  template <class F, class G>
  CommandButton(F& form, std::string_view name, std::string caption, void (G::*click)())
      : CommandButton(form, name, std::move(caption)) {
    Click = [&form, click] { (form.*click)(); };
  }
  Property<std::string> Caption{*this, "Caption"};
  /// The Enter key presses it, wherever the form's focus is; one button of a form at most.
  Property<bool> Default{*this, "Default", false};
  /// The Escape key presses it.
  Property<bool> Cancel{*this, "Cancel", false};
  Event<> Click{*this, "Click"};
  /// The pointer rests on it, and its tool tip is about to be shown.
  Event<> Pointed{*this, "Pointed"};

  /// Makes it the form's one default button.
  void MakeDefault();
};

/// A box with a tick: Value is 1 with it and 0 without.
class CheckBox : public Control {
 public:
  using Control::Control;
  CheckBox(Component& parent, std::string_view name, std::string caption);
  Property<std::string> Caption{*this, "Caption"};
  Attribute<int> Value{*this, "Value", [this] { return value_; }, [this](int value) { Set(value); }};
  /// Fires after every change of Value, by the user or by code.
  Event<> Click{*this, "Click"};

 private:
  void Set(int value);

  int value_ = 0;
};

/// An option out of several: setting one takes the mark from the others of its group, or of its array.
class OptionButton : public Control {
 public:
  OptionButton(Component& parent, std::string_view name, std::string caption, int group = 0);
  OptionButton(Component& parent, std::string_view name, std::optional<int> index)
      : Control(parent, name, index), group_(name) {}
  Property<std::string> Caption{*this, "Caption"};
  Attribute<bool> Value{*this, "Value", [this] { return value_; }, [this](bool value) { Set(value); }};
  /// Fires when the option gets the mark, by the user or by code.
  Event<> Click{*this, "Click"};

 private:
  void Set(bool value);

  std::string group_;
  bool value_ = false;
};

/// A line of text to type in.
class TextBox : public Control {
 public:
  using Control::Control;

  /// Setting the text puts the caret in front of it.
  Attribute<std::string> Text{*this, "Text", [this] { return text_; },
                              [this](const std::string& text) { SetText(text, 0); }};
  Property<std::size_t> SelStart{*this, "SelStart", 0};
  Property<std::size_t> SelLength{*this, "SelLength", 0};
  /// Setting it replaces what is selected; the caret goes behind the new text.
  Attribute<std::string> SelText{*this, "SelText", [this] { return text_.substr(SelStart, SelLength); },
                                 [this](const std::string& text) { ReplaceSelection(text); }};
  Property<Colour> BackColor{*this, "BackColor", kWhite};  ///< white is whatever the desktop makes of it
  /// The text changed, by the user or by code.
  Event<> Change{*this, "Change"};

  /// Takes over what the user has made of the text, and where the caret is now.
  void SetText(const std::string& text, std::size_t caret);
  void SelectAll();
  [[nodiscard]] bool Empty() const { return text_.empty(); }

 private:
  void ReplaceSelection(const std::string& text);

  std::string text_;
};

/// A line of text to type in, with a list of texts to pick from, in the order in which they were added.
class EntryBox : public TextBox {
 public:
  using TextBox::TextBox;

  void AddItem(const std::string& item);
  [[nodiscard]] const std::vector<std::string>& List() const { return items_; }
  /// Adds the text unless an item equals it exactly.
  void Remember(const std::string& text);
  /// Does what the user's picking of an item does.
  void Pick(int index);

  Attribute<std::string> Items{*this, "Items", [this] { return Lines(items_); }};
  Event<> Click{*this, "Click"};
  Signal<> ItemsChanged;

 private:
  std::vector<std::string> items_;
};

/// Pages on top of one another, each behind its tab.
class TabPages : public Control {
 public:
  class Page : public Component {
   public:
    using Component::Component;
    Property<std::string> Caption{*this, "Caption"};
    Property<bool> Visible{*this, "Visible", true};
  };

  TabPages(Component& parent, std::string_view name, const std::vector<std::string>& captions);

  /// The pages, counted from 0.
  [[nodiscard]] Page& Pages(int index) const { return Require(pages_, index, *this, "Pages"); }
  [[nodiscard]] int Count() const { return static_cast<int>(pages_.size()); }
  /// The page on show, 0-based.
  Attribute<int> Tab{*this, "Tab", [this] { return tab_; }, [this](int tab) { Set(tab); }};
  /// Fires after every change of Tab, by the user or by code.
  Event<> Click{*this, "Click"};

 private:
  void Set(int tab);

  std::vector<std::unique_ptr<Page>> pages_;
  int tab_ = 0;
};

class Label : public Control {
 public:
  using Control::Control;
  Property<std::string> Caption{*this, "Caption"};
  Property<Colour> BackColor{*this, "BackColor", kWhite};
  Property<int> BorderStyle{*this, "BorderStyle", 0};  ///< 1 with a line around it
  Event<> Click{*this, "Click"};
};

/// Tells by its back colour whether it is on: a lamp, or a switch that its handler turns.
class ToggleLabel : public Label {
 public:
  static constexpr Colour kOn{0x0080C0FF};
  static constexpr Colour kOff{0x8000000F};  ///< the face of a button, whatever the desktop makes it

  ToggleLabel(Component& parent, std::string_view name, std::optional<int> index = {})
      : Label(parent, name, index) {
    BackColor = kOff;
  }
  ToggleLabel(Component& parent, std::string_view name, std::string caption) : ToggleLabel(parent, name) {
    Caption = std::move(caption);
  }
  [[nodiscard]] bool On() const { return BackColor == kOn; }
  void TurnOn() { BackColor = kOn; }
  void Turn(bool on) { BackColor = on ? kOn : kOff; }
};

class Frame : public Control {
 public:
  using Control::Control;
  Property<std::string> Caption{*this, "Caption"};
  Event<> DblClick{*this, "DblClick"};
};

class PictureBox : public Control {
 public:
  using Control::Control;
  Property<Colour> BackColor{*this, "BackColor"};
  Event<> Click{*this, "Click"};
};

class ProgressBar : public Control {
 public:
  using Control::Control;
  Property<int> Min{*this, "Min", 0};
  Property<int> Max{*this, "Max", 100};
  Property<int> Value{*this, "Value", 0};
};

/// A lever that is moved between 0 and Max.
class Slider : public Control {
 public:
  using Control::Control;
  Property<int> Max{*this, "Max", 100};
  Property<int> Value{*this, "Value", 0};
};

/// A list of texts, sorted or in an order of their own, each of which can bear a tick or stand beside a
/// colour.
class ListBox : public Control {
 public:
  using Control::Control;

  [[nodiscard]] int ListCount() const { return static_cast<int>(items_.size()); }
  [[nodiscard]] const std::string& List(int index) const { return items_[static_cast<std::size_t>(index)]; }
  [[nodiscard]] const std::vector<std::string>& List() const { return items_; }
  [[nodiscard]] bool Selected(int index) const { return ticks_[static_cast<std::size_t>(index)]; }
  [[nodiscard]] const std::vector<bool>& Ticks() const { return ticks_; }
  /// The item at ListIndex, empty when there is none.
  [[nodiscard]] std::string Current() const;

  /// Takes the items and sorts them, with nothing selected and nothing ticked.
  void Fill(std::vector<std::string> items);
  void FillInOrder(std::vector<std::string> items);
  void Clear() { Fill({}); }
  /// The ticks of the items, in the order of the list.
  void Tick(std::vector<bool> ticks);
  /// A colour beside each item, in the order of the list.
  void Paint(std::vector<Colour> colours);
  [[nodiscard]] const std::vector<Colour>& Colours() const { return colours_; }

  Property<int> ListIndex{*this, "ListIndex", -1};
  Attribute<std::string> Items{*this, "Items", [this] { return Lines(items_); }};
  Attribute<std::string> Ticked{*this, "Ticked", [this] { return TickedLines(); }};
  Attribute<int> Count{*this, "ListCount", [this] { return ListCount(); }};
  Attribute<std::string> Swatches{*this, "Swatches", [this] { return ColourLines(); }};
  Event<> DblClick{*this, "DblClick"};
  Event<> OLEStartDrag{*this, "OLEStartDrag"};
  /// What a drag carries, as plain text; the drag's handler fills it.
  Property<std::string> DragText{*this, "DragText"};

  Signal<> ItemsChanged;
  Signal<> TicksChanged;
  Signal<> ColoursChanged;

 private:
  [[nodiscard]] std::string TickedLines() const;
  [[nodiscard]] std::string ColourLines() const;

  std::vector<std::string> items_;
  std::vector<bool> ticks_;
  std::vector<Colour> colours_;  // none, or one for each item
};

/// A drop-down list of texts, with no free typing.
class ComboBox : public Control {
 public:
  using Control::Control;

  [[nodiscard]] int ListCount() const { return static_cast<int>(items_.size()); }
  [[nodiscard]] const std::vector<std::string>& List() const { return items_; }
  [[nodiscard]] std::string Text() const;

  void Fill(std::vector<std::string> items);
  void FillInOrder(std::vector<std::string> items);
  void Clear() { Fill({}); }
  /// Selects the item and fires Click, also when it is selected already.
  void Select(int index);

  Property<int> ListIndex{*this, "ListIndex", -1};
  Attribute<std::string> TextProperty{*this, "Text", [this] { return Text(); }};
  Attribute<std::string> Items{*this, "Items", [this] { return Lines(items_); }};
  Event<> Click{*this, "Click"};
  Signal<> ItemsChanged;

 private:
  std::vector<std::string> items_;
};

class Tab : public Component {
 public:
  using Component::Component;
  Property<std::string> Caption{*this, "Caption"};
  Property<std::string> ToolTipText{*this, "ToolTipText"};
  Property<int> Image{*this, "Image", 0};
  Property<bool> Selected{*this, "Selected", false};
  Property<bool> Unsaved{*this, "Unsaved", false};  ///< its page holds unsaved work
};

class TabStrip : public Control {
 public:
  TabStrip(Component& parent, std::string_view name, int count);

  /// The tabs, counted from 1.
  [[nodiscard]] Tab& Tabs(int index) const { return Require(tabs_, index, *this, "Tabs", 1); }
  [[nodiscard]] int Count() const { return static_cast<int>(tabs_.size()); }
  [[nodiscard]] int SelectedIndex() const { return SelectedItem; }
  /// Selects a tab; fires Click when it was not the selected one.
  void Select(int index);
  /// Selects a tab for a strip that is to begin anew, with no Click.
  void Begin(int index);

  Property<int> SelectedItem{*this, "SelectedItem", 1};
  Event<> Click{*this, "Click"};

 private:
  std::vector<std::unique_ptr<Tab>> tabs_;
};

class ToolbarButton : public Component {
 public:
  using Component::Component;
  Property<std::string> ToolTipText{*this, "ToolTipText"};
  Property<std::string> Image{*this, "Image"};      ///< an icon's name; empty for a separator
  Property<bool> Checked{*this, "Checked", false};  ///< stays pressed
  Property<bool> Enabled{*this, "Enabled", true};
  Property<bool> Visible{*this, "Visible", true};
  Event<> Click{*this, "Click"};
  /// The pointer rests on it, and its tool tip is about to be shown.
  Event<> Pointed{*this, "Pointed"};
};

class Toolbar : public Control {
 public:
  Toolbar(Component& parent, std::string_view name, int count);

  /// The buttons, counted from 1.
  [[nodiscard]] ToolbarButton& Buttons(int index) const {
    return Require(buttons_, index, *this, "Buttons", 1);
  }
  [[nodiscard]] int Count() const { return static_cast<int>(buttons_.size()); }

  Property<bool> Wrappable{*this, "Wrappable", false};
  Property<bool> Flat{*this, "Flat", false};

 private:
  std::vector<std::unique_ptr<ToolbarButton>> buttons_;
};

class Panel : public Component {
 public:
  using Component::Component;
  Property<std::string> Text{*this, "Text"};
  Property<std::string> ToolTipText{*this, "ToolTipText"};
  Property<int> Picture{*this, "Picture", 0};
  Property<bool> Enabled{*this, "Enabled", true};
};

class StatusBar : public Control {
 public:
  StatusBar(Component& parent, std::string_view name, int count);

  /// The panels, counted from 1.
  [[nodiscard]] Panel& Panels(int index) const { return Require(panels_, index, *this, "Panels", 1); }
  [[nodiscard]] int Count() const { return static_cast<int>(panels_.size()); }

 private:
  std::vector<std::unique_ptr<Panel>> panels_;
};

/// Fires between other events, also while a message box is open. Whoever runs the program keeps its time.
class Timer : public Component {
 public:
  using Component::Component;
  Property<int> Interval{*this, "Interval", 0};  ///< milliseconds
  Property<bool> Enabled{*this, "Enabled", false};
  /// Milliseconds that have passed since it began or elapsed last: Interval, or what it was late by more.
  [[nodiscard]] int Passed() const { return std::max(passed, Interval.Get()); }
  int passed = 0;  ///< as a clock has measured it
  Event<> Elapsed{*this, "Timer"};
};

}  // namespace tarvik
