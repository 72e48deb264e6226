// What the two files mean, kept up to date with every edit of their panes.
#pragma once

#include "language/Names.h"
#include "workbench/Documents.h"

namespace tarvik {

[[nodiscard]] inline model::FileKind FileKindOf(const Document& document) {
  return document.IsJoystick() ? model::FileKind::Joystick : model::FileKind::Macros;
}
[[nodiscard]] inline Document& DocumentOf(Documents& documents, model::FileKind file) {
  return file == model::FileKind::Joystick ? documents.joystick : documents.macro;
}
/// The beginning of what is told of a line, which counts from 1: "Joystick 12:  ".
[[nodiscard]] std::string LineInWords(const Document& document, std::size_t line);

class FileModels {
 public:
  explicit FileModels(Documents& documents);

  /// Both files with all that is known of what is attached and of how the files are called. It is good until
  /// the next edit.
  [[nodiscard]] model::FilePair Pair() const;
  /// Its names, until the next edit too.
  [[nodiscard]] const model::NameIndex& Names() const;
  /// One of the files, its name, or what is attached has changed.
  Signal<> Changed;

 private:
  [[nodiscard]] model::Hardware Chosen() const;
  void Follow(const Document& document, const PaneEdit& edit);

  Documents& documents_;
  model::JoystickFile joystick_;
  model::MacroFile macros_;
  mutable std::optional<model::NameIndex> names_;  // made when somebody asks
  std::vector<Connection> connections_;
};

}  // namespace tarvik
