// The types of files that file dialogs offer, each as its words and its pattern.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace tarvik::filetypes {

inline constexpr std::string_view kAll = "All files (*.*)|*.*";
inline constexpr std::string_view kExecutables = "Executables (*.exe)|*.exe";
inline constexpr std::string_view kBatchFiles = "Batch files (*.bat)|*.bat";

/// The files of one ending: "Joystick file (*.b50)|*.b50".
[[nodiscard]] inline std::string OfEnding(std::string_view kind, std::string_view ending) {
  std::string type(kind);
  return type.append(" (*.").append(ending).append(")|*.").append(ending);
}

/// The types in the order in which a dialog offers them.
[[nodiscard]] inline std::string InOrder(std::initializer_list<std::string_view> types) {
  std::string filter;
  for (const std::string_view type : types) filter.append(filter.empty() ? "" : "|").append(type);
  return filter;
}

}  // namespace tarvik::filetypes
