// The passes made literally, one after another by searching and selecting in a pane: slow, and what the
// painting of whole files is held against.
#pragma once

#include <optional>

#include "language/Passes.h"
#include "panes/Pane.h"
#include "support/MemoryFiles.h"

namespace tarvik {

/// The colours are the numbers of their classes.
class LiteralPasses {
 public:
  const ColourRuns& Paint(const std::string& text, std::span<const Pass> passes) {
    pane_.Text = text;
    for (const Pass& pass : passes) Make(pass);
    return pane_.Content().colours;
  }

 private:
  void Make(const Pass& pass) {
    caret_ = 0;
    if (!Search(pass.text, pass.options)) return;
    while (true) {
      const auto hit = Search(pass.text, pass.options);
      if (!hit) return;
      if (!Handle(pass, *hit)) return;
    }
  }

  std::optional<std::size_t> Search(std::string_view text, int options) {
    return pane_.Find(text, caret_, pane_.Characters().size(), options);
  }

  void Widen() { pane_.SelLength = pane_.SelLength + 1; }
  void Colour(ColourClass colour) {
    if (pane_.SelLength > 0) pane_.SelColor = static_cast<tarvik::Colour>(colour);
  }
  void GoBehind(std::size_t hit) { caret_ = hit + pane_.SelLength; }
  /// The character at `position`, nothing behind the end.
  [[nodiscard]] std::string CharacterAt(std::size_t position) const {
    return std::string(pane_.Characters().substr(std::min(position, pane_.Characters().size())).substr(0, 1));
  }

  /// False: the pass ends.
  bool Handle(const Pass& pass, std::size_t hit) {
    switch (pass.kind) {
      case PassKind::WordAndOperand:
        Widen();
        Colour(pass.colour);
        GoBehind(hit);
        pane_.SelStart = caret_;
        pane_.Span(" ");
        Colour(pass.colour);
        return true;
      case PassKind::Modifier: {
        const std::string behind = CharacterAt(hit + 1);
        if (hit == 0 || (CharacterAt(hit - 1) == " " && behind != " " && behind != "\r")) {
          Widen();
          Colour(pass.colour);
        }
        GoBehind(hit);
        return true;
      }
      case PassKind::Bracket: {
        Colour(pass.colour);
        GoBehind(hit);
        pane_.SelStart = caret_;
        const auto closing = Search(")", 0);
        if (!closing) return false;
        Colour(pass.colour);
        caret_ = *closing + 1;
        return true;
      }
      case PassKind::FollowedWord:
        if (CharacterAt(hit + pane_.SelLength) == std::string(1, pass.follow)) Colour(pass.colour);
        GoBehind(hit);
        return true;
      case PassKind::PlainWord:
        Colour(pass.colour);
        GoBehind(hit);
        return true;
      case PassKind::Port:
        pane_.Span("S");
        Widen();
        Colour(pass.colour);
        GoBehind(hit);
        pane_.SelStart = caret_;
        pane_.SelLength = 1;
        pane_.Span("\r\n");
        Colour(ColourClass::Button);
        return true;
      case PassKind::Comment:
        Colour(pass.colour);
        GoBehind(hit);
        pane_.SelStart = caret_;
        pane_.Span("\r\n");
        Colour(pass.colour);
        return true;
    }
    return false;
  }

  MemoryFiles files_;
  Form form_{"Form"};
  Pane pane_{form_, "Text", files_};
  std::size_t caret_ = 0;
};

}  // namespace tarvik
