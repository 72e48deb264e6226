// The name of a file and the folder it is put in, as types of their own: what a file says of another one's
// name can thus never lead out of the folder.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tarvik {

/// One component of a path and nothing else, or no name at all.
class FileName {
 public:
  FileName() = default;
  /// Nothing for a text that is empty, holds a separator, or means the folder itself or the one above it.
  static std::optional<FileName> From(std::string_view text) {
    const bool leads = text.find_first_of("\\/") != std::string_view::npos || text == "." || text == "..";
    if (text.empty() || leads) return {};
    return FileName(text);
  }
  /// The name that stands behind the last separator of a path.
  static std::optional<FileName> Of(std::string_view path) { return From(path.substr(path.rfind('\\') + 1)); }

  [[nodiscard]] const std::string& Text() const { return text_; }
  bool operator==(const FileName&) const = default;

 private:
  explicit FileName(std::string_view text) : text_(text) {}

  std::string text_;
};

/// A folder that takes files by their names alone; its path ends in a separator.
class Folder {
 public:
  Folder() = default;
  explicit Folder(std::string path) : path_(std::move(path)) {}

  [[nodiscard]] const std::string& Path() const { return path_; }
  /// The path of the file of that name in it.
  [[nodiscard]] std::string operator/(const FileName& name) const { return path_ + name.Text(); }
  bool operator==(const Folder&) const = default;

 private:
  std::string path_;
};

inline const std::string& TextOf(const FileName& name) { return name.Text(); }
inline const std::string& TextOf(const Folder& folder) { return folder.Path(); }
inline bool ParseText(std::string_view text, FileName& name) {
  const auto read = FileName::From(text);
  if (read) name = *read;
  return read.has_value();
}
inline bool ParseText(std::string_view text, Folder& folder) {
  folder = Folder(std::string(text));
  return true;
}

}  // namespace tarvik
