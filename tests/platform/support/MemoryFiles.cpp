#include "support/MemoryFiles.h"

#include <algorithm>
#include <cassert>
#include <cerrno>
#include <utility>

#include "platform/FileSize.h"

namespace tarvik {
namespace {

Failure PathNotFound() { return {error::kPathNotFound, "Path not found", ENOENT}; }
Failure PathAccess() { return {error::kPathAccess, "Path/File access error", EACCES}; }

LogicalPath Parent(LogicalPath path) {
  path.names.pop_back();
  return path;
}

}  // namespace

MemoryFiles::MemoryFiles() { PutFolder("c:\\"); }

void MemoryFiles::Put(std::string_view path, std::string_view content) {
  const auto whole = current_.Complete(path);
  assert(whole && !whole->names.empty());
  PutFolder(Parent(*whole).Text());
  entries_[whole->Text()] = {.content = std::string(content), .written = ++writes_};
}

void MemoryFiles::PutFolder(std::string_view path) {
  auto whole = current_.Complete(path);
  assert(whole);
  for (; !whole->names.empty(); whole->names.pop_back()) entries_[whole->Text()].isFolder = true;
  entries_[whole->Text()].isFolder = true;
}

void MemoryFiles::Remove(std::string_view path) {
  const auto whole = current_.Complete(path);
  if (!whole) return;
  const std::string text = whole->Text();
  const std::string inside = text.ends_with('\\') ? text : text + '\\';
  std::erase_if(entries_, [&](const auto& e) { return e.first == text || e.first.starts_with(inside); });
}

void MemoryFiles::SetReadOnly(std::string_view path, bool readOnly) {
  if (Entry* entry = Find(path)) entry->readOnly = readOnly;
}

void MemoryFiles::SetUnreadable(std::string_view path) {
  if (Entry* entry = Find(path)) entry->unreadable = true;
}

std::optional<std::string> MemoryFiles::Content(std::string_view path) const {
  const Entry* entry = Find(path);
  return entry && !entry->isFolder ? std::optional(entry->content) : std::nullopt;
}

std::vector<std::string> MemoryFiles::List() const {
  std::vector<std::string> files;
  for (const auto& [path, entry] : entries_) {
    if (!entry.isFolder) files.push_back(path);
  }
  return files;
}

const MemoryFiles::Entry* MemoryFiles::Find(std::string_view path) const {
  const auto whole = current_.Complete(path);
  const auto found = whole ? entries_.find(whole->Text()) : entries_.end();
  if (found == entries_.end() || (whole->mustBeFolder && !found->second.isFolder)) return nullptr;
  return &found->second;
}

MemoryFiles::Entry* MemoryFiles::Find(std::string_view path) {
  return const_cast<Entry*>(std::as_const(*this).Find(path));
}

bool MemoryFiles::FileExists(std::string_view path) const {
  const Entry* entry = Find(path);
  return entry && !entry->isFolder;
}

bool MemoryFiles::FolderExists(std::string_view path) const {
  const Entry* entry = Find(path);
  return entry && entry->isFolder;
}

std::vector<std::string> MemoryFiles::NamesIn(std::string_view folder, bool folders) const {
  std::vector<std::string> names;
  const auto whole = current_.Complete(folder);
  const std::string path = whole ? whole->Text() : "";
  const std::string inside = path.ends_with('\\') ? path : path + "\\";
  for (const auto& [entryPath, entry] : entries_) {
    if (entry.isFolder != folders || !entryPath.starts_with(inside)) continue;
    const std::string name = entryPath.substr(inside.size());
    if (!name.empty() && name.find('\\') == std::string::npos) names.push_back(name);
  }
  return names;
}

std::vector<std::string> MemoryFiles::FilesIn(std::string_view folder, std::string_view ending) const {
  std::vector<std::string> names = NamesIn(folder, false);
  std::erase_if(names, [ending](const std::string& name) { return !name.ends_with(ending); });
  return names;
}

std::vector<std::string> MemoryFiles::FoldersIn(std::string_view folder) const {
  return NamesIn(folder, true);
}

std::string MemoryFiles::DriveLetters() const {
  std::string letters;
  for (const auto& [path, entry] : entries_) {
    if (path.size() == 3) letters += path[0];
  }
  return letters;
}

Outcome<FileState> MemoryFiles::State(std::string_view path) const {
  const Entry* entry = Find(path);
  if (!entry) return Failure{error::kFileNotFound, "File not found", ENOENT};
  if (entry->isFolder) return PathAccess();
  return FileState{.size = entry->content.size(), .modified = entry->written, .changed = entry->written};
}

Outcome<std::string> MemoryFiles::Read(std::string_view path) const {
  const Entry* entry = Find(path);
  if (!entry) return Failure{error::kFileNotFound, "File not found", ENOENT};
  if (entry->isFolder || entry->unreadable) return PathAccess();
  return entry->content.size() > kLargestFile ? Outcome<std::string>(TooLarge()) : entry->content;
}

Outcome<LogicalPath> MemoryFiles::PlaceFor(std::string_view path) const {
  auto whole = current_.Complete(path);
  if (!whole || whole->names.empty() || !IsName(whole->names.back())) return PathNotFound();
  const Entry* folder = Find(Parent(*whole).Text());
  if (!folder || !folder->isFolder) return PathNotFound();
  if (folder->readOnly) return PathAccess();
  return *std::move(whole);
}

Outcome<> MemoryFiles::Write(std::string_view path, std::string_view content) {
  const auto place = PlaceFor(path);
  if (!place) return place.failure();
  if (place->mustBeFolder) return PathNotFound();
  const Entry* old = Find(path);
  if (old && (old->isFolder || old->readOnly)) return PathAccess();
  if (room_ && content.size() > *room_) return Failure{error::kDiskFull, "Disk full", ENOSPC};
  if (room_) *room_ -= content.size();
  Entry& entry = entries_[place->Text()];
  entry.content = content;
  entry.written = ++writes_;
  return Done{};
}

Outcome<> MemoryFiles::Delete(std::string_view path) {
  const Entry* entry = Find(path);
  if (!entry) return Failure{error::kFileNotFound, "File not found", ENOENT};
  if (entry->isFolder || entry->readOnly) return PathAccess();
  Remove(path);
  return Done{};
}

Outcome<> MemoryFiles::MakeFolder(std::string_view path) {
  const auto place = PlaceFor(path);
  if (!place) return place.failure();
  const bool made = entries_.try_emplace(place->Text(), Entry{.isFolder = true}).second;
  if (!made) return PathAccess();
  return Done{};
}

Outcome<> MemoryFiles::ChangeDrive(std::string_view path) {
  const auto whole = current_.Complete(path);
  if (!whole || !FolderExists(LogicalPath{.drive = whole->drive}.Text())) return PathNotFound();
  current_.SetDrive(whole->drive);
  return Done{};
}

Outcome<> MemoryFiles::ChangeFolder(std::string_view path) {
  if (!FolderExists(path)) return PathNotFound();
  current_.SetFolder(*current_.Complete(path));
  return Done{};
}

}  // namespace tarvik
