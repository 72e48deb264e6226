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

Outcome<LogicalNames> NamesIn(const fs::path& folder) {
  std::vector<std::string> names;
  std::error_code error;
  for (fs::directory_iterator entry(folder, error); !error && entry != fs::directory_iterator();
       entry.increment(error)) {
    names.push_back(entry->path().filename().string());
  }
  if (error) return SystemFailure(error == std::errc::not_a_directory ? ENOENT : error.value());
  return LogicalNames(std::move(names));
}

/// What the folder has under a logical name. The one that is spelled just so has it, whoever else is there.
Outcome<fs::path> Match(const fs::path& folder, const std::string& name) {
  if (!IsName(name)) return Missing();
  const std::string lower = LowerCase(name);
  auto exact = Taken(folder / ToUtf8(lower));
  if (!IsMissing(exact.failure())) return exact;
  const auto names = NamesIn(folder);
  if (!names) return names.failure();
  const auto found = names->Find(lower);
  return found ? folder / *found : Outcome<fs::path>(Missing());
}

/// Where a host file lies: on which drive, and the names on the way to it.
struct Place {
  char drive = kRootDrive;
  fs::path folder;
  std::vector<std::string> names{};
};

/// The place on the drive whose folder holds `host` most closely.
Place PlaceOf(const std::map<char, fs::path>& folders, const fs::path& host) {
  auto closest = folders.find(kRootDrive);
  for (auto drive = folders.begin(); drive != folders.end(); ++drive) {
    const bool longer = drive->second.native().size() > closest->second.native().size();
    if (longer && Holds(drive->second, host)) closest = drive;
  }
  Place place{closest->first, closest->second};
  const auto depth = std::distance(closest->second.begin(), closest->second.end());
  std::transform(std::next(host.begin(), depth), host.end(), std::back_inserter(place.names),
                 [](const fs::path& name) { return name.string(); });
  return place;
}

/// The name as the host has it, or will have it where there is none: then in lower case, where nobody else is
/// spelled so.
std::string HostNameOf(const fs::path& folder, const std::string& name) {
  const auto plain = PlainName(name);
  if (!plain || !IsMissing(Taken(folder / name).failure())) return name;
  const std::string lower = ToUtf8(*plain);
  return IsMissing(Taken(folder / lower).failure()) ? lower : name;
}

/// The names of the folder, with one that may not be there yet. Where nobody can tell them it stands alone,
/// as one does that is spelled as its logical name.
LogicalNames NamesWith(const fs::path& folder, const std::string& name) {
  const auto plain = PlainName(name);
  const bool isExact = plain && ToUtf8(*plain) == name;
  const auto found = isExact ? Missing() : NamesIn(folder);
  std::vector<std::string> names = found ? found->HostNames() : std::vector<std::string>();
  if (std::find(names.begin(), names.end(), name) == names.end()) names.push_back(name);
  return LogicalNames(std::move(names));
}

std::optional<fs::path> LookUp(const std::map<std::string, fs::path>& known, const LogicalPath& path) {
  const auto found = known.find(path.Text());
  return found == known.end() ? std::nullopt : std::optional(found->second);
}

}  // namespace

bool IsFolder(const fs::path& host) {
  std::error_code ignored;
  return fs::is_directory(host, ignored);
}

Drives::Drives(const Folders& folders) {
  for (const auto& [letter, folder] : folders) SetFolder(letter, folder);
  folders_[kRootDrive] = "/";
}

void Drives::SetFolder(char letter, const std::string& folder) {
  const char drive = ToLower(letter);
  if (!IsDriveLetter(drive) || drive == kRootDrive) return;
  std::erase_if(held_, [drive](const auto& held) { return held.first.front() == drive; });
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
  Outcome<fs::path> host = root->second;
  LogicalPath walked{.drive = path.drive};
  for (const std::string& name : path.names) {
    walked.names.push_back(name);
    const auto held = LookUp(held_, walked);
    host = held ? Taken(*held) : Match(*host, name);
    if (!host) break;
  }
  return host;
}

Outcome<fs::path> Drives::ToHost(std::string_view path) const {
  const auto whole = current_.Complete(path);
  if (!whole) return Missing();
  Outcome<fs::path> host = Find(*whole);
  if (host) host = Existing(*host, fs::status);
  if (host && whole->mustBeFolder && !IsFolder(*host)) return Missing();
  return host;
}

Outcome<fs::path> Drives::ToHostNew(std::string_view path) const {
  auto folder = current_.Complete(path);
  if (!folder || folder->mustBeFolder || folder->names.empty()) return Missing();
  if (const auto held = LookUp(held_, *folder)) return *held;
  const std::string name = folder->names.back();
  folder->names.pop_back();
  const auto host = Find(*folder);
  if (!host) return host.failure();
  if (!IsFolder(*host)) return Missing();
  auto match = Match(*host, name);
  if (match || !IsMissing(match.failure()) || !IsName(name)) return match;
  return *host / ToUtf8(LowerCase(name));
}

/// A path that is held to another file, which is there, is not to be taken.
std::string Drives::NameOf(const LogicalNames& names, LogicalPath folder, const fs::path& host) const {
  return names.NameOf(host.filename().string(), [&](const std::string& name) {
    folder.names.push_back(name);
    const auto held = LookUp(held_, folder);
    folder.names.pop_back();
    return !held || *held == host || IsMissing(Taken(*held).failure());
  });
}

std::string Drives::FromHost(const fs::path& host) {
  const fs::path whole = Absolute(host);
  if (whole.empty()) return {};
  Place place = PlaceOf(folders_, whole);
  if (place.drive == kRootDrive) {
    Place behindLinks = PlaceOf(WithoutLinks(folders_), WithoutLinks(whole));
    if (behindLinks.drive != kRootDrive) place = std::move(behindLinks);
  }
  if (!place.names.empty()) place.names.back() = HostNameOf(whole.parent_path(), place.names.back());
  LogicalPath path{.drive = place.drive};
  fs::path at = place.folder;
  for (const std::string& name : place.names) {
    path.names.push_back(NameOf(NamesWith(at, name), path, at / name));
    at /= name;
    held_[path.Text()] = at;
  }
  return path.Text();
}

void Drives::Hold(std::string_view path, const fs::path& host) {
  if (const auto whole = current_.Complete(path)) held_[whole->Text()] = host;
}

std::vector<Drives::Entry> Drives::EntriesOf(std::string_view folder) const {
  const auto host = ToHost(folder);
  const auto names = host ? NamesIn(*host) : host.failure();
  if (!names) return {};
  const LogicalPath inside = *current_.Complete(folder);
  std::vector<Entry> entries;
  for (const std::string& name : names->HostNames()) {
    const fs::path place = *host / name;
    const std::string logical = NameOf(*names, inside, place);
    const std::string shown = FromUtf8(name);
    entries.push_back({LowerCase(shown) == logical ? shown : logical, place});
  }
  return entries;
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
