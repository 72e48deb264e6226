// Takes arbitrary bytes for a file and for what its text has become: line ends come back, and every encoding
// gives some text.
#include <algorithm>
#include <cstdint>
#include <cstdlib>

#include "text/Encoding.h"
#include "text/LineEnds.h"
#include "text/RichText.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tarvik;
  constexpr std::size_t kFew = 512;  // whose comparison takes no time
  size = std::min(size, kFew);
  const std::string_view all(reinterpret_cast<const char*>(data), size);
  const std::size_t half = size == 0 ? 0 : data[0] * size / 256;
  const std::string_view file = all.substr(0, half);
  const std::string_view now = all.substr(half);
  const LineEnds ends(file);
  if (ends.PutBackInto(WithPaneLineBreaks(file)) != file) std::abort();
  if (WithPaneLineBreaks(ends.PutBackInto(now)) != WithPaneLineBreaks(now)) std::abort();
  (void)EncodingOf(file);
  for (const Encoding encoding : {Encoding::Utf8, Encoding::Utf16Little, Encoding::Utf16Big}) {
    const Converted converted = InCodePage(now, file, encoding);
    if (converted.lost > converted.text.size()) std::abort();
  }
  const std::string composed = Composed(all);
  if (Composed(composed).size() > composed.size()) std::abort();
  return 0;
}
