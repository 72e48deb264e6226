// The earlier texts of each document, one file each, in a folder of its own among the backups. Documents of
// one name in two folders have two folders here, since the host's path tells them apart.
#pragma once

#include <span>

#include "workbench/Documents.h"

namespace tarvik {

/// Who wrote a text into a document's file.
enum class Author { User, OtherProgram };

struct Version {
  FileName file;
  std::size_t number = 0;  ///< the later one has the larger
  std::string saved;       ///< by the clock of that time, as "2026-11-22 07.45.12"
  Author author = Author::User;
};

class Versions {
 public:
  static constexpr std::size_t kMost = 20;

  explicit Versions(const Documents& documents) : documents_(documents) {}

  /// Makes the text the document's newest version, unless it is that already. When there are too many then,
  /// those go that are missed least. The failure is that of writing it.
  Outcome<> Keep(const Document& document, std::string_view text, Author author) const;
  /// The newest first.
  [[nodiscard]] std::vector<Version> Of(const Document& document) const;
  /// As a pane shows it, taken out of whatever encoding it is in.
  [[nodiscard]] Outcome<std::string> TextOf(const Document& document, const Version& version) const;
  [[nodiscard]] std::string PathOf(const Document& document, const Version& version) const;

 private:
  [[nodiscard]] Folder FolderOf(const Document& document) const;
  void Thin(const Document& document) const;

  const Documents& documents_;
};

/// The version that is missed least: which of its neighbours are close together for its age. The first and
/// the last one are never that. `saved` are seconds, the oldest first, at least three; `now` is a second too.
[[nodiscard]] std::size_t MissedLeast(std::span<const std::int64_t> saved, std::int64_t now);

}  // namespace tarvik
