#include "platform/HostFiles.h"

#include <signal.h>
#include <sys/stat.h>

#include <algorithm>
#include <charconv>
#include <chrono>
#include <filesystem>
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
constexpr mode_t kFolder = 0777;

/// Temporary files are called so, with the process and a number behind it: .tarvik-1234-0
constexpr std::string_view kTemporary = ".tarvik-";

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

/// What forbids replacing `target`, or 0.
int Obstacle(const fs::path& target, const std::optional<struct stat>& old) {
  const fs::path folder = target.parent_path();
  const auto folderStatus = StatusOf(folder);
  if (!folderStatus) return ENOENT;
  if (!MayWrite(folder, *folderStatus)) return EACCES;
  if (!old) return 0;
  if (S_ISDIR(old->st_mode)) return EISDIR;
  return S_ISREG(old->st_mode) && MayWrite(target, *old) ? 0 : EACCES;
}

/// A new file that is to take the place of another one. It goes away again unless it has done so.
class Replacement {
 public:
  /// Opened for the owner alone where it stands in for `old`, which may be private.
  Replacement(const fs::path& folder, const std::optional<struct stat>& old) : old_(old) {
    constexpr int kMostTries = 100;
    const std::string stem = std::string(kTemporary) + std::to_string(getpid()) + "-";
    for (int i = 0; i < kMostTries && !file_.IsOpen(); ++i) {
      path_ = folder / (stem + std::to_string(i));
      file_.Open(path_, O_WRONLY | O_CREAT | O_EXCL, old ? kOwnerOnly : kReadWriteAll);
      if (!file_.IsOpen() && errno != EEXIST) break;  // an earlier process may have died and left one
    }
    if (!file_.IsOpen()) error_ = errno;
  }
  Replacement(const Replacement&) = delete;
  Replacement& operator=(const Replacement&) = delete;
  ~Replacement() {
    if (error_ == 0 && !replaced_) unlink(path_.c_str());
  }

  Outcome<> Fill(std::string_view content) {
    if (error_ != 0) return SystemFailure(error_);
    if (auto written = file_.WriteAll(content); !written) return written;
    if (old_ && !KeepOwnerAndMode()) return SystemFailure(errno);
    if (fsync(file_.number()) != 0 || !file_.Close()) return SystemFailure(errno);
    return Done{};
  }

  Outcome<> Replace(const fs::path& target) {
    replaced_ = rename(path_.c_str(), target.c_str()) == 0;
    if (!replaced_) return SystemFailure(errno);
    return Done{};
  }

 private:
  /// Only the mode has to succeed. A new owner costs a file its set-id bits, so it comes first. Whoever may
  /// not give a file away may give it to a group of theirs.
  bool KeepOwnerAndMode() {
    constexpr auto kSameOwner = static_cast<uid_t>(-1);
    if (fchown(file_.number(), old_->st_uid, old_->st_gid) != 0 &&
        fchown(file_.number(), kSameOwner, old_->st_gid) != 0) {
      errno = 0;
    }
    return fchmod(file_.number(), old_->st_mode & kPermissions) == 0;
  }

  std::optional<struct stat> old_;
  fs::path path_;
  Descriptor file_;
  int error_ = 0;
  bool replaced_ = false;
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

Outcome<> ReplaceFile(const fs::path& target, std::string_view content) {
  const auto old = StatusOf(target);
  if (const int code = Obstacle(target, old); code != 0) return SystemFailure(code);
  Replacement replacement(target.parent_path(), old);
  if (auto filled = replacement.Fill(content); !filled) return filled;
  if (auto replaced = replacement.Replace(target); !replaced) return replaced;
  FlushFolder(target.parent_path());
  RemoveLeftovers(target.parent_path());
  return Done{};
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

std::vector<std::string> HostFiles::NamesIn(std::string_view folder,
                                            bool (HostFiles::*is)(std::string_view) const) const {
  std::vector<std::string> names;
  const auto host = drives_.ToHost(folder);
  const std::string inside = std::string(folder) + (folder.ends_with('\\') ? "" : "\\");
  std::error_code error;
  for (fs::directory_iterator at(host ? *host : fs::path(), error), end; !error && at != end;
       at.increment(error)) {
    std::string name = FromUtf8(at->path().filename().string());
    if ((this->*is)(inside + name)) names.push_back(std::move(name));
  }
  std::sort(names.begin(), names.end(), SortsBefore);
  return names;
}

std::vector<std::string> HostFiles::FilesIn(std::string_view folder, std::string_view ending) const {
  std::vector<std::string> names = NamesIn(folder, &HostFiles::FileExists);
  std::erase_if(names, [wanted = LowerCase(ending)](const std::string& name) {
    return !LowerCase(name).ends_with(wanted);
  });
  return names;
}

/// Hidden folders are left out.
std::vector<std::string> HostFiles::FoldersIn(std::string_view folder) const {
  std::vector<std::string> names = NamesIn(folder, &HostFiles::FolderExists);
  std::erase_if(names, [](const std::string& name) { return name.starts_with('.'); });
  return names;
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
  const auto host = drives_.ToHostNew(path);
  if (!host) return host.failure();
  const auto target = FollowLinks(*host);
  if (!target) return target.failure();
  return ReplaceFile(*target, content);
}

Outcome<> HostFiles::MakeFolder(std::string_view path) {
  while (path.ends_with('\\') || path.ends_with('/')) path.remove_suffix(1);
  const auto host = drives_.ToHostNew(path);
  if (!host) return host.failure();
  const auto parent = StatusOf(host->parent_path());
  if (parent && !MayWrite(host->parent_path(), *parent)) return SystemFailure(EACCES);
  if (mkdir(host->c_str(), kFolder) != 0) return SystemFailure(errno);
  return Done{};
}

Outcome<> HostFiles::ChangeDrive(std::string_view path) { return drives_.ChangeDrive(path); }

Outcome<> HostFiles::ChangeFolder(std::string_view path) { return drives_.ChangeFolder(path); }

}  // namespace tarvik
