#include "platform/Drives.h"

#include <algorithm>
#include <cerrno>
#include <iterator>
#include <system_error>
#include <utility>

#include "platform/Descriptor.h"
#include "text/CodePage.h"

namespace tarvik {
namespace {

namespace fs = std::filesystem;

constexpr char kRootDrive = 'z';

Failure Missing() { return SystemFailure(ENOENT); }

/// Only this failure says that there is nothing. With any other one nobody knows.
bool IsMissing(const Failure& failure) { return failure.systemCode == ENOENT; }

/// The path, if something has it; `look` says whether that is to follow links.
Outcome<fs::path> Existing(const fs::path& path, fs::file_status (*look)(const fs::path&, std::error_code&)) {
  std::error_code error;
  const fs::file_status status = look(path, error);
  if (fs::exists(status)) return path;
  const bool nobodyCanHaveIt = error == std::errc::filename_too_long;
  const bool missing = status.type() == fs::file_type::not_found || nobodyCanHaveIt;
  return missing ? Missing() : SystemFailure(error.value());
}

bool IsFolder(const fs::path& path) {
  std::error_code ignored;
  return fs::is_directory(path, ignored);
}

/// The path, if something has it, a link without a target included.
Outcome<fs::path> Taken(const fs::path& path) { return Existing(path, fs::symlink_status); }

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

/// What the folder has under a logical name that is not the exact one. Of several nobody knows which is
/// meant.
Outcome<fs::path> MatchByCase(const fs::path& folder, const std::string& name) {
  const std::string wanted = LowerCase(name);
  Outcome<fs::path> match = Missing();
  std::error_code error;
  for (fs::directory_iterator entry(folder, error); !error && entry != fs::directory_iterator();
       entry.increment(error)) {
    if (LogicalName(entry->path().filename()) != wanted) continue;
    if (match) return Missing();
    match = entry->path();
  }
  if (error) return SystemFailure(error == std::errc::not_a_directory ? ENOENT : error.value());
  return match;
}

/// What the folder has under a logical name.
Outcome<fs::path> Match(const fs::path& folder, const std::string& name) {
  auto exact = IsName(name) ? Taken(folder / ToUtf8(name)) : Missing();
  return IsMissing(exact.failure()) ? MatchByCase(folder, name) : exact;
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

Outcome<fs::path> Drives::Find(const LogicalPath& path) const {
  const auto root = folders_.find(path.drive);
  if (root == folders_.end()) return Missing();
  fs::path host = root->second;
  LogicalPath walked{.drive = path.drive};
  for (const std::string& name : path.names) {
    walked.names.push_back(name);
    const auto match = Match(host, name);
    // Of several folders with that name, the one on the way to a picked file is meant.
    const auto holder = match ? std::nullopt : LookUp(holders_, walked);
    if (!match && !holder) return match.failure();
    host = match ? *match : *holder;
  }
  return host;
}

Outcome<fs::path> Drives::ToHost(std::string_view path) const {
  const auto whole = current_.Complete(path);
  if (!whole) return Missing();
  const auto picked = LookUp(picked_, *whole);
  Outcome<fs::path> host = picked ? Existing(*picked, fs::status) : Missing();
  if (IsMissing(host.failure())) host = Find(*whole);
  if (host) host = Existing(*host, fs::status);
  if (host && whole->mustBeFolder && !IsFolder(*host)) return Missing();
  return host;
}

Outcome<fs::path> Drives::ToHostNew(std::string_view path) const {
  auto folder = current_.Complete(path);
  if (!folder || folder->mustBeFolder || folder->names.empty()) return Missing();
  const auto picked = LookUp(picked_, *folder);
  if (picked && !IsMissing(Taken(*picked).failure())) return *picked;
  const std::string name = folder->names.back();
  folder->names.pop_back();
  const auto host = Find(*folder);
  if (!host) return host.failure();
  if (!IsFolder(*host)) return Missing();
  auto match = Match(*host, name);
  if (match && !picked) return match;
  if (!match && !IsMissing(match.failure())) return match.failure();
  if (!match && IsName(name)) return *host / ToUtf8(LowerCase(name));
  return picked ? Outcome<fs::path>(*picked) : Missing();
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
  if (root == folders_.end() || !IsFolder(root->second)) return Missing();
  current_.SetDrive(whole->drive);
  return Done{};
}

Outcome<> Drives::ChangeFolder(std::string_view path) {
  const auto host = ToHost(path);
  if (!host || !IsFolder(*host)) return Missing();
  current_.SetFolder(*current_.Complete(path));
  return Done{};
}

std::string Drives::FullPath(std::string_view path) const {
  const auto whole = current_.Complete(path);
  return whole ? whole->Text() : "";
}

}  // namespace tarvik
