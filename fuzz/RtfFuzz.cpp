// Reads arbitrary bytes as RTF: what comes out is a sound pane text, and survives being written and read
// again.
#include <cstdint>
#include <cstdlib>

#include "text/Rtf.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tarvik;
  const RichText read = ReadRtf({reinterpret_cast<const char*>(data), size});
  if (read.colours.size() != read.text.size() || WithPaneLineBreaks(read.text) != read.text) std::abort();
  if (ReadRtf(WriteRtf(read, {{"Fixedsys", 9, true}, 20})) != read) std::abort();
  return 0;
}
