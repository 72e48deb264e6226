#include "workbench/IncrementalSearch.h"

#include <algorithm>

namespace tarvik {

IncrementalSearch::IncrementalSearch(Documents& documents) : documents_(documents) {
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
  if (document.traits.tab == begin_.tab && edit.position < began.End()) {
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

void IncrementalSearch::Begin() {
  begin_ = {documents_.tabs.SelectedIndex(), documents_.Active().text.Selection()};
}

void IncrementalSearch::LookFor(const std::string& text, int options) {
  text_ = text;
  options_ = options;
  Collect(documents_.joystick);
  Collect(documents_.macro);
  const std::vector<std::size_t>& first = begin_.tab == 1 ? joystick_ : macro_;
  const auto behind = std::lower_bound(first.begin(), first.end(), begin_.selection.start);
  if (Count() > 0) {
    const std::size_t before = begin_.tab == 1 ? 0 : joystick_.size();
    Select((before + static_cast<std::size_t>(behind - first.begin())) % Count());
  } else {
    GoBack();
  }
  Changed();
}

void IncrementalSearch::Collect(const Document& document) {
  (document.IsJoystick() ? joystick_ : macro_) = FindAll(document.text.Searchable(), text_, options_);
}

void IncrementalSearch::Select(std::size_t hit) {
  const bool inJoystick = hit < joystick_.size();
  const Document& document = inJoystick ? documents_.joystick : documents_.macro;
  // Selecting a tab, also the same once more, moves the caret and the focus.
  if (&documents_.Active() != &document) documents_.Select(document);
  document.text.Select({inJoystick ? joystick_[hit] : macro_[hit - joystick_.size()], text_.size()});
}

std::size_t IncrementalSearch::InHand() const {
  const Document& document = documents_.Active();
  const std::vector<std::size_t>& hits = HitsIn(document);
  const Range selection = document.text.Selection();
  const auto hit = std::lower_bound(hits.begin(), hits.end(), selection.start);
  if (hit == hits.end() || selection != Range{*hit, text_.size()}) return 0;
  return (document.IsJoystick() ? 0 : joystick_.size()) + static_cast<std::size_t>(hit - hits.begin()) + 1;
}

/// From the caret on where no hit is in hand.
void IncrementalSearch::Step(int by) {
  if (Count() == 0) return;
  const Document& document = documents_.Active();
  const std::vector<std::size_t>& hits = HitsIn(document);
  const auto behind = std::lower_bound(hits.begin(), hits.end(), document.text.Selection().start);
  const std::size_t next =
      (document.IsJoystick() ? 0 : joystick_.size()) + static_cast<std::size_t>(behind - hits.begin());
  const std::size_t steps = by > 0 ? (InHand() > 0 ? 1 : 0) : Count() - 1;
  Select((next + steps) % Count());
  Changed();
}

void IncrementalSearch::GoBack() {
  if (documents_.tabs.SelectedIndex() != begin_.tab) documents_.tabs.Select(begin_.tab);
  documents_.Active().text.Select(begin_.selection);
}

void IncrementalSearch::End() {
  text_.clear();
  joystick_.clear();
  macro_.clear();
  Changed();
}

}  // namespace tarvik
