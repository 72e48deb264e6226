#include "workbench/SeenFile.h"

#define XXH_INLINE_ALL
#include <xxhash.h>

namespace tarvik {
namespace {

std::uint64_t HashOf(std::string_view content) { return XXH3_64bits(content.data(), content.size()); }

}  // namespace

/// The state is asked for first, so that what changes meanwhile is looked at once more.
Outcome<std::string> SeenFile::See(const Files& files, std::string_view path) {
  const auto state = files.State(path);
  auto content = files.Read(path);
  seen_.reset();
  if (content) seen_ = Seen{state ? *state : FileState{}, HashOf(*content)};
  return content;
}

OnDisk SeenFile::Look(const Files& files, std::string_view path) {
  const auto state = files.State(path);
  if (!state) {
    return seen_ && state.failure().number == error::kFileNotFound ? OnDisk::Gone : OnDisk::AsSeen;
  }
  if (!seen_) return OnDisk::NeverSeen;
  if (*state == seen_->state) return OnDisk::AsSeen;
  const auto content = files.Read(path);
  if (!content || HashOf(*content) != seen_->hash) return OnDisk::Changed;
  seen_->state = *state;
  return OnDisk::AsSeen;
}

std::string MarkOf(std::string_view content) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  constexpr int kLength = 8;
  std::string mark;
  std::uint64_t hash = HashOf(content);
  for (int i = 0; i < kLength; ++i, hash >>= 4) mark += kDigits[hash & 0xF];
  return mark;
}

}  // namespace tarvik
