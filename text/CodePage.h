// The Windows-1252 code page: its characters, their letter case and what counts as part of a word.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tarvik {

/// The tables behind the questions below, which are asked of every character of a file.
namespace codepage {

constexpr unsigned char Byte(char c) { return static_cast<unsigned char>(c); }

constexpr bool IsUpper(unsigned char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 0xC0 && c <= 0xDE && c != 0xD7);
}

constexpr unsigned char Lowered(unsigned char c) {
  if (IsUpper(c)) return static_cast<unsigned char>(c + 0x20);
  if (c == 0x8A || c == 0x8C || c == 0x8E) return static_cast<unsigned char>(c + 0x10);
  return c == 0x9F ? 0xFF : c;
}

inline constexpr auto kLower = [] {
  std::array<char, 256> table{};
  for (unsigned c = 0; c < 256; ++c) table[c] = static_cast<char>(Lowered(static_cast<unsigned char>(c)));
  return table;
}();

inline constexpr auto kUpper = [] {
  std::array<char, 256> table{};
  for (unsigned c = 0; c < 256; ++c) table[c] = static_cast<char>(c);
  for (unsigned c = 0; c < 256; ++c) {
    const unsigned char lower = Lowered(static_cast<unsigned char>(c));
    if (lower != c) table[lower] = static_cast<char>(c);
  }
  return table;
}();

inline constexpr auto kWord = [] {
  std::array<bool, 256> table{};
  for (unsigned c = 0; c < 256; ++c) {
    const bool ascii = (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_';
    const bool accented = c >= 0xC0 && c != 0xD7 && c != 0xF7;
    const bool other = c == 0x83 || c == 0x8A || c == 0x8C || c == 0x8E || c == 0x9A || c == 0x9C ||
                       c == 0x9E || c == 0x9F || c == 0xAA || c == 0xB5;
    table[c] = ascii || accented || other;
  }
  return table;
}();

}  // namespace codepage

/// The Unicode character of each byte. The five bytes that the code page leaves open stand for the control
/// characters of the same number, so that every byte survives the way there and back.
[[nodiscard]] char32_t ToUnicode(char byte);

/// The byte of a character, "?" for one that the code page lacks.
[[nodiscard]] char FromUnicode(char32_t character);

/// The same characters in Unicode's composed form (NFC): a letter and its accent are one where there is such
/// a character. Bytes that are no UTF-8 stay as they are.
[[nodiscard]] std::string Composed(std::string_view utf8);

[[nodiscard]] std::string ToUtf8(std::string_view text);
void AppendUtf8(std::string& out, char32_t character);
/// How many bytes the first character of `text` has in UTF-8, 0 where none begins there.
[[nodiscard]] std::size_t LengthOfUtf8(std::string_view text);

/// The one character that a letter makes with an accent behind it, where the code page has that.
[[nodiscard]] std::optional<char> WithMark(char letter, char32_t mark);

/// Text that came from Unicode, and how many of its characters the code page lacks: each is a "?" there.
struct Converted {
  std::string text;
  std::size_t lost = 0;
};

/// It is composed first. Bytes that are no UTF-8 become "?" too.
[[nodiscard]] Converted ConvertedFromUtf8(std::string_view text);
/// The same for texts of which nobody wants to know what was lost, such as names.
[[nodiscard]] std::string FromUtf8(std::string_view text);

[[nodiscard]] inline char ToLower(char character) { return codepage::kLower[codepage::Byte(character)]; }
[[nodiscard]] inline char ToUpper(char character) { return codepage::kUpper[codepage::Byte(character)]; }
[[nodiscard]] std::string LowerCase(std::string_view text);
[[nodiscard]] std::string UpperCase(std::string_view text);

/// Letters, accented ones included, digits and the underscore: two of them side by side are inside one word.
[[nodiscard]] inline bool IsWordCharacter(char character) {
  return codepage::kWord[codepage::Byte(character)];
}

/// How lists sort: by the lower-case characters.
[[nodiscard]] bool SortsBefore(std::string_view left, std::string_view right);

}  // namespace tarvik
