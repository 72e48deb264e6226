// How large a file may be that the program opens. The disks refuse larger ones, and whoever opens a file can
// say so.
#pragma once

#include <cerrno>
#include <cstddef>

#include "platform/Outcome.h"

namespace tarvik {

inline constexpr std::size_t kLargestFile = std::size_t{64} << 20;

[[nodiscard]] inline Failure TooLarge() {
  return {error::kOutOfMemory, "The file is larger than 64 MB", EFBIG};
}

[[nodiscard]] inline bool IsTooLarge(const Failure& failure) {
  return failure.number == error::kOutOfMemory && failure.systemCode == EFBIG;
}

}  // namespace tarvik
