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
  const std::size_t end = std::min(text.find_first_of(kLineEnds, begin), text.size());
  const std::size_t width = text.substr(end, 2) == "\r\n" ? 2 : 1;
  return {begin, end, std::min(end + width, text.size())};
}

bool IsSection(std::string_view line) { return line.starts_with('['); }

/// A bracket that nobody closed ends with its line.
std::string_view SectionName(std::string_view line) { return Trim(line.substr(1, line.find(']') - 1)); }

bool IsKey(std::string_view line, std::string_view key) {
  const std::size_t equals = line.find('=');
  return !line.starts_with(';') && equals != line.npos && SameName(Trim(line.substr(0, equals)), key);
}

/// Where a key stands, or where it has to go.
struct Place {
  bool sectionFound = false;
  std::optional<Line> line{};
  std::size_t insertAt = 0;
};

Place Find(std::string_view text, std::string_view section, std::string_view key) {
  Place place{.insertAt = text.size()};
  std::size_t next = text.starts_with(kByteOrderMark) ? kByteOrderMark.size() : 0;
  while (next < text.size()) {
    const Line line = LineAt(text, next);
    const std::string_view content = Trim(text.substr(line.begin, line.end - line.begin));
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

}  // namespace

std::optional<std::string_view> Profile::Value(std::string_view section, std::string_view key) const {
  const Place place = Find(text_, section, key);
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
  const Place place = Find(text_, section, key);
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

Profile ProfileFile::Read() const {
  auto text = files_.Read(path_);
  if (text) return Profile(*std::move(text), unreadable);
  if (text.failure().number != error::kFileNotFound) LeaveAlone(text.failure());
  return {};
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
  Profile profile;
  if (files_.FileExists(path_)) {
    auto text = files_.Read(path_);
    if (!text) return text.failure();
    profile = Profile(*std::move(text));
  }
  for (const ProfileEntry& entry : entries) profile.Set(entry.section, entry.key, entry.value);
  return files_.Write(path_, profile.text());
}

}  // namespace tarvik
