// Controls of one kind that are made together and are told apart by an index, or by their full names.
#pragma once

#include <functional>
#include <map>
#include <memory>

#include "controls/Component.h"
#include "controls/Form.h"
#include "controls/Require.h"

namespace tarvik {

/// Controls made from a table, by their full names such as "Text1(0)".
template <class T>
class NamedControls {
 public:
  explicit NamedControls(Form& form) : form_(form) {}

  T& operator()(std::string_view fullName) const {
    const auto at = members_.find(fullName);
    return Require(at == members_.end() ? nullptr : at->second.get(), form_, fullName);
  }
  template <class... Args>
  T& Load(std::string_view fullName, Args&&... args) {
    const std::size_t bracket = fullName.find('(');
    const auto index = bracket == std::string_view::npos
                           ? std::optional<int>()
                           : static_cast<int>(NumberIn(fullName.substr(bracket + 1)));
    auto& member = members_[std::string(fullName)];
    member = std::make_unique<T>(form_, fullName.substr(0, bracket), index, std::forward<Args>(args)...);
    return *member;
  }
  [[nodiscard]] const std::map<std::string, std::unique_ptr<T>, std::less<>>& Members() const {
    return members_;
  }

 private:
  Form& form_;
  std::map<std::string, std::unique_ptr<T>, std::less<>> members_;
};

/// Controls of one name, told apart by their index; members may come and go while the program runs.
template <class T>
class ControlArray {
 public:
  ControlArray(Component& parent, std::string_view name, int count) : parent_(&parent), name_(name) {
    for (int i = 0; i < count; ++i) Load(i);
  }
  ControlArray(Component& parent, std::string_view name, std::initializer_list<const char*> captions)
      : ControlArray(parent, name, 0) {
    for (const char* const caption : captions) Load(Count()).Caption = caption;
  }
  template <class F, class G>
  ControlArray(F& form, std::string_view name, std::initializer_list<const char*> captions,
               void (G::*click)(int))
      : ControlArray(form, name, captions) {
    OnClick(form, click);
  }

  T& operator()(int index) const {
    const auto at = members_.find(index);
    return Require(at == members_.end() ? nullptr : at->second.get(), *parent_, name_, index);
  }
  [[nodiscard]] int Count() const { return static_cast<int>(members_.size()); }
  /// A click on a member runs a function of the form, which gets the member's index.
  template <class F, class G>
  void OnClick(F& form, void (G::*click)(int)) const {
    for (const auto& member : members_) {
      member.second->Click = [&form, click, index = member.first] { (form.*click)(index); };
    }
  }
  T& Load(int index) {
    auto& member = members_[index];
    member = std::make_unique<T>(*parent_, name_, index);
    if (Prepare) Prepare(*member);
    Loaded(*member);
    return *member;
  }
  void Unload(int index) {
    Unloading((*this)(index));
    members_.erase(index);
  }

  /// Puts the members, also those to come, among the children of another component.
  void MoveTo(Component& parent) {
    parent_ = &parent;
    for (const auto& [index, member] : members_) parent.Adopt(*member);
  }

  /// The form's own set-up of a member loaded while the program runs.
  std::function<void(T&)> Prepare;
  Signal<T&> Loaded;
  Signal<T&> Unloading;

 private:
  Component* parent_;
  std::string name_;
  std::map<int, std::unique_ptr<T>> members_;
};

}  // namespace tarvik
