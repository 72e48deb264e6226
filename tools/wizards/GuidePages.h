// What stands on the pages of the forms that guide a beginner: their words, and the controls among them. Each
// form has a document for them in tools/wizards/pages.
#pragma once

#include <string_view>
#include <vector>

namespace tarvik {

/// A paragraph, a control, or a control with the words that name it.
struct GuideRow {
  std::string_view text;
  std::string_view control =
      {};                ///< one of the form's, as "Text1(0)"; several, apart by blanks, side by side
  bool example = false;  ///< the text is a line of a file
};

struct GuidePage {
  std::string_view heading;
  std::vector<GuideRow> rows;
};

/// The pages point into the document. "# " begins a page with its heading. Every other line is a row:
/// controls stand in brackets, "[List1]", behind the words that name them; an example has four blanks before
/// it.
[[nodiscard]] std::vector<GuidePage> ReadGuide(std::string_view document);

}  // namespace tarvik
