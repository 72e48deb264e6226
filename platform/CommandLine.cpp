#include "platform/CommandLine.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <string_view>
#include <system_error>

#include "text/CodePage.h"

namespace tarvik {
namespace {

namespace fs = std::filesystem;

std::optional<fs::path> FileOf(const std::string& path, const Drives& drives) {
  auto host = drives.ToHost(path);
  std::error_code error;
  if (!host || !fs::is_regular_file(*host, error)) return std::nullopt;
  return *std::move(host);
}

/// The command whose program is `name`, at the beginning of the line up to `end`.
std::optional<ParsedCommand> Take(const std::string& line, const std::string& name, std::size_t end,
                                  const Drives& drives) {
  auto file = FileOf(name, drives);
  if (!file) return std::nullopt;
  return ParsedCommand{name, *file, line.substr(std::min(end + 1, line.size()))};
}

/// Where the header of a program for something newer than DOS begins, or past the end.
std::size_t NewHeader(std::string_view start) {
  constexpr std::size_t kPlace = 0x3C;
  std::size_t at = 0;
  if (start.size() < kPlace + 4) return start.size();
  for (std::size_t i = 4; i-- > 0;) at = at << 8U | static_cast<unsigned char>(start[kPlace + i]);
  return std::min(at, start.size());
}

}  // namespace

std::optional<ParsedCommand> ParseCommandLine(const std::string& line, const Drives& drives) {
  if (line.starts_with('"')) {
    const std::size_t quote = line.find('"', 1);
    if (quote == std::string::npos) return std::nullopt;
    const bool blank = line.substr(quote + 1, 1) == " ";
    return Take(line, line.substr(1, quote - 1), blank ? quote + 1 : quote, drives);
  }
  const std::size_t first = std::min(line.find(' '), line.size());
  if (auto found = Take(line, line.substr(0, first), first, drives)) return found;
  for (std::size_t end = line.size(); end != std::string::npos && end > first;
       end = line.rfind(' ', end - 1)) {
    if (auto found = Take(line, line.substr(0, end), end, drives)) return found;
  }
  return std::nullopt;
}

ProgramKind KindOf(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  const auto read = [&in](std::size_t at) {
    std::array<char, 64> bytes{};
    in.clear();
    in.seekg(static_cast<std::streamoff>(at));
    in.read(bytes.data(), bytes.size());
    return std::string(bytes.data(), static_cast<std::size_t>(in.gcount()));
  };
  const std::string start = read(0);
  if (start.starts_with("\x7F"
                        "ELF") ||
      start.starts_with("#!"))
    return ProgramKind::Native;
  if (start.starts_with("MZ") || start.starts_with("ZM")) {
    const std::string header = read(NewHeader(start));
    return header.starts_with("PE") || header.starts_with("NE") ? ProgramKind::Windows : ProgramKind::Dos;
  }
  const std::string ending = LowerCase(file.extension().string());
  const bool named = ending == ".com" || ending == ".bat";
  return named && !start.empty() ? ProgramKind::Dos : ProgramKind::None;
}

}  // namespace tarvik
