#include "text/Encoding.h"

#include <algorithm>

#include "text/Differences.h"

namespace tarvik {
namespace {

using codepage::Byte;

constexpr std::string_view kMarkUtf8 = "\xEF\xBB\xBF";
constexpr std::string_view kMarkLittle = "\xFF\xFE";
constexpr std::string_view kMarkBig = "\xFE\xFF";

/// How many sequences of UTF-8 there are, and how many bytes of 0x80 and above belong to none.
struct BytesBeyondAscii {
  std::size_t sequences = 0;
  std::size_t stray = 0;
};

BytesBeyondAscii BeyondAscii(std::string_view bytes) {
  BytesBeyondAscii found;
  while (!bytes.empty()) {
    const std::size_t length = LengthOfUtf8(bytes);
    if (length > 1) ++found.sequences;
    if (length == 0) ++found.stray;
    bytes.remove_prefix(std::max<std::size_t>(length, 1));
  }
  return found;
}

/// One damaged byte among many characters is no other encoding.
bool IsUtf8BeyondAscii(std::string_view bytes) {
  const BytesBeyondAscii found = BeyondAscii(bytes);
  return found.sequences > 2 * found.stray;
}

/// Of the bytes from `first` on, every second one.
std::size_t NulsAmong(std::string_view bytes, std::size_t first) {
  std::size_t count = 0;
  for (std::size_t at = first; at < bytes.size(); at += 2) count += bytes[at] == '\0' ? 1 : 0;
  return count;
}

bool IsControl(unsigned low) { return low < ' ' && low != '\t' && low != '\r' && low != '\n'; }

/// Whether no character of what may be UTF-16 is a control character; `high` is where their higher bytes are.
bool HasNoControls(std::string_view bytes, std::size_t high) {
  for (std::size_t at = 0; at < bytes.size(); at += 2) {
    if (bytes[at + high] == '\0' && IsControl(Byte(bytes[at + 1 - high]))) return false;
  }
  return true;
}

/// The blanks, line ends and figures of any script have a NUL, which no text of the code page has.
Encoding Utf16WithoutMark(std::string_view bytes) {
  constexpr std::size_t kFewest = 4;
  if (bytes.size() % 2 != 0 || bytes.size() < kFewest) return Encoding::CodePage;
  const std::size_t even = NulsAmong(bytes, 0);
  const std::size_t odd = NulsAmong(bytes, 1);
  if (even == 0 && odd > 0 && HasNoControls(bytes, 1)) return Encoding::Utf16Little;
  if (odd == 0 && even > 0 && HasNoControls(bytes, 0)) return Encoding::Utf16Big;
  return Encoding::CodePage;
}

/// Takes what was UTF-8 out of it, and leaves other bytes as they are.
Converted FromBytesWithUtf8(std::string_view now) {
  if (now.starts_with(kMarkUtf8)) now.remove_prefix(kMarkUtf8.size());
  Converted converted;
  while (!now.empty()) {
    std::size_t valid = 0;
    while (const std::size_t length = LengthOfUtf8(now.substr(valid))) valid += length;
    const Converted part = ConvertedFromUtf8(now.substr(0, valid));
    converted.text += part.text;
    converted.lost += part.lost;
    now.remove_prefix(valid);
    if (now.empty()) break;
    converted.text += now.front();
    now.remove_prefix(1);
  }
  return converted;
}

/// Puts a text together from what was in UTF-16 and what was typed.
class FromUtf16 {
 public:
  FromUtf16(std::string_view file, Encoding encoding)
      : file_(file), low_(encoding == Encoding::Utf16Little ? 0 : 1) {}

  /// The characters of the file whose lower bytes are in the range, whatever became of the others.
  void Keep(Range range) {
    std::size_t at = range.start + (range.start + low_) % 2 - low_;
    if (at == 0 && (file_.starts_with(kMarkLittle) || file_.starts_with(kMarkBig))) at = 2;
    for (; at + low_ < range.End(); at += 2) Take(UnitAt(at));
  }
  /// Halves of characters that came between typed ones have lost their meaning, and NULs were theirs.
  void Type(std::string_view typed) {
    TakePending();
    for (const char c : typed) {
      if (c != '\0') utf8_ += ToUtf8({&c, 1});
    }
  }
  Converted Finish() && {
    TakePending();
    return ConvertedFromUtf8(utf8_);
  }

 private:
  [[nodiscard]] char32_t UnitAt(std::size_t at) const {
    const auto byte = [&](std::size_t place) { return place < file_.size() ? Byte(file_[place]) : 0U; };
    return byte(at + low_) | byte(at + 1 - low_) << 8;
  }
  void Take(char32_t unit) {
    const bool second = unit >= 0xDC00 && unit < 0xE000;
    if (second && pending_ != 0) {
      AppendUtf8(utf8_, 0x10000 + ((pending_ - 0xD800) << 10) + (unit - 0xDC00));
      pending_ = 0;
      return;
    }
    TakePending();
    if (unit >= 0xD800 && unit < 0xDC00) {
      pending_ = unit;
    } else {
      AppendUtf8(utf8_, unit);
    }
  }
  void TakePending() {
    if (pending_ != 0) AppendUtf8(utf8_, pending_);
    pending_ = 0;
  }

  std::string_view file_;
  std::size_t low_;       // where in a character its lower byte is
  char32_t pending_ = 0;  // the first half of a character, whose second half comes
  std::string utf8_;
};

std::size_t AlikeAtStart(std::string_view a, std::string_view b) {
  const auto [at, other] = std::ranges::mismatch(a, b);
  return static_cast<std::size_t>(at - a.begin());
}

std::size_t AlikeAtEnd(std::string_view a, std::string_view b) {
  std::size_t count = 0;
  while (count < a.size() && count < b.size() && a[a.size() - 1 - count] == b[b.size() - 1 - count]) ++count;
  return count;
}

/// `place`, which is of whole lines, down to the characters. Where they are too many nothing in it is alike.
std::vector<Difference> Refined(Difference place, std::string_view file, std::string_view now) {
  constexpr std::size_t kMost = 4000;
  const auto in = [](std::string_view text, Range range) { return text.substr(range.start, range.length); };
  const std::size_t start = AlikeAtStart(in(file, place.before), in(now, place.after));
  for (Range* const range : {&place.before, &place.after})
    *range = {range->start + start, range->length - start};
  const std::size_t end = AlikeAtEnd(in(file, place.before), in(now, place.after));
  for (Range* const range : {&place.before, &place.after}) range->length -= end;
  if (place.before.length + place.after.length > kMost) return {place};
  std::vector<Difference> refined = DifferencesByCharacter(in(file, place.before), in(now, place.after));
  for (Difference& each : refined) {
    each.before.start += place.before.start;
    each.after.start += place.after.start;
  }
  return refined;
}

Converted FromBytesWithUtf16(std::string_view now, std::string_view file, Encoding encoding) {
  FromUtf16 converting(file, encoding);
  std::size_t kept = 0;
  for (const Difference& lines : DifferencesOf(file, now)) {
    for (const Difference& place : Refined(lines, file, now)) {
      converting.Keep({kept, place.before.start - kept});
      converting.Type(now.substr(place.after.start, place.after.length));
      kept = place.before.End();
    }
  }
  converting.Keep({kept, file.size() - kept});
  return std::move(converting).Finish();
}

}  // namespace

Encoding EncodingOf(std::string_view bytes) {
  if (bytes.starts_with(kMarkLittle)) return Encoding::Utf16Little;
  if (bytes.starts_with(kMarkBig)) return Encoding::Utf16Big;
  if (bytes.starts_with(kMarkUtf8) || IsUtf8BeyondAscii(bytes)) return Encoding::Utf8;
  return Utf16WithoutMark(bytes);
}

bool IsStillIn(Encoding encoding, std::string_view text) {
  if (encoding == Encoding::CodePage) return false;
  if (encoding == Encoding::Utf8) {
    const BytesBeyondAscii found = BeyondAscii(text);
    return text.starts_with(kMarkUtf8) || found.sequences > found.stray;
  }
  return text.starts_with(kMarkLittle) || text.starts_with(kMarkBig) || text.find('\0') != text.npos;
}

std::string_view NameOf(Encoding encoding) {
  constexpr std::string_view kNames[] = {"Windows-1252", "UTF-8", "UTF-16", "UTF-16"};
  return kNames[static_cast<std::size_t>(encoding)];
}

Converted InCodePage(std::string_view now, std::string_view file, Encoding encoding) {
  if (encoding == Encoding::CodePage) return {std::string(now), 0};
  if (encoding == Encoding::Utf8) return FromBytesWithUtf8(now);
  return FromBytesWithUtf16(now, file, encoding);
}

}  // namespace tarvik
