// The model of both files: any bytes are statements that cover them, in tokens that put them together again,
// and after any edits the statements are those of the text as it has become. What is wrong in a pair of any
// bytes lies in its texts.
#include <algorithm>
#include <cstdlib>

#include "Bytes.h"
#include "language/Problems.h"

namespace {

using namespace tarvik;

/// The tokens of the statements, one behind the other, are the text.
template <class File>
void CheckCovered(const File& file, const std::string& text) {
  std::size_t at = 0;
  for (std::size_t i = 0; i < file.size(); ++i) {
    if (file.RangeOf(i).start != at) std::abort();
    for (const model::Token& token : model::TokensOf(file.LinesOf(i, text))) {
      if (token.range.length == 0 || file.RangeOf(i).start + token.range.start != at) std::abort();
      at += token.range.length;
    }
  }
  if (at != text.size()) std::abort();
}

template <class File>
void CheckEdits(Bytes bytes, std::string text) {
  constexpr std::size_t kLongest = 24;
  File file(text);
  CheckCovered(file, text);
  for (int i = 0; i < 16 && !bytes.Empty(); ++i) {
    const std::size_t start = bytes.Below(text.size() + 1);
    const std::size_t removed = bytes.Below(std::min(kLongest, text.size() - start) + 1);
    const std::string inserted = bytes.Next(bytes.Below(kLongest));
    text.replace(start, removed, inserted);
    file.Edit(text, {start, removed}, inserted.size());
    if (file != File(text)) std::abort();
  }
  CheckCovered(file, text);
}

/// Every number of a part, and one for what is not known.
std::optional<int> Part(Bytes& bytes) {
  constexpr int kParts = 6;
  const auto part = static_cast<int>(bytes.Below(kParts));
  return part + 1 == kParts ? std::nullopt : std::optional(part);
}

void CheckProblems(Bytes bytes, const std::string& joystickText) {
  const model::Hardware hardware{Part(bytes), Part(bytes), Part(bytes)};
  const bool noMacroFile = bytes.Below(2) == 0;
  const std::string name = bytes.Next(bytes.Below(16));
  const std::string macroText = bytes.Rest();
  const model::JoystickFile joystick(joystickText);
  const model::MacroFile macros(macroText);
  const std::vector<model::Problem> problems =
      model::ProblemsIn({joystick, joystickText, macros, macroText, hardware, {name, name, noMacroFile}});
  for (const model::Problem& problem : problems) {
    const std::string& text = problem.file == model::FileKind::Joystick ? joystickText : macroText;
    const bool lies = problem.range.End() <= text.size() && (problem.range.length > 0 || text.empty());
    if (!lies || problem.text.empty() || problem.advice.empty()) std::abort();
  }
  const auto place = [](const model::Problem& each) { return std::pair(each.file, each.range.start); };
  if (!std::ranges::is_sorted(problems, {}, place)) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  Bytes bytes(data, size);
  const std::string text = bytes.Next(size / 2);
  CheckEdits<model::JoystickFile>(bytes, text);
  CheckEdits<model::MacroFile>(bytes, text);
  CheckProblems(bytes, text);
  return 0;
}
