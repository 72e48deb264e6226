#include "platform/ProfileFile.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "text/CodePage.h"

namespace tarvik {
namespace {

constexpr std::string_view kBlanks = " \t";
constexpr std::string_view kLineEnds = "\r\n";
constexpr std::string_view kNewLine = "\r\n";
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

/// No settings are as long. A start looks up some hundred keys, each from the beginning.
constexpr std::size_t kLongest = std::size_t{1} << 20;

constexpr std::string_view kBackup = ".bak";
constexpr std::string_view kDamaged = ".damaged";

std::string_view Trim(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
  return text.substr(0, text.find_last_not_of(kBlanks) + 1);
}

bool SameName(std::string_view left, std::string_view right) {
  return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                    [](char a, char b) { return ToLower(a) == ToLower(b); });
}

std::string_view WithoutQuotes(std::string_view value) {
  const bool quoted =
      value.size() >= 2 && value.front() == value.back() && (value.front() == '"' || value.front() == '\'');
  return quoted ? value.substr(1, value.size() - 2) : value;
}

/// A line from `begin` to `end`; the one after it begins at `next`.
struct Line {
  std::size_t begin;
  std::size_t end;
  std::size_t next;
};

Line LineAt(std::string_view text, std::size_t begin) {
  const auto isEnd = [](char c) { return c == '\r' || c == '\n'; };
  const auto* const found = std::find_if(text.begin() + begin, text.end(), isEnd);
  const auto end = static_cast<std::size_t>(found - text.begin());
  const std::size_t width = text.substr(end, 2) == "\r\n" ? 2 : 1;
  return {begin, end, std::min(end + width, text.size())};
}

std::string_view Content(std::string_view text, const Line& line) {
  return Trim(text.substr(line.begin, line.end - line.begin));
}

std::size_t FirstLine(std::string_view text) {
  return text.starts_with(kByteOrderMark) ? kByteOrderMark.size() : 0;
}

bool IsSection(std::string_view line) { return line.starts_with('['); }

/// A bracket that nobody closed ends with its line.
std::string_view SectionName(std::string_view line) { return Trim(line.substr(1, line.find(']') - 1)); }

bool IsKey(std::string_view line, std::string_view key) {
  const std::size_t equals = line.find('=');
  return !line.starts_with(';') && equals != line.npos && SameName(Trim(line.substr(0, equals)), key);
}

/// Where a key stands, or where it has to go.
struct KeyPlace {
  bool sectionFound = false;
  std::optional<Line> line{};
  std::size_t insertAt = 0;
};

KeyPlace Find(std::string_view text, std::string_view section, std::string_view key) {
  KeyPlace place{.insertAt = text.size()};
  std::size_t next = FirstLine(text);
  while (next < text.size()) {
    const Line line = LineAt(text, next);
    const std::string_view content = Content(text, line);
    next = line.next;
    if (IsSection(content)) {
      if (place.sectionFound) break;
      place.sectionFound = SameName(SectionName(content), section);
    } else if (place.sectionFound && IsKey(content, key)) {
      place.line = line;
      break;
    }
    if (place.sectionFound && !content.empty()) place.insertAt = line.next;
  }
  return place;
}

/// The value's own characters: from behind the "=" and the blanks after it to the end of the line.
std::pair<std::size_t, std::size_t> ValueRange(std::string_view text, const Line& line) {
  const std::size_t equals = text.find('=', line.begin);
  return {std::min(text.find_first_not_of(kBlanks, equals + 1), line.end), line.end};
}

bool HasSection(std::string_view text) {
  for (std::size_t next = FirstLine(text); next < text.size();) {
    const Line line = LineAt(text, next);
    if (IsSection(Content(text, line))) return true;
    next = line.next;
  }
  return false;
}

/// What is no such text was not left by a program or a user that wrote settings to their end.
bool IsWhole(const std::string& text) {
  return text.size() <= kLongest && text.find('\0') == text.npos && HasSection(text);
}

/// The path of a file that lies beside the settings and has another ending.
std::string Beside(const std::string& path, std::string_view ending) {
  return path.substr(0, path.rfind('.')) + std::string(ending);
}

}  // namespace

std::optional<std::string_view> Profile::Value(std::string_view section, std::string_view key) const {
  const KeyPlace place = Find(text_, section, key);
  if (!place.line) return std::nullopt;
  const auto [begin, end] = ValueRange(text_, *place.line);
  return WithoutQuotes(Trim(std::string_view(text_).substr(begin, end - begin)));
}

std::string Profile::GetString(std::string_view section, std::string_view key, std::string_view fallback,
                               std::size_t size) const {
  const std::string_view value = Value(section, key).value_or(fallback);
  return std::string(value.substr(0, size == 0 ? 0 : size - 1));
}

int Profile::GetInt(std::string_view section, std::string_view key, int fallback) const {
  const auto value = Value(section, key);
  if (!value) return fallback;
  const bool negative = value->starts_with('-');
  const std::string_view written = value->substr(negative || value->starts_with('+') ? 1 : 0);
  const std::string_view digits = written.substr(0, written.find_first_not_of("0123456789"));
  if (digits.empty() || digits != written) TellUnreadable(section, key);
  std::uint32_t number = 0;
  for (const char c : digits) number = number * 10 + static_cast<std::uint32_t>(c - '0');
  return static_cast<int>(negative ? 0 - number : number);
}

void Profile::Set(std::string_view section, std::string_view key, std::string_view value) {
  value = value.substr(0, value.find_first_of(std::string_view("\r\n\0", 3)));
  const KeyPlace place = Find(text_, section, key);
  if (place.line) {
    const auto [begin, end] = ValueRange(text_, *place.line);
    text_.replace(begin, end - begin, value);
    return;
  }
  std::string lines;
  const bool behindOpenLine =
      place.insertAt > 0 && kLineEnds.find(text_[place.insertAt - 1]) == kLineEnds.npos;
  if (behindOpenLine) lines += kNewLine;
  if (!place.sectionFound) lines.append("[").append(section).append("]").append(kNewLine);
  lines.append(key).append("=").append(value).append(kNewLine);
  text_.insert(place.insertAt, lines);
}

std::string Protected(const std::string& value) {
  const std::string_view whole = value;
  return WithoutQuotes(Trim(whole)) == whole ? value : '"' + value + '"';
}

ProfileFile::ProfileFile(Files& files, std::string path)
    : files_(files),
      path_(std::move(path)),
      backup_(Beside(path_, kBackup)),
      aside_(Beside(path_, kDamaged)) {}

std::optional<std::string> ProfileFile::Backup() const {
  auto text = files_.Read(backup_);
  return text && IsWhole(*text) ? std::optional(*std::move(text)) : std::nullopt;
}

Outcome<ProfileFile::Loaded> ProfileFile::Load() const {
  auto own = files_.Read(path_);
  if (!own) {
    if (own.failure().number == error::kFileNotFound) return Loaded{};
    return own.failure();
  }
  if (IsWhole(*own)) return Loaded{*std::move(own)};
  if (auto backup = Backup()) return Loaded{*std::move(backup), *std::move(own)};
  if (own->size() > kLongest) return Failure{error::kFileTooStrange, "The file is too long", 0};
  return Loaded{*std::move(own)};
}

Profile ProfileFile::Read() const {
  auto loaded = Load();
  if (!loaded) {
    LeaveAlone(loaded.failure());
    return Profile(Backup().value_or(""), unreadable);
  }
  if (loaded->damaged) TellDamaged();
  return Profile(std::move(loaded->text), unreadable);
}

void ProfileFile::TellDamaged() const {
  if (!std::exchange(toldDamaged_, true) && fileDamaged) fileDamaged();
}

void ProfileFile::LeaveAlone(const Failure& failure) const {
  const bool isNews = !unread_;
  unread_ = failure;
  if (isNews && fileUnreadable) fileUnreadable(failure);
}

std::string ProfileFile::GetString(std::string_view section, std::string_view key, std::string_view fallback,
                                   std::size_t size) const {
  return Read().GetString(section, key, fallback, size);
}

int ProfileFile::GetInt(std::string_view section, std::string_view key, int fallback) const {
  return Read().GetInt(section, key, fallback);
}

Outcome<> ProfileFile::Write(std::string_view section, std::string_view key, std::string_view value) {
  const ProfileEntry entry{std::string(section), std::string(key), std::string(value)};
  return WriteAll({&entry, 1});
}

Outcome<> ProfileFile::WriteAll(std::span<const ProfileEntry> entries) {
  if (unread_) return *unread_;
  auto loaded = Load();
  if (!loaded) return loaded.failure();
  if (loaded->damaged && !loaded->damaged->empty()) {
    if (auto kept = files_.WriteCopy(aside_, *loaded->damaged, path_); !kept) return kept;
  }
  Profile profile(std::move(loaded->text));
  for (const ProfileEntry& entry : entries) profile.Set(entry.section, entry.key, entry.value);
  auto written = files_.Write(path_, profile.text());
  // Where this fails the backup stays as it was, and is whole.
  if (written) static_cast<void>(files_.WriteCopy(backup_, profile.text(), path_));
  return written;
}

}  // namespace tarvik
