#include "platform/LogicalPath.h"

#include <algorithm>

#include "text/CodePage.h"

namespace tarvik {
namespace {

constexpr std::string_view kSeparators = "\\/";

bool IsSeparator(char c) { return c == '\\' || c == '/'; }

std::size_t Index(char drive) { return static_cast<std::size_t>(drive - 'a'); }

void Enter(std::vector<std::string>& folder, std::string_view name) {
  if (name.empty() || name == ".") return;
  if (name != "..") {
    folder.emplace_back(name);
  } else if (!folder.empty()) {
    folder.pop_back();
  }
}

}  // namespace

std::string LogicalPath::Text() const {
  std::string text{drive, ':'};
  if (names.empty()) text += '\\';
  for (const std::string& name : names) text += '\\' + LowerCase(name);
  return text;
}

bool IsDriveLetter(char character) {
  const char letter = ToLower(character);
  return letter >= 'a' && letter <= 'z';
}

bool IsNameCharacter(char character) {
  constexpr std::string_view kNever = "\"<>|*?\\/";
  return static_cast<unsigned char>(character) >= ' ' && kNever.find(character) == kNever.npos;
}

bool IsName(std::string_view name) {
  return !name.empty() && std::all_of(name.begin(), name.end(), IsNameCharacter);
}

std::optional<LogicalPath> CurrentFolders::Complete(std::string_view path) const {
  if (path.empty()) return std::nullopt;
  LogicalPath result{.drive = drive_, .mustBeFolder = IsSeparator(path.back())};
  if (IsDriveLetter(path.front()) && path.substr(1, 1) == ":") {
    result.drive = ToLower(path.front());
    path.remove_prefix(2);
  }
  const bool fromRoot = !path.empty() && IsSeparator(path.front());
  if (!fromRoot) result.names = folders_[Index(result.drive)];
  while (!path.empty()) {
    const std::size_t end = std::min(path.find_first_of(kSeparators), path.size());
    Enter(result.names, path.substr(0, end));
    path.remove_prefix(std::min(end + 1, path.size()));
  }
  return result;
}

void CurrentFolders::SetFolder(const LogicalPath& folder) { folders_[Index(folder.drive)] = folder.names; }

}  // namespace tarvik
