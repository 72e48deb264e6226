// The list at the caret that offers what the word there may become, or what may stand there: when it is asked
// for, or by itself behind two letters where the user wants that. The text keeps the focus; its keys come
// here first.
#pragma once

#include "language/Completion.h"
#include "workbench/Workbench.h"

namespace tarvik {

class SuggestionList {
 public:
  /// Its controls are the form's.
  SuggestionList(Form& form, Workbench& bench);

  ListBox list;
  Pause pause;

  /// Opens it, with the first suggestion in hand, or says that there is none.
  void Open();
  void Close();
  [[nodiscard]] bool IsOpen() const { return list.Visible; }
  /// Whether a key of the text is for the list: the arrow keys, Enter or Tab, which takes what is in hand,
  /// and Escape. In a list that opened by itself nothing is in hand at first: Enter still ends the line
  /// there, and Tab takes the first one.
  bool TakesKey(const Key& key);
  enum class Change { ByTyping, Otherwise };
  /// The file on top has changed.
  void TextChanged(Change change);
  /// Where the word begins that it is about.
  [[nodiscard]] std::size_t Anchor() const { return anchor_; }

 private:
  void OpenByItself();
  [[nodiscard]] std::vector<model::Candidate> Find() const;
  [[nodiscard]] bool HasMore(const std::vector<model::Candidate>& candidates) const;
  /// Shows what is left of it; none may be.
  void Narrow();
  void Show(std::vector<model::Candidate> candidates, int inHand);
  /// To another one, within the list.
  void Go(int rows);
  void Take();
  [[nodiscard]] Range Replaced(const model::Candidate& candidate) const;
  /// What a text will have in the place of a range, when the user wants colours.
  [[nodiscard]] Colour ColourOf(const model::Candidate& candidate) const;

  Workbench& bench_;
  std::vector<model::Candidate> candidates_;
  std::size_t anchor_ = 0;
  std::vector<Connection> connections_;
};

}  // namespace tarvik
