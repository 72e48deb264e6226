#include "platform/HostDrives.h"

#include <algorithm>
#include <cerrno>
#include <system_error>

#include "platform/HostFiles.h"
#include "platform/ProfileFile.h"

namespace tarvik {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kLongestPath = 4096;

/// A folder whose name the settings file cannot hold counts as none.
bool CanBeDrive(const fs::path& folder) {
  const std::string& text = folder.native();
  return folder.is_absolute() && IsFolder(folder) && text.size() < kLongestPath &&
         std::none_of(text.begin(), text.end(), [](char c) { return c == '\r' || c == '\n'; });
}

}  // namespace

HostDrives::HostDrives(const fs::path& own) : ownDrive_(own / "drive_c") {
  HostFiles files(drives_);
  const Profile stored = ProfileFile(files, drives_.FromHost(own) + "\\Tarvik.ini").Read();
  for (char letter = 'a'; letter <= 'z'; ++letter) {
    drives_.SetFolder(letter, stored.GetString("Drives", std::string(1, letter), "", kLongestPath));
  }
  if (!drives_.HostFolders().contains('c')) drives_.SetFolder('c', ownDrive_.string());
}

std::vector<Drive> HostDrives::All() const {
  std::vector<Drive> drives;
  for (const auto& [letter, folder] : drives_.HostFolders()) {
    drives.push_back({letter, folder.string(), IsFolder(folder)});
  }
  return drives;
}

Outcome<> HostDrives::Set(char letter, const std::string& folder) {
  if (letter == 'z' || !CanBeDrive(folder)) return Failure{error::kPathNotFound, "Path not found", ENOENT};
  drives_.SetFolder(letter, folder);
  return Done{};
}

void HostDrives::Remove(char letter) {
  drives_.SetFolder(letter, letter == 'c' ? ownDrive_.string() : "");
  MakeOwnDrive();
}

void HostDrives::MakeOwnDrive() const {
  const auto& folders = drives_.HostFolders();
  const auto c = folders.find('c');
  std::error_code ignored;  // a program in a folder that cannot be written to has an empty drive c
  if (c != folders.end() && c->second == ownDrive_) fs::create_directory(ownDrive_, ignored);
}

std::string HostDrives::ToHost(const std::string& path) const {
  const auto there = drives_.ToHost(path);
  const auto host = there ? there : drives_.ToHostNew(path);
  return host ? host->string() : "";
}

std::string HostDrives::Hold(const std::string& path) {
  std::string host = ToHost(path);
  if (!host.empty()) drives_.Hold(path, host);
  return host;
}

}  // namespace tarvik
