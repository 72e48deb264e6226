// The line ends of a file, all of which a pane shows as CR LF: what a file has of others goes back into it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarvik {

class LineEnds {
 public:
  /// All are CR LF.
  LineEnds() = default;
  /// Those of a file.
  explicit LineEnds(std::string_view bytes);

  /// The bytes for a pane's text: each line that is still the file's ends as it does there, and a new line as
  /// most lines of the file do. A text that is the file's gives the file's bytes.
  [[nodiscard]] std::string PutBackInto(std::string_view text) const;

 private:
  enum class End : unsigned char { CrLf, Cr, Lf };

  [[nodiscard]] std::vector<End> EndsFor(std::string_view text) const;

  std::string text_;       // of a file whose lines end in several ways, as a pane shows it
  std::vector<End> ends_;  // of its lines
  End usual_ = End::CrLf;
};

/// A text of lines that end in LF with the line ends of the user's own files, CR LF.
[[nodiscard]] std::string WithDosEnds(std::string_view text);

}  // namespace tarvik
