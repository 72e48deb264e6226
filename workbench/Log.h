// What somebody who looks for a fault wants to know of a run: the errors that were recorded, the programs
// that were started, what the desktop opened, the settings that could not be read. It is meant to be shown to
// others, so that nothing of the user's text goes into it, nor the name of a file other than a program's.
#pragma once

#include <deque>

#include "controls/Signal.h"
#include "platform/Platform.h"

namespace tarvik {

class Log {
 public:
  /// The lines that it keeps; older ones go.
  static constexpr std::size_t kMost = 1000;

  explicit Log(const Calendar& calendar) : calendar_(calendar) {}

  void ErrorRecorded(std::string_view tag, const Failure& failure);
  void SettingUnreadable(std::string_view section, std::string_view key);
  void SettingsFileUnreadable(const Failure& failure);
  void SettingsFileDamaged();
  /// Puts the time before it.
  void Write(std::string_view what);

  /// The oldest first.
  [[nodiscard]] const std::deque<std::string>& Lines() const { return lines_; }
  /// A line came.
  Signal<const std::string&> Written;

 private:
  const Calendar& calendar_;
  std::deque<std::string> lines_;
};

/// A failure as the log tells it, such as "error 53, File not found".
[[nodiscard]] std::string InWords(const Failure& failure);

}  // namespace tarvik
