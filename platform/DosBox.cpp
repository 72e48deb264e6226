#include "platform/DosBox.h"

#include <stdlib.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <iterator>
#include <string_view>
#include <system_error>
#include <vector>

#include "text/CodePage.h"

namespace tarvik {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kLongestTail = 126;
constexpr std::size_t kLongestFolder = 63;
constexpr std::size_t kLongestProgram = 79;
constexpr std::size_t kLongestMount = 200;

constexpr const char* kSettings = "dosbox.conf";
constexpr const char* kBatch = "job.bat";
constexpr const char* kMark = "DONE";

/// The folder's own name, with six letters behind it, and a file in it as long as it ends with us.
constexpr const char* kFolder = "tarvik-";
constexpr const char* kOwned = "OWNED";

constexpr char kHost = 'z';

// The joystick stays with this program, and nothing waits for a key.
constexpr const char* kOptions =
    "[sdl]\nfullscreen=false\nautolock=false\nwaitonerror=false\n"
    "[mixer]\nnosound=true\n"
    "[midi]\nmpu401=none\nmididevice=none\n"
    "[joystick]\njoysticktype=none\n";

Failure CannotSay() { return {error::kInvalidCall, "DOS cannot be told to start this", 0}; }

bool IsDosCharacter(char c) {
  constexpr std::string_view kSigns = "_^$~!#%&-{}@'()`";
  return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || kSigns.find(c) != kSigns.npos;
}

bool IsDosName(std::string_view name) {
  const std::size_t dot = name.find('.');
  const std::string_view stem = name.substr(0, dot);
  const std::string_view ending = dot == name.npos ? "" : name.substr(dot + 1);
  const auto fits = [](std::string_view part, std::size_t longest) {
    return part.size() <= longest && std::all_of(part.begin(), part.end(), IsDosCharacter);
  };
  return !stem.empty() && fits(stem, 8) && fits(ending, 3);
}

/// Whether DOS can take the path, which is a whole one in lower case.
bool IsDosPath(std::string_view path, std::size_t longest) {
  if (path.size() > longest) return false;
  path.remove_prefix(std::min<std::size_t>(3, path.size()));
  while (!path.empty()) {
    const std::size_t end = std::min(path.find('\\'), path.size());
    if (!IsDosName(path.substr(0, end))) return false;
    path.remove_prefix(std::min(end + 1, path.size()));
  }
  return true;
}

bool IsDosTail(std::string_view tail) {
  constexpr std::string_view kNever = "<>|\x7F";
  return tail.size() <= kLongestTail && std::none_of(tail.begin(), tail.end(), [&](char c) {
           return static_cast<unsigned char>(c) < ' ' || kNever.find(c) != kNever.npos;
         });
}

/// Batch files take a single percent sign for the start of a variable.
std::string PercentDoubled(std::string_view text) {
  std::string result;
  for (const char c : text) result += c == '%' ? std::string("%%") : std::string(1, c);
  return result;
}

std::string On(char drive, std::string_view path) {
  return std::string{drive, ':', '\\'} + std::string(path);
}

/// The letters of the drives that are there.
std::string DrivesThere(const Drives& drives) {
  std::string letters;
  for (const auto& [letter, folder] : drives.HostFolders()) {
    if (IsFolder(folder)) letters += letter;
  }
  return letters;
}

/// Two letters that no drive has: DOSBox's own drive goes from Z to the first, our folder is the second.
Outcome<std::pair<char, char>> FreeLetters(const std::string& taken) {
  std::string free;
  for (char letter = 'y'; letter >= 'a'; --letter) {
    if (taken.find(letter) == taken.npos) free += letter;
  }
  if (free.size() < 2) return CannotSay();
  return std::pair(free[0], free[1]);
}

/// The drives are links in our folder, so that their places can have any name.
Outcome<> LinkDrives(const std::string& letters, const Drives& drives, const fs::path& folder) {
  for (const char letter : letters) {
    std::error_code error;
    fs::create_directory_symlink(drives.HostFolders().at(letter), folder / std::string(1, letter), error);
    if (error) return Failure{error::kPathAccess, error.message(), error.value()};
  }
  return Done{};
}

/// The root of the host is for reading: only a disc that nobody can write to stops DOSBox from writing.
std::string Mount(char letter, const std::string& place) {
  const std::string disc = letter == kHost ? " -t cdrom" : "";
  return "mount " + std::string(1, letter) + " \"" + place + "/" + letter + "\"" + disc + "\n";
}

std::string Settings(const std::string& letters, char virtualDrive, char ownDrive, const fs::path& folder,
                     WindowStyle style) {
  const std::string place = PercentDoubled(folder.native());
  std::string text = kOptions;
  if (style == WindowStyle::Maximised) text += "[render]\nscaler=normal3x\n";
  text += "[autoexec]\n@echo off\nmount -z " + std::string(1, virtualDrive) + "\n";
  for (const char letter : letters) text += Mount(letter, place);
  text += "mount " + std::string(1, ownDrive) + " \"" + place + "\"\n";
  return text + "call " + On(ownDrive, kBatch) + "\nexit\n";
}

Outcome<std::string> Batch(const ParsedCommand& command, const std::string& letters, char ownDrive,
                           const Drives& drives) {
  const std::string tail = command.rest.empty() ? "" : " " + ToUtf8(command.rest);
  const std::string program = drives.FullPath(command.program);
  if (!IsDosPath(program, kLongestProgram) || !IsDosTail(tail)) return CannotSay();
  const std::string current = drives.CurrentFolder();
  std::string text = "@echo off\r\ncls\r\n";
  for (const char letter : letters) {
    const std::string folder = drives.FullPath(std::string{letter, ':', '.'});
    const bool fits = IsDosPath(folder, kLongestFolder);
    if (!fits && folder == current) return CannotSay();
    if (fits) text += "cd " + PercentDoubled(folder) + "\r\n";
  }
  text += current.substr(0, 2) + "\r\ncall " + PercentDoubled(program + tail) + "\r\n";
  return text + "echo " + kMark + ">" + On(ownDrive, kMark) + "\r\n";
}

Outcome<> WriteFile(const fs::path& path, const std::string& content) {
  std::ofstream out(path, std::ios::binary);
  out << content << std::flush;
  if (!out) return Failure{error::kDiskFull, "Disk full", 0};
  return Done{};
}

/// Whether it is a folder of ours whose process has ended. One that is being made has no such file yet.
bool IsLeftOver(const fs::path& folder) {
  struct stat status {};
  if (lstat(folder.c_str(), &status) != 0 || !S_ISDIR(status.st_mode) || status.st_uid != geteuid()) {
    return false;
  }
  std::error_code error;
  Descriptor own;
  own.Open(folder, O_RDONLY | O_DIRECTORY | O_NOFOLLOW);
  return own.IsOpen() && flock(own.number(), LOCK_EX | LOCK_NB) == 0 && fs::exists(folder / kOwned, error);
}

/// Keeps DOSBox from taking a text terminal for its screen when it has no other.
std::vector<std::string> Environment() { return {"SDL_VIDEODRIVER=x11"}; }

class DosBoxProgram : public RunningProgram {
 public:
  DosBoxProgram(std::unique_ptr<DosBoxFolder> folder, ChildProcess process)
      : folder_(std::move(folder)), process_(std::move(process)) {}

  ProgramState State() override {
    const ProgramState state = process_.State();
    return state == ProgramState::Ended && !folder_->HasMark() ? ProgramState::Abandoned : state;
  }
  void Stop() override { process_.Stop(); }

 private:
  std::unique_ptr<DosBoxFolder> folder_;
  ChildProcess process_;  // ends before the folder goes
};

}  // namespace

Outcome<std::unique_ptr<DosBoxFolder>> DosBoxFolder::Make() {
  std::error_code error;
  std::string name = (fs::temp_directory_path(error) / kFolder).string() + "XXXXXX";
  if (error || name.size() > kLongestMount || name.find('"') != name.npos || !::mkdtemp(name.data())) {
    return Failure{error::kPathAccess, "Path/File access error", errno};
  }
  return std::unique_ptr<DosBoxFolder>(new DosBoxFolder(name));
}

DosBoxFolder::DosBoxFolder(fs::path path) : path_(std::move(path)) {
  own_.Open(path_, O_RDONLY | O_DIRECTORY);
  if (own_.IsOpen() && flock(own_.number(), LOCK_EX | LOCK_NB) == 0) std::ofstream(path_ / kOwned).close();
}

void DosBoxFolder::Release() {
  std::error_code ignored;
  fs::remove(path_ / kOwned, ignored);
  path_.clear();
}

void DosBoxFolder::RemoveLeftOvers() {
  std::error_code error;
  const fs::path temporary = fs::temp_directory_path(error);
  if (error) return;
  for (fs::directory_iterator at(temporary, error), end; !error && at != end; at.increment(error)) {
    std::error_code ignored;
    const fs::path& folder = at->path();
    const bool named = folder.filename().native().starts_with(kFolder);
    if (named && IsLeftOver(folder)) fs::remove_all(folder, ignored);
  }
}

DosBoxFolder::~DosBoxFolder() {
  std::error_code ignored;
  if (!path_.empty()) fs::remove_all(path_, ignored);
}

bool DosBoxFolder::HasMark() const {
  std::error_code error;
  return fs::exists(path_ / kMark, error);
}

Outcome<DosBoxRun> PrepareDosBox(const ParsedCommand& command, const Drives& drives, WindowStyle style) {
  const auto dosBox = FindInPath("dosbox");
  if (!dosBox) return Failure{error::kFileNotFound, "DOSBox is not installed", 0};
  const std::string letters = DrivesThere(drives);
  const auto free = FreeLetters(letters);
  if (!free) return free.failure();
  const auto [virtualDrive, ownDrive] = *free;
  const auto batch = Batch(command, letters, ownDrive, drives);
  if (!batch) return batch.failure();
  auto folder = DosBoxFolder::Make();
  if (!folder) return folder.failure();
  const fs::path& place = (*folder)->path();
  for (const Outcome<>& done :
       {LinkDrives(letters, drives, place), WriteFile(place / kBatch, *batch),
        WriteFile(place / kSettings, Settings(letters, virtualDrive, ownDrive, place, style))}) {
    if (!done) return done.failure();
  }
  return DosBoxRun{*std::move(folder), *dosBox};
}

/// DOSBox needs the folder until it ends, which may be long after us: a shell stays to remove it. It is given
/// no text but ours.
Outcome<> StartDosBox(DosBoxRun run) {
  const fs::path& place = run.folder->path();
  auto started = StartDetached(
      {.file = "/bin/sh",
       .arguments = {"-c", R"("$0" -conf "$1"; rm -rf "$2")", run.dosBox.string(), place / kSettings, place},
       .folder = place,
       .environment = Environment()});
  if (started) run.folder->Release();
  return started;
}

Outcome<std::unique_ptr<RunningProgram>> StartDosBoxToWait(DosBoxRun run) {
  const fs::path& place = run.folder->path();
  auto child = ChildProcess::Start({.file = run.dosBox,
                                    .arguments = {"-conf", place / kSettings},
                                    .folder = place,
                                    .environment = Environment()});
  if (!child) return child.failure();
  return std::unique_ptr<RunningProgram>(
      std::make_unique<DosBoxProgram>(std::move(run.folder), *std::move(child)));
}

}  // namespace tarvik
