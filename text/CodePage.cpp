#include "text/CodePage.h"

#include <utf8proc.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <new>

namespace tarvik {
namespace {

using codepage::Byte;

// 0x80 to 0x9F, where the code page differs from Latin-1 (the WHATWG Encoding Standard, index windows-1252).
constexpr std::array<char16_t, 32> kUpperControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr char32_t kNoCharacter = 0xFFFD;

/// Takes the next character off the front of `text`; kNoCharacter for a byte that begins none.
char32_t TakeUtf8(std::string_view& text) {
  const unsigned char lead = Byte(text.front());
  text.remove_prefix(1);
  if (lead < 0x80) return lead;
  // RFC 3629: no lead begins an overlong form or a character beyond U+10FFFF.
  const std::size_t more = lead >= 0xF5 ? 0 : lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : lead >= 0xC2 ? 1 : 0;
  if (more == 0 || text.size() < more) return kNoCharacter;
  char32_t c = lead & (0x3F >> more);
  for (std::size_t i = 0; i < more; ++i) {
    if ((Byte(text[i]) & 0xC0) != 0x80) return kNoCharacter;
    c = (c << 6) | (Byte(text[i]) & 0x3F);
  }
  const bool overlong = (more == 2 && c < 0x800) || (more == 3 && c < 0x10000);
  if (overlong) return kNoCharacter;
  text.remove_prefix(more);
  return c;
}

/// How much of the front of `text` can be composed in one go: none of it where it begins with a byte that is
/// no UTF-8. The marks upon one letter are put in order by their number squared, so no more than so many are
/// taken at once.
std::size_t ComposableFront(std::string_view text) {
  constexpr int kMostMarks = 30;
  const auto* const bytes = reinterpret_cast<const utf8proc_uint8_t*>(text.data());
  std::size_t at = 0;
  for (int marks = 0; at < text.size() && marks < kMostMarks;) {
    utf8proc_int32_t character = 0;
    const auto length =
        utf8proc_iterate(bytes + at, static_cast<utf8proc_ssize_t>(text.size() - at), &character);
    if (length <= 0) break;
    marks = utf8proc_get_property(character)->combining_class == 0 ? 0 : marks + 1;
    at += static_cast<std::size_t>(length);
  }
  return at;
}

std::string ComposedFront(std::string_view text) {
  utf8proc_uint8_t* made = nullptr;
  const auto length = utf8proc_map(reinterpret_cast<const utf8proc_uint8_t*>(text.data()),
                                   static_cast<utf8proc_ssize_t>(text.size()), &made,
                                   static_cast<utf8proc_option_t>(UTF8PROC_STABLE | UTF8PROC_COMPOSE));
  const std::unique_ptr<utf8proc_uint8_t, decltype(&std::free)> owned(made, &std::free);
  if (length == UTF8PROC_ERROR_NOMEM) throw std::bad_alloc();
  if (length < 0) return std::string(text);
  return {reinterpret_cast<const char*>(made), static_cast<std::size_t>(length)};
}

}  // namespace

char32_t ToUnicode(char byte) {
  const unsigned char b = Byte(byte);
  return b >= 0x80 && b < 0xA0 ? kUpperControls[b - 0x80] : b;
}

char FromUnicode(char32_t character) {
  if (character < 0x80 || (character >= 0xA0 && character < 0x100)) return static_cast<char>(character);
  const auto found = std::find(kUpperControls.begin(), kUpperControls.end(), character);
  return found == kUpperControls.end() ? '?' : static_cast<char>(0x80 + (found - kUpperControls.begin()));
}

void AppendUtf8(std::string& out, char32_t c) {
  const auto follow = [&](int bits) { out += static_cast<char>(0x80 | ((c >> bits) & 0x3F)); };
  if (c < 0x80) {
    out += static_cast<char>(c);
  } else if (c < 0x800) {
    out += static_cast<char>(0xC0 | (c >> 6));
    follow(0);
  } else if (c < 0x10000) {
    out += static_cast<char>(0xE0 | (c >> 12));
    follow(6);
    follow(0);
  } else {
    out += static_cast<char>(0xF0 | (c >> 18));
    for (const int bits : {12, 6, 0}) follow(bits);
  }
}

std::size_t LengthOfUtf8(std::string_view text) {
  if (text.empty()) return 0;
  std::string_view rest = text;
  return TakeUtf8(rest) == kNoCharacter && !text.starts_with("\xEF\xBF\xBD") ? 0 : text.size() - rest.size();
}

std::string ToUtf8(std::string_view text) {
  std::string result;
  result.reserve(text.size());
  for (const char c : text) AppendUtf8(result, ToUnicode(c));
  return result;
}

std::string Composed(std::string_view utf8) {
  // No character below U+0300 changes, and the bytes of the others begin so.
  constexpr unsigned char kFirstLead = 0xCC;
  if (std::ranges::all_of(utf8, [](char c) { return Byte(c) < kFirstLead; })) return std::string(utf8);
  std::string result;
  result.reserve(utf8.size());
  while (!utf8.empty()) {
    const std::size_t front = ComposableFront(utf8);
    const std::size_t taken = std::max<std::size_t>(front, 1);
    result += front == 0 ? std::string(utf8.substr(0, taken)) : ComposedFront(utf8.substr(0, taken));
    utf8.remove_prefix(taken);
  }
  return result;
}

std::optional<char> WithMark(char letter, char32_t mark) {
  constexpr char32_t kFirstMark = 0x300;
  if (mark < kFirstMark) return {};
  std::string both = ToUtf8({&letter, 1});
  AppendUtf8(both, mark);
  const Converted made = ConvertedFromUtf8(both);
  return made.text.size() == 1 && made.lost == 0 ? std::optional(made.text.front()) : std::nullopt;
}

Converted ConvertedFromUtf8(std::string_view text) {
  const std::string composed = Composed(text);
  Converted converted;
  converted.text.reserve(composed.size());
  for (std::string_view rest = composed; !rest.empty();) {
    const char32_t character = TakeUtf8(rest);
    converted.text += FromUnicode(character);
    if (converted.text.back() == '?' && character != '?') ++converted.lost;
  }
  return converted;
}

std::string FromUtf8(std::string_view text) { return ConvertedFromUtf8(text).text; }

std::string LowerCase(std::string_view text) {
  std::string result(text);
  std::transform(result.begin(), result.end(), result.begin(), ToLower);
  return result;
}

std::string UpperCase(std::string_view text) {
  std::string result(text);
  std::transform(result.begin(), result.end(), result.begin(), ToUpper);
  return result;
}

bool SortsBefore(std::string_view left, std::string_view right) {
  return std::lexicographical_compare(left.begin(), left.end(), right.begin(), right.end(),
                                      [](char a, char b) { return Byte(ToLower(a)) < Byte(ToLower(b)); });
}

}  // namespace tarvik
