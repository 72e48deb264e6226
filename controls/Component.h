// What every form, control and group of values is made of: named properties and events that can be found,
// read, set and fired by text. Views, sessions and state dumps all work through this one registry.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "controls/Signal.h"
#include "controls/Twips.h"
#include "text/Colour.h"

namespace tarvik {

class Component;

/// The text forms of property values: numbers in decimal, "True" and "False".
std::string TextOf(bool value);
std::string TextOf(int value);
std::string TextOf(unsigned value);
std::string TextOf(Colour value);
std::string TextOf(std::size_t value);
std::string TextOf(float value);
std::string TextOf(Twips value);
const std::string& TextOf(const std::string& value);
bool ParseText(std::string_view text, bool& value);
bool ParseText(std::string_view text, int& value);
bool ParseText(std::string_view text, unsigned& value);
bool ParseText(std::string_view text, Colour& value);
bool ParseText(std::string_view text, std::size_t& value);
bool ParseText(std::string_view text, float& value);
bool ParseText(std::string_view text, Twips& value);
bool ParseText(std::string_view text, std::string& value);

/// The number that a text begins with, blanks aside; 0 where it begins with none.
double NumberIn(std::string_view text);

class PropertyBase {
 public:
  PropertyBase(Component& owner, std::string_view name);
  virtual ~PropertyBase() = default;
  PropertyBase(const PropertyBase&) = delete;
  PropertyBase& operator=(const PropertyBase&) = delete;

  [[nodiscard]] std::string_view Name() const { return name_; }
  [[nodiscard]] virtual std::string ToText() const = 0;
  /// False when the text is no value of the property's type; the value then stays.
  virtual bool FromText(std::string_view text) = 0;

  Signal<> Changed;

 private:
  std::string_view name_;
};

/// A value that announces its change and reads like the value it is.
template <class T>
class Property final : public PropertyBase {
 public:
  Property(Component& owner, std::string_view name, T initial = {})
      : PropertyBase(owner, name), value_(std::move(initial)) {}

  /// Takes the other property's value.
  Property& operator=(const Property& other) { return *this = other.value_; }
  operator const T&() const { return value_; }  // NOLINT(google-explicit-constructor)
  [[nodiscard]] const T& Get() const { return value_; }
  Property& operator=(T value) {
    if (value == value_) return *this;
    value_ = std::move(value);
    Changed();
    return *this;
  }

  [[nodiscard]] std::string ToText() const override { return std::string(TextOf(value_)); }
  bool FromText(std::string_view text) override {
    T value{};
    if (!ParseText(text, value)) return false;
    *this = std::move(value);
    return true;
  }

 private:
  T value_;
};

/// A value that its component works out when asked, and acts on when set.
template <class T>
class Attribute final : public PropertyBase {
 public:
  using Getter = std::function<T()>;
  using Setter = std::function<void(T)>;

  Attribute(Component& owner, std::string_view name, Getter get, Setter set = {})
      : PropertyBase(owner, name), get_(std::move(get)), set_(std::move(set)) {}

  Attribute& operator=(const Attribute& other) { return *this = other.get_(); }
  operator T() const { return get_(); }  // NOLINT(google-explicit-constructor)
  [[nodiscard]] T Get() const { return get_(); }
  Attribute& operator=(T value) {
    set_(std::move(value));
    return *this;
  }

  [[nodiscard]] std::string ToText() const override { return std::string(TextOf(get_())); }
  bool FromText(std::string_view text) override {
    T value{};
    if (!set_ || !ParseText(text, value)) return false;
    set_(std::move(value));
    return true;
  }

 private:
  Getter get_;
  Setter set_;
};

class EventBase {
 public:
  EventBase(Component& owner, std::string_view name);
  virtual ~EventBase() = default;
  EventBase(const EventBase&) = delete;
  EventBase& operator=(const EventBase&) = delete;

  [[nodiscard]] std::string_view Name() const { return name_; }

 private:
  std::string_view name_;
};

/// Something that happens to a control. The form sets its one handler; whoever shows the control fires it.
template <class... Args>
class Event final : public EventBase {
 public:
  using Handler = std::function<void(Args...)>;
  using EventBase::EventBase;

  Event& operator=(Handler handler) {
    handler_ = std::move(handler);
    return *this;
  }
  void operator()(Args... args) const {
    if (handler_) handler_(args...);
  }
  explicit operator bool() const { return static_cast<bool>(handler_); }

 private:
  Handler handler_;
};

class Component {
 public:
  explicit Component(std::string_view name) : name_(name) {}
  Component(Component& parent, std::string_view name, std::optional<int> index = {});
  virtual ~Component();
  Component(const Component&) = delete;
  Component& operator=(const Component&) = delete;

  [[nodiscard]] std::string_view Name() const { return name_; }
  [[nodiscard]] std::optional<int> Index() const { return index_; }
  [[nodiscard]] Component* Parent() const { return parent_; }
  [[nodiscard]] const std::vector<Component*>& Children() const { return children_; }
  [[nodiscard]] const std::vector<PropertyBase*>& Properties() const { return properties_; }

  /// Takes a component that was made elsewhere among the children of this one, until another one takes it.
  void Adopt(Component& child);

  /// The name as a person writes it: "Toolbar1", "List1(2)".
  [[nodiscard]] std::string FullName() const;
  [[nodiscard]] Component* FindChild(std::string_view name, std::optional<int> index) const;
  [[nodiscard]] PropertyBase* FindProperty(std::string_view name) const;
  [[nodiscard]] EventBase* FindEvent(std::string_view name) const;
  /// Follows a path such as "Toolbar1.Buttons(11)" down from here; null when a step is not there.
  [[nodiscard]] Component* Resolve(std::string_view path);

 private:
  friend class PropertyBase;
  friend class EventBase;

  std::string name_;
  std::optional<int> index_;
  Component* parent_ = nullptr;
  std::vector<Component*> children_;
  std::vector<PropertyBase*> properties_;
  std::vector<EventBase*> events_;
};

}  // namespace tarvik
