#include "workbench/Versions.h"

#include <algorithm>
#include <charconv>
#include <chrono>

#include "text/Encoding.h"
#include "text/Rtf.h"
#include "workbench/SeenFile.h"

namespace tarvik {
namespace {

// A version is called so: 000042 2026-11-22 07.45.12.b50, with " other" before the ending if it is another
// program's.
constexpr std::size_t kDigits = 6;
constexpr std::size_t kStampLength = 19;
constexpr std::string_view kOther = " other";
constexpr std::size_t kMostOfName = 60;

std::optional<std::size_t> NumberIn(std::string_view digits) {
  std::size_t number = 0;
  const auto [end, status] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  if (status != std::errc{} || end != digits.data() + digits.size()) return {};
  return number;
}

/// The second of a stamp, as if there were neither zones nor leap seconds; 0 for what is none.
std::int64_t SecondOf(std::string_view stamp) {
  const auto part = [stamp](std::size_t at, std::size_t length) {
    return static_cast<int>(NumberIn(stamp.substr(std::min(at, stamp.size()), length)).value_or(0));
  };
  const std::chrono::year_month_day day(std::chrono::year(part(0, 4)),
                                        std::chrono::month(static_cast<unsigned>(part(5, 2))),
                                        std::chrono::day(static_cast<unsigned>(part(8, 2))));
  if (!day.ok()) return 0;
  const std::chrono::seconds seconds = std::chrono::sys_days(day).time_since_epoch() +
                                       std::chrono::hours(part(11, 2)) + std::chrono::minutes(part(14, 2)) +
                                       std::chrono::seconds(part(17, 2));
  return seconds.count();
}

/// As much of a name as leaves room for what is put beside it: no file system takes more than 255 bytes, and
/// a character of the code page can have three there.
std::string Cut(std::string_view name) { return std::string(name.substr(0, kMostOfName)); }

std::string NameOf(std::size_t number, const std::string& stamp, Author author, const std::string& document) {
  const std::string digits = tarvik::TextOf(number);
  std::string name = std::string(kDigits - std::min(kDigits, digits.size()), '0') + digits + " " + stamp;
  if (author == Author::OtherProgram) name += kOther;
  return name + Cut(document.substr(std::min(document.rfind('.'), document.size())));
}

/// Nothing for a file that somebody else put there.
std::optional<Version> VersionCalled(const std::string& name) {
  const std::size_t blank = std::min(name.find(' '), name.size());
  const auto number = NumberIn(std::string_view(name).substr(0, blank));
  const auto file = FileName::From(name);
  if (!number || !file || name.size() < blank + 1 + kStampLength) return {};
  const std::string_view rest = std::string_view(name).substr(blank + 1 + kStampLength);
  return Version{*file, *number, name.substr(blank + 1, kStampLength),
                 rest.starts_with(kOther) ? Author::OtherProgram : Author::User};
}

}  // namespace

std::size_t MissedLeast(std::span<const std::int64_t> saved, std::int64_t now) {
  std::size_t least = 1;
  double leastWorth = -1;
  for (std::size_t i = 1; i + 1 < saved.size(); ++i) {
    const auto gap = static_cast<double>(std::max<std::int64_t>(saved[i + 1] - saved[i - 1], 0));
    const auto age = static_cast<double>(std::max<std::int64_t>(now - saved[i], 1));
    if (leastWorth >= 0 && gap / age >= leastWorth) continue;
    leastWorth = gap / age;
    least = i;
  }
  return least;
}

/// The host's path tells documents apart whatever drive they are looked at from.
Folder Versions::FolderOf(const Document& document) const {
  const std::string host = documents_.platform.drives.ToHost(document.Path);
  const std::string& path = host.empty() ? document.Path.Get() : host;
  return Folder(documents_.values.BackupDir.Get().Path() + "versions\\" + Cut(document.Name.Get().Text()) +
                "-" + MarkOf(path) + "\\");
}

std::string Versions::PathOf(const Document& document, const Version& version) const {
  return FolderOf(document) / version.file;
}

std::vector<Version> Versions::Of(const Document& document) const {
  std::vector<Version> versions;
  for (const std::string& name : documents_.platform.files.FilesIn(FolderOf(document).Path(), "")) {
    if (auto version = VersionCalled(name)) versions.push_back(*std::move(version));
  }
  std::ranges::sort(versions, std::greater(), &Version::number);
  return versions;
}

Outcome<std::string> Versions::TextOf(const Document& document, const Version& version) const {
  auto bytes = documents_.platform.files.Read(PathOf(document, version));
  if (!bytes) return bytes;
  const Encoding encoding = EncodingOf(*bytes);
  return ShownOfFile(encoding == Encoding::CodePage ? *bytes : InCodePage(*bytes, *bytes, encoding).text)
      .text;
}

Outcome<> Versions::Keep(const Document& document, std::string_view text, Author author) const {
  Files& files = documents_.platform.files;
  const std::vector<Version> versions = Of(document);
  if (!versions.empty()) {
    const auto newest = Ignore(files.Read(PathOf(document, versions.front())));
    if (newest && *newest == text) return Done{};
  }
  const Folder folder = FolderOf(document);
  for (const std::string& path : {documents_.values.BackupDir.Get().Path() + "versions", folder.Path()}) {
    if (files.FolderExists(path)) continue;
    if (auto made = files.MakeFolder(path); !made) return made;
  }
  const std::size_t number = versions.empty() ? 1 : versions.front().number + 1;
  const auto name = FileName::From(
      NameOf(number, documents_.platform.calendar.Stamp(), author, document.Name.Get().Text()));
  if (!name) return Failure{error::kPathNotFound, "The file has no name", 0};
  auto written = WriteAndReadCopy(files, folder / *name, text, document.Path.Get());
  if (written) Thin(document);
  return written;
}

void Versions::Thin(const Document& document) const {
  std::vector<Version> versions = Of(document);
  std::ranges::reverse(versions);
  std::vector<std::int64_t> saved(versions.size());
  std::ranges::transform(versions, saved.begin(),
                         [](const Version& version) { return SecondOf(version.saved); });
  while (versions.size() > kMost) {
    const auto least = static_cast<std::ptrdiff_t>(MissedLeast(saved, saved.back()));
    Ignore(documents_.platform.files.Delete(PathOf(document, *(versions.begin() + least))));
    versions.erase(versions.begin() + least);
    saved.erase(saved.begin() + least);
  }
}

}  // namespace tarvik
