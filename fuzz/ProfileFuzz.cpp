// The settings file: any bytes can be read, and a value written into any bytes is found again while every
// other line stays.
#include <algorithm>
#include <cstdlib>

#include "platform/ProfileFile.h"
#include "text/CodePage.h"

namespace {

/// All but those of the keys that are written, which may stand anywhere.
std::vector<std::string> OtherLines(std::string_view text) {
  std::vector<std::string> lines;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = std::min(text.find_first_of("\r\n", at), text.size());
    std::string line(text.substr(at, end - at));
    const std::string folded = tarvik::LowerCase(line);
    const bool written = folded.find("undomax") != folded.npos || folded.find("textfilepath") != folded.npos;
    if (!line.empty() && !written) lines.push_back(std::move(line));
    at = end + 1;
  }
  return lines;
}

/// Nothing but the headers of sections may have come, and those only behind or between.
void CheckStay(const std::vector<std::string>& before, const std::vector<std::string>& after) {
  auto line = before.begin();
  for (const std::string& now : after) {
    if (line != before.end() && *line == now) {
      ++line;
    } else if (now != "[Miscellaneous]" && now != "[Apps]") {
      std::abort();
    }
  }
  if (line != before.end()) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  tarvik::Profile profile(text);
  (void)profile.GetString("Miscellaneous", "ValidUser", "User unknown", 100);
  (void)profile.GetInt("Miscellaneous", "UndoMax", 50);

  profile.Set("Miscellaneous", "UndoMax", "77");
  if (profile.GetInt("Miscellaneous", "UndoMax", 0) != 77) std::abort();
  const std::string once = profile.text();
  profile.Set("Miscellaneous", "UndoMax", "77");
  if (profile.text() != once) std::abort();
  profile.Set("Apps", "TextFilePath", "c:\\a b\\readme.txt");
  if (profile.GetString("Apps", "TextFilePath", "", 100) != "c:\\a b\\readme.txt") std::abort();
  if (profile.GetInt("Miscellaneous", "UndoMax", 0) != 77) std::abort();
  CheckStay(OtherLines(text), OtherLines(profile.text()));
  return 0;
}
