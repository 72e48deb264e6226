// Colours a whole document by statement type, and takes its colours away again.
#pragma once

#include <array>

#include "language/SyntaxColouring.h"
#include "workbench/ColouredCopies.h"

namespace tarvik {

/// The colours of the classes, as they are set.
[[nodiscard]] std::array<Colour, kColourClasses> ColoursOf(const Settings& settings);

/// The passes of a document's language.
[[nodiscard]] std::span<const Pass> PassesOf(const Document& document);

/// What the progress bar shows during the passes over commands; during the others it follows the hits.
enum class CommandProgress { Hits, CountOfPasses };

/// Makes the passes over a pane's text, one after another, and gives it their colours. The status bar tells
/// how far they are.
void MakePasses(Pane& pane, std::span<const Pass> passes, Documents& documents, CommandProgress shown);

class Highlighter {
 public:
  Highlighter(Documents& documents, ColouredCopies& copies) : documents_(documents), copies_(copies) {}

  /// Removes all colour and makes all passes of the document's language, with their progress on show. Never
  /// marks a document as changed and is no undo step: it changes how the snapshot on show looks.
  void Apply(Document& document);
  /// Blackens the whole document.
  void Remove(Document& document);
  /// Blackens the selection, or gives it another colour, in the document of the selected tab.
  void ColourSelection(Colour colour);

 private:
  void ApplyLookOfJoystick(const Document& coloured);

  Documents& documents_;
  ColouredCopies& copies_;
};

}  // namespace tarvik
