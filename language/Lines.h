// How lines make statements in either file: what is set in by blanks belongs to the statement above it.
#pragma once

#include <optional>

#include "language/Tokens.h"

namespace tarvik::model {

/// The line from its first byte that is no blank on; empty for a blank line.
[[nodiscard]] std::string_view WithoutIndent(std::string_view line);
/// The comment of a line that is nothing else, empty for a blank line; none for any other.
[[nodiscard]] std::optional<Range> RemarkIn(std::string_view lines);
/// What a line that is not set in begins with, up to a blank or a bracket.
[[nodiscard]] std::string_view FirstWord(std::string_view line);
/// The end of the statement whose first line begins at `start`. A blank line and a comment are statements of
/// one line. `isContinuation` is asked of each line below that begins with a blank, which it is handed from
/// its first word on, without its line end.
[[nodiscard]] std::size_t StatementEnd(std::string_view text, std::size_t start,
                                       bool (*isContinuation)(std::string_view words));

}  // namespace tarvik::model
