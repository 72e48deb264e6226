#include "platform/HostJournals.h"

#include <aio.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <cstdlib>

#include "platform/Descriptor.h"

namespace tarvik {
namespace {

namespace fs = std::filesystem;

constexpr mode_t kOwnersFolder = 0700;
constexpr mode_t kOwnersFile = 0600;
constexpr off_t kLargest = off_t{1} << 28;  // bytes: more than any text makes
constexpr const char* kEnding = ".journal";

/// Makes what was written to a file last through a power cut, while the program goes on.
class Flusher {
 public:
  Flusher() = default;
  Flusher(const Flusher&) = delete;
  Flusher& operator=(const Flusher&) = delete;
  ~Flusher() {
    for (const aiocb& request : requests_) {
      const aiocb* const waited[] = {&request};
      while (aio_error(&request) == EINPROGRESS) aio_suspend(waited, 1, nullptr);
    }
  }

  /// The system flushes one file once at a time. Where one flush runs and another waits behind it, that one
  /// takes along what was written meanwhile.
  [[nodiscard]] bool IsIdle() const {
    return std::ranges::none_of(requests_,
                                [](const aiocb& request) { return aio_error(&request) == EINPROGRESS; });
  }

  void Flush(int file) {
    const auto idle = std::find_if(requests_.begin(), requests_.end(),
                                   [](const aiocb& request) { return aio_error(&request) != EINPROGRESS; });
    if (idle == requests_.end()) return;
    *idle = {};
    idle->aio_fildes = file;
    idle->aio_sigevent.sigev_notify = SIGEV_NONE;
    aio_fsync(O_DSYNC, &*idle);
  }

 private:
  std::array<aiocb, 2> requests_{};
};

class HostJournalFile : public JournalFile {
 public:
  /// In a folder that is there; not open afterwards where that failed.
  explicit HostJournalFile(const fs::path& folder) {
    constexpr int kMostTries = 1000;
    for (int i = 0; i < kMostTries && !file_.IsOpen(); ++i) {
      path_ = folder / (std::to_string(getpid()) + "-" + std::to_string(i) + kEnding);
      file_.Open(path_, O_WRONLY | O_APPEND | O_CREAT | O_EXCL, kOwnersFile);
      if (!file_.IsOpen() && errno != EEXIST) return;
    }
    // Somebody who looks whether the journal is written holds the lock for a moment.
    while (file_.IsOpen() && flock(file_.number(), LOCK_EX) != 0 && errno == EINTR) continue;
    folder_.Open(folder, O_RDONLY | O_DIRECTORY);
    if (folder_.IsOpen()) folderFlusher_.Flush(folder_.number());
  }

  [[nodiscard]] bool IsOpen() const { return file_.IsOpen(); }

  Outcome<> Append(std::string_view bytes) override {
    auto written = file_.WriteAll(bytes);
    if (written) flusher_.Flush(file_.number());
    return written;
  }

  [[nodiscard]] bool IsDurable() const override { return flusher_.IsIdle() && folderFlusher_.IsIdle(); }

  Outcome<> Flush() override {
    if (fsync(file_.number()) != 0 || !folder_.IsOpen() || fsync(folder_.number()) != 0)
      return SystemFailure(errno);
    return Done{};
  }

  void Remove() override { unlink(path_.c_str()); }

 private:
  fs::path path_;
  Descriptor folder_;
  Descriptor file_;
  Flusher folderFlusher_;  // these two end before the files are closed
  Flusher flusher_;
};

/// Whatever somebody else put in its place is none.
bool IsOwnFolder(const fs::path& folder) {
  struct stat status {};
  return lstat(folder.c_str(), &status) == 0 && S_ISDIR(status.st_mode) && status.st_uid == geteuid();
}

/// True for a folder that is the user's own and nobody else's, which it is made where it can be.
bool IsMadePrivate(const fs::path& folder) {
  mkdir(folder.c_str(), kOwnersFolder);
  return IsOwnFolder(folder) && chmod(folder.c_str(), kOwnersFolder) == 0;
}

bool IsWritten(const fs::path& journal) {
  Descriptor file;
  file.Open(journal, O_RDONLY | O_NONBLOCK);
  return file.IsOpen() && flock(file.number(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

}  // namespace

std::vector<fs::path> HostJournals::PlacesOf(const fs::path& programFolder) {
  std::vector<fs::path> places = {programFolder / "journal"};
  if (const char* const runtime = std::getenv("XDG_RUNTIME_DIR")) {
    places.push_back(fs::path(runtime) / "tarvik-journal");
  }
  std::error_code error;
  const fs::path temporary = fs::temp_directory_path(error);
  if (!error) places.push_back(temporary / ("tarvik-journal-" + std::to_string(geteuid())));
  return places;
}

Outcome<std::unique_ptr<JournalFile>> HostJournals::Begin(std::string_view bytes) {
  Failure failure = SystemFailure(ENOENT);
  for (const fs::path& place : places_) {
    if (!IsMadePrivate(place)) continue;
    auto file = std::make_unique<HostJournalFile>(place);
    if (!file->IsOpen()) {
      failure = SystemFailure(errno);
      continue;
    }
    const auto written = file->Append(bytes);
    if (written) return std::unique_ptr<JournalFile>(std::move(file));
    failure = written.failure();
    file->Remove();
  }
  return failure;
}

std::vector<std::string> HostJournals::Left() const {
  std::vector<std::pair<fs::file_time_type, std::string>> found;
  for (const fs::path& place : places_) {
    if (!IsOwnFolder(place)) continue;
    std::error_code error;
    for (fs::directory_iterator at(place, error), end; !error && at != end; at.increment(error)) {
      std::error_code unknown;
      if (at->path().extension() != kEnding || !fs::is_regular_file(at->symlink_status(unknown))) continue;
      if (!IsWritten(at->path())) found.emplace_back(at->last_write_time(unknown), at->path().string());
    }
  }
  std::sort(found.begin(), found.end());
  std::vector<std::string> names(found.size());
  std::ranges::transform(found, names.begin(), [](auto& each) { return std::move(each.second); });
  return names;
}

Outcome<std::string> HostJournals::Read(const std::string& name) const {
  Descriptor file;
  file.Open(name, O_RDONLY | O_NOFOLLOW | O_NONBLOCK);
  struct stat status {};
  if (!file.IsOpen() || fstat(file.number(), &status) != 0) return SystemFailure(errno, error::kFileNotFound);
  if (!S_ISREG(status.st_mode)) return SystemFailure(EACCES);
  if (status.st_size > kLargest) return SystemFailure(EFBIG);
  return file.ReadAll(static_cast<std::size_t>(status.st_size));
}

void HostJournals::Remove(const std::string& name) { unlink(name.c_str()); }

}  // namespace tarvik
