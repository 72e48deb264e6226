// The undo history of one document: snapshots of its pane with their carets. Slot 1 is the newest; a snapshot
// is kept as what it changed against the next older one, so that it costs what changed and not what the pane
// holds.
#pragma once

#include <deque>
#include <vector>

#include "panes/Pane.h"

namespace tarvik {

class UndoHistory {
 public:
  /// Both names are those of the values in the registry of `owner`, the document.
  UndoHistory(Component& owner, std::string_view indexName, std::string_view startName, Pane& pane);

  /// The slot on show in the pane: 1 when nothing is undone.
  Property<int> Index;
  /// With 1 the next change opens a new snapshot; with 0 it is absorbed in slot 1.
  Property<int> Start;

  [[nodiscard]] int UpperBound() const { return static_cast<int>(slots_.size()); }
  [[nodiscard]] int UndoSteps() const { return UpperBound() - Index; }
  [[nodiscard]] int RedoSteps() const { return Index - 1; }

  /// One slot, which holds what the pane holds now.
  void Clear();
  /// Decides, before a key's character changes the pane, whether that change opens a snapshot: a word, a run
  /// of blanks and a run of line breaks are one step each, and so is every backspace.
  void KeyPress(int character, bool paneIsEmpty);
  /// Puts the pane's present state in a new slot 1. What was undone stays, older than it; at the full depth
  /// of `undoMax` + 1 slots the oldest falls off. Index keeps its number until GoToNewest.
  void Open(int undoMax);
  void GoToNewest() { Index = 1; }
  /// Puts the pane's present state in slot 1 in place of what was there.
  void Absorb();
  /// Puts the pane's present content in the slot on show, whose caret stays: after colouring.
  void StoreLook();
  /// A command of the program is about to change the pane: what it changes is a step of its own, which one
  /// undo takes back to what is on show now. Where something is undone, the state on show becomes the newest
  /// slot, and what was undone stays reachable behind it; `undoMax` as for Open.
  void BeginCommand(int undoMax);
  /// The same when the change has been made already, by a drop and not by a key.
  void BeginCommandBehindItsChange(int undoMax);
  /// True when nothing is undone and the next change is no new step.
  [[nodiscard]] bool Absorbs() const { return Start != 1 && Index == 1; }

  /// Show the next older or newer slot in the pane, with its caret. At either end they do nothing.
  void Undo();
  void Redo();

 private:
  using Edits = std::vector<PaneEdit>;
  struct Slot {
    std::size_t caret = 0;
    Edits fromOlder;  // what makes this slot's content out of the next older one's
  };

  [[nodiscard]] Slot& At(int slot) { return slots_[static_cast<std::size_t>(slot - 1)]; }
  void Show(const Edits& edits, int slot);
  /// A new slot 1, made out of slot 1 by `fromOlder`; the oldest one falls off at the full depth.
  void Push(std::size_t caret, Edits fromOlder, int undoMax);
  /// The edits that lead from slot 1 to the slot on show.
  [[nodiscard]] Edits WayToShown();
  void TakeBackUnrecorded();

  Pane& pane_;
  std::deque<Slot> slots_;
  Edits unrecorded_;  // since the pane showed the content of slot Index
  bool replaying_ = false;
  bool lastKeyWasSpace_ = false;
  bool lastKeyWasEnter_ = false;
  Connection edited_;
};

}  // namespace tarvik
