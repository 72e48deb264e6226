// Announces something to any number of listeners: how a property tells its views of a change.
#pragma once

#include <functional>
#include <memory>
#include <vector>

namespace tarvik {

/// Ends a listener's connection when it goes; it may outlive the signal.
using Connection = std::shared_ptr<void>;

template <class... Args>
class Signal {
 public:
  using Listener = std::function<void(Args...)>;

  [[nodiscard]] Connection Connect(Listener listener) {
    std::erase_if(listeners_, [](const auto& weak) { return weak.expired(); });
    auto held = std::make_shared<Listener>(std::move(listener));
    listeners_.push_back(held);
    return held;
  }

  /// Listeners may come and go while they are called.
  void operator()(Args... args) {
    for (std::size_t i = 0; i < listeners_.size(); ++i) {
      if (const auto listener = listeners_[i].lock()) (*listener)(args...);
    }
  }

 private:
  std::vector<std::weak_ptr<Listener>> listeners_;
};

}  // namespace tarvik
