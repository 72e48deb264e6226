#include "language/Painting.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

namespace tarvik {
Painting::Painting(SearchableText text, std::span<const Pass> passes)
    : text_(text), passes_(passes), hits_(text, passes), classes_(text.text.size(), ColourClass::Black) {}

void Painting::Run(const PaintingProgress& progress) {
  for (std::size_t pass = 0; pass < passes_.size(); ++pass) {
    if (progress.before) progress.before(passes_[pass]);
    Make(pass, progress);
    if (progress.after) progress.after(passes_[pass]);
  }
}

/// A hit may reach over later ones: these are none.
void Painting::Make(std::size_t pass, const PaintingProgress& progress) {
  std::size_t from = 0;
  reached_ = 0;
  for (const std::size_t hit : hits_.Of(pass)) {
    if (hit < from) continue;
    if (progress.hit) progress.hit(hit);
    from = Handle(passes_[pass], hit);
  }
}

/// Paints one hit and tells where the search goes on.
std::size_t Painting::Handle(const Pass& pass, std::size_t hit) {
  const std::size_t behind = hit + pass.text.size();
  switch (pass.kind) {
    case PassKind::WordAndOperand:
      return HandleWordAndOperand(pass, hit);
    case PassKind::Modifier:
      return HandleModifier(pass, hit);
    case PassKind::Bracket:
      return HandleBracket(pass, hit);
    case PassKind::FollowedWord:
      if (behind < text_.text.size() && text_.text[behind] == pass.follow) Paint(hit, behind, pass.colour);
      return behind;
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

std::size_t Painting::HandleWordAndOperand(const Pass& pass, std::size_t hit) {
  const std::size_t operand = std::min(hit + pass.text.size() + 1, text_.text.size());
  if (operand > reached_) Paint(hit, reached_ = Until(' ', operand), pass.colour);
  return operand;  // the operand may hold the next hit
}

std::size_t Painting::HandleModifier(const Pass& pass, std::size_t hit) {
  const std::string_view text = text_.text;
  const std::size_t behind = hit + 1;
  const bool stops = behind < text.size() && (text[behind] == ' ' || text[behind] == '\r');
  // Nothing stands before the text's first character to speak against it, whatever follows.
  const bool modifies = hit == 0 || (text[hit - 1] == ' ' && !stops);
  const std::size_t end = modifies ? std::min(behind + 1, text.size()) : behind;
  if (modifies) Paint(hit, end, pass.colour);
  return end;
}

std::size_t Painting::HandleBracket(const Pass& pass, std::size_t hit) {
  const std::size_t inside = hit + pass.text.size();
  Paint(hit, inside, pass.colour);
  const std::size_t close = text_.text.find(')', inside);
  if (close == std::string_view::npos) return text_.text.size();  // nothing closes it: the pass ends here
  Paint(close, close + 1, pass.colour);
  return close + 1;
}

std::size_t Painting::HandlePort(const Pass& pass, std::size_t hit) {
  const std::size_t command = std::min(Until('S', hit) + 1, text_.text.size());
  Paint(hit, command, pass.colour);
  if (command > reached_) Paint(command, reached_ = EndOfLine(command), ColourClass::Button);
  return command;
}

std::size_t Painting::Until(char stop, std::size_t from) const {
  return std::min(text_.text.find(stop, from), text_.text.size());
}

/// The first CR or LF from there on. A pane has them only in pairs.
std::size_t Painting::EndOfLine(std::size_t from) const {
  const std::size_t end = Until('\n', from);
  return end > from && text_.text[end - 1] == '\r' ? end - 1 : end;
}

void Painting::Paint(std::size_t from, std::size_t to, ColourClass colour) {
  std::fill(classes_.begin() + static_cast<std::ptrdiff_t>(from),
            classes_.begin() + static_cast<std::ptrdiff_t>(to), colour);
}

/// Where the characters of the class at `start` end, looked for eight at a time.
std::size_t Painting::EndOfRun(std::size_t start) const {
  const ColourClass wanted = classes_[start];
  const std::uint64_t eight = 0x0101010101010101U * static_cast<std::uint64_t>(wanted);
  std::size_t at = start;
  std::uint64_t found = eight;
  while (at + sizeof found <= classes_.size()) {
    std::memcpy(&found, &classes_[at], sizeof found);
    if (found != eight) break;
    at += sizeof found;
  }
  while (at < classes_.size() && classes_[at] == wanted) ++at;
  return at;
}

ColourRuns Painting::Colours(std::span<const Colour, kColourClasses> colours) const {
  ColourRuns runs;
  std::size_t changes = 1;
  for (std::size_t at = 1; at < classes_.size(); ++at) changes += classes_[at] != classes_[at - 1];
  runs.Reserve(changes);
  for (std::size_t start = 0; start < classes_.size();) {
    const std::size_t end = EndOfRun(start);
    runs.Append(end - start, colours[static_cast<std::size_t>(classes_[start])]);
    start = end;
  }
  return runs;
}

}  // namespace tarvik
