#include "language/SyntaxColouring.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>

namespace tarvik {

SyntaxColouring::SyntaxColouring(std::string_view text, std::span<const Pass> passes)
    : text_(text),
      passes_(passes),
      hits_(text, passes),
      classes_(text.size() + sizeof(std::uint64_t), ColourClass::Black) {
  // A class that no character has stands behind the text, so that the last run ends like any other.
  constexpr auto kBehind = static_cast<ColourClass>(kColourClasses);
  std::fill(classes_.begin() + static_cast<std::ptrdiff_t>(text.size()), classes_.end(), kBehind);
}

void SyntaxColouring::Run(const ColouringProgress& progress) {
  for (std::size_t pass = 0; pass < passes_.size(); ++pass) {
    if (progress.before) progress.before(passes_[pass]);
    Make(pass, progress);
    if (progress.after) progress.after(passes_[pass]);
  }
}

/// Skips hits that begin inside the hit before them.
void SyntaxColouring::Make(std::size_t pass, const ColouringProgress& progress) {
  std::size_t from = 0;
  reached_ = 0;
  for (const std::size_t hit : hits_.Of(pass)) {
    if (hit < from) continue;
    if (progress.hit) progress.hit(hit);
    from = Handle(passes_[pass], hit);
  }
}

/// Paints one hit and tells where the search goes on.
std::size_t SyntaxColouring::Handle(const Pass& pass, std::size_t hit) {
  const std::size_t behind = hit + pass.text.size();
  switch (pass.kind) {
    case PassKind::WordAndOperand:
      return HandleWordAndOperand(pass, hit);
    case PassKind::Modifier:
      return HandleModifier(pass, hit);
    case PassKind::Bracket:
      return HandleBracket(pass, hit);
    case PassKind::FollowedWord:
    case PassKind::PlainWord:
      Paint(hit, behind, pass.colour);
      return behind;
    case PassKind::Port:
      return HandlePort(pass, hit);
    case PassKind::Comment:
      if (behind > reached_) Paint(hit, reached_ = EndOfLine(behind), pass.colour);
      return behind;
  }
  return behind;
}

std::size_t SyntaxColouring::HandleWordAndOperand(const Pass& pass, std::size_t hit) {
  const std::size_t operand = std::min(hit + pass.text.size() + 1, text_.size());
  if (operand > reached_) Paint(hit, reached_ = Until(' ', operand), pass.colour);
  return operand;  // the operand may hold the next hit
}

std::size_t SyntaxColouring::HandleModifier(const Pass& pass, std::size_t hit) {
  const std::size_t behind = hit + 1;
  const bool stops = behind < text_.size() && (text_[behind] == ' ' || text_[behind] == '\r');
  // At the start of the text a slash counts as a modifier whatever follows it.
  const bool modifies = hit == 0 || (text_[hit - 1] == ' ' && !stops);
  const std::size_t end = modifies ? std::min(behind + 1, text_.size()) : behind;
  if (modifies) Paint(hit, end, pass.colour);
  return end;
}

std::size_t SyntaxColouring::HandleBracket(const Pass& pass, std::size_t hit) {
  const std::size_t inside = hit + pass.text.size();
  Paint(hit, inside, pass.colour);
  const std::size_t close = text_.find(')', inside);
  if (close == std::string_view::npos) return text_.size();  // nothing closes it: the pass ends here
  Paint(close, close + 1, pass.colour);
  return close + 1;
}

std::size_t SyntaxColouring::HandlePort(const Pass& pass, std::size_t hit) {
  const std::size_t command = std::min(Until('S', hit) + 1, text_.size());
  Paint(hit, command, pass.colour);
  if (command > reached_) Paint(command, reached_ = EndOfLine(command), ColourClass::Button);
  return command;
}

std::size_t SyntaxColouring::Until(char stop, std::size_t from) const {
  return std::min(text_.find(stop, from), text_.size());
}

/// The first CR or LF from there on. A pane has them only in pairs.
std::size_t SyntaxColouring::EndOfLine(std::size_t from) const {
  const std::size_t end = Until('\n', from);
  return end > from && text_[end - 1] == '\r' ? end - 1 : end;
}

void SyntaxColouring::Paint(std::size_t from, std::size_t to, ColourClass colour) {
  std::fill(classes_.begin() + static_cast<std::ptrdiff_t>(from),
            classes_.begin() + static_cast<std::ptrdiff_t>(to), colour);
  ++painted_;
}

ColourRuns SyntaxColouring::Colours(std::span<const Colour, kColourClasses> colours) const {
  static_assert(std::endian::native == std::endian::little, "the first of eight is the lowest byte");
  const auto eightFrom = [classes = classes_.data()](std::size_t at) {
    std::uint64_t eight = 0;
    std::memcpy(&eight, classes + at, sizeof eight);
    return eight;
  };
  ColourRuns runs;
  runs.Reserve(2 * painted_ + 1);
  std::size_t start = 0;
  for (std::size_t at = 0; at < text_.size(); at += sizeof(std::uint64_t)) {
    // A byte that is not 0 for each character that the next one differs from.
    std::uint64_t changes = eightFrom(at) ^ eightFrom(at + 1);
    while (changes != 0) {
      const auto bit = static_cast<std::size_t>(std::countr_zero(changes));
      const std::size_t end = at + bit / 8 + 1;
      runs.Append(end - start, colours[static_cast<std::size_t>(classes_[start])]);
      start = end;
      changes &= ~(std::uint64_t{0xFF} << bit / 8 * 8);
    }
  }
  return runs;
}

}  // namespace tarvik
