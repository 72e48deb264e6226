// Which of many names contain what somebody has typed so far.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarvik {

class NameFilter {
 public:
  NameFilter() = default;
  explicit NameFilter(const std::vector<std::string>& names);

  /// The indices of the names that contain each word of `typed`, in their order and with no regard to case;
  /// all where nothing is typed.
  [[nodiscard]] std::vector<int> Matching(std::string_view typed) const;

 private:
  [[nodiscard]] std::vector<int> Containing(std::string_view word) const;

  std::string names_;  // one behind the other, in lower case, each with a line feed behind it
  std::vector<std::size_t> ends_;
};

}  // namespace tarvik
