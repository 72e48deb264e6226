// The list of suggestions, below the word that they are for or above it. The text keeps the focus.
#pragma once

#include "app/SuggestionList.h"
#include "screen/widgets/ListStack.h"

namespace tarvik::screen {

class SuggestionView : public ListStack {
 public:
  /// `place` tells where a character of the file on top stands in `parent`.
  SuggestionView(SuggestionList& suggestions, Bindings& bindings, std::function<QRect(std::size_t)> place,
                 QWidget* parent);

 private:
  void Show();
  /// As large as its rows need, within bounds and within the parent.
  [[nodiscard]] QSize Needed() const;

  SuggestionList& suggestions_;
  std::function<QRect(std::size_t)> place_;
};

}  // namespace tarvik::screen
