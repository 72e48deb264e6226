#include "workbench/JumpHistory.h"

#include <algorithm>

namespace tarvik {
namespace {

constexpr int kFewLines = 10;
constexpr std::size_t kMostPlaces = 100;

}  // namespace

JumpHistory::JumpHistory(Documents& documents) : documents_(documents), here_(Caret()) {
  connections_.push_back(documents.tabs.SelectedItem.Changed.Connect([this] { CaretMoved(); }));
  for (Document* const document : {&documents.joystick, &documents.macro}) {
    connections_.push_back(document->text.SelectionChanged.Connect([this, document] {
      if (document == &documents_.Active()) CaretMoved();
    }));
    connections_.push_back(document->text.Edited.Connect([this, document](const PaneEdit& edit) {
      if (!edit.OnlyColours()) Follow(*document, edit);
    }));
  }
}

void JumpHistory::Forget() {
  back_.clear();
  forward_.clear();
  here_ = Caret();
  Changed();
}

JumpHistory::Place JumpHistory::Caret() const {
  Document& document = documents_.Active();
  return {&document, document.text.Selection().start};
}

bool JumpHistory::IsFar(const Place& one, const Place& other) {
  if (one.document != other.document) return true;
  const std::string_view text = one.document->text.Characters();
  const auto [first, last] = std::minmax(one.position, other.position);
  std::size_t at = first;
  for (int line = 0; line <= kFewLines; ++line) {
    const std::size_t end = text.find('\n', at);
    if (end >= last) return false;
    at = end + 1;
  }
  return true;
}

void JumpHistory::CaretMoved() {
  const Place before = std::exchange(here_, Caret());
  if (going_ || !IsFar(before, here_)) return;
  if (back_.size() == kMostPlaces) back_.erase(back_.begin());
  back_.push_back(before);
  forward_.clear();
  Changed();
}

/// A file in which nothing is left of what it was is another one.
void JumpHistory::Follow(const Document& document, const PaneEdit& edit) {
  const std::size_t end = edit.position + edit.removed.size();
  const bool isOther = document.text.Characters().size() == edit.inserted.size();
  const auto move = [&](Place& place) {
    if (place.document != &document || place.position <= edit.position) return;
    place.position =
        place.position < end ? edit.position : place.position - end + edit.position + edit.inserted.size();
  };
  for (std::vector<Place>* const places : {&back_, &forward_}) {
    if (isOther) std::erase_if(*places, [&](const Place& place) { return place.document == &document; });
    std::ranges::for_each(*places, move);
  }
  move(here_);
  Changed();
}

void JumpHistory::Go(std::vector<Place>& from, std::vector<Place>& to) {
  if (from.empty()) return;
  to.push_back(Caret());
  const Place place = from.back();
  from.pop_back();
  going_ = true;
  documents_.GoTo(*place.document, {place.position, 0});
  going_ = false;
  Changed();
}

}  // namespace tarvik
