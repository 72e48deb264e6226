// Pictures out of files' bytes. Files come from anywhere and a decoder may hang, crash or eat all memory over
// a damaged one, so that a process of its own decodes them: the program itself, started with an argument of
// ours. `PictureReader` starts it.
#pragma once

#include <QImage>
#include <optional>
#include <string_view>

namespace tarvik::screen {

/// Its longer side has at most so many pixels.
inline constexpr int kLongestSide = 4096;

/// The picture in a file's bytes, made smaller where it has more pixels than a screen can show; null for
/// whatever is no picture that can be read. It may take for ever: only the decoding process calls it.
[[nodiscard]] QImage PictureIn(std::string_view bytes);

/// The argument that makes the program a decoder.
inline constexpr const char* kDecodeArgument = "--decode-a-picture";

/// For the first line of `main`. Where the arguments say so this process is a decoder: it reads a file's
/// bytes from its standard input, writes what `PictureOf` reads, and this is its exit status.
[[nodiscard]] std::optional<int> RunAsDecoder(int count, char** arguments);

/// What a decoder wrote, as a picture; null when it did not write a whole one.
[[nodiscard]] QImage PictureOf(const QByteArray& written);

}  // namespace tarvik::screen
