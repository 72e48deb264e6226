// The one way to ask for a part that must be there, by its name or its index.
#pragma once

#include <memory>
#include <optional>
#include <stdexcept>
#include <string_view>
#include <vector>

namespace tarvik {

class Component;

/// The program asked for a part that there is not: "Editor.List1(7) is not there".
class WrongLookup : public std::logic_error {
 public:
  using std::logic_error::logic_error;
};

/// Tells which part was asked for. Ends the process in a debug build; in a release `WrongLookup` is thrown,
/// which ends the handler that asked, and whoever runs the handlers records it.
[[noreturn]] void TellWrongLookup(const Component& place, std::string_view name, std::optional<int> index);

/// What `found` points to. Where it is null the part was looked for in `place` in vain.
template <class T>
[[nodiscard]] T& Require(T* found, const Component& place, std::string_view name,
                         std::optional<int> index = {}) {
  if (!found) TellWrongLookup(place, name, index);
  return *found;
}

/// The same for a part of a row of parts, whose indices begin with `first`.
template <class T>
[[nodiscard]] T& Require(const std::vector<std::unique_ptr<T>>& parts, int index, const Component& place,
                         std::string_view name, int first = 0) {
  const auto at = static_cast<std::size_t>(index - first);
  return Require(index >= first && at < parts.size() ? parts[at].get() : nullptr, place, name, index);
}

}  // namespace tarvik
