// Any bytes as a help file: every topic that it gives can be found again by what it says of itself.
#include <cstdlib>

#include "tools/help/HelpFile.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  const tarvik::HelpFile file(std::string_view(reinterpret_cast<const char*>(data), size));
  for (const tarvik::HelpTopic& topic : file.Topics()) {
    for (const int context : topic.contexts) {
      if (!file.WithContext(context)) std::abort();
    }
    for (const std::string& keyword : topic.keywords) {
      if (!file.WithKeyword(keyword)) std::abort();
    }
  }
  return 0;
}
