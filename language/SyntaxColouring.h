// Paints a whole text by a table of passes: the result of the passes made one after another, each with
// searches of its own, from one walk over the text.
#pragma once

#include <functional>

#include "language/KeywordHits.h"
#include "text/RichText.h"

namespace tarvik {

/// What hears how far the work is. Any of the three functions may be empty.
struct ColouringProgress {
  std::function<void(const Pass&)> before;
  std::function<void(std::size_t)> hit;  ///< its position
  std::function<void(const Pass&)> after;
};

/// The classes of all characters of one text, as far as the passes made so far have set them.
class SyntaxColouring {
 public:
  SyntaxColouring(std::string_view text, std::span<const Pass> passes);

  /// Makes all passes, one after another, each over the whole text.
  void Run(const ColouringProgress& progress = {});
  /// The colours of the classes, `colours` being indexed by ColourClass.
  [[nodiscard]] ColourRuns Colours(std::span<const Colour, kColourClasses> colours) const;

 private:
  std::size_t Handle(const Pass& pass, std::size_t hit);
  std::size_t HandleWordAndOperand(const Pass& pass, std::size_t hit);
  std::size_t HandleModifier(const Pass& pass, std::size_t hit);
  std::size_t HandleBracket(const Pass& pass, std::size_t hit);
  std::size_t HandlePort(const Pass& pass, std::size_t hit);
  [[nodiscard]] std::size_t Until(char stop, std::size_t from) const;
  [[nodiscard]] std::size_t EndOfLine(std::size_t from) const;
  void Paint(std::size_t from, std::size_t to, ColourClass colour);

  void Make(std::size_t pass, const ColouringProgress& progress);

  std::string_view text_;
  std::span<const Pass> passes_;
  KeywordHits hits_;
  std::vector<ColourClass> classes_;
  std::size_t painted_ = 0;  // how many stretches
  std::size_t reached_ = 0;  // up to here an earlier hit of the pass has painted what a later one would
};

}  // namespace tarvik
