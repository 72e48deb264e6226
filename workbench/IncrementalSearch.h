// Searching both files while somebody types what for: all hits, and the one in hand.
#pragma once

#include "workbench/Documents.h"

namespace tarvik {

/// The hits are those of the joystick file, then those of the macro file.
class IncrementalSearch {
 public:
  explicit IncrementalSearch(Documents& documents);

  /// The user is about to search, from where the caret is in the file on top.
  void Begin();
  /// Looks for another text, with the options of `find`, and selects its first hit from there on.
  void LookFor(const std::string& text, int options);
  /// Goes to the hit behind the one in hand, or the one before; behind the last one comes the first.
  void Next() { Go(InHand() > 0 ? 1 : 0); }
  void Previous() { Go(Count() - 1); }
  /// Goes back to where the search began.
  void GoBack();
  /// Nothing is looked for any more; the selection stays.
  void End();

  [[nodiscard]] std::size_t Count() const { return hits_.joystick.size() + hits_.macro.size(); }
  /// Which of the hits is selected, from 1 on; 0 where none is.
  [[nodiscard]] std::size_t InHand() const;
  /// The places of the hits in a document, in their order, and how long each is.
  [[nodiscard]] const std::vector<std::size_t>& HitsIn(const Document& document) const {
    return hits_.Of(document);
  }
  [[nodiscard]] std::size_t Length() const { return text_.size(); }

  /// There are other hits, or another one is in hand.
  Signal<> Changed;

 private:
  /// A place in one of the files.
  struct Place {
    const Document* document;
    Range selection;
  };

  /// How many hits stand before a place of a document, those of the file before it included.
  [[nodiscard]] std::size_t HitsBefore(const Document& document, std::size_t position) const;
  void Go(std::size_t steps);
  void Follow(const Document& document, const PaneEdit& edit);
  void Collect(const Document& document);
  void Select(std::size_t hit);

  Documents& documents_;
  std::string text_;
  int options_ = 0;
  PerDocument<std::vector<std::size_t>> hits_;
  Place begin_;
  std::vector<Connection> connections_;
};

}  // namespace tarvik
