#include "kneeboard/Words.h"

#include <algorithm>
#include <vector>

#include "language/Tokens.h"
#include "text/CodePage.h"

namespace tarvik::kneeboard {
namespace {

bool IsSmall(char sign) { return sign >= 'a' && sign <= 'z'; }
bool IsCapital(char sign) { return sign >= 'A' && sign <= 'Z'; }

/// Whether a word ends before a place of a name.
bool EndsAt(std::string_view name, std::size_t at) {
  if (!IsCapital(name[at])) return false;
  if (IsSmall(name[at - 1])) return true;
  const bool smallFollows = at + 1 < name.size() && IsSmall(name[at + 1]);
  return smallFollows && (IsCapital(name[at - 1]) || (name[at - 1] >= '0' && name[at - 1] <= '9'));
}

std::vector<std::string> WordsOf(std::string_view name) {
  std::vector<std::string> words(1);
  for (std::size_t i = 0; i < name.size(); ++i) {
    const bool parts = name[i] == '_' || model::IsBlank(name[i]);
    if (parts || (i > 0 && EndsAt(name, i))) {
      if (!words.back().empty()) words.emplace_back();
    }
    if (!parts) words.back().push_back(name[i]);
  }
  if (words.back().empty()) words.pop_back();
  return words;
}

/// Such as "ECM" and "F16", which are no words to be written small.
bool IsShortForm(const std::string& word) {
  const bool hasDigit = std::ranges::any_of(word, [](char sign) { return sign >= '0' && sign <= '9'; });
  return hasDigit || std::ranges::none_of(word, IsSmall);
}

}  // namespace

std::string ReadableName(std::string_view name) {
  const bool hasSmall = std::ranges::any_of(name, IsSmall);
  std::string readable;
  for (std::string word : WordsOf(name)) {
    const bool keeps = hasSmall && IsShortForm(word);
    if (!keeps) std::ranges::transform(word, word.begin(), ToLower);
    if (!readable.empty()) readable.push_back(' ');
    readable.append(word);
  }
  if (readable.empty()) return std::string(name);
  readable.front() = ToUpper(readable.front());
  return readable;
}

std::string BareRemark(std::string_view remark) {
  if (model::BeginsComment(remark)) remark.remove_prefix(remark.starts_with('~') ? 1 : 3);
  const auto isEdge = [](char sign) {
    return model::IsBlank(sign) || std::string_view("\n-=*#~_|+").find(sign) != std::string_view::npos;
  };
  while (!remark.empty() && isEdge(remark.front())) remark.remove_prefix(1);
  while (!remark.empty() && isEdge(remark.back())) remark.remove_suffix(1);
  std::string bare;
  for (const char sign : remark) {
    const bool isBlank = model::IsBlank(sign) || sign == '\n' || sign == '\0';
    if (isBlank && bare.ends_with(' ')) continue;
    bare.push_back(isBlank ? ' ' : sign);
  }
  return bare;
}

}  // namespace tarvik::kneeboard
