#include "platform/Files.h"

namespace tarvik {
namespace {

Outcome<> Holds(const Files& files, std::string_view path, std::string_view content) {
  const auto read = files.Read(path);
  if (!read) return read.failure();
  if (*read != content) return Failure{error::kUnexpected, "The file does not hold what was written", 0};
  return Done{};
}

}  // namespace

Outcome<> WriteAndRead(Files& files, std::string_view path, std::string_view content) {
  auto written = files.Write(path, content);
  return written ? Holds(files, path, content) : written;
}

Outcome<> WriteAndReadCopy(Files& files, std::string_view path, std::string_view content,
                           std::string_view of) {
  auto written = files.WriteCopy(path, content, of);
  return written ? Holds(files, path, content) : written;
}

}  // namespace tarvik
