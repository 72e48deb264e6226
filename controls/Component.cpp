#include "controls/Component.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace tarvik {
namespace {

template <class T>
bool ParseNumber(std::string_view text, T& value) {
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  return error == std::errc{} && end == text.data() + text.size();
}

template <class T>
std::string NumberText(T value) {
  char buffer[64];
  const auto [end, error] = std::to_chars(buffer, buffer + sizeof buffer, value);
  return {buffer, end};
}

}  // namespace

std::string TextOf(bool value) { return value ? "True" : "False"; }
std::string TextOf(int value) { return NumberText(value); }
std::string TextOf(unsigned value) { return NumberText(value); }
std::string TextOf(Colour value) { return NumberText(NumberOf(value)); }
std::string TextOf(std::size_t value) { return NumberText(value); }
std::string TextOf(float value) { return NumberText(value); }
std::string TextOf(Twips value) { return NumberText(value.count); }
const std::string& TextOf(const std::string& value) { return value; }

bool ParseText(std::string_view text, bool& value) {
  value = text == "True" || text == "1";
  return value || text == "False" || text == "0";
}
bool ParseText(std::string_view text, int& value) { return ParseNumber(text, value); }
bool ParseText(std::string_view text, unsigned& value) { return ParseNumber(text, value); }
bool ParseText(std::string_view text, Colour& value) {
  std::uint32_t number = 0;
  if (!ParseNumber(text, number)) return false;
  value = Colour{number};
  return true;
}
bool ParseText(std::string_view text, std::size_t& value) { return ParseNumber(text, value); }
bool ParseText(std::string_view text, float& value) { return ParseNumber(text, value); }
bool ParseText(std::string_view text, Twips& value) { return ParseNumber(text, value.count); }
bool ParseText(std::string_view text, std::string& value) {
  value = text;
  return true;
}

double NumberIn(std::string_view text) {
  std::string number;
  for (const char c : text) {
    if (c != ' ' && (c != '+' || !number.empty())) number += c;
  }
  const bool word = number.find_first_of("0123456789.") > 1;  // "inf" is no number here
  double value = 0;
  const auto read = std::from_chars(number.data(), number.data() + number.size(), value);
  if (word) return 0;
  return read.ec == std::errc::result_out_of_range ? HUGE_VAL : value;
}

PropertyBase::PropertyBase(Component& owner, std::string_view name) : name_(name) {
  owner.properties_.push_back(this);
}

EventBase::EventBase(Component& owner, std::string_view name) : name_(name) { owner.events_.push_back(this); }

Component::Component(Component& parent, std::string_view name, std::optional<int> index)
    : name_(name), index_(index), parent_(&parent) {
  parent.children_.push_back(this);
}

Component::~Component() {
  if (parent_) std::erase(parent_->children_, this);
  for (Component* child : children_) child->parent_ = nullptr;
}

void Component::Adopt(Component& child) {
  if (child.parent_) std::erase(child.parent_->children_, &child);
  child.parent_ = this;
  children_.push_back(&child);
}

std::string Component::FullName() const { return index_ ? name_ + "(" + TextOf(*index_) + ")" : name_; }

Component* Component::FindChild(std::string_view name, std::optional<int> index) const {
  const auto found = std::find_if(children_.begin(), children_.end(), [&](const Component* child) {
    return child->name_ == name && child->index_ == index;
  });
  return found == children_.end() ? nullptr : *found;
}

PropertyBase* Component::FindProperty(std::string_view name) const {
  const auto found = std::find_if(properties_.begin(), properties_.end(),
                                  [&](const PropertyBase* property) { return property->Name() == name; });
  return found == properties_.end() ? nullptr : *found;
}

EventBase* Component::FindEvent(std::string_view name) const {
  const auto found = std::find_if(events_.begin(), events_.end(),
                                  [&](const EventBase* event) { return event->Name() == name; });
  return found == events_.end() ? nullptr : *found;
}

Component* Component::Resolve(std::string_view path) {
  Component* at = this;
  while (at && !path.empty()) {
    const std::string_view step = path.substr(0, path.find('.'));
    path.remove_prefix(std::min(path.size(), step.size() + 1));
    const std::size_t bracket = step.find('(');
    std::optional<int> index;
    if (bracket != std::string_view::npos) {
      int number = 0;
      if (!ParseText(step.substr(bracket + 1, step.size() - bracket - 2), number)) return nullptr;
      index = number;
    }
    at = at->FindChild(step.substr(0, bracket), index);
  }
  return at;
}

}  // namespace tarvik
