// A file as it was when the program last read or wrote it, so that what another program does to it shows.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/Files.h"

namespace tarvik {

/// What a look at a file shows. One of which the disk tells nothing counts as seen.
enum class OnDisk { AsSeen, Changed, Gone, NeverSeen };

class SeenFile {
 public:
  /// Reads the file; what it holds is seen from now on, or nothing is where it cannot be read.
  Outcome<std::string> See(const Files& files, std::string_view path);
  /// From now on any file at the path is one that was never seen.
  void Forget() { seen_.reset(); }
  /// It is read only where the disk says that it may be another one.
  [[nodiscard]] OnDisk Look(const Files& files, std::string_view path);

 private:
  struct Seen {
    FileState state;
    std::uint64_t hash = 0;
  };

  std::optional<Seen> seen_;
};

/// Eight characters for a content that hardly any other one has.
[[nodiscard]] std::string MarkOf(std::string_view content);

}  // namespace tarvik
