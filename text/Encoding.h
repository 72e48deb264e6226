// Files that other programs wrote in Unicode: how they are recognised, and their text in the code page.
#pragma once

#include <string_view>

#include "text/CodePage.h"

namespace tarvik {

enum class Encoding { CodePage, Utf8, Utf16Little, Utf16Big };

/// As what the bytes of a file are best taken. A mark at the beginning tells UTF-8 and UTF-16. Without it
/// UTF-16 is text in which some of every other byte are NUL and none of the others, and UTF-8 is text in
/// which nearly every byte of 0x80 and above belongs to one of its characters: in files of the code page
/// neither comes about.
[[nodiscard]] Encoding EncodingOf(std::string_view bytes);

/// Whether a text that was read from a file in the encoding, and may have been edited or converted since, is
/// in it still.
[[nodiscard]] bool IsStillIn(Encoding encoding, std::string_view text);

/// As a user knows it.
[[nodiscard]] std::string_view NameOf(Encoding encoding);

/// The text of a file that was `file`, and is `now` since somebody typed into its bytes: what is still the
/// file's is taken out of the encoding, what was typed stays. The mark at the beginning goes.
[[nodiscard]] Converted InCodePage(std::string_view now, std::string_view file, Encoding encoding);

}  // namespace tarvik
