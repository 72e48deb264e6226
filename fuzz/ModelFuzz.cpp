// The model of both files: any bytes are statements that cover them, in tokens that put them together again,
// and after any edits the statements are those of the text as it has become.
#include <algorithm>
#include <cstdlib>

#include "Bytes.h"
#include "language/MacroFile.h"

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

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  Bytes bytes(data, size);
  const std::string text = bytes.Next(size / 2);
  CheckEdits<model::JoystickFile>(bytes, text);
  CheckEdits<model::MacroFile>(bytes, text);
  return 0;
}
