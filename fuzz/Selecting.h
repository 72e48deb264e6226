// What a user can select: nobody gets between the two characters of a line break.
#pragma once

#include <algorithm>

#include "Bytes.h"
#include "panes/Pane.h"

namespace tarvik {

inline std::size_t CaretPlace(const Pane& pane, std::size_t at) {
  const std::string_view text = pane.Characters();
  const bool inBreak = at > 0 && at < text.size() && text[at - 1] == '\r' && text[at] == '\n';
  return inBreak ? at - 1 : at;
}

inline void SelectSome(Pane& pane, Bytes& bytes) {
  const std::size_t start = CaretPlace(pane, bytes.Below(256));
  const std::size_t end = CaretPlace(pane, start + bytes.Below(8));
  pane.Select({start, end - start});
}

}  // namespace tarvik
