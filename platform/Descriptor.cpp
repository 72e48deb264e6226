#include "platform/Descriptor.h"

#include <algorithm>
#include <cerrno>
#include <system_error>

#include "platform/FileSize.h"

namespace tarvik {

Failure SystemFailure(int code, int numberWhenMissing) {
  const bool full = code == ENOSPC || code == EDQUOT || code == EFBIG;
  const bool missing = code == ENOENT || code == ENOTDIR;
  const int number = full ? error::kDiskFull : missing ? numberWhenMissing : error::kPathAccess;
  return {number, std::generic_category().message(code), code};
}

Outcome<> Descriptor::WriteAll(std::string_view content) const {
  while (!content.empty()) {
    const ssize_t written = write(number_, content.data(), content.size());
    if (written >= 0) {
      content.remove_prefix(static_cast<std::size_t>(written));
    } else if (errno != EINTR) {
      return SystemFailure(errno);
    }
  }
  return Done{};
}

Outcome<std::string> Descriptor::ReadAll(std::size_t expected) const {
  constexpr std::size_t kStep = 65536;
  std::string content;
  std::size_t size = 0;
  content.resize(expected + 1);  // one more, so that the end shows without another round
  while (true) {
    const ssize_t count = read(number_, content.data() + size, content.size() - size);
    if (count == 0) break;
    if (count < 0 && errno != EINTR) return SystemFailure(errno);
    if (count > 0) size += static_cast<std::size_t>(count);
    if (size > std::max(expected, kLargestFile)) return TooLarge();
    if (size == content.size()) content.resize(size + kStep);
  }
  content.resize(size);
  return content;
}

}  // namespace tarvik
