#include "platform/Drives.h"

#include <algorithm>
#include <cerrno>
#include <iterator>
#include <system_error>
#include <utility>

#include "text/CodePage.h"

namespace tarvik {
namespace {

namespace fs = std::filesystem;

constexpr char kRootDrive = 'z';

bool Exists(const fs::path& path) {
  std::error_code ignored;
  return fs::exists(path, ignored);
}

bool IsFolder(const fs::path& path) {
  std::error_code ignored;
  return fs::is_directory(path, ignored);
}

/// Whether something has that path, a link without a target included.
bool IsTaken(const fs::path& path) {
  std::error_code ignored;
  return fs::exists(fs::symlink_status(path, ignored));
}

fs::path Absolute(const fs::path& path) {
  std::error_code error;
  const fs::path whole = fs::absolute(path, error).lexically_normal();
  return whole.has_filename() ? whole : whole.parent_path();
}

/// The path with the links on the way to it resolved. A link at its end stays one.
fs::path WithoutLinks(const fs::path& path) {
  std::error_code error;
  const fs::path folder = fs::weakly_canonical(path.parent_path(), error);
  return error || !path.has_filename() ? path : folder / path.filename();
}

std::map<char, fs::path> WithoutLinks(std::map<char, fs::path> folders) {
  for (auto& [letter, folder] : folders) {
    std::error_code error;
    const fs::path real = fs::weakly_canonical(folder, error);
    if (!error) folder = real;
  }
  return folders;
}

bool Holds(const fs::path& folder, const fs::path& path) {
  return std::mismatch(folder.begin(), folder.end(), path.begin(), path.end()).first == folder.end();
}

std::string LogicalName(const fs::path& hostName) {
  std::string name = LowerCase(FromUtf8(hostName.string()));
  std::replace_if(
      name.begin(), name.end(), [](char c) { return !IsNameCharacter(c); }, '?');
  return name;
}

/// What the folder has under a logical name.
std::optional<fs::path> Match(const fs::path& folder, const std::string& name) {
  if (IsName(name) && IsTaken(folder / ToUtf8(name))) return folder / ToUtf8(name);
  const std::string wanted = LowerCase(name);
  std::optional<fs::path> match;
  std::error_code error;
  for (fs::directory_iterator entry(folder, error); !error && entry != fs::directory_iterator();
       entry.increment(error)) {
    if (LogicalName(entry->path().filename()) != wanted) continue;
    if (match) return std::nullopt;
    match = entry->path();
  }
  return match;
}

struct Placed {
  LogicalPath path;
  fs::path host;
};

/// The path on the drive whose folder holds `host` most closely.
Placed Place(const std::map<char, fs::path>& folders, const fs::path& host) {
  auto closest = folders.find(kRootDrive);
  for (auto drive = folders.begin(); drive != folders.end(); ++drive) {
    const bool longer = drive->second.native().size() > closest->second.native().size();
    if (longer && Holds(drive->second, host)) closest = drive;
  }
  Placed placed{{.drive = closest->first}, host};
  const auto depth = std::distance(closest->second.begin(), closest->second.end());
  std::transform(std::next(host.begin(), depth), host.end(), std::back_inserter(placed.path.names),
                 LogicalName);
  return placed;
}

std::optional<fs::path> LookUp(const std::map<std::string, fs::path>& known, const LogicalPath& path) {
  const auto found = known.find(path.Text());
  return found == known.end() ? std::nullopt : std::optional(found->second);
}

Failure PathNotFound() { return {error::kPathNotFound, "Path not found", ENOENT}; }

}  // namespace

Drives::Drives(const Folders& folders) {
  for (const auto& [letter, folder] : folders) SetFolder(letter, folder);
  folders_[kRootDrive] = "/";
}

void Drives::SetFolder(char letter, const std::string& folder) {
  const char drive = ToLower(letter);
  if (!IsDriveLetter(drive) || drive == kRootDrive) return;
  const auto isOnIt = [drive](const auto& known) { return known.first.front() == drive; };
  std::erase_if(picked_, isOnIt);
  std::erase_if(holders_, isOnIt);
  current_.SetFolder({.drive = drive});
  if (!folder.empty()) {
    folders_[drive] = Absolute(folder);
    return;
  }
  folders_.erase(drive);
  if (current_.drive() == drive) current_.SetDrive('c');
}

std::optional<fs::path> Drives::Find(const LogicalPath& path) const {
  const auto root = folders_.find(path.drive);
  if (root == folders_.end()) return std::nullopt;
  fs::path host = root->second;
  LogicalPath walked{.drive = path.drive};
  for (const std::string& name : path.names) {
    walked.names.push_back(name);
    auto match = Match(host, name);
    // Of several folders with that name, the one on the way to a picked file is meant.
    if (!match) match = LookUp(holders_, walked);
    if (!match) return std::nullopt;
    host = *match;
  }
  return host;
}

std::optional<fs::path> Drives::ToHost(std::string_view path) const {
  const auto whole = current_.Complete(path);
  if (!whole) return std::nullopt;
  auto host = LookUp(picked_, *whole);
  if (!host || !Exists(*host)) host = Find(*whole);
  if (!host || !Exists(*host) || (whole->mustBeFolder && !IsFolder(*host))) return std::nullopt;
  return host;
}

std::optional<fs::path> Drives::ToHostNew(std::string_view path) const {
  auto folder = current_.Complete(path);
  if (!folder || folder->mustBeFolder || folder->names.empty()) return std::nullopt;
  auto picked = LookUp(picked_, *folder);
  if (picked && IsTaken(*picked)) return picked;
  const std::string name = folder->names.back();
  folder->names.pop_back();
  const auto host = Find(*folder);
  if (!host || !IsFolder(*host)) return std::nullopt;
  auto match = Match(*host, name);
  if (match && !picked) return match;
  if (!match && IsName(name)) return *host / ToUtf8(LowerCase(name));
  return picked;
}

std::string Drives::FromHost(const fs::path& host) {
  const fs::path whole = Absolute(host);
  if (whole.empty()) return {};
  Placed placed = Place(folders_, whole);
  if (placed.path.drive == kRootDrive) {
    Placed behindLinks = Place(WithoutLinks(folders_), WithoutLinks(whole));
    if (behindLinks.path.drive != kRootDrive) placed = std::move(behindLinks);
  }
  std::string result = placed.path.Text();
  picked_[result] = placed.host;
  while (!placed.path.names.empty()) {
    holders_[placed.path.Text()] = placed.host;
    placed.path.names.pop_back();
    placed.host = placed.host.parent_path();
  }
  return result;
}

Outcome<> Drives::ChangeDrive(std::string_view path) {
  const auto whole = current_.Complete(path);
  const auto root = whole ? folders_.find(whole->drive) : folders_.end();
  if (root == folders_.end() || !IsFolder(root->second)) return PathNotFound();
  current_.SetDrive(whole->drive);
  return Done{};
}

Outcome<> Drives::ChangeFolder(std::string_view path) {
  const auto host = ToHost(path);
  if (!host || !IsFolder(*host)) return PathNotFound();
  current_.SetFolder(*current_.Complete(path));
  return Done{};
}

std::string Drives::FullPath(std::string_view path) const {
  const auto whole = current_.Complete(path);
  return whole ? whole->Text() : "";
}

}  // namespace tarvik
