// The Windows-1252 code page: its characters, their letter case and what counts as part of a word.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace tarvik {

/// The Unicode character of each byte. The five bytes that the code page leaves open stand for the control
/// characters of the same number, so that every byte survives the way there and back.
[[nodiscard]] char32_t ToUnicode(char byte);

/// The byte of a character, "?" for one that the code page lacks.
[[nodiscard]] char FromUnicode(char32_t character);

[[nodiscard]] std::string ToUtf8(std::string_view text);
/// Characters that the code page lacks, and bytes that are no UTF-8, become "?".
[[nodiscard]] std::string FromUtf8(std::string_view text);

[[nodiscard]] char ToLower(char character);
[[nodiscard]] char ToUpper(char character);
[[nodiscard]] std::string LowerCase(std::string_view text);

/// Letters, accented ones included, digits and the underscore: two of them side by side are inside one word.
[[nodiscard]] bool IsWordCharacter(char character);

/// How lists sort: by the lower-case characters.
[[nodiscard]] bool SortsBefore(std::string_view left, std::string_view right);

}  // namespace tarvik
