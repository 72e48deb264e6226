// Replace All as a user would do it by hand: find, replace, go on behind the new text, up to where the text
// ended at first. What panes do at once is held against it.
#pragma once

#include "panes/Pane.h"

namespace tarvik {

inline Replaced LiteralReplaceAll(Pane& pane, const std::string& text, const std::string& with, int options) {
  Replaced replaced;
  const std::size_t end = pane.Characters().size();
  while (pane.Find(text, replaced.end, end, options)) {
    pane.SelText = with;
    replaced.end = pane.SelStart;
    ++replaced.count;
  }
  return replaced;
}

}  // namespace tarvik
