// The driver without a screen: it fires the events that a view would fire.
#include <algorithm>
#include <cmath>
#include <map>

#include "app/ColourSelector.h"
#include "app/Editor.h"
#include "controls/ImageBox.h"
#include "session/Chord.h"
#include "session/Driver.h"
#include "text/CodePage.h"

namespace tarvik::session {
namespace {

/// The modifiers' own bits.
const std::map<int, int> kModifierBits = {{16, shift::kShift}, {17, shift::kCtrl}, {18, shift::kAlt}};

/// The character that a key types, or 0.
int CharacterOf(const Key& key, std::string_view chord) {
  constexpr std::string_view kTyping = "\b\t\r\x1b ";
  const bool letter = key.code >= 'A' && key.code <= 'Z';
  if (key.shift == shift::kCtrl) return letter ? key.code - '@' : 0;
  if (key.shift & ~shift::kShift) return 0;
  if (letter) return key.shift ? key.code : key.code + ('a' - 'A');
  if (kTyping.find(static_cast<char>(key.code)) != std::string_view::npos) return key.code;
  const bool sign = key.code < 96 && chord.substr(chord.rfind('+') + 1).size() == 1;
  return sign ? key.code : 0;
}

/// What is drawn on pictures, for as long as their forms are there.
class Drawings {
 public:
  void Watch(PlotBox& picture) {
    connections_.push_back(picture.Drawn.Connect(
        [this, &picture](const Stroke& stroke) { strokes_[&picture].push_back(stroke); }));
    connections_.push_back(picture.Cleared.Connect([this, &picture] { strokes_[&picture].clear(); }));
  }

  /// That of the last stroke that comes within half a pixel of the place.
  [[nodiscard]] Colour ColourAt(const PlotBox& picture, float x, float y) {
    const std::vector<Stroke>& strokes = strokes_[&picture];
    const float pixel = (picture.ScaleHigh - picture.ScaleLow) / InPixels({picture.Width}).count;
    const auto hit = std::find_if(strokes.rbegin(), strokes.rend(), [&](const Stroke& stroke) {
      return Distance(stroke, x, y) <= pixel * static_cast<float>(stroke.width) / 2;
    });
    const bool shown = std::min(x, y) >= picture.ScaleLow && std::max(x, y) <= picture.ScaleHigh;
    return hit == strokes.rend() || !shown ? picture.BackColor.Get() : hit->colour;
  }

 private:
  static float Distance(const Stroke& line, float x, float y) {
    const float dx = line.x2 - line.x1;
    const float dy = line.y2 - line.y1;
    const float length = dx * dx + dy * dy;
    const float along = length == 0 ? 0 : ((x - line.x1) * dx + (y - line.y1) * dy) / length;
    const float at = std::clamp(along, 0.0F, 1.0F);
    return std::hypot(x - line.x1 - at * dx, y - line.y1 - at * dy);
  }

  std::map<const PlotBox*, std::vector<Stroke>> strokes_;
  std::vector<Connection> connections_;
};

/// What the text control does with a key that nobody swallowed.
class Typing {
 public:
  explicit Typing(Pane& pane) : pane_(pane) {}

  void Character(char c) {
    Range range = pane_.Selection();
    const std::size_t behind = Behind(range.start);
    if (pane_.Overtype && range.length == 0 && behind == range.start + 1) range.length = 1;
    Replace(range, std::string(1, c));
  }

  void Special(const Key& key) {
    const Range selection = pane_.Selection();
    switch (key.code) {
      case 13:
        return Replace(selection, "\r\n");
      case 8:
        return Replace(selection.length ? selection : Between(Before(selection.start), selection.start), "");
      case 46:
        return Replace(selection.length ? selection : Between(selection.start, Behind(selection.start)), "");
      case 35:
      case 36:
      case 37:
      case 39:
        return MoveCaret(key);
      case 38:
      case 40:
        return MoveLine(key);
      default:
        return;
    }
  }

 private:
  static Range Between(std::size_t from, std::size_t to) { return {from, to - from}; }
  [[nodiscard]] std::string_view Text() const { return pane_.Characters(); }

  void Replace(Range range, const std::string& text) {
    if (pane_.Locked || (range.length == 0 && text.empty())) return;
    pane_.UserReplaced(range, text);
  }

  [[nodiscard]] std::size_t Before(std::size_t at) const {
    if (at == 0) return 0;
    return at - (at > 1 && Text().substr(at - 2, 2) == "\r\n" ? 2 : 1);
  }
  [[nodiscard]] std::size_t Behind(std::size_t at) const {
    return std::min(at + (Text().substr(std::min(at, Text().size()), 2) == "\r\n" ? 2 : 1), Text().size());
  }

  void MoveCaret(const Key& key) {
    const Range selection = pane_.Selection();
    const bool whole = (key.shift & shift::kCtrl) != 0;
    std::size_t to = 0;
    // A selection is left at its edge.
    const bool leaves = selection.length > 0 && !(key.shift & shift::kShift);
    if (key.code == 37) to = leaves ? selection.start : Before(selection.start);
    if (key.code == 39) to = leaves ? selection.End() : Behind(selection.End());
    if (key.code == 36) to = whole || selection.start == 0 ? 0 : Text().rfind('\n', selection.start - 1) + 1;
    if (key.code == 35)
      to = whole ? Text().size() : std::min(Text().find('\r', selection.End()), Text().size());
    if (!(key.shift & shift::kShift)) return pane_.Select({to, 0});
    pane_.Select(to < selection.start ? Between(to, selection.End()) : Between(selection.start, to));
  }

  /// To the same column of the line above or below.
  void MoveLine(const Key& key) {
    const std::size_t at = key.code == 38 ? pane_.Selection().start : pane_.Selection().End();
    const auto begin = [this](std::size_t from) { return from == 0 ? 0 : Text().rfind('\n', from - 1) + 1; };
    const auto end = [this](std::size_t from) { return std::min(Text().find('\r', from), Text().size()); };
    const std::size_t column = at - begin(at);
    std::size_t line = begin(at);
    if (key.code == 38 && line > 0) line = begin(line - 2);
    if (key.code == 40 && end(at) < Text().size()) line = end(at) + 2;
    pane_.Select({std::min(line + column, end(line)), 0});
  }

  Pane& pane_;
};

class FormDriver : public Driver {
 public:
  /// A form that comes up, or a control of which gets the focus, is the active one; it hears of its size.
  explicit FormDriver(Application& application) : application_(application) {
    loaded_ = application.Loaded.Connect([this](Form& form) {
      shown_.push_back(
          form.PopUp.Connect([this, &form](std::string_view name) { popUps_.emplace_back(&form, name); }));
      const auto activated = [this, &form] {
        if (form.Visible) application_.Activated(form);
      };
      shown_.push_back(form.Visible.Changed.Connect([&form, activated] {
        activated();
        if (form.Visible) form.Resize();
      }));
      shown_.push_back(form.Raised.Connect(activated));
      shown_.push_back(form.ActiveControlChanged.Connect(activated));
      for (Component* const child : form.Children()) {
        if (auto* const picture = dynamic_cast<PlotBox*>(child)) drawings_.Watch(*picture);
      }
    });
    unloading_ = application.Unloading.Connect([this](Form& form) {
      std::erase_if(popUps_, [&form](const auto& open) { return open.first == &form; });
    });
  }

  bool Click(Component& control) override {
    ClosePopUps();
    application_.Activated(FormOf(control));
    if (auto* item = dynamic_cast<MenuItem*>(&control)) return Run(*item);
    if (auto* button = dynamic_cast<ToolbarButton*>(&control)) return Run(*button);
    if (auto* tab = dynamic_cast<Tab*>(&control)) {
      dynamic_cast<TabStrip&>(*tab->Parent()).Select(*tab->Index());
      return true;
    }
    auto* shown = dynamic_cast<Control*>(&control);
    if (!shown || !shown->Visible || !shown->Enabled) return false;
    if (auto* pane = dynamic_cast<Pane*>(shown)) {
      pane->SetFocus();
      pane->Click();
      return true;
    }
    if (auto* button = dynamic_cast<CommandButton*>(shown)) {
      button->SetFocus();
      return button->Click(), true;
    }
    if (auto* box = dynamic_cast<CheckBox*>(shown)) {
      box->SetFocus();
      box->Value = 1 - box->Value;
      return true;
    }
    if (auto* option = dynamic_cast<OptionButton*>(shown)) {
      option->SetFocus();
      option->Value = true;
      return true;
    }
    if (auto* label = dynamic_cast<Label*>(shown)) {
      label->SetFocus();
      label->Click();
      return true;
    }
    if (auto* box = dynamic_cast<TextBox*>(shown)) {
      box->SetFocus();
      box->MouseDown({1, 0, {}, {}});
      return true;
    }
    if (auto* picture = dynamic_cast<PictureBox*>(shown)) {
      picture->Click();
      return true;
    }
    return false;
  }

  bool DoubleClick(Component& control) override {
    application_.Activated(FormOf(control));
    if (auto* list = dynamic_cast<ListBox*>(&control)) return list->Visible && (list->DblClick(), true);
    if (auto* pane = dynamic_cast<Pane*>(&control)) return pane->Visible && (pane->DblClick(), true);
    if (auto* frame = dynamic_cast<Frame*>(&control)) return frame->Visible && (frame->DblClick(), true);
    if (auto* image = dynamic_cast<ImageBox*>(&control)) return image->Visible && (image->DblClick(), true);
    return false;
  }

  bool RightClick(Component& control) override {
    application_.Activated(FormOf(control));
    auto* shown = dynamic_cast<Control*>(&control);
    if (!shown || !shown->Visible) return false;
    shown->MouseDown({2, 0, {}, {}});
    return true;
  }

  bool Point(Component& control) override {
    if (auto* item = dynamic_cast<MenuItem*>(&control)) return item->Pointed(), true;
    if (auto* button = dynamic_cast<ToolbarButton*>(&control)) return button->Pointed(), true;
    if (auto* button = dynamic_cast<CommandButton*>(&control)) return button->Pointed(), true;
    return false;
  }

  bool Pick(Component& control, int index) override {
    application_.Activated(FormOf(control));
    if (auto* combo = dynamic_cast<ComboBox*>(&control)) {
      combo->Select(index);
      return true;
    }
    if (auto* list = dynamic_cast<ListBox*>(&control)) {
      if (!list->Visible) return false;
      list->ListIndex = index;
      list->MouseDown({1, 0, {}, {}});
      list->MouseUp({1, 0, {}, {}});
      return true;
    }
    if (auto* strip = dynamic_cast<TabStrip*>(&control)) {
      strip->Select(index + 1);
      return true;
    }
    if (auto* pages = dynamic_cast<TabPages*>(&control)) {
      if (index >= pages->Count() || !pages->Pages(index).Visible) return false;
      pages->Tab = index;
      return true;
    }
    if (auto* entry = dynamic_cast<EntryBox*>(&control)) {
      entry->SetFocus();
      entry->Pick(index);
      return true;
    }
    return false;
  }

  bool Type(Control& control, std::string_view text) override {
    ClosePopUps();
    application_.Activated(FormOf(control));
    if (!control.Visible || !control.Enabled) return false;
    control.SetFocus();
    if (auto* box = dynamic_cast<TextBox*>(&control)) return TypeIn(*box, text), true;
    auto& pane = dynamic_cast<Pane&>(control);
    for (const char c : text) {
      Key key{static_cast<unsigned char>(ToUpper(c)), 0};
      pane.KeyDown(key);
      int character = static_cast<unsigned char>(c);
      pane.KeyPress(character);
      if (key.code && character) Typing(pane).Character(c);
      pane.KeyUp(key);
    }
    return true;
  }

  bool PressKey(Component& control, std::string_view chord) override {
    Form* const form = &FormOf(control);
    if (!KeyDown(control, chord)) return false;
    const std::vector<Form*> forms = application_.Forms();
    return std::find(forms.begin(), forms.end(), form) == forms.end() || KeyUp(control, chord);
  }

  bool KeyUp(Component& control, std::string_view chord) override {
    Key key = *ParseChord(chord);
    if (const auto bit = kModifierBits.find(key.code); bit != kModifierBits.end()) key.shift &= ~bit->second;
    FormOf(control).KeyUp(key);
    return true;
  }

  void Resize(Form& form, float width, float height) override {
    form.ScaleWidth = width;
    form.ScaleHeight = height;
    form.Resize();
  }

  Colour ColourAt(PlotBox& picture, float x, float y) override { return drawings_.ColourAt(picture, x, y); }

  bool KeyDown(Component& control, std::string_view chord) override {
    ClosePopUps();
    application_.Activated(FormOf(control));
    Key key = *ParseChord(chord);
    if (const auto bit = kModifierBits.find(key.code); bit != kModifierBits.end()) key.shift |= bit->second;
    Form& form = FormOf(control);
    Key previewed = key;
    form.KeyDown(previewed);
    if (int character = CharacterOf(key, chord)) form.KeyPress(character);
    if (!previewed.code) return true;
    if (PressesButton(form, key)) return true;
    auto* pane = dynamic_cast<Pane*>(&control);
    if (auto* const box = dynamic_cast<TextBox*>(&control); box && EditIn(*box, key)) return true;
    if (!pane) return RunShortcut(control, chord) || static_cast<bool>(form.KeyDown);
    if (!pane->Visible) return false;
    pane->SetFocus();
    pane->KeyDown(key);
    if (key.code) {
      int character = key.code == 8 || key.code == 13 || key.code == 27 ? key.code : 0;
      if (character) pane->KeyPress(character);
      if (!RunShortcut(control, chord)) Typing(*pane).Special(key);
    }
    pane->KeyUp(key);
    return true;
  }

  void Close(Form& form) override {
    if (&form == &application_.editor()) {
      application_.CloseEditor();
    } else if (&form == &application_.mum()) {
      application_.CloseMum();
    } else if (dynamic_cast<ColourSelector*>(&form)) {
      form.Visible = false;
    } else {
      application_.CloseTool(form);
    }
  }

  void Mouse(Pointer act, Control& control, const tarvik::Mouse& mouse) override {
    if (act == Pointer::Down) control.MouseDown(mouse);
    if (act == Pointer::Move) control.MouseMove(mouse);
    if (act == Pointer::Up) control.MouseUp(mouse);
  }

  /// The button goes down on the item and moves on over it; behind the drop the list hears of nothing.
  void Drop(ListBox& from, Pane& pane, std::size_t position) override {
    from.MouseDown({1, 0, {}, {}});
    from.MouseMove({1, 0, {}, {}});
    from.OLEStartDrag();
    pane.Select({position, 0});
    if (!pane.Locked) pane.UserReplaced({position, 0}, from.DragText.Get());
    pane.SetFocus();
  }

  bool HasFocus(const Control& control) override { return control.OwnForm()->ActiveControl() == &control; }
  std::string Read(const Component& /*component*/, const PropertyBase& property) override {
    return property.ToText();
  }

 private:
  template <class T>
  static bool Run(T& item) {
    if (!item.Enabled || !item.Visible) return false;
    item.Click();
    return true;
  }

  static Form& FormOf(Component& control) {
    Component* form = &control;
    while (form->Parent()) form = form->Parent();
    return static_cast<Form&>(*form);
  }

  /// The Enter key presses the button with the focus, else the default one; Escape the Cancel button.
  static bool PressesButton(Form& form, const Key& key) {
    if ((key.code != key::kEnter && key.code != key::kEscape) || dynamic_cast<Pane*>(form.ActiveControl()))
      return false;
    auto* const focused = dynamic_cast<CommandButton*>(form.ActiveControl());
    if (key.code == key::kEnter && focused) return focused->Click(), true;
    for (Component* child : form.Children()) {
      auto* const button = dynamic_cast<CommandButton*>(child);
      if (!button || !(key.code == key::kEnter ? button->Default : button->Cancel)) continue;
      if (button->Enabled) button->Click();
      return true;
    }
    return false;
  }

  static void TypeIn(TextBox& box, std::string_view text) {
    for (const char c : text) box.SelText = std::string(1, c);
  }

  static bool EditIn(TextBox& box, const Key& key) {
    constexpr int kEnd = 35;
    constexpr int kHome = 36;
    const std::size_t length = box.Text.Get().size();
    const bool deletes = key.code == key::kBackspace || key.code == key::kDelete;
    if (!deletes && key.code != kHome && key.code != kEnd) return false;
    box.SetFocus();
    if (!deletes) {
      box.SelStart = key.code == kHome ? 0 : length;
      box.SelLength = 0;
      return true;
    }
    if (key.code == key::kBackspace && box.SelLength == 0U && box.SelStart > 0U) {
      box.SelStart = box.SelStart - 1;
      box.SelLength = 1;
    }
    if (key.code == key::kDelete && box.SelLength == 0U) box.SelLength = box.SelStart < length ? 1 : 0;
    box.SelText = std::string();
    return true;
  }

  /// Whatever the user does next, a menu that is open closes.
  void ClosePopUps() {
    for (const auto& [form, name] : std::exchange(popUps_, {})) form->PopUpClosed(name);
  }

  static bool RunShortcut(Component& control, std::string_view chord) {
    const Menus* menus = FormOf(control).MenuBar();
    MenuItem* item = menus ? menus->WithShortcut(chord) : nullptr;
    return item && Run(*item);
  }

  Application& application_;
  Connection loaded_;
  Connection unloading_;
  Drawings drawings_;
  std::vector<Connection> shown_;
  std::vector<std::pair<Form*, std::string>> popUps_;
};

}  // namespace

std::unique_ptr<Driver> MakeFormDriver(Application& application) {
  return std::make_unique<FormDriver>(application);
}

}  // namespace tarvik::session
