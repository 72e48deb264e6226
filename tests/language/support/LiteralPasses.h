// The passes made literally, one after another by searching and selecting as a user would: slow, and what the
// painting of whole files is held against.
#pragma once

#include <algorithm>
#include <optional>

#include "language/Passes.h"
#include "text/CodePage.h"
#include "text/Search.h"

namespace tarvik {

/// The colours are the numbers of their classes.
class LiteralPasses {
 public:
  const ColourRuns& Paint(const std::string& text, std::span<const Pass> passes) {
    content_ = RichText(WithPaneLineBreaks(text));
    folded_ = LowerCase(content_.text);
    for (const Pass& pass : passes) Make(pass);
    return content_.colours;
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

  /// What is found from the caret on is selected.
  std::optional<std::size_t> Search(std::string_view text, int options) {
    const auto hit = FindText({content_.text, folded_}, text, caret_, content_.size(), options);
    if (hit) Select({*hit, text.size()});
    return hit;
  }

  void Select(Range range) {
    const std::size_t start = std::min(range.start, content_.size());
    selection_ = {start, std::min(range.length, content_.size() - start)};
  }
  void Widen() { Select({selection_.start, selection_.length + 1}); }
  /// Selects from `start` up to the first character of `set`, or to the end.
  void Span(std::size_t start, std::string_view set) {
    Select({start, 0});
    const std::size_t stop = content_.text.find_first_of(set, selection_.start);
    Select({selection_.start, std::min(stop, content_.size()) - selection_.start});
  }
  void Colour(ColourClass colour) {
    const ColourRuns colours(selection_.length, static_cast<tarvik::Colour>(colour));
    content_.colours.Replace(selection_, colours);
  }
  void GoBehind(std::size_t hit) { caret_ = hit + selection_.length; }
  /// The character at `position`, nothing behind the end.
  [[nodiscard]] std::string CharacterAt(std::size_t position) const {
    return content_.text.substr(std::min(position, content_.size()), 1);
  }

  /// False: the pass ends.
  bool Handle(const Pass& pass, std::size_t hit) {
    switch (pass.kind) {
      case PassKind::WordAndOperand:
        Widen();
        Colour(pass.colour);
        GoBehind(hit);
        Span(caret_, " ");
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
        const auto closing = Search(")", 0);
        if (!closing) return false;
        Colour(pass.colour);
        caret_ = *closing + 1;
        return true;
      }
      case PassKind::FollowedWord:
        if (CharacterAt(hit + selection_.length) == std::string(1, pass.follow)) Colour(pass.colour);
        GoBehind(hit);
        return true;
      case PassKind::PlainWord:
        Colour(pass.colour);
        GoBehind(hit);
        return true;
      case PassKind::Port:
        Span(hit, "S");
        Widen();
        Colour(pass.colour);
        GoBehind(hit);
        Span(caret_, "\r\n");
        Colour(ColourClass::Button);
        return true;
      case PassKind::Comment:
        Colour(pass.colour);
        GoBehind(hit);
        Span(caret_, "\r\n");
        Colour(pass.colour);
        return true;
    }
    return false;
  }

  RichText content_;
  std::string folded_;
  Range selection_;
  std::size_t caret_ = 0;
};

}  // namespace tarvik
