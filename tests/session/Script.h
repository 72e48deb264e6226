// The text form of a session: lines of words, each with the indented lines below it. The runner walks it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarvik::session {

struct Line {
  int number = 0;                  ///< in the script, from 1
  std::vector<std::string> words;  ///< in the code page, quotation marks gone
  std::vector<std::string> block;  ///< the indented lines below, in the code page
  bool hasBlock = false;
  std::string source;   ///< as it stands in the script
  bool isOpen = false;  ///< a quotation mark has no other
};

/// Reads a script in UTF-8. Empty lines and those that begin with "#" are passed over; so is the rest of a
/// line from a "#" between blanks.
[[nodiscard]] std::vector<Line> ParseScript(std::string_view script);

/// Lines with CR LF between them.
[[nodiscard]] std::string Joined(const std::vector<std::string>& lines);

}  // namespace tarvik::session
