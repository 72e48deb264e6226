// The driver without a screen: it fires the events that a view would fire.
#include <algorithm>
#include <map>

#include "app/Editor.h"
#include "platform/CodePage.h"
#include "session/Driver.h"

namespace tarvik::session {
namespace {

const std::map<std::string_view, int> kKeyCodes = {
    {"Backspace", 8}, {"Tab", 9},       {"Return", 13}, {"Escape", 27}, {"Space", 32},
    {"PageUp", 33},   {"PageDown", 34}, {"End", 35},    {"Home", 36},   {"Left", 37},
    {"Up", 38},       {"Right", 39},    {"Down", 40},   {"Delete", 46},
};

Key ParseChord(std::string_view chord) {
  Key key;
  const auto take = [&](std::string_view prefix, int bit) {
    if (!chord.starts_with(prefix)) return;
    chord.remove_prefix(prefix.size());
    key.shift |= bit;
  };
  take("Ctrl+", shift::kCtrl);
  take("Alt+", shift::kAlt);
  take("Shift+", shift::kShift);
  const auto named = kKeyCodes.find(chord);
  if (named != kKeyCodes.end()) {
    key.code = named->second;
  } else if (chord.size() > 1 && chord[0] == 'F') {
    int number = 0;
    if (ParseText(chord.substr(1), number)) key.code = 111 + number;
  } else if (!chord.empty()) {
    key.code = static_cast<unsigned char>(ToUpper(chord[0]));
  }
  return key;
}

/// The form's menus, where it has any.
const Menus* MenusOf(Form& form) {
  if (auto* editor = dynamic_cast<Editor*>(&form)) return &editor->menus;
  if (auto* mum = dynamic_cast<Mum*>(&form)) return &mum->menus;
  return nullptr;
}

/// What the text control does with a key that nobody swallowed.
class Typing {
 public:
  explicit Typing(Pane& pane) : pane_(pane) {}

  void Character(char c) { Replace(pane_.Selection(), std::string(1, c)); }

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
    if (key.code == 37) to = Before(selection.start);
    if (key.code == 39) to = Behind(selection.End());
    if (key.code == 36) to = whole || selection.start == 0 ? 0 : Text().rfind('\n', selection.start - 1) + 1;
    if (key.code == 35)
      to = whole ? Text().size() : std::min(Text().find('\r', selection.End()), Text().size());
    if (!(key.shift & shift::kShift)) return pane_.Select({to, 0});
    pane_.Select(to < selection.start ? Between(to, selection.End()) : Between(selection.start, to));
  }

  Pane& pane_;
};

class FormDriver : public Driver {
 public:
  /// A form that comes up is the active one.
  explicit FormDriver(Application& application) : application_(application) {
    loaded_ = application.Loaded.Connect([this](Form& form) {
      shown_.push_back(form.Visible.Changed.Connect([&form] {
        if (form.Visible) form.Activate();
      }));
    });
  }

  bool Click(Component& control) override {
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
    if (auto* button = dynamic_cast<CommandButton*>(shown)) return button->Click(), true;
    if (auto* picture = dynamic_cast<PictureBox*>(shown)) {
      picture->Click();
      return true;
    }
    return false;
  }

  bool DoubleClick(Component& control) override {
    if (auto* list = dynamic_cast<ListBox*>(&control)) return list->Visible && (list->DblClick(), true);
    if (auto* frame = dynamic_cast<Frame*>(&control)) return frame->Visible && (frame->DblClick(), true);
    return false;
  }

  bool RightClick(Component& control) override {
    auto* shown = dynamic_cast<Control*>(&control);
    if (!shown || !shown->Visible) return false;
    shown->MouseDown({2, 0, 0, 0});
    return true;
  }

  bool Pick(Component& control, int index) override {
    if (auto* combo = dynamic_cast<ComboBox*>(&control)) {
      combo->Select(index);
      return true;
    }
    if (auto* list = dynamic_cast<ListBox*>(&control)) {
      if (!list->Visible) return false;
      list->ListIndex = index;
      list->MouseDown({1, 0, 0, 0});
      return true;
    }
    if (auto* strip = dynamic_cast<TabStrip*>(&control)) {
      strip->Select(index + 1);
      return true;
    }
    return false;
  }

  bool Type(Pane& pane, std::string_view text) override {
    if (!pane.Visible) return false;
    pane.SetFocus();
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
    Key key = ParseChord(chord);
    auto* pane = dynamic_cast<Pane*>(&control);
    if (!pane) return RunShortcut(control, chord);
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
    if (&form == application_.editor()) {
      application_.CloseEditor();
    } else if (&form == &application_.mum()) {
      application_.CloseMum();
    } else {
      form.Visible = false;
    }
  }

  void Drop(ListBox& from, Pane& pane, std::size_t position) override {
    from.OLEStartDrag();
    pane.Select({position, 0});
    if (!pane.Locked) pane.UserReplaced({position, 0}, from.DragText.Get());
    pane.SetFocus();
  }

  std::string Read(const PropertyBase& property) override { return property.ToText(); }

 private:
  template <class T>
  static bool Run(T& item) {
    if (!item.Enabled || !item.Visible) return false;
    item.Click();
    return true;
  }

  static bool RunShortcut(Component& control, std::string_view chord) {
    Component* form = &control;
    while (form->Parent()) form = form->Parent();
    const Menus* menus = MenusOf(static_cast<Form&>(*form));
    MenuItem* item = menus ? menus->WithShortcut(chord) : nullptr;
    return item && Run(*item);
  }

  Application& application_;
  Connection loaded_;
  std::vector<Connection> shown_;
};

}  // namespace

std::unique_ptr<Driver> MakeFormDriver(Application& application) {
  return std::make_unique<FormDriver>(application);
}

}  // namespace tarvik::session
