// What holds of a document whatever a user does to it. Random users ask it after each of their acts.
#pragma once

#include <cstdlib>

#include "text/CodePage.h"
#include "workbench/Document.h"

namespace tarvik {

inline void Require(bool holds) {
  if (!holds) std::abort();
}

inline void RequireSound(const Document& document) {
  const Pane& pane = document.text;
  const std::string text(pane.Characters());
  Require(WithPaneLineBreaks(text) == text);
  Require(pane.Selection().End() <= text.size());
  Require(pane.Searchable().folded == LowerCase(text));
  Require(pane.Content().colours.size() == text.size());
  const auto runs = pane.Content().colours.runs();
  for (std::size_t i = 0; i < runs.size(); ++i) {
    Require(i == 0 ? runs[i].start == 0
                   : runs[i].start > runs[i - 1].start && runs[i].colour != runs[i - 1].colour);
    Require(runs[i].start < text.size());
  }
  Require(document.Undo.Index >= 1 && document.Undo.Index <= document.Undo.UpperBound());
}

}  // namespace tarvik
