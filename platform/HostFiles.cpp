#include "platform/HostFiles.h"

#include <signal.h>
#include <sys/stat.h>
#include <sys/xattr.h>

#include <algorithm>
#include <charconv>
#include <chrono>
#include <filesystem>
#include <functional>
#include <optional>

#include "platform/Descriptor.h"
#include "platform/FileSize.h"
#include "text/CodePage.h"

namespace tarvik {
namespace {

namespace fs = std::filesystem;

constexpr mode_t kPermissions = 07777;
constexpr mode_t kAnyMayWrite = S_IWUSR | S_IWGRP | S_IWOTH;
constexpr mode_t kReadWriteAll = 0666;
constexpr mode_t kOwnerOnly = 0600;
constexpr mode_t kFolderMode = 0777;

/// Temporary files are called so, with the process and a number behind it: .tarvik-1234-0
constexpr std::string_view kTemporary = ".tarvik-";
/// Old contents of files that are written in place are called so, and stay where the process dies meanwhile.
constexpr std::string_view kOldContent = ".tarvik-old-";

std::optional<struct stat> StatusOf(const fs::path& path) {
  struct stat status {};
  return stat(path.c_str(), &status) == 0 ? std::optional(status) : std::nullopt;
}

std::int64_t Nanoseconds(const struct timespec& time) {
  constexpr std::int64_t kInASecond = 1'000'000'000;
  return time.tv_sec * kInASecond + time.tv_nsec;
}

bool MayWrite(const fs::path& path, const struct stat& status) {
  return (status.st_mode & kAnyMayWrite) != 0 && access(path.c_str(), W_OK) == 0;
}

/// The file that a chain of links leads to, whether it exists or not.
Outcome<fs::path> FollowLinks(fs::path path) {
  constexpr int kMostLinks = 40;
  std::error_code error;
  for (int followed = 0; fs::is_symlink(fs::symlink_status(path, error)); ++followed) {
    if (followed == kMostLinks) return SystemFailure(ELOOP);
    const fs::path target = fs::read_symlink(path, error);
    if (error) return SystemFailure(error.value());
    path = path.parent_path() / target;
  }
  return path;
}

bool TakesNewFiles(const fs::path& folder) {
  const auto status = StatusOf(folder);
  return status && MayWrite(folder, *status);
}

/// What forbids writing `target`, or 0.
int Obstacle(const fs::path& target, const std::optional<struct stat>& old) {
  if (!StatusOf(target.parent_path())) return ENOENT;
  if (!old) return TakesNewFiles(target.parent_path()) ? 0 : EACCES;
  if (S_ISDIR(old->st_mode)) return EISDIR;
  return S_ISREG(old->st_mode) && MayWrite(target, *old) ? 0 : EACCES;
}

/// What a file system says that has no such thing, or does not let us have it.
bool IsForbidden(int code) { return code == EPERM || code == ENOTSUP; }

/// Access lists are among them. What the system does not give, or does not take, is left out.
void CopyAttributes(const fs::path& from, const Descriptor& to) {
  const auto filled = [](const auto& get) {
    std::string bytes(static_cast<std::size_t>(std::max<ssize_t>(get(nullptr, 0), 0)), '\0');
    bytes.resize(static_cast<std::size_t>(std::max<ssize_t>(get(bytes.data(), bytes.size()), 0)));
    return bytes;
  };
  const std::string names =
      filled([&](char* bytes, std::size_t size) { return listxattr(from.c_str(), bytes, size); });
  for (std::size_t at = 0; at < names.size();) {
    const std::string name = names.c_str() + at;
    at += name.size() + 1;
    const std::string value = filled(
        [&](char* bytes, std::size_t size) { return getxattr(from.c_str(), name.c_str(), bytes, size); });
    fsetxattr(to.number(), name.c_str(), value.data(), value.size(), 0);
  }
}

/// What a file may be open to beyond its owner: no more than another one, or to anything.
class Bounds {
 public:
  Bounds() = default;
  /// The file's owner alone may read and write where nobody knows what `of` is open to.
  explicit Bounds(const fs::path& of)
      : of_(StatusOf(of).value_or(kNobodyElse)), hasAccessList_(HasAccessList(of)) {}

  /// The members of another group are strangers to the other file, and an access list can mean anybody.
  Outcome<> Apply(const Descriptor& file) const {
    struct stat own {};
    if (!of_) return Done{};
    if (fstat(file.number(), &own) != 0) return SystemFailure(errno);
    mode_t group = (of_->st_mode & S_IRWXG) >> 3;
    mode_t others = of_->st_mode & S_IRWXO;
    if (hasAccessList_ || own.st_gid != of_->st_gid) group = others = group & others;
    const mode_t allowed = S_IRWXU | group << 3 | others;
    if (fchmod(file.number(), own.st_mode & kPermissions & allowed) != 0 && !IsForbidden(errno))
      return SystemFailure(errno);
    return Done{};
  }

 private:
  static constexpr struct stat kNobodyElse {};

  static bool HasAccessList(const fs::path& path) {
    return getxattr(path.c_str(), "system.posix_acl_access", nullptr, 0) > 0;
  }

  std::optional<struct stat> of_;
  bool hasAccessList_ = false;
};

/// A new file that goes away again unless it takes the place of another one, or is to stay.
class TemporaryFile {
 public:
  TemporaryFile(const fs::path& folder, std::string_view beginning, mode_t mode) {
    constexpr int kMostTries = 100;
    const std::string stem = std::string(beginning) + std::to_string(getpid()) + "-";
    for (int i = 0; i < kMostTries && !file_.IsOpen(); ++i) {
      path_ = folder / (stem + std::to_string(i));
      file_.Open(path_, O_WRONLY | O_CREAT | O_EXCL, mode);
      if (!file_.IsOpen() && errno != EEXIST) break;  // an earlier process may have died and left one
    }
    if (!file_.IsOpen()) error_ = errno;
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  ~TemporaryFile() {
    if (error_ == 0 && !stays_) unlink(path_.c_str());
  }

  Outcome<> Fill(std::string_view content) const {
    if (error_ != 0) return SystemFailure(error_);
    return file_.WriteAll(content);
  }

  /// Only the mode has to be taken, where there are modes. A new owner costs a file its set-id bits, so it
  /// comes first; an access list has a part in the mode, so it comes before that. Whoever may not give a file
  /// away may give it to a group of theirs.
  Outcome<> TakeAfter(const fs::path& old, const struct stat& status) const {
    constexpr auto kSameOwner = static_cast<uid_t>(-1);
    if (fchown(file_.number(), status.st_uid, status.st_gid) != 0 &&
        fchown(file_.number(), kSameOwner, status.st_gid) != 0) {
      errno = 0;
    }
    CopyAttributes(old, file_);
    if (fchmod(file_.number(), status.st_mode & kPermissions) != 0 && !IsForbidden(errno))
      return SystemFailure(errno);
    return Done{};
  }

  /// Gives up what the bounds do not allow.
  Outcome<> Keep(const Bounds& bounds) const {
    if (error_ != 0) return SystemFailure(error_);
    return bounds.Apply(file_);
  }

  Outcome<> Flush() {
    if (fsync(file_.number()) != 0 || !file_.Close()) return SystemFailure(errno);
    return Done{};
  }

  Outcome<> Replace(const fs::path& target) {
    stays_ = rename(path_.c_str(), target.c_str()) == 0;
    if (!stays_) return SystemFailure(errno);
    return Done{};
  }

  void Stay() { stays_ = true; }

 private:
  fs::path path_;
  Descriptor file_;
  int error_ = 0;
  bool stays_ = false;
};

/// Makes a rename last through a power cut. Not every file system can, and the file is whole either way.
void FlushFolder(const fs::path& folder) {
  Descriptor descriptor;
  descriptor.Open(folder, O_RDONLY | O_DIRECTORY);
  if (descriptor.IsOpen()) fsync(descriptor.number());
}

/// The process that a temporary file is of, by its name; nothing for any other name.
std::optional<pid_t> WriterOf(std::string_view name) {
  if (!name.starts_with(kTemporary)) return std::nullopt;
  name.remove_prefix(kTemporary.size());
  const std::size_t dash = name.find('-');
  if (dash == 0 || dash == name.npos || dash + 1 == name.size()) return std::nullopt;
  if (name.find_first_not_of("0123456789", 0) != dash) return std::nullopt;
  if (name.find_first_not_of("0123456789", dash + 1) != name.npos) return std::nullopt;
  pid_t process = 0;
  const auto [end, status] = std::from_chars(name.data(), name.data() + dash, process);
  return status == std::errc{} && process > 0 ? std::optional(process) : std::nullopt;
}

/// Removes the temporary files of processes that died while they wrote. A process of another machine that
/// shares the folder cannot be asked for, so that only what is an hour old counts.
void RemoveLeftovers(const fs::path& folder) {
  using Clock = std::chrono::system_clock;
  constexpr auto kAge = std::chrono::hours(1);
  std::error_code error;
  for (fs::directory_iterator entry(folder, error); !error && entry != fs::directory_iterator();
       entry.increment(error)) {
    const fs::path& path = entry->path();
    const auto writer = WriterOf(path.filename().native());
    if (!writer || kill(*writer, 0) == 0 || errno != ESRCH) continue;
    struct stat status {};
    if (lstat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode)) continue;
    if (Clock::from_time_t(status.st_mtime) + kAge < Clock::now()) unlink(path.c_str());
  }
}

/// A file that stands in for another one, which may be private, is the owner's alone until it takes after it.
Outcome<> ReplaceFile(const fs::path& target, const std::optional<struct stat>& old, std::string_view content,
                      const Bounds& bounds) {
  TemporaryFile replacement(target.parent_path(), kTemporary, old ? kOwnerOnly : kReadWriteAll);
  if (auto kept = replacement.Keep(bounds); !kept) return kept;
  if (auto filled = replacement.Fill(content); !filled) return filled;
  if (old) {
    if (auto taken = replacement.TakeAfter(target, *old); !taken) return taken;
    if (auto kept = replacement.Keep(bounds); !kept) return kept;
  }
  if (auto flushed = replacement.Flush(); !flushed) return flushed;
  if (auto replaced = replacement.Replace(target); !replaced) return replaced;
  FlushFolder(target.parent_path());
  return Done{};
}

/// Room is asked for first, so that a full disk is told before anything has changed.
Outcome<> Overwrite(const Descriptor& file, std::string_view content) {
  const auto size = static_cast<off_t>(content.size());
  const int code = size == 0 ? 0 : posix_fallocate(file.number(), 0, size);
  if (code != 0 && code != EOPNOTSUPP) return SystemFailure(code);
  if (lseek(file.number(), 0, SEEK_SET) != 0) return SystemFailure(errno);
  if (auto written = file.WriteAll(content); !written) return written;
  if (ftruncate(file.number(), size) != 0 || fsync(file.number()) != 0) return SystemFailure(errno);
  return Done{};
}

/// The file keeps its other names and everything that the system has noted of it. Its old content lies beside
/// it, or among the temporary files of the system, until the new one is on the disk; it goes back at a
/// failure, and stays there where it cannot.
Outcome<> WriteInPlace(const fs::path& target, std::string_view content, const Bounds& bounds) {
  Descriptor file;
  file.Open(target, O_RDWR);
  if (!file.IsOpen()) return SystemFailure(errno);
  if (auto kept = bounds.Apply(file); !kept) return kept;
  const auto before = file.ReadAll(0);
  if (!before) return before.failure();
  const fs::path folder = target.parent_path();
  std::error_code none;
  TemporaryFile copy(TakesNewFiles(folder) ? folder : fs::temp_directory_path(none), kOldContent, kOwnerOnly);
  if (auto filled = copy.Fill(*before); !filled) return filled;
  if (auto flushed = copy.Flush(); !flushed) return flushed;
  auto written = Overwrite(file, content);
  if (!written && !Overwrite(file, *before)) copy.Stay();
  return written;
}

/// Whether no other file may take this one's place, though it may be written itself: in a folder whose files
/// are their owners' alone, or where it is a place of its own in the tree of files.
bool IsRefused(const Outcome<>& replaced) {
  const int code = replaced.failure().systemCode;
  return !replaced && (code == EACCES || code == EPERM || code == EBUSY);
}

Outcome<> WriteFile(const fs::path& target, std::string_view content, const Bounds& bounds) {
  const auto old = StatusOf(target);
  if (const int code = Obstacle(target, old); code != 0) return SystemFailure(code);
  const bool mayBeReplaced = !old || (old->st_nlink == 1 && TakesNewFiles(target.parent_path()));
  auto written =
      mayBeReplaced ? ReplaceFile(target, old, content, bounds) : WriteInPlace(target, content, bounds);
  if (mayBeReplaced && old && IsRefused(written)) written = WriteInPlace(target, content, bounds);
  if (written) RemoveLeftovers(target.parent_path());
  return written;
}

Outcome<> WriteWithin(const Bounds& bounds, const Outcome<fs::path>& host, std::string_view content) {
  if (!host) return host.failure();
  const auto target = FollowLinks(*host);
  if (!target) return target.failure();
  return WriteFile(*target, content, bounds);
}

/// Of those that count.
std::vector<std::string> NamesOf(const std::vector<Drives::Entry>& entries,
                                 const std::function<bool(const Drives::Entry&)>& counts) {
  std::vector<std::string> names;
  for (const Drives::Entry& entry : entries) {
    if (counts(entry)) names.push_back(entry.name);
  }
  std::sort(names.begin(), names.end(), SortsBefore);
  return names;
}

}  // namespace

bool HostFiles::FileExists(std::string_view path) const {
  const auto host = drives_.ToHost(path);
  const auto status = host ? StatusOf(*host) : std::nullopt;
  return status && !S_ISDIR(status->st_mode);
}

bool HostFiles::FolderExists(std::string_view path) const {
  const auto host = drives_.ToHost(path);
  const auto status = host ? StatusOf(*host) : std::nullopt;
  return status && S_ISDIR(status->st_mode);
}

std::vector<std::string> HostFiles::FilesIn(std::string_view folder, std::string_view ending) const {
  return NamesOf(drives_.EntriesOf(folder), [wanted = LowerCase(ending)](const Drives::Entry& entry) {
    if (!LowerCase(entry.name).ends_with(wanted)) return false;
    const auto status = StatusOf(entry.host);
    return status && !S_ISDIR(status->st_mode);
  });
}

/// Hidden folders are left out.
std::vector<std::string> HostFiles::FoldersIn(std::string_view folder) const {
  return NamesOf(drives_.EntriesOf(folder), [](const Drives::Entry& entry) {
    const auto status = StatusOf(entry.host);
    return status && S_ISDIR(status->st_mode) && !entry.host.filename().native().starts_with('.');
  });
}

std::string HostFiles::DriveLetters() const {
  std::string letters;
  for (char letter = 'a'; letter <= 'z'; ++letter) {
    if (FolderExists(std::string{letter, ':', '\\'})) letters += letter;
  }
  return letters;
}

Outcome<FileState> HostFiles::State(std::string_view path) const {
  const auto host = drives_.ToHost(path);
  struct stat status {};
  if (!host) return SystemFailure(ENOENT, error::kFileNotFound);
  if (stat(host->c_str(), &status) != 0) return SystemFailure(errno, error::kFileNotFound);
  if (S_ISDIR(status.st_mode)) return SystemFailure(EISDIR);
  return FileState{.size = static_cast<std::uint64_t>(status.st_size),
                   .identity = status.st_ino,
                   .modified = Nanoseconds(status.st_mtim),
                   .changed = Nanoseconds(status.st_ctim)};
}

Outcome<std::string> HostFiles::Read(std::string_view path) const {
  const auto host = drives_.ToHost(path);
  if (!host) return SystemFailure(host.failure().systemCode, error::kFileNotFound);
  Descriptor file;
  file.Open(*host, O_RDONLY | O_NONBLOCK);  // a pipe that nobody writes to would wait here for ever
  struct stat status {};
  if (!file.IsOpen() || fstat(file.number(), &status) != 0) return SystemFailure(errno, error::kFileNotFound);
  if (S_ISDIR(status.st_mode)) return SystemFailure(EISDIR);
  if (!S_ISREG(status.st_mode)) return SystemFailure(EACCES);
  const auto size = static_cast<std::size_t>(status.st_size);
  return size > kLargestFile ? TooLarge() : file.ReadAll(size);
}

Outcome<> HostFiles::Write(std::string_view path, std::string_view content) {
  return WriteWithin({}, drives_.ToHostNew(path), content);
}

Outcome<> HostFiles::WriteCopy(std::string_view path, std::string_view content, std::string_view of) {
  const auto original = drives_.ToHost(of);
  return WriteWithin(Bounds(original ? *original : fs::path()), drives_.ToHostNew(path), content);
}

Outcome<> HostFiles::Delete(std::string_view path) {
  const auto host = drives_.ToHostNew(path);
  if (!host) return host.failure();
  if (unlink(host->c_str()) != 0) return SystemFailure(errno, error::kFileNotFound);
  return Done{};
}

Outcome<> HostFiles::MakeFolder(std::string_view path) {
  while (path.ends_with('\\') || path.ends_with('/')) path.remove_suffix(1);
  const auto host = drives_.ToHostNew(path);
  if (!host) return host.failure();
  const auto parent = StatusOf(host->parent_path());
  if (parent && !MayWrite(host->parent_path(), *parent)) return SystemFailure(EACCES);
  if (mkdir(host->c_str(), kFolderMode) != 0) return SystemFailure(errno);
  return Done{};
}

Outcome<> HostFiles::ChangeDrive(std::string_view path) { return drives_.ChangeDrive(path); }

Outcome<> HostFiles::ChangeFolder(std::string_view path) { return drives_.ChangeFolder(path); }

}  // namespace tarvik
