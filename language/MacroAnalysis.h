// Reads a macro file as the program understands it: records, headings and macro names. It knows no form.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarvik {

/// The file's comma-delimited records in order. A record is not a line: leading blanks go, a field in double
/// quotes runs to the closing quote and may hold commas, any other ends at a comma or at the line's end.
/// Empty records and those that are only "~" are left out.
[[nodiscard]] std::vector<std::string> ReadMacroRecords(std::string_view file);

/// A heading and the macros below it, in the order of the file.
struct MacroCategory {
  std::string heading;
  std::vector<std::string> macros;
};

struct MacroAnalysis {
  std::vector<std::string> macros;  ///< all of them, also those above the first heading
  std::vector<MacroCategory> categories;
};

/// The bare heading of a block, which is a line between two rules or the two edges of a box; none where the
/// three lines are no block.
[[nodiscard]] std::optional<std::string> HeadingIn(std::string_view top, std::string_view middle,
                                                   std::string_view bottom);
/// A bare heading with its first letter in upper case, the rest in lower.
[[nodiscard]] std::string AsListed(std::string_view heading);

/// Finds the headings and macros. The middle line of each heading block in `records` is cut down to the bare
/// heading text.
[[nodiscard]] MacroAnalysis AnalyseMacros(std::vector<std::string>& records);

/// What stands left of the first "=", without blanks at either end.
[[nodiscard]] std::string MacroNameOf(std::string_view record);

/// For each name, whether it stands in `text` as a whole word, in either case. The cost grows with the text
/// and with the names, not with their product, unless most names begin with the same word.
[[nodiscard]] std::vector<bool> NamesUsed(std::string_view text, const std::vector<std::string>& names);

}  // namespace tarvik
