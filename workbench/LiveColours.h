// The colours that the passes would give both files, kept up while somebody types: for showing them where the
// user has given the text none. No pane ever holds them.
#pragma once

#include "workbench/Documents.h"
#include "workbench/Pause.h"

namespace tarvik {

/// A line that is edited is coloured by itself at once; what it may mean for the rest of its file waits for a
/// pause.
class LiveColours {
  Component owner_{"LiveColours"};  // the timer is made in it, and the frame adopts it

 public:
  explicit LiveColours(Documents& documents);

  Pause pause{owner_, "TimerColours", 100, [this] { Renew(); }};

  /// The colours of all characters of a document; null where the user does not want to see them.
  [[nodiscard]] const ColourRuns* Of(const Document& document) const;
  /// Whether it is black or a colour of statements: then nothing tells that the user gave it to a character,
  /// which may have it from an earlier colouring or from the text that it was typed beside.
  [[nodiscard]] bool Gives(Colour colour) const;
  /// Colours both files as a whole, without waiting for the pause.
  void Renew();

  /// The document is coloured otherwise than one edit tells.
  Signal<const Document&> Changed;

 private:
  [[nodiscard]] bool IsOn() const { return documents_.settings.ColourAsYouType != 0; }
  void Follow(const Document& document, const PaneEdit& edit);

  Documents& documents_;
  PerDocument<ColourRuns> colours_;
  std::vector<Connection> connections_;
};

}  // namespace tarvik
