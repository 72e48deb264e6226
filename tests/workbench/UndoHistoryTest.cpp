#include <gtest/gtest.h>

#include <random>

#include "support/MemoryFiles.h"
#include "support/PanePrinters.h"
#include "workbench/UndoHistory.h"

namespace tarvik {
namespace {

constexpr Colour kRed{255};
constexpr Colour kBlue{0xFF0000};

/// Somebody at work in a pane with a history, as the editor ties the two together.
class Work {
 public:
  Work() {
    pane.Change = [this] { Changed(); };
    history.Clear();
  }

  /// A key and what the text control makes of it.
  void Press(int character) {
    history.KeyPress(character, pane.Characters().empty());
    const Range selection = pane.Selection();
    if (character != key::kBackspace) {
      pane.UserReplaced(selection,
                        character == key::kEnter ? "\r\n" : std::string(1, static_cast<char>(character)));
    } else if (selection.length) {
      pane.UserReplaced(selection, "");
    } else if (selection.start) {
      pane.UserReplaced({selection.start - 1, 1}, "");
    }
  }
  void Type(std::string_view text) {
    for (const char c : text) Press(static_cast<unsigned char>(c));
  }
  /// A change that comes through no key, such as a drop.
  void Drop(Range range, std::string_view text) { pane.UserReplaced(range, text); }
  /// An insertion by a tool, in two pieces.
  void Insert(const std::string& first, const std::string& second) {
    loading = true;
    history.BeginCommand(undoMax);
    pane.SelColor = kBlue;
    pane.SelText = first;
    pane.SelColor = kBlack;
    pane.SelText = second;
    loading = false;
    history.Start = 1;
    Changed();
  }
  void ColourByHand(Range range, Colour colour) { pane.Recolour(range.start, {range.length, colour}); }
  void ColourAll(Colour colour) {
    ColourByHand({0, pane.Characters().size()}, colour);
    history.StoreLook();
  }
  void Undo() { Step(&UndoHistory::Undo); }
  void Redo() { Step(&UndoHistory::Redo); }

  MemoryFiles files;
  Form form{"Form"};
  Pane pane{form, "Text", files};
  UndoHistory history{form, "Index", "Start", pane};
  int undoMax = 50;

 private:
  void Changed() {
    if (loading) return;
    if (history.Absorbs()) {
      history.Absorb();
    } else {
      history.Open(undoMax);
      history.GoToNewest();
    }
    history.Start = 1;
  }
  void Step(void (UndoHistory::*step)()) {
    loading = true;
    (history.*step)();
    loading = false;
  }

  bool loading = false;
};

class UndoHistoryTest : public testing::Test, protected Work {
 protected:
  /// What somebody sees after a step: the text, a letter for each colour, and the caret.
  void Look(const std::string& text, const std::string& colours, std::size_t caret) {
    EXPECT_EQ(pane.Text.Get(), text);
    std::string letters;
    for (std::size_t i = 0; i < pane.Characters().size(); ++i) {
      const Colour colour = pane.Content().colours.At(i);
      letters += colour == kRed ? 'R' : colour == kBlue ? 'B' : '.';
    }
    EXPECT_EQ(letters, colours);
    EXPECT_EQ(pane.SelStart.Get(), caret);
  }
  void Counts(int undo, int redo) {
    EXPECT_EQ(history.UndoSteps(), undo);
    EXPECT_EQ(history.RedoSteps(), redo);
  }
};

TEST_F(UndoHistoryTest, ANewHistoryHasNothingToUndo) {
  Counts(0, 0);
  Undo();
  Redo();
  Counts(0, 0);
  Look("", "", 0);
}

TEST_F(UndoHistoryTest, AWordIsOneStepAndItsBlankBeginsTheNext) {
  Type("x");
  Type("ab cd");
  Look("xab cd", "......", 6);
  Counts(2, 0);
  Undo();
  Look("xab", "...", 3);
  Counts(1, 1);
  Undo();
  Look("", "", 0);
  Counts(0, 2);
  Redo();
  Look("xab", "...", 3);
  Redo();
  Look("xab cd", "......", 6);
  Counts(2, 0);
}

TEST_F(UndoHistoryTest, ARunOfBlanksIsOneStep) {
  Type("a");
  Type("   ");
  Counts(2, 0);
  Undo();
  Look("a", ".", 1);
}

TEST_F(UndoHistoryTest, ARunOfLineBreaksIsOneStep) {
  Type("a");
  Press(13);
  Press(13);
  Counts(2, 0);
  Look("a\r\n\r\n", ".....", 5);
  Undo();
  Look("a", ".", 1);
}

TEST_F(UndoHistoryTest, ALetterBetweenThemSeparatesLineBreaks) {
  Type("a");
  Press(13);
  Type("b");
  Press(13);
  Counts(3, 0);
  Undo();
  Look("a\r\nb", "....", 4);
  Undo();
  Look("a", ".", 1);
}

TEST_F(UndoHistoryTest, BlanksAndLineBreaksEndEachOthersRuns) {
  Type("a");
  Type(" ");
  Press(13);
  Type(" ");
  Counts(4, 0);
}

TEST_F(UndoHistoryTest, EveryBackspaceIsAStep) {
  Type("abc");
  Press(key::kBackspace);
  Press(key::kBackspace);
  Look("a", ".", 1);
  Counts(3, 0);
  Undo();
  Look("ab", "..", 2);
  Undo();
  Look("abc", "...", 3);
}

TEST_F(UndoHistoryTest, ABackspaceDoesNotEndARunOfBlanks) {
  Type("a");
  Type("  ");
  Press(key::kBackspace);
  Type(" ");
  Look("a  ", "...", 3);
  Counts(3, 0);
  Undo();
  Look("a  ", "...", 3);  // the blank went into the backspace's step
  Undo();
  Look("a", ".", 1);
}

TEST_F(UndoHistoryTest, ABlankInAnEmptyPaneAsksForNoStep) {
  history.KeyPress(' ', true);
  EXPECT_EQ(history.Start, 0);
  pane.UserReplaced({0, 0}, " ");
  EXPECT_EQ(pane.Text.Get(), " ");
  Counts(0, 0);
  Type("a");
  Counts(1, 0);
  Undo();
  Look(" ", ".", 1);
}

TEST_F(UndoHistoryTest, AKeysDecisionLastsForOneChange) {
  Type("ab");
  Drop({2, 0}, "x");
  Drop({3, 0}, "y");
  Counts(3, 0);
  Undo();
  Look("abx", "...", 3);
  Undo();
  Look("ab", "..", 2);
}

TEST_F(UndoHistoryTest, TypingAfterUndoKeepsWhatWasUndoneAsOlderSteps) {
  Type("a");
  Drop({1, 0}, "b");
  Drop({2, 0}, "c");
  Undo();
  Undo();
  Look("a", ".", 1);
  Type("z");
  Look("az", "..", 2);
  Counts(4, 0);
  EXPECT_EQ(history.Index, 1);
  Undo();
  Look("abc", "...", 3);
  Undo();
  Look("ab", "..", 2);
  Undo();
  Look("a", ".", 1);
  Undo();
  Look("", "", 0);
  Counts(0, 4);
}

TEST_F(UndoHistoryTest, TheDeepestHistoryHasOneSlotMoreThanItsSetting) {
  undoMax = 10;
  for (int i = 0; i < 30; ++i) Drop({pane.SelStart, 0}, "x");
  EXPECT_EQ(history.UpperBound(), 11);
  Counts(10, 0);
  for (int i = 0; i < 12; ++i) Undo();
  Look(std::string(20, 'x'), std::string(20, '.'), 20);
}

TEST_F(UndoHistoryTest, ALoweredSettingKeepsTheSlotsThereAre) {
  for (int i = 0; i < 20; ++i) Drop({pane.SelStart, 0}, "x");
  EXPECT_EQ(history.UpperBound(), 21);
  undoMax = 10;
  Drop({20, 0}, "y");
  EXPECT_EQ(history.UpperBound(), 21);
  for (int i = 0; i < 20; ++i) Undo();
  Look("x", ".", 1);
}

TEST_F(UndoHistoryTest, ColoursComeBackWithTheText) {
  Type("BTN");
  ColourAll(kRed);
  Look("BTN", "RRR", 3);
  Counts(1, 0);
  pane.SelStart = 3;
  Type(" S1");
  Look("BTN S1", "RRRRRR", 6);
  ColourAll(kBlue);
  Undo();
  Look("BTN", "RRR", 3);
  Redo();
  Look("BTN S1", "BBBBBB", 6);
}

TEST_F(UndoHistoryTest, ColouringLeavesTheSlotsCaretWhereTheChangeWas) {
  Type("BTN");
  pane.SelStart = 1;
  ColourAll(kRed);
  Drop({0, 0}, "x");
  Undo();
  Look("BTN", "RRR", 3);
}

TEST_F(UndoHistoryTest, ColouringWhileSomethingIsUndoneColoursTheSlotOnShow) {
  Type("ab");
  Drop({2, 0}, "c");
  Undo();
  ColourAll(kRed);
  Redo();
  Look("abc", "...", 3);
  Undo();
  Look("ab", "RR", 2);
}

TEST_F(UndoHistoryTest, AColourGivenByHandIsNoStepAndGoesWithAnUndo) {
  Type("ab");
  ColourByHand({0, 2}, kRed);
  Counts(1, 0);
  Undo();
  Redo();
  Look("ab", "..", 2);
}

TEST_F(UndoHistoryTest, AColourGivenByHandIsInTheNextSnapshot) {
  Type("ab");
  ColourByHand({0, 1}, kRed);
  Drop({2, 0}, "c");
  Drop({3, 0}, "d");
  Undo();
  Look("abc", "R..", 3);
  Undo();
  Look("ab", "..", 2);
}

TEST_F(UndoHistoryTest, AnInsertionByAToolIsOneStepHoweverManyPiecesItHas) {
  Type("ab");
  pane.SelStart = 1;
  Insert("X", "Y");
  Look("aXYb", ".B..", 3);
  Counts(2, 0);
  Undo();
  Look("ab", "..", 1);  // the caret is where the tool found it
  Redo();
  Look("aXYb", ".B..", 3);
}

TEST_F(UndoHistoryTest, AnInsertionAfterUndoLosesNothing) {
  Type("a");
  Drop({1, 0}, "b");
  Undo();
  Insert("X", "");
  Look("aX", ".B", 2);
  Counts(4, 0);
  Undo();
  Look("a", ".", 1);  // the insertion alone is taken back
  Undo();
  Look("ab", "..", 2);  // and what had been undone stands behind it
  Undo();
  Look("a", ".", 1);
  Redo();
  Redo();
  Redo();
  Look("aX", ".B", 2);
}

TEST_F(UndoHistoryTest, ClearingKeepsThePresentTextAsTheOldest) {
  Type("ab cd");
  Undo();
  history.Clear();
  Counts(0, 0);
  Type(" x");
  Undo();
  Look("ab", "..", 2);
  Counts(0, 1);
}

TEST_F(UndoHistoryTest, ClearingForgetsTheRunOfBlanks) {
  Type("a");
  Type(" ");
  history.Clear();
  Type("b");
  Type(" ");
  Counts(2, 0);
}

/// The history told in the plainest way: whole snapshots in an array, slot 1 first.
class Snapshots {
 public:
  void Clear(const Pane& pane) {
    slots = {Of(pane)};
    index = start = 1;
    spaces = enters = false;
  }
  void KeyPress(int key, bool paneIsEmpty) {
    if (key == ' ' && paneIsEmpty) {
      start = 0;
    } else if (slots.size() != 1) {
      start = 0;
      if (key == key::kBackspace) {
        start = 1;
      } else if (key == key::kEnter) {
        if (!enters) start = 1;
        enters = true;
        spaces = false;
      } else if (key == ' ') {
        if (!spaces) start = 1;
        spaces = true;
        enters = false;
      } else {
        spaces = enters = false;
      }
    } else {
      start = 1;
    }
  }
  void Change(const Pane& pane, int undoMax) {
    if (start == 1 || index != 1) {
      if (static_cast<int>(slots.size()) <= undoMax) slots.emplace_back();
      for (std::size_t i = slots.size() - 1; i > 0; --i) slots[i] = slots[i - 1];
    }
    slots[0] = Of(pane);
    index = 1;
    start = 1;
  }
  void BeginCommand(const Pane& pane, int undoMax) {
    Shown() = Of(pane);
    start = 1;
    if (index != 1) Change(pane, undoMax);
  }
  struct Slot {
    RichText content;
    std::size_t caret = 0;
  };
  [[nodiscard]] Slot& Shown() { return slots[static_cast<std::size_t>(index - 1)]; }
  static Slot Of(const Pane& pane) { return {pane.Content(), pane.SelStart}; }

  std::vector<Slot> slots;
  int index = 1;
  int start = 1;
  bool spaces = false;
  bool enters = false;
};

class UndoHistoryAgainstSnapshots : public UndoHistoryTest, public testing::WithParamInterface<unsigned> {
 protected:
  std::size_t Below(std::size_t n) { return random_() % n; }
  [[nodiscard]] std::size_t Length() const { return pane.Characters().size(); }
  Range AnyRange() {
    const std::size_t start = Below(Length() + 1);
    return {start, Below(std::min<std::size_t>(Length() - start, 8) + 1)};
  }
  Colour AnyColour() { return Below(3) == 0 ? kBlack : Below(2) ? kRed : kBlue; }

  void DoAnything();
  void Same() {
    ASSERT_EQ(history.UpperBound(), static_cast<int>(model.slots.size()));
    ASSERT_EQ(history.Index, model.index);
  }
  void SameSlotOnShow() {
    ASSERT_NO_FATAL_FAILURE(Same());
    ASSERT_EQ(pane.Content(), model.Shown().content);
    ASSERT_EQ(pane.SelStart.Get(), std::min(model.Shown().caret, Length()));
  }
  void UndoBoth() {
    if (model.index < static_cast<int>(model.slots.size())) ++model.index;
    Undo();
  }
  void RedoBoth() {
    if (model.index > 1) --model.index;
    Redo();
  }

  std::mt19937 random_{GetParam()};
  Snapshots model;
};

void UndoHistoryAgainstSnapshots::DoAnything() {
  const std::string_view keys = "ab  \r\r\bc";
  switch (Below(16)) {
    case 0:
    case 1:
    case 2:
    case 3:
    case 4: {
      const int key = keys[Below(keys.size())];
      if (key == key::kBackspace && pane.Selection().End() == 0) return;
      model.KeyPress(key, Length() == 0);
      Press(key);
      return model.Change(pane, undoMax);
    }
    case 5:
      if (Below(6)) {
        Drop(AnyRange(), std::string("xy\r\nz").substr(0, Below(6)));
      } else {
        pane.Text = std::string(Below(20), 'r');
      }
      return model.Change(pane, undoMax);
    case 6:
      return pane.Select(AnyRange());
    case 7:
      return ColourByHand(AnyRange(), AnyColour());
    case 8:
      ColourAll(AnyColour());
      model.Shown().content = pane.Content();
      return;
    case 9:
      model.BeginCommand(pane, undoMax);
      Insert("in", Below(2) ? "sert" : "");
      model.start = 1;
      return model.Change(pane, undoMax);
    case 10:
      undoMax = static_cast<int>(3 + Below(12));
      return;
    case 11:
      if (Below(40)) return;
      history.Clear();
      return model.Clear(pane);
    case 12:
    case 13:
    case 14:
      if (model.index == static_cast<int>(model.slots.size())) return;
      UndoBoth();
      return SameSlotOnShow();
    default:
      if (model.index == 1) return;
      RedoBoth();
      return SameSlotOnShow();
  }
}

TEST_P(UndoHistoryAgainstSnapshots, EverySlotHoldsWhatASnapshotOfItHeld) {
  undoMax = 8;
  model.Clear(pane);
  for (int round = 0; round < 40; ++round) {
    for (int i = 0; i < 60; ++i) {
      ASSERT_NO_FATAL_FAILURE(DoAnything());
      ASSERT_NO_FATAL_FAILURE(Same());
    }
    while (model.index < static_cast<int>(model.slots.size())) {
      UndoBoth();
      ASSERT_NO_FATAL_FAILURE(SameSlotOnShow());
    }
    for (std::size_t back = Below(model.slots.size()); back > 0; --back) {
      RedoBoth();
      ASSERT_NO_FATAL_FAILURE(SameSlotOnShow());
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, UndoHistoryAgainstSnapshots, testing::Range(1U, 21U));

TEST_F(UndoHistoryTest, ThousandsOfStepsOfALargeTextKeepTheirText) {
  undoMax = 30000;
  Drop({0, 0}, std::string(1000000, 'x'));
  for (int i = 0; i < 5000; ++i) Drop({500000, 0}, "y");
  Counts(5001, 0);
  for (int i = 0; i < 5000; ++i) Undo();
  EXPECT_EQ(pane.Text.Get(), std::string(1000000, 'x'));
}

}  // namespace
}  // namespace tarvik
