// The macro file: any bytes can be analysed, every macro comes from a record with an "=", and the ticks are
// those of one whole-word search a name.
#include <algorithm>
#include <cstdlib>

#include "language/MacroAnalysis.h"
#include "text/CodePage.h"
#include "text/Search.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  using namespace tarvik;
  const std::string text(reinterpret_cast<const char*>(data), size);
  std::vector<std::string> records = ReadMacroRecords(text);
  const auto definitions = std::count_if(records.begin(), records.end(), [](const std::string& record) {
    return record.find('=') != std::string::npos;
  });
  const MacroAnalysis analysis = AnalyseMacros(records);
  if (static_cast<std::ptrdiff_t>(analysis.macros.size()) > definitions) std::abort();

  const std::vector<bool> used = NamesUsed(text, analysis.macros);
  const std::string folded = LowerCase(text);
  for (std::size_t i = 0; i < analysis.macros.size(); ++i) {
    const auto hit = FindText({text, folded}, analysis.macros[i], 0, text.size(), find::kWholeWord);
    if (used[i] != hit.has_value()) std::abort();
  }
  return 0;
}
