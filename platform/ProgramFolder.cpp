#include "platform/ProgramFolder.h"

#include <stdlib.h>
#include <unistd.h>

#include <chrono>
#include <cstdint>
#include <fstream>
#include <map>
#include <string>
#include <utility>

namespace tarvik {
namespace {

namespace fs = std::filesystem;

/// The list of what was copied to the user's folder: a line for each file with its time, size and name.
constexpr const char* kRecord = "installed.txt";

bool HasData(const fs::path& folder) {
  std::error_code ignored;
  return fs::exists(folder / "tarvik.hlp", ignored);
}

/// A mode that forbids writing is taken at its word, also for those whom no mode stops.
bool CanWrite(const fs::path& folder) {
  constexpr fs::perms kAnyMayWrite =
      fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
  std::error_code ignored;
  return (fs::status(folder, ignored).permissions() & kAnyMayWrite) != fs::perms::none &&
         access(folder.c_str(), W_OK | X_OK) == 0;
}

/// What tells one version of a file from another without reading it. Whole seconds, as packages keep them.
struct Stamp {
  std::int64_t seconds = 0;
  std::uintmax_t size = 0;
  bool operator==(const Stamp&) const = default;
};

/// The stamp of a file; an empty one where there is no such file.
Stamp StampOf(const fs::path& file) {
  std::error_code ignored;
  if (!fs::is_regular_file(file, ignored)) return {};
  const auto time = fs::last_write_time(file, ignored).time_since_epoch();
  return {std::chrono::floor<std::chrono::seconds>(time).count(), fs::file_size(file, ignored)};
}

/// Copies the file whole or not at all, and with the time of the original.
bool Copy(const fs::path& from, const fs::path& to) {
  const fs::path partial = to.string() + "." + std::to_string(getpid());
  std::error_code failure;
  fs::create_directories(to.parent_path(), failure);
  fs::copy_file(from, partial, fs::copy_options::overwrite_existing, failure);
  if (!failure) fs::permissions(partial, fs::perms::owner_write, fs::perm_options::add, failure);
  if (!failure) fs::last_write_time(partial, fs::last_write_time(from, failure), failure);
  if (!failure) fs::rename(partial, to, failure);
  if (!failure) return true;
  std::error_code ignored;
  fs::remove(partial, ignored);
  return false;
}

using Record = std::map<std::string, Stamp>;

Record ReadRecord(const fs::path& file) {
  std::error_code ignored;
  if (!fs::is_regular_file(file, ignored)) return {};  // a pipe would wait for somebody who writes to it
  Record record;
  std::ifstream stream(file);
  Stamp stamp;
  std::string name;
  while (stream >> stamp.seconds >> stamp.size && std::getline(stream >> std::ws, name)) record[name] = stamp;
  return record;
}

void WriteRecord(const Record& record, const fs::path& file) {
  const fs::path partial = file.string() + "." + std::to_string(getpid());
  std::ofstream stream(partial);
  for (const auto& [name, stamp] : record) {
    stream << stamp.seconds << ' ' << stamp.size << ' ' << name << '\n';
  }
  stream.close();
  std::error_code ignored;
  if (stream) fs::rename(partial, file, ignored);
  if (!stream) fs::remove(partial, ignored);
}

/// A file that was never copied comes if it is not there; one that was is replaced by a newer version if it
/// is still as it was copied.
void FillFolder(const fs::path& own, const fs::path& installed, const fs::path& executable) {
  const Record before = ReadRecord(own / kRecord);
  Record record = before;
  std::error_code failure;
  for (fs::recursive_directory_iterator at(installed, failure), end; !failure && at != end;
       at.increment(failure)) {
    const Stamp stamp = StampOf(at->path());
    if (stamp == Stamp{} || at->path() == executable) continue;
    const fs::path name = at->path().lexically_relative(installed);
    Stamp& recorded = record[name.string()];
    if (recorded == stamp) continue;
    if (StampOf(own / name) == recorded && !Copy(at->path(), own / name)) continue;
    recorded = stamp;
  }
  if (record != before) WriteRecord(record, own / kRecord);
}

/// The path of a new temporary folder; empty where there can be none.
fs::path NewTemporaryFolder() {
  std::error_code failure;
  std::string name = (fs::temp_directory_path(failure) / "tarvik-XXXXXX").string();
  return !failure && mkdtemp(name.data()) ? fs::path(name) : fs::path();
}

}  // namespace

ProgramFolder::ProgramFolder(const fs::path& executable, const fs::path& usersOwn)
    : path_(executable.parent_path()), executable_(executable) {
  if (!HasData(path_)) {
    path_ = (path_ / "../share/tarvik").lexically_normal();
  } else if (CanWrite(path_)) {
    return;
  }
  std::error_code ignored;
  if (!usersOwn.empty()) fs::create_directories(usersOwn, ignored);
  lasts_ = CanWrite(usersOwn);
  const fs::path own = lasts_ ? usersOwn : NewTemporaryFolder();
  if (own.empty()) return;
  installed_ = std::exchange(path_, own);
}

void ProgramFolder::Fill() const {
  if (!installed_.empty()) FillFolder(path_, installed_, executable_);
}

fs::path ProgramFolder::UsersOwn() {
  const auto variable = [](const char* name) -> fs::path {
    const char* const value = getenv(name);
    return value ? value : "";
  };
  if (const fs::path data = variable("XDG_DATA_HOME"); data.is_absolute()) return data / "tarvik";
  const fs::path home = variable("HOME");
  return home.is_absolute() ? home / ".local/share/tarvik" : fs::path();
}

}  // namespace tarvik
