#include "workbench/UndoHistory.h"

namespace tarvik {
namespace {

using Edits = std::vector<PaneEdit>;

Edits Inverse(const Edits& edits) {
  Edits inverse;
  inverse.reserve(edits.size());
  for (auto edit = edits.rbegin(); edit != edits.rend(); ++edit) inverse.push_back(edit->Inverse());
  return inverse;
}

/// True when `edit` goes on where `last` stopped, typing or colouring; `last` then takes it in.
bool Continues(PaneEdit& last, const PaneEdit& edit) {
  if (last.OnlyColours() != edit.OnlyColours()) return false;
  if (edit.OnlyColours()) {
    if (last.position != edit.position || last.removed.colours.size() != edit.removed.colours.size())
      return false;
    last.inserted = edit.inserted;
    return true;
  }
  if (!edit.removed.text.empty() || edit.position != last.position + last.inserted.size()) return false;
  last.inserted.text += edit.inserted.text;
  last.inserted.colours.Replace({last.inserted.colours.size(), 0}, edit.inserted.colours);
  return true;
}

void Add(Edits& edits, const PaneEdit& edit) {
  if (edits.empty() || !Continues(edits.back(), edit)) {
    edits.push_back(edit);
  } else if (edits.back().removed == edits.back().inserted) {
    edits.pop_back();
  }
}

void Add(Edits& edits, const Edits& more) {
  for (const PaneEdit& edit : more) Add(edits, edit);
}

std::size_t Bytes(const RichText& content) {
  return content.size() + content.colours.runs().size() * sizeof(ColourRuns::Run);
}

/// `edits`, which end in the content `after`, in a bounded form: where they hold more than the contents
/// before and after them they become these two. Going round in circles, undoing everything and typing again,
/// thus stays cheap.
Edits Bounded(Edits edits, const RichText& after) {
  constexpr std::size_t kAlwaysKept = 4096;
  std::size_t bytes = 0;
  for (const PaneEdit& edit : edits) bytes += Bytes(edit.removed) + Bytes(edit.inserted);
  if (edits.size() < 2 || bytes <= kAlwaysKept || bytes <= 2 * Bytes(after)) return edits;
  RichText before = after;
  for (const PaneEdit& edit : Inverse(edits)) Apply(edit, before);
  return {{0, std::move(before), after}};
}

}  // namespace

UndoHistory::UndoHistory(Component& owner, std::string_view indexName, std::string_view startName, Pane& pane)
    : Index(owner, indexName, 1), Start(owner, startName, 1), pane_(pane), slots_(1) {
  edited_ = pane_.Edited.Connect([this](const PaneEdit& edit) {
    if (!replaying_) Add(unrecorded_, edit);
  });
}

void UndoHistory::Clear() {
  slots_.assign(1, {pane_.SelStart, {}});
  unrecorded_.clear();
  Index = 1;
  Start = 1;
  lastKeyWasSpace_ = lastKeyWasEnter_ = false;
}

void UndoHistory::KeyPress(int character, bool paneIsEmpty) {
  if (character == key::kSpace && paneIsEmpty) {
    Start = 0;
    return;
  }
  if (UpperBound() == 1) {
    Start = 1;
    return;
  }
  Start = 0;
  switch (character) {
    case key::kBackspace:
      Start = 1;
      break;
    case key::kEnter:
      if (!lastKeyWasEnter_) Start = 1;
      lastKeyWasEnter_ = true;
      lastKeyWasSpace_ = false;
      break;
    case key::kSpace:
      if (!lastKeyWasSpace_) Start = 1;
      lastKeyWasSpace_ = true;
      lastKeyWasEnter_ = false;
      break;
    default:
      lastKeyWasSpace_ = lastKeyWasEnter_ = false;
  }
}

Edits UndoHistory::WayToShown() {
  Edits way;
  for (int slot = 1; slot < Index; ++slot) Add(way, Inverse(At(slot).fromOlder));
  return way;
}

void UndoHistory::Open(int undoMax) {
  // The way from slot 1, which becomes slot 2, to the slot on show, and on to what the pane holds now.
  Edits made = std::exchange(unrecorded_, {});
  Edits path = Index > 1 ? WayToShown() : Edits();
  if (path.empty()) {
    path = std::move(made);
  } else {
    Add(path, made);
  }
  Push(pane_.SelStart, Bounded(std::move(path), pane_.Content()), undoMax);
}

void UndoHistory::Push(std::size_t caret, Edits fromOlder, int undoMax) {
  slots_.push_front({caret, std::move(fromOlder)});
  if (UpperBound() - 1 > undoMax) {
    slots_.pop_back();
    slots_.back().fromOlder.clear();
  }
}

void UndoHistory::Absorb() {
  Slot& newest = At(1);
  newest.caret = pane_.SelStart;
  if (UpperBound() > 1) {
    Add(newest.fromOlder, unrecorded_);
    newest.fromOlder = Bounded(std::move(newest.fromOlder), pane_.Content());
  }
  unrecorded_.clear();
}

void UndoHistory::StoreLook() {
  if (Index > 1) {
    Edits back = Inverse(unrecorded_);
    Add(back, At(Index - 1).fromOlder);
    At(Index - 1).fromOlder = std::move(back);
  }
  if (Index < UpperBound()) Add(At(Index).fromOlder, unrecorded_);
  unrecorded_.clear();
}

void UndoHistory::BeginCommand(int undoMax) {
  StoreLook();
  At(Index).caret = pane_.SelStart;
  Start = 1;
  if (Index == 1) return;
  Open(undoMax);
  GoToNewest();
}

void UndoHistory::BeginCommandBehindItsChange(int undoMax) {
  Start = 1;
  if (Index == 1) return;
  Push(At(Index).caret, WayToShown(), undoMax);
  GoToNewest();
}

void UndoHistory::TakeBackUnrecorded() {
  for (const PaneEdit& edit : Inverse(unrecorded_)) pane_.ApplyEdit(edit);
  unrecorded_.clear();
}

void UndoHistory::Show(const Edits& edits, int slot) {
  replaying_ = true;
  TakeBackUnrecorded();
  for (const PaneEdit& edit : edits) pane_.ApplyEdit(edit);
  replaying_ = false;
  Index = slot;
  pane_.SelStart = At(slot).caret;
}

void UndoHistory::Undo() {
  if (UndoSteps() > 0) Show(Inverse(At(Index).fromOlder), Index + 1);
}

void UndoHistory::Redo() {
  if (RedoSteps() > 0) Show(At(Index - 1).fromOlder, Index - 1);
}

}  // namespace tarvik
