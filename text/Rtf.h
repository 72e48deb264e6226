// Rich Text Format in and out: how panes store, copy and save their coloured text.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "text/RichText.h"

namespace tarvik {

/// What a pane with nothing in it has as its RTF, whatever its font.
inline constexpr std::string_view kEmptyRtf =
    R"({\rtf1\ansi\deff0\deftab720{\fonttbl{\f0\fswiss MS Sans Serif;}{\f1\froman\fcharset2 Symbol;})"
    R"({\f2\fswiss MS Sans Serif;}{\f3\fmodern Fixedsys;}{\f4\fswiss Arial;}{\f5\fswiss Arial;})"
    R"({\f6\fmodern Fixedsys;}}{\colortbl\red0\green0\blue0;}\deflang2057\pard\plain\f4\fs17 \par })";

/// What is the same for all of a pane's text. `indent` is the left indent in pixels, 15 twips each.
struct RtfLook {
  PaneFont font;
  int indent = 0;
};

/// `content` as an RTF document in the terms of the public Rich Text Format description, version 1. A line
/// break is a \par, and none stands behind the last line, so that ReadRtf gives back every byte and the low
/// 24 bits of every colour. Empty content is kEmptyRtf.
[[nodiscard]] std::string WriteRtf(const RichText& content, const RtfLook& look = {});

/// The text and the colours of an RTF document of any program. Everything else in it is passed over; of a
/// broken or truncated document, and of bytes that are no RTF at all, it takes what it can, and it never
/// fails. Every paragraph mark is a line break, the last one too. Line breaks are CR LF, characters that the
/// code page lacks, be
/// it with an accent of their own, are "?", and text without a colour is black.
[[nodiscard]] RichText ReadRtf(std::string_view rtf);

/// The same, and how many characters the code page lacks.
struct RtfContent {
  RichText text;
  std::size_t lost = 0;
};
[[nodiscard]] RtfContent ContentOfRtf(std::string_view rtf);

/// What a file holds that is an RTF document from its first byte to its last; nothing where it is another
/// one, also one that only begins like RTF.
[[nodiscard]] std::optional<RichText> RtfInFile(std::string_view bytes);
/// What a pane shows of a file with these contents: RTF as RTF, anything else as plain text in black.
[[nodiscard]] RichText ShownOfFile(std::string_view bytes);

/// Whether text from another program is to be taken as RTF.
[[nodiscard]] bool LooksLikeRtf(std::string_view bytes);

}  // namespace tarvik
