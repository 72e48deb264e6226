#include "workbench/IncrementalSearch.h"

#include <algorithm>

namespace tarvik {

IncrementalSearch::IncrementalSearch(Documents& documents)
    : documents_(documents), begin_{&documents.joystick, {}} {
  for (const Document* const document : {&documents_.joystick, &documents_.macro}) {
    connections_.push_back(document->text.Edited.Connect([this, document](const PaneEdit& edit) {
      if (!edit.OnlyColours()) Follow(*document, edit);
    }));
    connections_.push_back(document->text.SelectionChanged.Connect([this] {
      if (!text_.empty()) Changed();
    }));
  }
}

/// The place where the search began moves with its text, and is where the edit was if its text is gone.
void IncrementalSearch::Follow(const Document& document, const PaneEdit& edit) {
  Range& began = begin_.selection;
  if (&document == begin_.document && edit.position < began.End()) {
    if (edit.position + edit.removed.size() <= began.start) {
      began.start += edit.inserted.size() - edit.removed.size();
    } else {
      began = {std::min(began.start, edit.position), 0};
    }
  }
  if (text_.empty()) return;
  Collect(document);
  Changed();
}

void IncrementalSearch::Begin() { begin_ = {&documents_.Active(), documents_.Active().text.Selection()}; }

void IncrementalSearch::LookFor(const std::string& text, int options) {
  text_ = text;
  options_ = options;
  Collect(documents_.joystick);
  Collect(documents_.macro);
  if (Count() > 0) {
    Select(HitsBefore(*begin_.document, begin_.selection.start) % Count());
  } else {
    GoBack();
  }
  Changed();
}

void IncrementalSearch::Collect(const Document& document) {
  hits_.Of(document) = FindAll(document.text.Searchable(), text_, options_);
}

void IncrementalSearch::Select(std::size_t hit) {
  const bool inJoystick = hit < hits_.joystick.size();
  const Document& document = inJoystick ? documents_.joystick : documents_.macro;
  // Selecting a tab, also the same once more, moves the caret and the focus.
  if (&documents_.Active() != &document) documents_.Select(document);
  document.text.Select(
      {inJoystick ? hits_.joystick[hit] : hits_.macro[hit - hits_.joystick.size()], text_.size()});
}

std::size_t IncrementalSearch::HitsBefore(const Document& document, std::size_t position) const {
  const std::vector<std::size_t>& hits = HitsIn(document);
  const auto behind = std::lower_bound(hits.begin(), hits.end(), position);
  return (document.IsJoystick() ? 0 : hits_.joystick.size()) +
         static_cast<std::size_t>(behind - hits.begin());
}

std::size_t IncrementalSearch::InHand() const {
  const Document& document = documents_.Active();
  const std::vector<std::size_t>& hits = HitsIn(document);
  const Range selection = document.text.Selection();
  const bool isHit =
      selection.length == text_.size() && std::binary_search(hits.begin(), hits.end(), selection.start);
  return isHit ? HitsBefore(document, selection.start) + 1 : 0;
}

/// From the caret on where no hit is in hand.
void IncrementalSearch::Go(std::size_t steps) {
  if (Count() == 0) return;
  const Document& document = documents_.Active();
  Select((HitsBefore(document, document.text.Selection().start) + steps) % Count());
  Changed();
}

void IncrementalSearch::GoBack() {
  if (&documents_.Active() != begin_.document) documents_.Select(*begin_.document);
  begin_.document->text.Select(begin_.selection);
}

void IncrementalSearch::End() {
  text_.clear();
  hits_ = {};
  Changed();
}

}  // namespace tarvik
