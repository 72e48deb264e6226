// A file of the host that is open, and what the system says of it.
#pragma once

#include <fcntl.h>
#include <unistd.h>

#include <filesystem>
#include <string>
#include <string_view>
#include <utility>

#include "platform/Outcome.h"

namespace tarvik {

/// `code` is an errno. A missing file or folder gets the number that the caller has for it.
[[nodiscard]] Failure SystemFailure(int code, int numberWhenMissing = error::kPathNotFound);

/// Closed when it goes, and in the programs that this one starts.
class Descriptor {
 public:
  Descriptor() = default;
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() { Close(); }

  /// `errno` tells why it is not open afterwards.
  void Open(const std::filesystem::path& path, int flags, mode_t mode = 0) {
    number_ = open(path.c_str(), flags | O_CLOEXEC, mode);
  }
  /// False where the system tells only now that what was written is lost.
  bool Close() { return number_ < 0 || close(std::exchange(number_, -1)) == 0; }

  [[nodiscard]] bool IsOpen() const { return number_ >= 0; }
  [[nodiscard]] int number() const { return number_; }

  [[nodiscard]] Outcome<> WriteAll(std::string_view content) const;
  /// To the end, wherever that is, but for a file that grows and grows; `expected` bytes are probably there.
  [[nodiscard]] Outcome<std::string> ReadAll(std::size_t expected) const;

 private:
  int number_ = -1;
};

}  // namespace tarvik
