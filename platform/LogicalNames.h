// The names of one folder of the host as a drive has them: no two of them are the same, though those of the
// host may differ in case alone, or hold what no name on a drive can hold.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarvik {

/// The name in lower case and in the code page; nothing where no name on a drive can hold it.
[[nodiscard]] std::optional<std::string> PlainName(std::string_view hostName);

/// A file has its plain name where that is its own: it is spelled just so, or it is the only one that comes
/// out so. Every other one has an alias as DOS makes them, te4k2q~1.b50 for "Test.b50": the first letters, a
/// mark made from the host's name, a number, and the ending. Where two have the same alias, or somebody's
/// plain name is like it, they have the next number. An alias thus depends on no other file, and one that was
/// a file's once is never another file's name as long as the first one is there.
class LogicalNames {
 public:
  /// Of all that is in the folder.
  explicit LogicalNames(std::vector<std::string> hostNames);

  [[nodiscard]] const std::vector<std::string>& HostNames() const { return hostNames_; }
  /// The host's name behind a name in lower case; nothing where there is none, or where it is nobody's own.
  [[nodiscard]] std::optional<std::string> Find(const std::string& name) const;
  /// The name of one that is in the folder: the first of its names that is its own and may be taken.
  [[nodiscard]] std::string NameOf(const std::string& hostName,
                                   const std::function<bool(const std::string&)>& mayBeTaken) const;

 private:
  /// The host's name behind each, or nothing where several come out so.
  using Index = std::map<std::string, std::optional<std::string>>;

  [[nodiscard]] const Index& Aliases(std::size_t number) const;

  std::vector<std::string> hostNames_;
  Index plain_;
  mutable std::map<std::size_t, Index> aliases_;  // by their number; made when they are first asked for
};

}  // namespace tarvik
