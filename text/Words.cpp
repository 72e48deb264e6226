#include "text/Words.h"

#include <algorithm>

#include "text/CodePage.h"

namespace tarvik {
namespace {

constexpr std::string_view kBetween = " \t\r\n(),=";
constexpr std::string_view kRaw = "raw";
constexpr std::size_t kFar = 10'000;  // characters; no statement is as long
constexpr std::size_t kNowhere = std::string_view::npos;

bool IsBracket(std::string_view text, std::size_t at) {
  return at < text.size() && (text[at] == '(' || text[at] == ')');
}

bool Is(std::string_view word, std::string_view other) {
  return word.size() == other.size() &&
         std::equal(word.begin(), word.end(), other.begin(),
                    [](char left, char right) { return ToLower(left) == ToLower(right); });
}

/// The opening bracket of a RAW statement in whose word the caret stands.
std::size_t BracketOfRawAt(std::string_view text, std::size_t caret) {
  const Range word = WordAt(text, caret);
  if (!Is(text.substr(word.start, word.length), kRaw)) return kNowhere;
  const std::size_t behind = text.find_first_not_of(" \t", word.End());
  return IsBracket(text, behind) && text[behind] == '(' ? behind : kNowhere;
}

/// The bracket that the caret stands behind, else the one in front of it, else that of its RAW.
std::size_t BracketAt(std::string_view text, std::size_t caret) {
  if (caret > 0 && IsBracket(text, caret - 1)) return caret - 1;
  return IsBracket(text, caret) ? caret : BracketOfRawAt(text, caret);
}

/// An opening bracket, with the RAW before it.
Range OpeningAt(std::string_view text, std::size_t bracket) {
  const std::size_t last = bracket == 0 ? kNowhere : text.find_last_not_of(" \t", bracket - 1);
  if (last != kNowhere) {
    const Range word = WordAt(text, last + 1);
    if (Is(text.substr(word.start, word.length), kRaw)) return {word.start, bracket + 1 - word.start};
  }
  return {bracket, 1};
}

/// The bracket that ends what the one at `from` begins, or that begins what it ends.
std::size_t PartnerOf(std::string_view text, std::size_t from) {
  const bool forward = text[from] == '(';
  const std::size_t last = forward ? std::min(text.size(), from + kFar) : from - std::min(from, kFar);
  int depth = 0;
  for (std::size_t at = from; at != last || !forward; forward ? ++at : --at) {
    if (text[at] == '(') ++depth;
    if (text[at] == ')') --depth;
    if (depth == 0) return at;
    if (!forward && at == last) break;
  }
  return kNowhere;
}

}  // namespace

Range WordAt(std::string_view text, std::size_t caret) {
  const std::size_t before = caret == 0 ? kNowhere : text.find_last_of(kBetween, caret - 1);
  const std::size_t start = before == kNowhere ? 0 : before + 1;
  return {start, std::min(text.find_first_of(kBetween, caret), text.size()) - start};
}

std::size_t FindWord(std::string_view text, std::string_view word, std::size_t start, std::size_t end) {
  while (start < end) {
    const std::size_t first = std::min(text.find_first_not_of(kBetween, start), end);
    const std::size_t behind = std::min(text.find_first_of(kBetween, first), text.size());
    if (first < end && Is(text.substr(first, behind - first), word)) return first;
    start = behind;
  }
  return end;
}

BracketPair BracketsAt(std::string_view text, std::size_t caret) {
  const std::size_t bracket = BracketAt(text, caret);
  if (bracket == kNowhere) return {};
  const std::size_t partner = PartnerOf(text, bracket);
  const bool opens = text[bracket] == '(';
  const std::size_t opening = opens ? bracket : partner;
  const std::size_t closing = opens ? partner : bracket;
  return {opening == kNowhere ? Range{} : OpeningAt(text, opening),
          closing == kNowhere ? Range{} : Range{closing, 1}};
}

}  // namespace tarvik
