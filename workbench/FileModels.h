// What the two files mean, kept up to date with every edit of their panes.
#pragma once

#include "language/FilePair.h"
#include "workbench/Documents.h"

namespace tarvik {

[[nodiscard]] inline model::FileKind FileKindOf(const Document& document) {
  return document.IsJoystick() ? model::FileKind::Joystick : model::FileKind::Macros;
}
/// The beginning of what is told of a line, which counts from 1: "Joystick 12:  ".
[[nodiscard]] std::string LineInWords(const Document& document, std::size_t line);

class FileModels {
 public:
  explicit FileModels(Documents& documents);

  /// Both files with all that is known of what is attached and of how the files are called. It is good until
  /// the next edit.
  [[nodiscard]] model::FilePair Pair() const;

 private:
  void Follow(const Document& document, const PaneEdit& edit);

  Documents& documents_;
  model::JoystickFile joystick_;
  model::MacroFile macros_;
  std::vector<Connection> connections_;
};

}  // namespace tarvik
